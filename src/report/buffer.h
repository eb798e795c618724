// Appending to a report's line store. Every stored line begins with one blank
// that the buffer adds itself.
#pragma once

#include "plataforma/variante.h"

#include <string>
#include <string_view>

namespace tramelo {

struct FrmRelatorio;

void AddRel(FrmRelatorio& r, std::string_view item);

// Appends a line of five columns. A column that fits is padded to its width
// with the first character of `preenche`; one that doesn't is cut to width - 1
// and closed by the whole of `preenche`; a width below 1 takes the text whole.
void AddRel2(FrmRelatorio& r, std::string_view preenche, const Variante& campo1, short largura1,
             const Variante& campo2, short largura2, const Variante& campo3, short largura3,
             const Variante& campo4, short largura4, const Variante& campo5, short largura5);

} // namespace tramelo
