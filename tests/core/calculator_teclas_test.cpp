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
    switch (k) {
    case ',':
        cmdDecimal_Click(c);
        return {};
    case '%':
        return {std::nullopt, cmdPercent_Click(c)};
    case 'E':
        cmdCancelEntry_Click(c);
        return {};
    case 'C':
        cmdCancel_Click(c);
        return {};
    case '/':
        return cmdOperador_Click(c, 0);
    case '+':
        return cmdOperador_Click(c, 1);
    case '*':
        return cmdOperador_Click(c, 2);
    case '-':
        return cmdOperador_Click(c, 3);
    case '=':
        return cmdOperador_Click(c, 4);
    default:
        Number_Click(c, static_cast<short>(k - '0'));
        return {};
    }
}

// Presses the keys from a fresh calculator. The window closes on the first
// result or failure, so the keys stop there.
SaidaOperador Teclas(Calculadora& c, const std::string& teclas) {
    Form_Load(c);
    for (char k : teclas) {
        SaidaOperador s = Tecla(c, k);
        if (s.resultado || s.erro) return s;
    }
    return {};
}

TEST(CalculatorTeclas, SequenciasTrabalhadas) {
    struct Caso {
        const char* teclas;
        const char* display;
        const char* resultado; // what leaves on "=", or nullptr
        short qtd;
        const char* pendente;
        const char* ultima;
        int caixas; // message boxes shown
    };
    const Caso casos[] = {
        // Typing numbers: a whole number keeps its separator at the end.
        {"", "0,", nullptr, 0, " ", "NONE", 0},
        {"1", "1,", nullptr, 0, " ", "NUMS", 0},
        {"12,5", "12,5", nullptr, 0, " ", "NUMS", 0},
        {",", "0,", nullptr, 0, " ", "NUMS", 0},
        {",5", "0,5", nullptr, 0, " ", "NUMS", 0},
        {"007", "007,", nullptr, 0, " ", "NUMS", 0},
        // The sign of the number to come, and its guard.
        {"-", "-0,", nullptr, 0, " ", "NEG", 0},
        {"-3", "-3,", nullptr, 0, " ", "NUMS", 0},
        {"-+*/", "-0,", nullptr, 0, " ", "NEG", 0},
        {"-5-2=", "-7", "-7", 1, "=", "OPS", 0},
        {"5+-3=", "2", "2", 1, "=", "OPS", 0},
        {"5+-,5=", "4,5", "4,5", 1, "=", "OPS", 0},
        // Running results, no precedence.
        {"5+3+", "8", nullptr, 1, "+", "OPS", 0},
        {"5+3+7=", "15", "15", 1, "=", "OPS", 0},
        {"2+3*4=", "20", "20", 1, "=", "OPS", 0},
        {"10/4=", "2,5", "2,5", 1, "=", "OPS", 0},
        {"1/3=", "0,333333333333333", "0,333333333333333", 1, "=", "OPS", 0},
        {"0,1+0,2=", "0,3", "0,3", 1, "=", "OPS", 0},
        // "=" with one operand lets the display leave as it is.
        {"7=", "7,", "7,", 1, "=", "OPS", 0},
        {"=", "0,", "0,", 0, "=", "OPS", 0},
        // Division by zero: told, and the running result stays.
        {"8/0=", "8,", "8,", 1, "=", "OPS", 1},
        {"8/,=", "8,", "8,", 1, "=", "OPS", 1},
        {"8/0+2=", "10", "10", 1, "=", "OPS", 1},
        // Percent multiplies by the percentage.
        {"200+10%", "0,1", nullptr, 2, "%", "Ops", 0},
        {"200+10%=", "20", "20", 1, "=", "OPS", 0},
        {"5+3%=", "0,15", "0,15", 1, "=", "OPS", 0},
        {"50%5", "5,", nullptr, 1, "%", "NUMS", 0},
        // Twice in a row: three operands pending, nothing computes until C.
        {"5+3%%", "0,0003", nullptr, 3, "%", "Ops", 0},
        {"5+3%%7+=", "7,", "7,", 4, "=", "OPS", 0},
        // CE clears the entry only; C clears all.
        {"5+E3=", "8", "8", 1, "=", "OPS", 0},
        {"5+3E", "0,", nullptr, 1, "+", "CE", 0},
        {"5+3C7=", "7,", "7,", 1, "=", "OPS", 0},
    };
    for (const Caso& k : casos) {
        SCOPED_TRACE(k.teclas);
        teste::CaixasRoteiro caixas;
        Calculadora c;
        SaidaOperador s = Teclas(c, k.teclas);
        EXPECT_FALSE(s.erro);
        EXPECT_EQ(c.Readout, k.display);
        if (k.resultado)
            EXPECT_EQ(s.resultado, std::optional<std::string>(k.resultado));
        else
            EXPECT_FALSE(s.resultado);
        EXPECT_EQ(c.QtdOperandos, k.qtd);
        EXPECT_EQ(c.Pendente, k.pendente);
        EXPECT_EQ(c.UltimaEntrada, k.ultima);
        ASSERT_EQ(caixas.mostradas.size(), static_cast<size_t>(k.caixas));
        for (const auto& m : caixas.mostradas) {
            EXPECT_EQ(m.texto, "Não é possível dividir por zero");
            EXPECT_EQ(m.titulo, "Calculadora");
            EXPECT_EQ(m.estilo, 48);
        }
    }
}

