// File channel 1: one file at a time, items in and out, and a save that
// replaces the earlier file only when it is complete.
#include "plataforma/canal.h"
#include "plataforma/falha.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <random>
#include <string>
#include <vector>

namespace tramelo {
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
    void SetUp() override {
        std::random_device r;
        pasta_ = fs::temp_directory_path() /
                 ("tramelo-canal-" + std::to_string(r()) + "-" + std::to_string(r()));
        fs::create_directories(pasta_);
        canal1().Reinicia();
    }
    void TearDown() override {
        canal1().Reinicia();
        std::error_code ec;
        for (const auto& e : fs::recursive_directory_iterator(pasta_, ec))
            fs::permissions(e.path(), fs::perms::owner_all, fs::perm_options::add, ec);
        fs::remove_all(pasta_, ec);
    }

    std::string Nome(const std::string& nome) const { return (pasta_ / nome).string(); }

    void Grava(const std::string& nome, const std::string& bytes) const {
        std::ofstream(pasta_ / nome, std::ios::binary) << bytes;
    }
    std::string Conteudo(const std::string& nome) const {
        std::ifstream f(pasta_ / nome, std::ios::binary);
        return {std::istreambuf_iterator<char>(f), {}};
    }
    std::vector<std::string> Entradas() const {
        std::vector<std::string> nomes;
        for (const auto& e : fs::directory_iterator(pasta_))
            nomes.push_back(e.path().filename());
        std::sort(nomes.begin(), nomes.end());
        return nomes;
    }
    // Whether the permission bits bind us at all (they don't bind root).
    bool PermissoesValem() const {
        Grava("sonda", "x");
        fs::permissions(pasta_ / "sonda", fs::perms::none);
        const bool valem = !std::ifstream(pasta_ / "sonda").is_open();
        fs::permissions(pasta_ / "sonda", fs::perms::owner_all);
        fs::remove(pasta_ / "sonda");
        return valem;
    }

    fs::path pasta_;
};

TEST_F(PlataformaCanal, LeituraDeItens) {
    struct Caso {
        std::string bytes;
        std::vector<std::string> itens; // "#62": that read failed at the end of the file
    };
    const Caso casos[] = {
        {"\"\"\r\n\"\"\r\n", {"", ""}},
        {"\"FT-2301\"\r\n", {"FT-2301"}},
        // a quote inside a tag ends it; the rest up to the line end is dropped
        {"\"FT-\"23\"01\"\r\n2,\"1200\",0\r\n", {"FT-", "2", "1200", "0"}},
        {"\"a\" resto,b", {"a", "b"}},
        // blanks and line ends before an item are skipped, not those after it
        {"  \r\n\r\n\t 7 ,  \"x\"  ,8\r\n", {"7 ", "x", "8"}},
        {"0,  \"\xC1gua (Liq\xFCido)\"\r\n", {"0", "Água (Liqüido)"}},
        {"abc def,ghi\r\njkl\r\n", {"abc def", "ghi", "jkl"}},
        {"ab\"c\",d\r\n", {"ab\"c\"", "d"}},
        {"1,,2\r\n", {"1", "", "2"}},
        {"1\n2\r3\r\n", {"1", "2", "3"}},
        {"\"a\r\nb\",c\r\n", {"a\r\nb", "c"}},
        {"\"sem fim\r\nx", {"sem fim\r\nx"}},
        {"", {}},
        {" \r\n \r\n", {"#62"}},
        {"1\r\n\r\n", {"1", "#62"}},
    };
    for (const Caso& c : casos) {
        SCOPED_TRACE(c.bytes);
        Grava("x.trl", c.bytes);
        canal1().AbreEntrada(Nome("x.trl"));
        std::vector<std::string> lidos;
        while (!canal1().Eof()) {
            try {
                lidos.push_back(canal1().LeItem());
            } catch (const Falha& f) {
                lidos.push_back("#" + std::to_string(f.numero()));
                break;
            }
        }
        EXPECT_EQ(lidos, c.itens);
        EXPECT_TRUE(canal1().Eof());
        EXPECT_EQ(NumeroDaFalha([] { canal1().LeItem(); }), 62);
        canal1().Fecha();
    }
}

TEST_F(PlataformaCanal, FormaDosItensEscritos) {
    struct Caso {
        ItemArquivo item;
        const char* forma;
    };
    const Caso casos[] = {
        {0, "0"},
        {static_cast<short>(-1), "-1"},
        {32767L, "32767"},
        {2.0, "2"},
        {1e15, "1E+15"},
        {1.5e-5, "1.5E-05"},
        {"", "\"\""},
        {"0,72", "\"0,72\""},
        {"FT-\"23\"", "\"FT-\"23\"\""}, // no escape
    };
    for (const Caso& c : casos) {
        SCOPED_TRACE(c.forma);
        EXPECT_EQ(c.item.FormaEscrita(), c.forma);
    }
}

TEST_F(PlataformaCanal, NumeroDoItem) {
    struct Caso {
        const char* item;
        int numero; // -100000: failure 6
    };
    const Caso casos[] = {
        {"0", 0},         {"29", 29},         {" 1 2 ", 12},      {"2.5", 2},       {"3.5", 4},
        {"-7", -7},       {"1,5", 1},         {"abc", 0},         {"", 0},          {"0abc", 0},
        {"32767", 32767}, {"-32768", -32768}, {"32768", -100000}, {"1E5", -100000}, {"&H10", 16},
    };
    for (const Caso& c : casos) {
        SCOPED_TRACE(c.item);
        if (c.numero == -100000)
            EXPECT_EQ(NumeroDaFalha([&] { NumeroDoItem(c.item); }), 6);
        else
            EXPECT_EQ(NumeroDoItem(c.item), c.numero);
    }
}

