// Numbers and their text under Brazilian regional settings: "," is the decimal
// separator and "." the thousands separator. Written by hand, never through
// the C locale, so the text is the same on every machine.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tramelo {

// Text to number, as the platform converts a text in arithmetic: blanks around
// it, an optional sign, digits with "." (ignored) and "," (decimal), an
// optional exponent. "12," is 12. Returns nothing for any other text.
std::optional<double> LeNumero(std::string_view texto);

// The same, failing with 13 (type mismatch) where the text is no number and
// with 6 (overflow) where it is beyond the range of a double.
double TextoParaNumero(std::string_view texto);

// A number typed outside the rows (the water window, the command line),
// where a point is the habit of many: with a comma in it, LeNumero's rules;
// without one, "." is the decimal mark. Nothing for any other text.
std::optional<double> LeNumeroPontoOuVirgula(std::string_view texto);

// The default text form of a number: at most 15 significant digits, no
// trailing zeros, decimal comma; fixed notation for 1E-4 <= |x| < 1E15,
// otherwise "1,5E-05" or "1,23456789012346E+17".
std::string NumeroParaTexto(double x);

// The same, appending to `saida` (no allocation when it has room).
void AcrescentaNumero(std::string& saida, double x);

// The default text form with at most `digitos` significant digits, correctly
// rounded: a figure worked out by the program, written where a person reads it.
std::string NumeroParaTexto(double x, int digitos);

// A single-precision number in its default text form (at most 7 digits).
std::string NumeroSimplesParaTexto(float x);

// The classic lenient reading of a number: blanks skipped, digits as far as
// they go, "." as the decimal mark, "&H" hexadecimal; no number gives 0.
double Val(std::string_view texto);

// Rounds half to even into a 16-bit integer, failing with 6 when it doesn't fit.
short CInt(double x);

} // namespace tramelo
