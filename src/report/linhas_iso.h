// The ISO 5167-2:2003 check as a reader wants it: a verdict first, the
// figures in the program's own number text, rounded as the report rounds
// its results, the permanent loss in the user's unit, each uncertainty only
// where the standard gives one. The same lines in the report window's tab,
// on the data sheet's second page and after a report of tramelo-calc.
#pragma once

#include "iso5167/iso5167.h"

#include <string>
#include <vector>

namespace tramelo {

inline constexpr const char* TituloIso5167 = "ISO 5167-2:2003 - segunda opinião";

// "Dentro dos limites de uso", or "Fora dos limites de uso: " and the names
// of the limits crossed ("β, ReD").
std::string VeredictoIso5167(const ResultadoIso& r);

// The section without its title: the verdict, the figures, the limits.
std::vector<std::string> CorpoIso5167(const ResultadoIso& r);

// The title, a blank line and the body.
std::vector<std::string> LinhasIso5167(const ResultadoIso& r);

} // namespace tramelo
