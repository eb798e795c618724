#include "document/propriedades_agua.h"

#include "document/campos.h"
#include "document/frm_calc_tramelo.h"
#include "plataforma/ambiente.h"
#include "plataforma/numero.h"
#include "plataforma/texto.h"
#include "sizing/catalogo.h"

#include <cctype>
#include <cmath>
#include <optional>
#include <utility>

namespace tramelo {
namespace {

constexpr const char* Titulo = "Propriedades da água e do vapor";
constexpr double AtmosferaKPa = 101.325;
constexpr int Digitos = 6;
constexpr int Liquido = 0, Gas = 1, Vapor = 2;

const char* NomeEscala(int escala) {
    return escala == 1 ? "Kg/cm²" : "kPa";
}

std::string Texto(double x) {
    return NumeroParaTexto(x, Digitos);
}

// The saturation temperature as the messages give it, cut to the
// hundredth: 179,8856 ºC at 1000 kPa reads 179,88, the figure steam tables
// print.
std::string TextoSaturacao(double T_C) {
    return NumeroParaTexto(std::floor(T_C * 100) / 100);
}

std::string TextoPressao(const PontoAgua& p) {
    return NumeroParaTexto(p.pressao) + " " + NomeEscala(p.escala);
}

// Why a point of this phase is refused for steam (liquido false) or for a
// liquid: at the saturation temperature below the critical pressure, by the
// phase above it. Empty when the phase fits.
std::string RecusaFase(const PontoAgua& p, const PropriedadesAgua& r, bool liquido) {
    if ((r.fase == "líquido") == liquido) return {};
    const std::string inicio =
        liquido ? "A água não está líquida: a " : "O vapor não está superaquecido: a ";
    if (r.temperatura_saturacao_C)
        return inicio + TextoPressao(p) + " a saturação é " +
               TextoSaturacao(*r.temperatura_saturacao_C) + " ºC";
    return inicio + TextoPressao(p) + " e " + NumeroParaTexto(p.T_C) + " ºC a fase é “" + r.fase +
           "”.";
}

// The fluid's name says water: "Água (Liqüido)", "agua de caldeira".
bool NomeDeAgua(std::string nome) {
    for (const char* acento : {"Á", "á"})
        for (size_t k; (k = nome.find(acento)) != std::string::npos;)
            nome.replace(k, std::string(acento).size(), "a");
    for (char& c : nome)
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return nome.find("agua") != std::string::npos;
}

std::string Legenda(const FrmCalcTramelo& f, int linha) {
    const Rotulo* l = f.lblDados(linha);
    return l ? l->Caption : std::string();
}

std::optional<double> NumeroDaLinha(const FrmCalcTramelo& f, int linha) {
    const CaixaTexto* t = f.txtDados(linha);
    return t ? LeNumero(t->Text()) : std::nullopt;
}

int PosicaoUnidade(const FrmCalcTramelo& f, int linha) {
    const CaixaCombinacao* c = f.cboDados(linha);
    return c ? c->ListIndex() : 0;
}

} // namespace

PontoAgua LePontoAgua(const PontoDigitado& d) {
    PontoAgua p;
    p.escala = d.escala;
    const std::optional<double> pressao = LeNumeroPontoOuVirgula(d.pressao);
    const std::optional<double> temperatura = LeNumeroPontoOuVirgula(d.temperatura);
    if (d.escala != 0 && d.escala != 1)
        p.erro = "Escolha a unidade da pressão: kPa ou Kg/cm².";
    else if (!pressao)
        p.erro = EmBranco(d.pressao)
                     ? "Digite a pressão absoluta."
                     : "A pressão “" + d.pressao + "” não é um número.";
    else if (!temperatura)
        p.erro = EmBranco(d.temperatura)
                     ? "Digite a temperatura."
                     : "A temperatura “" + d.temperatura + "” não é um número.";
    if (!p.erro.empty()) return p;
    p.pressao = *pressao;
    p.p_kPa = d.escala == 1 ? *pressao * KPaPorKgCm2 : *pressao;
    p.T_C = *temperatura;
    return p;
}

PontoDigitado PontoDoCalculo(const FrmCalcTramelo* f) {
    if (!f) return {NumeroParaTexto(AtmosferaKPa), 0, "20"};
    const CaixaTexto* t9 = f->txtDados(9);
    const std::string temperatura = t9 ? t9->Text() : std::string();
    if (f->cboFluido.ListIndex() == Liquido) return {NumeroParaTexto(AtmosferaKPa), 0, temperatura};
    const CaixaTexto* t12 = f->txtDados(12);
    const int escala = PosicaoUnidade(*f, 12);
    return {t12 ? t12->Text() : std::string(), escala == 1 ? 1 : 0, temperatura};
}

PropriedadesAgua PropriedadesNoPonto(const PontoAgua& p) {
    if (!p.erro.empty()) {
        PropriedadesAgua r;
        r.erro = p.erro;
        return r;
    }
    return CalculaPropriedadesAgua(p.p_kPa, p.T_C);
}

PropriedadesAgua PropriedadesNoPonto(const PontoDigitado& d) {
    return PropriedadesNoPonto(LePontoAgua(d));
}

std::vector<LinhaPropriedade> LinhasPropriedades(const PropriedadesAgua& r) {
    const std::string especifico = "kJ/(Kg.K)";
    std::vector<LinhaPropriedade> linhas{
        {"Região da IAPWS-IF97", std::to_string(r.regiao), ""},
        {"Fase", r.fase, ""},
        {"Massa específica", Texto(r.massa_especifica), "Kg/m³"},
        {"Volume específico", Texto(r.volume_especifico), "m³/Kg"},
        {"Entalpia", Texto(r.entalpia), "kJ/Kg"},
        {"Entropia", Texto(r.entropia), especifico},
        {"Calor específico a pressão constante (cp)", Texto(r.cp), especifico},
        {"Calor específico a volume constante (cv)", Texto(r.cv), especifico},
        {"Velocidade do som", Texto(r.velocidade_som), "m/s"},
        {"Viscosidade dinâmica", Texto(r.viscosidade_cP), "cP"},
        {"Viscosidade dinâmica", Texto(r.viscosidade_Pas), "Pa.s"},
        {"Expoente isentrópico (κ = w²ρ/p)", Texto(r.kappa), ""},
        {"Relação cp/cv", Texto(r.razao_cp_cv), ""},
        r.temperatura_saturacao_C
            ? LinhaPropriedade{"Temperatura de saturação", Texto(*r.temperatura_saturacao_C), "ºC"}
            : LinhaPropriedade{"Temperatura de saturação", "não há, a esta pressão", ""},
    };
    if (!r.erro.empty())
        for (LinhaPropriedade& l : linhas) l.valor.clear();
    return linhas;
}

std::string DescreveAlvo(const FrmCalcTramelo* f) {
    if (!f) return "Sem cálculo ativo: as propriedades são só para consulta.";
    const std::string inicio = "Cálculo “" + f->Caption + "”";
    switch (f->cboFluido.ListIndex()) {
    case Liquido:
        return inicio + ", " + f->cboFluido.Text() +
               ": massas específicas nas temperaturas de leitura e de projeto, à pressão acima, "
               "e viscosidade.";
    case Gas: return inicio + ", " + f->cboFluido.Text() + ": esta janela não é para gases.";
    case Vapor:
        return inicio + ", " + f->cboFluido.Text() +
               ": massa específica, viscosidade e k na pressão e temperatura acima.";
    default: return inicio + ": o fluido ainda não foi escolhido.";
    }
}

Aplicacao AplicaPropriedadesAgua(FrmCalcTramelo& f, const PontoDigitado& ponto) {
    Aplicacao a;
    auto recusa = [&a](std::string mensagem) {
        MsgBox(mensagem, vbExclamation, Titulo);
        a.mensagem = std::move(mensagem);
        return a;
    };
    const int fluido = f.cboFluido.ListIndex();
    if (fluido < 0) return recusa("Escolha o fluido do cálculo antes de aplicar as propriedades.");
    if (fluido == Gas)
        return recusa("As propriedades da água e do vapor não se aplicam a um gás: nada foi "
                      "escrito no cálculo.");
    const PontoAgua p = LePontoAgua(ponto);
    const PropriedadesAgua projeto = PropriedadesNoPonto(p);
    if (!projeto.erro.empty()) return recusa(projeto.erro);
    const bool liquido = fluido == Liquido;
    if (std::string m = RecusaFase(p, projeto, liquido); !m.empty()) return recusa(m);

    // Every row's text is worked out first, so a refusal writes nothing.
    std::vector<std::pair<int, std::string>> textos;
    if (NumeroDaLinha(f, 9) != p.T_C)
        textos.emplace_back(9, NumeroParaTexto(p.T_C));
    const bool relativa = f.cboMassaDensidade.ListIndex() != 0;
    auto densidade = [relativa](const PropriedadesAgua& r) {
        return Texto(relativa ? r.massa_especifica / MassaEspecificaAgua4C : r.massa_especifica);
    };
    if (liquido) {
        if (LinhaEmUso(f, 17)) {
            const std::optional<double> T8 = NumeroDaLinha(f, 8);
            if (!T8)
                return recusa("A “" + Legenda(f, 8) + "” do cálculo não é um número: a “" +
                              Legenda(f, 17) + "” é calculada nela.");
            const PropriedadesAgua leitura = CalculaPropriedadesAgua(p.p_kPa, *T8);
            if (!leitura.erro.empty()) return recusa(leitura.erro);
            PontoAgua p8 = p;
            p8.T_C = *T8;
            if (std::string m = RecusaFase(p8, leitura, true); !m.empty()) return recusa(m);
            textos.emplace_back(17, densidade(leitura));
        }
    } else {
        // The pressure in the unit row 12 shows, as typed when it is the same unit.
        const int escala = PosicaoUnidade(f, 12) == 1 ? 1 : 0;
        const std::string pressao = escala == p.escala
                                        ? NumeroParaTexto(p.pressao)
                                        : Texto(escala == 1 ? p.p_kPa / KPaPorKgCm2 : p.p_kPa);
        if (NumeroDaLinha(f, 12) != LeNumero(pressao)) textos.emplace_back(12, pressao);
    }
    textos.emplace_back(18, densidade(projeto));
    const bool pascal = PosicaoUnidade(f, 20) == 1;
    textos.emplace_back(20, Texto(pascal ? projeto.viscosidade_Pas : projeto.viscosidade_cP));
    if (!liquido) textos.emplace_back(27, Texto(projeto.kappa));

    if (liquido && !NomeDeAgua(f.cboFluido.Text()) &&
        MsgBox("O líquido deste cálculo é “" + f.cboFluido.Text() +
                   "”. As propriedades são as da água: aplicar assim mesmo?",
               vbYesNo + vbQuestion, Titulo) != vbYes)
        return a;
    for (const auto& [linha, texto] : textos) {
        CaixaTexto* t = f.txtDados(linha);
        if (!t) continue;
        t->DefineTexto(texto);
        // Rows 17 and 18 keep their unit in a hidden list: "Kg/m³", or none
        // for a relative density.
        const CaixaCombinacao* c = f.cboDados(linha);
        const std::string unidade = c ? c->Text() : std::string();
        a.escritas.push_back(Legenda(f, linha) + ": " + texto + (unidade.empty() ? "" : " " + unidade));
    }
    a.aplicado = true;
    return a;
}

} // namespace tramelo
