// The life of a calculation window: made, numbered, opened, activated,
// saved, closed. AbreCalculo is the only way a calculation window is made.
#pragma once

#include <string>

namespace tramelo {

class FrmCalcTramelo;
struct FrmRelatorio;

// The active child as the frame reaches it, kept by the desktop.
struct FilhoAtivo {
    FrmCalcTramelo* calculo = nullptr;
    FrmRelatorio* relatorio = nullptr;
};
FilhoAtivo& filhoAtivo();

// Makes a child the active one: the window that loses the activation runs
// its deactivation first, then the new one its activation. Activating the
// active child again does nothing.
void AtivaFilho(FilhoAtivo novo);

// Counts each new empty calculation of the run; never lowered.
long& ContadorCalculos();

// Abrir false: a new "Cálculo N". Abrir true: opens Arquivo, asking for the
// name when it is empty. Returns the window made, or null.
FrmCalcTramelo* AbreCalculo(bool Abrir, std::string& Arquivo);
FrmCalcTramelo* AbreCalculo(bool Abrir, const std::string& Arquivo);

// Offers to save: -1 nothing to save, 6 or 7 the answer, 2 stop the closing.
short TrameloFecha(FrmCalcTramelo& f);

// Empties the document.
void TrameloLimpa(FrmCalcTramelo& f);

// The header check first, then the question about unsaved changes. Returns
// true to cancel the closing.
bool Form_QueryUnload(FrmCalcTramelo& f);
void Form_Unload(FrmCalcTramelo& f);

// Menu entries particular to a calculation window.
void mnuArquivoSalvar_Click(FrmCalcTramelo& f);
void mnuArquivoSalvarComo_Click(FrmCalcTramelo& f);
// Unload, with Form_QueryUnload deciding. True when the window went.
bool mnuArquivoFechar_Click(FrmCalcTramelo& f);

} // namespace tramelo
