// The program's entry: the command line, and a second start handing its
// line over to the running instance and ending without a trace.
#include "pasta_temporaria.h"

#include "plataforma/ambiente.h"
#include "plataforma/falha.h"
#include "shell/abertura.h"
#include "shell/entrada.h"
#include "shell/mod_base.h"
#include "shell/registro.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <optional>
#include <vector>

namespace tramelo::teste {
namespace {

TEST(ShellEntrada, LinhaDeComandoParaArquivoInicial) {
    struct Caso {
        const char* linha;
        std::optional<std::string> arquivo; // none: failure 5
    };
    const Caso casos[] = {
        {"", ""},
        {"/A /home/ana/Saves/a.trl", "/home/ana/Saves/a.trl"},
        {"/C /home/ana/Saves/a.trl", "/home/ana/Saves/a.trl"},
        {"/A /home/ana/meus cálculos/placa 1.trl", "/home/ana/meus cálculos/placa 1.trl"},
        {"/a /home/ana/a.trl", "/a /home/ana/a.trl"}, // the test is case-sensitive
        {"/c x.trl", "/c x.trl"},
        {"/Ax.trl", ".trl"},                         // any separator character is dropped
        {"/A \"/tmp/a b.trl\"", "\"/tmp/a b.trl\""}, // quotes stay
        {"/tmp/a b.trl", "/tmp/a b.trl"},
        {"/A ", ""},
        {"/Aé/x.trl", "/x.trl"}, // characters, not bytes
        {"/A", std::nullopt},
        {"/C", std::nullopt},
        {"/P /tmp/a.trl", "/P /tmp/a.trl"}, // only the second start's command knows "/P"
    };
    for (const Caso& c : casos) {
        SCOPED_TRACE(c.linha);
        LinhaComando() = c.linha;
        modBase().ArquivoInicial = "antes";
        if (c.arquivo) {
            LeLinhaComando();
            EXPECT_EQ(modBase().ArquivoInicial, *c.arquivo);
        } else {
            try {
                LeLinhaComando();
                ADD_FAILURE() << "no failure";
            } catch (const Falha& f) {
                EXPECT_EQ(f.numero(), 5);
            }
        }
    }
    LinhaComando().clear();
    modBase().ArquivoInicial.clear();
}

} // namespace
} // namespace tramelo::teste
