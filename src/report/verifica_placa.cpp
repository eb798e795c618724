#include "report/verifica_placa.h"

#include "plataforma/ambiente.h"
#include "plataforma/notificador.h"
#include "plataforma/numero.h"
#include "plataforma/texto.h"
#include "report/frm_relatorio.h"
#include "report/linhas_iso.h"

#include <cmath>

namespace tramelo {
namespace {

constexpr const char* TituloCaixa = "Verificação de placa existente";

LeituraVerificacao Erro(CampoVerificacao campo, std::string mensagem) {
    LeituraVerificacao l;
    l.campo = campo;
    l.mensagem = std::move(mensagem);
    return l;
}

// A number by the program's rules, finite; none for any other text.
std::optional<double> Numero(const std::string& s) {
    const std::optional<double> v = LeNumero(s);
    if (!v || !std::isfinite(*v)) return std::nullopt;
    return v;
}

// The percentages, apart at ";" or blanks: the comma is the decimal mark.
std::optional<std::vector<double>> Porcentagens(const std::string& s) {
    std::vector<double> v;
    size_t i = 0;
    while (i < s.size()) {
        const size_t fim = s.find_first_of("; \t", i);
        const std::string parte = s.substr(i, fim == std::string::npos ? std::string::npos : fim - i);
        if (!parte.empty()) {
            const std::optional<double> n = Numero(parte);
            if (!n || !(*n > 0) || *n > PorcentagemMaxima) return std::nullopt;
            v.push_back(*n);
        }
        if (fim == std::string::npos) break;
        i = fim + 1;
    }
    return v;
}

} // namespace

double VazaoNaUnidade(const PontoDeProjeto& p, double kg_h) {
    return p.vazao * (kg_h / (p.iso.qm * 3600));
}

double PressaoNaUnidade(const PontoDeProjeto& p, double Pa) {
    return Pa / p.iso.pa_por_unidade_dp;
}

std::string DiametroProposto(const PontoDeProjeto& p) {
    if (!p.iso.concluido || !(p.iso.d_legado_mm > 0) || !std::isfinite(p.iso.d_legado_mm)) return {};
    return Arredondado(p.iso.d_legado_mm, 4);
}

std::string PorcentagensPropostas() {
    return "10; 25; 50; 75; 100";
}

LeituraVerificacao LeVerificacao(const TextosVerificacao& t, const PontoDeProjeto& p) {
    using C = CampoVerificacao;
    EntradaVerificacao e;
    e.ponto = p.iso;
    if (EmBranco(t.d20_mm)) return Erro(C::Diametro, "Digite o diâmetro do orifício a 20 ºC, em mm.");
    const std::optional<double> d = Numero(t.d20_mm);
    if (!d)
        return Erro(C::Diametro, "O diâmetro do orifício a 20 ºC tem que ser um número, em mm "
                                 "(por exemplo 61,83).");
    if (!(*d > 0)) return Erro(C::Diametro, "O diâmetro do orifício tem que ser maior que zero.");
    // A run that didn't complete has no D: the rating itself says why it
    // can't be made.
    if (p.iso.concluido && !(*d < p.iso.D_mm))
        return Erro(C::Diametro, "O diâmetro do orifício tem que ser menor que o diâmetro interno "
                                 "do tubo, " + NumeroParaTexto(p.iso.D_mm) + " mm.");
    e.d20_mm = *d;

    const std::optional<std::vector<double>> pct = Porcentagens(t.porcentagens);
    if (!pct || pct->empty())
        return Erro(C::Porcentagens,
                    "As porcentagens da vazão de projeto têm que ser números maiores que 0 e até " +
                        NumeroParaTexto(PorcentagemMaxima) +
                        ", separados por ponto e vírgula (por exemplo 10; 25; 50; 75; 100).");
    if (pct->size() > static_cast<size_t>(PontosMaximos))
        return Erro(C::Porcentagens, "Dê no máximo " + std::to_string(PontosMaximos) +
                                         " porcentagens da vazão de projeto.");
    e.vazoes_pct = *pct;

    const struct {
        const std::string& texto;
        double& valor;
        C campo;
        const char* nome;
    } incertezas[] = {{t.incerteza_D, e.incerteza_D_pct, C::IncertezaD, "D"},
                      {t.incerteza_d, e.incerteza_d_pct, C::Incertezad, "d"},
                      {t.incerteza_dp, e.incerteza_dp_pct, C::IncertezaDp, "Δp"},
                      {t.incerteza_rho, e.incerteza_rho_pct, C::IncertezaRho, "ρ1"}};
    for (const auto& u : incertezas) {
        const std::optional<double> v = EmBranco(u.texto) ? std::optional<double>(0) : Numero(u.texto);
        if (!v || *v < 0 || *v > IncertezaMaxima)
            return Erro(u.campo, std::string("A incerteza de ") + u.nome +
                                     " tem que ser um número de 0 a " +
                                     NumeroParaTexto(IncertezaMaxima) + " (%).");
        u.valor = *v;
    }
    LeituraVerificacao l;
    l.entrada = std::move(e);
    return l;
}

CampoVerificacao cmdVerificar_Click(FrmRelatorio& r, const TextosVerificacao& t) {
    if (!r.pontoIso) {
        MsgBox("Calcule antes de verificar a placa.", vbExclamation, TituloCaixa);
        return CampoVerificacao::Nenhum;
    }
    LeituraVerificacao l = LeVerificacao(t, *r.pontoIso);
    if (!l.entrada) {
        MsgBox(l.mensagem, vbExclamation, TituloCaixa);
        return l.campo;
    }
    ResultadoVerificacao resultado = VerificaPlaca(*l.entrada);
    r.verificacao = VerificacaoFeita{std::move(*l.entrada), std::move(resultado)};
    Notifica(Mudanca::Relatorio, &r);
    return CampoVerificacao::Nenhum;
}

} // namespace tramelo
