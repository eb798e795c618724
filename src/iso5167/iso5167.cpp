#include "iso5167/iso5167.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <numbers>

namespace tramelo {
namespace {

// ISO 5167-2:2003, every constant of the check in one place.
namespace iso {
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
} // namespace iso

// ISO 5167-1:2003, Equation (1) solved for d: the fixed point ends when d
// moves by less than this, relative; the guard ends one that doesn't settle.
constexpr double ToleranciaD = 1e-12;
constexpr int MaximoPassesD = 200;

constexpr double Pi = std::numbers::pi;

bool Positivo(double v) { return std::isfinite(v) && v > 0; }

// Why the standard doesn't apply to this point; empty where it does.
std::string MotivoInaplicavel(const EntradaIso& e) {
    if (!e.concluido) return "O cálculo não foi concluído.";
    if (e.Placa != 1) return "A ISO 5167-2 não se aplica a orifícios de restrição.";
    if (e.Tomada == 3) return "A ISO 5167-2 não prevê tomadas de vena contracta.";
    if (e.Tomada == 5) return "A ISO 5167-2 não prevê tomadas 2 1/2D e 8D.";
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

// ReD = 4 qm / (π μ D), D in m.
double NumeroReynolds(const EntradaIso& e) { return (4 * e.qm) / (Pi * e.mu * (e.D_mm / 1000)); }

// L1 and L'2 of the tap kind (§5.2).
void DistanciasTomada(int Tomada, double D_mm, double& L1, double& L2) {
    if (Tomada == 1) L1 = L2 = iso::PolegadaMm / D_mm;
    else if (Tomada == 2) L1 = iso::L1Raio, L2 = iso::L2Raio;
    else L1 = L2 = 0;
}

double CoeficienteDescarga(double b, double ReD, double D_mm, int Tomada) {
    double L1 = 0, L2 = 0;
    DistanciasTomada(Tomada, D_mm, L1, L2);
    const double A = std::pow((iso::ReA * b) / ReD, 0.8);
    const double M2 = (2 * L2) / (1 - b);
    const double b4 = std::pow(b, 4);
    double C = iso::C0 + iso::Cb2 * b * b - iso::Cb8 * std::pow(b, 8) +
               iso::CRe * std::pow((1e6 * b) / ReD, 0.7) +
               (iso::CA1 + iso::CA2 * A) * std::pow(b, 3.5) * std::pow(1e6 / ReD, 0.3) +
               (iso::Ct0 + iso::Ct1 * std::exp(-iso::Ct1e * L1) -
                iso::Ct2 * std::exp(-iso::Ct2e * L1)) *
                   (1 - iso::CtA * A) * (b4 / (1 - b4)) -
               iso::Cd * (M2 - iso::CdM * std::pow(M2, 1.1)) * std::pow(b, 1.3);
    if (D_mm < iso::DPequeno)
        C = C + iso::CPequeno * (0.75 - b) * (2.8 - D_mm / iso::PolegadaMm);
    return C;
}

// 1 for a liquid.
double Expansibilidade(const EntradaIso& e, double b) {
    if (e.Fluido == 0) return 1;
    const double razao = (e.p1 - e.dp) / e.p1;
    return 1 - (iso::E0 + iso::Eb4 * std::pow(b, 4) + iso::Eb8 * std::pow(b, 8)) *
                   (1 - std::pow(razao, 1 / e.kappa));
}

// qm = C/√(1−β⁴) · ε · π/4 · d² · √(2 Δp ρ1), written as
// Cεβ²/√(1−β⁴) = A2 and solved by fixed point on β, the iteration of
// ISO 5167-1:2003, Annex A.
// Returns false when it doesn't settle.
bool DiametroOrificio(const EntradaIso& e, ResultadoIso& r) {
    const double D = e.D_mm / 1000;
    const double A2 = (4 * e.qm) / (Pi * D * D * std::sqrt(2 * e.dp * e.rho1));
    double C = 0.6, eps = 1, d = 0;
    for (int passo = 0; passo < MaximoPassesD; ++passo) {
        const double X = A2 / (C * eps);
        const double b = std::pow((X * X) / (1 + X * X), 0.25);
        const double dNovo = b * e.D_mm;
        if (!Positivo(dNovo) || !(b < 1)) return false;
        C = CoeficienteDescarga(b, r.ReD, e.D_mm, e.Tomada);
        eps = Expansibilidade(e, b);
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

// §5.4.1: Δϖ = (√(1 − β⁴(1 − C²)) − Cβ²) / (√(1 − β⁴(1 − C²)) + Cβ²) · Δp.
double PerdaPermanente(double b, double C, double dp) {
    const double raiz = std::sqrt(1 - std::pow(b, 4) * (1 - C * C));
    const double cb2 = C * (b * b);
    return ((raiz - cb2) / (raiz + cb2)) * dp;
}

// §5.3.3.1; below 0,2 and above 0,6 the bands' formulas go on beyond 0,1 and
// 0,75, where the limits of use already say the point is out.
double IncertezaC(double b, double D_mm, double ReD) {
    double u;
    if (b < iso::UBetaBaixo) u = 0.7 - b;
    else if (b <= iso::UBetaAlto) u = iso::UConstante;
    else u = iso::UAlto * b - 0.5;
    if (D_mm < iso::DPequeno) u = u + iso::UPequeno * (0.75 - b) * (2.8 - D_mm / iso::PolegadaMm);
    if (b > 0.5 && ReD < iso::UReBaixo) u = u + iso::UBetaRe;
    return u;
}

// §5.3.3.2: 3,5 Δp / (κ p1) %; none for a liquid.
double IncertezaEpsilo(const EntradaIso& e) {
    if (e.Fluido == 0) return 0;
    return (iso::UEpsilo * e.dp) / (e.kappa * e.p1);
}

LimiteIso Limite(std::string nome, double valor, std::optional<double> minimo,
                 std::optional<double> maximo) {
    bool ok = (!minimo || valor >= *minimo) && (!maximo || valor <= *maximo);
    return {std::move(nome), valor, minimo, maximo, ok};
}

// §5.3.1; the pressure ratio only where there is a pressure (gas and steam).
std::vector<LimiteIso> LimitesDeUso(const EntradaIso& e, const ResultadoIso& r) {
    const double b = r.beta;
    double reMinimo = iso::ReMinimo;
    if (e.Tomada == 1) reMinimo = std::max(reMinimo, iso::ReFlange * (b * b) * e.D_mm);
    else if (b > iso::BetaReCanto) reMinimo = iso::ReCanto * (b * b);
    std::vector<LimiteIso> l;
    l.push_back(Limite("d (mm)", r.d_mm, iso::dMinimo, std::nullopt));
    l.push_back(Limite("D (mm)", e.D_mm, iso::DMinimo, iso::DMaximo));
    l.push_back(Limite("beta", b, iso::BetaMinimo, iso::BetaMaximo));
    l.push_back(Limite("ReD", r.ReD, reMinimo, std::nullopt));
    if (e.Fluido != 0)
        l.push_back(Limite("p2/p1", (e.p1 - e.dp) / e.p1, iso::RazaoPressaoMinima, std::nullopt));
    return l;
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

ResultadoIso CalculaIso5167(const EntradaIso& e) {
    ResultadoIso r;
    r.motivo = MotivoInaplicavel(e);
    if (!r.motivo.empty()) return r;
    r.ReD = NumeroReynolds(e);
    if (!DiametroOrificio(e, r)) {
        r = ResultadoIso{};
        r.motivo = "O diâmetro do orifício pela ISO 5167-2 não converge para estes dados.";
        return r;
    }
    r.aplicavel = true;
    r.perda_permanente_Pa = PerdaPermanente(r.beta, r.C, e.dp);
    r.incerteza_C_pct = IncertezaC(r.beta, e.D_mm, r.ReD);
    r.incerteza_epsilo_pct = IncertezaEpsilo(e);
    r.diferenca_d_pct = 100 * (e.d_legado_mm / r.d_mm - 1);
    r.limites = LimitesDeUso(e, r);
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
