#include "base/pedidos.h"

namespace tramelo {

PedidosDesktop*& pedidosDesktop() {
    static PedidosDesktop* p = nullptr;
    return p;
}

} // namespace tramelo
