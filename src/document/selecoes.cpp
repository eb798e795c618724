#include "document/selecoes.h"

#include "document/campos.h"
#include "document/entrada.h"
#include "document/frm_calc_tramelo.h"
#include "plataforma/ambiente.h"
#include "plataforma/numero.h"
#include "plataforma/texto.h"
#include "sizing/catalogo.h"

namespace tramelo {
namespace {

// The standard atmosphere, in kPa and in Kg/cm².
constexpr double AtmosferaKPa = 101.325;
constexpr double AtmosferaKgCm2 = 1.03323;

// ItemData of the flow unit "M³/h": a volume flow needs the reading conditions.
constexpr int EscalaVazaoVolume = 1;

// FatorPerda by the unit of row 5: "Pa", "Kg/m²", "mmCA". The two last are two
// different constants, on purpose.
constexpr float FatoresPerda[] = {1.0f, 0.102f, 0.1022f};

int ItemDataSelecionado(const CaixaCombinacao& c) {
    int i = c.ListIndex();
    return i >= 0 && i < c.ListCount() ? c.itens[static_cast<size_t>(i)].ItemData : 0;
}

// What the fluid prompt offers: the type in brackets of a named item, or the
// plain type followed by " utilizado". The first "(" opens the type, so a name
// with brackets of its own proposes part of the name.
std::string PropostaFluido(const std::string& T) {
    int p = InStr(1, T, "(");
    if (p > 0) return Mid(T, p + 1, Len(T) - p - 1);
    return T + " utilizado";
}

void VazaoClick(FrmCalcTramelo& f) {
    CaixaCombinacao* vazao = f.cboDados(2);
    bool H = vazao && ItemDataSelecionado(*vazao) == EscalaVazaoVolume;
    CampoDados(f, 8, H);
    CampoDados(f, 17, H);
    if (f.Fluido == 1) {
        CampoDados(f, 10, H);
        CampoDados(f, 25, H);
    }
}

// The three pressure lists show one unit. Setting a list to the position it
// already has runs nothing, which ends the handlers' mutual updates.
void PressaoClick(FrmCalcTramelo& f, int Index) {
    CaixaCombinacao* origem = f.cboDados(Index);
    if (!origem) return;
    for (int i : {10, 12, 14})
        if (CaixaCombinacao* c = f.cboDados(i)) c->DefineListIndex(origem->ListIndex());
    CaixaCombinacao* vazao = f.cboDados(2);
    if (f.cboFluido.ListIndex() == 1 && vazao && vazao->ListIndex() == 0) {
        // Row 10 is locked for typing: this is how it gets its text.
        double atmosfera = origem->ListIndex() == 0 ? AtmosferaKPa : AtmosferaKgCm2;
        if (CaixaTexto* t = f.txtDados(10)) t->DefineTexto(NumeroParaTexto(atmosfera));
    }
}

void MaterialClick(FrmCalcTramelo& f) {
    CaixaCombinacao* material = f.cboDados(29);
    CaixaTexto* fator = f.txtDados(29);
    if (!material) return;
    if (material->ListIndex() == 0) {
        // Stainless steel: the factor follows from the design temperature.
        if (fator) fator->Locked = true;
        txtDados_Change(f, 9);
        return;
    }
    int i = material->ListIndex();
    std::string atual = material->Text();
    f.NomeMaterial = InputBox("Digite o nome do material utilizado", "Material da placa", atual);
    if (!f.NomeMaterial.empty() && i >= 0)
        material->itens[static_cast<size_t>(i)].texto = f.NomeMaterial;
    if (fator) {
        fator->Locked = false;
        f.PedeFoco("txtDados(29)");
    }
}

} // namespace

bool Pronto(const FrmCalcTramelo& f) {
    return f.cboTramelo.ListIndex() >= 0 && f.cboFluido.ListIndex() >= 0 &&
           f.cboTomada.ListIndex() >= 0;
}

void cboTramelo_Click(FrmCalcTramelo& f) {
    f.DefineAlterado(true);
    bool escolhido = f.cboTramelo.ListIndex() >= 0;
    f.lblFluido.Enabled = escolhido;
    f.cboFluido.Enabled = escolhido;
    f.Placa = static_cast<short>(f.cboTramelo.ListIndex() + 1);
    Lista(f, Pronto(f));
}

void cboFluido_Click(FrmCalcTramelo& f) {
    f.DefineAlterado(true);
    const int i = f.cboFluido.ListIndex();
    f.lblTomada.Enabled = i >= 0;
    f.cboTomada.Enabled = i >= 0;
    if (i < 0) return;
    f.Fluido = static_cast<short>(i);

    Catalogo& c = catalogo();
    const std::string T = f.cboFluido.Text();
    if (!f.CarregandoArquivo) {
        std::string nome = InputBox("Digite o nome do 'Fluido' utilizado", "Tipo de fluido: " + T,
                                    PropostaFluido(T));
        // The item always shows the type; a name given stands in front of it.
        const std::string& tipo = c.NomeFluidos[static_cast<size_t>(i + 1)];
        f.cboFluido.itens[static_cast<size_t>(i)].texto =
            nome.empty() ? tipo : nome + " (" + tipo + ")";
    }
    f.NomeFluido = f.cboFluido.Text();
    if (f.cboFluido.ListIndex() >= 0) AlteraEscalas(f, f.cboFluido.ListIndex());
    Lista(f, Pronto(f));
}

void cboTomada_Click(FrmCalcTramelo& f) {
    f.DefineAlterado(true);
    // Pipe taps aren't offered; the list can't reach them, but the guard stays.
    if (f.cboTomada.ListIndex() == 4) {
        MsgBox("Tipo de tomada não suportado nesta versão", vbExclamation);
        f.cboTomada.DefineListIndex(0);
    }
    f.Tomada = static_cast<short>(f.cboTomada.ListIndex() + 1);
    f.NomeTomada = f.cboTomada.Text();
    f.cmdCalcular.Enabled = f.cboTomada.ListIndex() >= 0;
    Lista(f, Pronto(f));
}

void cboMassaDensidade_Click(FrmCalcTramelo& f) {
    const Catalogo& c = catalogo();
    const int modo = f.cboMassaDensidade.ListIndex();
    for (int i = 0; i <= 2; ++i) {
        if (Rotulo* l = f.lblDados(17 + i))
            l->Caption = c.NomeDados[static_cast<size_t>(modo == 0 ? 17 + i : 22 + i)];
        if (CaixaCombinacao* cbo = f.cboDados(17 + i); cbo && modo < cbo->ListCount())
            cbo->DefineListIndex(modo);
    }
}

void cboDados_Click(FrmCalcTramelo& f, int Index) {
    f.DefineAlterado(true);
    f.Fluido = static_cast<short>(f.cboFluido.ListIndex());
    switch (Index) {
    case 2:
        VazaoClick(f);
        break;
    case 5:
        if (CaixaCombinacao* c = f.cboDados(5); c && c->ListIndex() >= 0 && c->ListIndex() <= 2)
            f.FatorPerda = FatoresPerda[c->ListIndex()];
        break;
    case 10:
    case 12:
    case 14:
        PressaoClick(f, Index);
        break;
    case 29:
        MaterialClick(f);
        break;
    default:
        break;
    }
}

} // namespace tramelo
