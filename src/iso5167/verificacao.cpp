#include "iso5167/verificacao.h"

#include <cmath>
#include <cstdio>

namespace tramelo {
namespace {

using iso::Positivo;

// Both unknowns are found by fixed point; each ends when the unknown moves by
// less than this, relative, and the guard ends one that doesn't settle.
constexpr double Tolerancia = 1e-12;
constexpr int MaximoPasses = 200;

// The plate as made and the design point it is rated against.
struct Placa {
    const EntradaIso& e;
    double d_mm, beta;
};

// A solution of ISO 5167-1:2003, Equation (1) for one unknown, with the C
// and ε it agrees with; motivo says why there is none.
struct Solucao {
    bool ok = false;
    std::string motivo;
    double qm = 0, dp = 0, ReD = 0, C = 0, epsilo = 0;
};

Solucao Falha(std::string motivo) {
    Solucao s;
    s.motivo = std::move(motivo);
    return s;
}

const char* const NaoFinito = "O resultado não é um número finito.";

// The flow at a differential pressure. ε depends on Δp alone, so it is fixed
// here; C depends on ReD, which depends on qm: fixed point on qm, from a C of
// 0,6, near that of most plates. C moves little with ReD, so it settles fast.
Solucao VazaoNaPressao(const Placa& p, double dp) {
    const EntradaIso& e = p.e;
    Solucao s;
    s.dp = dp;
    s.epsilo = iso::Expansibilidade(e.Fluido, p.beta, dp, e.p1, e.kappa);
    if (!Positivo(s.epsilo)) return Falha("A expansibilidade sairia menor ou igual a zero.");
    double qm = iso::VazaoMassica(0.6, s.epsilo, p.beta, p.d_mm, dp, e.rho1);
    for (int passo = 0; passo < MaximoPasses; ++passo) {
        if (!Positivo(qm)) return Falha(NaoFinito);
        const double ReD = iso::NumeroReynolds(qm, e.mu, e.D_mm);
        const double C = iso::CoeficienteDescarga(p.beta, ReD, e.D_mm, e.Tomada);
        if (!(C > 0)) return Falha("O coeficiente de descarga sairia menor ou igual a zero.");
        const double novo = iso::VazaoMassica(C, s.epsilo, p.beta, p.d_mm, dp, e.rho1);
        if (!Positivo(novo)) return Falha(NaoFinito);
        const bool parou = std::abs(novo - qm) <= Tolerancia * novo;
        qm = novo;
        if (parou) {
            s.ok = true;
            s.qm = qm;
            s.ReD = iso::NumeroReynolds(qm, e.mu, e.D_mm);
            s.C = iso::CoeficienteDescarga(p.beta, s.ReD, e.D_mm, e.Tomada);
            return s;
        }
    }
    return Falha("A vazão pela ISO 5167-2 não converge para estes dados.");
}

// The differential pressure at a flow. ReD, and so C, are fixed by qm; ε
// depends on Δp for a gas or steam: fixed point on Δp from ε = 1. As qm grows
// with √Δp, Δp = (qm / qm at 1 Pa)². ε falls as Δp grows, so the passes climb
// to the least root: one that reaches p1 means there is no root below p1.
Solucao PressaoNaVazao(const Placa& p, double qm) {
    const EntradaIso& e = p.e;
    Solucao s;
    s.qm = qm;
    s.ReD = iso::NumeroReynolds(qm, e.mu, e.D_mm);
    s.C = iso::CoeficienteDescarga(p.beta, s.ReD, e.D_mm, e.Tomada);
    if (!Positivo(s.ReD)) return Falha(NaoFinito);
    if (!(s.C > 0)) return Falha("O coeficiente de descarga sairia menor ou igual a zero.");
    double eps = 1, dp = 0;
    for (int passo = 0; passo < MaximoPasses; ++passo) {
        const double razao = qm / iso::VazaoMassica(s.C, eps, p.beta, p.d_mm, 1, e.rho1);
        const double novo = razao * razao;
        if (!Positivo(novo)) return Falha(NaoFinito);
        if (e.Fluido != 0 && !(novo < e.p1))
            return Falha(
                "A pressão diferencial não seria menor que a pressão absoluta a montante.");
        eps = iso::Expansibilidade(e.Fluido, p.beta, novo, e.p1, e.kappa);
        if (!Positivo(eps)) return Falha("A expansibilidade sairia menor ou igual a zero.");
        const bool parou = passo > 0 && std::abs(novo - dp) <= Tolerancia * novo;
        dp = novo;
        if (parou) {
            s.ok = true;
            s.dp = dp;
            s.epsilo = eps;
            return s;
        }
    }
    return Falha("A pressão diferencial pela ISO 5167-2 não converge para estes dados.");
}

// A percentage as the report writes it: whole without decimals, otherwise
// up to six significant digits, decimal comma.
std::string Percentual(double v) {
    char b[64];
    if (v == std::floor(v) && std::abs(v) < 1e15) std::snprintf(b, sizeof b, "%.0f", v);
    else std::snprintf(b, sizeof b, "%.6g", v);
    std::string s = b;
    for (char& c : s)
        if (c == '.') c = ',';
    return s;
}

PontoFaixa PontoDaFaixa(const EntradaVerificacao& ev, const Placa& p, double pct) {
    const EntradaIso& e = p.e;
    PontoFaixa r;
    r.vazao_pct = pct;
    const Solucao s = PressaoNaVazao(p, (pct / 100) * e.qm);
    if (!s.ok) {
        r.motivo = s.motivo;
        return r;
    }
    const double uC = iso::IncertezaC(p.beta, e.D_mm, s.ReD);
    const double uEps = iso::IncertezaEpsilo(e.Fluido, s.dp, e.kappa, e.p1);
    const double u = iso::IncertezaVazao(p.beta, uC, uEps, ev.incerteza_D_pct, ev.incerteza_d_pct,
                                         ev.incerteza_dp_pct, ev.incerteza_rho_pct);
    if (!std::isfinite(u) || !Positivo(s.qm * 3600)) {
        r.motivo = NaoFinito;
        return r;
    }
    r.aplicavel = true;
    r.vazao_kg_h = s.qm * 3600;
    r.pressao_diferencial_Pa = s.dp;
    r.ReD = s.ReD;
    r.C = s.C;
    r.epsilo = s.epsilo;
    r.incerteza_vazao_pct = u;
    r.limites = iso::LimitesDeUso(e.Fluido, e.Tomada, p.d_mm, e.D_mm, p.beta, s.ReD, s.dp, e.p1);
    for (const LimiteIso& l : r.limites) {
        if (l.ok) continue;
        const bool abaixo = l.minimo && l.valor < *l.minimo;
        r.limites_fora.push_back(l.nome);
        r.avisos.push_back(l.nome + (abaixo ? " abaixo" : " acima") + " do limite a " +
                           Percentual(pct) + " % da vazão");
    }
    r.dentro_dos_limites = r.limites_fora.empty();
    return r;
}

// Why the rating doesn't apply beyond the design point's own reasons; empty
// where it does.
std::string MotivoVerificacao(const EntradaVerificacao& ev) {
    std::string motivo = MotivoIso5167(ev.ponto);
    if (!motivo.empty()) return motivo;
    if (!Positivo(ev.d20_mm) || !Positivo(ev.ponto.fator_area))
        return "O diâmetro do orifício a 20 ºC e o fator de área têm que ser maiores que zero.";
    for (double pct : ev.vazoes_pct)
        if (!Positivo(pct))
            return "As porcentagens da vazão de projeto têm que ser maiores que zero.";
    for (double u : {ev.incerteza_D_pct, ev.incerteza_d_pct, ev.incerteza_dp_pct,
                     ev.incerteza_rho_pct})
        if (!std::isfinite(u) || u < 0)
            return "As incertezas de D, d, pressão diferencial e massa específica têm que ser "
                   "números não negativos.";
    return {};
}

ResultadoVerificacao NaoAplicavel(std::string motivo) {
    ResultadoVerificacao r;
    r.motivo = std::move(motivo);
    return r;
}

// A reason after a heading: its first letter (ASCII in every reason) in
// lower case.
std::string Minuscula(std::string s) {
    if (!s.empty() && s[0] >= 'A' && s[0] <= 'Z') s[0] = static_cast<char>(s[0] - 'A' + 'a');
    return s;
}

} // namespace

ResultadoVerificacao VerificaPlaca(const EntradaVerificacao& ev) {
    std::string motivo = MotivoVerificacao(ev);
    if (!motivo.empty()) return NaoAplicavel(std::move(motivo));
    const EntradaIso& e = ev.ponto;
    // Row 29 is the factor of the bore's area, so the bore grows by its root.
    const double d = ev.d20_mm * std::sqrt(e.fator_area);
    const double b = d / e.D_mm;
    if (!Positivo(d) || !Positivo(b))
        return NaoAplicavel("O diâmetro do orifício não é um número finito.");
    if (!(b < 1))
        return NaoAplicavel(
            "O diâmetro do orifício tem que ser menor que o diâmetro interno do tubo.");
    const Placa p{e, d, b};
    // For a gas or steam, p1 and ρ1 stay the design point's at every flow of
    // the range: the rating assumes the upstream state doesn't change with the
    // flow, only Δp and with it ε do.
    const Solucao vazao = VazaoNaPressao(p, e.dp);
    if (!vazao.ok)
        return NaoAplicavel("À pressão diferencial de projeto, " + Minuscula(vazao.motivo));
    if (!Positivo(vazao.qm * 3600)) return NaoAplicavel(NaoFinito);
    const Solucao pressao = PressaoNaVazao(p, e.qm);
    if (!pressao.ok) return NaoAplicavel("À vazão de projeto, " + Minuscula(pressao.motivo));
    ResultadoVerificacao r;
    r.aplicavel = true;
    r.d_mm_20C = ev.d20_mm;
    r.d_mm_operacao = d;
    r.beta = b;
    r.vazao_kg_h = vazao.qm * 3600;
    r.pressao_diferencial_Pa = pressao.dp;
    for (double pct : ev.vazoes_pct) r.faixa.push_back(PontoDaFaixa(ev, p, pct));
    return r;
}

} // namespace tramelo
