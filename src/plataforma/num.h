// Double precision arithmetic that fails as the platform does instead of
// producing infinities or NaN: a division by zero is failure 11 (0/0 is 6, as
// the platform gives it), a result beyond the range of a double is 6, and an
// invalid argument to a function is 5. Formulas are written with this type in
// the operand order they are given, so the figures come out to the last digit.
#pragma once

#include "plataforma/falha.h"

#include <cmath>

namespace tramelo {

class Num {
public:
    constexpr Num() = default;
    constexpr Num(double v) : v_(v) {} // NOLINT: numbers mix freely in formulas
    constexpr double valor() const { return v_; }

    friend Num operator+(Num a, Num b) { return Confere(a.v_ + b.v_); }
    friend Num operator-(Num a, Num b) { return Confere(a.v_ - b.v_); }
    friend Num operator*(Num a, Num b) { return Confere(a.v_ * b.v_); }
    friend Num operator/(Num a, Num b) {
        if (b.v_ == 0) throw Falha(a.v_ == 0 ? Estouro : DivisaoPorZero);
        return Confere(a.v_ / b.v_);
    }
    friend Num operator-(Num a) { return Num(-a.v_); }
    friend bool operator<(Num a, Num b) { return a.v_ < b.v_; }
    friend bool operator>(Num a, Num b) { return a.v_ > b.v_; }
    friend bool operator<=(Num a, Num b) { return a.v_ <= b.v_; }
    friend bool operator>=(Num a, Num b) { return a.v_ >= b.v_; }
    friend bool operator==(Num a, Num b) { return a.v_ == b.v_; }

private:
    static Num Confere(double r) {
        if (!std::isfinite(r)) throw Falha(Estouro);
        return Num(r);
    }
    double v_ = 0;
};

// a ^ b, the power operator.
Num Pot(Num a, Num b);
// Square root; a negative argument is failure 5.
Num Sqr(Num a);
// Natural logarithm; zero or less is failure 5.
Num Log(Num a);
// Rounds down to a whole number.
Num Int(Num a);
Num Abs(Num a);

} // namespace tramelo
