#include "document/campos.h"

#include "document/frm_calc_tramelo.h"
#include "document/selecoes.h"
#include "base/barras.h"
#include "sizing/catalogo.h"
#include "plataforma/notificador.h"

#include <cmath>
#include <initializer_list>

namespace tramelo {
namespace {

// The in-use flag as a strip's Tag holds it. An untouched strip has an empty
// Tag, which reads as out of use.
const char* TextoBooleano(bool v) {
    return v ? "True" : "False";
}

void PoeEmUso(FrmCalcTramelo& f, std::initializer_list<int> linhas) {
    for (int i : linhas)
        CampoDados(f, i, true);
}

// Clears a unit list and fills it with the given units.
void PreencheLista(FrmCalcTramelo& f, int Index, std::initializer_list<int> escalas) {
    if (CaixaCombinacao* cbo = f.cboDados(Index)) {
        cbo->Clear();
        cbo->itens.reserve(escalas.size());
    }
    for (int e : escalas)
        AddItemCombo(f, Index, e);
}

void HabilitaGeral(FrmCalcTramelo& f, bool Habilitado) {
    f.picLista.Enabled = Habilitado;
    f.cmdCalcular.Enabled = Habilitado;
    f.barraV.Enabled = Habilitado;
    f.lblTag.Enabled = Habilitado;
    f.txtTag.Enabled = Habilitado;
    if (Faixa* p = f.picDados(1)) p->Enabled = Habilitado;
    f.lblMassaDensidade.Enabled = Habilitado;
    f.cboMassaDensidade.Enabled = Habilitado;
}

void HabilitaControles(FrmCalcTramelo& f, int i, bool Habilitado) {
    if (Rotulo* l = f.lblDados(i)) l->Enabled = Habilitado;
    if (CaixaTexto* t = f.txtDados(i)) t->Enabled = Habilitado;
    if (CaixaCombinacao* c = f.cboDados(i)) c->Enabled = Habilitado;
}

void PosicionaFaixa(Faixa& p, int posicao) {
    p.Top = posicao * AlturaLinha;
}

} // namespace

bool LinhaEmUso(const FrmCalcTramelo& f, int Index) {
    const Faixa* p = f.picDados(Index);
    return p && p->Tag == TextoBooleano(true);
}

void CampoDados(FrmCalcTramelo& f, int Index, bool Habilitado) {
    if (Faixa* p = f.picDados(Index)) {
        p->Tag = TextoBooleano(Habilitado);
        p->Enabled = Habilitado;
    }
    // In use, but nothing on a disabled list may be touched.
    if (Habilitado && !f.picLista.Enabled) Habilitado = false;
    HabilitaControles(f, Index, Habilitado);
}

void TodosCampoDados(FrmCalcTramelo& f, bool Habilitado) {
    HabilitaGeral(f, Habilitado);
    for (int i = 2; i <= 30; ++i) {
        HabilitaControles(f, i, false);
        if (Faixa* p = f.picDados(i); p && i > 5) p->Visible = false;
    }
    f.picMenu.corAtiva = Habilitado;
}

void AlteraEscalas(FrmCalcTramelo& f, int Fluido) {
    for (int i = 1; i <= 5; ++i)
        CampoDados(f, i, true);
    for (int i = 6; i <= 30; ++i)
        CampoDados(f, i, false);

    switch (Fluido) {
    case 0:
        PoeEmUso(f, {8, 9, 17, 18, 20});
        if (Faixa* p = f.picDados(1)) p->Enabled = true;
        // The user's density mode stays; captions and hidden lists follow it.
        cboMassaDensidade_Click(f);
        break;
    case 1:
        PoeEmUso(f, {8, 9, 10, 12, 14, 16, 19, 25, 26, 20, 27});
        if (Faixa* p = f.picDados(1)) p->Enabled = false;
        f.cboMassaDensidade.DefineListIndex(1);
        break;
    case 2:
        PoeEmUso(f, {9, 12, 18, 20, 27});
        if (Faixa* p = f.picDados(1)) p->Enabled = false;
        f.cboMassaDensidade.DefineListIndex(0);
        break;
    default:
        break;
    }
    PoeEmUso(f, {28, 29});

    // The flow units are checked by the length of the list only: from liquid
    // to gas the chosen unit and the rows that follow from it stay as they are.
    if (CaixaCombinacao* vazao = f.cboDados(2)) {
        if (Fluido == 2) {
            if (vazao->ListCount() != 2) {
                PreencheLista(f, 2, {2, 3});
                vazao->DefineListIndex(0); // runs the click handling of row 2
            }
        } else if (vazao->ListCount() != 3) {
            PreencheLista(f, 2, {1, 2, 3});
            vazao->DefineListIndex(0);
        }
    }
    OrganizaCampos(f);
}

void AddItemCombo(FrmCalcTramelo& f, int Index, int Escala) {
    CaixaCombinacao* cbo = f.cboDados(Index);
    if (!cbo || Escala < 0 || Escala > 30) return;
    cbo->AddItem(catalogo().NomeEscalas[static_cast<size_t>(Escala)], Escala);
}

void PreencheEscalas(FrmCalcTramelo& f) {
    // Row 2 gets its real list at the first choice of a fluid.
    PreencheLista(f, 2, {1});
    PreencheLista(f, 4, {4});
    PreencheLista(f, 5, {5, 6, 7});
    PreencheLista(f, 8, {8});
    PreencheLista(f, 9, {8});
    for (int i : {10, 12, 14})
        PreencheLista(f, i, {10, 11});
    PreencheLista(f, 16, {16});
    for (int i : {17, 18, 19})
        PreencheLista(f, i, {17, 0});
    PreencheLista(f, 20, {20, 21});
    PreencheLista(f, 29, {29, 30});
    for (int i = 0; i <= 30; ++i)
        if (CaixaCombinacao* cbo = f.cboDados(i)) cbo->DefineListIndex(0);
}

void OrganizaCampos(FrmCalcTramelo& f) {
    // Rows 0, 2, 4 and 5 stand at positions 0 to 3 as built. The density-mode
    // row goes just above the first row in use from 17 on.
    f.cboMassaDensidade.Tag = "0";
    int K = 4;
    for (int i = 6; i <= 31; ++i) {
        Faixa* p = f.picDados(i);
        if (LinhaEmUso(f, i)) {
            if (f.cboMassaDensidade.Tag == "0" && i >= 17) {
                f.cboMassaDensidade.Tag = "1";
                if (Faixa* modo = f.picDados(1)) PosicionaFaixa(*modo, K);
                ++K;
            }
            PosicionaFaixa(*p, K);
            p->Visible = true;
            ++K;
        } else if (p) {
            p->Visible = false;
        }
    }
    f.picMove.Height = K * AlturaLinha;

    float R = static_cast<float>(K - (f.barraV.Height + 1) / static_cast<double>(AlturaLinha));
    if (R <= 0) {
        if (f.barraV.Value != 0) f.barraV.DefineValue(0);
        f.barraV.Enabled = false;
        return;
    }
    f.barraV.Enabled = true;
    int maximo = static_cast<int>(std::lround(R));
    f.barraV.DefineMax(maximo);
    f.barraV.LargeChange = maximo;
}

void Lista(FrmCalcTramelo& f, bool Habilitado) {
    HabilitaGeral(f, Habilitado);
    for (int i = 0; i <= 30; ++i)
        HabilitaControles(f, i, Habilitado);
    f.picMenu.corAtiva = Habilitado;
    AtualizaBarra(f);
}

void AtualizaBarra(FrmCalcTramelo& f) {
    Notifica(Mudanca::Calculo, &f);
    MdiMenu& m = mdiMenu();
    // A document whose selections aren't all made can't be saved.
    bool salvavel = f.txtTag.Enabled && f.Alterado();
    if (m.mostrado) {
        m.tbCalculo.Habilita("Calcular", f.cmdCalcular.Enabled);
        m.tbPadrao.Habilita("Salvar", salvavel);
    }
    f.mnuArquivoSalvar.Enabled = salvavel;
    f.mnuArquivoSalvarComo.Enabled = f.txtTag.Enabled;
    f.mnuArquivoSalvarTodos.Enabled = true;
    f.mnuExibirStatusBar.Checked = m.sbStatusBar.Visible;
    f.mnuExibirBarraPadrao.Checked = m.cobBarra.Bands(1).Visible;
    f.mnuExibirBarraCalculo.Checked = m.cobBarra.Bands(2).Visible;
}

} // namespace tramelo
