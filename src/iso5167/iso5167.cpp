#include "iso5167/iso5167.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tramelo {
namespace {

using iso::Positivo;

// ISO 5167-1:2003, Equation (1) solved for d: the fixed point ends when d
// moves by less than this, relative; the guard ends one that doesn't settle.
constexpr double ToleranciaD = 1e-12;
constexpr int MaximoPassesD = 200;

// qm = C/√(1−β⁴) · ε · π/4 · d² · √(2 Δp ρ1), written as
// Cεβ²/√(1−β⁴) = A2 and solved for β by the secant ("linear") algorithm of
// ISO 5167-1:2003, Annex A, on δ(β) = A2 − Cεβ²/√(1−β⁴). Its first two
// points are the closed form with C = 0,6 and ε = 1, and the same with the C
// and ε of that first β.
// Returns false when it doesn't settle.
bool DiametroOrificio(const EntradaIso& e, ResultadoIso& r) {
    const double D = e.D_mm / 1000;
    const double A2 = (4 * e.qm) / (std::numbers::pi * D * D * std::sqrt(2 * e.dp * e.rho1));
    double C = 0, eps = 0;
    // What C and ε take from the point, once for the whole iteration.
    const iso::TermosC termos = iso::TermosDoPonto(r.ReD, e.D_mm, e.Tomada);
    const double pressao = iso::TermoPressao(e.Fluido, e.dp, e.p1, e.kappa);
    // δ at β, with the C and ε it takes; false where they aren't physical.
    auto Delta = [&](double b, double& delta) {
        C = iso::CoeficienteDescarga(b, termos);
        eps = iso::Expansibilidade(e.Fluido, b, pressao);
        if (!Positivo(C) || !Positivo(eps)) return false;
        const double b2 = b * b;
        delta = A2 - (C * eps * b2) / std::sqrt(1 - b2 * b2);
        return std::isfinite(delta);
    };
    auto BetaFechado = [&](double Ce) {
        const double X = A2 / Ce;
        return std::pow((X * X) / (1 + X * X), 0.25);
    };
    double b0 = BetaFechado(0.6), d0 = 0;
    if (!(b0 > 0 && b0 < 1) || !Delta(b0, d0)) return false;
    double b1 = BetaFechado(C * eps), d1 = 0;
    for (int passo = 0; passo < MaximoPassesD; ++passo) {
        if (!(b1 > 0 && b1 < 1) || !Delta(b1, d1)) return false;
        if (std::abs(b1 - b0) / b1 < ToleranciaD || d1 == 0) {
            // C and ε of the final β, so that the three agree.
            r.beta = b1;
            r.d_mm = b1 * e.D_mm;
            r.C = C;
            r.epsilo = eps;
            return Positivo(r.d_mm);
        }
        if (d1 == d0) return false;
        const double b2 = b1 - d1 * (b1 - b0) / (d1 - d0);
        b0 = b1;
        d0 = d1;
        b1 = b2;
    }
    return false;
}

} // namespace

std::string MotivoIso5167(const EntradaIso& e) {
    if (!e.concluido) return "O cálculo não foi concluído.";
    if (e.Placa != 1) return "A ISO 5167-2 não se aplica a orifícios de restrição.";
    if (e.Tomada == iso::TomadaVena) return "A ISO 5167-2 não prevê tomadas de vena contracta.";
    if (e.Tomada == iso::TomadaTubo) return "A ISO 5167-2 não prevê tomadas 2 1/2D e 8D.";
    if (e.Tomada < 1 || e.Tomada > 5) return "Tipo de tomada desconhecido.";
    if (!Positivo(e.qm) || !Positivo(e.rho1) || !Positivo(e.mu) || !Positivo(e.D_mm) ||
        !Positivo(e.dp))
        return "Vazão, massa específica, viscosidade, diâmetro e pressão diferencial "
               "têm que ser maiores que zero.";
    if (e.Fluido != 0 && (!Positivo(e.kappa) || !Positivo(e.p1 - e.dp)))
        return "A pressão absoluta tem que ser maior que a pressão diferencial, e k maior "
               "que zero.";
    return {};
}

ResultadoIso CalculaIso5167(const EntradaIso& e) {
    ResultadoIso r;
    r.motivo = MotivoIso5167(e);
    if (!r.motivo.empty()) return r;
    r.ReD = iso::NumeroReynolds(e.qm, e.mu, e.D_mm);
    if (!DiametroOrificio(e, r)) {
        r = ResultadoIso{};
        r.motivo = "O diâmetro do orifício pela ISO 5167-2 não converge para estes dados.";
        return r;
    }
    r.aplicavel = true;
    r.Fluido = e.Fluido;
    r.perda_permanente_Pa = iso::PerdaPermanente(r.beta, r.C, e.dp);
    r.perda_permanente = r.perda_permanente_Pa / e.pa_por_unidade_dp;
    r.unidade_perda = e.unidade_dp;
    r.incerteza_C_pct = iso::IncertezaC(r.beta, e.D_mm, r.ReD);
    r.incerteza_epsilo_pct = iso::IncertezaEpsilo(e.Fluido, e.dp, e.kappa, e.p1);
    r.d_mm_20C = r.d_mm / std::sqrt(e.fator_area);
    r.diferenca_d_pct = 100 * (e.d_legado_mm / r.d_mm_20C - 1);
    r.limites = iso::LimitesDeUso(e.Fluido, e.Tomada, r.d_mm, e.D_mm, r.beta, r.ReD, e.dp, e.p1);
    r.dentro_dos_limites = std::all_of(r.limites.begin(), r.limites.end(),
                                       [](const LimiteIso& m) { return m.ok; });
    return r;
}

} // namespace tramelo
