// The equations of ISO 5167-1:2003 and ISO 5167-2:2003 for an orifice plate,
// each on plain numbers, shared by the check that finds a bore and by the
// rating of a given bore, so that both read the standard the same way.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace tramelo {

// One limit of use: its value, its bounds (none where open) and the verdict.
struct LimiteIso {
    std::string nome;
    double valor = 0;
    std::optional<double> minimo, maximo;
    bool ok = false;
};

namespace iso {

// ISO 5167-2:2003, every constant of the equations in one place.
// §5.3.2.1, Equation (4): the Reader-Harris/Gallagher discharge coefficient.
constexpr double C0 = 0.5961, Cb2 = 0.0261, Cb8 = 0.216, CRe = 0.000521;
constexpr double CA1 = 0.0188, CA2 = 0.0063, ReA = 19000;
constexpr double Ct0 = 0.043, Ct1 = 0.080, Ct1e = 10, Ct2 = 0.123, Ct2e = 7, CtA = 0.11;
constexpr double Cd = 0.031, CdM = 0.8;
// §5.3.2.1: the term added below D = 71,12 mm, D in mm over 25,4.
constexpr double DPequeno = 71.12, CPequeno = 0.011, PolegadaMm = 25.4;
// §5.2 (pressure tappings): L1 and L'2 of D and D/2 taps; flange taps are 25,4 / D.
constexpr double L1Raio = 1, L2Raio = 0.47;
// §5.3.2.2, Equation (5): expansibility.
constexpr double E0 = 0.351, Eb4 = 0.256, Eb8 = 0.93;
// §5.3.1: limits of use.
constexpr double dMinimo = 12.5, DMinimo = 50, DMaximo = 1000;
constexpr double BetaMinimo = 0.1, BetaMaximo = 0.75, RazaoPressaoMinima = 0.75;
constexpr double ReMinimo = 5000, ReFlange = 170, ReCanto = 16000, BetaReCanto = 0.56;
// §5.3.3.1 and §5.3.3.2: relative uncertainties, in %.
constexpr double UBetaBaixo = 0.2, UBetaAlto = 0.6, UConstante = 0.5, UAlto = 1.667;
constexpr double UPequeno = 0.9, UBetaRe = 0.5, UReBaixo = 10000, UEpsilo = 3.5;

// Tap kinds as the program numbers them; 3 (vena contracta) and 5 (2½D and
// 8D) are outside ISO 5167-2.
constexpr int TomadaFlange = 1, TomadaRaio = 2, TomadaVena = 3, TomadaCanto = 4, TomadaTubo = 5;

bool Positivo(double v);

// ISO 5167-1:2003, 3.3.2.1: ReD = 4 qm / (π μ D), qm kg/s, μ Pa·s, D in mm.
double NumeroReynolds(double qm, double mu, double D_mm);

// ISO 5167-1:2003, Equation (1): qm = C/√(1−β⁴) · ε · π/4 · d² · √(2 Δp ρ1),
// d in mm, qm kg/s.
double VazaoMassica(double C, double epsilo, double beta, double d_mm, double dp, double rho1);

// ISO 5167-2:2003, §5.3.2.1, Equation (4), with the small-pipe term.
double CoeficienteDescarga(double beta, double ReD, double D_mm, int Tomada);

// What Equation (4) takes from the point and not from β, worked out once for
// an iteration on β; the two-argument form gives the four-argument one's
// figures to the bit.
struct TermosC {
    double ReD = 0, D_mm = 0, L2 = 0;
    double tomadas = 0; // 0,043 + 0,080 e^(−10 L1) − 0,123 e^(−7 L1)
    double re03 = 0;    // (10⁶ / ReD)^0,3
};
TermosC TermosDoPonto(double ReD, double D_mm, int Tomada);
double CoeficienteDescarga(double beta, const TermosC& t);

// ISO 5167-2:2003, §5.3.2.2, Equation (5); 1 for a liquid (Fluido 0).
double Expansibilidade(int Fluido, double beta, double dp, double p1, double kappa);
// The same with its pressure term 1 − (p2/p1)^(1/κ) worked out once.
double TermoPressao(int Fluido, double dp, double p1, double kappa);
double Expansibilidade(int Fluido, double beta, double termoPressao);

// ISO 5167-2:2003, §5.4.1: the permanent pressure loss, Pa.
double PerdaPermanente(double beta, double C, double dp);

// ISO 5167-2:2003, §5.3.3.1 and §5.3.3.2: relative uncertainties of C and ε, %.
double IncertezaC(double beta, double D_mm, double ReD);
double IncertezaEpsilo(int Fluido, double dp, double kappa, double p1);

// ISO 5167-1:2003, clause 8, its working formula: the flow's relative
// uncertainty, %, from those of C, ε, D, d, Δp and ρ1, in %, in quadrature.
double IncertezaVazao(double beta, double uC, double uEpsilo, double uD, double ud, double udp,
                      double urho);

// ISO 5167-2:2003, §5.3.1: the least ReD of the tap kind at this β (and D for
// flange taps, D in mm); with β between BetaMinimo and BetaMaximo it bounds
// the region where the plate may be used. NaN for taps outside the standard.
double ReDMinimo(double beta, int Tomada, double D_mm);

// §5.3.1, each limit by name: "d (mm)", "D (mm)", "beta", "ReD", and
// "p2/p1" where there is a pressure (gas and steam).
std::vector<LimiteIso> LimitesDeUso(int Fluido, int Tomada, double d_mm, double D_mm,
                                    double beta, double ReD, double dp, double p1);

} // namespace iso
} // namespace tramelo
