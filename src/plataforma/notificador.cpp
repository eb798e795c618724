#include "plataforma/notificador.h"

#include <algorithm>

namespace tramelo {

void Notificador::Inscreve(Observador* o) {
    if (std::find(observadores_.begin(), observadores_.end(), o) == observadores_.end())
        observadores_.push_back(o);
}

void Notificador::Desinscreve(Observador* o) {
    std::erase(observadores_, o);
}

void Notificador::Notifica(Mudanca tipo, const void* quem) {
    if (observadores_.empty()) return;
    const std::vector<Observador*> copia = observadores_;
    for (Observador* o : copia)
        if (std::find(observadores_.begin(), observadores_.end(), o) != observadores_.end())
            o->Mudou(tipo, quem);
}

Notificador& notificador() {
    static Notificador n;
    return n;
}

} // namespace tramelo
