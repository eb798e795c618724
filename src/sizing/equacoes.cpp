#include "sizing/equacoes.h"

namespace tramelo {
namespace {

// Flange taps: ISO 5167-1 (1991) form of the Reader-Harris/Gallagher
// predecessor, D in mm.
void Flange(Num b, Num D, Num Re, Num& coef, Num& limite) {
    Num A = Num(0.07) + 12.7 / D - b;
    if (A < 0) A = 0;
    A = (Pot(A, 2.5) * 0.4) * Pot(Num(1.6) - 25.4 / D, 5);
    Num B = Num(0.5) - b;
    if (B < 0) B = 0;
    B = Pot(B, 1.5) * (Num(0.008999999) + 0.8636 / D);
    Num C = b - 0.7;
    if (C < 0) C = 0;
    C = Pot(C, 2.5) * (41935 / Pot(D, 2) + 3);
    Num K = Num(0.5993) + 0.1778 / D + (0.383 / Sqr(D) + 0.364) * Pot(b, 4) + A - B + C;
    Num E = ((0.03937 * b) * D) *
            (Num(830) - 5000 * b + (9000 * b) * b - 4200 * Pot(b, 3) + 2671 / Sqr(D));
    Num K0 = K * (((1000000 * b) * D) / (((1000000 * b) * D) + 381 * E));
    coef = ((K0 * (1 + (b * E) / Re)) * b) * b;
    limite = ((1300 * b) * b) * D;
}

void Radius(Num b, Num D, Num Re, Num& coef, Num& limite) {
    Num K = Num(0.6014) - 0.030352 / Pot(D, 0.25);
    K = K + (0.376 + 0.16292 / Pot(D, 0.25)) *
                (0.16129 / (Pot(D, 2) * Pot(b, 2) + 0.0635 * D) + Pot(b, 4) + 1.5 * Pot(b, 16));
    Num B = (0.0002 + 0.02794 / D) +
            (0.0038 + 0.01016 / D) * (Pot(b, 2) + (16.5 + 0.19685 * D) * Pot(b, 16));
    coef = (K + B * Sqr(1000000 / Re)) * Pot(b, 2);
    limite = (64000 * b) * b;
}

void VenaContracta(Num b, Num D, Num Re, Num& coef, Num& limite) {
    Num K = Num(0.5922) +
            0.4252 * (0.3871 / (Pot(D, 2) * Pot(b, 2) + 0.254 * D) + Pot(b, 4) + 1.25 * Pot(b, 16));
    Num B = Num(0.00025) +
            0.002325 * (b + 1.75 * Pot(b, 4) + 10 * Pot(b, 12) + (0.0787402 * D) * Pot(b, 16));
    coef = (K + B * Sqr(1000000 / Re)) * Pot(b, 2);
    limite = (6400 * b) * b;
}

// Corner taps: the only equation with its own velocity-of-approach term.
void Corner(Num b, Num Re, Num& coef, Num& limite) {
    Num K = Num(0.5959) + 0.0312 * Pot(b, 2.1) - 0.184 * Pot(b, 8) +
            (0.0029 * Pot(b, 2.5)) * Pot(1000000 / Re, 0.75);
    coef = ((K * b) * b) / Sqr(1 - Pot(b, 4));
    limite = 14000 * Pot(b, 1.3);
}

void PipeTaps(Num b, Num D, Num Re, Num& coef) {
    Num A = Num(0.25) - b;
    if (A < 0) A = 0;
    A = (Pot(A, 2.5) * 7.207) / Sqr(D);
    Num B = (0.44 - 1.524 / D) * Pot(b, 2);
    Num C = (0.935 + 5.715 / D) * Pot(b, 5);
    Num F = Num(905) - 5000 * b + 9000 * Pot(b, 2) - 4200 * Pot(b, 3) + 22225 / D;
    Num K = Num(0.5925) + 0.4623 / D + B + C + 1.35 * Pot(b, 14) + A;
    Num K0 = K / (1 + 0.000015 * F);
    Num E = ((D * b) * F) * 0.03937;
    coef = ((K0 * (1 + (E * b) / Re)) * b) * b;
}

} // namespace

void EquacaoTomada(int Tomada, Num Beta, Num D, Num Reynolds, Num& CoefTomada,
                   Num& ReynoldsLimite) {
    switch (Tomada) {
    case 1: Flange(Beta, D, Reynolds, CoefTomada, ReynoldsLimite); break;
    case 2: Radius(Beta, D, Reynolds, CoefTomada, ReynoldsLimite); break;
    case 3: VenaContracta(Beta, D, Reynolds, CoefTomada, ReynoldsLimite); break;
    case 4: Corner(Beta, Reynolds, CoefTomada, ReynoldsLimite); break;
    case 5: PipeTaps(Beta, D, Reynolds, CoefTomada); return;
    default: return;
    }
    if (ReynoldsLimite < 5000) ReynoldsLimite = 5000;
}

} // namespace tramelo
