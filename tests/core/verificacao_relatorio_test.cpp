// The rating of an existing plate from a completed run: the run's point kept
// in the report, the tab's texts read, the lines and table in the user's
// units, the pictures' content, and the printed ISO page that carries them.
#include "caixas_roteiro.h"
#include "calculo_pronto.h"
#include "dialogos_roteiro.h"
#include "document/calculo.h"
#include "report/graficos_verificacao.h"
#include "report/impressao.h"
#include "report/linhas_verificacao.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace tramelo::teste {
namespace {

double Relativo(double a, double b) {
    return std::abs(a / b - 1);
}

// The water sample (data/exemplos/agua.trl) calculated: 50 M³/h, D 102,26 mm,
// 25000 Pa, flange taps; its report prints a bore of 61,83 mm.
std::unique_ptr<FrmCalcTramelo> AguaCalculada() {
    CaixasRoteiro caixas;
    auto f = CalculoPronto(0, 1);
    Preenche(*f, Agua);
    EXPECT_EQ(cmdCalcular_Click(*f).fim, FimCalculo::Concluido);
    return f;
}

TEST(VerificacaoRelatorio, ComoUmEngenheiroLeNasUnidadesDoCalculo) {
    auto f = AguaCalculada();
    FrmRelatorio& r = *f->Relatorio;
    ASSERT_TRUE(r.pontoIso);
    EXPECT_EQ(r.pontoIso->vazao, 50);
    EXPECT_EQ(r.pontoIso->unidade_vazao, "M³/h");
    EXPECT_EQ(DiametroProposto(*r.pontoIso), "61,83");
    CaixasRoteiro caixas;
    EXPECT_EQ(cmdVerificar_Click(r, {"61,83", "10; 50", "", "", "", ""}), CampoVerificacao::Nenhum);
    ASSERT_TRUE(r.verificacao);
    const ResultadoVerificacao& v = r.verificacao->resultado;
    ASSERT_TRUE(v.aplicavel) << v.motivo;
    // "agua.trl 61,83" of tests/data/iso5167/verifica.py (python3-fluids):
    // 49984,5067934 kg/h, 50,0846761457 M³/h at 25000 Pa; 24915,1640812 Pa
    // at the design flow.
    EXPECT_LT(Relativo(v.vazao_kg_h, 49984.5067934), 1e-9);
    EXPECT_LT(Relativo(VazaoNaUnidade(*r.pontoIso, v.vazao_kg_h), 50.0846761457), 1e-9);
    EXPECT_LT(Relativo(v.pressao_diferencial_Pa, 24915.1640812), 1e-9);
    // The same rows rounded by hand as the report rounds: 5 digits for the
    // flow and dp, 6 for ReD and C, 2 for the uncertainty (0,5079269509 %).
    const std::vector<std::string> esperadas = {
        " Verificação de placa existente (ISO 5167-2:2003)",
        "",
        " Diâmetro do orifício a 20 ºC _____ 61,83 mm",
        " Diâmetro do orifício em operação _ 61,83 mm",
        " Beta = d/D _______________________ 0,60464", // 61,83 / 102,26 = 0,604635
        " Vazão na Δp de projeto ___________ 50,085 M³/h (49985 Kg/h)",
        " Δp na vazão de projeto ___________ 24915 Pa",
        " Incertezas de D, d, Δp e ρ1 ______ 0 / 0 / 0 / 0 %",
        "",
        "   Vazão     Vazão        Δp       ReD         C Incerteza  Limites",
        "       %      M³/h        Pa                             %",
        // {10, 239.144029579, 17258.473304, 0.621936356194, 1, 0.5079269509}
        "      10         5    239,14   17258,5  0,621936      0,51  dentro",
        // {50, 6183.09437262, 86292.3665198, 0.611565225798, 1, 0.5079269509}
        "      50        25    6183,1   86292,4  0,611565      0,51  dentro",
    };
    EXPECT_EQ(LinhasVerificacao(*r.verificacao, *r.pontoIso), esperadas);
    // Another run drops the rating: it rated another point.
    CaixasRoteiro outra;
    ASSERT_EQ(cmdCalcular_Click(*f).fim, FimCalculo::Concluido);
    EXPECT_FALSE(r.verificacao);
}

// Each wrong text told in Portuguese, with the field to go back to; the
// rating made before stays.
TEST(VerificacaoRelatorio, TextosErradosDizemPorQue) {
    using C = CampoVerificacao;
    const std::string faixa = "As porcentagens da vazão de projeto têm que ser números maiores que "
                              "0 e até 200, separados por ponto e vírgula (por exemplo 10; 25; 50; "
                              "75; 100).";
    const struct {
        TextosVerificacao t;
        C campo;
        std::string mensagem;
    } casos[] = {
        {{" ", "10", "", "", "", ""}, C::Diametro, "Digite o diâmetro do orifício a 20 ºC, em mm."},
        {{"6O", "10", "", "", "", ""}, C::Diametro,
         "O diâmetro do orifício a 20 ºC tem que ser um número, em mm (por exemplo 61,83)."},
        {{"-3", "10", "", "", "", ""}, C::Diametro, "O diâmetro do orifício tem que ser maior que zero."},
        {{"102,26", "10", "", "", "", ""}, C::Diametro,
         "O diâmetro do orifício tem que ser menor que o diâmetro interno do tubo, 102,26 mm."},
        {{"60", "", "", "", "", ""}, C::Porcentagens, faixa},
        {{"60", "10; dez", "", "", "", ""}, C::Porcentagens, faixa},
        {{"60", "0; 10", "", "", "", ""}, C::Porcentagens, faixa},
        {{"60", "10; 200,5", "", "", "", ""}, C::Porcentagens, faixa},
        {{"60", "1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20 21", "", "", "", ""},
         C::Porcentagens, "Dê no máximo 20 porcentagens da vazão de projeto."},
        {{"60", "10", "x", "", "", ""}, C::IncertezaD,
         "A incerteza de D tem que ser um número de 0 a 100 (%)."},
        {{"60", "10", "", "", "", "-0,1"}, C::IncertezaRho,
         "A incerteza de ρ1 tem que ser um número de 0 a 100 (%)."},
    };
    auto f = AguaCalculada();
    FrmRelatorio& r = *f->Relatorio;
    CaixasRoteiro caixas;
    ASSERT_EQ(cmdVerificar_Click(r, {"60", "10", "", "", "", ""}), C::Nenhum);
    const double feita = r.verificacao->resultado.vazao_kg_h;
    for (const auto& c : casos) {
        SCOPED_TRACE(c.mensagem);
        caixas.mostradas.clear();
        EXPECT_EQ(cmdVerificar_Click(r, c.t), c.campo);
        ASSERT_EQ(caixas.mostradas.size(), 1u);
        EXPECT_EQ(caixas.mostradas[0].texto, c.mensagem);
        EXPECT_EQ(caixas.mostradas[0].titulo, "Verificação de placa existente");
        EXPECT_EQ(r.verificacao->resultado.vazao_kg_h, feita);
    }
    // Decimal commas, ";" or blanks apart, empty uncertainties 0.
    const LeituraVerificacao l = LeVerificacao({"60,5", "10;37,5  50", "0,4", "", "0,6", "0,2"}, *r.pontoIso);
    ASSERT_TRUE(l.entrada);
    EXPECT_EQ(l.entrada->d20_mm, 60.5);
    EXPECT_EQ(l.entrada->vazoes_pct, (std::vector<double>{10, 37.5, 50}));
    EXPECT_EQ(std::vector<double>({l.entrada->incerteza_D_pct, l.entrada->incerteza_d_pct,
                                   l.entrada->incerteza_dp_pct, l.entrada->incerteza_rho_pct}),
              (std::vector<double>{0.4, 0, 0.6, 0.2}));
}

// What each picture shows, against ISO 5167-2 5.3.1 and the figures of
// verifica.py's "agua.trl 61,83"; the ticks as a reader reads them.
TEST(VerificacaoRelatorio, OQueAsFigurasMostram) {
    auto f = AguaCalculada();
    FrmRelatorio& r = *f->Relatorio;
    CaixasRoteiro caixas;
    cmdVerificar_Click(r, {"61,83", "10; 50", "", "", "", ""});
    const Grafico limites = GraficoLimites(*r.verificacao);
    EXPECT_EQ(limites.titulo, "Limites de uso (ISO 5167-2, 5.3.1) - Flange Taps");
    ASSERT_EQ(limites.series.size(), 3u);
    const SerieGrafico& regiao = limites.series[0];
    EXPECT_EQ(regiao.traco, Traco::Regiao);
    // From β 0,1 at ReD 5000 to β 0,75 at 170 β² D = 9778,6125, then up.
    EXPECT_EQ(regiao.pontos.front(), std::pair(0.1, 5000.0));
    EXPECT_DOUBLE_EQ(regiao.pontos[regiao.pontos.size() - 3].second, 9778.6125);
    EXPECT_EQ(regiao.pontos.back(), std::pair(0.1, 1e6));
    EXPECT_EQ(limites.series[1].rotulos, (std::vector<std::string>{"10 %", "50 %"}));
    EXPECT_LT(Relativo(limites.series[1].pontos[1].second, 86292.3665198), 1e-11);
    EXPECT_EQ(limites.series[2].traco, Traco::Destaque);
    EXPECT_LT(Relativo(limites.series[2].pontos[0].second, 172584.73304), 1e-11);
    std::vector<std::string> marcas;
    for (const auto& m : limites.y.marcas) marcas.push_back(m.second);
    EXPECT_EQ(marcas, (std::vector<std::string>{"10³", "10⁴", "10⁵", "10⁶"}));

    const Grafico pressao = GraficoPressao(*r.verificacao, *r.pontoIso);
    EXPECT_EQ(pressao.x.titulo, "Vazão (M³/h)");
    EXPECT_EQ(pressao.y.titulo, "Δp (Pa)");
    const SerieGrafico& curva = pressao.series[0];
    EXPECT_LT(Relativo(curva.pontos.front().second, 239.144029579), 1e-9);
    EXPECT_LT(Relativo(curva.pontos.back().second, 6183.09437262), 1e-9);
    EXPECT_EQ(pressao.series.back().pontos, (std::vector<std::pair<double, double>>{{50, 25000}}));

    // Steps of 1, 2, 2,5 or 5 times a power of ten, at most five of them.
    const struct {
        double maximo, topo;
        std::vector<std::string> marcas;
    } eixos[] = {{52.5, 60, {"0", "20", "40", "60"}},
                 {1.2, 1.25, {"0", "0,25", "0,5", "0,75", "1", "1,25"}},
                 {26250, 30000, {"0", "10000", "20000", "30000"}}};
    for (const auto& e : eixos) {
        const EixoGrafico x = EixoLinear("", e.maximo);
        std::vector<std::string> t;
        for (const auto& m : x.marcas) t.push_back(m.second);
        EXPECT_EQ(x.maximo, e.topo);
        EXPECT_EQ(t, e.marcas);
    }
}

// The printed ISO page: the rating's lines after the check, then both
// pictures side by side; a rating that doesn't apply has its reason and no
// pictures.
TEST(VerificacaoRelatorio, PaginaIsoImpressaLevaTabelaEFiguras) {
    struct ImpressoraComFiguras : Impressora {
        Impressora* anterior = std::exchange(impressoraInstalada(), this);
        ~ImpressoraComFiguras() override { impressoraInstalada() = anterior; }
        std::vector<std::string> saida;
        void DefineCopias(int) override {}
        void DefineFonte(const std::string&, int, bool) override {}
        void ImprimeLinha(const std::vector<PecaLinha>& pecas) override {
            saida.emplace_back();
            for (const PecaLinha& p : pecas) saida.back() += p.texto;
        }
        void NovaPagina() override { saida.push_back("<nova página>"); }
        void ImprimeGraficos(const std::vector<Grafico>& g, int coluna) override {
            std::string s = "<figuras na coluna " + std::to_string(coluna) + ":";
            for (const Grafico& x : g) s += " " + x.titulo + ";";
            saida.push_back(s + ">");
        }
        void FimDocumento() override { saida.push_back("<fim>"); }
    };
    auto f = AguaCalculada();
    FrmRelatorio& r = *f->Relatorio;
    CaixasRoteiro caixas;
    for (const bool placa : {true, false}) {
        if (!placa) r.pontoIso->iso.Placa = 2; // a restriction orifice
        cmdVerificar_Click(r, {"61,83", "10; 50", "", "", "", ""});
        DialogosRoteiro dialogos;
        dialogos.nomes = {"impressora"};
        ImpressoraComFiguras impressora;
        DialogoImpressao().SegundaPaginaIso = true;
        mnuArquivoImprimir_Click(r);
        DialogoImpressao().SegundaPaginaIso = false;
        const auto& s = impressora.saida;
        const auto titulo = std::find(s.begin(), s.end(), " Verificação de placa existente (ISO 5167-2:2003)");
        ASSERT_NE(titulo, s.end());
        EXPECT_LT(std::find(s.begin(), s.end(), "<nova página>"), titulo);
        if (placa) {
            EXPECT_EQ(std::vector<std::string>(s.end() - 5, s.end()),
                      (std::vector<std::string>{
                          "      10         5    239,14   17258,5  0,621936      0,51  dentro",
                          "      50        25    6183,1   86292,4  0,611565      0,51  dentro", "",
                          "<figuras na coluna 9: Limites de uso (ISO 5167-2, 5.3.1) - Flange Taps; "
                          "Pressão diferencial × vazão;>",
                          "<fim>"}));
        } else {
            EXPECT_EQ(std::vector<std::string>(titulo, s.end()),
                      (std::vector<std::string>{
                          " Verificação de placa existente (ISO 5167-2:2003)", "",
                          " Não se aplica: A ISO 5167-2 não se aplica a orifícios de restrição.", "<fim>"}));
        }
    }
}

} // namespace
} // namespace tramelo::teste
