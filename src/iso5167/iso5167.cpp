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
// Cεβ²/√(1−β⁴) = A2 and solved by fixed point on β, the iteration of
// ISO 5167-1:2003, Annex A.
// Returns false when it doesn't settle.
bool DiametroOrificio(const EntradaIso& e, ResultadoIso& r) {
    const double D = e.D_mm / 1000;
    const double A2 = (4 * e.qm) / (std::numbers::pi * D * D * std::sqrt(2 * e.dp * e.rho1));
    double C = 0.6, eps = 1, d = 0;
    for (int passo = 0; passo < MaximoPassesD; ++passo) {
        const double X = A2 / (C * eps);
        const double b = std::pow((X * X) / (1 + X * X), 0.25);
        const double dNovo = b * e.D_mm;
        if (!Positivo(dNovo) || !(b < 1)) return false;
        C = iso::CoeficienteDescarga(b, r.ReD, e.D_mm, e.Tomada);
        eps = iso::Expansibilidade(e.Fluido, b, e.dp, e.p1, e.kappa);
        if (!Positivo(C) || !Positivo(eps)) return false;
        const bool parou = passo > 0 && std::abs(dNovo - d) / dNovo < ToleranciaD;
        d = dNovo;
        r.beta = b;
        if (parou) break;
        if (passo + 1 == MaximoPassesD) return false;
    }
    // C and ε of the final β, so that the three agree.
    r.d_mm = d;
    r.C = C;
    r.epsilo = eps;
    return true;
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
