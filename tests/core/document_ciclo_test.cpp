// The life of calculation windows: numbering, names from folder and caption,
// the question on close, and what a cancel keeps.
#include "caixas_roteiro.h"
#include "calculo_pronto.h"
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

TEST_F(DocumentCiclo, AbrirCanceladoEFecharTodos) {
    EXPECT_EQ(AbreCalculo(true, std::string()), nullptr); // dialog cancelled: no message
    EXPECT_TRUE(caixas.mostradas.empty());
    AbreCalculo(false, std::string());
    AbreCalculo(false, std::string());
    EXPECT_TRUE(DescarregaTodosCalculos()); // nothing to save: all go
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

// The report's header fields flow back into the calculation on activation.
TEST(DocumentCicloAtivacao, CabecalhoDoRelatorioVolta) {
    auto f = Escolhido();
    f->DefineAlterado(false);
    f->Relatorio->txtOS = "OS-7";
    Form_Activate(*f); // "Abrindo": never initialised
    EXPECT_FALSE(f->Alterado());
    EXPECT_EQ(f->TextoOS, "");

    f->Relatorio->txtData = "10:00 - 01/02/2003";
    f->Relatorio->txtCliente = "Quillon";
    Form_Activate(*f);
    EXPECT_TRUE(f->Alterado());
    EXPECT_EQ(f->TextoData, "10:00 - 01/02/2003");
    EXPECT_EQ(f->TextoOS, "OS-7");
    EXPECT_EQ(f->TextoCliente, "Quillon");

    f->DefineAlterado(false);
    Form_Activate(*f); // all three alike
    EXPECT_FALSE(f->Alterado());
}

} // namespace
} // namespace tramelo::teste
