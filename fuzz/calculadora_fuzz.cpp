// The desk calculator's engine: each byte a key (digits, separator, the five
// operators, percent, C, CE) or the start of a paste of the bytes after it.
// "=" ends a calculator as the window ends it; the next key opens a fresh one.
#include "apoio.h"

#include "calculator/calculadora.h"

#include <algorithm>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* dados, size_t n) {
    using namespace tramelo;
    fuzz::PastaDoFuzz();
    Calculadora c;
    Form_Load(c);
    for (size_t i = 0; i < n; ++i) {
        const uint8_t b = dados[i];
        const int tecla = b % 20;
        if (tecla < 10) {
            Number_Click(c, static_cast<short>(tecla));
        } else if (tecla < 15) {
            SaidaOperador s = cmdOperador_Click(c, static_cast<short>(tecla - 10));
            if (s.resultado || s.erro) Form_Load(c);
        } else if (tecla == 15) {
            cmdDecimal_Click(c);
        } else if (tecla == 16) {
            if (cmdPercent_Click(c)) Form_Load(c);
        } else if (tecla == 17) {
            cmdCancel_Click(c);
        } else if (tecla == 18) {
            cmdCancelEntry_Click(c);
        } else {
            // A paste of the next bytes, as many as the key's high bits say.
            const size_t tamanho = std::min<size_t>(b / 20u, n - i - 1);
            const std::string_view texto(reinterpret_cast<const char*>(dados + i + 1), tamanho);
            if (Cola(c, texto)) Form_Load(c);
            i += tamanho;
        }
    }
    return 0;
}
