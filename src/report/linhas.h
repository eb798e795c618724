// The layout of a report line and of a section heading, and the rounding of
// the results. Lines are for a fixed-pitch font, 78 characters wide.
#pragma once

#include "plataforma/num.h"

#include <string_view>

namespace tramelo {

struct FrmRelatorio;

// (78 - length) / 2 copies of "=" on each side of the title.
void Cabecalho(FrmRelatorio& r, std::string_view titulo);

// Label, fill to column 36, the value; with a unit, fill again so that the
// line ends with the unit at column 78. A value too long for the line makes a
// count negative, which fails (5).
void LinhaRelatorio(FrmRelatorio& r, std::string_view rotulo, std::string_view valor,
                    std::string_view unidade);
void LinhaRelatorio(FrmRelatorio& r, std::string_view rotulo, double valor,
                    std::string_view unidade);

// Valor rounded to `digitos` decimals after its first significant digit.
// Valor must be positive: the logarithm of 0 or less fails (5).
Num Arredonda(Num valor, int digitos);

} // namespace tramelo
