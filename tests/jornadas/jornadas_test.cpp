// Journeys of a person through the real program: it runs on a display of its
// own and is driven with X events only; what is checked is what a person
// sees or gets: the process alive, the windows there, the files written.
#include "sessao_x.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

namespace tramelo::teste {
namespace {

namespace fs = std::filesystem;


class Jornada : public ::testing::Test {
  protected:
    Jornada() : x(TRAMELO_PROGRAMA, TRAMELO_DICAS) {}

    void TearDown() override {
        if (HasFailure()) {
            const std::string png =
                fs::temp_directory_path() /
                (std::string("jornada-") +
                 ::testing::UnitTest::GetInstance()->current_test_info()->name() + ".png");
            x.Captura(png);
            std::cerr << "screen: " << png << "\nprogram's output:\n" << x.Saida() << "\n";
        }
    }

    // The sample file copied into the session's folder.
    std::string Exemplo(const std::string& nome) {
        const std::string destino = x.Caminho("arquivos/" + nome);
        fs::copy_file(std::string(TRAMELO_EXEMPLOS) + "/" + nome, destino,
                      fs::copy_options::overwrite_existing);
        return destino;
    }

    // Presses a button of the toolbar by its caption.
    void Botao(const std::string& nome) {
        auto b = x.Espera("push button", nome, 5000);
        ASSERT_TRUE(b) << nome;
        x.Clica(b->cx(), b->cy());
    }

    // The close button drawn in the title bar of a child window.
    void FechaPelaBarraDeTitulo(const No& janela) { x.Clica(janela.x + janela.w - 12, janela.y + 11); }

    SessaoX x;
};

// The report closed by its own title bar only hides: "Calcular" brings it back
// with fresh lines, as often as the user likes.
TEST_F(Jornada, RelatorioFechadoPelaBarraDeTituloVoltaComCalcular) {
    ASSERT_TRUE(x.Inicia({Exemplo("agua.trl")}));
    for (int vez = 0; vez < 3; ++vez) {
        Botao("Calcular");
        auto relatorio = x.Espera("frame", "Relatório de Cálculo - agua.trl", 5000);
        ASSERT_TRUE(relatorio) << "vez " << vez;
        FechaPelaBarraDeTitulo(*relatorio);
        ASSERT_TRUE(x.EsperaSumir("frame", "Relatório de Cálculo - agua.trl", 5000)) << "vez " << vez;
        ASSERT_TRUE(x.Vivo()) << "vez " << vez;
    }
    Botao("Calcular");
    EXPECT_TRUE(x.Espera("frame", "Relatório de Cálculo - agua.trl", 5000));
    EXPECT_TRUE(x.Vivo());
}

// The calculator on the flow field takes a division by zero: the box says so
// and the calculator goes on with the operand; "=" then writes the result.
// Opened by a double click, by the toolbar button and by Enter on the field.
TEST_F(Jornada, CalculadoraDivisaoPorZeroSegueEEscreve) {
    ASSERT_TRUE(x.Inicia({Exemplo("agua.trl")}));
    auto campo = x.Espera("text", "Vazão de projeto", 5000);
    ASSERT_TRUE(campo);
    int valor = 50;
    for (const std::string modo : {"duplo clique", "botão", "Enter"}) {
        SCOPED_TRACE(modo);
        if (modo == "duplo clique") {
            x.DuploClique(campo->cx(), campo->cy());
        } else {
            x.Clica(campo->cx(), campo->cy());
            if (modo == "botão")
                Botao("Calculadora");
            else
                x.Tecla("Return");
        }
        const std::string operando = std::to_string(valor) + ",";
        ASSERT_TRUE(x.Espera("label", operando, 5000));
        // Keypad "/", the main keyboard's 0, keypad "+".
        x.Tecla("KP_Divide 0 KP_Add");
        ASSERT_TRUE(x.Espera("label", "Não é possível dividir por zero", 5000));
        x.Tecla("Return");
        ASSERT_TRUE(x.EsperaSumir("label", "Não é possível dividir por zero", 5000));
        ASSERT_TRUE(x.Espera("label", operando, 3000)) << "the calculator went away";
        x.Tecla("2 KP_Enter");
        ASSERT_TRUE(x.EsperaSumir("label", operando, 5000));
        valor += 2;
        auto depois = x.Espera("text", "Vazão de projeto", 3000);
        ASSERT_TRUE(depois);
        EXPECT_EQ(depois->texto, std::to_string(valor));
        ASSERT_TRUE(x.Vivo());
    }
    // The field's text, read back as a person would: copied.
    x.Clica(campo->cx(), campo->cy());
    x.Tecla("ctrl+a ctrl+c");
    EXPECT_EQ(x.AreaDeTransferencia(), "56");
}

} // namespace
} // namespace tramelo::teste
