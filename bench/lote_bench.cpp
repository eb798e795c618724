// Opening a .trl and running "Calcular" through the command-line tool's path.
#include "plataforma/canal.h"
#include "lote/lote.h"
#include "base/mod_base.h"
#include "sizing/catalogo.h"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>

namespace tramelo {
namespace {

void AbreECalcula(benchmark::State& estado) {
    const std::string pasta = (std::filesystem::temp_directory_path() / "tramelo-bench").string();
    DefinePastas(pasta);
    CarregaCatalogo();
    const std::string arquivo = std::string(TRAMELO_EXEMPLOS) + "/agua.trl";
    for (auto _ : estado) {
        ResultadoLote r = CalculaArquivo(arquivo, false);
        benchmark::DoNotOptimize(r);
    }
}
BENCHMARK(AbreECalcula);

} // namespace
} // namespace tramelo
