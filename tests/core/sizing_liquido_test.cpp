// The liquid case: water through a 102,26 mm pipe, every tap kind.
#include "calculo_pronto.h"
#include "caixas_roteiro.h"
#include "sizing/calculo.h"
#include "sizing/execucao.h"

#include <gtest/gtest.h>
#include <iostream>

namespace tramelo::teste {
namespace {

std::unique_ptr<FrmCalcTramelo> Agua(int tomada) {
    auto f = CalculoPronto(0, tomada);
    Preenche(*f, {{2, "50"}, {4, "102,26"}, {5, "25000"}, {8, "20"}, {9, "20"}, {17, "998"},
                  {18, "998"}, {20, "1"}, {28, "0,8"}});
    return f;
}

TEST(SizingLiquido, AguaFlangeTaps) {
    CaixasRoteiro caixas;
    auto f = Agua(1);
    Execucao x;
    ResultadoCalculo r = cmdCalcular_Click(*f, &x);
    for (auto& l : f->Relatorio->lstRelatorio) std::cerr << "[" << l << "]\n";
    ASSERT_EQ(r.fim, FimCalculo::Concluido) << r.erro.descricao;
    EXPECT_TRUE(caixas.mostradas.empty());
    EXPECT_NEAR(x.CoefCarga.valor(), 0.238916273498, 5e-13);
    EXPECT_NEAR(x.Velocidade.valor(), 1.35284062679, 5e-12);
    EXPECT_NEAR(x.Reynolds.valor(), 138064.7995, 5e-5);
    EXPECT_NEAR(x.Beta.valor(), 0.604631817, 5e-10);
    EXPECT_NEAR((x.Beta * 102.26).valor(), 61.8296, 5e-5);
    EXPECT_NEAR(x.ReynoldsLimite.valor(), 48599.425, 5e-4);
    EXPECT_EQ(x.CoefAlvo.valor(), x.CoefCarga.valor());
    EXPECT_EQ(f->txtDados(29)->Text(), "1");
    EXPECT_TRUE(f->Relatorio->Visible);
    EXPECT_EQ(f->Relatorio->Caption, "Relatório de Cálculo - Cálculo 1");
}

TEST(SizingLiquido, AsQuatroTomadas) {
    CaixasRoteiro caixas;
    const double esperado[] = {0.604631817, 0.604287372, 0.603930242, 0.605142732};
    for (int tomada = 1; tomada <= 4; ++tomada) {
        auto f = Agua(tomada);
        Execucao x;
        ASSERT_EQ(cmdCalcular_Click(*f, &x).fim, FimCalculo::Concluido) << tomada;
        EXPECT_NEAR(x.Beta.valor(), esperado[tomada - 1], 5e-10) << tomada;
    }
}

} // namespace
} // namespace tramelo::teste
