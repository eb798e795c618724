// The window "Dica do dia" as a record: one line of "DicaDoDia.txt" (in the
// installed data folder, or beside the executable in a build), shown at a
// time and picked at random. Not modal; one window at most.
#pragma once

#include "shell/abertura.h"
#include "shell/opcoes.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace tramelo {

inline constexpr const char* ArquivoDicas = "DicaDoDia.txt";

struct FrmDica {
    bool Carregado = false;
    std::string Caption = "Dica do dia";
    int Left = 0, Top = 0, Width = 6000, Height = 3600; // twips
    std::vector<std::string> Dicas;                     // in file order; DicaAtual counts from 1
    int32_t DicaAtual = 0;
    std::string lblVcSabia = "Você sabia...";
    std::string lblTipText; // empty at design
    CaixaMarcacao chkDicasIniciar{"&Mostrar dicas ao iniciar", false};
    BotaoComando cmdNextTip{"&Nova Dica", true};
    BotaoComando cmdOK{"OK", true}; // answers Enter and Esc
    // A number in [0, 1) for each draw. Seeded from the clock at load unless
    // one was set before (tests).
    std::function<double()> Rnd;
};

// What the desktop measures to centre the window over the frame: both
// windows' rectangles on screen, and the screen's twips per pixel.
struct LugarDica {
    Retangulo menu, dica;
    int twipsPorPixel = 15;
};

// The box from "DicasIniciar", the place over the frame, the random source,
// and the tips; without the file, the message that it wasn't found.
void Form_Load(FrmDica& f, const LugarDica& lugar);
// Adds each line of the file to Dicas (kept from before) and draws one.
// False when the name is empty or no such file exists.
bool LoadTips(FrmDica& f, const std::string& Arquivo);
// A tip at random; the same one can come twice in a row.
void DicaSorteia(FrmDica& f);
// The current tip in the label; with no tips the label stays as it is.
void DicaMostrarAtual(FrmDica& f);

void cmdNextTip_Click(FrmDica& f);
void cmdOK_Click(FrmDica& f);
// Stores the box at once as "1" or "0" in "DicasIniciar".
void chkDicasIniciar_Click(FrmDica& f);

} // namespace tramelo
