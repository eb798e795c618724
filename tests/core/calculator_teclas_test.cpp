// The desk calculator driven key by key, as a user presses them.
#include "calculator/calculadora.h"
#include "calculator/lugar.h"

#include "caixas_roteiro.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace tramelo {
namespace {

// One key: digits, "," the separator, the operators / + * - =, "%" percent,
// "E" CE and "C" C. Returns what the key left: a result leaving or a failure.
SaidaOperador Tecla(Calculadora& c, char k) {
    if (const auto op = std::string_view("/+*-=").find(k); op != std::string_view::npos)
        return cmdOperador_Click(c, static_cast<short>(op));
    if (k == '%') return {std::nullopt, cmdPercent_Click(c)};
    if (k == ',') cmdDecimal_Click(c);
    else if (k == 'E') cmdCancelEntry_Click(c);
    else if (k == 'C') cmdCancel_Click(c);
    else Number_Click(c, static_cast<short>(k - '0'));
    return {};
}

// Presses the keys from a fresh calculator. The window closes on the first
// result or failure, so the keys stop there.
SaidaOperador Teclas(Calculadora& c, const std::string& teclas) {
    Form_Load(c);
    for (char k : teclas)
        if (SaidaOperador s = Tecla(c, k); s.resultado || s.erro) return s;
    return {};
}

TEST(CalculatorTeclas, SequenciasTrabalhadas) {
    // What leaves on "=" (or nullptr), then the machine's state and the boxes shown.
    const struct {
        const char *teclas, *display, *resultado;
        short qtd;
        const char *pendente, *ultima;
        size_t caixas;
    } casos[] = {
        // Typing numbers: a whole number keeps its separator at the end.
        {"", "0,", nullptr, 0, " ", "NONE", 0}, {",5", "0,5", nullptr, 0, " ", "NUMS", 0},
        {"007", "007,", nullptr, 0, " ", "NUMS", 0},
        // The sign of the number to come, and its guard.
        {"-+*/", "-0,", nullptr, 0, " ", "NEG", 0}, {"-5-2=", "-7", "-7", 1, "=", "OPS", 0},
        {"5+-,5=", "4,5", "4,5", 1, "=", "OPS", 0},
        // Running results, no precedence.
        {"5+3+", "8", nullptr, 1, "+", "OPS", 0}, {"2+3*4=", "20", "20", 1, "=", "OPS", 0},
        {"10/4=", "2,5", "2,5", 1, "=", "OPS", 0}, {"0,1+0,2=", "0,3", "0,3", 1, "=", "OPS", 0},
        // "=" with one operand lets the display leave as it is.
        {"7=", "7,", "7,", 1, "=", "OPS", 0}, {"=", "0,", "0,", 0, "=", "OPS", 0},
        // Division by zero: told, and the running result stays.
        {"8/0+2=", "10", "10", 1, "=", "OPS", 1},
        // Percent multiplies by the percentage.
        {"200+10%", "0,1", nullptr, 2, "%", "Ops", 0}, {"200+10%=", "20", "20", 1, "=", "OPS", 0},
        {"5+3%=", "0,15", "0,15", 1, "=", "OPS", 0}, {"50%5", "5,", nullptr, 1, "%", "NUMS", 0},
        // Twice in a row: three operands pending, nothing computes until C.
        {"5+3%%", "0,0003", nullptr, 3, "%", "Ops", 0}, {"5+3%%7+=", "7,", "7,", 4, "=", "OPS", 0},
        // CE clears the entry only; C clears all.
        {"5+E3=", "8", "8", 1, "=", "OPS", 0}, {"5+3E", "0,", nullptr, 1, "+", "CE", 0},
        {"5+3C7=", "7,", "7,", 1, "=", "OPS", 0},
    };
    for (const auto& k : casos) {
        SCOPED_TRACE(k.teclas);
        teste::CaixasRoteiro caixas;
        Calculadora c;
        SaidaOperador s = Teclas(c, k.teclas);
        EXPECT_FALSE(s.erro);
        EXPECT_EQ(s.resultado, k.resultado ? std::optional<std::string>(k.resultado)
                                           : std::nullopt);
        EXPECT_EQ(std::tie(c.Readout, c.QtdOperandos, c.Pendente, c.UltimaEntrada),
                  std::tie(k.display, k.qtd, k.pendente, k.ultima));
        EXPECT_EQ(caixas.mostradas.size(), k.caixas);
        for (const auto& m : caixas.mostradas) EXPECT_EQ(m.estilo, vbOKOnly + vbExclamation);
    }
}

// What the machine can't go on from is handed back as a failure, never thrown,
// and nothing leaves.
TEST(CalculatorTeclas, FalhasFatais) {
    const std::string noves(200, '9');
    const std::pair<std::string, ErroExecucao> casos[] = {
        {"5+--3=", {13, "Tipos incompatíveis"}}, // a lone "-" became the left operand
        {"5+-%", {13, "Tipos incompatíveis"}},   // percent of a lone "-"
        {noves + "*" + noves + "=", {6, "Estouro"}},
        {noves + "/," + std::string(200, '0') + "1=", {6, "Estouro"}},
    };
    for (const auto& [teclas, erro] : casos) {
        Calculadora c;
        SaidaOperador s = Teclas(c, teclas);
        EXPECT_EQ(s.erro, erro) << teclas.substr(0, 12);
        EXPECT_FALSE(s.resultado);
    }
    // The count of pending operands is a 16-bit integer.
    Calculadora c;
    Form_Load(c);
    for (int i = 0; i < 32767; ++i) ASSERT_FALSE(cmdPercent_Click(c));
    EXPECT_EQ(cmdPercent_Click(c), (ErroExecucao{6, "Estouro"}));
}

TEST(CalculatorTeclas, ColaDigitaOTextoDoCampo) {
    // The separator is the literal comma; anything else fails, with the keys
    // before it typed.
    const std::tuple<const char*, const char*, const char*, bool> casos[] = {
        {"", "0,", "NONE", false},   {"1,,5", "1,5", "NUMS", false}, {"-5", "0,", "NONE", true},
        {"12.5", "12,", "NUMS", true}, {"5º", "5,", "NUMS", true},
        {"90,05", "90,05", "NUMS", false}, // the first and last digits are digits too
    };
    for (const auto& [texto, display, ultima, falha] : casos) {
        Calculadora c;
        Form_Load(c);
        const std::optional<ErroExecucao> erro = Cola(c, texto);
        EXPECT_EQ(c.Readout + " " + c.UltimaEntrada, std::string(display) + " " + ultima) << texto;
        EXPECT_EQ(erro, falha ? std::optional(ErroExecucao{13, "Tipos incompatíveis"})
                              : std::nullopt);
    }
}

TEST(CalculadoraTeclas, AbreSobOuSobreOCampo) {
    // A field from 300 to 321 on screen, in a calculation window ending at
    // the row's bottom (the first number); the calculator is 190 high with its
    // title bar. An exact fit goes above, ending at the field's top.
    const std::pair<int, int> casos[] = {{512, 321}, {511, 110}, {400, 110}};
    for (const auto& [fundoJanela, y] : casos) {
        const PontoTela p = LugarDaCalculadora(190, 40, 300, 321, fundoJanela);
        EXPECT_EQ(std::pair(p.x, p.y), std::pair(40, y)) << fundoJanela;
    }
}

} // namespace
} // namespace tramelo
