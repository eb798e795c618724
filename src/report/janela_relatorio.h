// The report window's own events: what it switches on the frame while it is
// active, and its close that only hides it.
#pragma once

namespace tramelo {

struct FrmRelatorio;

// Enables "Imprimir" and "Exportar" on the frame's calculation toolbar,
// copies the frame's "Exibir" ticks into this window's menu, and refreshes
// its recent-files menu.
void Relatorio_Activate(FrmRelatorio& r);
// Deactivation and unload disable the same two buttons.
void Relatorio_Deactivate(FrmRelatorio& r);
void Relatorio_Unload(FrmRelatorio& r);

// A user's close (close box, system menu, "Fechar") hides the window; its
// lines stay. Returns true: the close is cancelled.
bool Relatorio_QueryUnload(FrmRelatorio& r, bool fechadoPeloUsuario);

} // namespace tramelo
