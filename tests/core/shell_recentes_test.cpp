// The recent files: the list, the menu entries, the shortened captions and
// the list in the settings.
#include "pasta_temporaria.h"

#include "shell/recentes.h"
#include "shell/registro.h"

#include <gtest/gtest.h>

namespace tramelo::teste {
namespace {

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
}

TEST(ShellRecentes, EncurtaCaminho) {
    const struct {
        const char* caminho;
        const char* legenda;
    } casos[] = {
        // 30 characters show whole, their case untouched; 31 are shortened.
        {"/home/ana/calculos/agua123.trl", "/home/ana/calculos/agua123.trl"},
        {"/HOME/ANA/CALCULOS/AGUA123.TRL", "/HOME/ANA/CALCULOS/AGUA123.TRL"},
        // A path from the root shortens from its first folder; its "/" stays.
        {"/home/ana/calculos/agua1234.trl", "/Home/Ana/Cal../agua1234.trl"},
        {"/home/ana/Projetos/medicoes/a.trl", "/Home/Ana/Pro../Med../a.trl"},
        // The worked example, with "/" for separator.
        {"C:/Arquivos de programas/Saves/a.trl", "C:/Arq../Saves/a.trl"},
        // A folder name of 5 characters stays whole, 6 become 3 and "../";
        // capitals go to proper case; the file name stands as it is.
        {"/mnt/DADOS/PLANTA/calculo-01.trl", "/Mnt/Dados/Pla../calculo-01.trl"},
        {"C:/ARQUIVOS/saves/pasta6/longo-nome.trl", "C:/Arq../Saves/Pas../longo-nome.trl"},
        // Words begin after blanks only; accented letters change case too.
        {"/srv/o meu projeto/calculo-final.trl", "/Srv/O M../calculo-final.trl"},
        {"/srv/ÁGUA/PASTA-NOVA/medições-2024.trl", "/Srv/Água/Pas../medições-2024.trl"},
        {"/srv/água fria/ética/medições-2024.trl", "/Srv/Águ../Ética/medições-2024.trl"},
        {"/srv/ab-cd/2abcd/calculo-final-01.trl", "/Srv/Ab-cd/2abcd/calculo-final-01.trl"},
        // No separator after the first 3 characters: only the rest.
        {"sem-separador-nenhum-com-31-car", "sem-separador-nenhum-com-31-car"},
    };
    for (const auto& c : casos)
        EXPECT_EQ(EncurtaCaminho(c.caminho), c.legenda) << c.caminho;
}

TEST(ShellRecentes, AtualizaMRU) {
    FilesMRU() = {};
    MenuRecentes menu;
    AtualizaMRU(menu);
    for (const EntradaMenu& e : menu.mnuArquivoMRU)
        EXPECT_FALSE(e.Visible);
    EXPECT_TRUE(menu.mnuArquivoMRUVazio.Visible);
    EXPECT_FALSE(menu.mnuArquivoMRUVazio.Enabled);
    EXPECT_EQ(menu.mnuArquivoMRUVazio.Caption, "Vazio");

    FilesMRU() = {"C:/Arquivos de programas/Saves/a.trl", "/x/b.trl", "", ""};
    AtualizaMRU(menu);
    EXPECT_EQ(menu.mnuArquivoMRU[0].Caption, "&1 C:/Arq../Saves/a.trl");
    EXPECT_EQ(menu.mnuArquivoMRU[1].Caption, "&2 /x/b.trl");
    EXPECT_EQ(menu.mnuArquivoMRU[2].Caption, "&3 ");
    const bool visiveis[] = {true, true, false, false};
    for (size_t i = 0; i < 4; ++i)
        EXPECT_EQ(menu.mnuArquivoMRU[i].Visible, visiveis[i]) << i;
    EXPECT_FALSE(menu.mnuArquivoMRUVazio.Visible);
}

TEST(ShellRecentes, CarregaEGravaMRU) {
    PastaTemporaria pasta;
    DefinePastasRegistro(pasta / "usuario", pasta / "dados");
    FilesMRU() = {"/x/1.trl", "/x/2.trl", "", ""};
    GravaMRU();
    // Values " 1" and " 2" of the machine's section; nothing for the empties.
    EXPECT_EQ(LeChave(HKEY_LOCAL_MACHINE, ChaveDaSecao("FilesMRU"), " 2"), "/x/2.trl");
    EXPECT_EQ(LeChave(HKEY_LOCAL_MACHINE, ChaveDaSecao("FilesMRU"), "2"), "");
    EXPECT_EQ(LeBytes(pasta / "dados/registro-maquina.json").find("\" 3\""), std::string::npos);
    FilesMRU() = {};
    CarregaMRU();
    EXPECT_EQ(FilesMRU(), (Lista{"/x/1.trl", "/x/2.trl", "", ""}));

    // Storing stops at the first empty entry: what stood behind it stays.
    GravaConfig("FilesMRU", " 4", "/velho.trl");
    FilesMRU() = {"/y/1.trl", "", "/y/3.trl", ""};
    GravaMRU();
    CarregaMRU();
    EXPECT_EQ(FilesMRU(), (Lista{"/y/1.trl", "/x/2.trl", "", "/velho.trl"}));
}

} // namespace
} // namespace tramelo::teste
