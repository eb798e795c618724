// The report of one calculation as a record: its lines, its three header
// fields with their labels, the column header, and the window's shown state.
#pragma once

#include "iso5167/iso5167.h"
#include "plataforma/controles.h"
#include "report/verifica_placa.h"

#include <optional>
#include <string>
#include <vector>

namespace tramelo {

struct FrmRelatorio {
    FrmRelatorio(); // the window's load: builds lblMenu

    std::string Caption;
    bool Visible = false;
    bool Enabled = true;
    int ordemZ = 0; // raised by ZOrder: the front-most report has the highest

    // The line store; every line begins with the blank that AddRel adds.
    std::vector<std::string> lstRelatorio;
    // The ISO 5167-2:2003 check of the same run, never part of the report;
    // its text lines are made where they are shown (its own tab, the data
    // sheet's second page), not by every run. None before the first run.
    std::optional<ResultadoIso> iso;
    // The same run's point with the user's flow and pressure units, for a
    // rating of an existing plate; none before the first run.
    std::optional<PontoDeProjeto> pontoIso;
    // The last rating made in the check's tab, for its printed page; each
    // run drops it, as it rated another point.
    std::optional<VerificacaoFeita> verificacao;
    // The calculation's Tag and file name as the run found them, for the
    // check's printed page, which must be matched to its plate.
    std::string Tag, Arquivo;

    // Header fields, and their labels (data: printing and export use them).
    std::string txtData = "Abrindo";
    std::string txtOS = "Não alterar o conteúdo do: \"Hora - data\" = \"txtData'\"";
    std::string txtCliente;
    std::string lblData = " Hora - data......:";
    std::string lblOS = " Ordem de serviço.:";
    std::string lblCliente = " Cliente..........:";
    // The 79-character column header above the list.
    std::string lblMenu;
    // The control that has the focus, by name ("txtData", ...).
    std::string foco;

    // The "Exibir" ticks of this window's menu, copied from the frame on
    // activation; the frame's toggles keep them in step.
    ItemMenu mnuExibirBarraPadrao{"Botões &padrão", true, true};
    ItemMenu mnuExibirBarraCalculo{"Barra de &calculo", true, true};
    ItemMenu mnuExibirEtiqueta{"&Etiquetas de texto", true, true};
    ItemMenu mnuExibirStatusBar{"Barra de &status", true, true};

    void Show();
    void Hide();
    void ZOrder();
};

// The marker in txtData of a report that was never initialised.
inline constexpr const char* MarcaAbrindo = "Abrindo";

} // namespace tramelo
