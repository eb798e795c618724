// The tap equations: for a diameter ratio, the discharge coefficient of the
// tap kind corrected for the Reynolds number and times Beta squared, and the
// lower Reynolds limit the report shows. Empirical correlations with the pipe
// diameter rewritten from inches to millimetres; their constants are used to
// the digit as written.
#pragma once

#include "plataforma/num.h"

namespace tramelo {

// Tomada 1 "Flange Taps", 2 "Radius Taps", 3 "Vena Contracta", 4 "Corner
// Taps", 5 "Pipe Taps(2 1/2D e 8D)". Sets CoefTomada; sets ReynoldsLimite,
// not below 5000, for taps 1 to 4 (tap 5 leaves it as it was).
void EquacaoTomada(int Tomada, Num Beta, Num D, Num Reynolds, Num& CoefTomada,
                   Num& ReynoldsLimite);

} // namespace tramelo
