// The calculation file and the life of its window: the example byte for byte,
// round trips, the failure table, the handlers that run while a file loads,
// numbering, and the question on close.
#include "calculo_pronto.h"
#include "dialogos_roteiro.h"
#include "pasta_temporaria.h"

#include "document/arquivo_trl.h"
#include "document/campos.h"
#include "document/ciclo.h"
#include "document/janelas.h"
#include "plataforma/canal.h"
#include "plataforma/cp1252.h"
#include "base/mod_base.h"
#include "base/recentes.h"

#include <gtest/gtest.h>

namespace tramelo::teste {
namespace {

class DocumentArquivo : public ::testing::Test {
  protected:
    void SetUp() override {
        DefinePastas(pasta.str());
        ContadorCalculos() = 0;
        Calculos().clear();
        FilesMRU() = {};
        canal1().Reinicia();
    }
    void TearDown() override {
        Calculos().clear();
        canal1().Reinicia();
    }
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
        Preenche(*f, {{2, "1200"}, {4, "154,05"}, {5, "2500"}, {8, "20"}, {9, "35"}, {17, "998"},
                      {18, "994"}, {20, "0,72"}, {28, "0,7"}});
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
    const std::string arquivo = pasta / "exemplo.trl";
    dialogos.nomes = {arquivo};
    bool ok = false;
    TrameloSave(*f, true, ok);
    EXPECT_TRUE(ok);
    EXPECT_EQ(LeBytes(arquivo), ParaCp1252(ArquivoExemplo));
    EXPECT_FALSE(f->Alterado());

