// One run of "Calcular" (fields read, report lines written) and the secant
// iteration alone.
#include "calculo_pronto.h"
#include "caixas_roteiro.h"
#include "plataforma/numero.h"
#include "document/calculo.h"
#include "sizing/execucao.h"
#include "sizing/entrada_iso.h"
#include "sizing/iteracao.h"

#include <benchmark/benchmark.h>

namespace tramelo::teste {
namespace {

// Water at 20 ºC, flange taps.
std::unique_ptr<FrmCalcTramelo> Liquido() {
    auto f = CalculoPronto(0, 1);
    Preenche(*f, Agua);
    return f;
}

void CalcularLiquido(benchmark::State& estado) {
    CaixasRoteiro caixas;
    auto f = Liquido();
    for (auto _ : estado) {
        ResultadoCalculo r = cmdCalcular_Click(*f);
        benchmark::DoNotOptimize(r);
    }
    estado.counters["linhas"] = static_cast<double>(f->Relatorio->lstRelatorio.size());
}
BENCHMARK(CalcularLiquido);

// Dry air, the material factor typed as 1.
std::unique_ptr<FrmCalcTramelo> Ar() {
    auto f = CalculoPronto(1, 1);
    f->cboDados(29)->DefineListIndex(1);
    Preenche(*f, {{2, "1000"}, {4, "102,26"}, {5, "10000"}, {8, "0"}, {9, "40"}, {12, "500"},
                  {16, "0"}, {19, "1"}, {25, "1"}, {26, "1"}, {20, "0,018"}, {27, "1,4"},
                  {28, "0,8"}, {29, "1"}});
    return f;
}

void CalcularAr(benchmark::State& estado) {
    CaixasRoteiro caixas;
    auto f = Ar();
    for (auto _ : estado) {
        ResultadoCalculo r = cmdCalcular_Click(*f);
        benchmark::DoNotOptimize(r);
    }
    estado.counters["linhas"] = static_cast<double>(f->Relatorio->lstRelatorio.size());
}
BENCHMARK(CalcularAr);

// The secant loop of the air case: three passes with the expansibility.
void IteracaoBeta(benchmark::State& estado) {
    CaixasRoteiro caixas;
    auto f = Ar();
    Execucao x;
    cmdCalcular_Click(*f, &x);
    const Num coefCarga = x.CoefCarga;
    for (auto _ : estado) {
        x.CoefAlvo = coefCarga;
        bool ok = CalculaBeta(x, 1, 1, 102.26);
        benchmark::DoNotOptimize(ok);
        benchmark::DoNotOptimize(x.Beta);
    }
    estado.counters["passos"] = x.passes;
}
BENCHMARK(IteracaoBeta);

// The ISO 5167-2 check of a completed run alone: what each "Calcular" adds to
// the two runs above.
void VerificaIso(benchmark::State& estado, std::unique_ptr<FrmCalcTramelo> f) {
    CaixasRoteiro caixas;
    Execucao x;
    cmdCalcular_Click(*f, &x);
    const EntradaIso e = EntradaIso5167(x, f->Fluido, f->Placa, f->Tomada, true);
    for (auto _ : estado) {
        ResultadoIso r = CalculaIso5167(e);
        benchmark::DoNotOptimize(r);
    }
}
void VerificaIsoLiquido(benchmark::State& estado) {
    VerificaIso(estado, Liquido());
}
BENCHMARK(VerificaIsoLiquido);
void VerificaIsoAr(benchmark::State& estado) {
    CaixasRoteiro caixas;
    VerificaIso(estado, Ar());
}
BENCHMARK(VerificaIsoAr);

void FormataQuarentaNumeros(benchmark::State& estado) {
    std::string s;
    for (auto _ : estado) {
        s.clear();
        for (int i = 0; i < 40; ++i) AcrescentaNumero(s, 1.35284062679053 * (i + 1));
        benchmark::DoNotOptimize(s.data());
    }
}
BENCHMARK(FormataQuarentaNumeros);

} // namespace
} // namespace tramelo::teste
