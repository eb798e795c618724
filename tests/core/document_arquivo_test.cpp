// The calculation file: the example byte for byte, round trips, the failure
// table and the effects of the handlers that run while a file loads.
#include "caixas_roteiro.h"
#include "calculo_pronto.h"
#include "dialogos_roteiro.h"
#include "pasta_temporaria.h"

#include "document/arquivo_trl.h"
#include "document/campos.h"
#include "plataforma/canal.h"
#include "plataforma/cp1252.h"
#include "shell/mod_base.h"

#include <gtest/gtest.h>

namespace tramelo::teste {
namespace {

class DocumentArquivo : public ::testing::Test {
  protected:
    void SetUp() override {
        DefinePastas(pasta.str());
        canal1().Reinicia();
    }
    void TearDown() override { canal1().Reinicia(); }

    // The liquid calculation of the example file.
    std::unique_ptr<FrmCalcTramelo> Exemplo() {
        auto f = CalculoPronto(0, 1);
        {
            CaixasRoteiro nome;
            nome.textos = {"Água"};
            f->cboFluido.DefineListIndex(-1);
            f->cboFluido.DefineListIndex(0);
        }
        f->txtTag.DefineTexto("FT-2301");
        Preenche(*f, {{2, "1200"},
                      {4, "154,05"},
                      {5, "2500"},
                      {8, "20"},
                      {9, "35"},
                      {17, "998"},
                      {18, "994"},
                      {20, "0,72"},
                      {28, "0,7"}});
        f->cboDados(5)->DefineListIndex(2);
        return f;
    }

    std::unique_ptr<FrmCalcTramelo> Abre(const std::string& arquivo) {
        auto f = std::make_unique<FrmCalcTramelo>();
        Form_Load(*f);
        TrameloOpen(*f, arquivo);
        return f;
    }

