// The frame's bars: keyed buttons, bands, status bar, and the frame's Atualiza.
#include "shell/barras.h"

#include <gtest/gtest.h>

#include <string>

namespace tramelo::teste {
namespace {

TEST(ShellBarras, BotoesNoDesenho) {
    struct Caso {
        BarraFerramentas MdiMenu::*barra;
        const char* key;
        const char* dica;
        int imagem;
        bool habilitado;
    };
    const Caso casos[] = {
        {&MdiMenu::tbPadrao, "Novo", "Novo calculo", 1, true},
        {&MdiMenu::tbPadrao, "Abrir", "Abrir calculo", 2, true},
        {&MdiMenu::tbPadrao, "Salvar", "Salvar calculo", 3, false},
        {&MdiMenu::tbPadrao, "Sair", "Sair do Tramelo", 4, true},
        {&MdiMenu::tbCalculo, "Calcular", "Calcular", 1, false},
        {&MdiMenu::tbCalculo, "Calculadora", "Exibir a calculadora", 2, false},
        {&MdiMenu::tbCalculo, "Imprimir", "Imprimir relatório", 3, false},
        {&MdiMenu::tbCalculo, "Exportar", "Exportar relatório", 4, false},
    };
    MdiMenu m;
    for (const Caso& c : casos) {
        BotaoBarra* b = (m.*c.barra).Botao(c.key);
        ASSERT_NE(b, nullptr) << c.key;
        EXPECT_EQ(b->Caption, c.key);
        EXPECT_EQ(b->Tag, c.key);
        EXPECT_EQ(b->ToolTipText, c.dica);
        EXPECT_EQ(b->Image, c.imagem) << c.key;
        EXPECT_EQ(b->Enabled, c.habilitado) << c.key;
    }
    // A separator before "Sair" and before "Imprimir".
    ASSERT_EQ(m.tbPadrao.Buttons.size(), 5u);
    EXPECT_TRUE(m.tbPadrao.Buttons[3].separador);
    ASSERT_EQ(m.tbCalculo.Buttons.size(), 5u);
    EXPECT_TRUE(m.tbCalculo.Buttons[2].separador);

    EXPECT_EQ(m.tbPadrao.Botao("Calcular"), nullptr);
    EXPECT_EQ(m.tbCalculo.Botao(""), nullptr);
    m.tbPadrao.Habilita("Imprimir", true); // not on this bar: passed over
    m.tbPadrao.Habilita("Salvar", true);
    EXPECT_TRUE(m.tbPadrao.Botao("Salvar")->Enabled);
}

TEST(ShellBarras, EtiquetasVoltamDaTag) {
    MdiMenu m;
    m.tbCalculo.MostraEtiquetas(false);
    for (const BotaoBarra& b : m.tbCalculo.Buttons)
        EXPECT_EQ(b.Caption, "");
    EXPECT_EQ(m.tbCalculo.Botao("Calculadora")->Tag, "Calculadora");
    m.tbCalculo.MostraEtiquetas(true);
    EXPECT_EQ(m.tbCalculo.Botao("Calculadora")->Caption, "Calculadora");
    EXPECT_EQ(m.tbPadrao.Botao("Novo")->Caption, "Novo");
}

TEST(ShellBarras, AtualizaDoMenu) {
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
