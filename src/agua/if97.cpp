#include "agua/if97.h"

#include "agua/coeficientes.h"

#include <cmath>

namespace tramelo {
namespace {

using namespace if97;

// x^n by squaring: the releases' exponents are whole numbers, and std::pow
// would cost many times more in sums of forty terms.
double Potencia(double x, int n) {
    unsigned k = n < 0 ? static_cast<unsigned>(-n) : static_cast<unsigned>(n);
    double r = 1, base = x;
    while (k != 0) {
        if (k & 1u) r = r * base;
        base = base * base;
        k >>= 1;
    }
    return n < 0 ? 1 / r : r;
}

// A dimensionless energy and its derivatives in its two variables x (π or δ)
// and y (τ): g, gx, gxx, gy, gyy, gxy.
struct Derivadas {
    double g = 0, x = 0, xx = 0, y = 0, yy = 0, xy = 0;
};

// Σ n·a^I·b^J and its derivatives in a and b; the caller turns them into
// derivatives in its own variables (a = 7.1 − π in region 1 runs backwards).
Derivadas Soma(const Termo* termos, int quantos, double a, double b) {
    Derivadas d;
    for (int k = 0; k < quantos; ++k) {
        const Termo& t = termos[k];
        const double v = t.n * Potencia(a, t.I) * Potencia(b, t.J);
        d.g += v;
        d.x += t.I * v;
        d.xx += t.I * (t.I - 1) * v;
        d.y += t.J * v;
        d.yy += t.J * (t.J - 1) * v;
        d.xy += t.I * t.J * v;
    }
    // Each term's derivative is n·I·a^(I−1)·b^J: the sums share their
    // divisions, done once here.
    d.x = d.x / a, d.xx = d.xx / (a * a);
    d.y = d.y / b, d.yy = d.yy / (b * b);
    d.xy = d.xy / (a * b);
    return d;
}

// The ideal-gas part of regions 2 and 5 (R7-97(2012) Eqs. 16 and 33):
// ln π + Σ n·τ^J; its π derivatives are those of ln π.
Derivadas GibbsIdeal(const TermoIdeal* termos, int quantos, double pi, double tau) {
    Derivadas d;
    d.g = std::log(pi);
    d.x = 1 / pi;
    d.xx = -1 / (pi * pi);
    for (int k = 0; k < quantos; ++k) {
        const TermoIdeal& t = termos[k];
        const double v = t.n * Potencia(tau, t.J);
        d.g += v;
        d.y += t.J * v / tau;
        d.yy += t.J * (t.J - 1) * v / (tau * tau);
    }
    return d;
}

// The relations of R7-97(2012) Table 3 (region 1), from γ and its
// derivatives. R·T is in kJ/kg; over p in MPa it gives v in 10⁻³ m³/kg, and
// 1000·R·T is in m²/s².
EstadoIf97 DaGibbs(double p, double T, double pi, double tau, const Derivadas& g) {
    EstadoIf97 e;
    const double RT = R * T;
    e.p_MPa = p, e.T_K = T;
    e.v = pi * g.x * RT / p / 1000;
    e.rho = 1 / e.v;
    e.h = tau * g.y * RT;
    e.u = RT * (tau * g.y - pi * g.x);
    e.s = R * (tau * g.y - g.g);
    e.cp = -R * tau * tau * g.yy;
    const double m = g.x - tau * g.xy;
    e.cv = R * (-tau * tau * g.yy + m * m / g.xx);
    e.w = std::sqrt(1000 * RT * g.x * g.x / (m * m / (tau * tau * g.yy) - g.xx));
    return e;
}

// Regions 2 and 5: R7-97(2012) Tables 12 and 39, where the ideal and the
// residual parts are kept apart so that v and w keep their digits at low
// pressure (γ°π·π = 1 exactly).
EstadoIf97 DaGibbsGas(double p, double T, double pi, double tau, const Derivadas& o,
                      const Derivadas& r) {
    EstadoIf97 e;
    const double RT = R * T;
    e.p_MPa = p, e.T_K = T;
    e.v = RT / p * (1 + pi * r.x) / 1000;
    e.rho = 1 / e.v;
    const double gtau = o.y + r.y, gtautau = o.yy + r.yy;
    e.h = RT * tau * gtau;
    e.u = RT * (tau * gtau - pi * (o.x + r.x));
    e.s = R * (tau * gtau - (o.g + r.g));
    e.cp = -R * tau * tau * gtautau;
    const double m = 1 + pi * r.x - tau * pi * r.xy;
    const double q = 1 - pi * pi * r.xx;
    e.cv = e.cp - R * (m * m / q);
    e.w = std::sqrt(1000 * RT * (1 + 2 * pi * r.x + pi * pi * r.x * r.x) /
                    (q + m * m / (tau * tau * gtautau)));
    return e;
}

// Region 3's free energy φ(δ, τ), R7-97(2012) Eq. (28) with Table 30.
Derivadas Helmholtz3(double rho, double T) {
    const double delta = rho / rhoc, tau = Tc / T;
    Derivadas f = Soma(Regiao3, 39, delta, tau);
    f.g += Regiao3Log * std::log(delta);
    f.x += Regiao3Log / delta;
    f.xx -= Regiao3Log / (delta * delta);
    return f;
}

// R7-97(2012) Table 31: p = ρRT·δφδ, and ∂p/∂ρ at constant T, both with p in MPa.
struct Pressao3 {
    double p, dp;
};
Pressao3 PressaoRegiao3(double rho, double T) {
    const double delta = rho / rhoc;
    const Derivadas f = Helmholtz3(rho, T);
    return {rho * R * T * delta * f.x / 1000,
            R * T * (2 * delta * f.x + delta * delta * f.xx) / 1000};
}

// Region 3's search interval, kg/m³. Below 50 the equation is far from any
// state it was fitted to, and p(50) is below the B23 line; at 623.15 K p(780)
// is above 100 MPa already. Scanned on a 0.02 kg/m³ grid from 623.15 K to
// 863.15 K (every 0.001 K within 0.5 K of Tc): p(ρ) rises on the whole
// interval above Tc, and below it the loop's two turning points fall on
// either side of ρc, the split the search below relies on.
constexpr double RhoMinimo3 = 50, RhoMaximo3 = 780;
// The root is taken when a step moves it by less than this, relative, and
// when it gives p back to the second; a pressure beyond the branch's reach
// (vapour above its spinodal, say) closes the bracket on the branch's end
// instead, which the second test refuses.
constexpr double Tolerancia3 = 1e-13, ToleranciaPressao3 = 1e-10;
constexpr int MaximoPassos3 = 200;

} // namespace

EstadoIf97 If97Regiao1(double p, double T) {
    const double pi = p / pEstrela1, tau = TEstrela1 / T;
    Derivadas d = Soma(Regiao1, 34, Pi1 - pi, tau - Tau1);
    // R7-97(2012) Eq. (7). a = 7.1 − π: each π derivative changes sign once.
    d.x = -d.x, d.xy = -d.xy;
    return DaGibbs(p, T, pi, tau, d);
}

// R7-97(2012) Eq. (15).
EstadoIf97 If97Regiao2(double p, double T) {
    const double pi = p / pEstrela2, tau = TEstrela2 / T;
    return DaGibbsGas(p, T, pi, tau, GibbsIdeal(Regiao2Ideal, 9, pi, tau),
                      Soma(Regiao2Residual, 43, pi, tau - Tau2));
}

// R7-97(2012) Eq. (32).
EstadoIf97 If97Regiao5(double p, double T) {
    const double pi = p / pEstrela5, tau = TEstrela5 / T;
    return DaGibbsGas(p, T, pi, tau, GibbsIdeal(Regiao5Ideal, 6, pi, tau),
                      Soma(Regiao5Residual, 6, pi, tau));
}

// R7-97(2012) Table 31.
EstadoIf97 If97Regiao3(double rho, double T) {
    const double delta = rho / rhoc, tau = Tc / T, RT = R * T;
    const Derivadas f = Helmholtz3(rho, T);
    EstadoIf97 e;
    e.T_K = T, e.rho = rho, e.v = 1 / rho;
    e.p_MPa = rho * RT * delta * f.x / 1000;
    e.u = RT * tau * f.y;
    e.h = RT * (tau * f.y + delta * f.x);
    e.s = R * (tau * f.y - f.g);
    e.cv = -R * tau * tau * f.yy;
    const double m = delta * f.x - delta * tau * f.xy;
    const double q = 2 * delta * f.x + delta * delta * f.xx;
    e.cp = e.cv + R * (m * m / q);
    e.w = std::sqrt(1000 * RT * (q - m * m / (tau * tau * f.yy)));
    return e;
}

// Below Tc, p(ρ) at fixed T has a loop between the vapour and the liquid
// branch; the liquid root is searched on [ρc, ρmax], where the only points at
// which p rises are those of the liquid branch, and the vapour root on
// [ρmin, ρc], where they are the vapour branch's. Above Tc p(ρ) rises
// everywhere. Each step keeps the root bracketed: a Newton step when it falls
// inside the bracket, otherwise the middle, so it always converges.
std::optional<double> If97MassaEspecificaRegiao3(double p, double T, bool liquido) {
    const bool vapor = T < Tc && !liquido;
    double a = T < Tc && liquido ? rhoc : RhoMinimo3;
    double b = vapor ? rhoc : RhoMaximo3;
    // The bracket's trusted end, on the branch: liquid from above, vapour from below.
    double x = vapor ? a : b;
    Pressao3 f = PressaoRegiao3(x, T);
    if (!(vapor ? f.p <= p : f.p >= p) || !(f.dp > 0)) return std::nullopt;
    for (int passo = 0; passo < MaximoPassos3; ++passo) {
        // Which side of the root x lies on; off the branch counts as beyond
        // the far end of the bracket.
        const bool noRamo = f.dp > 0;
        const bool acima = vapor ? (!noRamo || f.p >= p) : (noRamo && f.p >= p);
        (acima ? b : a) = x;
        double novo = x - (f.p - p) / f.dp;
        if (!noRamo || !(novo > a && novo < b)) novo = a + (b - a) / 2;
        const bool parou = std::abs(novo - x) <= Tolerancia3 * x;
        x = novo;
        f = PressaoRegiao3(x, T);
        if (parou) {
            if (std::abs(f.p - p) <= ToleranciaPressao3 * p) return x;
            return std::nullopt;
        }
    }
    return std::nullopt;
}

// R7-97(2012) Eq. (30), with p* = 1 MPa.
double If97PressaoSaturacao_MPa(double T) {
    const double* n = Regiao4;
    const double teta = T + n[8] / (T - n[9]);
    const double A = teta * teta + n[0] * teta + n[1];
    const double B = n[2] * teta * teta + n[3] * teta + n[4];
    const double C = n[5] * teta * teta + n[6] * teta + n[7];
    const double r = 2 * C / (-B + std::sqrt(B * B - 4 * A * C));
    return (r * r) * (r * r);
}

// R7-97(2012) Eq. (31), with T* = 1 K.
double If97TemperaturaSaturacao_K(double p) {
    const double* n = Regiao4;
    const double beta = std::sqrt(std::sqrt(p));
    const double E = beta * beta + n[2] * beta + n[5];
    const double F = n[0] * beta * beta + n[3] * beta + n[6];
    const double G = n[1] * beta * beta + n[4] * beta + n[7];
    const double D = 2 * G / (-F - std::sqrt(F * F - 4 * E * G));
    return (n[9] + D - std::sqrt((n[9] + D) * (n[9] + D) - 4 * (n[8] + n[9] * D))) / 2;
}

double If97PressaoB23_MPa(double T) {
    return B23[0] + B23[1] * T + B23[2] * T * T;
}

double If97TemperaturaB23_K(double p) {
    return B23[3] + std::sqrt((p - B23[4]) / B23[2]);
}

} // namespace tramelo
