// Text to number and back: any text through the platform's conversions, and
// any double through its text form. A number's text must read back as a
// number whose text is the same (15 significant digits are a fixed point).
#include "plataforma/falha.h"
#include "plataforma/numero.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>

namespace {

void Volta(double x) {
    using namespace tramelo;
    const std::string t = NumeroParaTexto(x);
    if (!std::isfinite(x)) return;
    const std::optional<double> de_novo = LeNumero(t);
    if (!de_novo) std::abort();
    // Within a digit of the largest double, 15 digits round beyond it, and
    // the text reads back as an overflow, as it does on the platform.
    if (std::isinf(*de_novo)) {
        if (std::fabs(x) < 1.797693134862315e308) std::abort();
        return;
    }
    if (NumeroParaTexto(*de_novo) != t) std::abort();
    NumeroSimplesParaTexto(static_cast<float>(x));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* dados, size_t n) {
    using namespace tramelo;
    const std::string_view texto(reinterpret_cast<const char*>(dados), n);
    if (std::optional<double> v = LeNumero(texto)) Volta(*v);
    try {
        Volta(TextoParaNumero(texto));
    } catch (const Falha&) {
    }
    const double lenient = Val(texto);
    try {
        CInt(lenient);
    } catch (const Falha&) {
    }
    Volta(lenient);
    if (n >= sizeof(double)) {
        double bruto;
        std::memcpy(&bruto, dados, sizeof bruto);
        Volta(bruto);
    }
    return 0;
}
