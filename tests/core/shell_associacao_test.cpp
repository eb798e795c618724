// The association of ".trl" files: the store's four entries, the desktop
// entry and MIME type beside them, the silent take-over at each start.
#include "caixas_roteiro.h"
#include "pasta_temporaria.h"

#include "shell/associacao.h"
#include "shell/entrada.h"
#include "base/mod_base.h"
#include "shell/registro.h"
#include "pedidos_roteiro.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <optional>

namespace tramelo::teste {
namespace {

const char* const ChaveComando = "Software\\Classes\\Tramelo.File\\Shell\\Open\\Command";

class ShellAssociacao : public ::testing::Test {
  protected:
    void SetUp() override {
        setenv("XDG_DATA_HOME", (pasta / "share").c_str(), 1);
        DefinePastasRegistro(pasta / "usuario", pasta / "dados");
        PastaExecutavel() = "/opt/tramelo/bin";
        ambiente().sistema = &sistema;
    }
    void TearDown() override {
        ambiente().sistema = nullptr;
        PastaExecutavel().clear();
        unsetenv("XDG_DATA_HOME");
    }
    std::string Desktop() const { return pasta / "share/applications/Tramelo.desktop"; }
    std::string Mime() const { return pasta / "share/mime/packages/tramelo.xml"; }

    PastaTemporaria pasta;
    CaixasRoteiro caixas;
    SistemaRoteiroExecuta sistema;
};

TEST_F(ShellAssociacao, EntradasGravadas) {
    EXPECT_TRUE(AssociaArquivos());
    EXPECT_EQ(LeChave(HKEY_CLASSES_ROOT, ".trl", ""), "Tramelo.File");
    EXPECT_EQ(LeChave(HKEY_LOCAL_MACHINE, "Software\\Classes\\Tramelo.File", ""),
              "Arquivo de Tramelo");
    EXPECT_EQ(LeChave(HKEY_LOCAL_MACHINE, "Software\\Classes\\Tramelo.File\\DefaultIcon", ""),
              "/opt/tramelo/bin/Tramelo,1");
    EXPECT_EQ(LeChave(HKEY_LOCAL_MACHINE, ChaveComando, ""), "/opt/tramelo/bin/Tramelo %1");

    const std::string desktop = LeBytes(Desktop());
    EXPECT_NE(desktop.find("\nExec=/opt/tramelo/bin/Tramelo %f\n"), std::string::npos);
    EXPECT_NE(desktop.find("\nMimeType=application/x-tramelo;\n"), std::string::npos);
    const std::string mime = LeBytes(Mime());
    EXPECT_NE(mime.find("<mime-type type=\"application/x-tramelo\">"), std::string::npos);
    EXPECT_NE(mime.find("<glob pattern=\"*.trl\"/>"), std::string::npos);

    // Without the desktop's runner the cache tools are looked for along PATH,
    // past a folder of the same name, and run to their end.
    sistema.executa = false;
    std::filesystem::create_directories(pasta / "d/update-mime-database");
    GravaBytes(pasta / "update-mime-database", "#!/bin/sh\necho \"$@\" > \"$0.txt\"\n");
    std::filesystem::permissions(pasta / "update-mime-database", std::filesystem::perms::owner_all);
    const std::string path = std::getenv("PATH");
    setenv("PATH", (pasta / "d:" + pasta.str()).c_str(), 1);
    AssociaArquivos();
    setenv("PATH", path.c_str(), 1);
    EXPECT_EQ(LeBytes(pasta / "update-mime-database.txt"), pasta / "share/mime\n");

    // A store that can't be written: the result is the last write's, in silence.
    DefinePastasRegistro(pasta / "usuario", "/proc/tramelo-sem-acesso");
    EXPECT_FALSE(AssociaArquivos());
    EXPECT_TRUE(caixas.mostradas.empty());
}

TEST_F(ShellAssociacao, VerificacaoNaPartida) {
    struct Caso {
        const char* nome;
        std::optional<std::string> extensao; // ".trl"'s class
        std::optional<std::string> comando;
        std::optional<std::string> associa;
        bool reescreve;
    };
    const Caso casos[] = {
        {"sem chave", std::nullopt, std::nullopt, std::nullopt, true},
        {"de outro programa", "OutroPrograma.Documento", "/usr/bin/outro %1", "0", true},
        {"sem classe", "", std::nullopt, std::nullopt, true},
        {"minúsculas", "tramelo.file", std::nullopt, std::nullopt, true},
        {"sem comando", "Tramelo.File", std::nullopt, std::nullopt, false},
        // The comparison never sees the stored command: nothing written or asked.
        {"outra pasta", "Tramelo.File", "/home/ana/velho/Tramelo %1", std::nullopt, false},
        {"em ordem", "Tramelo.File", "/opt/tramelo/bin/Tramelo %1", "1", false},
    };
    for (const Caso& c : casos) {
        SCOPED_TRACE(c.nome);
        std::filesystem::remove_all(pasta / "dados");
        std::filesystem::remove_all(pasta / "share");
        sistema.executados.clear();
        if (c.extensao) GravaChave(HKEY_CLASSES_ROOT, ".trl", "", *c.extensao);
        if (c.comando) GravaChave(HKEY_LOCAL_MACHINE, ChaveComando, "", *c.comando);
        if (c.associa) GravaConfig("System", "Associa", *c.associa);

        VerificaAssociacao();

        EXPECT_TRUE(caixas.mostradas.empty());
        EXPECT_EQ(std::filesystem::exists(Desktop()), c.reescreve);
        EXPECT_EQ(sistema.executados.size(), c.reescreve ? 2u : 0u);
        EXPECT_EQ(LeChave(HKEY_CLASSES_ROOT, ".trl", ""),
                  c.reescreve ? std::string("Tramelo.File") : c.extensao.value_or(""));
        EXPECT_EQ(LeChave(HKEY_LOCAL_MACHINE, ChaveComando, ""),
                  c.reescreve ? std::string("/opt/tramelo/bin/Tramelo %1")
                              : c.comando.value_or(""));
        EXPECT_EQ(LeConfig("System", "Associa"), c.associa.value_or(""));
    }
}

TEST(ShellAssociacaoExec, CaminhoNaLinhaExec) {
    struct Caso {
        const char* caminho;
        const char* exec;
    };
    const Caso casos[] = {
        {"/opt/tramelo/bin/Tramelo", "/opt/tramelo/bin/Tramelo"},
        {"/home/ana/meus programas/Tramelo", "\"/home/ana/meus programas/Tramelo\""},
        {"/home/ana/R$/Tramelo", "\"/home/ana/R\\\\$/Tramelo\""},
        {"/home/ana/100%/Tramelo", "/home/ana/100%%/Tramelo"},
        {"/home/ana/a\"b/Tramelo", "\"/home/ana/a\\\\\"b/Tramelo\""},
        {"/home/ana/a\\b/Tramelo", "\"/home/ana/a\\\\\\\\b/Tramelo\""},
        {"/home/ana/cálculo/Tramelo", "/home/ana/cálculo/Tramelo"},
    };
    for (const Caso& c : casos)
        EXPECT_EQ(ArgumentoExec(c.caminho), c.exec) << c.caminho;
}

} // namespace
} // namespace tramelo::teste
