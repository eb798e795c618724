// The controls of a window as plain records: what a user sees of them and the
// state the routines read and write. A change made by code runs the control's
// handler, as a user's change does; setting what a control already holds runs
// nothing.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace tramelo {

struct Rotulo {
    std::string Caption;
    bool Enabled = true;
    bool Visible = true;
};

struct CaixaTexto {
    bool Enabled = true;
    bool Visible = true;
    bool Locked = false;
    int MaxLength = 0;
    int SelStart = 0;
    int SelLength = 0;

    const std::string& Text() const { return texto_; }
    // Sets the text; runs Change when it differs.
    void DefineTexto(std::string t);

    std::function<void()> Change;

  private:
    std::string texto_;
};

struct ItemLista {
    std::string texto;
    int ItemData = 0;
};

struct CaixaCombinacao {
    bool Enabled = true;
    bool Visible = true;
    std::string Tag;
    std::vector<ItemLista> itens;

    int ListIndex() const { return indice_; }
    int ListCount() const { return static_cast<int>(itens.size()); }
    // The selected item's text, "" with no selection.
    std::string Text() const;
    // Selects a position (-1 for none); runs Click when it differs. A position
    // beyond the list is failure 380 (invalid property value).
    void DefineListIndex(int i);
    void AddItem(std::string texto, int itemData = 0);
    void Clear();

    std::function<void()> Click;

  private:
    int indice_ = -1;
};

// The strip of a row: it carries the in-use flag in its Tag and the row's
// place in the list.
struct Faixa {
    std::string Tag;
    bool Enabled = true;
    bool Visible = true;
    int Top = 0; // pixels inside the sliding strip
};

// A frame or picture box that holds other controls.
struct Painel {
    bool Enabled = true;
    bool Visible = true;
    int Top = 0;
    int Height = 0;
    bool corAtiva = false; // painted in the active title bar colour, else the inactive one
};

// A vertical scroll bar counting in rows. Value and Max set through the two
// setters run Change, as the platform's bar does; a value outside 0..Max is
// brought to the nearest end rather than refused, since a focus handler
// mustn't stop on it.
struct BarraRolagem {
    bool Enabled = true;
    int Value = 0;
    int Max = 0;
    int LargeChange = 1;
    int SmallChange = 1;
    int Top = 0;
    int Height = 224;

    void DefineValue(int v);
    // A Max below the value takes the value with it.
    void DefineMax(int m);

    std::function<void()> Change;
};

// A menu entry of a window's menu bar.
struct ItemMenu {
    std::string Caption;
    bool Enabled = true;
    bool Checked = false;
    bool Visible = true;
};

} // namespace tramelo
