// Typing into the rows: the key filter, the material rule and the scrolling
// that follows the focus.
#include "caixas_roteiro.h"
#include "calculo_pronto.h"
#include "document/campos.h"
#include "document/entrada.h"
#include "document/frm_calc_tramelo.h"
#include "document/janela.h"
#include "shell/barras.h"
#include "sizing/catalogo.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace tramelo::teste {
namespace {

// Types a text key by key into a row, as the field would take it.
void Digita(FrmCalcTramelo& f, int i, const std::string& teclas) {
    for (unsigned char c : teclas) {
        int passa = txtDados_KeyPress(f, i, c);
        if (passa == 8) {
            std::string t = f.txtDados(i)->Text();
            if (!t.empty()) t.pop_back();
            f.txtDados(i)->DefineTexto(t);
        } else if (passa != 0) {
            f.txtDados(i)->DefineTexto(f.txtDados(i)->Text() + static_cast<char>(passa));
        }
    }
}

TEST(DocumentEntrada, FiltroDeTeclas) {
    struct Caso {
        std::string teclas, texto;
    };
    const Caso casos[] = {
        {"1.5", "1,5"},  {"a", ""},           {"/", "/"},
        {"12\r", "12"},  {"-3,2e5", "-3,25"}, {"*+,-./09", "*+,-,/09"},
        {"12\b3", "13"}, {" :)(", ""},
    };
    auto f = Escolhido(0);
    for (const Caso& c : casos) {
        f->txtDados(4)->DefineTexto("");
        Digita(*f, 4, c.teclas);
        EXPECT_EQ(f->txtDados(4)->Text(), c.texto) << c.teclas;
    }
    // Pasted or set by code, anything goes.
    f->txtDados(4)->DefineTexto("1.2.3 abc");
    EXPECT_EQ(f->txtDados(4)->Text(), "1.2.3 abc");
}

TEST(DocumentEntrada, FatorDoAcoInox) {
    // (T - 20) * 3,4E-05 + 1, for stainless steel only.
    struct Caso {
        const char* temperatura;
        const char* fator;
    };
    const Caso casos[] = {{"20", "1"},       {"35", "1,00051"}, {"120", "1,0034"},
                          {"-30", "0,9983"}, {"", ""},          {"abc", ""}};
    auto f = Escolhido(1);
    for (const Caso& c : casos) {
        f->txtDados(29)->DefineTexto("velho");
        f->txtDados(9)->DefineTexto(c.temperatura);
        EXPECT_EQ(f->txtDados(29)->Text(), c.fator) << c.temperatura;
    }
}

TEST(DocumentEntrada, MudancasMarcamAlteracao) {
    auto f = Escolhido(0);
    f->DefineAlterado(false);
    f->txtDados(28)->DefineTexto("0,8");
    EXPECT_TRUE(f->Alterado());
    f->DefineAlterado(false);
    f->txtTag.DefineTexto("FT-1");
    EXPECT_TRUE(f->Alterado());
}

} // namespace
} // namespace tramelo::teste
