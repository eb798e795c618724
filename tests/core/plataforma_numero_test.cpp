// Numbers and their text under the decimal comma.
#include "plataforma/falha.h"
#include "plataforma/num.h"
#include "plataforma/numero.h"
#include "plataforma/texto.h"
#include "plataforma/variante.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <tuple>

namespace tramelo {
namespace {

// The failure number a step ends with, 0 when it runs through.
template <typename F> int NumeroDaFalha(F passo) {
    try {
        passo();
    } catch (const Falha& e) {
        return e.numero();
    }
    return 0;
}

TEST(PlataformaNumero, TextoParaNumero) {
    const std::pair<std::string, double> casos[] = {
        {"12,5", 12.5},     {"  12,5  ", 12.5}, {"12,", 12},         {",5", 0.5},
        {"-3", -3},         {"+3", 3},          {"1.234,5", 1234.5}, {"1.5", 15},
        {"1.2.3", 123},     {"1E3", 1000},      {"1,5e-2", 0.015},   {"2E+2", 200},
        {"102,26", 102.26}, {"0", 0},           {"1e-400", 0},       {"1E-99999999999", 0},
        // read whole, however long; an exponent beyond any int is still a number
        {std::string(3000, '0') + "12,5" + std::string(3000, '0'), 12.5},
        {"1" + std::string(2500, '0') + "E-2500", 1}, {"0," + std::string(500, '0') + "1E+100", 0},
    };
    for (const auto& [texto, valor] : casos) EXPECT_EQ(TextoParaNumero(texto), valor) << texto;
    const std::pair<std::string, int> falhas[] = {
        {"", 13},   {"abc", 13}, {"1,2,3", 13}, {"1a", 13},  {"--1", 13},  {"-", 13},    {",", 13},
        {"1E", 13}, {"E5", 13},  {"1,5.3", 13}, {"1 2", 13}, {"1e5x", 13}, {"1E400", 6},
        {"-1E400", 6}, {"1E99999999999", 6},
        {std::string(2500, '9'), 6}, {std::string(310, '9'), 6}, // typed digit by digit
    };
    for (const auto& [texto, numero] : falhas)
        EXPECT_EQ(NumeroDaFalha([&] { TextoParaNumero(texto); }), numero) << texto;
}

TEST(PlataformaNumero, NumeroParaTexto) {
    const std::pair<double, const char*> casos[] = {
        {0, "0"},                     {-1.5, "-1,5"},           {12.5, "12,5"},
        {0.0001, "0,0001"},           {0.00015, "0,00015"},     {0.000015, "1,5E-05"},
        {1e15, "1E+15"},              {999999999999999, "999999999999999"},
        {123456789012345678.0, "1,23456789012346E+17"},         {0.1 + 0.2, "0,3"},
        {1.0 / 3, "0,333333333333333"},                         {2.0 / 3, "0,666666666666667"},
        {101.325249795, "101,325249795"},                       {1e100, "1E+100"},
        {15000.000000000002, "15000"}, {1.00051, "1,00051"},    {0.99999999999999989, "1"},
        {9.9999999999999995e-5, "0,0001"}, {1e-10, "1E-10"}, // a two-digit exponent: no zero
        {7.408655322280855, "7,40865532228085"}, // a tie in its shortest text, below in fact
        {HUGE_VAL, "1,#INF"}, {-HUGE_VAL, "-1,#INF"}, {std::nan(""), "-1,#IND"}, // never made
    };
    for (const auto& [valor, texto] : casos) EXPECT_EQ(NumeroParaTexto(valor), texto) << texto;
    EXPECT_EQ(NumeroSimplesParaTexto(0.102f), "0,102");
}

TEST(PlataformaNumero, ValCIntEAritmetica) {
    const std::pair<std::string, double> vals[] = {
        {" 12 ", 12}, {"1 2", 12},   {"3,5", 3},   {"3.5", 3.5}, {"abc", 0}, {"", 0},
        {"&H1F", 31}, {"&h1f", 31}, {"&H1G", 1}, // G is no hex digit
        {"-7x", -7},  {"&H123456789ABCDEF012", double(0x123456789ABCDEF0ull)}, // 16 digits, no wrap
    };
    for (const auto& [texto, valor] : vals) EXPECT_EQ(Val(texto), valor) << texto;
    // half to even
    EXPECT_EQ(std::tuple(CInt(2.5), CInt(3.5), CInt(-0.5)), std::tuple(2, 4, 0));
    EXPECT_EQ(NumeroDaFalha([] { CInt(40000); }), 6);

    const std::pair<std::function<void()>, int> falhas[] = {
        {[] { Num(1) / 0; }, 11},        {[] { Num(0) / 0; }, 6},  {[] { Sqr(-1); }, 5},
        {[] { Log(0); }, 5},             {[] { Pot(-2, 0.5); }, 5}, {[] { Num(1e300) * 1e300; }, 6},
        {[] { String(-1, "_"); }, 5},    {[] { Variante("abc").Numero(); }, 13},
    };
    for (const auto& [passo, numero] : falhas) EXPECT_EQ(NumeroDaFalha(passo), numero);
    EXPECT_EQ(std::tuple(Pot(-2, 2).valor(), Pot(0, 2.5).valor(), Variante().Numero().valor()),
              std::tuple(4, 0, 0));
}

} // namespace
} // namespace tramelo
