#include "iso5167/iso5167.h"

#include <cmath>
#include <cstdio>
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

// A number in a short text: six significant digits, decimal comma.
std::string Texto(double v, const char* formato = "%.6g") {
    char b[64];
    std::snprintf(b, sizeof b, formato, v);
    std::string s = b;
    for (char& c : s)
        if (c == '.') c = ',';
    return s;
}

// Label filled with "_" to column 36, then the value, as the report's lines.
std::string Linha(const std::string& rotulo, const std::string& valor) {
    std::string l = " " + rotulo + " ";
    size_t largura = 0;
    for (unsigned char c : rotulo)
        if ((c & 0xC0) != 0x80) ++largura;
    if (largura < 33) l.append(33 - largura, '_');
    return l + " " + valor;
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
    r.perda_permanente_Pa = iso::PerdaPermanente(r.beta, r.C, e.dp);
    r.incerteza_C_pct = iso::IncertezaC(r.beta, e.D_mm, r.ReD);
    r.incerteza_epsilo_pct = iso::IncertezaEpsilo(e.Fluido, e.dp, e.kappa, e.p1);
    r.diferenca_d_pct = 100 * (e.d_legado_mm / r.d_mm - 1);
    r.limites = iso::LimitesDeUso(e.Fluido, e.Tomada, r.d_mm, e.D_mm, r.beta, r.ReD, e.dp, e.p1);
    return r;
}

std::vector<std::string> LinhasIso5167(const ResultadoIso& r) {
    std::vector<std::string> l;
    l.push_back(" ISO 5167-2:2003 - segunda opinião");
    l.push_back("");
    if (!r.aplicavel) {
        l.push_back(" Não se aplica: " + r.motivo);
        return l;
    }
    l.push_back(Linha("Beta = d/D", Texto(r.beta)));
    l.push_back(Linha("Diâmetro do orifício", Texto(r.d_mm) + " mm"));
    l.push_back(Linha("Coeficiente de descarga C", Texto(r.C)));
    l.push_back(Linha("Epsilo", Texto(r.epsilo)));
    l.push_back(Linha("N.º de reynolds (ReD)", Texto(r.ReD)));
    l.push_back(Linha("Perda de carga permanente", Texto(r.perda_permanente_Pa, "%.1f") + " Pa"));
    l.push_back(Linha("Incerteza de C", Texto(r.incerteza_C_pct, "%.3g") + " %"));
    l.push_back(Linha("Incerteza de Epsilo", Texto(r.incerteza_epsilo_pct, "%.3g") + " %"));
    l.push_back(Linha("Diferença em d (Tramelo/ISO)", Texto(r.diferenca_d_pct, "%+.3f") + " %"));
    l.push_back("");
    l.push_back(" Limites de uso (ISO 5167-2, 5.3.1):");
    for (const LimiteIso& m : r.limites) {
        std::string faixa;
        if (m.minimo && m.maximo) faixa = Texto(*m.minimo) + " a " + Texto(*m.maximo);
        else if (m.minimo) faixa = ">= " + Texto(*m.minimo);
        else if (m.maximo) faixa = "<= " + Texto(*m.maximo);
        l.push_back(Linha(m.nome, Texto(m.valor) + " (" + faixa + ") " +
                                     (m.ok ? "dentro" : "FORA")));
    }
    return l;
}

} // namespace tramelo