TEST_F(PlataformaCanal, TabulacaoELinhas) {
    canal1().AbreSaida(Nome("t.txt"));
    canal1().Imprime("12,");
    canal1().Tab(5);
    canal1().Escreve({"a"});
    canal1().Imprime("abcdef");
    canal1().Tab(5); // past it: the next line
    canal1().Imprime("x");
    canal1().NovaLinha();
    canal1().Tab(1);
    canal1().Escreve({});
    canal1().Escreve({"ã", 1, "b"});
    canal1().Fecha();
    EXPECT_EQ(Conteudo("t.txt"), "12, \"a\"\r\nabcdef\r\n    x\r\n\r\n\"\xE3\",1,\"b\"\r\n");
}

TEST_F(PlataformaCanal, UmArquivoDeCadaVez) {
    Grava("a.trl", "\"a\"\r\n");
    EXPECT_FALSE(canal1().Ocupado());
    canal1().AbreSaida(Nome("b.trl"));
    EXPECT_TRUE(canal1().Ocupado());
    EXPECT_EQ(NumeroDaFalha([&] { canal1().AbreSaida(Nome("c.trl")); }), 55);
    EXPECT_EQ(NumeroDaFalha([&] { canal1().AbreEntrada(Nome("a.trl")); }), 55);
    EXPECT_EQ(DescricaoFalha(55), "Arquivo já aberto");
    // the refused opens don't disturb the open file
    canal1().Escreve({"b"});
    canal1().Fecha();
    EXPECT_FALSE(canal1().Ocupado());
    EXPECT_EQ(Conteudo("b.trl"), "\"b\"\r\n");
    EXPECT_EQ(Entradas(), (std::vector<std::string>{"a.trl", "b.trl"}));

    canal1().AbreEntrada(Nome("a.trl"));
    EXPECT_EQ(NumeroDaFalha([&] { canal1().AbreSaida(Nome("a.trl")); }), 55);
    EXPECT_EQ(NumeroDaFalha([&] { canal1().AbreEntrada(Nome("b.trl")); }), 55);
    EXPECT_EQ(canal1().LeItem(), "a");
    canal1().Fecha();
    canal1().Fecha(); // closing a free channel does nothing
    EXPECT_FALSE(canal1().Ocupado());

    // using the channel in the wrong way
    EXPECT_EQ(NumeroDaFalha([] { canal1().LeItem(); }), 52);
    canal1().AbreSaida(Nome("a.trl"));
    EXPECT_EQ(NumeroDaFalha([] { canal1().LeItem(); }), 54);
    canal1().Fecha();
}

TEST_F(PlataformaCanal, FalhasAoAbrir) {
    Grava("a.trl", "1\r\n");
    fs::create_directory(pasta_ / "pasta");
    struct Caso {
        std::string nome;
        bool saida;
        int numero;
    };
    const Caso casos[] = {
        {"nao-existe.trl", false, 53}, {"falta/x.trl", false, 76}, {"falta/x.trl", true, 76},
        {"a.trl/x.trl", false, 76},    {"a.trl/x.trl", true, 76},  {"pasta", false, 75},
        {"pasta", true, 75},
    };
    for (const Caso& c : casos) {
        SCOPED_TRACE(c.nome);
        const std::string nome = Nome(c.nome);
        EXPECT_EQ(
            NumeroDaFalha([&] { c.saida ? canal1().AbreSaida(nome) : canal1().AbreEntrada(nome); }),
            c.numero);
        EXPECT_FALSE(canal1().Ocupado());
    }
    EXPECT_EQ(DescricaoFalha(53), "Arquivo não encontrado");
    EXPECT_EQ(DescricaoFalha(76), "Caminho não encontrado");
    EXPECT_EQ(Entradas(), (std::vector<std::string>{"a.trl", "pasta"}));
    EXPECT_EQ(Conteudo("a.trl"), "1\r\n");
}

TEST_F(PlataformaCanal, GravacaoSubstituiOAnteriorSoAoFechar) {
    Grava("calc.trl", "\"antigo\"\r\n");
    fs::permissions(pasta_ / "calc.trl",
                    fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
    canal1().AbreSaida(Nome("calc.trl"));
    canal1().Escreve({"novo"});
    canal1().Escreve({2, "1200", 0});
    // until it is closed, the earlier file stands and the new one is beside it
    EXPECT_EQ(Conteudo("calc.trl"), "\"antigo\"\r\n");
    EXPECT_EQ(Entradas().size(), 2u);
    canal1().Fecha();
    EXPECT_EQ(Conteudo("calc.trl"), "\"novo\"\r\n2,\"1200\",0\r\n");
    EXPECT_EQ(Entradas(), std::vector<std::string>{"calc.trl"});
    EXPECT_EQ(fs::status(pasta_ / "calc.trl").permissions(),
              fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);

    // a new file appears only at close too
    canal1().AbreSaida(Nome("novo.trl"));
    canal1().Escreve({"x"});
    EXPECT_FALSE(fs::exists(pasta_ / "novo.trl"));
    canal1().Fecha();
    EXPECT_EQ(Conteudo("novo.trl"), "\"x\"\r\n");
}

} // namespace
} // namespace tramelo
