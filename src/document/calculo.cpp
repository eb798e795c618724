#include "document/calculo.h"

#include "document/frm_calc_tramelo.h"
#include "plataforma/ambiente.h"
#include "plataforma/notificador.h"
#include "plataforma/numero.h"
#include "report/buffer.h"
#include "sizing/catalogo.h"
#include "sizing/execucao.h"
#include "sizing/entrada_iso.h"
#include "sizing/iteracao.h"
#include "document/leitura.h"
#include "report/linhas.h"

#include <new>

namespace tramelo {
namespace {

// 3600 * (pi / 4) * 10^-6 * Sqr(2): the flow equation's constant for a flow in
// kg/h, D in mm, a pressure in Pa and a density in kg/m³, used rounded.
constexpr double ConstanteVazao = 0.0039986;
// Velocity in m/s from m³/h and D in mm: 10^6 / (3600 * pi / 4).
constexpr double ConstanteVelocidade = 353.67;

const std::string& Texto(const std::string* tabela, size_t n, int i) {
    if (i < 0 || static_cast<size_t>(i) >= n) throw Falha(IndiceForaIntervalo);
    return tabela[i];
}

void CondicoesLiquido(FrmCalcTramelo& f, Execucao& x) {
    const Catalogo& c = catalogo();
    auto& d = x.Dados;
    // The test is on the unit's text, not on TipoVazao.
    CaixaCombinacao* vazao = f.cboDados(2);
    if (vazao && vazao->Text() == c.NomeEscalas[1]) x.VazaoMassica = d[2].Numero() * d[17].Numero();
    else x.VazaoMassica = d[2].Numero();
    x.MassaEsp = d[18].Numero();
    f.ValorCampo = d[4];
    Num D = f.ValorCampo.Numero();
    x.CoefCarga = x.VazaoMassica / (ConstanteVazao * D * D * x.FatorMaterial.Numero() *
                                    Sqr(d[5].Numero()) * Sqr(x.MassaEsp));
    x.VazaoVol = x.VazaoMassica / x.MassaEsp;
}

void CondicoesGasVapor(FrmCalcTramelo& f, Execucao& x) {
    auto& d = x.Dados;
    if (f.Fluido == 2) {
        x.MassaEsp = d[18].Numero();
    } else {
        // Wet gas: the water vapour's partial pressure weighs 0.622 of the
        // gas's molar mass ratio. 3.4837 = 28.9644 / 8.31447 (air, kPa, K).
        x.PressaoVapor = (d[16].Numero() * d[14].Numero()) / 100;
        x.TempLeitura = d[8].Numero() + 273.15;
        x.TempProjeto = d[9].Numero() + 273.15;
        x.MassaEsp = ((3.4837 * d[19].Numero()) / (x.TempProjeto * d[26].Numero())) *
                     ((d[12].Numero() - x.PressaoVapor) + (0.622 * x.PressaoVapor) / d[19].Numero());
    }
    f.ValorCampo = d[4];
    if (x.TipoVazao == 2) {
        x.VazaoVol = d[2].Numero() / x.MassaEsp;
    } else {
        x.Fs = d[25].Numero() / Sqr(d[26].Numero());
        x.Fu = (1 - x.PressaoVapor / d[12].Numero()) /
               Sqr(1 + (x.PressaoVapor / d[12].Numero()) * (0.622 / d[19].Numero() - 1));
        x.VazaoVol = (((d[2].Numero() * d[10].Numero()) * x.TempProjeto) * d[26].Numero()) /
                     (((d[12].Numero() - x.PressaoVapor) * x.TempLeitura) * d[25].Numero());
    }
    Num D = f.ValorCampo.Numero();
    x.CoefCarga = (x.VazaoVol * Sqr(x.MassaEsp)) /
                  (ConstanteVazao * D * D * x.FatorMaterial.Numero() * Sqr(d[5].Numero()));
}

// Both comparisons are strict: 0.006 and 0.5 themselves are out of limits.
bool ConfereCoeficiente(const Execucao& x) {
    if (x.CoefCarga > 0.006 && x.CoefCarga < 0.5) return true;
    MsgBox("Valor de Coeficiente de 'Coeficiente de Carga' fora dos limites: (0,006 a 0,5)",
           vbExclamation, "Coeficiente de Carga = " + NumeroParaTexto(x.CoefCarga.valor()));
    return MsgBox("Deseja alterar o dados para cálculo?", vbYesNo + vbQuestion) != vbYes;
}

void CalculosEfetuados(FrmCalcTramelo& f, const Execucao& x) {
    const Catalogo& c = catalogo();
    FrmRelatorio& r = *f.Relatorio;
    AddRel(r, "");
    Cabecalho(r, " Cálculos efetuados ");
    AddRel(r, "");
    if (f.Fluido == 1) LinhaRelatorio(r, c.NomeDados[18], x.MassaEsp.valor(), "Kg/m³");
    LinhaRelatorio(r, c.NomeDados[2], x.VazaoVol.valor(), "M³/h");
    LinhaRelatorio(r, "Velocidade usual", x.Velocidade.valor(), "M/s");
    if (f.Fluido != 0 && x.TipoVazao == 1) {
        LinhaRelatorio(r, "Fs", x.Fs.valor(), "");
        LinhaRelatorio(r, "Fu", x.Fu.valor(), "");
    }
    if (f.Fluido != 0) LinhaRelatorio(r, "Coeficiente de Carga * Epsilo", x.CoefCarga.valor(), "");
    else LinhaRelatorio(r, "Coeficiente de Carga", x.CoefAlvo.valor(), "");
    LinhaRelatorio(r, "N.º de reynolds usual", x.Reynolds.valor(), "");
}

void ResultadoProcessamento(FrmCalcTramelo& f, const Execucao& x) {
    const Catalogo& c = catalogo();
    FrmRelatorio& r = *f.Relatorio;
    AddRel(r, "");
    Cabecalho(r, " Resultado de processamento ");
    AddRel(r, "");
    if (f.Fluido != 0) {
        LinhaRelatorio(r, "Epsilo", Arredonda(x.Epsilo, 4).valor(), "");
        LinhaRelatorio(r, "Coeficiente de Carga", Arredonda(x.CoefAlvo, 4).valor(), "");
    }
    LinhaRelatorio(r, "Beta = d/D", Arredonda(x.Beta, 4).valor(), "");
    LinhaRelatorio(r, "Diâmetro do orifício", Arredonda(x.Beta * f.ValorCampo.Numero(), 4).valor(),
                   "mm");
    if (f.Tomada != 5) {
        // The loss goes by CoefCarga, not by Beta, in the unit chosen for
        // field 5 through FatorPerda; that stays.
        Num perda = ((1 - x.CoefCarga) / (1 + x.CoefCarga)) * x.Dados[5].Numero() *
                    static_cast<double>(f.FatorPerda);
        LinhaRelatorio(r, "Perda de carga permanente", Arredonda(perda, 1).valor(),
                       Texto(c.NomeEscalas.data(), c.NomeEscalas.size(), x.EscalaPerda + 5));
        LinhaRelatorio(r, "N.º de reynolds limite inf.", Arredonda(x.ReynoldsLimite, 1).valor(), "");
    }
}

// There is no form for the drawing's data: a liquid in volume units asks
// again until the answer is no, the rest go on to the footer.
void PerguntaDesenho(FrmCalcTramelo& f, const Execucao& x) {
    if (f.chkDesenho.Value != 1) return;
    while (MsgBox("Deseja entrar com os dados para o desenho de fabricação agora?",
                  vbYesNo + vbInformation, "Desenho de fabricação") == vbYes) {
        if (!(f.Fluido == 0 && x.TipoVazao == 1)) break;
    }
}

void Rodape(FrmCalcTramelo& f) {
    FrmRelatorio& r = *f.Relatorio;
    const std::string margem(45, ' ');
    AddRel(r, "");
    AddRel(r, std::string(78, '='));
    AddRel(r, "");
    AddRel(r, margem + "              Tramelo");
    AddRel(r, margem + "        Direitos reservados");
    AddRel(r, margem + "    Quillon Engenharia");
    AddRel(r, "");
}

// The standard's answer beside the report, from the values of the run.
void SegundaOpiniao(FrmCalcTramelo& f, const Execucao& x, bool concluido) {
    FrmRelatorio& r = *f.Relatorio;
    const EntradaIso ponto = EntradaIso5167(x, f.Fluido, f.Placa, f.Tomada, concluido);
    r.iso = CalculaIso5167(ponto);
    // Row 2 as typed, before any unit of it is brought to kg/h.
    const CaixaTexto* vazao = f.txtDados(2);
    const CaixaCombinacao* unidade = f.cboDados(2);
    r.pontoIso = PontoDeProjeto{ponto, vazao ? LeNumero(vazao->Text()).value_or(0) : 0,
                                unidade ? unidade->Text() : std::string()};
    r.verificacao.reset();
    r.Tag = f.txtTag.Text();
    r.Arquivo = f.Caption;
}

void MostraRelatorio(FrmCalcTramelo& f) {
    FrmRelatorio& r = *f.Relatorio;
    r.txtData = f.TextoData;
    r.txtOS = f.TextoOS;
    r.txtCliente = f.TextoCliente;
    r.Caption = "Relatório de Cálculo - " + f.Caption;
    r.Show();
    r.ZOrder();
}

bool Executa(FrmCalcTramelo& f, Execucao& x) {
    const Catalogo& c = catalogo();
    FrmRelatorio& r = *f.Relatorio;
    r.lstRelatorio.clear();
    r.lstRelatorio.reserve(64); // a report has some fifty lines; a new window's list has none
    SegundaOpiniao(f, x, false);
    f.Campo = 0;
    f.Escala = 0;

    AddRel(r, "");
    Cabecalho(r, " Dados para cálculo - " +
                     Texto(c.NomePlacas.data(), c.NomePlacas.size(), f.Placa) + " ");
    AddRel(r, "");
    LinhaRelatorio(r, "Fluido utilizado", f.NomeFluido, "");
    LinhaRelatorio(r, "Tipo de tomada", f.NomeTomada, "");
    LinhaRelatorio(r, "Tag", f.txtTag.Text(), "");

    if (!LeCampos(f, x)) return false;
    if (f.Fluido == 0) CondicoesLiquido(f, x);
    else CondicoesGasVapor(f, x);

    Num D = f.ValorCampo.Numero();
    x.Velocidade = ((x.VazaoVol * x.Dados[28].Numero()) * ConstanteVelocidade) / Pot(D, 2);
    x.Reynolds = ((x.Velocidade * D) * x.MassaEsp) / x.Dados[20].Numero();

    x.Razao2 = Pot(x.Dados[28].Numero(), 2);
    x.CoefAlvo = x.CoefCarga;
    if (!ConfereCoeficiente(x)) return false;
    if (!CalculaBeta(x, f.Fluido, f.Tomada, D)) return false;

    CalculosEfetuados(f, x);
    ResultadoProcessamento(f, x);
    PerguntaDesenho(f, x);
    Rodape(f);
    SegundaOpiniao(f, x, true);
    MostraRelatorio(f);
    return true;
}

} // namespace

ResultadoCalculo cmdCalcular_Click(FrmCalcTramelo& f, Execucao* valores) {
    Execucao local;
    Execucao& x = valores ? *valores : local;
    x = Execucao{};
    ResultadoCalculo r;
    try {
        r = {Executa(f, x) ? FimCalculo::Concluido : FimCalculo::Interrompido, {}};
    } catch (const Falha& e) {
        r = {FimCalculo::Falhou, {e.numero(), e.descricao()}};
    } catch (const std::bad_alloc&) {
        r = {FimCalculo::Falhou, {FaltaMemoria, DescricaoFalha(FaltaMemoria)}};
    }
    // Row 29 and the report's lines change even in a run that stops early.
    Notifica(Mudanca::Calculo, &f);
    Notifica(Mudanca::Relatorio, f.Relatorio.get());
    return r;
}

} // namespace tramelo
