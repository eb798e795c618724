// The life of calculation windows: numbering, names from folder and caption,
// the question on close, and what a cancel keeps.
#include "caixas_roteiro.h"
#include "dialogos_roteiro.h"
#include "pasta_temporaria.h"

#include "document/arquivo_trl.h"
#include "document/ciclo.h"
#include "document/frm_calc_tramelo.h"
#include "document/janela.h"
#include "document/janelas.h"
#include "plataforma/canal.h"
#include "shell/barras.h"
#include "shell/mod_base.h"
#include "shell/recentes.h"
#include "sizing/catalogo.h"

#include <gtest/gtest.h>

namespace tramelo::teste {
namespace {

class DocumentCiclo : public ::testing::Test {
  protected:
    void SetUp() override {
        CarregaCatalogo();
        DefinePastas(pasta.str());
        ContadorCalculos() = 0;
        Calculos().clear();
        FilesMRU() = {};
        mdiMenu() = MdiMenu{};
        canal1().Reinicia();
    }
    void TearDown() override { Calculos().clear(); }

    // A calculation ready to be saved: the three selections made.
    FrmCalcTramelo& Novo() {
        FrmCalcTramelo& f = *AbreCalculo(false, std::string());
        f.cboTramelo.DefineListIndex(0);
        f.cboFluido.DefineListIndex(0);
        f.cboTomada.DefineListIndex(0);
        return f;
    }

