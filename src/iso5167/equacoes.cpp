#include "iso5167/equacoes.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

namespace tramelo::iso {
namespace {

constexpr double Pi = std::numbers::pi;

// L1 and L'2 of the tap kind (ISO 5167-2:2003, §5.2, and §5.3.2.1 for the
// flange taps' 25,4 / D).
void DistanciasTomada(int Tomada, double D_mm, double& L1, double& L2) {
    if (Tomada == TomadaFlange) L1 = L2 = PolegadaMm / D_mm;
    else if (Tomada == TomadaRaio) L1 = L1Raio, L2 = L2Raio;
    else L1 = L2 = 0;
}

LimiteIso Limite(std::string nome, double valor, std::optional<double> minimo,
                 std::optional<double> maximo) {
    bool ok = (!minimo || valor >= *minimo) && (!maximo || valor <= *maximo);
    return {std::move(nome), valor, minimo, maximo, ok};
}

} // namespace

bool Positivo(double v) { return std::isfinite(v) && v > 0; }

double NumeroReynolds(double qm, double mu, double D_mm) {
    return (4 * qm) / (Pi * mu * (D_mm / 1000));
}

double VazaoMassica(double C, double epsilo, double beta, double d_mm, double dp, double rho1) {
    const double d = d_mm / 1000;
    return (C / std::sqrt(1 - std::pow(beta, 4))) * epsilo * (Pi / 4) * (d * d) *
           std::sqrt(2 * dp * rho1);
}

double CoeficienteDescarga(double b, double ReD, double D_mm, int Tomada) {
    return CoeficienteDescarga(b, TermosDoPonto(ReD, D_mm, Tomada));
}

TermosC TermosDoPonto(double ReD, double D_mm, int Tomada) {
    double L1 = 0;
    TermosC t;
    DistanciasTomada(Tomada, D_mm, L1, t.L2);
    t.ReD = ReD;
    t.D_mm = D_mm;
    t.tomadas = Ct0 + Ct1 * std::exp(-Ct1e * L1) - Ct2 * std::exp(-Ct2e * L1);
    t.re03 = std::pow(1e6 / ReD, 0.3);
    return t;
}

double CoeficienteDescarga(double b, const TermosC& t) {
    const double A = std::pow((ReA * b) / t.ReD, 0.8);
    const double M2 = (2 * t.L2) / (1 - b);
    // Whole powers by products: pow costs as much as the rest of the line,
    // and the products are within two ULPs of it.
    const double b2 = b * b;
    const double b4 = b2 * b2;
    double C = C0 + Cb2 * b * b - Cb8 * (b4 * b4) + CRe * std::pow((1e6 * b) / t.ReD, 0.7) +
               (CA1 + CA2 * A) * std::pow(b, 3.5) * t.re03 +
               t.tomadas * (1 - CtA * A) * (b4 / (1 - b4)) -
               Cd * (M2 - CdM * std::pow(M2, 1.1)) * std::pow(b, 1.3);
    if (t.D_mm < DPequeno) C = C + CPequeno * (0.75 - b) * (2.8 - t.D_mm / PolegadaMm);
    return C;
}

double TermoPressao(int Fluido, double dp, double p1, double kappa) {
    if (Fluido == 0) return 0;
    const double razao = (p1 - dp) / p1;
    return 1 - std::pow(razao, 1 / kappa);
}

double Expansibilidade(int Fluido, double b, double termoPressao) {
    if (Fluido == 0) return 1;
    const double b4 = (b * b) * (b * b);
    return 1 - (E0 + Eb4 * b4 + Eb8 * (b4 * b4)) * termoPressao;
}

double Expansibilidade(int Fluido, double b, double dp, double p1, double kappa) {
    return Expansibilidade(Fluido, b, TermoPressao(Fluido, dp, p1, kappa));
}

// Δϖ = (√(1 − β⁴(1 − C²)) − Cβ²) / (√(1 − β⁴(1 − C²)) + Cβ²) · Δp.
double PerdaPermanente(double b, double C, double dp) {
    const double raiz = std::sqrt(1 - (b * b) * (b * b) * (1 - C * C));
    const double cb2 = C * (b * b);
    return ((raiz - cb2) / (raiz + cb2)) * dp;
}

// Below 0,2 and above 0,6 the bands' formulas go on beyond 0,1 and 0,75,
// where the limits of use already say the point is out.
double IncertezaC(double b, double D_mm, double ReD) {
    double u;
    if (b < UBetaBaixo) u = 0.7 - b;
    else if (b <= UBetaAlto) u = UConstante;
    else u = UAlto * b - 0.5;
    if (D_mm < DPequeno) u = u + UPequeno * (0.75 - b) * (2.8 - D_mm / PolegadaMm);
    if (b > 0.5 && ReD < UReBaixo) u = u + UBetaRe;
    return u;
}

// 3,5 Δp / (κ p1) %; none for a liquid.
double IncertezaEpsilo(int Fluido, double dp, double kappa, double p1) {
    if (Fluido == 0) return 0;
    return (UEpsilo * dp) / (kappa * p1);
}

// The sensitivities of ISO 5167-1's formula: 2β⁴/(1−β⁴) for D, 2/(1−β⁴) for
// d, ½ for Δp and ρ1; the terms are taken as uncorrelated.
double IncertezaVazao(double b, double uC, double uEpsilo, double uD, double ud, double udp,
                      double urho) {
    const double b4 = std::pow(b, 4);
    const double tD = ((2 * b4) / (1 - b4)) * uD;
    const double td = (2 / (1 - b4)) * ud;
    const double tdp = udp / 2, trho = urho / 2;
    return std::sqrt(uC * uC + uEpsilo * uEpsilo + tD * tD + td * td + tdp * tdp + trho * trho);
}

// ReD ≥ 5000 for every tap; flange taps also ReD ≥ 170 β² D; corner and
// D and D/2 taps ReD ≥ 16000 β² above β = 0,56.
double ReDMinimo(double b, int Tomada, double D_mm) {
    if (Tomada == TomadaFlange) return std::max(ReMinimo, ReFlange * (b * b) * D_mm);
    if (Tomada != TomadaRaio && Tomada != TomadaCanto)
        return std::numeric_limits<double>::quiet_NaN();
    if (b > BetaReCanto) return ReCanto * (b * b);
    return ReMinimo;
}

// The pressure ratio only where there is a pressure (gas and steam).
std::vector<LimiteIso> LimitesDeUso(int Fluido, int Tomada, double d_mm, double D_mm, double b,
                                    double ReD, double dp, double p1) {
    std::vector<LimiteIso> l;
    l.push_back(Limite("d (mm)", d_mm, dMinimo, std::nullopt));
    l.push_back(Limite("D (mm)", D_mm, DMinimo, DMaximo));
    l.push_back(Limite("beta", b, BetaMinimo, BetaMaximo));
    l.push_back(Limite("ReD", ReD, ReDMinimo(b, Tomada, D_mm), std::nullopt));
    if (Fluido != 0)
        l.push_back(Limite("p2/p1", (p1 - dp) / p1, RazaoPressaoMinima, std::nullopt));
    return l;
}

} // namespace tramelo::iso
