// Where the program finds what it ships and keeps what it writes, run from a
// build folder and installed under /usr or a user prefix.
#include "pasta_temporaria.h"

#include "shell/associacao.h"
#include "shell/dicas.h"
#include "shell/entrada.h"
#include "shell/instalacao.h"
#include "shell/mod_base.h"
#include "shell/registro.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace tramelo::teste {
namespace {

TEST(ShellInstalacao, PastasDoProgramaInstaladoEDaCompilacao) {
    struct Caso {
        const char* executavel;  // folder of the executable, under the test's root
        const char* dadosPacote; // the installed data folder made, or null
        bool dicasAoLado;        // a tips file beside the executable too
        const char* pastaDados;  // expected data folder ("XDG" for $XDG_DATA_HOME/Tramelo)
        const char* dicas;       // expected tips file
        bool entradaDoUsuario;   // the association writes the user's desktop entry
    };
    const Caso casos[] = {
        {"build", nullptr, true, "build", "build/DicaDoDia.txt", true},
        {"usr/bin", "usr/share/tramelo", false, "XDG", "usr/share/tramelo/DicaDoDia.txt", false},
        {"home/.local/bin/", "home/.local/share/tramelo", true, "XDG",
         "home/.local/share/tramelo/DicaDoDia.txt", false},
        // A bin folder with nothing installed beside it is a developer's folder.
        {"opt/t/bin", nullptr, true, "opt/t/bin", "opt/t/bin/DicaDoDia.txt", true},
    };
    for (const Caso& c : casos) {
        SCOPED_TRACE(c.executavel);
        PastaTemporaria raiz;
        setenv("XDG_DATA_HOME", (raiz / "xdg").c_str(), 1);
        DefinePastasRegistro(raiz / "config", raiz / "xdg/Tramelo");
        ExecutaFerramenta = [](const std::string&, const std::vector<std::string>&) {};
        std::filesystem::create_directories(raiz / c.executavel);
        if (c.dicasAoLado) GravaBytes(raiz / c.executavel + "/DicaDoDia.txt", "ao lado\r\n");
        if (c.dadosPacote) {
            std::filesystem::create_directories(raiz / c.dadosPacote);
            GravaBytes(raiz / c.dadosPacote + "/DicaDoDia.txt", "instalada\r\n");
        }
        const std::string exe = std::filesystem::path(raiz / c.executavel).lexically_normal().string();
        PastaExecutavel() = exe;

        const std::string esperada = std::string(c.pastaDados) == "XDG" ? raiz / "xdg/Tramelo" : raiz / c.pastaDados;
        EXPECT_EQ(std::filesystem::path(PastaDadosPrograma(exe)).lexically_normal(),
                  std::filesystem::path(esperada).lexically_normal());
        EXPECT_EQ(std::filesystem::path(ArquivoDoPrograma(exe, ArquivoDicas)).lexically_normal(),
                  std::filesystem::path(raiz / c.dicas).lexically_normal());
        AssociaArquivos();
        EXPECT_EQ(std::filesystem::exists(raiz / "xdg/applications/Tramelo.desktop"), c.entradaDoUsuario);

        ExecutaFerramenta = nullptr;
        PastaExecutavel().clear();
        unsetenv("XDG_DATA_HOME");
    }
}

} // namespace
} // namespace tramelo::teste