    PastaTemporaria pasta;
    CaixasRoteiro caixas;
    DialogosRoteiro dialogos;
};

TEST_F(DocumentCiclo, NumeracaoDosNovosCalculos) {
    FrmCalcTramelo* a = AbreCalculo(false, std::string());
    FrmCalcTramelo* b = AbreCalculo(false, std::string());
    FrmCalcTramelo* c = AbreCalculo(false, std::string());
    EXPECT_EQ(a->Caption, "Cálculo 1");
    EXPECT_EQ(c->Caption, "Cálculo 3");
    EXPECT_TRUE(c->Visible);
    EXPECT_EQ(a->ArquivoCalculo, modBase().PastaSaves + "/Cálculo 1");
    EXPECT_FALSE(a->Alterado());
    EXPECT_TRUE(DescarregaCalculo(*b)); // nothing to save: no question
    EXPECT_TRUE(caixas.mostradas.empty());
    EXPECT_EQ(AbreCalculo(false, std::string())->Caption, "Cálculo 4");
    EXPECT_EQ(Calculos().size(), 3u);

    // A changed selection without a fluid: the tag is off, so no question.
    a->cboTramelo.DefineListIndex(1);
    EXPECT_TRUE(a->Alterado());
    EXPECT_TRUE(DescarregaCalculo(*a));
    EXPECT_TRUE(caixas.mostradas.empty());
}

TEST_F(DocumentCiclo, AbrirCanceladoOuInexistente) {
    EXPECT_EQ(AbreCalculo(true, std::string()), nullptr); // dialog cancelled
    EXPECT_TRUE(caixas.mostradas.empty());
    EXPECT_TRUE(Calculos().empty());
    EXPECT_EQ(dialogos.mostrados[0].DialogTitle, "Abrir Tramelo");
    EXPECT_EQ(dialogos.mostrados[0].InitDir, modBase().PastaSaves);
    EXPECT_TRUE(ExistePasta(modBase().PastaSaves)); // made on demand

    EXPECT_EQ(AbreCalculo(true, pasta / "nao.trl"), nullptr);
    ASSERT_EQ(caixas.mostradas.size(), 1u);
    EXPECT_EQ(caixas.mostradas[0].texto, "Arquivo não encontrado");
    EXPECT_EQ(caixas.mostradas[0].titulo, pasta / "nao.trl");
    EXPECT_TRUE(Calculos().empty());
}

TEST_F(DocumentCiclo, NomesDerivadosDePastaELegenda) {
    FrmCalcTramelo& f = Novo();
    // Saved through the dialog elsewhere: the caption keeps its name.
    const std::string fora = pasta / "fora";
    CriaPasta(fora);
    dialogos.nomes = {fora + "/b.trl"};
    mnuArquivoSalvar_Click(f); // new: asks for a name
    EXPECT_TRUE(ExisteArquivo(fora + "/b.trl"));
    EXPECT_EQ(f.Caption, "Cálculo 1");
    EXPECT_EQ(f.ArquivoCalculo, modBase().PastaSaves + "/Cálculo 1");
    EXPECT_FALSE(f.ArquivoExiste);             // still file-less: "Salvar" asks again
    EXPECT_EQ(FilesMRU()[0], fora + "/b.trl"); // the path really used

    // Opened from another folder: the first Atualiza keeps the whole path
    // behind the folder, the activation that follows only the name.
    FrmCalcTramelo& aberto = CarregaCalculo();
    TrameloOpen(aberto, fora + "/b.trl");
    EXPECT_EQ(aberto.Caption, "b.trl");
    EXPECT_EQ(aberto.ArquivoCalculo, modBase().PastaSaves + "/" + fora + "/b.trl");
    DescarregaCalculo(aberto);
    FrmCalcTramelo& g = *AbreCalculo(true, fora + "/b.trl");
    EXPECT_EQ(g.ArquivoCalculo, modBase().PastaSaves + "/b.trl");
    EXPECT_FALSE(g.Alterado());
    EXPECT_FALSE(mdiMenu().tbPadrao.Botao("Salvar")->Enabled);
    // "Salvar" writes into the program's folder; the file it came from stays.
    const std::string antes = LeBytes(fora + "/b.trl");
    g.txtTag.DefineTexto("novo");
    EXPECT_TRUE(mdiMenu().tbPadrao.Botao("Salvar")->Enabled);
    mnuArquivoSalvar_Click(g);
    EXPECT_EQ(LeBytes(fora + "/b.trl"), antes);
    EXPECT_TRUE(ExisteArquivo(modBase().PastaSaves + "/b.trl"));
    EXPECT_EQ(dialogos.mostrados.size(), 1u); // no dialog for an opened file
}

TEST_F(DocumentCiclo, PerguntaAoFechar) {
    FrmCalcTramelo& f = Novo();
    f.txtTag.DefineTexto("x");
    caixas.mostradas.clear(); // the fluid's name box
    // Yes, then the save dialog cancelled: the window stays, still changed.
    caixas.respostas = {vbYes};
    EXPECT_FALSE(DescarregaCalculo(f));
    ASSERT_EQ(caixas.mostradas.size(), 1u);
    EXPECT_EQ(caixas.mostradas[0].texto, "Deseja salvar as alterações efetuadas neste Cálculo?");
    EXPECT_EQ(caixas.mostradas[0].estilo, vbYesNoCancel + vbQuestion);
    EXPECT_EQ(caixas.mostradas[0].titulo, f.ArquivoCalculo);
    EXPECT_TRUE(f.Alterado());
    // Cancel keeps it; No closes it without saving, the report with it.
    caixas.respostas = {vbCancel};
    EXPECT_FALSE(DescarregaCalculo(f));
    caixas.respostas = {vbNo};
    EXPECT_TRUE(DescarregaCalculo(f));
    EXPECT_TRUE(Calculos().empty());

    // Text typed in the report counts even with no activation in between.
    FrmCalcTramelo& g = Novo();
    g.DefineAlterado(false);
    g.Relatorio->txtData = "hoje";
    caixas.mostradas.clear();
    caixas.respostas = {vbNo};
    EXPECT_TRUE(DescarregaCalculo(g));
    EXPECT_EQ(caixas.mostradas.size(), 1u);
}

TEST_F(DocumentCiclo, SaidaPerguntaATodosAntesDeFecharAlgum) {
    FrmCalcTramelo& a = Novo();
    FrmCalcTramelo& b = Novo();
    a.txtTag.DefineTexto("a");
    b.txtTag.DefineTexto("b");
    caixas.mostradas.clear();
    // The first says no, the second cancels: both stay.
    caixas.respostas = {vbNo, vbCancel};
    EXPECT_FALSE(DescarregaTodosCalculos());
    EXPECT_EQ(Calculos().size(), 2u);
    EXPECT_EQ(caixas.mostradas.size(), 2u);
    caixas.respostas = {vbNo, vbNo};
    EXPECT_TRUE(DescarregaTodosCalculos());
    EXPECT_TRUE(Calculos().empty());
}

TEST_F(DocumentCiclo, TrameloLimpaEsvaziaODocumento) {
    FrmCalcTramelo& f = Novo();
    f.txtTag.DefineTexto("FT");
    f.txtDados(2)->DefineTexto("50");
    f.cboDados(5)->DefineListIndex(2);
    f.TextoCliente = "Cliente";
    TrameloLimpa(f);
    EXPECT_EQ(f.txtTag.Text(), "");
    EXPECT_EQ(f.txtDados(2)->Text(), "");
    EXPECT_EQ(f.cboDados(5)->ListIndex(), 0);
    EXPECT_EQ(f.cboFluido.ListIndex(), -1);
    EXPECT_EQ(f.cboTramelo.ListIndex(), -1);
    EXPECT_EQ(f.Relatorio->txtCliente, "");
    EXPECT_NE(f.Relatorio->txtData, "Abrindo");
}

} // namespace
} // namespace tramelo::teste
