// The diameter ratio: a secant iteration on Beta until the tap equation
// matches the sizing value. For gas and steam the target moves with Beta
// through the expansibility factor, which the same loop recomputes.
#pragma once

#include "plataforma/num.h"

namespace tramelo {

struct Execucao;

// The loop has no limit of its own in the correlations' terms; this guard
// ends a run that doesn't settle instead of hanging the program.
inline constexpr int MaximoPassesBeta = 200;

// Expansibility at x.Beta: sets RelPressao, RelPressaoUsual, Epsilo and
// CoefAlvo. Returns false, after the message, when the pressure ratio at
// design differential pressure isn't above 0.75: the run ends.
bool Expansibilidade(Execucao& x, int Tomada);

// Finds Beta from x.CoefAlvo (= CoefCarga on entry), with D the pipe's inside
// diameter in mm. Returns false when the run ended on a message.
bool CalculaBeta(Execucao& x, int Fluido, int Tomada, Num D);

} // namespace tramelo
