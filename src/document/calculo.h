// The run of "Calcular": from the fields of a calculation to the lines of its
// report. Reads the fields in the fluid's order, works out the flow
// conditions and the sizing value, checks its limits, finds Beta, writes the
// sections of the report and shows the report window.
#pragma once

#include "plataforma/falha.h"

namespace tramelo {

class FrmCalcTramelo;
struct Execucao;

enum class FimCalculo {
    Concluido,    // the report window was shown
    Interrompido, // ended early on a message: an empty field, the limits, the pressure ratio
    Falhou,       // a run-time failure ended it (the report as far as written)
};

struct ResultadoCalculo {
    FimCalculo fim = FimCalculo::Concluido;
    ErroExecucao erro; // for Falhou: number and description
};

// The whole run. It has no failure handler of its own: a run-time failure
// ends it where it occurs and comes back here, for the caller to report.
// `valores`, when given, receives the values of the run.
ResultadoCalculo cmdCalcular_Click(FrmCalcTramelo& f, Execucao* valores = nullptr);

} // namespace tramelo
