// The settings store and the recent files.
#include "pasta_temporaria.h"

#include "shell/registro.h"
#include "shell/recentes.h"

#include <gtest/gtest.h>

namespace tramelo::teste {
namespace {

class ShellRegistro : public ::testing::Test {
protected:
    void SetUp() override { DefinePastasRegistro(pasta / "usuario", pasta / "dados"); }
    PastaTemporaria pasta;
};

TEST_F(ShellRegistro, RegrasDoArmazenamento) {
    EXPECT_EQ(LeConfig("Config", "Barra0"), ""); // nothing yet
    GravaConfig("Config\\Menu", "MainLeft", "1200");
    EXPECT_EQ(LeConfig("Config\\Menu", "MainLeft"), "1200");
    EXPECT_EQ(LeConfig("config\\menu", "mainleft"), ""); // another root: the prefix is case-sensitive
    EXPECT_EQ(LeChave(HKEY_CURRENT_USER, "SOFTWARE\\quillon\\Tramelo\\2.0\\Config\\Menu", "MAINLEFT"),
              "1200"); // keys and names compare without case
    GravaConfig("Config", "Vazio", "");
    EXPECT_EQ(LeConfig("Config", "Vazio"), " ");

    // "Configuration" is the user's; "config" and "FilesMRU" the machine's.
    GravaConfig("Configuration", "a", "u");
    GravaConfig("config", "a", "m");
    GravaConfig("FilesMRU", " 1", "/tmp/a.trl");
    EXPECT_EQ(LeChave(HKEY_CURRENT_USER, ChaveDaSecao("Configuration"), "a"), "u");
    EXPECT_EQ(LeChave(HKEY_LOCAL_MACHINE, ChaveDaSecao("config"), "a"), "m");
    EXPECT_EQ(LeChave(HKEY_LOCAL_MACHINE, ChaveDaSecao("FilesMRU"), " 1"), "/tmp/a.trl");
    EXPECT_EQ(ChaveDaSecao("Config"), "Software\\Quillon\\Tramelo\\2.0\\Config");
    EXPECT_EQ(LeChave(HKEY_LOCAL_MACHINE, "Software\\Quillon\\Tramelo\\3.0\\FilesMRU", " 1"), "");

    // The read buffer holds 1023 characters and the terminating null.
    GravaConfig("Config", "Longo", std::string(1023, 'x'));
    EXPECT_EQ(LeConfig("Config", "Longo").size(), 1023u);
    GravaConfig("Config", "Longo", std::string(1024, 'x'));
    EXPECT_EQ(LeConfig("Config", "Longo"), "");

    // Texts in the 8-bit code page, accents kept.
    GravaConfig("Config", "Nome", "Água à vista");
    EXPECT_EQ(LeConfig("Config", "Nome"), "Água à vista");
}

TEST_F(ShellRegistro, NumerosDe32BitsPelosBytes) {
    const std::string chave = ChaveDaSecao("System");
    struct Caso {
        std::string bytes;
        const char* texto;
    };
    const Caso casos[] = {
        {std::string("\x01\x00\x00\x00", 4), "1"},
        {std::string("\xff\x00\x00\x00", 4), "255"},
        {std::string("\x02\x01\x00\x00", 4), "18"}, // 0x102: the low byte's zero is lost
        {std::string("\x00\x01\x00\x00", 4), "0"},  // a zero byte cuts the number
        {std::string("\x10\x20\x00\x00", 4), "8208"},
    };
    for (const Caso& c : casos) {
        GravaChaveBruta(HKEY_LOCAL_MACHINE, chave, "n", REG_DWORD, c.bytes);
        EXPECT_EQ(LeChave(HKEY_LOCAL_MACHINE, chave, "n"), c.texto);
    }
    GravaChaveBruta(HKEY_LOCAL_MACHINE, chave, "b", REG_BINARY, "abc");
    EXPECT_EQ(LeChave(HKEY_LOCAL_MACHINE, chave, "b"), "");
}

TEST_F(ShellRegistro, ArquivoDanificadoLeVazioENaoPara) {
    GravaConfig("Config", "Barra0", "False");
    GravaBytes(pasta / "usuario/registro-usuario.json", "{ isto não é json");
    EXPECT_EQ(LeConfig("Config", "Barra0"), "");
    GravaConfig("Config", "Barra0", "True"); // writes a fresh root
    EXPECT_EQ(LeConfig("Config", "Barra0"), "True");
    // A folder that can't be made: the write is lost in silence.
    GravaBytes(pasta / "arquivo", "x");
    DefinePastasRegistro(pasta / "arquivo/sub", pasta / "arquivo/sub");
    GravaConfig("Config", "Barra0", "True");
    EXPECT_EQ(LeConfig("Config", "Barra0"), "");
}

TEST(ShellRecentes, AdicionaMRU) {
    auto& f = FilesMRU();
    f = {};
    AdicionaMRU("/a/1.trl");
    AdicionaMRU("/A/1.TRL"); // the same, in other case: no change
    EXPECT_EQ(f[0], "/a/1.trl");
    EXPECT_EQ(f[1], "");
    AdicionaMRU("/a/2.trl");
    AdicionaMRU("/a/3.trl");
    AdicionaMRU("/a/4.trl");
    EXPECT_EQ(f, (std::array<std::string, 4>{"/a/4.trl", "/a/3.trl", "/a/2.trl", "/a/1.trl"}));
    AdicionaMRU("/a/2.trl"); // place 3 to the top; place 4 stays
    EXPECT_EQ(f, (std::array<std::string, 4>{"/a/2.trl", "/a/4.trl", "/a/3.trl", "/a/1.trl"}));
    AdicionaMRU("/A/4.TRL"); // place 2, new spelling
    EXPECT_EQ(f, (std::array<std::string, 4>{"/A/4.TRL", "/a/2.trl", "/a/3.trl", "/a/1.trl"}));
    AdicionaMRU("/a/5.trl"); // a fifth: place 4 goes
    EXPECT_EQ(f, (std::array<std::string, 4>{"/a/5.trl", "/A/4.TRL", "/a/2.trl", "/a/3.trl"}));
    AdicionaMRU("");
    EXPECT_EQ(f[0], "/a/5.trl");
}

TEST(ShellRecentes, MenuEEncurtamento) {
    struct Caso {
        const char* caminho;
        const char* legenda;
    };
    const Caso casos[] = {
        {"/home/ana/calculos/agua123.trl", "/home/ana/calculos/agua123.trl"}, // 30: whole
        {"/home/ana/calculos/agua1234.trl", "/hoMe/Ana/Cal../agua1234.trl"},  // 31: shortened
        {"C:/Arquivos de programas/Saves/a.trl", "C:/Arq../Saves/a.trl"},
        {"C:/ARQUIVOS/saves/pasta6/longo-nome.trl", "C:/Arq../Saves/Pas../longo-nome.trl"},
    };
    for (const Caso& c : casos) EXPECT_EQ(EncurtaCaminho(c.caminho), c.legenda) << c.caminho;

    FilesMRU() = {};
    MenuRecentes menu;
    AtualizaMRU(menu);
    for (const EntradaMenu& e : menu.mnuArquivoMRU) EXPECT_FALSE(e.Visible);
    EXPECT_TRUE(menu.mnuArquivoMRUVazio.Visible);
    EXPECT_FALSE(menu.mnuArquivoMRUVazio.Enabled);
    AdicionaMRU("C:/Arquivos de programas/Saves/a.trl");
    AtualizaMRU(menu);
    EXPECT_EQ(menu.mnuArquivoMRU[0].Caption, "&1 C:/Arq../Saves/a.trl");
    EXPECT_TRUE(menu.mnuArquivoMRU[0].Visible);
    EXPECT_FALSE(menu.mnuArquivoMRU[1].Visible);
    EXPECT_FALSE(menu.mnuArquivoMRUVazio.Visible);
}

TEST_F(ShellRegistro, RecentesGravadosELidos) {
    FilesMRU() = {"/x/1.trl", "/x/2.trl", "", ""};
    GravaMRU();
    FilesMRU() = {};
    CarregaMRU();
    EXPECT_EQ(FilesMRU(), (std::array<std::string, 4>{"/x/1.trl", "/x/2.trl", "", ""}));
    EXPECT_EQ(LeChave(HKEY_LOCAL_MACHINE, ChaveDaSecao("FilesMRU"), " 2"), "/x/2.trl");
}

} // namespace
} // namespace tramelo::teste
