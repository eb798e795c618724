#include "calculator/calculadora.h"

#include "plataforma/ambiente.h"
#include "plataforma/num.h"
#include "plataforma/numero.h"
#include "plataforma/texto.h"

namespace tramelo {

namespace {

// The regional settings' separator: Format(0, "."), Format(0, "0.") and
// Format(0, "-0.") under the decimal comma.
constexpr const char* Separador = ",";
constexpr const char* Zero = "0,";
constexpr const char* ZeroNegativo = "-0,";

// A 16-bit counter goes past 32767 only as an overflow.
void Incrementa(short& contador) {
    if (contador == 32767) throw Falha(Estouro);
    ++contador;
}

ErroExecucao ComoErro(const Falha& f) {
    return {f.numero(), f.descricao()};
}

// Step 3 of an operator with two operands pending: the pending operation on
// the running result. Numbers are read from the operands' texts here, so a
// lone "-" fails with 13 and a result beyond a double with 6.
void Opera(Calculadora& c) {
    c.Operando2 = c.LeituraAnterior;
    const std::string& p = c.Pendente;
    if (p == "+") {
        c.Operando1 = c.Operando1.Numero() + c.Operando2.Numero();
    } else if (p == "-") {
        c.Operando1 = c.Operando1.Numero() - c.Operando2.Numero();
    } else if (p == "*" || p == "%") {
        c.Operando1 = c.Operando1.Numero() * c.Operando2.Numero();
    } else if (p == "/") {
        if (c.Operando2.Numero() == 0.0)
            MsgBox("Não é possível dividir por zero", vbOKOnly + vbExclamation, "Calculadora");
        else
            c.Operando1 = c.Operando1.Numero() / c.Operando2.Numero();
    } else if (p == "=") {
        c.Operando1 = c.Operando2.Numero();
    }
    c.Readout = c.Operando1.Texto();
    c.QtdOperandos = 1;
}

void Operador(Calculadora& c, const std::string& C, SaidaOperador& saida) {
    c.LeituraAnterior = c.Readout;
    if (c.UltimaEntrada == "NUMS") Incrementa(c.QtdOperandos);
    switch (c.QtdOperandos) {
    case 0:
        // A "-" before any number is the sign of the number to come.
        if (C == "-" && c.UltimaEntrada != "NEG") {
            c.Readout = "-" + c.Readout;
            c.UltimaEntrada = "NEG";
        }
        break;
    case 1:
        // After an operator a "-" is again a sign; right after a number it
        // is the subtraction.
        c.Operando1 = c.Readout;
        if (C == "-" && c.UltimaEntrada != "NUMS" && c.Pendente != "=") {
            c.Readout = "-";
            c.UltimaEntrada = "NEG";
        }
        break;
    case 2:
        Opera(c);
        break;
    default:
        // Reached through repeated percent: nothing computes until C.
        break;
    }
    if (c.UltimaEntrada != "NEG") {
        c.UltimaEntrada = "OPS";
        c.Pendente = C;
    }
    if (c.Pendente == "=") saida.resultado = c.Readout;
}

} // namespace

void Form_Load(Calculadora& c) {
    c.TemDecimal = false;
    c.QtdOperandos = 0;
    c.UltimaEntrada = "NONE";
    c.Pendente = " ";
    c.Readout = Zero;
    c.CaptionDecimal = Separador;
}

void cmdCancel_Click(Calculadora& c) {
    c.Readout = Zero;
    c.Operando1 = 0.0;
    c.Operando2 = 0.0;
    Form_Load(c);
}

void cmdCancelEntry_Click(Calculadora& c) {
    c.Readout = Zero;
    c.TemDecimal = false;
    c.UltimaEntrada = "CE";
}

void cmdDecimal_Click(Calculadora& c) {
    if (c.UltimaEntrada == "NEG")
        c.Readout = ZeroNegativo;
    else if (c.UltimaEntrada != "NUMS")
        c.Readout = Zero;
    // Pressed again, it changes nothing: the digits simply go after it.
    c.TemDecimal = true;
    c.UltimaEntrada = "NUMS";
}

void Number_Click(Calculadora& c, short Index) {
    if (Index < 0 || Index > 9) return;
    const std::string digito(1, static_cast<char>('0' + Index));
    if (c.UltimaEntrada != "NUMS") {
        // A new number starts from the separator alone.
        c.Readout = Separador;
        c.TemDecimal = false;
    }
    if (c.TemDecimal) {
        c.Readout += digito;
    } else {
        // A whole number keeps its separator at the end: "12,".
        c.Readout = c.Readout.substr(0, c.Readout.find(Separador)) + digito + Separador;
    }
    if (c.UltimaEntrada == "NEG") c.Readout = "-" + c.Readout;
    c.UltimaEntrada = "NUMS";
}

SaidaOperador cmdOperador_Click(Calculadora& c, short Index) {
    SaidaOperador saida;
    if (Index < 0 || Index > 4) return saida;
    try {
        Operador(c, CaptionOperador[Index], saida);
    } catch (const Falha& f) {
        saida.erro = ComoErro(f);
    }
    return saida;
}

std::optional<ErroExecucao> cmdPercent_Click(Calculadora& c) {
    try {
        c.Readout = NumeroParaTexto((Num(TextoParaNumero(c.Readout)) / 100).valor());
        // A class of its own, unlike "OPS": it only counts as neither a number nor a sign.
        c.UltimaEntrada = "Ops";
        c.Pendente = "%";
        Incrementa(c.QtdOperandos);
        c.TemDecimal = true;
    } catch (const Falha& f) {
        return ComoErro(f);
    }
    return std::nullopt;
}

std::optional<ErroExecucao> Cola(Calculadora& c, std::string_view Texto) {
    const int n = Len(Texto);
    for (int i = 1; i <= n; ++i) {
        const std::string ch = Mid(Texto, i, 1);
        if (ch == ",") {
            cmdDecimal_Click(c);
        } else if (ch.size() == 1 && ch[0] >= '0' && ch[0] <= '9') {
            Number_Click(c, static_cast<short>(ch[0] - '0'));
        } else {
            // Each character is read as a number of its own: a sign, a point or a
            // letter is no number.
            return ComoErro(Falha(TiposIncompativeis));
        }
    }
    return std::nullopt;
}

} // namespace tramelo
