// A whole tramelo-calc run over an arbitrary file: open, "Calcular", the
// report as an export writes it, close.
#include "apoio.h"

#include "lote/lote.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* dados, size_t n) {
    using namespace tramelo;
    const std::string arquivo = fuzz::GravaEntrada("lote.trl", dados, n);
    canal1().Reinicia();
    CalculaArquivo(arquivo, n > 0 && dados[0] % 2 == 1);
    canal1().Reinicia();
    return 0;
}
