// The ISO 5167-2:2003 check as a reader wants it: a verdict first, the
// figures in the program's own number text, rounded as the report rounds
// its results, the permanent loss in the user's unit, each uncertainty only
// where the standard gives one. The same lines in the report window's tab,
// on the data sheet's second page and after a report of tramelo-calc.
#pragma once

#include "iso5167/iso5167.h"

#include <string>
#include <string_view>
#include <vector>

namespace tramelo {

inline constexpr const char* TituloIso5167 = "ISO 5167-2:2003 - segunda opinião";

// A figure rounded as the report rounds its results (`digitos` + 1
// significant digits), in the program's own number text.
std::string Arredondado(double v, int digitos);

// The report's line: the label filled with "_" to column 35, the value, and
// the unit, when there is one, after a blank.
std::string LinhaIso(std::string_view rotulo, const std::string& valor,
                     std::string_view unidade = {});

// The name a limit of use goes by in a verdict: "β" for "beta", "d" for
// "d (mm)", "D" for "D (mm)".
std::string NomeCurto(const std::string& nome);

// "Dentro dos limites de uso", or "Fora dos limites de uso: " and the names
// of the limits crossed ("β, ReD").
std::string VeredictoIso5167(const ResultadoIso& r);

// The section without its title: the verdict, the figures, the limits.
std::vector<std::string> CorpoIso5167(const ResultadoIso& r);

// The title, a blank line and the body.
std::vector<std::string> LinhasIso5167(const ResultadoIso& r);

} // namespace tramelo
