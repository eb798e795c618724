// The desk calculator's engine: a four-function text machine. The display is a
// string the keys type into; operands stay the display's text until an
// operation needs their numbers, and operations run in the order of the keys,
// each on the running result, with no precedence.
#pragma once

#include "plataforma/falha.h"
#include "plataforma/variante.h"

#include <optional>
#include <string>
#include <string_view>

namespace tramelo {

// The state of one calculator, as its window holds it.
struct Calculadora {
    std::string Readout = "0,"; // the display, the number being worked on
    Variante Operando1;         // left operand and running result; C sets it to 0
    Variante Operando2;         // right operand; C sets it to 0
    bool TemDecimal = false;    // the separator is already in the number being typed
    short QtdOperandos = 0;     // operands pending
    // Class of the last key: "NONE", "NUMS", "OPS", "Ops" (percent), "CE" or "NEG".
    std::string UltimaEntrada = "NONE";
    std::string Pendente = " ";       // pending operation: " ", "+", "-", "*", "/", "=" or "%"
    Variante LeituraAnterior;         // the display as it was when an operator was pressed
    std::string CaptionDecimal = ","; // the caption of the separator key
};

// Operator keys by index.
inline constexpr const char* CaptionOperador[5] = {"/", "+", "*", "-", "="};

// What an operator key leaves for the window.
struct SaidaOperador {
    // "=" was taken: the calculator ends and `resultado` is the text that
    // leaves, the display exactly as it stands ("12," keeps its separator).
    std::optional<std::string> resultado;
    // A failure the calculator can't go on from: a lone "-" taken as a number,
    // an overflow. The window reports it and closes, writing nothing.
    std::optional<ErroExecucao> erro;
};

// The reset, at load and from C.
void Form_Load(Calculadora& c);
// C: clears the operands too.
void cmdCancel_Click(Calculadora& c);
// CE: clears the display only; the pending operation stays.
void cmdCancelEntry_Click(Calculadora& c);
void cmdDecimal_Click(Calculadora& c);
// The digit `Index`, 0 to 9; any other index is no key and does nothing.
void Number_Click(Calculadora& c, short Index);
// The operator of `Index` (see CaptionOperador); a division by zero is told in
// a message box through the installed services.
SaidaOperador cmdOperador_Click(Calculadora& c, short Index);
// Percent: the display divided by 100, pending as a multiplication.
std::optional<ErroExecucao> cmdPercent_Click(Calculadora& c);

// Types a field's text into the calculator as a user would: "," presses the
// separator, a digit its key. Any other character is a failure (13), with the
// keys before it already typed.
std::optional<ErroExecucao> Cola(Calculadora& c, std::string_view Texto);

} // namespace tramelo
