// The main frame's operations: its menu, the toolbar buttons reaching the
// active child, the bar toggles, close-all, the reports folder and help, and
// its load and unload with the settings. The frame has no document logic:
// it forwards to AbreCalculo, to the active child, or to the shell.
#pragma once

#include <string>
#include <string_view>

namespace tramelo {

class FrmCalcTramelo;
struct FrmRelatorio;
struct MdiMenu;

void mnuArquivoNew_Click();
void mnuArquivoOpen_Click();
void mnuArquivoFecharTodos_Click();
void mnuExibirBarraPadrao_Click();
void mnuExibirBarraCalculo_Click();
void mnuExibirEtiqueta_Click();
void mnuExibirStatusBar_Click();
void mnuExibirRelatorio_Click();
// The user manual, beside the tips: installed in the program's data folder,
// or copied beside a build's executable.
inline constexpr const char* ArquivoManual = "manual/index.html";

// The manual in the desktop's browser, at its first page or at its section on
// reading it; without the manual, the box that says there is no help file.
void mnuAjudaConteudo_Click();
void mnuAjudaComoUsar_Click();
void AjustaBarra();

// Toolbar clicks, by the button's key.
void tbPadrao_ButtonClick(std::string_view key);
void tbCalculo_ButtonClick(std::string_view key);

// The frame's load: the bars and the window's place from the settings (a
// stored place of 0 or less keeps the design's), the recent files, Atualiza.
void MdiMenu_Load();
// Closing the frame, first stage: the recent files are stored (even if a
// calculation then cancels the exit).
void MdiMenu_QueryUnload();
// Last stage: the bars' ticks as "True"/"False", the window state, and the
// normal window's place in twips.
void MdiMenu_Unload();

// The frame's WindowState (0 normal, 1 minimized, 2 maximized) from what the
// desktop reports. A window minimized from maximized is both at once, and it
// counts as minimized: the state it returns to is kept in EstadoAnterior.
int EstadoDaJanela(bool minimizada, bool maximizada);

// Disables the frame with the busy pointer while a longer action runs.
void HabilitaMenu(bool Habilitado);

// A run-time failure that reached a frame action: the error box, and the
// program goes on.
void InformaFalhaDeCalculo(int numero, const std::string& descricao);

} // namespace tramelo
