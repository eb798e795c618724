#include "document/entrada.h"

#include "document/campos.h"
#include "document/frm_calc_tramelo.h"
#include "plataforma/falha.h"
#include "plataforma/numero.h"
#include "base/barras.h"
#include "base/mod_base.h"
#include "base/pedidos.h"
#include "plataforma/notificador.h"

#include <cmath>
#include <optional>

namespace tramelo {
namespace {

constexpr int TeclaRetrocesso = 8;
constexpr int TeclaEnter = 13;
constexpr int TeclaPonto = 46;
constexpr int TeclaVirgula = 44;

// The expansion of stainless steel 304/316 from 20 ºC: 3,4E-05 per ºC.
double FatorAcoInox(double temperatura) {
    return (temperatura - 20.0) * 3.4e-05 + 1.0;
}

// Brings a row into sight: above the view it becomes the first row in sight,
// below it the last.
void MostraFaixa(FrmCalcTramelo& f, const Faixa* p) {
    if (!p) return;
    int r = p->Top / AlturaLinha;
    int V = f.barraV.Value;
    if (r <= V)
        f.barraV.DefineValue(r);
    else if (r >= V + LinhasVisiveis)
        f.barraV.DefineValue(r - LinhasVisiveis + 1);
}

} // namespace

int txtDados_KeyPress(FrmCalcTramelo&, int, int KeyAscii) {
    if (KeyAscii == TeclaRetrocesso) return KeyAscii;
    if (KeyAscii == TeclaEnter) return 0;
    if (KeyAscii == TeclaPonto) return TeclaVirgula;
    // "*", "+", ",", "-", ".", "/" and the digits.
    if (KeyAscii >= 42 && KeyAscii <= 57) return KeyAscii;
    return 0;
}

void txtDados_KeyUp(FrmCalcTramelo& f, int Index, int KeyCode, int) {
    if (KeyCode == TeclaEnter) txtDados_DblClick(f, Index);
}

void txtDados_Change(FrmCalcTramelo& f, int Index) {
    Notifica(Mudanca::Calculo, &f);
    f.DefineAlterado(true);
    if (Index != 9) return;
    CaixaCombinacao* material = f.cboDados(29);
    if (!material || material->ListIndex() != 0) return;
    // Emptied first, so that a row 9 that isn't a number leaves no stale factor.
    CaixaTexto* fator = f.txtDados(29);
    if (fator) fator->DefineTexto("");
    CaixaTexto* temperatura = f.txtDados(9);
    if (!temperatura || !fator) return;
    // A text that isn't a number (13) or is beyond the range of a double (6)
    // fails to convert; the failure is swallowed and row 29 stays empty. Told
    // without throwing: a file opened runs this for every row it loads.
    const std::optional<double> t = LeNumero(temperatura->Text());
    if (t && !std::isinf(*t)) fator->DefineTexto(NumeroParaTexto(FatorAcoInox(*t)));
}

void txtTag_Change(FrmCalcTramelo& f) {
    f.DefineAlterado(true);
}

void txtDados_GotFocus(FrmCalcTramelo& f, int Index) {
    mdiMenu().tbCalculo.Habilita("Calculadora", true);
    MostraFaixa(f, f.picDados(Index));
    if (CaixaTexto* t = f.txtDados(Index)) SelecionaTexto(*t);
}

void txtDados_LostFocus(FrmCalcTramelo& f, int Index) {
    mdiMenu().tbCalculo.Habilita("Calculadora", false);
    // The general format of a text with no format string is the text itself;
    // setting it back runs nothing.
    if (CaixaTexto* t = f.txtDados(Index)) t->DefineTexto(t->Text());
}

void cboDados_GotFocus(FrmCalcTramelo& f, int Index) {
    MostraFaixa(f, f.picDados(Index));
}

void cboMassaDensidade_GotFocus(FrmCalcTramelo& f) {
    MostraFaixa(f, f.picDados(1));
}

void txtTag_GotFocus(FrmCalcTramelo& f) {
    if (f.barraV.Value >= 1) f.barraV.DefineValue(0);
    SelecionaTexto(f.txtTag);
}

void barraV_Change(FrmCalcTramelo& f) {
    f.picMove.Top = f.barraV.Top - f.barraV.Value * AlturaLinha;
}

void barraV_Scroll(FrmCalcTramelo& f) {
    barraV_Change(f);
}

void txtDados_DblClick(FrmCalcTramelo& f, int Index) {
    if (PedidosDesktop* d = pedidosDesktop()) d->AbreCalculadora(f, Index);
}

} // namespace tramelo