// What the machine can't go on from is handed back as a failure, never thrown,
// and nothing leaves.
TEST(CalculatorTeclas, FalhasFatais) {
    const std::string noves200(200, '9');
    struct Caso {
        std::string teclas;
        int numero;
        const char* descricao;
    };
    const Caso casos[] = {
        {"5+--3=", 13, "Tipos incompatíveis"}, // a lone "-" became the left operand
        {"5+-%", 13, "Tipos incompatíveis"},   // percent of a lone "-"
        {noves200 + "*" + noves200 + "=", 6, "Estouro"},
        {noves200 + "/," + std::string(200, '0') + "1=", 6, "Estouro"},
    };
    for (const Caso& k : casos) {
        SCOPED_TRACE(k.teclas.substr(0, 12));
        Calculadora c;
        SaidaOperador s = Teclas(c, k.teclas);
        ASSERT_TRUE(s.erro);
        EXPECT_EQ(*s.erro, (ErroExecucao{k.numero, k.descricao}));
        EXPECT_FALSE(s.resultado);
    }
    // The count of pending operands is a 16-bit integer.
    Calculadora c;
    Form_Load(c);
    for (int i = 0; i < 32767; ++i)
        ASSERT_FALSE(cmdPercent_Click(c));
    EXPECT_EQ(c.QtdOperandos, 32767);
    EXPECT_EQ(cmdPercent_Click(c), (ErroExecucao{6, "Estouro"}));
}

TEST(CalculatorTeclas, ColaDigitaOTextoDoCampo) {
    struct Caso {
        const char* texto;
        const char* display;
        const char* ultima;
        bool falha;
    };
    const Caso casos[] = {
        {"", "0,", "NONE", false},
        {"7", "7,", "NUMS", false},
        {"12,5", "12,5", "NUMS", false},
        {"1,,5", "1,5", "NUMS", false},
        // The separator is the literal comma; anything else fails, with the
        // keys before it typed.
        {"-5", "0,", "NONE", true},
        {"1a", "1,", "NUMS", true},
        {"12.5", "12,", "NUMS", true},
        {"5º", "5,", "NUMS", true},
    };
    for (const Caso& k : casos) {
        SCOPED_TRACE(k.texto);
        Calculadora c;
        Form_Load(c);
        std::optional<ErroExecucao> erro = Cola(c, k.texto);
        EXPECT_EQ(c.Readout, k.display);
        EXPECT_EQ(c.UltimaEntrada, k.ultima);
        if (k.falha)
            EXPECT_EQ(erro, (ErroExecucao{13, "Tipos incompatíveis"}));
        else
            EXPECT_FALSE(erro);
    }
    // A field holding "12,5", then +, 1, = writes "13,5" back.
    Calculadora c;
    Form_Load(c);
    Cola(c, "12,5");
    Tecla(c, '+');
    Tecla(c, '1');
    EXPECT_EQ(Tecla(c, '=').resultado, std::optional<std::string>("13,5"));
}

TEST(CalculadoraTeclas, AbreSobOuSobreOCampo) {
    // A field from 300 to 321 on screen, in a calculation window ending at
    // the row's bottom; the calculator is 190 high with its title bar.
    struct Caso {
        int fundoJanela, x, y;
    } casos[] = {
        {512, 40, 321}, // room under the field: it opens there
        {511, 40, 110}, // an exact fit goes above, ending at the field's top
        {400, 40, 110}, // a field near the window's bottom
    };
    for (const Caso& c : casos) {
        const PontoTela p = LugarDaCalculadora(190, 40, 300, 321, c.fundoJanela);
        EXPECT_EQ(p.x, c.x) << c.fundoJanela;
        EXPECT_EQ(p.y, c.y) << c.fundoJanela;
    }
}

} // namespace
} // namespace tramelo
