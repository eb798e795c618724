// A value that is empty, a text or a double, as the fields of a calculation
// hold them: the text as typed until arithmetic takes its number.
#pragma once

#include "plataforma/num.h"

#include <string>
#include <variant>

namespace tramelo {

class Variante {
public:
    Variante() = default;
    Variante(double v) : v_(v) {}           // NOLINT
    Variante(Num v) : v_(v.valor()) {}      // NOLINT
    Variante(std::string t) : v_(std::move(t)) {} // NOLINT
    Variante(const char* t) : v_(std::string(t)) {} // NOLINT

    bool Vazio() const { return std::holds_alternative<std::monostate>(v_); }
    bool EhTexto() const { return std::holds_alternative<std::string>(v_); }

    // The number: empty is 0, a text converts under the regional settings
    // (failure 13 when it isn't a number).
    Num Numero() const;
    // The text: empty is "", a number in its default text form.
    std::string Texto() const;
    // Empty, or a text that is empty: what a field left blank reads as.
    bool TextoVazio() const;

private:
    std::variant<std::monostate, double, std::string> v_;
    // A text's number, once converted: a run reads the same field many times.
    mutable double numero_ = 0;
    mutable bool convertido_ = false;
};

} // namespace tramelo
