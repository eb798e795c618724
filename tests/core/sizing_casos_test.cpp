// "Calcular" end to end: one row a case, each compared whole with its golden
// file (the report, how the run ended, every box shown), and the worked
// figures of the liquid and the air cases.
#include "caixas_roteiro.h"
#include "calculo_pronto.h"
#include "relatorio_dourado.h"
#include "report/buffer.h"
#include "document/calculo.h"
#include "sizing/equacoes.h"
#include "sizing/execucao.h"
#include "steam/tabelas_vapor.h"

#include <gtest/gtest.h>

#include <cmath>

namespace tramelo::teste {
namespace {

using Valores = std::vector<std::pair<int, std::string>>;

const Valores Ar = {
    {2, "1000"},   {4, "102,26"}, {5, "10000"}, {8, "0"},    {9, "40"},
    {12, "500"},   {16, "0"},     {19, "1"},    {25, "1"},   {26, "1"},
    {20, "0,018"}, {27, "1,4"},   {28, "0,8"},  {14, "7,38"}}; // 14 unread while humidity is 0
const Valores Vapor = {{2, "5000"},  {4, "154,05"},  {5, "20000"}, {9, "200"}, {12, "10,2"},
                       {18, "4,85"}, {20, "0,0157"}, {27, "1,3"},  {28, "0,7"}};

Valores Com(Valores v, const Valores& mudancas) {
    for (const auto& m : mudancas) {
        bool achou = false;
        for (auto& [i, t] : v)
            if (i == m.first) t = m.second, achou = true;
        if (!achou) v.push_back(m);
    }
    return v;
}

struct Caso {
    const char* golden;
    int fluido, tomada, placa; // tomada 5 isn't in the list: set on the record
    Valores valores;
    std::vector<std::pair<int, int>> unidades; // row, unit list position
    int densidade = 0;                         // cboMassaDensidade
    std::deque<int> respostas = {};            // message boxes; none: the first button
    int desenho = 0;
    const char* tag = "FT-2301";
};

// The run as the user meets it: report lines, how it ended, the boxes shown.
// With `outraJanela`, another calculation makes other choices meanwhile:
// each report names its own fluid and taps.
std::vector<std::string> Executa(const Caso& c, bool outraJanela = false) {
    CaixasRoteiro caixas;
    auto f = CalculoPronto(c.fluido, c.tomada == 5 ? 1 : c.tomada, c.placa);
    if (c.tomada == 5) {
        f->Tomada = 5;
        f->NomeTomada = catalogo().NomeTomadas[5];
    }
    std::unique_ptr<FrmCalcTramelo> outra;
    if (outraJanela) outra = CalculoPronto(c.fluido == 1 ? 2 : 1, c.tomada == 4 ? 3 : 4);
    f->txtTag.DefineTexto(c.tag);
    if (c.densidade) f->cboMassaDensidade.DefineListIndex(c.densidade);
    for (auto [linha, posicao] : c.unidades)
        f->cboDados(linha)->DefineListIndex(posicao);
    Preenche(*f, c.valores);
    f->chkDesenho.Value = c.desenho;
    caixas.mostradas.clear();
    caixas.respostas = c.respostas;
    ResultadoCalculo r = cmdCalcular_Click(*f);

    std::vector<std::string> saida = f->Relatorio->lstRelatorio;
    const char* fins[] = {"concluído", "interrompido", "falhou"};
    saida.push_back(std::string("--- ") + fins[static_cast<int>(r.fim)] +
                    (r.fim == FimCalculo::Falhou
                         ? ": " + std::to_string(r.erro.numero) + " " + r.erro.descricao
                         : "") +
                    (f->Relatorio->Visible ? ", relatório à vista" : ", relatório oculto") +
                    (f->foco.empty() ? "" : ", foco em " + f->foco));
    for (const CaixaMostrada& m : caixas.mostradas) {
        std::string texto = m.texto;
        for (size_t p; (p = texto.find('\n')) != std::string::npos;)
            texto.replace(p, 1, "|");
        saida.push_back("--- caixa " + std::to_string(m.estilo) + " [" + m.titulo + "] " + texto);
    }
    return saida;
}

TEST(SizingCasos, RelatoriosInteiros) {
    const Valores Estreito = Com(Agua, {{2, "21"}, {4, "52,5"}, {5, "20000"}}); // Beta above 0,7
    // clang-format off
    const Caso casos[] = {
        // Liquid: the worked case, then every tap, flow unit, pressure unit.
        {"liquido_flange.txt", 0, 1, 1, Agua, {}},
        {"liquido_radius_kgh_kgm2.txt", 0, 2, 1, Com(Agua, {{2, "49900"}, {5, "2549"}, {8, ""}}),
         {{2, 1}, {5, 1}}, 0, {vbYes, vbNo}, 1}, // a mass flow asks for the drawing once
        {"liquido_vena_th_mmca_relativa.txt", 0, 3, 2,
         Com(Agua, {{2, "2"}, {5, "2550"}, {9, "120"}, {18, "0,95"}, {20, "0,001"}}),
         {{2, 2}, {5, 2}, {20, 1}}, 1},
        {"liquido_corner_outro_material.txt", 0, 4, 1,
         Com(Agua, {{2, "35"}, {4, "52,5"}, {5, "60000"}, {29, "1,0021"}}), {{29, 1}}},
        {"liquido_pipe_taps.txt", 0, 5, 1, Agua, {}},
        // Flange taps at a small and a large Beta, so every term counts.
        {"liquido_flange_beta_pequeno.txt", 0, 1, 1, Com(Agua, {{2, "3"}, {4, "52,5"}}), {}},
        {"liquido_flange_beta_grande.txt", 0, 1, 1, Estreito, {}},
        {"liquido_radius_beta_grande.txt", 0, 2, 1, Estreito, {}},
        {"liquido_vena_beta_grande.txt", 0, 3, 1, Estreito, {}},
        {"liquido_desenho.txt", 0, 1, 1, Agua, {}, 0, {vbYes, vbYes, vbNo}, 1},
        // Gas: volume and mass flow, dry and wet, both pressure units.
        {"gas_volume_corner.txt", 1, 4, 2, Ar, {}, 0, {}, 0, "FE-101"},
        {"gas_massa_radius.txt", 1, 2, 2, Com(Ar, {{2, "1,5"}, {5, "1000"}}), {{2, 2}, {5, 2}},
         0, {}, 0, "FE-101"},
        {"gas_umido_flange_kgcm2.txt", 1, 1, 1, Com(Ar, {{12, "5,1"}, {16, "50"}, {14, "0,0752"},
         {19, "0,98"}, {25, "0,999"}, {26, "0,995"}}), {{12, 1}}},
        {"gas_kgh_vena.txt", 1, 3, 1, Com(Ar, {{2, "1300"}, {8, ""}, {25, ""}}), {{2, 1}}},
        {"gas_pipe_taps_falha.txt", 1, 5, 1, Ar, {}},
        // Steam: both mass units, both pressure units.
        {"vapor_vena.txt", 2, 3, 1, Vapor, {{12, 1}}, 0, {}, 0, ""},
        {"vapor_flange_th_kpa.txt", 2, 1, 1, Com(Vapor, {{2, "5"}, {12, "1000"}}), {{2, 1}}},
        // The messages, and the failures of the run.
        {"limite_acima_continua.txt", 0, 1, 1, Com(Agua, {{2, "105"}}), {}, 0, {vbOK, vbNo}},
        {"limite_abaixo_para.txt", 0, 1, 1, Com(Agua, {{2, "1"}}), {}, 0, {vbOK, vbYes}},
        {"relacao_de_pressoes.txt", 1, 1, 1, Com(Ar, {{5, "200000"}}), {}},
        {"relacao_de_pressoes_075.txt", 2, 2, 1, Com(Vapor, {{5, "100000"}, {12, "400"}}), {}},
        {"campo_vazio.txt", 0, 1, 1, Com(Agua, {{8, ""}, {19, ""}}), {}},
        {"gas_campo_vazio.txt", 1, 1, 1, Com(Ar, {{16, "10"}, {14, ""}}), {}},
        {"texto_nao_numerico.txt", 0, 1, 1, Com(Agua, {{5, "abc"}}), {}},
        {"densidade_zero.txt", 0, 1, 1, Com(Agua, {{18, "0"}}), {}},
    };
    // clang-format on
    for (const Caso& c : casos) {
        SCOPED_TRACE(c.golden);
        const std::vector<std::string> primeira = Executa(c);
        ConfereDourado(c.golden, primeira);
        EXPECT_EQ(Executa(c, true), primeira); // nothing leaks from a run or a window
    }
}

TEST(SizingCasos, FigurasTrabalhadas) {
    CaixasRoteiro caixas;
    // Water, 102,26 mm, every tap: Beta of each.
    const double betas[] = {0.604631817, 0.604287372, 0.603930242, 0.605142732};
    for (int tomada = 1; tomada <= 4; ++tomada) {
        auto f = CalculoPronto(0, tomada);
        Preenche(*f, Agua);
        Execucao x;
        ASSERT_EQ(cmdCalcular_Click(*f, &x).fim, FimCalculo::Concluido);
        EXPECT_NEAR(x.Beta.valor(), betas[tomada - 1], 5e-10) << tomada;
        if (tomada != 1) continue;
        EXPECT_NEAR(x.CoefCarga.valor(), 0.238916273498, 5e-13);
        EXPECT_NEAR(x.Velocidade.valor(), 1.35284062679, 5e-12);
        EXPECT_NEAR(x.Reynolds.valor(), 138064.7995, 5e-5);
        EXPECT_NEAR((x.Beta * 102.26).valor(), 61.8296, 5e-5);
        EXPECT_NEAR(x.ReynoldsLimite.valor(), 48599.425, 5e-4);
    }
    // The same water given as relative density, 998 / 999,08 at 15 digits:
    // both densities come back to kg/m³, and so does the same Beta.
    {
        auto r = CalculoPronto(0, 1);
        r->cboMassaDensidade.DefineListIndex(1);
        Preenche(*r, Com(Agua, {{17, "0,998919005485046"}, {18, "0,998919005485046"}}));
        Execucao x;
        ASSERT_EQ(cmdCalcular_Click(*r, &x).fim, FimCalculo::Concluido);
        EXPECT_NEAR(x.Beta.valor(), betas[0], 5e-10);
    }
    // Dry air, 500 kPa, 40 ºC, 1000 M³/h read at 0 ºC, "Outro material" at exactly 1.
    auto f = CalculoPronto(1, 1);
    caixas.textos = {""};
    f->cboDados(29)->DefineListIndex(1);
    Preenche(*f, Com(Ar, {{29, "1"}}));
    Execucao x;
    ASSERT_EQ(cmdCalcular_Click(*f, &x).fim, FimCalculo::Concluido);
    EXPECT_NEAR(x.MassaEsp.valor(), 5.562350311, 5e-10);
    EXPECT_NEAR(x.VazaoVol.valor(), 232.326002197, 5e-10);
    EXPECT_NEAR(x.CoefCarga.valor(), 0.131041076, 5e-10);
    EXPECT_NEAR(x.Velocidade.valor(), 6.286001089, 5e-10);
    EXPECT_NEAR(x.Reynolds.valor(), 198639.7098, 5e-5);
    EXPECT_EQ(x.passes, 3);
    EXPECT_NEAR(x.Beta.valor(), 0.46165886, 5e-9);
    EXPECT_NEAR(x.Epsilo.valor(), 0.99610607, 5e-9);
    EXPECT_NEAR(x.CoefAlvo.valor(), 0.13155333, 5e-9);
}

// A field left empty stops the run on it, whichever reading routine reads
// it: the viscosity with its unit, the factor of "Outro material".
TEST(SizingCasos, CampoVazioParaNele) {
    const struct {
        int fluido, linha;
        const char* rotulo;
        bool outroMaterial;
    } casos[] = {
        {0, 20, "Viscosidade dinâmica (proj)", false},
        {1, 29, "Fator do material utilizado", true},
    };
    for (const auto& c : casos) {
        CaixasRoteiro caixas;
        auto f = CalculoPronto(c.fluido, 1);
        caixas.textos = {""};
        if (c.outroMaterial) f->cboDados(29)->DefineListIndex(1);
        Preenche(*f, Com(c.fluido == 0 ? Agua : Ar, {{c.linha, ""}}));
        caixas.mostradas.clear();
        EXPECT_EQ(cmdCalcular_Click(*f).fim, FimCalculo::Interrompido) << c.linha;
        ASSERT_FALSE(caixas.mostradas.empty()) << c.linha;
        EXPECT_EQ(caixas.mostradas.back().texto,
                  std::string("O campo '") + c.rotulo + "' não foi preenchido");
        EXPECT_EQ(f->foco, "txtDados(" + std::to_string(c.linha) + ")");
    }
}

// The tap equations where no report reaches: the limit's floor, tap 5 and
// corner taps at Beta 1 or more.
TEST(SizingEquacoes, Tomadas) {
    const double D = 102.26, Re = 138064.7995;
    Num coef, limite;
    EquacaoTomada(1, 0.604631817, D, Re, coef, limite);
    EXPECT_NEAR(coef.valor(), 0.23891607, 5e-9);
    EXPECT_NEAR(limite.valor(), 48599.425, 5e-4);

    // Vena contracta's limit stays at its floor of 5000 until Beta 0,884.
    EquacaoTomada(3, 0.60393, D, Re, coef, limite);
    EXPECT_EQ(limite.valor(), 5000);
    EquacaoTomada(3, 0.885, D, Re, coef, limite);
    EXPECT_GT(limite.valor(), 5000);

    // Tap 5 leaves the limit as the last equation set it.
    limite = 1234;
    EquacaoTomada(5, 0.3, D, Re, coef, limite);
    EXPECT_EQ(limite.valor(), 1234);
    EXPECT_NEAR(coef.valor(), 0.0571664216, 5e-11); // its steps worked by hand in Python

    // Corner taps at Beta 1 or more: division by zero, then a negative root.
    EXPECT_THROW(EquacaoTomada(4, 1.0, D, Re, coef, limite), Falha);
    EXPECT_THROW(EquacaoTomada(4, 1.1, D, Re, coef, limite), Falha);
}

// Each table by its type, read where the window shows its first value.
TEST(SizingVapor, TabelaPeloTipo) {
    EXPECT_EQ(GradeTabela(0)[1][1] + " " + GradeTabela(1)[1][1], "0,451 2,218");
}

TEST(ReportBuffer, AddRel2Colunas) {
    FrmRelatorio r;
    AddRel2(r, ".", "Tag", 6, "Pressão", 6, "Pressão", 0, "", 3, "x", 1);
    EXPECT_EQ(r.lstRelatorio[0], " Tag...Press.Pressão....");
    AddRel2(r, "-*", "a", 3, "abcdef", 3, 1.5, 0, "", 0, "", 0);
    EXPECT_EQ(r.lstRelatorio[1], " a--ab-*1,5");
}

} // namespace
} // namespace tramelo::teste
