#include "calculator/lugar.h"

namespace tramelo {

PontoTela LugarDaCalculadora(int altura, int campoEsquerda, int campoTopo, int campoFundo,
                             int fundoJanela) {
    if (altura + campoFundo < fundoJanela) return {campoEsquerda, campoFundo};
    return {campoEsquerda, campoTopo - altura};
}

} // namespace tramelo
