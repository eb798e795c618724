#include "report/graficos_verificacao.h"

#include "iso5167/equacoes.h"
#include "plataforma/numero.h"
#include "sizing/catalogo.h"

#include <algorithm>
#include <cmath>

namespace tramelo {
namespace {

constexpr std::uint32_t Verde = 0x2E8B57, Azul = 0x1F5FBF, Vermelho = 0xC0392B,
                        Laranja = 0xD35400, Cinza = 0x5D6D7E;

// Steps of β along the boundary of the region: fine enough that the bend of
// 16000 β² above 0,56 and of 170 β² D reads as a curve.
constexpr double PassoBeta = 0.005;
// Points of the plate's curve between the least and the greatest flow.
constexpr int PontosDaCurva = 60;

std::string Expoente(int n) {
    static const char* const sobrescritos[] = {"⁰", "¹", "²", "³", "⁴", "⁵", "⁶", "⁷", "⁸", "⁹"};
    std::string s = n < 0 ? "⁻" : "";
    const std::string digitos = std::to_string(n < 0 ? -n : n);
    for (char c : digitos) s += sobrescritos[c - '0'];
    return s;
}

// The range's flows of a picture, split by their verdict, each labelled with
// its percentage; the flows with no answer are left out.
template <class Posicao>
void Faixa(Grafico& g, const ResultadoVerificacao& r, Posicao posicao) {
    SerieGrafico dentro{Traco::Pontos, "Dentro dos limites", Azul, {}, {}};
    SerieGrafico fora{Traco::Pontos, "Fora dos limites", Vermelho, {}, {}};
    for (const PontoFaixa& f : r.faixa) {
        if (!f.aplicavel) continue;
        SerieGrafico& s = f.dentro_dos_limites ? dentro : fora;
        s.pontos.push_back(posicao(f));
        s.rotulos.push_back(NumeroParaTexto(f.vazao_pct) + " %");
    }
    for (SerieGrafico* s : {&dentro, &fora})
        if (!s->pontos.empty()) g.series.push_back(std::move(*s));
}

} // namespace

EixoGrafico EixoLinear(std::string titulo, double maximo, int marcas) {
    EixoGrafico e;
    e.titulo = std::move(titulo);
    if (!(maximo > 0) || !std::isfinite(maximo)) maximo = 1;
    const double bruto = maximo / marcas;
    const double potencia = std::pow(10, std::floor(std::log10(bruto)));
    double passo = 10 * potencia;
    for (double m : {1.0, 2.0, 2.5, 5.0})
        if (m * potencia >= bruto) {
            passo = m * potencia;
            break;
        }
    const int n = static_cast<int>(std::ceil(maximo / passo - 1e-9));
    e.maximo = n * passo;
    for (int k = 0; k <= n; ++k) e.marcas.push_back({k * passo, NumeroParaTexto(k * passo)});
    return e;
}

EixoGrafico EixoDecadas(std::string titulo, double minimo, double maximo) {
    EixoGrafico e;
    e.titulo = std::move(titulo);
    e.logaritmico = true;
    int de = static_cast<int>(std::floor(std::log10(minimo)));
    int ate = static_cast<int>(std::ceil(std::log10(maximo)));
    if (ate - de < 2) ate = de + 2;
    e.minimo = std::pow(10, de);
    e.maximo = std::pow(10, ate);
    for (int k = de; k <= ate; ++k) e.marcas.push_back({std::pow(10, k), "10" + Expoente(k)});
    return e;
}

Grafico GraficoLimites(const VerificacaoFeita& v) {
    const ResultadoVerificacao& r = v.resultado;
    const EntradaIso& e = v.entrada.ponto;
    Grafico g;
    const Catalogo& c = catalogo();
    const size_t tomada = static_cast<size_t>(e.Tomada);
    g.titulo = "Limites de uso (ISO 5167-2, 5.3.1)";
    if (tomada < c.NomeTomadas.size() && !c.NomeTomadas[tomada].empty())
        g.titulo += " - " + c.NomeTomadas[tomada];
    if (!r.aplicavel) return g;

    const double ReProjeto = iso::NumeroReynolds(e.qm, e.mu, e.D_mm);
    double menor = iso::ReMinimo, maior = std::max(ReProjeto, iso::ReDMinimo(iso::BetaMaximo,
                                                                              e.Tomada, e.D_mm));
    for (const PontoFaixa& f : r.faixa)
        if (f.aplicavel) menor = std::min(menor, f.ReD), maior = std::max(maior, f.ReD);
    g.y = EixoDecadas("ReD", menor, maior);
    g.x.titulo = "β = d/D";
    g.x.maximo = std::clamp(std::ceil((r.beta + 0.05) * 10) / 10, 0.8, 1.0);
    for (int k = 0; k <= static_cast<int>(std::lround(g.x.maximo * 10)); ++k)
        g.x.marcas.push_back({k / 10.0, NumeroParaTexto(k / 10.0)});

    SerieGrafico regiao{Traco::Regiao, "Região de uso", Verde, {}, {}};
    const int passos = static_cast<int>(std::lround((iso::BetaMaximo - iso::BetaMinimo) / PassoBeta));
    for (int k = 0; k <= passos; ++k) {
        const double b = iso::BetaMinimo + k * PassoBeta;
        regiao.pontos.push_back({b, iso::ReDMinimo(b, e.Tomada, e.D_mm)});
    }
    regiao.pontos.push_back({iso::BetaMaximo, g.y.maximo});
    regiao.pontos.push_back({iso::BetaMinimo, g.y.maximo});
    g.series.push_back(std::move(regiao));
    Faixa(g, r, [&](const PontoFaixa& f) { return std::pair{r.beta, f.ReD}; });
    g.series.push_back({Traco::Destaque, "Vazão de projeto", Laranja, {{r.beta, ReProjeto}}, {}});
    return g;
}

Grafico GraficoPressao(const VerificacaoFeita& v, const PontoDeProjeto& p) {
    const ResultadoVerificacao& r = v.resultado;
    Grafico g;
    g.titulo = "Pressão diferencial × vazão";
    if (!r.aplicavel) return g;

    // The curve: the same rating at evenly spaced flows between the least
    // and the greatest of the range.
    EntradaVerificacao curva = v.entrada;
    const auto [menor, maior] =
        std::minmax_element(v.entrada.vazoes_pct.begin(), v.entrada.vazoes_pct.end());
    curva.vazoes_pct.clear();
    for (int k = 0; k <= PontosDaCurva; ++k)
        curva.vazoes_pct.push_back(*menor + (*maior - *menor) * k / PontosDaCurva);
    SerieGrafico linha{Traco::Linha, "ISO 5167-2", Cinza, {}, {}};
    for (const PontoFaixa& f : VerificaPlaca(curva).faixa)
        if (f.aplicavel)
            linha.pontos.push_back(
                {VazaoNaUnidade(p, f.vazao_kg_h), PressaoNaUnidade(p, f.pressao_diferencial_Pa)});

    const double qProjeto = p.vazao, dpProjeto = PressaoNaUnidade(p, v.entrada.ponto.dp);
    double qMaior = qProjeto, dpMaior = dpProjeto;
    for (const auto& [q, dp] : linha.pontos) qMaior = std::max(qMaior, q), dpMaior = std::max(dpMaior, dp);
    g.x = EixoLinear("Vazão (" + p.unidade_vazao + ")", qMaior * 1.05);
    g.y = EixoLinear("Δp (" + v.entrada.ponto.unidade_dp + ")", dpMaior * 1.05);

    g.series.push_back(std::move(linha));
    Faixa(g, r, [&](const PontoFaixa& f) {
        return std::pair{VazaoNaUnidade(p, f.vazao_kg_h), PressaoNaUnidade(p, f.pressao_diferencial_Pa)};
    });
    g.series.push_back({Traco::Destaque, "Ponto de projeto", Laranja, {{qProjeto, dpProjeto}}, {}});
    return g;
}

} // namespace tramelo
