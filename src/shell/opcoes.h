// The options dialog "Opções" as a record: six check boxes stored in the
// settings as "1" or "0". It never touches the bars themselves: the four
// display boxes only store text, which the frame's load reads as shown
// unless it is exactly "False", and which the frame's exit overwrites.
#pragma once

#include <array>
#include <string>

namespace tramelo {

struct CaixaMarcacao {
    std::string Caption;
    bool Value = false;
};

struct BotaoComando {
    std::string Caption;
    bool Enabled = true;
};

struct FrmOpcao {
    FrmOpcao(); // the design state: captions, all boxes unticked
    bool Carregado = false;
    std::string Caption = "Opções";
    std::string fraExibir = "Exibir";
    std::string fraGeral = "Geral";
    // On screen, from the top: 0, 1, 2 (indented), 3, 5, then 4 under "Geral".
    std::array<CaixaMarcacao, 6> chkOpcao;
    BotaoComando cmdOK{"&OK", true};
    BotaoComando cmdCancel{"Cancela&r", true}; // answers Esc
    BotaoComando cmdApply{"&Aplicar", false};
    bool Carregando = false;    // the load's own ticks aren't the user's
    bool OpcaoAlterada = false; // from the first click; an apply doesn't clear it
};

// The setting of each box, by index.
struct OpcaoArmazenada {
    const char* Secao;
    const char* Valor;
    const char* Desligado; // the stored text that leaves the box unticked
};
inline constexpr std::array<OpcaoArmazenada, 6> OpcoesArmazenadas{{
    {"Config", "Barra0", "False"},
    {"Config", "Barra1", "False"},
    {"Config", "Barra2", "False"},
    {"Config", "Barra3", "False"},
    {"System", "Associa", "0"},
    {"Config", "DicasIniciar", "0"},
}};

// Stores the frame's four ticks as "True"/"False", then ticks each box whose
// setting isn't its "off" text.
void Form_Load(FrmOpcao& f);
// The user's click on a box, after its value changed (AlteraOpcao).
void chkOpcao_Click(FrmOpcao& f, int Index);
// Writes each box as "1" or "0" in the order 0 to 5; Cancel becomes "Fecha&r".
void cmdApply_Click(FrmOpcao& f);
// Applies when a box was ever clicked, then unloads.
void cmdOK_Click(FrmOpcao& f);
// Unloads without writing.
void cmdCancel_Click(FrmOpcao& f);

} // namespace tramelo
