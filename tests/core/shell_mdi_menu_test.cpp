// The frame's toggles, its load and unload with the settings, close-all.
#include "caixas_roteiro.h"
#include "pasta_temporaria.h"

#include "document/ciclo.h"
#include "document/frm_calc_tramelo.h"
#include "document/janelas.h"
#include "shell/barras.h"
#include "shell/mdi_menu.h"
#include "shell/mod_base.h"
#include "shell/recentes.h"
#include "shell/registro.h"
#include "sizing/catalogo.h"

#include <gtest/gtest.h>

namespace tramelo::teste {
namespace {

class ShellMdiMenu : public ::testing::Test {
protected:
    void SetUp() override {
        CarregaCatalogo();
        DefinePastas(pasta.str());
        DefinePastasRegistro(pasta / "usuario", pasta.str());
        mdiMenu() = MdiMenu{};
        filhoAtivo() = {};
        Calculos().clear();
        FilesMRU() = {};
    }
    void TearDown() override { Calculos().clear(); }
    PastaTemporaria pasta;
    CaixasRoteiro caixas;
};

TEST_F(ShellMdiMenu, BandasEEtiquetas) {
    MdiMenu& m = mdiMenu();
    mnuExibirBarraPadrao_Click(); // one band left: the coolbar stays
    EXPECT_TRUE(m.cobBarra.Visible);
    EXPECT_FALSE(m.cobBarra.Bands(1).Visible);
    EXPECT_FALSE(m.mnuExibirBarraPadrao.Checked);
    mnuExibirBarraCalculo_Click(); // the last one: the coolbar goes
    EXPECT_FALSE(m.cobBarra.Visible);
    mnuExibirBarraPadrao_Click(); // back with only that band
    EXPECT_TRUE(m.cobBarra.Visible);
    EXPECT_TRUE(m.cobBarra.Bands(1).Visible);
    EXPECT_FALSE(m.cobBarra.Bands(2).Visible);

    // Labels off: no words, and the bands take 1600 and 1500 twips.
    FrmCalcTramelo& f = *AbreCalculo(false, std::string());
    mnuExibirEtiqueta_Click();
    EXPECT_EQ(m.tbPadrao.Botao("Novo")->Caption, "");
    EXPECT_EQ(m.tbCalculo.Botao("Calcular")->Caption, "");
    EXPECT_EQ(m.cobBarra.Bands(1).Width, 1600);
    EXPECT_EQ(m.cobBarra.Bands(2).MinWidth, 1500);
    EXPECT_FALSE(f.mnuExibirEtiqueta.Checked); // the active child's copy follows
    mnuExibirEtiqueta_Click();
    EXPECT_EQ(m.tbPadrao.Botao("Novo")->Caption, "Novo");
    mnuExibirStatusBar_Click();
    EXPECT_FALSE(m.sbStatusBar.Visible);
    EXPECT_FALSE(f.mnuExibirStatusBar.Checked);
}

TEST_F(ShellMdiMenu, CargaEDescargaComAsConfiguracoes) {
    GravaConfig("Config", "Barra1", "False");
    GravaConfig("Config", "Barra2", "false"); // only the exact text hides
    GravaConfig("Config\\Menu", "MainLeft", "0");
    GravaConfig("Config\\Menu", "MainTop", "900");
    GravaConfig("Config\\Menu", "MainWidth", "12000");
    GravaConfig("FilesMRU", " 1", "/x/a.trl");
    MdiMenu_Load();
    MdiMenu& m = mdiMenu();
    EXPECT_FALSE(m.cobBarra.Bands(2).Visible);
    EXPECT_TRUE(m.mnuExibirEtiqueta.Checked);
    EXPECT_EQ(m.Left, 60); // 0 isn't restored
    EXPECT_EQ(m.Top, 900);
    EXPECT_EQ(m.Width, 12000);
    EXPECT_EQ(FilesMRU()[0], "/x/a.trl");

    m.WindowState = 2;
    m.Left = 1500;
    MdiMenu_Unload();
    EXPECT_EQ(LeConfig("Config", "Barra1"), "False");
    EXPECT_EQ(LeConfig("Config", "Barra0"), "True");
    EXPECT_EQ(LeConfig("Config\\Menu", "MainWindowsState"), "2");
    EXPECT_EQ(LeConfig("Config\\Menu", "MainLeft"), "1500");
}

TEST_F(ShellMdiMenu, FecharTodosPerguntaAteFechar) {
    FrmCalcTramelo& a = *AbreCalculo(false, std::string());
    AbreCalculo(false, std::string());
    a.cboTramelo.DefineListIndex(0);
    caixas.textos = {""};
    a.cboFluido.DefineListIndex(0);
    a.cboTomada.DefineListIndex(0);
    caixas.mostradas.clear();
    // Cancel once: asked again, until the answer lets it go.
    caixas.respostas = {vbCancel, vbNo};
    mnuArquivoFecharTodos_Click();
    EXPECT_TRUE(Calculos().empty());
    EXPECT_EQ(caixas.mostradas.size(), 2u);
    EXPECT_TRUE(mdiMenu().Enabled);

    mnuAjudaConteudo_Click();
    EXPECT_EQ(caixas.mostradas.back().texto,
              "Não foi possivel exibir o arquivo da ajuda. Não há nenhum arquivo de Ajuda associado à "
              "este projeto.");
    EXPECT_EQ(caixas.mostradas.back().titulo, "Tramelo");
}

} // namespace
} // namespace tramelo::teste
