// The rows of a calculation window: in and out of use by fluid, their unit
// lists and layout, the clicks on the selections, typing and the scrolling
// that follows the focus.
#include "calculo_pronto.h"
#include "document/campos.h"
#include "document/entrada.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace tramelo::teste {
namespace {

TEST(DocumentCampos, LeiauteDosTresFluidos) {
    // Rows 0, 2, 4 and 5 stand as built; row 1 is the density mode, placed
    // just above the first row in use from 17 on.
    const struct { int fluido; std::vector<int> ordem; int Max; } casos[] = {
        {0, {0, 2, 4, 5, 8, 9, 1, 17, 18, 20, 28, 29}, 3},
        {1, {0, 2, 4, 5, 8, 9, 10, 12, 14, 16, 1, 17, 19, 20, 25, 26, 27, 28, 29}, 10},
        {2, {0, 2, 4, 5, 9, 12, 1, 18, 20, 27, 28, 29}, 3},
    };
    for (const auto& c : casos) {
        SCOPED_TRACE(c.fluido);
        CaixasRoteiro caixas;
        auto f = Escolhido(c.fluido);
        for (size_t p = 0; p < c.ordem.size(); ++p) {
            int i = c.ordem[p];
            EXPECT_EQ(f->picDados(i)->Top, static_cast<int>(p) * 25) << i;
        }
        for (int i = 6; i <= 30; ++i) {
            if (!f->picDados(i)) continue;
            bool esperado = std::count(c.ordem.begin(), c.ordem.end(), i) > 0;
            EXPECT_EQ(LinhaEmUso(*f, i), esperado) << i;
            EXPECT_EQ(f->picDados(i)->Visible, esperado) << i;
        }
        EXPECT_EQ(f->picMove.Height, static_cast<int>(c.ordem.size()) * 25);
        EXPECT_TRUE(f->barraV.Enabled && f->barraV.Max == c.Max && f->barraV.LargeChange == c.Max);
        // A list tall enough for every row: the bar goes back to the top, off.
        f->barraV.DefineValue(2);
        f->barraV.Height = 1000;
        OrganizaCampos(*f);
        EXPECT_TRUE(f->barraV.Value == 0 && !f->barraV.Enabled);
    }
}

TEST(DocumentCampos, ModoDeDensidadePeloFluido) {
    // Liquid keeps the user's mode; gas and steam impose theirs.
    const struct { int fluido, modo; const char* legenda17; bool faixaHabilitada; } casos[] = {
        {0, 1, "Densidade relativa (leit)", true},
        {1, 1, "Densidade relativa (leit)", false},
        {2, 0, "Massa Específica (leit)", false},
    };
    for (const auto& c : casos) {
        SCOPED_TRACE(c.fluido);
        auto f = Carregado();
        f->cboMassaDensidade.DefineListIndex(1);
        AlteraEscalas(*f, c.fluido);
        EXPECT_EQ(f->cboMassaDensidade.ListIndex(), c.modo);
        EXPECT_EQ(f->picDados(1)->Enabled, c.faixaHabilitada);
        EXPECT_EQ(f->lblDados(17)->Caption, c.legenda17);
        for (int i : {17, 18, 19})
            EXPECT_EQ(f->cboDados(i)->ListIndex(), c.modo) << i;
    }
}

TEST(DocumentCampos, TrocaDeFluidoMantemListaDeVazaoPeloTamanho) {
    // A list of the right length keeps its unit, and the rows that follow from
    // it aren't worked out again.
    // The flow unit chosen after the first fluid (-1 for none); rows of 8, 10, 17, 25 in use.
    const struct {
        const char* caminho;
        std::vector<int> fluidos;
        int unidadeAntes, indiceVazao, itensVazao;
        std::set<int> emUso;
    } casos[] = {
        {"líquido em M³/h para gás", {0, 1}, -1, 0, 3, {8, 10, 25}},
        {"líquido em Kg/h para gás", {0, 1}, 1, 1, 3, {8, 10, 25}},
        {"gás para vapor", {1, 2}, -1, 0, 2, {}},
        {"vapor em T/h para líquido", {2, 0}, 1, 0, 3, {8, 17}},
    };
    for (const auto& c : casos) {
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

TEST(DocumentCampos, CampoDadosPulaOQueFalta) {
    CaixasRoteiro caixas;
    auto f = Escolhido(0);
    CampoDados(*f, 25, true); // no unit list
    EXPECT_TRUE(LinhaEmUso(*f, 25));
    EXPECT_TRUE(f->lblDados(25)->Enabled && f->txtDados(25)->Enabled);


    // On a disabled list a row goes in use with its controls off.
    Lista(*f, false);
    CampoDados(*f, 16, true);
    EXPECT_TRUE(LinhaEmUso(*f, 16));
    EXPECT_TRUE(f->picDados(16)->Enabled);
    EXPECT_FALSE(f->lblDados(16)->Enabled || f->txtDados(16)->Enabled || f->cboDados(16)->Enabled);

    // All rows off, whatever is asked, and out of sight but the four built ones.
    TodosCampoDados(*f, true);
    for (int i = 2; i <= 30; ++i)
        EXPECT_TRUE(!f->picDados(i) || (f->picDados(i)->Visible == (i <= 5) && !f->txtDados(i)->Enabled)) << i;
    EXPECT_TRUE(f->picLista.Enabled && f->picMenu.corAtiva);
}

// A scripted user who also keeps the text each input box offered.
struct Entradas : CaixasRoteiro {
    std::vector<std::string> padroes;
    std::string InputBox(const std::string& prompt, const std::string& titulo,
                         const std::string& padrao) override {
        padroes.push_back(padrao);
        return CaixasRoteiro::InputBox(prompt, titulo, padrao);
    }
};

TEST(DocumentSelecoes, NomeDoFluido) {
    // The proposal is the bracketed type of a named item, or the type and
    // " utilizado"; an empty answer gives back the bare type.
    const struct { std::string itemAntes, proposta, resposta, itemDepois; } casos[] = {
        {"Liqüido", "Liqüido utilizado", "Água", "Água (Liqüido)"},
        {"Água (Liqüido)", "Liqüido", "", "Liqüido"},
        {"Água (potável) (Liqüido)", "potável) (Liqüido", "Água", "Água (Liqüido)"},
    };
    for (const auto& c : casos) {
        SCOPED_TRACE(c.itemAntes);
        auto f = Carregado();
        f->cboTramelo.DefineListIndex(0);
        f->cboFluido.itens[0].texto = c.itemAntes;
        Entradas e;
        e.textos = {c.resposta};
        f->cboFluido.DefineListIndex(0);
        ASSERT_EQ(e.mostradas.size(), 1u);
        EXPECT_EQ(e.mostradas[0].texto, "Digite o nome do 'Fluido' utilizado");
        EXPECT_EQ(e.mostradas[0].titulo, "Tipo de fluido: " + c.itemAntes);
        EXPECT_EQ(e.padroes[0], c.proposta);
        EXPECT_EQ(f->cboFluido.Text(), c.itemDepois);
        EXPECT_EQ(f->NomeFluido, c.itemDepois);
    }
}

TEST(DocumentSelecoes, OrdemDasEscolhasEListaDeDados) {
    CaixasRoteiro caixas;
    auto f = Carregado();
    EXPECT_FALSE(f->cboFluido.Enabled || f->cboTomada.Enabled);
    f->cboTramelo.DefineListIndex(1);
    EXPECT_TRUE(f->Placa == 2 && f->cboFluido.Enabled && f->lblFluido.Enabled);
    EXPECT_FALSE(f->cboTomada.Enabled);
    f->cboFluido.DefineListIndex(0); // the first fluid counts as a choice
    EXPECT_TRUE(f->cboTomada.Enabled && f->lblTomada.Enabled);
    // Not ready yet: row 9 in use, but off.
    EXPECT_FALSE(f->picLista.Enabled || f->txtTag.Enabled || f->txtDados(9)->Enabled);
    f->cboTomada.DefineListIndex(3);
    EXPECT_TRUE(f->Tomada == 4 && f->NomeTomada == "Corner Taps");
    EXPECT_TRUE(f->picLista.Enabled && f->txtTag.Enabled && f->cmdCalcular.Enabled &&
                f->txtDados(9)->Enabled && f->picMenu.corAtiva &&
                mdiMenu().tbCalculo.Botao("Calcular")->Enabled);
    // Taking the orifice kind away closes the list again.
    f->cboTramelo.DefineListIndex(-1);
    EXPECT_EQ(f->Placa, 0);
    EXPECT_FALSE(f->cboFluido.Enabled || f->picLista.Enabled || f->txtDados(9)->Enabled);
}

TEST(DocumentSelecoes, PressoesNumaSoUnidade) {
    // Row 10 gets the standard atmosphere only in gas with the first flow unit.
    const struct { int fluido, vazao, linha, unidade; const char* texto10; } casos[] = {
        {1, 0, 12, 1, "1,03323"}, {1, 0, 14, 0, "101,325"}, {1, 1, 12, 1, "x"},
        {0, 0, 14, 1, "x"},       {2, 0, 10, 1, "x"},
    };
    for (const auto& c : casos) {
        SCOPED_TRACE(testing::Message() << c.fluido << " " << c.linha << " " << c.unidade);
        auto f = Escolhido(c.fluido);
        f->cboDados(2)->DefineListIndex(c.vazao);
        for (int i : {10, 12, 14})
            f->txtDados(i)->DefineTexto("x");
        if (c.unidade == 0) f->cboDados(10)->DefineListIndex(1);
        f->txtDados(10)->DefineTexto("x");
        f->cboDados(c.linha)->DefineListIndex(c.unidade);
        for (int i : {10, 12, 14})
            EXPECT_EQ(f->cboDados(i)->ListIndex(), c.unidade) << i;
        EXPECT_EQ(f->txtDados(10)->Text(), c.texto10);
        EXPECT_EQ(f->txtDados(12)->Text() + f->txtDados(14)->Text(), "xx");
    }
}

TEST(DocumentSelecoes, MaterialDaPlaca) {
    auto f = Escolhido(0);
    f->txtDados(9)->DefineTexto("35");
    // "Outro material" with an empty answer: the item keeps its text, and the
    // field opens for the factor all the same.
    Entradas e;
    f->cboDados(29)->DefineListIndex(1);
    EXPECT_EQ(e.padroes, std::vector<std::string>{"Outro material"});
    EXPECT_EQ(f->cboDados(29)->Text(), "Outro material");
    EXPECT_EQ(f->NomeMaterial, "");
    EXPECT_FALSE(f->txtDados(29)->Locked);
    EXPECT_EQ(f->foco, "txtDados(29)");
    f->txtDados(29)->DefineTexto("1,2");
    f->txtDados(9)->DefineTexto("20"); // leaves a typed factor alone
    EXPECT_EQ(f->txtDados(29)->Text(), "1,2");

    // A name replaces the item's text, and is offered the next time.
    f->cboDados(29)->DefineListIndex(0);
    EXPECT_EQ(f->txtDados(29)->Text(), "1");
    EXPECT_TRUE(f->txtDados(29)->Locked);
    e.textos = {"Monel 400"};
    f->cboDados(29)->DefineListIndex(1);
    EXPECT_EQ(f->NomeMaterial, "Monel 400");
    f->cboDados(29)->DefineListIndex(0);
    f->cboDados(29)->DefineListIndex(1);
    EXPECT_EQ(e.padroes.back(), "Monel 400");
    EXPECT_EQ(f->cboDados(29)->Text(), "Monel 400");
    // Back to steel with no number in row 9: row 29 ends up empty.
    f->txtDados(9)->DefineTexto("");
    f->cboDados(29)->DefineListIndex(0);
    EXPECT_EQ(f->txtDados(29)->Text(), "");
}

TEST(DocumentEntrada, FiltroDeTeclas) {
    const std::pair<std::string, std::string> casos[] = {
        {"1.5", "1,5"},  {"a", ""},           {"/", "/"},
        {"12\r", "12"},  {"-3,2e5", "-3,25"}, {"*+,-./09", "*+,-,/09"},
        {"12\b3", "13"}, {" :)(", ""},
    };
    auto f = Escolhido(0);
    for (const auto& [teclas, texto] : casos) {
        std::string t; // as the field takes the keys the filter passes
        for (unsigned char c : teclas) {
            int passa = txtDados_KeyPress(*f, 4, c);
            if (passa == 8 && !t.empty()) t.pop_back();
            if (passa != 8 && passa != 0) t += static_cast<char>(passa);
        }
        EXPECT_EQ(t, texto) << teclas;
    }
}

// A row that gets the focus out of sight scrolls in: above the view it
// becomes the first row in sight, below it the last (9 in sight).
TEST(DocumentEntrada, RolagemSegueOFoco) {
    auto f = Escolhido(1); // gas: rows 29, 20, 19, 9, 8 and 1 at 18, 13, 12, 5, 4 and 10
    // 't' a row's text, 'c' its list, 'g' the tag, 'm' the density mode.
    const struct { char tipo; int linha, valor; } passos[] = {
        {'t', 29, 10}, {'t', 20, 10}, {'t', 8, 4}, {'c', 19, 4},
        {'t', 20, 5},  {'c', 9, 5},   {'g', 0, 0}, {'m', 0, 2}};
    for (const auto& p : passos) {
        if (p.tipo == 't') txtDados_GotFocus(*f, p.linha);
        if (p.tipo == 'c') cboDados_GotFocus(*f, p.linha);
        if (p.tipo == 'g') txtTag_GotFocus(*f);
        if (p.tipo == 'm') cboMassaDensidade_GotFocus(*f);
        EXPECT_EQ(f->barraV.Value, p.valor) << p.tipo << p.linha;
        EXPECT_EQ(f->picMove.Top, f->barraV.Top - p.valor * 25) << p.tipo << p.linha;
    }
}

} // namespace
} // namespace tramelo::teste
