// The frame: its load and unload with the settings, and its Atualiza.
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

TEST_F(ShellMdiMenu, BandasEImprimirSemRelatorio) {
    MdiMenu& m = mdiMenu();
    mnuExibirBarraPadrao_Click(); // one band left: the coolbar stays
    EXPECT_TRUE(m.cobBarra.Visible);
    EXPECT_FALSE(m.cobBarra.Bands(1).Visible || m.mnuExibirBarraPadrao.Checked);
    EXPECT_TRUE(m.cobBarra.Bands(2).Visible);
    mnuExibirBarraCalculo_Click(); // the last one: the coolbar goes
    EXPECT_FALSE(m.cobBarra.Visible || m.mnuExibirBarraCalculo.Checked);

    // "Imprimir" on either bar with no report active does nothing.
    int impressos = 0;
    ImprimeRelatorio = [&](FrmRelatorio&) { ++impressos; };
    tbPadrao_ButtonClick("Imprimir");
    tbCalculo_ButtonClick("Imprimir");
    ImprimeRelatorio = nullptr;
    EXPECT_EQ(impressos, 0);
}

// Atualiza resets the frame's caption and refreshes the recent files when it can.
TEST(ShellMdiMenuAtualiza, LegendaERecentes) {
    MdiMenu& m = mdiMenu();
    m = MdiMenu{};
    m.Caption = "Tramelo - [Cálculo 1]";
    int chamadas = 0;
    AtualizaMRUDoMenu = [&](MdiMenu& quem) {
        EXPECT_EQ(&quem, &mdiMenu());
        ++chamadas;
    };
    Atualiza(m);
    AtualizaMRUDoMenu = nullptr;
    Atualiza(m);
    EXPECT_EQ(m.Caption, "Tramelo");
    EXPECT_EQ(chamadas, 1);
}

} // namespace
} // namespace tramelo::teste
