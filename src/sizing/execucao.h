// The values of one run of "Calcular". They live for the run only; tests and
// benchmarks look at them to check the figures.
#pragma once

#include "plataforma/variante.h"

#include <array>

namespace tramelo {

struct Execucao {
    // The fields read, indexed as NomeDados: the text as typed until
    // conversion gives it a number. Unread entries are empty and count as 0.
    std::array<Variante, 31> Dados;
    int TipoVazao = 0;   // 1 volumetric flow, 2 mass flow
    int EscalaPerda = 0; // unit of field 5: 0 Pa, 1 Kg/m², 2 mmCA
    Variante FatorMaterial;

    // Flow conditions.
    Num VazaoMassica, MassaEsp, VazaoVol, CoefCarga, Velocidade, Reynolds;
    Num PressaoVapor, TempLeitura, TempProjeto, Fs, Fu;

    // The diameter ratio and its iteration.
    Num Beta, BetaAnt, BetaAtual, ErroAnt, ErroAtual, CoefAlvo, Razao2;
    Num RelPressao, RelPressaoUsual, Epsilo;
    Num CoefTomada, ReynoldsLimite;
    int passes = 0; // passes of the secant loop
};

} // namespace tramelo
