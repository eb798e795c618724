// The tips window: how the tips file is read and drawn from.
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
    PastaTemporaria pasta;
};

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

} // namespace
} // namespace tramelo::teste
