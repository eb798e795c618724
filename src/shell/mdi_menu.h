// The main frame's operations: its menu, the toolbar buttons reaching the
// active child, the bar toggles, close-all, the reports folder and help, and
// its load and unload with the settings. The frame has no document logic:
// it forwards to AbreCalculo, to the active child, or to the shell.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace tramelo {

class FrmCalcTramelo;
struct FrmRelatorio;
struct MdiMenu;

// The sizes the toolbars take on screen, in twips, for AjustaBarra; measured
// by the desktop. Without it the design sizes stand.
struct MedidasBarras {
    int alturaPadrao = 540, larguraPadrao = 3000, larguraCalculo = 4215;
};
inline std::function<MedidasBarras()> MedeBarras;

// What the frame can't do itself: a run-time failure that reached a toolbar
// action is shown by the caller's edge; the desktop sets these to its own.
inline std::function<void(int)> mnuAjudaDocumentacaoTabela; // opens a steam table window
inline std::function<void()> MostraDicas;                   // shows frmDica, not modal
inline std::function<void(FrmCalcTramelo&, int)> AbreCalculadoraNoCampo;
inline std::function<void(FrmRelatorio&)> ImprimeRelatorio;
inline std::function<void(FrmRelatorio&)> ExportaRelatorio;
inline std::function<void()> ConfiguraImpressao;
inline std::function<void()> SairDoPrograma;
inline std::function<void()> MostraOpcoes; // frmOpcao, modal
inline std::function<void()> MostraSobre;  // frmSobre, modal

// Read at the frame's load from section "FilesMRU", values " 1" to " 4";
// stored at each attempt to close the frame, up to the first empty entry.
void CarregaMRU();
void GravaMRU();

void mnuArquivoNew_Click();
void mnuArquivoOpen_Click();
void mnuArquivoFecharTodos_Click();
void mnuExibirBarraPadrao_Click();
void mnuExibirBarraCalculo_Click();
void mnuExibirEtiqueta_Click();
void mnuExibirStatusBar_Click();
void mnuExibirRelatorio_Click();
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
