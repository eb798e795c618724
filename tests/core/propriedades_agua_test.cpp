// "Aplicar ao cálculo" of the water and steam window: what each fluid gets,
// in the unit each row shows, and every refusal with its message. Expected
// texts: the last rows printed by tests/data/agua/referencia.py
// (python3-iapws), six significant digits with the decimal comma.
#include "calculo_pronto.h"
#include "document/campos.h"
#include "document/propriedades_agua.h"
#include "plataforma/numero.h"

#include <gtest/gtest.h>

#include <map>

namespace tramelo::teste {
namespace {

using Linhas = std::vector<std::pair<int, std::string>>;

struct Calculo {
    int fluido;
    Linhas linhas;
    // Positions of the unit lists of rows 2, 12 and 20 and of the density mode.
    int vazao = 0, pressao = 0, viscosidade = 0, modo = 0;
    const char* nomeFluido = "Água (Liqüido)";
};

std::unique_ptr<FrmCalcTramelo> Monta(const Calculo& c) {
    auto f = CalculoPronto(c.fluido, 1);
    f->cboFluido.itens[0].texto = c.nomeFluido;
    f->cboDados(2)->DefineListIndex(c.vazao);
    f->cboDados(12)->DefineListIndex(c.pressao);
    f->cboDados(20)->DefineListIndex(c.viscosidade);
    if (c.fluido == 0) f->cboMassaDensidade.DefineListIndex(c.modo);
    Preenche(*f, c.linhas);
    f->DefineAlterado(false);
    return f;
}

std::map<int, std::string> Textos(const FrmCalcTramelo& f) {
    std::map<int, std::string> t;
    for (int i : LinhasDados) t[i] = f.txtDados(i)->Text();
    return t;
}

TEST(PropriedadesAgua, AplicaPorFluidoNaUnidadeDeCadaLinha) {
    const struct {
        const char* caso;
        Calculo calculo;
        PontoDigitado ponto; // empty pressure: the window as it opens
        Linhas escritas;     // every row that changes, with its new text
    } casos[] = {
        // referencia.py, steam 1000 kPa 250 ºC: rows 12 and 9 already hold the point.
        {"vapor", {2, {{12, "1000"}, {9, "250"}}}, {"1000", 0, "250"},
         {{18, "4,29666"}, {20, "0,0180583"}, {27, "1,30025"}}},
        // referencia.py, 1000 kPa 300 ºC: the window's temperature goes into
        // row 9, and row 29 follows it, (300 - 20) * 3,4E-05 + 1.
        {"vapor a outra temperatura", {2, {{12, "1000"}, {9, "200"}}}, {"1000.0", 0, "300"},
         {{9, "300"}, {29, "1,00952"}, {18, "3,87628"}, {20, "0,0202055"}, {27, "1,29731"}}},
        // referencia.py, data/exemplos/vapor.trl (10,2 Kg/cm², 200 ºC), the
        // viscosity in Pa.s.
        {"vapor em Kg/cm² e Pa.s", {2, {{12, "10,2"}, {9, "200"}}, 0, 1, 1}, {},
         {{18, "4,85572"}, {20, "1,58759E-05"}, {27, "1,29908"}}},
        // 1000 kPa in row 12's Kg/cm²: 1000 / 98,0665 = 10,19716.
        {"vapor, janela em kPa", {2, {{12, "10"}, {9, "250"}}, 0, 1}, {"1000", 0, "250"},
         {{12, "10,1972"}, {18, "4,29666"}, {20, "0,0180583"}, {27, "1,30025"}}},
        // referencia.py, water at 101,325 kPa, 20 ºC (row 8) and 60 ºC (row 9).
        {"água", {0, {{8, "20"}, {9, "20"}}}, {"101,325", 0, "60"},
         {{9, "60"}, {29, "1,00136"}, {17, "998,206"}, {18, "983,211"}, {20, "0,466043"}}},
        {"água, densidade relativa", {0, {{8, "20"}, {9, "60"}}, 0, 0, 0, 1}, {},
         {{17, "0,999125"}, {18, "0,984116"}, {20, "0,466043"}}},
        // In Kg/h rows 8 and 17 are out of use: row 17 keeps its text.
        {"água em Kg/h", {0, {{9, "60"}, {17, "7"}}, 1}, {},
         {{18, "983,211"}, {20, "0,466043"}}},
    };
    for (const auto& c : casos) {
        SCOPED_TRACE(c.caso);
        CaixasRoteiro caixas;
        auto f = Monta(c.calculo);
        auto esperados = Textos(*f);
        for (const auto& [i, texto] : c.escritas) esperados[i] = texto;
        const PontoDigitado ponto = c.ponto.pressao.empty() ? PontoDoCalculo(f.get()) : c.ponto;
        const Aplicacao a = AplicaPropriedadesAgua(*f, ponto);
        EXPECT_TRUE(a.aplicado && a.mensagem.empty() && caixas.mostradas.empty());
        EXPECT_EQ(Textos(*f), esperados);
        EXPECT_TRUE(f->Alterado());
    }
}

TEST(PropriedadesAgua, RecusasNaoEscrevemNada) {
    const Calculo vapor{2, {{12, "1000"}, {9, "250"}}}, agua{0, {{8, "20"}, {9, "20"}}};
    const char* foraDaFaixa = "A temperatura está fora da faixa da IAPWS-IF97 (0 a 800 ºC até "
                              "100 MPa; acima de 800 ºC até 2000 ºC, só até 50 MPa).";
    const struct {
        Calculo calculo;
        PontoDigitado ponto;
        const char* mensagem;
    } casos[] = {
        {{1, {{12, "500"}, {9, "40"}}}, {"500", 0, "40"},
         "As propriedades da água e do vapor não se aplicam a um gás: nada foi escrito no cálculo."},
        // R7-97(2012) Table 36: Tsat(1 MPa) = 453,035632 K = 179,8856 ºC;
        // referencia.py: Tsat(10,2 Kg/cm²) = 179,898 ºC.
        {vapor, {"1000", 0, "179"}, "O vapor não está superaquecido: a 1000 kPa a saturação é 179,88 ºC"},
        {vapor, {"10,2", 1, "150"}, "O vapor não está superaquecido: a 10,2 Kg/cm² a saturação é 179,89 ºC"},
        // referencia.py: Tsat(101,325 kPa) = 99,9743 ºC, for row 9 and for row 8.
        {agua, {"101,325", 0, "120"}, "A água não está líquida: a 101,325 kPa a saturação é 99,97 ºC"},
        {{0, {{8, "105"}, {9, "20"}}}, {"101,325", 0, "20"},
         "A água não está líquida: a 101,325 kPa a saturação é 99,97 ºC"},
        {{0, {{9, "20"}}}, {"101,325", 0, "20"},
         "A “Temperatura de leitura” do cálculo não é um número: a “Massa Específica (leit)” é "
         "calculada nela."},
        {vapor, {"abc", 0, "250"}, "A pressão “abc” não é um número."},
        {vapor, {" ", 0, "250"}, "Digite a pressão absoluta."},
        {vapor, {"1000", 0, "25O"}, "A temperatura “25O” não é um número."},
        {vapor, {"-5", 0, "250"}, "A pressão tem que ser maior que zero."},
        {vapor, {"1000", 0, "2500"}, foraDaFaixa},
        {vapor, {"1.000,5", 2, "250"}, "Escolha a unidade da pressão: kPa ou Kg/cm²."},
    };
    for (const auto& c : casos) {
        SCOPED_TRACE(c.mensagem);
        CaixasRoteiro caixas;
        auto f = Monta(c.calculo);
        const auto antes = Textos(*f);
        const Aplicacao a = AplicaPropriedadesAgua(*f, c.ponto);
        EXPECT_TRUE(!a.aplicado && a.mensagem == c.mensagem && a.escritas.empty());
        ASSERT_EQ(caixas.mostradas.size(), 1u);
        EXPECT_EQ(caixas.mostradas[0].texto, c.mensagem);
        EXPECT_EQ(caixas.mostradas[0].titulo, "Propriedades da água e do vapor");
        EXPECT_EQ(Textos(*f), antes);
        EXPECT_FALSE(f->Alterado());
    }
    // A liquid not named water: asked first; "Não" writes nothing.
    CaixasRoteiro caixas;
    caixas.respostas = {vbNo};
    auto oleo = Monta({0, {{8, "20"}, {9, "20"}}, 0, 0, 0, 0, "Óleo (Liqüido)"});
    const Aplicacao a = AplicaPropriedadesAgua(*oleo, {"101,325", 0, "20"});
    EXPECT_TRUE(!a.aplicado && a.mensagem.empty() && !oleo->Alterado());
    ASSERT_EQ(caixas.mostradas.size(), 1u);
    EXPECT_EQ(caixas.mostradas[0].estilo, vbYesNo + vbQuestion);
}

TEST(PropriedadesAgua, PontoLidoComPontoOuVirgula) {
    const struct {
        const char *pressao, *temperatura;
        int escala;
        double p_kPa, T_C;
    } casos[] = {{"1000,5", "250", 0, 1000.5, 250}, {"1000.5", "-0.5", 0, 1000.5, -0.5},
                 {"1.000,5", " 20,25 ", 0, 1000.5, 20.25}, {"10,2", "200", 1, 10.2 * 98.0665, 200}};
    for (const auto& c : casos) {
        const PontoAgua p = LePontoAgua({c.pressao, c.escala, c.temperatura});
        EXPECT_TRUE(p.erro.empty() && p.p_kPa == c.p_kPa && p.T_C == c.T_C) << c.pressao;
    }
    // Opened with no calculation, and on a liquid: the standard atmosphere.
    const PontoDigitado semCalculo = PontoDoCalculo(nullptr);
    EXPECT_EQ(semCalculo.pressao + " " + semCalculo.temperatura, "101,325 20");
    auto agua = Monta({0, {{9, "60"}, {12, "5"}}});
    EXPECT_EQ(PontoDoCalculo(agua.get()).pressao, "101,325");
}

} // namespace
} // namespace tramelo::teste
