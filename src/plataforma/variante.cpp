#include "plataforma/variante.h"

#include "plataforma/numero.h"

namespace tramelo {

Num Variante::Numero() const {
    if (auto d = std::get_if<double>(&v_)) return *d;
    if (auto t = std::get_if<std::string>(&v_)) {
        if (!convertido_) {
            numero_ = TextoParaNumero(*t);
            convertido_ = true;
        }
        return numero_;
    }
    return 0.0;
}

std::string Variante::Texto() const {
    if (auto d = std::get_if<double>(&v_)) return NumeroParaTexto(*d);
    if (auto t = std::get_if<std::string>(&v_)) return *t;
    return {};
}

bool Variante::TextoVazio() const {
    if (Vazio()) return true;
    auto t = std::get_if<std::string>(&v_);
    return t && t->empty();
}

} // namespace tramelo
