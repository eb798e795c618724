// The main frame's bars as a record: the coolbar with its two bands, the two
// toolbars with their keyed buttons, the status bar, and the ticks of the
// frame's "Exibir" menu. Every window reaches the one frame through mdiMenu();
// the desktop view only shows this record.
#pragma once

#include "plataforma/controles.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace tramelo {

struct BotaoBarra {
    std::string Key;
    std::string Caption; // blank while the text labels are off
    std::string Tag;     // keeps the word while the caption is blank
    std::string ToolTipText;
    int Image = 0; // in the toolbar's image list, from 1
    bool Enabled = true;
    bool Visible = true;
    bool separador = false;
};

struct BarraFerramentas {
    std::vector<BotaoBarra> Buttons;

    // The button of a key; nullptr for a key the bar doesn't have.
    BotaoBarra* Botao(std::string_view key);
    // Enables or disables a button; an unknown key is passed over.
    void Habilita(std::string_view key, bool habilitado);
    // Shows each button's word, from its Tag, or blanks every caption.
    void MostraEtiquetas(bool mostrar);
};

// A band of the coolbar, lengths in twips.
struct Banda {
    int MinWidth = 0;
    int MinHeight = 0;
    int Width = 0;
    bool NewRow = false;
    bool Visible = true;
};

struct BarraCool {
    bool Visible = true;
    std::array<Banda, 2> bandas;
    // Band numbers count from 1, as the control's do.
    Banda& Bands(int n) { return bandas.at(static_cast<size_t>(n - 1)); }
    const Banda& Bands(int n) const { return bandas.at(static_cast<size_t>(n - 1)); }
};

// The three panels of the status bar: a text, and the date and the time that
// the control keeps by itself.
enum class TipoPainel { Texto, Data, Hora };

struct PainelStatus {
    TipoPainel tipo = TipoPainel::Texto;
    std::string Text;
    int Width = 0; // twips; 0 fills the free width
};

struct BarraStatus {
    bool Visible = true;
    std::array<PainelStatus, 3> Panels{{{TipoPainel::Texto, "Status", 0},
                                        {TipoPainel::Data, "", 2540},
                                        {TipoPainel::Hora, "", 2540}}};
};

struct MdiMenu {
    MdiMenu(); // the design state: both bands and all buttons, labels on

    std::string Caption = "Tramelo";
    int Left = 60, Top = 630, Width = 6495, Height = 5730; // client area, twips
    int WindowState = 0;
    bool Enabled = true; // off while a longer action runs (HabilitaMenu)
    int EstadoAnterior = 0;
    // False in a program without a frame (the batch tool): no toolbar, menu
    // or recent-files bookkeeping is kept for its windows.
    bool mostrado = true;

    BarraCool cobBarra;
    BarraFerramentas tbPadrao;  // band 1
    BarraFerramentas tbCalculo; // band 2
    BarraStatus sbStatusBar;

    // The ticks of the frame's menu: the frame's truth, which the children copy.
    ItemMenu mnuExibirBarraPadrao{"Botões &padrão", true, true};
    ItemMenu mnuExibirBarraCalculo{"Barra de &calculo", true, true};
    ItemMenu mnuExibirEtiqueta{"Etiquetas de texto", true, true};
    ItemMenu mnuExibirStatusBar{"Barra de &status", true, true};
};

// The one frame of the program. Tests bring it back to design with
// `mdiMenu() = MdiMenu{}`; the batch tool sets `mostrado` false at start.
MdiMenu& mdiMenu();

// Sets the frame's caption to the program's title.
void Atualiza(MdiMenu& m);

} // namespace tramelo
