// Numbers and their text under the decimal comma.
#include "plataforma/falha.h"
#include "plataforma/num.h"
#include "plataforma/numero.h"
#include "plataforma/texto.h"
#include "plataforma/variante.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <charconv>
#include <cstdint>
#include <cstring>

namespace tramelo {
namespace {

TEST(PlataformaNumero, TextoParaNumero) {
    struct Caso {
        const char* texto;
        double valor;
    };
    const Caso casos[] = {
        {"12,5", 12.5},     {"  12,5  ", 12.5}, {"12,", 12},         {",5", 0.5},
        {"-3", -3},         {"+3", 3},          {"1.234,5", 1234.5}, {"1.5", 15},
        {"1.2.3", 123},     {"1E3", 1000},      {"1,5e-2", 0.015},   {"2E+2", 200},
        {"102,26", 102.26}, {"0", 0},           {"1e-400", 0},
    };
    for (const Caso& c : casos) {
        SCOPED_TRACE(c.texto);
        EXPECT_EQ(TextoParaNumero(c.texto), c.valor);
    }
    const char* invalidos[] = {"", " ", "abc", "1,2,3", "1a", "--1", "+", "-", ",", "1E",
                               "E5", "1,5.3", "1 2", "1/2", "1e5x"};
    for (const char* t : invalidos) {
        SCOPED_TRACE(t);
        try {
            TextoParaNumero(t);
            ADD_FAILURE() << "aceitou";
        } catch (const Falha& f) {
            EXPECT_EQ(f.numero(), 13);
            EXPECT_EQ(f.descricao(), "Tipos incompatíveis");
        }
    }
    try {
        TextoParaNumero(std::string(310, '9')); // typed digit by digit in the calculator
        ADD_FAILURE();
    } catch (const Falha& f) {
        EXPECT_EQ(f.numero(), 6);
    }
    // Read whole, however long; an exponent beyond any int is still a number.
    EXPECT_EQ(TextoParaNumero(std::string(3000, '0') + "12,5" + std::string(3000, '0')), 12.5);
    EXPECT_EQ(TextoParaNumero("1" + std::string(2500, '0') + "E-2500"), 1);
    EXPECT_EQ(TextoParaNumero("1E-99999999999"), 0);
    for (const std::string& t : {std::string("1E400"), std::string("-1E400"),
                                 std::string("1E99999999999"), std::string(2500, '9')}) {
        try {
            TextoParaNumero(t);
            ADD_FAILURE() << t;
        } catch (const Falha& f) {
            EXPECT_EQ(f.numero(), 6);
        }
    }
}

TEST(PlataformaNumero, NumeroParaTexto) {
    struct Caso {
        double valor;
        const char* texto;
    };
    const Caso casos[] = {
        {0, "0"},
        {1, "1"},
        {-1.5, "-1,5"},
        {12.5, "12,5"},
        {0.0001, "0,0001"},
        {0.00015, "0,00015"},
        {0.000015, "1,5E-05"},
        {1e15, "1E+15"},
        {999999999999999, "999999999999999"},
        {123456789012345678.0, "1,23456789012346E+17"},
        {0.1 + 0.2, "0,3"},
        {1.0 / 3, "0,333333333333333"},
        {2.0 / 3, "0,666666666666667"},
        {101.325249795, "101,325249795"},
        {1e100, "1E+100"},
        {15000.000000000002, "15000"},
        {1.00051, "1,00051"},
        {0.99999999999999989, "1"},
        {9.9999999999999995e-5, "0,0001"},
        {HUGE_VAL, "1,#INF"}, // never made by the program's arithmetic
        {-HUGE_VAL, "-1,#INF"},
        {std::nan(""), "-1,#IND"},
    };
    for (const Caso& c : casos) EXPECT_EQ(NumeroParaTexto(c.valor), c.texto) << c.texto;
    EXPECT_EQ(NumeroSimplesParaTexto(0.102f), "0,102");
}

TEST(PlataformaNumero, ValLenienteECInt) {
    EXPECT_EQ(Val(" 12 "), 12);
    EXPECT_EQ(Val("1 2"), 12);
    EXPECT_EQ(Val("3,5"), 3);
    EXPECT_EQ(Val("3.5"), 3.5);
    EXPECT_EQ(Val("abc"), 0);
    EXPECT_EQ(Val(""), 0);
    EXPECT_EQ(Val("&H1F"), 31);
    EXPECT_EQ(Val("&H" + std::string(18, '9')), 11068046444225730969.0); // 16 digits taken, no wrap
    EXPECT_EQ(Val("&H1G"), 1); // G is no hex digit
    EXPECT_EQ(Val("-7x"), -7);
    EXPECT_EQ(CInt(2.5), 2);
    EXPECT_EQ(CInt(3.5), 4);
    EXPECT_EQ(CInt(-0.5), 0);
    EXPECT_THROW(CInt(40000), Falha);
}

TEST(PlataformaNumero, AritmeticaFalhaComoAPlataforma) {
    auto numero = [](auto f) {
        try {
            f();
        } catch (const Falha& e) {
            return e.numero();
        }
        return 0;
    };
    EXPECT_EQ(numero([] { return Num(1) / 0; }), 11);
    EXPECT_EQ(numero([] { return Num(0) / 0; }), 6);
    EXPECT_EQ(numero([] { return Sqr(-1); }), 5);
    EXPECT_EQ(numero([] { return Log(0); }), 5);
    EXPECT_EQ(numero([] { return Pot(-2, 0.5); }), 5);
    EXPECT_EQ(numero([] { return Num(1e300) * 1e300; }), 6);
    EXPECT_EQ(numero([] { return String(-1, "_"); }), 5);
    EXPECT_EQ(Pot(-2, 2).valor(), 4);
    EXPECT_EQ(Pot(0, 2.5).valor(), 0);
    EXPECT_EQ(Variante().Numero().valor(), 0);
    EXPECT_EQ(numero([] { return Variante("abc").Numero(); }), 13);
    EXPECT_EQ(Variante(12.5).Texto(), "12,5");
}

} // namespace
} // namespace tramelo

namespace tramelo {
namespace {

// The default text form against the exact rounding to 15 digits, over many
// doubles of every magnitude, ties included.
TEST(PlataformaNumero, QuinzeDigitosComoOArredondamentoExato) {
    auto referencia = [](double x) {
        char buf[64];
        auto r = std::to_chars(buf, buf + sizeof buf, x, std::chars_format::scientific, 14);
        double arredondado = 0;
        std::from_chars(buf, r.ptr, arredondado);
        return arredondado;
    };
    uint64_t estado = 88172645463325252ull;
    for (int i = 0; i < 200000; ++i) {
        estado ^= estado << 13;
        estado ^= estado >> 7;
        estado ^= estado << 17;
        double x;
        if (i % 4 == 0) x = static_cast<double>(estado % 100000000000000000ull) / 100; // ties
        else {
            uint64_t bits = (estado & 0x000FFFFFFFFFFFFFull) | (uint64_t{1000 + estado % 100} << 52);
            std::memcpy(&x, &bits, sizeof x);
        }
        std::string texto = NumeroParaTexto(x);
        ASSERT_EQ(TextoParaNumero(texto), referencia(x)) << texto;
    }
}

} // namespace
} // namespace tramelo
