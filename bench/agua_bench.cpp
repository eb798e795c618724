// Water and steam at (p, T): every property of one point, IAPWS-IF97 and the
// R12-08 viscosity, in the three regions a sizing meets.
#include "agua/propriedades.h"

#include <benchmark/benchmark.h>

namespace tramelo::teste {
namespace {

void Propriedades(benchmark::State& estado, double p_kPa, double T_C) {
    for (auto _ : estado) {
        benchmark::DoNotOptimize(p_kPa);
        PropriedadesAgua r = CalculaPropriedadesAgua(p_kPa, T_C);
        benchmark::DoNotOptimize(r);
    }
}

// Region 1: water at 5 MPa and 150 ºC.
BENCHMARK_CAPTURE(Propriedades, AguaRegiao1, 5000.0, 150.0);
// Region 2: steam at 1000 kPa and 250 ºC.
BENCHMARK_CAPTURE(Propriedades, AguaRegiao2, 1000.0, 250.0);
// Region 3: 25 MPa and 650 K, where the density is solved for.
BENCHMARK_CAPTURE(Propriedades, AguaRegiao3, 25000.0, 376.85);

} // namespace
} // namespace tramelo::teste
