// The first instance's bring-up after the entry routine, the command a
// second start hands over, and the way down. Their order is their state.
#pragma once

#include <string>

namespace tramelo {

// What the desktop does for the main frame's window. The record mdiMenu()
// holds its state and place; these put it on screen and read it back.
class TelaMenu {
  public:
    virtual ~TelaMenu() = default;
    // The window is made from the record, hidden (after MdiMenu_Load).
    virtual void Carrega() = 0;
    // Shown, in the record's window state; brought forward if shown.
    virtual void Mostra() = 0;
    virtual bool Visivel() = 0;
    // The record's WindowState applied to the window.
    virtual void AplicaEstado() = 0;
    // The window's state and the place of its normal window, in twips,
    // into the record.
    virtual void GuardaLugar() = 0;
    // Unloads every loaded window other than the frame: tips, tables,
    // calculator, whatever the desktop keeps beside the calculations.
    virtual void DescarregaOutras() = 0;
};
TelaMenu*& telaMenu();

// The bring-up: the frame loaded hidden with its link topic open, the
// splash modal until its time, the command line, the association, the
// frame shown, then a calculation or the tip window. A run-time failure
// shows the error box and leaves the frame on screen with nothing opened.
void IniciaPrograma();

// A command from a second start (the frame's link-execute). "/P " and a
// file: the frame comes back from minimized to its state before, is shown,
// and opens the file. Failures are ignored.
void MdiMenu_LinkExecute(const std::string& CmdStr);

// Each resize keeps the last state that wasn't minimized.
void MdiMenu_Resize();

// Closing the frame: the recent files are stored, each calculation may
// refuse (false: the program goes on), then bars, state and place are
// stored and the other windows go.
bool FechaPrograma();

// A session that ends letting no program ask: what the exit stores (recent
// files, bars, state and place) is stored all the same; calculations can't be
// asked about, and nothing is unloaded, since the session ends the process.
void GuardaSessao();

} // namespace tramelo