    PastaTemporaria pasta;
    CaixasRoteiro caixas;
    DialogosRoteiro dialogos;
};

const char* const ArquivoExemplo =
    "\"\"\r\n\"\"\r\n\"\"\r\n0\r\n0,  \"Água (Liqüido)\"\r\n0\r\n"
    "\"FT-2301\"\r\n2,\"1200\",0\r\n4,\"154,05\",0\r\n5,\"2500\",2\r\n"
    "8,\"20\",0\r\n9,\"35\",0\r\n17,\"998\",0\r\n18,\"994\",0\r\n"
    "20,\"0,72\",0\r\n28,\"0,7\",0\r\n29,\"1,00051\",0\r\n";

TEST_F(DocumentArquivo, ExemploByteAByteEDeVolta) {
    auto f = Exemplo();
    EXPECT_EQ(f->txtDados(29)->Text(), "1,00051");
    const std::string arquivo = pasta / "exemplo.trl";
    dialogos.nomes = {arquivo};
    bool ok = false;
    TrameloSave(*f, true, ok);
    EXPECT_TRUE(ok);
    EXPECT_TRUE(caixas.mostradas.empty());
    EXPECT_EQ(LeBytes(arquivo), ParaCp1252(ArquivoExemplo));
    EXPECT_FALSE(f->Alterado());

    auto g = Abre(arquivo);
    EXPECT_TRUE(g->ArquivoExiste);
    EXPECT_FALSE(g->Alterado());
    EXPECT_EQ(g->cboFluido.Text(), "Água (Liqüido)");
    EXPECT_EQ(g->txtTag.Text(), "FT-2301");
    for (int i : LinhasDados) {
        EXPECT_EQ(g->txtDados(i)->Text(), f->txtDados(i)->Text()) << i;
        EXPECT_EQ(LinhaEmUso(*g, i), LinhaEmUso(*f, i)) << i;
        if (g->cboDados(i)) {
            EXPECT_EQ(g->cboDados(i)->ListIndex(), f->cboDados(i)->ListIndex()) << i;
        }
    }
    EXPECT_EQ(g->FatorPerda, 0.1022f);
    EXPECT_EQ(g->Caption, "exemplo.trl");
    EXPECT_TRUE(caixas.mostradas.empty()); // no fluid name asked while loading
}

TEST_F(DocumentArquivo, TabelaDeFalhas) {
    auto f = Exemplo();
    f->ArquivoCalculo = "antes";
    // Save dialog cancelled: no message, name and Alterado as before, Ok false.
    bool ok = true;
    TrameloSave(*f, true, ok);
    EXPECT_FALSE(ok);
    EXPECT_TRUE(caixas.mostradas.empty());
    EXPECT_EQ(f->ArquivoCalculo, "antes");
    EXPECT_TRUE(f->Alterado());

    // A folder that doesn't exist: the error box, nothing else changes.
    dialogos.nomes = {pasta / "nao/existe.trl"};
    TrameloSave(*f, true, ok);
    ASSERT_EQ(caixas.mostradas.size(), 1u);
    EXPECT_EQ(caixas.mostradas[0].titulo, "Informação de Erro Código :76");
    EXPECT_EQ(f->ArquivoCalculo, "antes");
    caixas.mostradas.clear();

    // Open cancelled: no message; a missing file: "Arquivo não encontrado".
    auto g = Abre("");
    EXPECT_TRUE(caixas.mostradas.empty());
    EXPECT_FALSE(g->ArquivoExiste);
    auto h = Abre(pasta / "falta.trl");
    ASSERT_EQ(caixas.mostradas.size(), 1u);
    EXPECT_EQ(caixas.mostradas[0].texto, "Arquivo não encontrado");
    EXPECT_EQ(caixas.mostradas[0].titulo, "Arquivo: " + pasta / "falta.trl");
    EXPECT_EQ(caixas.mostradas[0].estilo, vbExclamation);
    caixas.mostradas.clear();

    // Shorter than seven header items: the failure leaves channel 1 taken,
    // and the next use of it fails in its turn.
    GravaBytes(pasta / "curto.trl", "\"\"\r\n\"\"\r\n\"\"\r\n0\r\n");
    auto i = Abre(pasta / "curto.trl");
    ASSERT_EQ(caixas.mostradas.size(), 1u);
    EXPECT_EQ(caixas.mostradas[0].titulo, "Informação de Erro Código :62");
    EXPECT_FALSE(i->ArquivoExiste);
    EXPECT_EQ(i->cboTramelo.ListIndex(), 0); // what had been set stays
    EXPECT_TRUE(canal1().Ocupado());
    auto j = Abre(pasta / "curto.trl");
    EXPECT_EQ(caixas.mostradas.back().titulo, "Informação de Erro Código :55");
    canal1().Reinicia();
    caixas.mostradas.clear();

    // Any text with the header's items opens as position 0 of each list.
    GravaBytes(pasta / "texto.trl", "um,dois,tres\r\nquatro cinco\r\nseis\r\nsete,oito,nove\r\n");
    auto k = Abre(pasta / "texto.trl");
    EXPECT_TRUE(caixas.mostradas.empty());
    EXPECT_EQ(k->cboTramelo.ListIndex(), 0);
    EXPECT_EQ(k->cboFluido.ListIndex(), 0);
    EXPECT_EQ(k->cboFluido.Text(), "sete");
    EXPECT_EQ(k->cboTomada.ListIndex(), 0);
    EXPECT_EQ(k->txtTag.Text(), "nove");
    EXPECT_FALSE(canal1().Ocupado());
}

TEST_F(DocumentArquivo, EfeitosDosTratadoresNaCarga) {
    const std::string cabeca = "\"\"\r\n\"\"\r\n\"\"\r\n0\r\n0,  \"Liqüido\"\r\n0\r\n";
    // Row 2 in Kg/h takes rows 8 and 17 out of use as it is read; the layout
    // doesn't run, so they keep their places.
    GravaBytes(pasta / "a.trl",
               ParaCp1252(cabeca + "\"T\"x\"y\r\n2,\"5\",1\r\n3,\"nada\",0\r\n5,\"1\",9\r\n"
                                   "9,\"35\",0\r\n17,\"1\",1\r\n18,\"2\",1\r\n29,\"1,5\",0\r\n"));
    auto f = Abre(pasta / "a.trl");
    EXPECT_TRUE(caixas.mostradas.empty());
    EXPECT_EQ(f->txtTag.Text(), "T"); // the quote ends the item; the rest is dropped
    EXPECT_FALSE(LinhaEmUso(*f, 8));
    EXPECT_FALSE(LinhaEmUso(*f, 17));
    EXPECT_EQ(f->picDados(8)->Top, 4 * 25);
    EXPECT_EQ(f->cboDados(5)->ListIndex(), 0); // unit beyond the list: kept
    EXPECT_EQ(f->txtDados(29)->Text(), "1,5"); // its own line after row 9's rule
    // Density mode isn't stored: the hidden lists stand on the empty unit
    // while the selector shows its first item.
    EXPECT_EQ(f->cboDados(18)->ListIndex(), 1);
    EXPECT_EQ(f->cboMassaDensidade.ListIndex(), 0);
    EXPECT_FALSE(f->Alterado());

    // Row 29 with "Outro material" asks for the material's name while loading.
    GravaBytes(pasta / "b.trl", ParaCp1252(cabeca + "\"\"\r\n29,\"1,2\",1\r\n"));
    caixas.textos = {"Latão"};
    auto g = Abre(pasta / "b.trl");
    ASSERT_EQ(caixas.mostradas.size(), 1u);
    EXPECT_EQ(caixas.mostradas[0].titulo, "Material da placa");
    EXPECT_EQ(g->txtDados(29)->Text(), "1,2");
}

// Damaged and odd files found by hand and by fuzzing the reader: each opens,
// with no box unless the row says so, and its rows as the load rules leave them.
TEST_F(DocumentArquivo, ArquivosDanificadosAbrem) {
    const std::string cabeca = "\"\"\r\n\"\"\r\n\"\"\r\n0\r\n0,  \"Liqüido\"\r\n0\r\n\"t\"\r\n";
    struct Caso {
        std::string linhas;        // after the header
        std::string linha9, linha29; // the texts of rows 9 and 29 once open
    };
    const Caso casos[] = {
        // Beyond a double: the handler swallows the overflow, row 29 empty,
        // then its own line (unit 2 is beyond the list, which stays on steel).
        {"9,\"1E400\",0\r\n29,\"1\",2\r\n", "1E400", "1"},
        {"9,\"1E400\",0\r\n", "1E400", ""},
        {"9,\"" + std::string(400, '9') + "\",0\r\n", std::string(400, '9'), ""},
        // A number of thousands of digits is read whole.
        {"9,\"35," + std::string(2500, '0') + "\",0\r\n", "35," + std::string(2500, '0'), "1,00051"},
        {"9,\"" + std::string(2500, '0') + "35\",0\r\n", std::string(2500, '0') + "35", "1,00051"},
    };
    for (const Caso& c : casos) {
        SCOPED_TRACE(c.linhas.substr(0, 40));
        GravaBytes(pasta / "d.trl", ParaCp1252(cabeca + c.linhas));
        auto f = Abre(pasta / "d.trl");
        EXPECT_TRUE(caixas.mostradas.empty());
        EXPECT_TRUE(f->ArquivoExiste);
        EXPECT_EQ(f->txtDados(9)->Text(), c.linha9);
        EXPECT_EQ(f->txtDados(29)->Text(), c.linha29);
        EXPECT_EQ(f->cboDados(29)->ListIndex(), 0);
        // Saved as it stands, row 29 included.
        dialogos.nomes = {pasta / "d.trl"};
        bool ok = false;
        TrameloSave(*f, true, ok);
        EXPECT_TRUE(ok);
        EXPECT_NE(LeBytes(pasta / "d.trl").find("29,\"" + c.linha29 + "\",0\r\n"), std::string::npos);
        caixas.mostradas.clear();
    }
}

} // namespace
} // namespace tramelo::teste
