// The settings store: the read limit, typed values and damaged or unwritable
// files on disk; and the recent files kept in it.
#include "pasta_temporaria.h"

#include "base/recentes.h"
#include "shell/registro.h"

#include <gtest/gtest.h>


namespace tramelo::teste {
namespace {

class ShellRegistro : public ::testing::Test {
  protected:
    void SetUp() override { DefinePastasRegistro(pasta / "usuario", pasta / "dados"); }
    PastaTemporaria pasta;
};

TEST_F(ShellRegistro, LimiteDeLeitura) {
    // The buffer holds 1024 characters of the code page, the terminating
    // null among them: 1023 read back, 1024 or more read as empty.
    const struct {
        std::string dado;
        bool lido;
    } casos[] = {
        {std::string(1023, 'x'), true},
        {std::string(1024, 'x'), false},
        {[] { std::string s; for (int i = 0; i < 1023; ++i) s += "ç"; return s; }(), true}, // 2046 bytes
    };
    for (const auto& c : casos) {
        GravaConfig("Config", "Longo", c.dado);
        EXPECT_EQ(LeConfig("Config", "Longo"), c.lido ? c.dado : "") << c.dado.size();
    }
    // A null cuts the text.
    GravaChaveBruta(HKEY_CURRENT_USER, ChaveDaSecao("Config"), "Nulo", REG_SZ,
                    std::string("abc\0def", 7));
    EXPECT_EQ(LeConfig("Config", "Nulo"), "abc");
}

TEST_F(ShellRegistro, ValoresPorTipo) {
    const std::string chave = ChaveDaSecao("System");
    const struct {
        int tipo;
        std::string bytes;
        const char* texto;
    } casos[] = {
        {REG_DWORD, std::string("\xaf\x23\x01\x00", 4), "74671"}, // 0x123af
        {REG_DWORD, std::string("\x02\x01\x00\x00", 4), "18"},    // 0x102: its inner zero is lost
        {REG_DWORD, std::string("\x00\x01\x00\x00", 4), "0"},     // a zero byte cuts the number
        {REG_DWORD, std::string("\x10\x80\x00\x00", 4), "-32752"}, // four digits: 16-bit
        {REG_DWORD, std::string("\x78\x56\x34\x12", 4), "305419896"}, // all eight digits
        {REG_EXPAND_SZ, "$HOME/%USERNAME%", "$HOME/%USERNAME%"}, // nothing expanded
        {REG_BINARY, "abc", ""},
        {7, std::string("a\0b\0\0", 5), ""}, // a list of strings
    };
    for (const auto& c : casos) {
        GravaChaveBruta(HKEY_LOCAL_MACHINE, chave, "n", c.tipo, c.bytes);
        EXPECT_EQ(LeChave(HKEY_LOCAL_MACHINE, chave, "n"), c.texto) << c.tipo << " " << c.texto;
    }
}

TEST_F(ShellRegistro, FalhasEmSilencio) {
    const std::string arquivo = pasta / "usuario/registro-usuario.json";
    GravaConfig("Config", "Barra0", "False");
    GravaConfig("Config", "Barra1", "False");

    // A damaged file reads as empty; the next write begins a fresh root and
    // keeps the damaged one aside.
    GravaBytes(arquivo, "{ isto não é json");
    EXPECT_EQ(LeConfig("Config", "Barra0"), "");
    GravaConfig("Config", "Barra0", "True");
    EXPECT_EQ(LeConfig("Config", "Barra0"), "True");
    EXPECT_EQ(LeConfig("Config", "Barra1"), "");
    EXPECT_EQ(LeBytes(arquivo + ".danificado"), "{ isto não é json");

    // JSON of the wrong shape is damage too.
    const char* formas[] = {
        "[1, 2]",
        R"({"Software\\Quillon\\Tramelo\\2.0\\Config": 5})",
        R"({"Software\\Quillon\\Tramelo\\2.0\\Config": {"Barra0": "True"}})",
        R"({"Software\\Quillon\\Tramelo\\2.0\\Config": {"Barra0": {"tipo": "1", "dados": "x"}}})",
        R"({"Software\\Quillon\\Tramelo\\2.0\\Config": {"Barra0": {"tipo": 1, "dados": 5}}})",
        R"({"Software\\Quillon\\Tramelo\\2.0\\Config": {"Barra0": {"tipo": 4, "dados": "0g"}}})",
    };
    for (const char* f : formas) {
        GravaBytes(arquivo, f);
        EXPECT_EQ(LeConfig("Config", "Barra0"), "") << f;
    }

    // A folder that can't be made: the write is lost and nothing is thrown.
    GravaBytes(pasta / "arquivo", "x");
    DefinePastasRegistro(pasta / "arquivo/sub", pasta / "arquivo/sub");
    EXPECT_NO_THROW(GravaConfig("Config", "Barra0", "True"));
    EXPECT_FALSE(GravaChave(HKEY_CURRENT_USER, ChaveDaSecao("Config"), "Barra0", "True"));
    EXPECT_EQ(LeConfig("Config", "Barra0"), "");
}

using Lista = std::array<std::string, 4>;

TEST(ShellRecentes, AdicionaMRU) {
    auto& f = FilesMRU();
    f = {};
    AdicionaMRU(""); // nothing to add
    EXPECT_EQ(f, Lista{});
    AdicionaMRU("/a/1.trl");
    AdicionaMRU("/A/1.TRL"); // the same file twice, in other case: the first spelling stays
    EXPECT_EQ(f, (Lista{"/a/1.trl", "", "", ""}));
    AdicionaMRU("/a/2.trl");
    AdicionaMRU("/a/3.trl");
    AdicionaMRU("/a/4.trl");
    EXPECT_EQ(f, (Lista{"/a/4.trl", "/a/3.trl", "/a/2.trl", "/a/1.trl"}));
    AdicionaMRU("/a/2.trl"); // place 3 to the top; place 4 keeps its entry
    EXPECT_EQ(f, (Lista{"/a/2.trl", "/a/4.trl", "/a/3.trl", "/a/1.trl"}));
    AdicionaMRU("/A/4.TRL"); // place 2, in other case: to the top with the new spelling
    EXPECT_EQ(f, (Lista{"/A/4.TRL", "/a/2.trl", "/a/3.trl", "/a/1.trl"}));
    AdicionaMRU("/a/1.trl"); // place 4: it moves up as a new file would
    EXPECT_EQ(f, (Lista{"/a/1.trl", "/A/4.TRL", "/a/2.trl", "/a/3.trl"}));
    AdicionaMRU("/a/5.trl"); // a fifth: the file at place 4 is gone
    EXPECT_EQ(f, (Lista{"/a/5.trl", "/a/1.trl", "/A/4.TRL", "/a/2.trl"}));
    AdicionaMRU("/home/JOÃO/a.trl");
    AdicionaMRU("/home/joão/A.trl"); // case ignored in accented letters too
    EXPECT_EQ(f[0], "/home/JOÃO/a.trl");
    EXPECT_EQ(f[1], "/a/5.trl");
    // A window's menu: each entry numbered from 1, "Vazio" only with none.
    MenuRecentes menu;
    AtualizaMRU(menu);
    EXPECT_TRUE(menu.mnuArquivoMRU[0].Visible && !menu.mnuArquivoMRUVazio.Visible);
    EXPECT_EQ(menu.mnuArquivoMRU[0].Caption, "&1 /home/JOÃO/a.trl");
    EXPECT_EQ(menu.mnuArquivoMRU[3].Caption, "&4 /A/4.TRL");
    f = {};
    AtualizaMRU(menu);
    EXPECT_TRUE(!menu.mnuArquivoMRU[0].Visible && menu.mnuArquivoMRUVazio.Visible);
}

TEST(ShellRecentes, EncurtaCaminho) {
    const struct {
        const char* caminho;
        const char* legenda;
    } casos[] = {
        // 30 characters show whole, their case untouched; 31 are shortened.
        {"/HOME/ANA/CALCULOS/AGUA123.TRL", "/HOME/ANA/CALCULOS/AGUA123.TRL"},
        // A path from the root shortens from its first folder; its "/" stays.
        {"/home/ana/calculos/agua1234.trl", "/Home/Ana/Cal../agua1234.trl"},
        // The worked example, with "/" for separator.
        {"C:/Arquivos de programas/Saves/a.trl", "C:/Arq../Saves/a.trl"},
        // A folder name of 5 characters stays whole, 6 become 3 and "../";
        // capitals go to proper case; the file name stands as it is.
        {"/mnt/DADOS/PLANTA/calculo-01.trl", "/Mnt/Dados/Pla../calculo-01.trl"},
        // Words begin after blanks and control characters only; accented
        // letters change case too.
        {"/srv/o meu projeto/calculo-final.trl", "/Srv/O M../calculo-final.trl"},
        {"/srv/ÓRGÃO/PASTA-NOVA/medições-2024.trl", "/Srv/Órgão/Pas../medições-2024.trl"},
        {"/srv/a-b\tc/2abcd/calculo-final-01.trl", "/Srv/A-b\tC/2abcd/calculo-final-01.trl"},
        // No separator after the first 3 characters: only the rest.
        {"sem-separador-nenhum-com-31-car", "sem-separador-nenhum-com-31-car"},
    };
    for (const auto& c : casos)
        EXPECT_EQ(EncurtaCaminho(c.caminho), c.legenda) << c.caminho;
}

} // namespace
} // namespace tramelo::teste
