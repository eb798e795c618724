// The date and time texts of the regional settings (Brazilian Portuguese).
#pragma once

#include "plataforma/relogio.h"

#include <string>

namespace tramelo {

// "Short Time": "07:05".
std::string HoraCurta(const Momento& m);
// "Long Date": "segunda-feira, 23 de novembro de 2026".
std::string DataLonga(const Momento& m);
// "Short Date": "23/11/2026".
std::string DataCurta(const Momento& m);

struct FrmRelatorio;

// The "..." button: the current time and date into txtData, which takes the focus.
void cmdAgora_Click(FrmRelatorio& r);

} // namespace tramelo
