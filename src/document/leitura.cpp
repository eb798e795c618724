#include "document/leitura.h"

#include "document/frm_calc_tramelo.h"
#include "plataforma/ambiente.h"
#include "plataforma/numero.h"
#include "sizing/catalogo.h"
#include "sizing/execucao.h"
#include "report/linhas.h"

#include <string>

namespace tramelo {
namespace {

bool Le(FrmCalcTramelo& f, Execucao& x, short campo) {
    f.Campo = campo;
    return LeDado(f, x);
}

// Field 2. Liquid and gas offer M³/h, Kg/h and T/h; steam only the two
// mass units.
bool LeVazao(FrmCalcTramelo& f, Execucao& x) {
    f.Campo = 2;
    LeEscala(f);
    if (f.Fluido == 2) {
        bool toneladas = f.Escala == 2;
        if (!LeDado(f, x)) return false;
        if (toneladas) x.Dados[2] = x.Dados[2].Numero() * 1000;
        x.TipoVazao = 2;
        return true;
    }
    if (f.Escala == 1) {
        x.TipoVazao = 1;
        return LeDado(f, x);
    }
    bool toneladas = f.Escala != 2;
    if (!LeDado(f, x)) return false;
    if (toneladas) x.Dados[2] = x.Dados[2].Numero() * 1000;
    x.TipoVazao = 2;
    return true;
}

bool LeDiferencial(FrmCalcTramelo& f, Execucao& x) {
    f.Campo = 5;
    LeEscala(f);
    if (!LeDado(f, x)) return false;
    x.EscalaPerda = f.Escala - 1;
    return true;
}

// The reference pressure of a volumetric flow is always the standard
// atmosphere, in the unit chosen for field 12; field 10 isn't read.
bool LePressaoProjeto(FrmCalcTramelo& f, Execucao& x) {
    f.Campo = 12;
    LeEscala(f);
    if (x.TipoVazao == 1) x.Dados[10] = f.Escala == 2 ? 1.03323 : 101.325;
    return LeDado(f, x);
}

bool LeViscosidade(FrmCalcTramelo& f, Execucao& x) {
    f.Campo = 20;
    LeEscala(f);
    if (!LeDado(f, x)) return false;
    if (f.Escala == 2) x.Dados[21] = "Pa.s";
    return true;
}

// Stainless steel expands with the design temperature; any other material
// gives its factor in the field itself.
bool LeMaterial(FrmCalcTramelo& f, Execucao& x) {
    f.Campo = 29;
    LeEscala(f);
    if (f.Escala != 2) {
        Num fator = 1 + (x.Dados[9].Numero() - 20) * 0.000034;
        x.FatorMaterial = fator;
        if (CaixaTexto* t = f.txtDados(29)) t->DefineTexto(NumeroParaTexto(fator.valor()));
    } else if (CaixaTexto* t = f.txtDados(29)) {
        x.FatorMaterial = t->Text();
    }
    return LeDado(f, x);
}

bool LeLiquido(FrmCalcTramelo& f, Execucao& x) {
    if (!LeVazao(f, x) || !Le(f, x, 4) || !LeDiferencial(f, x)) return false;
    if (x.TipoVazao == 1 && !Le(f, x, 8)) return false;
    if (!Le(f, x, 9)) return false;
    if (x.TipoVazao == 1 && !Le(f, x, 17)) return false;
    if (!Le(f, x, 18) || !LeViscosidade(f, x) || !Le(f, x, 28)) return false;
    ConverteUnidades(f, x);
    return LeMaterial(f, x);
}

bool LeGas(FrmCalcTramelo& f, Execucao& x) {
    if (!LeVazao(f, x) || !Le(f, x, 4) || !LeDiferencial(f, x)) return false;
    if (x.TipoVazao == 1 && !Le(f, x, 8)) return false;
    if (!Le(f, x, 9) || !LePressaoProjeto(f, x) || !Le(f, x, 16)) return false;
    if (!(x.Dados[16].Numero() == 0) && !Le(f, x, 14)) return false;
    if (!Le(f, x, 19)) return false;
    if (x.TipoVazao == 1 && !Le(f, x, 25)) return false;
    if (!Le(f, x, 26) || !LeViscosidade(f, x) || !Le(f, x, 27) || !Le(f, x, 28)) return false;
    if (!LeMaterial(f, x)) return false;
    ConverteUnidades(f, x);
    return true;
}

bool LeVapor(FrmCalcTramelo& f, Execucao& x) {
    if (!LeVazao(f, x) || !Le(f, x, 4) || !LeDiferencial(f, x)) return false;
    if (!Le(f, x, 9) || !LePressaoProjeto(f, x) || !Le(f, x, 18)) return false;
    if (!LeViscosidade(f, x) || !Le(f, x, 27) || !Le(f, x, 28)) return false;
    if (!LeMaterial(f, x)) return false;
    ConverteUnidades(f, x);
    return true;
}

} // namespace

Variante SubDisplay(FrmCalcTramelo& f) {
    const Catalogo& c = catalogo();
    CaixaTexto* txt = f.txtDados(f.Campo);
    f.ValorCampo = txt ? txt->Text() : std::string();
    Variante valor = f.ValorCampo;
    const std::string& texto = txt ? txt->Text() : std::string();
    if (texto.empty()) {
        Rotulo* lbl = f.lblDados(f.Campo);
        MsgBox("O campo '" + (lbl ? lbl->Caption : std::string()) + "' não foi preenchido",
               vbExclamation, "Todos os campos devem ser preenchidos");
        f.PedeFoco("txtDados(" + std::to_string(f.Campo) + ")");
    }
    std::string_view unidade;
    if (CaixaCombinacao* cbo = f.cboDados(f.Campo)) {
        int i = cbo->ListIndex();
        if (i >= 0 && i < cbo->ListCount()) {
            int escala = cbo->itens[static_cast<size_t>(i)].ItemData;
            if (escala >= 0 && escala <= 30) unidade = c.NomeEscalas[static_cast<size_t>(escala)];
        }
    }
    LinhaRelatorio(*f.Relatorio, c.NomeDados[static_cast<size_t>(f.Campo)], texto, unidade);
    return valor;
}

void LeEscala(FrmCalcTramelo& f) {
    CaixaCombinacao* cbo = f.cboDados(f.Campo);
    f.Escala = static_cast<short>((cbo ? cbo->ListIndex() : 0) + 1);
}

bool LeDado(FrmCalcTramelo& f, Execucao& x) {
    Variante v = SubDisplay(f);
    bool vazio = v.TextoVazio();
    x.Dados[static_cast<size_t>(f.Campo)] = std::move(v);
    return !vazio;
}

void ConverteUnidades(FrmCalcTramelo& f, Execucao& x) {
    auto& d = x.Dados;
    // "mmCA" goes by the water column at 4 ºC, "Kg/m²" by standard gravity.
    if (x.EscalaPerda == 2) d[5] = d[5].Numero() * PaPorMmca;
    if (x.EscalaPerda == 1) d[5] = (d[5].Numero() * KPaPorKgCm2) / 10;
    // The three pressure lists always stand on one unit.
    f.Campo = 10;
    LeEscala(f);
    if (f.Escala != 1) {
        d[10] = d[10].Numero() * KPaPorKgCm2;
        d[12] = d[12].Numero() * KPaPorKgCm2;
        d[14] = d[14].Numero() * KPaPorKgCm2;
    }
    CaixaCombinacao* visc = f.cboDados(20);
    if (visc && visc->ListIndex() == 1) d[20] = d[20].Numero() * 1000;
    // Relative density to kg/m³ by water at 4 ºC; density at 0 ºC to
    // relative density by air at 0 ºC.
    if (f.cboMassaDensidade.ListIndex() != 0) {
        d[17] = d[17].Numero() * MassaEspecificaAgua4C;
        d[18] = d[18].Numero() * MassaEspecificaAgua4C;
    }
    if (f.cboMassaDensidade.ListIndex() != 1) d[19] = d[19].Numero() / MassaEspecificaAr0C;
}

bool LeCampos(FrmCalcTramelo& f, Execucao& x) {
    switch (f.Fluido) {
    case 0: return LeLiquido(f, x);
    case 1: return LeGas(f, x);
    default: return LeVapor(f, x);
    }
}

} // namespace tramelo
