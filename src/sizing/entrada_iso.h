// The values of a run of "Calcular", after its unit conversions, as the
// point the ISO 5167-2 check wants.
#pragma once

#include "iso5167/iso5167.h"

namespace tramelo {

struct Execucao;

EntradaIso EntradaIso5167(const Execucao& x, int Fluido, int Placa, int Tomada, bool concluido);

} // namespace tramelo