    // Opened by the dialog and saved again elsewhere: the same bytes.
    dialogos.nomes = {arquivo};
    auto g = Abre("");
    EXPECT_TRUE(g->ArquivoExiste && !g->Alterado());
    dialogos.nomes = {pasta / "de-volta.trl"};
    TrameloSave(*g, true, ok);
    EXPECT_EQ(dialogos.mostrados.back().FileName + "|" + dialogos.mostrados.back().InitDir,
              "exemplo.trl|" + pasta.str() + "/"); // offered where it was, as it was named
    EXPECT_EQ(LeBytes(pasta / "de-volta.trl"), ParaCp1252(ArquivoExemplo));
    EXPECT_EQ(g->FatorPerda, 0.1022f);
    EXPECT_TRUE(caixas.mostradas.empty()); // no fluid name asked while loading
}

TEST_F(DocumentArquivo, TabelaDeFalhas) {
    auto f = Exemplo();
    f->ArquivoCalculo = "antes";
    // A folder that doesn't exist: the error box, nothing else changes.
    dialogos.nomes = {pasta / "nao/existe.trl"};
    bool ok = true;
    TrameloSave(*f, true, ok);
    EXPECT_EQ(caixas.mostradas.at(0).titulo, "Informação de Erro Código :76");
    EXPECT_TRUE(f->ArquivoCalculo == "antes" && f->Alterado());
    EXPECT_FALSE(ok); // a caller that closes on a good save must not close

    // A missing file: "Arquivo não encontrado".
    auto h = Abre(pasta / "falta.trl");
    EXPECT_EQ(caixas.mostradas.at(1).texto, "Arquivo não encontrado");
    EXPECT_EQ(caixas.mostradas[1].titulo, "Arquivo: " + pasta / "falta.trl");
    EXPECT_FALSE(h->ArquivoExiste);

    // Shorter than seven header items: the failure leaves channel 1 taken,
    // and the next use of it fails in its turn.
    GravaBytes(pasta / "curto.trl", "\"\"\r\n\"\"\r\n\"\"\r\n0\r\n");
    auto i = Abre(pasta / "curto.trl");
    ASSERT_EQ(caixas.mostradas.size(), 3u);
    EXPECT_EQ(caixas.mostradas[2].titulo, "Informação de Erro Código :62");
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
    EXPECT_TRUE(k->cboTramelo.ListIndex() == 0 && k->cboFluido.ListIndex() == 0 &&
                k->cboTomada.ListIndex() == 0);
    EXPECT_EQ(k->cboFluido.Text() + " " + k->txtTag.Text(), "sete nove");
    EXPECT_FALSE(canal1().Ocupado());
}

TEST_F(DocumentArquivo, EfeitosDosTratadoresNaCarga) {
    const std::string cabeca = "\"\"\r\n\"\"\r\n\"\"\r\n0\r\n0,  \"Liqüido\"\r\n0\r\n";
    // Row 2 in Kg/h takes rows 8 and 17 out of use as it is read; the layout
    // doesn't run, so they keep their places. Row 9 beyond a double: its
    // handler swallows the overflow. A number of thousands of digits is read
    // whole (both found by fuzzing the reader).
    const std::string longo = "35," + std::string(2500, '0');
    GravaBytes(pasta / "a.trl",
               ParaCp1252(cabeca + "\"T\"x\"y\r\n2,\"5\",1\r\n3,\"nada\",0\r\n4,\"" + longo +
                          "\",0\r\n5,\"1\",9\r\n9,\"1E400\",0\r\n17,\"1\",1\r\n18,\"2\",1\r\n"
                          "29,\"1,5\",2\r\n"));
    auto f = Abre(pasta / "a.trl");
    EXPECT_TRUE(caixas.mostradas.empty());
    EXPECT_EQ(f->txtTag.Text(), "T"); // the quote ends the item; the rest is dropped
    EXPECT_EQ(f->txtDados(4)->Text(), longo);
    EXPECT_EQ(f->txtDados(9)->Text(), "1E400");
    EXPECT_FALSE(LinhaEmUso(*f, 8) || LinhaEmUso(*f, 17));
    EXPECT_EQ(f->picDados(8)->Top, 4 * 25);
    EXPECT_EQ(f->cboDados(5)->ListIndex(), 0); // unit beyond the list: kept
    EXPECT_EQ(f->txtDados(29)->Text(), "1,5"); // its own line after row 9's rule
    // Density mode isn't stored: the hidden lists stand on the empty unit
    // while the selector shows its first item.
    EXPECT_EQ(f->cboDados(18)->ListIndex(), 1);
    EXPECT_EQ(f->cboMassaDensidade.ListIndex(), 0);
    EXPECT_FALSE(f->Alterado());
    // Saved as it stands.
    dialogos.nomes = {pasta / "a.trl"};
    bool ok = false;
    TrameloSave(*f, true, ok);
    EXPECT_NE(LeBytes(pasta / "a.trl").find("29,\"1,5\",0\r\n"), std::string::npos);
}

TEST_F(DocumentArquivo, NumeracaoDosNovosCalculos) {
    FrmCalcTramelo* a = AbreCalculo(false, std::string());
    FrmCalcTramelo* b = AbreCalculo(false, std::string());
    FrmCalcTramelo* c = AbreCalculo(false, std::string());
    EXPECT_EQ(a->Caption, "Cálculo 1");
    EXPECT_EQ(a->ArquivoCalculo, modBase().PastaSaves + "/Cálculo 1");
    EXPECT_TRUE(DescarregaCalculo(*b)); // nothing to save: no question
    FrmCalcTramelo* d = AbreCalculo(false, std::string());
    EXPECT_EQ(d->Caption, "Cálculo 4");
    EXPECT_EQ(Calculos().size(), 3u);
    // A changed selection without a fluid: the tag is off, so no question.
    a->cboTramelo.DefineListIndex(1);
    EXPECT_TRUE(a->Alterado());
    EXPECT_TRUE(DescarregaCalculo(*a));
    EXPECT_TRUE(caixas.mostradas.empty());
    // With the tag on, the question, Yes/No/Cancel with its mark; Cancel keeps it.
    caixas.respostas = {vbCancel};
    for (CaixaCombinacao* l : {&c->cboTramelo, &c->cboFluido, &c->cboTomada}) l->DefineListIndex(0);
    EXPECT_FALSE(DescarregaCalculo(*c));
    EXPECT_EQ(caixas.mostradas.back().estilo, vbYesNoCancel + vbQuestion);
    // The report's header, once set, flows back on activation as a change.
    c->DefineAlterado(false);
    c->Relatorio->txtData = "10:00";
    c->Relatorio->txtOS = "OS-7";
    Form_Activate(*c);
    EXPECT_TRUE(c->Alterado() && c->TextoData + c->TextoOS == "10:00OS-7");

    // Closing all asks each before any goes: "Sim" saves the first, "Cancelar"
    // on the next keeps both; then "Não" lets the other go unsaved.
    for (CaixaCombinacao* l : {&d->cboTramelo, &d->cboFluido, &d->cboTomada}) l->DefineListIndex(0);
    caixas.respostas = {vbYes, vbCancel};
    dialogos.nomes = {pasta / "c.trl"};
    EXPECT_FALSE(DescarregaTodosCalculos());
    EXPECT_TRUE(Calculos().size() == 2 && !c->Alterado() && LeBytes(pasta / "c.trl").find("10:00") != std::string::npos);
    caixas.respostas = {vbNo};
    EXPECT_TRUE(DescarregaTodosCalculos());
    EXPECT_TRUE(Calculos().empty());
}

} // namespace
} // namespace tramelo::teste
