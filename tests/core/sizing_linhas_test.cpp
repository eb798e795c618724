// Report line layout, rounding and the tap equations on their own.
#include "plataforma/falha.h"
#include "plataforma/texto.h"
#include "report/buffer.h"
#include "report/frm_relatorio.h"
#include "sizing/equacoes.h"
#include "sizing/linhas.h"

#include <gtest/gtest.h>

namespace tramelo {
namespace {

TEST(SizingLinhas, CabecalhosELinhas) {
    FrmRelatorio r;
    Cabecalho(r, " Dados para cálculo - Placa de orifício ");
    Cabecalho(r, " Dados para cálculo - Orifício de restricão ");
    Cabecalho(r, " Cálculos efetuados ");
    Cabecalho(r, " Resultado de processamento ");
    const auto& l = r.lstRelatorio;
    EXPECT_EQ(l[0], " " + std::string(19, '=') + " Dados para cálculo - Placa de orifício " +
                        std::string(19, '='));
    EXPECT_EQ(l[1], " " + std::string(17, '=') + " Dados para cálculo - Orifício de restricão " +
                        std::string(17, '='));
    EXPECT_EQ(l[2].find(" Cálculos"), 30u);
    EXPECT_EQ(Len(l[3]), 79);

    r.lstRelatorio.clear();
    LinhaRelatorio(r, "Diâmetro do orifício", "61,83", "mm");
    LinhaRelatorio(r, "Tag", "FT-2301", "");
    LinhaRelatorio(r, "Pressão diferencial", "25000", "Pa");
    EXPECT_EQ(l[0], " Diâmetro do orifício _____________ 61,83 " + std::string(34, '_') + " mm");
    EXPECT_EQ(Len(l[0]), 79); // 78 and the blank of AddRel
    EXPECT_EQ(l[1], " Tag ______________________________ FT-2301");
    EXPECT_EQ(Len(l[2]), 79);
    EXPECT_EQ(l[2].find("25000"), std::string(" Pressão diferencial ______________ ").size());

    // A value too long for the line fails: the count of fill characters is negative.
    EXPECT_THROW(LinhaRelatorio(r, "Vazão de projeto", std::string(40, '9'), "M³/h"), Falha);

    AddRel(r, "");
    EXPECT_EQ(l.back(), " ");
}

TEST(SizingLinhas, Arredonda) {
    EXPECT_EQ(Arredonda(0.99610607, 4).valor(), 0.99611);
    EXPECT_EQ(Arredonda(15357.85, 1).valor(), 15000);
    EXPECT_EQ(Arredonda(48599.425, 1).valor(), 49000);
    EXPECT_EQ(Arredonda(0.604631817, 4).valor(), 0.60463);
    EXPECT_EQ(Arredonda(61.8296, 4).valor(), 61.83);
    EXPECT_EQ(Arredonda(5000, 1).valor(), 5000);
    try {
        Arredonda(0, 4);
        ADD_FAILURE();
    } catch (const Falha& f) {
        EXPECT_EQ(f.numero(), 5);
    }
}

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
    EXPECT_GT(coef.valor(), 0);

    // Corner taps at Beta 1 or more: division by zero, then a negative root.
    EXPECT_THROW(EquacaoTomada(4, 1.0, D, Re, coef, limite), Falha);
    EXPECT_THROW(EquacaoTomada(4, 1.1, D, Re, coef, limite), Falha);
}

TEST(ReportBuffer, AddRel2Colunas) {
    FrmRelatorio r;
    AddRel2(r, ".", "Tag", 6, "Pressão", 6, "Pressão", 0, "", 3, "x", 1);
    EXPECT_EQ(r.lstRelatorio[0], " Tag...Press.Pressão....");
    AddRel2(r, "-*", "a", 3, "abcdef", 3, 1.5, 0, "", 0, "", 0);
    EXPECT_EQ(r.lstRelatorio[1], " a--ab-*1,5");
}

TEST(ReportBuffer, CabecalhoDaJanela) {
    FrmRelatorio r;
    EXPECT_EQ(Len(r.lblMenu), 79);
    EXPECT_EQ(r.lblMenu.find(" Descrição"), 0u);
    EXPECT_EQ(Mid(r.lblMenu, 37, 5), "Valor");
    EXPECT_EQ(Mid(r.lblMenu, 74), "Escala");
    EXPECT_EQ(r.txtData, "Abrindo");
    EXPECT_EQ(Len(r.lblData), 19);
    EXPECT_EQ(Len(r.lblOS), 19);
    EXPECT_EQ(Len(r.lblCliente), 19);
}

} // namespace
} // namespace tramelo
