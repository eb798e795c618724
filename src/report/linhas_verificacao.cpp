#include "report/linhas_verificacao.h"

#include "plataforma/numero.h"
#include "plataforma/texto.h"
#include "report/linhas_iso.h"

namespace tramelo {
namespace {

// Where the standard gives nothing: no answer, or no uncertainty outside
// the limits of use.
constexpr const char* Nada = "-";

// Column widths of the text table, in characters, the limits last and free.
constexpr int LarguraPct = 7, LarguraNumero = 10, RecuoLimites = 2;

std::string ADireita(const std::string& s, int largura) {
    const int n = Len(s);
    return n >= largura ? " " + s : std::string(static_cast<size_t>(largura - n), ' ') + s;
}

bool Gas(const VerificacaoFeita& v) {
    return v.entrada.ponto.Fluido != 0;
}

std::string Limites(const PontoFaixa& f) {
    if (!f.aplicavel) return "sem solução";
    if (f.dentro_dos_limites) return "dentro";
    std::string s;
    for (const std::string& nome : f.limites_fora) s += (s.empty() ? "" : ", ") + NomeCurto(nome);
    return s;
}

// A reason after a heading: its first letter, ASCII in every reason, in
// lower case.
std::string Minuscula(std::string s) {
    if (!s.empty() && s[0] >= 'A' && s[0] <= 'Z') s[0] = static_cast<char>(s[0] - 'A' + 'a');
    return s;
}

} // namespace

TabelaVerificacao TabelaDaVerificacao(const VerificacaoFeita& v, const PontoDeProjeto& p) {
    TabelaVerificacao t;
    const bool gas = Gas(v);
    t.colunas = {"Vazão", "Vazão", "Δp", "ReD", "C"};
    t.unidades = {"%", p.unidade_vazao, p.iso.unidade_dp, "", ""};
    if (gas) {
        t.colunas.push_back("ε");
        t.unidades.push_back("");
    }
    t.colunas.insert(t.colunas.end(), {"Incerteza", "Limites"});
    t.unidades.insert(t.unidades.end(), {"%", ""});
    if (!v.resultado.aplicavel) return t;
    for (const PontoFaixa& f : v.resultado.faixa) {
        std::vector<std::string> l;
        l.push_back(NumeroParaTexto(f.vazao_pct));
        // A flow with no answer still has the flow it was asked for.
        l.push_back(Arredondado((f.vazao_pct / 100) * p.vazao, 4));
        if (f.aplicavel) {
            l.push_back(Arredondado(PressaoNaUnidade(p, f.pressao_diferencial_Pa), 4));
            l.push_back(Arredondado(f.ReD, 5));
            l.push_back(Arredondado(f.C, 5));
            if (gas) l.push_back(Arredondado(f.epsilo, 5));
            // ISO 5167-2, 5.3.3: the uncertainties hold inside the limits only.
            l.push_back(f.dentro_dos_limites ? Arredondado(f.incerteza_vazao_pct, 1) : Nada);
        } else {
            l.insert(l.end(), gas ? 5 : 4, Nada);
        }
        l.push_back(Limites(f));
        t.linhas.push_back(std::move(l));
        t.dentro.push_back(f.aplicavel && f.dentro_dos_limites);
    }
    return t;
}

std::vector<std::string> ResumoVerificacao(const VerificacaoFeita& v, const PontoDeProjeto& p) {
    const ResultadoVerificacao& r = v.resultado;
    if (!r.aplicavel) return {" Não se aplica: " + r.motivo};
    const std::string& kgh = p.unidade_vazao;
    std::string vazao = Arredondado(VazaoNaUnidade(p, r.vazao_kg_h), 4) + " " + kgh;
    if (kgh != "Kg/h") vazao += " (" + Arredondado(r.vazao_kg_h, 4) + " Kg/h)";
    std::string dp = Arredondado(PressaoNaUnidade(p, r.pressao_diferencial_Pa), 4) + " " +
                     p.iso.unidade_dp;
    if (p.iso.unidade_dp != "Pa") dp += " (" + Arredondado(r.pressao_diferencial_Pa, 4) + " Pa)";
    const EntradaVerificacao& e = v.entrada;
    return {
        LinhaIso("Diâmetro do orifício a 20 ºC", NumeroParaTexto(r.d_mm_20C), "mm"),
        LinhaIso("Diâmetro do orifício em operação", Arredondado(r.d_mm_operacao, 4), "mm"),
        LinhaIso("Beta = d/D", Arredondado(r.beta, 4)),
        LinhaIso("Vazão na Δp de projeto", vazao),
        LinhaIso("Δp na vazão de projeto", dp),
        LinhaIso("Incertezas de D, d, Δp e ρ1",
                 NumeroParaTexto(e.incerteza_D_pct) + " / " + NumeroParaTexto(e.incerteza_d_pct) +
                     " / " + NumeroParaTexto(e.incerteza_dp_pct) + " / " +
                     NumeroParaTexto(e.incerteza_rho_pct),
                 "%"),
    };
}

std::vector<std::string> AvisosVerificacao(const VerificacaoFeita& v) {
    std::vector<std::string> a;
    for (const PontoFaixa& f : v.resultado.faixa) {
        if (!f.aplicavel)
            a.push_back("A " + NumeroParaTexto(f.vazao_pct) + " % da vazão, " + Minuscula(f.motivo));
        a.insert(a.end(), f.avisos.begin(), f.avisos.end());
    }
    return a;
}

std::vector<std::string> LinhasVerificacao(const VerificacaoFeita& v, const PontoDeProjeto& p) {
    std::vector<std::string> l{std::string(" ") + TituloVerificacao + " (ISO 5167-2:2003)", ""};
    for (std::string& s : ResumoVerificacao(v, p)) l.push_back(std::move(s));
    if (!v.resultado.aplicavel) return l;
    l.push_back("");
    const TabelaVerificacao t = TabelaDaVerificacao(v, p);
    // Numbers to the right of their columns, the limits after a gap.
    auto linha = [&](const std::vector<std::string>& celulas) {
        std::string s = " ";
        for (size_t i = 0; i + 1 < celulas.size(); ++i)
            s += ADireita(celulas[i], i == 0 ? LarguraPct : LarguraNumero);
        s += std::string(RecuoLimites, ' ') + celulas.back();
        while (!s.empty() && s.back() == ' ') s.pop_back();
        return s;
    };
    l.push_back(linha(t.colunas));
    l.push_back(linha(t.unidades));
    for (const auto& c : t.linhas) l.push_back(linha(c));
    bool semIncerteza = false;
    for (const PontoFaixa& f : v.resultado.faixa) semIncerteza |= f.aplicavel && !f.dentro_dos_limites;
    if (semIncerteza)
        l.push_back(" (incerteza \"-\": a norma não a dá fora dos limites de uso)");
    const std::vector<std::string> avisos = AvisosVerificacao(v);
    if (!avisos.empty()) {
        l.push_back("");
        for (const std::string& a : avisos) l.push_back(" " + a);
    }
    return l;
}

} // namespace tramelo
