// The lines of an exported report: a plain text data sheet with the header
// fields and the report lines without their leading blank.
#pragma once

#include <string>
#include <vector>

namespace tramelo {

struct FrmRelatorio;

// In file order, without line ends: the title line, the three header lines
// (label from its second character, a blank, the field), each report line
// from its second character, and a closing line of 78 "=".
std::vector<std::string> LinhasExportacao(const FrmRelatorio& r);

// The same lines added to `texto`, each followed by "\n": the batch tool
// prints thousands of reports and copies each line once.
void AnexaExportacao(const FrmRelatorio& r, std::string& texto);

} // namespace tramelo
