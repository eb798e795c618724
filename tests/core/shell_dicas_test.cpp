// The options dialog and the tips window: what each box stores, and how the
// tips file is read and drawn from.
#include "pasta_temporaria.h"

#include "plataforma/canal.h"
#include "plataforma/cp1252.h"
#include "shell/barras.h"
#include "shell/dicas.h"
#include "shell/entrada.h"
#include "shell/mdi_menu.h"
#include "shell/opcoes.h"
#include "shell/registro.h"

#include <gtest/gtest.h>

#include <deque>
#include <optional>

namespace tramelo::teste {
namespace {

class ShellOpcoes : public ::testing::Test {
  protected:
    void SetUp() override {
        DefinePastasRegistro(pasta / "usuario", pasta / "dados");
        mdiMenu() = MdiMenu{};
        PastaExecutavel() = pasta.str();
        canal1().Reinicia();
    }
    void TearDown() override {
        mdiMenu() = MdiMenu{};
        PastaExecutavel().clear();
    }
    static std::array<bool, 6> Marcas(const FrmOpcao& f) {
        std::array<bool, 6> m{};
        for (size_t i = 0; i < 6; ++i)
            m[i] = f.chkOpcao[i].Value;
        return m;
    }

    PastaTemporaria pasta;
};

TEST_F(ShellOpcoes, AberturaGravaAsBarrasDaTela) {
    // An earlier apply stored "0"s; the screen has the status bar off.
    for (const char* v : {"Barra0", "Barra1", "Barra2", "Barra3"})
        GravaConfig("Config", v, "0");
    mnuExibirStatusBar_Click();

    FrmOpcao f;
    Form_Load(f);
    EXPECT_EQ(LeConfig("Config", "Barra0"), "True");
    EXPECT_EQ(LeConfig("Config", "Barra1"), "True");
    EXPECT_EQ(LeConfig("Config", "Barra2"), "True");
    EXPECT_EQ(LeConfig("Config", "Barra3"), "False");
    EXPECT_EQ(Marcas(f), (std::array<bool, 6>{true, true, true, false, true, true}));
    EXPECT_FALSE(f.cmdApply.Enabled);
    EXPECT_FALSE(f.OpcaoAlterada);
    EXPECT_FALSE(f.Carregando);
    EXPECT_EQ(f.cmdCancel.Caption, "Cancela&r");

    // Cancel writes nothing more.
    cmdCancel_Click(f);
    EXPECT_FALSE(f.Carregado);
    EXPECT_EQ(LeConfig("Config", "DicasIniciar"), "");
    EXPECT_EQ(LeConfig("System", "Associa"), "");
}

TEST_F(ShellOpcoes, CaixaMarcadaPeloTextoGuardado) {
    struct Caso {
        std::optional<std::string> associa, dicas;
        bool caixa4, caixa5;
    };
    const Caso casos[] = {
        {std::nullopt, std::nullopt, true, true},
        {"0", "0", false, false},
        {"1", "1", true, true},
        {" ", " ", true, true},         // a cleared value reads as one blank
        {"False", "False", true, true}, // only "0" unticks these two
        {"00", "0 ", true, true},
    };
    for (const Caso& c : casos) {
        std::filesystem::remove_all(pasta / "usuario");
        std::filesystem::remove_all(pasta / "dados");
        if (c.associa) GravaConfig("System", "Associa", *c.associa);
        if (c.dicas) GravaConfig("Config", "DicasIniciar", *c.dicas);
        FrmOpcao f;
        Form_Load(f);
        EXPECT_EQ(f.chkOpcao[4].Value, c.caixa4) << c.associa.value_or("(ausente)");
        EXPECT_EQ(f.chkOpcao[5].Value, c.caixa5) << c.dicas.value_or("(ausente)");
    }
}

TEST_F(ShellOpcoes, AplicarEOK) {
    FrmOpcao f;
    Form_Load(f);
    f.chkOpcao[1].Value = false;
    chkOpcao_Click(f, 1);
    f.chkOpcao[5].Value = false;
    chkOpcao_Click(f, 5);
    EXPECT_TRUE(f.cmdApply.Enabled);
    cmdApply_Click(f);
    EXPECT_EQ(LeConfig("Config", "Barra0"), "1");
    EXPECT_EQ(LeConfig("Config", "Barra1"), "0");
    EXPECT_EQ(LeConfig("Config", "Barra2"), "1");
    EXPECT_EQ(LeConfig("Config", "Barra3"), "1");
    EXPECT_EQ(LeConfig("System", "Associa"), "1");
    EXPECT_EQ(LeConfig("Config", "DicasIniciar"), "0");
    EXPECT_EQ(f.cmdCancel.Caption, "Fecha&r");
    EXPECT_FALSE(f.cmdApply.Enabled);

    // A new click after the apply: enabled again, the caption stays.
    f.chkOpcao[4].Value = false;
    chkOpcao_Click(f, 4);
    EXPECT_TRUE(f.cmdApply.Enabled);
    EXPECT_EQ(f.cmdCancel.Caption, "Fecha&r");

    // OK applies, since a click was counted.
    cmdOK_Click(f);
    EXPECT_FALSE(f.Carregado);
    EXPECT_EQ(LeConfig("System", "Associa"), "0");

    // A click while the boxes are filled isn't the user's.
    FrmOpcao g;
    g.Carregando = true;
    chkOpcao_Click(g, 0);
    EXPECT_FALSE(g.OpcaoAlterada);
    EXPECT_FALSE(g.cmdApply.Enabled);
    // OK without a click writes nothing.
    GravaConfig("Config", "DicasIniciar", "x");
    Form_Load(g);
    g.chkOpcao[5].Value = false;
    cmdOK_Click(g);
    EXPECT_EQ(LeConfig("Config", "DicasIniciar"), "x");
}

TEST_F(ShellOpcoes, BarraDeStatusDesmarcadaNuncaSomeDaTela) {
    MdiMenu_Load();
    FrmOpcao f;
    Form_Load(f);
    f.chkOpcao[3].Value = false;
    chkOpcao_Click(f, 3);
    cmdOK_Click(f);
    EXPECT_EQ(LeConfig("Config", "Barra3"), "0");
    EXPECT_TRUE(mdiMenu().sbStatusBar.Visible);

    // "0" isn't "False": the next start shows the bar, and the exit writes
    // the frame's own tick back.
    mdiMenu() = MdiMenu{};
    MdiMenu_Load();
    EXPECT_TRUE(mdiMenu().sbStatusBar.Visible);
    MdiMenu_Unload();
    EXPECT_EQ(LeConfig("Config", "Barra3"), "True");
}

// Draws from a script of numbers in [0, 1).
std::function<double()> Sorteios(std::deque<double> numeros) {
    auto fila = std::make_shared<std::deque<double>>(std::move(numeros));
    return [fila] {
        double r = fila->front();
        fila->pop_front();
        return r;
    };
}

class ShellDicas : public ShellOpcoes {
  protected:
    std::string Arquivo() const { return pasta / "DicaDoDia.txt"; }
    void GravaDicas(const std::string& utf8) { GravaBytes(Arquivo(), ParaCp1252(utf8)); }
};

TEST_F(ShellDicas, SorteioPelaContaDoNumero) {
    GravaDicas("Primeira dica\r\n\r\nTerceira, com acentuação\r\n");
    struct Caso {
        double r;
        int32_t atual;
        const char* texto;
    };
    const Caso casos[] = {
        {0.0, 1, "Primeira dica"},
        {0.3333, 1, "Primeira dica"},
        {0.3334, 2, ""}, // the blank line is a tip too, and empties the label
        {0.6667, 3, "Terceira, com acentuação"},
        {0.9999999, 3, "Terceira, com acentuação"},
    };
    FrmDica f;
    f.Rnd = Sorteios({0.0});
    Form_Load(f, {});
    ASSERT_EQ(f.Dicas.size(), 3u);
    for (const Caso& c : casos) {
        f.lblTipText = "antes";
        f.Rnd = Sorteios({c.r});
        cmdNextTip_Click(f);
        EXPECT_EQ(f.DicaAtual, c.atual) << c.r;
        EXPECT_EQ(f.lblTipText, c.texto) << c.r;
    }

    // The list isn't emptied before a second reading.
    f.Rnd = Sorteios({0.5});
    EXPECT_TRUE(LoadTips(f, Arquivo()));
    EXPECT_EQ(f.Dicas.size(), 6u);
    EXPECT_EQ(f.DicaAtual, 4);
    EXPECT_FALSE(LoadTips(f, ""));
    EXPECT_FALSE(LoadTips(f, pasta / "outro.txt"));
    EXPECT_FALSE(canal1().Ocupado());
}

TEST_F(ShellDicas, UmaLinhaVazioOuAusente) {
    const std::string ausente = "Este arquivo 'DicaDoDia.txt' não foi encontrado? \n\n"
                                "Verifique se o arquivo não foi movido ou excluído, e "
                                "reinsta-le o Tramelo";
    struct Caso {
        std::optional<std::string> arquivo;
        size_t dicas;
        const char* texto; // after the load and after "&Nova Dica" twice
    };
    const Caso casos[] = {
        {"Só esta.", 1, "Só esta."},
        {"", 0, ""}, // read, but nothing to show: the label as at design
        {std::nullopt, 0, ausente.c_str()},
    };
    for (const Caso& c : casos) {
        std::filesystem::remove(Arquivo());
        if (c.arquivo) GravaDicas(*c.arquivo);
        FrmDica f;
        f.Rnd = Sorteios({0.0, 0.5, 0.99});
        Form_Load(f, {});
        EXPECT_EQ(f.Dicas.size(), c.dicas);
        EXPECT_EQ(f.lblTipText, c.texto);
        cmdNextTip_Click(f);
        cmdNextTip_Click(f);
        EXPECT_EQ(f.lblTipText, c.texto);
        EXPECT_EQ(f.DicaAtual, 1); // with no tips r x 0 + 1 is still 1
    }
}

TEST_F(ShellDicas, CaixaMostrarDicasAoIniciar) {
    FrmDica f;
    f.Rnd = Sorteios({});
    Form_Load(f, {});
    EXPECT_TRUE(f.chkDicasIniciar.Value); // absent: ticked
    EXPECT_EQ(LeConfig("Config", "DicasIniciar"), "");

    f.chkDicasIniciar.Value = false;
    chkDicasIniciar_Click(f);
    EXPECT_EQ(LeConfig("Config", "DicasIniciar"), "0");
    FrmOpcao o;
    Form_Load(o);
    EXPECT_FALSE(o.chkOpcao[5].Value);
    FrmDica g;
    g.Rnd = Sorteios({});
    Form_Load(g, {});
    EXPECT_FALSE(g.chkDicasIniciar.Value);
}

TEST_F(ShellDicas, CentradaSobreAJanelaPrincipal) {
    // Frame 9000 x 6000 twips; the form 6000 x 3600 lies 4 px right of and
    // 50 px below the frame's edge: (9000 - 6000 - 15 x 4) / 2 = 1470 and
    // (6000 - 3600 - 15 x 50) / 2 = 825.
    mdiMenu().Width = 9000;
    mdiMenu().Height = 6000;
    FrmDica f;
    f.Rnd = Sorteios({});
    LugarDica lugar;
    lugar.menu = {100, 80, 700, 480};
    lugar.dica = {104, 130, 504, 370};
    Form_Load(f, lugar);
    EXPECT_EQ(f.Left, 1470);
    EXPECT_EQ(f.Top, 825);
}

TEST(ShellDicasDoPrograma, ArquivoQueAcompanhaOPrograma) {
    const std::string arquivo = std::string(TRAMELO_EXEMPLOS) + "/../DicaDoDia.txt";
    const std::string bytes = LeBytes(arquivo);
    ASSERT_FALSE(bytes.empty());
    // Windows-1252 with CR LF: every LF follows a CR, and no byte is UTF-8's.
    for (size_t i = 0; i < bytes.size(); ++i) {
        if (bytes[i] == '\n') {
            ASSERT_TRUE(i > 0 && bytes[i - 1] == '\r') << i;
        }
    }
    EXPECT_EQ(bytes.find("\xc3"), std::string::npos);

    FrmDica f;
    f.Rnd = [] { return 0.0; };
    ASSERT_TRUE(LoadTips(f, arquivo));
    EXPECT_GE(f.Dicas.size(), 10u);
    for (const std::string& d : f.Dicas) {
        EXPECT_GE(d.size(), 20u);
        EXPECT_EQ(d.find('\r'), std::string::npos);
    }
    EXPECT_NE(f.Dicas[0].find("cálculo"), std::string::npos);
}

} // namespace
} // namespace tramelo::teste
