// Rows in and out of use by fluid, their unit lists and their layout.
#include "caixas_roteiro.h"
#include "calculo_pronto.h"
#include "document/campos.h"
#include "document/frm_calc_tramelo.h"
#include "document/janela.h"
#include "shell/barras.h"
#include "sizing/catalogo.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace tramelo::teste {
namespace {

TEST(DocumentCampos, LeiauteDosTresFluidos) {
    // Row 1 is the density mode, placed just above the first row in use from 17 on.
    struct Caso {
        int fluido;
        std::vector<int> ordem; // from position 4 on
        int K, Max;
    };
    const Caso casos[] = {
        {0, {8, 9, 1, 17, 18, 20, 28, 29}, 12, 3},
        {1, {8, 9, 10, 12, 14, 16, 1, 17, 19, 20, 25, 26, 27, 28, 29}, 19, 10},
        {2, {9, 12, 1, 18, 20, 27, 28, 29}, 12, 3},
    };
    for (const Caso& c : casos) {
        SCOPED_TRACE(c.fluido);
        CaixasRoteiro caixas;
        auto f = Escolhido(c.fluido);
        for (int i : {0, 2, 4, 5})
            EXPECT_TRUE(f->picDados(i)->Visible) << i;
        EXPECT_EQ(f->picDados(4)->Top, 2 * 25);
        for (size_t p = 0; p < c.ordem.size(); ++p) {
            int i = c.ordem[p];
            EXPECT_EQ(f->picDados(i)->Top, static_cast<int>(p + 4) * 25) << i;
            EXPECT_TRUE(f->picDados(i)->Visible) << i;
        }
        for (int i = 6; i <= 30; ++i) {
            if (!f->picDados(i)) continue;
            bool esperado = std::count(c.ordem.begin(), c.ordem.end(), i) > 0;
            EXPECT_EQ(LinhaEmUso(*f, i), esperado) << i;
            EXPECT_EQ(f->picDados(i)->Visible, esperado) << i;
        }
        EXPECT_EQ(f->picMove.Height, c.K * 25);
        EXPECT_EQ(f->barraV.Max, c.Max);
        EXPECT_EQ(f->barraV.LargeChange, c.Max);
    }
}

TEST(DocumentCampos, ModoDeDensidadePeloFluido) {
    struct Caso {
        int fluido, modo;
        const char* legenda17;
        bool faixaHabilitada;
    };
    // Liquid keeps the user's mode; gas and steam impose theirs.
    const Caso casos[] = {
        {0, 1, "Densidade relativa (leit)", true},
        {1, 1, "Densidade relativa (leit)", false},
        {2, 0, "Massa Específica (leit)", false},
    };
    for (const Caso& c : casos) {
        SCOPED_TRACE(c.fluido);
        auto f = Carregado();
        f->cboMassaDensidade.DefineListIndex(1);
        AlteraEscalas(*f, c.fluido);
        EXPECT_EQ(f->cboMassaDensidade.ListIndex(), c.modo);
        EXPECT_EQ(f->picDados(1)->Enabled, c.faixaHabilitada);
        EXPECT_TRUE(f->picDados(1)->Visible);
        EXPECT_EQ(f->lblDados(17)->Caption, c.legenda17);
        for (int i : {17, 18, 19})
            EXPECT_EQ(f->cboDados(i)->ListIndex(), c.modo) << i;
    }
}

TEST(DocumentCampos, TrocaDeFluidoMantemListaDeVazaoPeloTamanho) {
    // A list of the right length keeps its unit, and the rows that follow from
    // it aren't worked out again.
    struct Caso {
        const char* caminho;
        std::vector<int> fluidos;
        int unidadeAntes; // flow unit chosen after the first fluid, -1 for none
        int indiceVazao, itensVazao;
        std::set<int> emUso; // of rows 8, 10, 17, 25
    };
    const Caso casos[] = {
        {"gás de início", {1}, -1, 0, 3, {8, 10, 17, 25}},
        {"líquido em M³/h para gás", {0, 1}, -1, 0, 3, {8, 10, 25}},
        {"líquido em Kg/h para gás", {0, 1}, 1, 1, 3, {8, 10, 25}},
        {"gás em Kg/h", {1}, 1, 1, 3, {}},
        {"gás para vapor", {1, 2}, -1, 0, 2, {}},
        {"vapor em T/h para líquido", {2, 0}, 1, 0, 3, {8, 17}},
    };
    for (const Caso& c : casos) {
        SCOPED_TRACE(c.caminho);
        CaixasRoteiro caixas;
        auto f = Escolhido(c.fluidos[0]);
        if (c.unidadeAntes >= 0) f->cboDados(2)->DefineListIndex(c.unidadeAntes);
        for (size_t k = 1; k < c.fluidos.size(); ++k)
            f->cboFluido.DefineListIndex(c.fluidos[k]);
        EXPECT_EQ(f->cboDados(2)->ListIndex(), c.indiceVazao);
        EXPECT_EQ(f->cboDados(2)->ListCount(), c.itensVazao);
        for (int i : {8, 10, 17, 25})
            EXPECT_EQ(LinhaEmUso(*f, i), c.emUso.count(i) > 0) << i;
    }
}

TEST(DocumentCampos, UnidadeDeVazaoLigaLinhasSemReorganizar) {
    CaixasRoteiro caixas;
    auto f = Escolhido(1);
    const int topo8 = f->picDados(8)->Top, topo25 = f->picDados(25)->Top;
    f->cboDados(2)->DefineListIndex(2); // T/h
    for (int i : {8, 10, 17, 25}) {
        EXPECT_FALSE(LinhaEmUso(*f, i)) << i;
        EXPECT_FALSE(f->txtDados(i)->Enabled) << i;
        EXPECT_TRUE(f->picDados(i)->Visible) << i; // stays in place, greyed
    }
    EXPECT_EQ(f->picDados(8)->Top, topo8);
    EXPECT_EQ(f->picDados(25)->Top, topo25);
    f->cboDados(2)->DefineListIndex(0);
    for (int i : {8, 10, 17, 25})
        EXPECT_TRUE(LinhaEmUso(*f, i) && f->txtDados(i)->Enabled) << i;

    // By the unit's number, not its position: steam's first unit is Kg/h.
    auto vapor = Escolhido(2);
    for (int k : {1, 0}) {
        CampoDados(*vapor, 8, true);
        CampoDados(*vapor, 17, true);
        vapor->cboDados(2)->DefineListIndex(k);
        EXPECT_FALSE(LinhaEmUso(*vapor, 8)) << k;
        EXPECT_FALSE(LinhaEmUso(*vapor, 17)) << k;
    }
}

TEST(DocumentCampos, CampoDadosPulaOQueFalta) {
    CaixasRoteiro caixas;
    auto f = Escolhido(0);
    CampoDados(*f, 3, true); // no such row
    CampoDados(*f, 30, true);
    CampoDados(*f, 31, true);
    EXPECT_FALSE(f->picDados(31) || f->lblDados(31) || f->txtDados(31) || f->cboDados(31));
    CampoDados(*f, 25, true); // no unit list
    EXPECT_TRUE(LinhaEmUso(*f, 25));
    EXPECT_TRUE(f->lblDados(25)->Enabled && f->txtDados(25)->Enabled);

    // A row out of use keeps its text for when it comes back.
    f->txtDados(18)->DefineTexto("998");
    CampoDados(*f, 18, false);
    EXPECT_FALSE(f->txtDados(18)->Enabled);
    CampoDados(*f, 18, true);
    EXPECT_EQ(f->txtDados(18)->Text(), "998");

    // On a disabled list a row goes in use with its controls off.
    Lista(*f, false);
    CampoDados(*f, 16, true);
    EXPECT_TRUE(LinhaEmUso(*f, 16));
    EXPECT_TRUE(f->picDados(16)->Enabled);
    EXPECT_FALSE(f->lblDados(16)->Enabled || f->txtDados(16)->Enabled || f->cboDados(16)->Enabled);
}

} // namespace
} // namespace tramelo::teste
