#include "report/linhas_iso.h"

#include "plataforma/numero.h"
#include "plataforma/texto.h"
#include "report/linhas.h"

#include <cmath>

namespace tramelo {
namespace {

// A percentage with its sign and three decimals, as a difference is read.
std::string ComSinal(double pct) {
    const double r = std::round(pct * 1000) / 1000;
    return (r > 0 ? "+" : "") + NumeroParaTexto(r == 0 ? 0.0 : r);
}

} // namespace

// Rounded first, so a figure reads as the report's results read.
std::string Arredondado(double v, int digitos) {
    if (!(std::isfinite(v) && v > 0)) return NumeroParaTexto(v);
    return NumeroParaTexto(Arredonda(Num(v), digitos).valor());
}

std::string LinhaIso(std::string_view rotulo, const std::string& valor, std::string_view unidade) {
    std::string l = " ";
    l += rotulo;
    l += ' ';
    const int largura = Len(rotulo);
    if (largura < 33) l.append(static_cast<size_t>(33 - largura), '_');
    l += ' ';
    l += valor;
    if (!unidade.empty()) {
        l += ' ';
        l += unidade;
    }
    return l;
}

std::string NomeCurto(const std::string& nome) {
    if (nome == "beta") return "β";
    if (nome == "d (mm)") return "d";
    if (nome == "D (mm)") return "D";
    return nome;
}

std::string VeredictoIso5167(const ResultadoIso& r) {
    std::string fora;
    for (const LimiteIso& m : r.limites)
        if (!m.ok) fora += (fora.empty() ? "" : ", ") + NomeCurto(m.nome);
    return fora.empty() ? "Dentro dos limites de uso" : "Fora dos limites de uso: " + fora;
}

std::vector<std::string> CorpoIso5167(const ResultadoIso& r) {
    std::vector<std::string> l;
    if (!r.aplicavel) {
        l.push_back(" Não se aplica: " + r.motivo);
        return l;
    }
    l.push_back(" " + VeredictoIso5167(r));
    l.push_back("");
    // Beta and the bore as the report gives them; C, ε and ReD to six digits.
    l.push_back(LinhaIso("Beta = d/D", Arredondado(r.beta, 4)));
    l.push_back(LinhaIso("Diâmetro do orifício", Arredondado(r.d_mm, 4), "mm"));
    l.push_back(LinhaIso("Diâmetro do orifício a 20 ºC", Arredondado(r.d_mm_20C, 4), "mm"));
    l.push_back(LinhaIso("Diferença em d (Tramelo/ISO)", ComSinal(r.diferenca_d_pct), "%"));
    l.push_back(" (os dois diâmetros a 20 ºC: o da ISO dividido pela raiz do fator do material)");
    l.push_back(LinhaIso("Coeficiente de descarga C", Arredondado(r.C, 5)));
    l.push_back(LinhaIso("Epsilo", r.Fluido == 0 ? "não se aplica" : Arredondado(r.epsilo, 5)));
    l.push_back(LinhaIso("ReD na vazão de projeto", Arredondado(r.ReD, 5)));
    l.push_back(LinhaIso("Perda de carga permanente", Arredondado(r.perda_permanente, 1), r.unidade_perda));
    // The standard gives its uncertainties for points inside its limits only.
    const bool valida = r.dentro_dos_limites;
    l.push_back(valida ? LinhaIso("Incerteza de C", Arredondado(r.incerteza_C_pct, 1), "%")
                       : LinhaIso("Incerteza de C", "fora da norma"));
    if (r.Fluido == 0) l.push_back(LinhaIso("Incerteza de Epsilo", "não se aplica"));
    else if (!valida) l.push_back(LinhaIso("Incerteza de Epsilo", "fora da norma"));
    else l.push_back(LinhaIso("Incerteza de Epsilo", Arredondado(r.incerteza_epsilo_pct, 1), "%"));
    l.push_back("");
    l.push_back(" Limites de uso (ISO 5167-2, 5.3.1):");
    for (const LimiteIso& m : r.limites) {
        std::string faixa;
        if (m.minimo && m.maximo)
            faixa = Arredondado(*m.minimo, 5) + " a " + Arredondado(*m.maximo, 5);
        else if (m.minimo) faixa = ">= " + Arredondado(*m.minimo, 5);
        else if (m.maximo) faixa = "<= " + Arredondado(*m.maximo, 5);
        l.push_back(LinhaIso(m.nome, Arredondado(m.valor, 5) + " (" + faixa + ") " +
                                      (m.ok ? "dentro" : "FORA")));
    }
    return l;
}

std::vector<std::string> LinhasIso5167(const ResultadoIso& r) {
    std::vector<std::string> l{std::string(" ") + TituloIso5167, ""};
    for (std::string& c : CorpoIso5167(r)) l.push_back(std::move(c));
    return l;
}

} // namespace tramelo
