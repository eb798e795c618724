// File channel 1: one file at a time, items in and out in the files' code
// page, and a save that replaces the earlier file only when it is complete.
#include "plataforma/arquivo_lido.h"
#include "plataforma/canal.h"
#include "plataforma/cp1252.h"
#include "plataforma/falha.h"

#include "pasta_temporaria.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace tramelo::teste {
namespace {

namespace fs = std::filesystem;

// The failure number a step ends with, 0 when it runs through.
int NumeroDaFalha(const std::function<void()>& passo) {
    try {
        passo();
    } catch (const Falha& f) {
        return f.numero();
    }
    return 0;
}

class PlataformaCanal : public ::testing::Test {
  protected:
    void SetUp() override { canal1().Reinicia(); }
    void TearDown() override { canal1().Reinicia(); }
    std::string Nome(const std::string& nome) const { return pasta / nome; }
    std::vector<std::string> Entradas() const {
        std::vector<std::string> nomes;
        for (const auto& e : fs::directory_iterator(pasta.str()))
            nomes.push_back(e.path().filename());
        std::sort(nomes.begin(), nomes.end());
        return nomes;
    }
    PastaTemporaria pasta;
};

TEST_F(PlataformaCanal, LeituraDeItens) {
    // "#62": that read failed at the end of the file.
    const struct { std::string bytes; std::vector<std::string> itens; } casos[] = {
        {"\"\"\r\n\"\"\r\n", {"", ""}},
        // a quote inside a tag ends it; the rest up to the line end is dropped
        {"\"FT-\"23\"01\"\r\n2,\"1200\",0\r\n", {"FT-", "2", "1200", "0"}},
        {"\"a\" resto,b", {"a", "b"}},
        // blanks and line ends before an item are skipped, not those after it
        {"  \r\n\r\n\t 7 ,  \"x\"  ,8\r\n", {"7 ", "x", "8"}},
        {"0,  \"\xC1gua (Liq\xFCido)\"\r\n", {"0", "Água (Liqüido)"}},
        {"abc def,ghi\r\njkl\r\n", {"abc def", "ghi", "jkl"}}, {"ab\"c\",d\r\n", {"ab\"c\"", "d"}},
        {"1,,2\r\n", {"1", "", "2"}}, {"1\n2\r3\r\n", {"1", "2", "3"}},
        {"\"a\r\nb\",c\r\n", {"a\r\nb", "c"}}, {"\"sem fim\r\nx", {"sem fim\r\nx"}},
        {"", {}}, {" \r\n \r\n", {"#62"}}, {"1\r\n\r\n", {"1", "#62"}},
    };
    for (const auto& c : casos) {
        SCOPED_TRACE(c.bytes);
        GravaBytes(Nome("x.trl"), c.bytes);
        canal1().AbreEntrada(Nome("x.trl"));
        std::vector<std::string> lidos;
        for (int n = 0; n == 0 && !canal1().Eof();)
            if ((n = NumeroDaFalha([&] { lidos.push_back(canal1().LeItem()); })))
                lidos.push_back("#" + std::to_string(n));
        EXPECT_EQ(lidos, c.itens);
        canal1().Fecha();
    }
}

TEST_F(PlataformaCanal, ItensEscritosENumeroDoItem) {
    const std::pair<ItemArquivo, const char*> formas[] = {
        {0, "0"},          {static_cast<short>(-1), "-1"}, {32767L, "32767"}, {2.0, "2"},
        {1e15, "1E+15"},   {1.5e-5, "1.5E-05"},            {"", "\"\""},      {"0,72", "\"0,72\""},
        {"FT-\"23\"", "\"FT-\"23\"\""}, // no escape
    };
    for (const auto& [item, forma] : formas) EXPECT_EQ(item.FormaEscrita(), forma);
    const std::pair<const char*, int> numeros[] = { // -1: failure 6
        {"29", 29},  {" 1 2 ", 12},    {"2.5", 2},        {"3.5", 4},     {"-7", -7},  {"1,5", 1},
        {"0abc", 0}, {"32767", 32767}, {"-32768", -32768}, {"32768", -1}, {"1E5", -1}, {"&H10", 16},
    };
    for (const auto& [item, numero] : numeros) {
        if (numero == -1) EXPECT_EQ(NumeroDaFalha([&] { NumeroDoItem(item); }), 6) << item;
        else EXPECT_EQ(NumeroDoItem(item), numero) << item;
    }
}

TEST_F(PlataformaCanal, UmArquivoDeCadaVezEFalhasAoAbrir) {
    GravaBytes(Nome("a.trl"), "\"a\"\r\n");
    canal1().AbreSaida(Nome("b.trl"));
    EXPECT_EQ(NumeroDaFalha([&] { canal1().AbreSaida(Nome("c.trl")); }), 55);
    EXPECT_EQ(NumeroDaFalha([&] { canal1().AbreEntrada(Nome("a.trl")); }), 55);
    // the refused opens don't disturb the open file
    canal1().Escreve({"b"});
    canal1().Fecha();
    EXPECT_EQ(LeBytes(Nome("b.trl")), "\"b\"\r\n");
    canal1().AbreEntrada(Nome("a.trl"));
    EXPECT_EQ(NumeroDaFalha([&] { canal1().AbreSaida(Nome("a.trl")); }), 55);
    EXPECT_EQ(canal1().LeItem(), "a");
    canal1().Fecha();
    // Whole lines end at CR LF, a lone CR or a lone LF.
    GravaBytes(Nome("b.trl"), "a\r\nb\rc\n\nd\r");
    canal1().AbreEntrada(Nome("b.trl"));
    std::string linhas;
    while (!canal1().Eof()) linhas += canal1().LeLinha() + "|";
    EXPECT_EQ(linhas, "a|b|c||d|");
    canal1().Fecha();
    canal1().Fecha(); // closing a free channel does nothing
    EXPECT_EQ(NumeroDaFalha([] { canal1().LeItem(); }), 52);
    canal1().AbreSaida(Nome("a.trl"));
    EXPECT_EQ(NumeroDaFalha([] { canal1().LeItem(); }), 54);
    canal1().Reinicia();

    fs::create_directory(pasta / "pasta");
    const std::tuple<const char*, bool, int> casos[] = { // name, for output, failure
        {"nao-existe.trl", false, 53}, {"falta/x.trl", true, 76}, {"a.trl/x.trl", false, 76},
        {"pasta", false, 75},           {"pasta", true, 75},
    };
    for (const auto& [nome, saida, numero] : casos) {
        const std::string n = Nome(nome);
        EXPECT_EQ(NumeroDaFalha([&] { saida ? canal1().AbreSaida(n) : canal1().AbreEntrada(n); }),
                  numero) << nome;
        EXPECT_FALSE(canal1().Ocupado());
    }
    EXPECT_EQ(Entradas(), (std::vector<std::string>{"a.trl", "b.trl", "pasta"}));
    EXPECT_EQ(LeBytes(Nome("a.trl")), "\"a\"\r\n");
}

TEST_F(PlataformaCanal, GravacaoSubstituiOAnteriorSoAoFecharETabula) {
    const auto modo = fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read;
    GravaBytes(Nome("calc.trl"), "\"antigo\"\r\n");
    fs::permissions(pasta / "calc.trl", modo);
    canal1().AbreSaida(Nome("calc.trl"));
    canal1().Escreve({"novo"});
    canal1().Escreve({2, "1200", 0});
    // until it is closed, the earlier file stands and the new one is beside it
    EXPECT_EQ(LeBytes(Nome("calc.trl")), "\"antigo\"\r\n");
    EXPECT_EQ(Entradas().size(), 2u);
    canal1().Fecha();
    EXPECT_EQ(LeBytes(Nome("calc.trl")), "\"novo\"\r\n2,\"1200\",0\r\n");
    EXPECT_EQ(Entradas(), std::vector<std::string>{"calc.trl"});
    EXPECT_EQ(fs::status(pasta / "calc.trl").permissions(), modo);
    // a new file appears only at close too
    canal1().AbreSaida(Nome("novo.trl"));
    canal1().Escreve({"x"});
    EXPECT_FALSE(fs::exists(pasta / "novo.trl"));
    canal1().Fecha();
    EXPECT_EQ(LeBytes(Nome("novo.trl")), "\"x\"\r\n");
    canal1().AbreSaida(Nome("t.txt"));
    canal1().Tab(3); // a new file starts at the first column
    canal1().Imprime("abcdef");
    canal1().Tab(5); // past it: the next line
    canal1().Imprime("x");
    canal1().NovaLinha();
    canal1().Tab(0); // below the first column: the first
    canal1().Escreve({});
    canal1().Fecha();
    EXPECT_EQ(LeBytes(Nome("t.txt")), "  abcdef\r\n    x\r\n\r\n");
}

// A whole-file read tells what it found: the batch tool answers "is it a
// file?" from it, so a device or a folder must not pass for one.
TEST(PlataformaArquivoLido, OQueCadaCaminhoE) {
    PastaTemporaria pasta;
    std::ofstream(pasta / "t.trl", std::ios::binary) << "abc\r\n";
    using E = ArquivoLido::Estado;
    struct Caso {
        std::string caminho;
        std::size_t limite;
        E estado;
        bool regular;
        std::string bytes;
        int erro;
    };
    const Caso casos[] = {
        {pasta / "t.trl", 1000, E::Lido, true, "abc\r\n", 0},
        {pasta / "t.trl", 2, E::Lido, true, "ab", 0},
        {"/dev/null", 1000, E::Lido, false, "", 0},
        {pasta.str(), 1000, E::Pasta, false, "", 0},
        {pasta / "nada.trl", 1000, E::NaoAbriu, false, "", ENOENT},
    };
    for (const Caso& c : casos) {
        const ArquivoLido lido = LeArquivoInteiro(c.caminho, c.limite);
        EXPECT_EQ(lido.estado, c.estado) << c.caminho;
        EXPECT_EQ(lido.regular, c.regular) << c.caminho;
        EXPECT_EQ(lido.bytes, c.bytes) << c.caminho;
        EXPECT_EQ(lido.erro, c.erro) << c.caminho;
    }
}

// Every byte of the code page has a character and comes back; what the page
// lacks, and broken UTF-8, is "?" per byte read.
TEST(PlataformaCp1252, IdaEVolta) {
    for (int b = 0; b <= 0xFF; ++b) {
        const std::string byte(1, static_cast<char>(b)), texto = DeCp1252(byte);
        EXPECT_EQ(ParaCp1252(texto), byte) << b;
        EXPECT_EQ(texto.size() == 1, b < 0x80) << b; // above, two or three bytes of UTF-8
    }
    const std::pair<std::string, std::string> casos[] = {
        {"ā", "?"},      {"\u07FF", "?"},         {"Ω=1", "?=1"},          {"😀!", "?!"},
        {"\u0080", "?"}, {"\xC3" "A", "?A"}, {"\xC0\xAF", "??"}, {"\xED\xA0\x80", "???"},
        {"\xF4\x8F\xBF\xBF", "?"}, {"\xF4\x90\x80\x80", "????"}, {"\xE2\x82" "x", "??x"},
    };
    for (const auto& [utf8, bytes] : casos) EXPECT_EQ(ParaCp1252(utf8), bytes) << utf8;
}

} // namespace
} // namespace tramelo::teste
