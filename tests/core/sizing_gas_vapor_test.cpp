// Gas and steam: flow conditions, the expansibility loop and its refusal.
#include "calculo_pronto.h"
#include "caixas_roteiro.h"
#include "sizing/calculo.h"
#include "sizing/execucao.h"

#include <gtest/gtest.h>

#include <cmath>
#include <tuple>

namespace tramelo::teste {
namespace {

// Dry air at 500 kPa and 40 ºC, 1000 M³/h read at 0 ºC. The material factor
// is exactly 1: "Outro material" with the factor typed.
std::unique_ptr<FrmCalcTramelo> Ar(std::string diferencial = "10000", std::string pressao = "500") {
    auto f = CalculoPronto(1, 1);
    f->cboDados(29)->DefineListIndex(1);
    Preenche(*f, {{2, "1000"}, {4, "102,26"}, {5, diferencial}, {8, "0"}, {9, "40"},
                  {12, pressao}, {16, "0"}, {19, "1"}, {25, "1"}, {26, "1"}, {20, "0,018"},
                  {27, "1,4"}, {28, "0,8"}, {29, "1"}});
    return f;
}

TEST(SizingGas, ArCondicoesDeEscoamento) {
    CaixasRoteiro caixas;
    auto f = Ar();
    Execucao x;
    ASSERT_EQ(cmdCalcular_Click(*f, &x).fim, FimCalculo::Concluido);
    EXPECT_EQ(x.PressaoVapor.valor(), 0);
    EXPECT_NEAR(x.MassaEsp.valor(), 5.562350311, 5e-10);
    EXPECT_NEAR(x.VazaoVol.valor(), 232.326002197, 5e-10);
    EXPECT_NEAR(x.CoefCarga.valor(), 0.131041076, 5e-10);
    EXPECT_NEAR(x.Velocidade.valor(), 6.286001089, 5e-10);
    EXPECT_NEAR(x.Reynolds.valor(), 198639.7098, 5e-5);
    EXPECT_EQ(x.Fu.valor(), 1);
    EXPECT_EQ(x.Fs.valor(), 1);
    EXPECT_EQ(x.Dados[10].Numero().valor(), 101.325);
}

TEST(SizingGas, ArIteracaoComExpansibilidade) {
    CaixasRoteiro caixas;
    auto f = Ar();
    Execucao x;
    ASSERT_EQ(cmdCalcular_Click(*f, &x).fim, FimCalculo::Concluido);
    EXPECT_EQ(x.passes, 3);
    EXPECT_NEAR(x.Beta.valor(), 0.46165886, 5e-9);
    EXPECT_NEAR(x.Epsilo.valor(), 0.99610607, 5e-9);
    EXPECT_NEAR(x.CoefAlvo.valor(), 0.13155333, 5e-9);
    for (const CaixaMostrada& m : caixas.mostradas) EXPECT_TRUE(m.entrada) << m.texto;
}

TEST(SizingGas, RelacaoDePressoesRecusada) {
    // 200000 Pa over 500 kPa leaves 0,6; exactly 0,75 is refused as well.
    for (auto [dp, p, texto] : {std::tuple{"200000", "500", "0,6"}, {"100000", "400", "0,75"}}) {
        CaixasRoteiro caixas;
        auto f = Ar(dp, p);
        Execucao x;
        EXPECT_EQ(cmdCalcular_Click(*f, &x).fim, FimCalculo::Interrompido);
        EXPECT_EQ(x.passes, 1);
        ASSERT_FALSE(caixas.mostradas.empty());
        const CaixaMostrada& m = caixas.mostradas.back();
        EXPECT_EQ(m.titulo, "Valor fora dos limites");
        EXPECT_EQ(m.estilo, vbExclamation);
        EXPECT_EQ(m.texto, std::string("Pressão Absoluta (proj) / Pressão diferencial = ") + texto +
                               "\n\nO resultado tem que ser maior que '0,75'");
        EXPECT_FALSE(f->Relatorio->Visible);
    }
}

TEST(SizingGas, LeituraConformeVazaoEUmidade) {
    CaixasRoteiro caixas;
    // Mass flow: fields 8 and 25 aren't read and Dados(10) isn't written.
    auto f = Ar();
    f->cboDados(2)->DefineListIndex(1);
    f->txtDados(8)->DefineTexto("");
    f->txtDados(25)->DefineTexto("");
    Execucao x;
    ASSERT_EQ(cmdCalcular_Click(*f, &x).fim, FimCalculo::Concluido);
    EXPECT_EQ(x.TipoVazao, 2);
    EXPECT_TRUE(x.Dados[8].Vazio());
    EXPECT_TRUE(x.Dados[10].Vazio());
    EXPECT_TRUE(x.Dados[25].Vazio());

    // Humidity 0 leaves field 14 unread, whatever it holds; otherwise it is read.
    f = Ar();
    f->txtDados(14)->DefineTexto("7,38");
    ASSERT_EQ(cmdCalcular_Click(*f, &x).fim, FimCalculo::Concluido);
    EXPECT_TRUE(x.Dados[14].Vazio());
    f->txtDados(16)->DefineTexto("50");
    ASSERT_EQ(cmdCalcular_Click(*f, &x).fim, FimCalculo::Concluido);
    EXPECT_EQ(x.Dados[14].Texto(), "7,38");
    EXPECT_NEAR(x.PressaoVapor.valor(), 3.69, 1e-12);
    EXPECT_LT(x.Fu.valor(), 1);

    // "Kg/cm²" on the pressures converts the standard atmosphere back: not exactly 101,325.
    f = Ar("1", "5");
    f->cboDados(12)->DefineListIndex(1);
    f->cboDados(10)->DefineListIndex(1);
    cmdCalcular_Click(*f, &x);
    EXPECT_EQ(x.Dados[10].Texto(), "101,325249795");
}

TEST(SizingVapor, LeSoOsCamposDoVapor) {
    CaixasRoteiro caixas;
    auto f = CalculoPronto(2, 1);
    Preenche(*f, {{2, "5"}, {4, "102,26"}, {5, "20000"}, {9, "200"}, {12, "1000"},
                  {18, "4,85"}, {20, "0,0157"}, {27, "1,3"}, {28, "0,8"}});
    f->cboDados(2)->DefineListIndex(1); // T/h
    Execucao x;
    ASSERT_EQ(cmdCalcular_Click(*f, &x).fim, FimCalculo::Concluido);
    EXPECT_EQ(x.TipoVazao, 2);
    EXPECT_EQ(x.Dados[2].Numero().valor(), 5000);
    // Unread; the conversion of densities turns field 19 into a 0 all the same.
    for (int i : {8, 14, 16, 19, 25, 26})
        EXPECT_EQ(x.Dados[static_cast<size_t>(i)].Numero().valor(), 0) << i;
    for (int i : {8, 16, 25, 26}) EXPECT_TRUE(x.Dados[static_cast<size_t>(i)].Vazio()) << i;
    EXPECT_EQ(x.MassaEsp.valor(), 4.85);
    EXPECT_NEAR(x.VazaoVol.valor(), 5000 / 4.85, 1e-12);
    EXPECT_GT(x.Epsilo.valor(), 0.9);
    EXPECT_EQ(f->txtDados(29)->Text(), "1,00612");
}

TEST(SizingGas, AtalhoDaTomada5SemEpsiloFalha) {
    // Pipe taps at a saturation pressure below 50 skip the loop; Epsilo stays
    // 0 and its rounding takes the logarithm of 0.
    CaixasRoteiro caixas;
    auto f = Ar();
    f->Tomada = 5;
    Execucao x;
    ResultadoCalculo r = cmdCalcular_Click(*f, &x);
    EXPECT_EQ(r.fim, FimCalculo::Falhou);
    EXPECT_EQ(r.erro.numero, 5);
    EXPECT_EQ(x.passes, 0);
    EXPECT_NEAR(x.Beta.valor(), std::sqrt(x.CoefCarga.valor() / 0.519), 1e-15);
    const auto& linhas = f->Relatorio->lstRelatorio;
    ASSERT_GE(linhas.size(), 2u);
    EXPECT_EQ(linhas.back(), " ");
    EXPECT_EQ(linhas[linhas.size() - 2],
              " ========================= Resultado de processamento =========================");
    EXPECT_FALSE(f->Relatorio->Visible);
}

} // namespace
} // namespace tramelo::teste
