// Where the desk calculator opens beside the field it was opened on.
#pragma once

namespace tramelo {

struct PontoTela {
    int x, y;
};

// Screen coordinates, all in the same unit; `altura` is the calculator's
// whole height, title bar included, and the point returned is its outer
// top-left corner. Under the field when the calculator ends strictly above
// the calculation window's bottom; otherwise above the field, ending at its
// top (an exact fit goes above).
PontoTela LugarDaCalculadora(int altura, int campoEsquerda, int campoTopo, int campoFundo,
                             int fundoJanela);

} // namespace tramelo
