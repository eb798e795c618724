// The calculation file (.trl): comma-delimited Windows-1252 text with CR LF,
// its meaning in the order of its items. Header strings, the three
// selections, the tag, then one line per row in use: index, text, unit
// position.
#pragma once

#include <string>

namespace tramelo {

class FrmCalcTramelo;

// Writes the document; with SalvarComo it first asks for the name. Ok turns
// true once lines 1 to 7 are written.
void TrameloSave(FrmCalcTramelo& f, bool SalvarComo, bool& Ok);

// Replaces the window's content with the file's; an empty name asks for it.
void TrameloOpen(FrmCalcTramelo& f, const std::string& Arquivo);

} // namespace tramelo
