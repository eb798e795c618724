// The click handling of the selections, the density mode and the units.
#include "caixas_roteiro.h"
#include "calculo_pronto.h"
#include "document/frm_calc_tramelo.h"
#include "document/janela.h"
#include "document/selecoes.h"
#include "plataforma/ambiente.h"
#include "shell/barras.h"
#include "sizing/catalogo.h"

#include <gtest/gtest.h>

#include <deque>
#include <memory>
#include <string>
#include <vector>

namespace tramelo::teste {
namespace {

// Answers input boxes from a queue and keeps what each one offered.
struct Entradas : Caixas {
    Entradas() : anterior(ambiente().caixas) { ambiente().caixas = this; }
    ~Entradas() override { ambiente().caixas = anterior; }
    struct Pedido {
        std::string prompt, titulo, padrao;
    };
    std::deque<std::string> respostas;
    std::vector<Pedido> pedidos;
    std::vector<std::string> mensagens;

    int MsgBox(const std::string& texto, int, const std::string&) override {
        mensagens.push_back(texto);
        return vbOK;
    }
    std::string InputBox(const std::string& prompt, const std::string& titulo,
                         const std::string& padrao) override {
        pedidos.push_back({prompt, titulo, padrao});
        std::string r = respostas.empty() ? "" : respostas.front();
        if (!respostas.empty()) respostas.pop_front();
        return r;
    }
    Caixas* anterior;
};

TEST(DocumentSelecoes, NomeDoFluido) {
    // The proposal is the bracketed type of a named item, or the type and
    // " utilizado"; an empty answer gives back the bare type.
    struct Caso {
        std::string itemAntes, proposta, resposta, itemDepois;
    };
    const Caso casos[] = {
        {"Liqüido", "Liqüido utilizado", "Água", "Água (Liqüido)"},
        {"Água (Liqüido)", "Liqüido", "", "Liqüido"},
        {"Água (potável) (Liqüido)", "potável) (Liqüido", "Água", "Água (Liqüido)"},
        {"Óleo (Liqüido)", "Liqüido", "Óleo (cru)", "Óleo (cru) (Liqüido)"},
    };
    for (const Caso& c : casos) {
        SCOPED_TRACE(c.itemAntes);
        auto f = Carregado();
        f->cboTramelo.DefineListIndex(0);
        f->cboFluido.itens[0].texto = c.itemAntes;
        Entradas e;
        e.respostas = {c.resposta};
        f->cboFluido.DefineListIndex(0);
        ASSERT_EQ(e.pedidos.size(), 1u);
        EXPECT_EQ(e.pedidos[0].prompt, "Digite o nome do 'Fluido' utilizado");
        EXPECT_EQ(e.pedidos[0].titulo, "Tipo de fluido: " + c.itemAntes);
        EXPECT_EQ(e.pedidos[0].padrao, c.proposta);
        EXPECT_EQ(f->cboFluido.Text(), c.itemDepois);
        EXPECT_EQ(f->NomeFluido, c.itemDepois);
    }

    // A file being read names its fluid itself: no question.
    auto f = Carregado();
    f->cboTramelo.DefineListIndex(0);
    f->CarregandoArquivo = true;
    f->cboFluido.itens[1].texto = "Ar (Gas)";
    Entradas e;
    f->cboFluido.DefineListIndex(1);
    EXPECT_TRUE(e.pedidos.empty());
    EXPECT_EQ(f->NomeFluido, "Ar (Gas)");
    EXPECT_EQ(f->Fluido, 1);
}

TEST(DocumentSelecoes, OrdemDasEscolhasEListaDeDados) {
    CaixasRoteiro caixas;
    auto f = Carregado();
    EXPECT_FALSE(f->cboFluido.Enabled || f->cboTomada.Enabled);
    f->cboTramelo.DefineListIndex(1);
    EXPECT_EQ(f->Placa, 2);
    EXPECT_TRUE(f->cboFluido.Enabled && f->lblFluido.Enabled);
    EXPECT_FALSE(f->cboTomada.Enabled);
    f->cboFluido.DefineListIndex(0); // the first fluid counts as a choice
    EXPECT_TRUE(f->cboTomada.Enabled && f->lblTomada.Enabled);
    EXPECT_FALSE(f->picLista.Enabled || f->txtTag.Enabled); // not ready yet
    EXPECT_FALSE(f->txtDados(9)->Enabled);                  // in use, but off
    f->cboTomada.DefineListIndex(3);
    EXPECT_EQ(f->Tomada, 4);
    EXPECT_EQ(f->NomeTomada, "Corner Taps");
    EXPECT_TRUE(f->picLista.Enabled && f->txtTag.Enabled && f->cmdCalcular.Enabled);
    EXPECT_TRUE(f->txtDados(9)->Enabled && f->picMenu.corAtiva);
    EXPECT_TRUE(mdiMenu().tbCalculo.Botao("Calcular")->Enabled);

    // Taking the orifice kind away closes the list again.
    f->cboTramelo.DefineListIndex(-1);
    EXPECT_EQ(f->Placa, 0);
    EXPECT_FALSE(f->cboFluido.Enabled || f->picLista.Enabled || f->txtDados(9)->Enabled);
}

TEST(DocumentSelecoes, PressoesNumaSoUnidade) {
    // Row 10 gets the standard atmosphere only in gas with the first flow unit.
    struct Caso {
        int fluido, vazao, linha, unidade;
        const char* texto10;
    };
    const Caso casos[] = {
        {1, 0, 12, 1, "1,03323"}, {1, 0, 14, 0, "101,325"}, {1, 1, 12, 1, "x"},
        {0, 0, 14, 1, "x"},       {2, 0, 10, 1, "x"},
    };
    for (const Caso& c : casos) {
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
        EXPECT_EQ(f->txtDados(12)->Text(), "x");
        EXPECT_EQ(f->txtDados(14)->Text(), "x");
    }
}

TEST(DocumentSelecoes, MaterialDaPlaca) {
    auto f = Escolhido(0);
    f->txtDados(9)->DefineTexto("35");
    EXPECT_EQ(f->txtDados(29)->Text(), "1,00051");
    EXPECT_TRUE(f->txtDados(29)->Locked);

    // "Outro material" with an empty answer: the item keeps its text, and the
    // field opens for the factor all the same.
    Entradas e;
    f->cboDados(29)->DefineListIndex(1);
    ASSERT_EQ(e.pedidos.size(), 1u);
    EXPECT_EQ(e.pedidos[0].prompt, "Digite o nome do material utilizado");
    EXPECT_EQ(e.pedidos[0].titulo, "Material da placa");
    EXPECT_EQ(e.pedidos[0].padrao, "Outro material");
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
    e.respostas = {"Monel 400"};
    f->cboDados(29)->DefineListIndex(1);
    EXPECT_EQ(f->cboDados(29)->Text(), "Monel 400");
    EXPECT_EQ(f->NomeMaterial, "Monel 400");
    f->cboDados(29)->DefineListIndex(0);
    e.respostas = {""};
    f->cboDados(29)->DefineListIndex(1);
    EXPECT_EQ(e.pedidos.back().padrao, "Monel 400");
    EXPECT_EQ(f->cboDados(29)->Text(), "Monel 400");

    // Back to steel with no number in row 9: row 29 ends up empty.
    f->txtDados(9)->DefineTexto("");
    f->cboDados(29)->DefineListIndex(0);
    EXPECT_EQ(f->txtDados(29)->Text(), "");
}

} // namespace
} // namespace tramelo::teste
