#include "plataforma/num.h"

namespace tramelo {

Num Pot(Num a, Num b) {
    double x = a.valor(), y = b.valor();
    if (x < 0 && y != std::floor(y)) throw Falha(ArgumentoInvalido);
    if (x == 0 && y < 0) throw Falha(ArgumentoInvalido);
    double r = std::pow(x, y);
    if (!std::isfinite(r)) throw Falha(Estouro);
    return r;
}

Num Sqr(Num a) {
    if (a.valor() < 0) throw Falha(ArgumentoInvalido);
    return std::sqrt(a.valor());
}

Num Log(Num a) {
    if (a.valor() <= 0) throw Falha(ArgumentoInvalido);
    return std::log(a.valor());
}

Num Int(Num a) { return std::floor(a.valor()); }

Num Abs(Num a) { return std::fabs(a.valor()); }

} // namespace tramelo
