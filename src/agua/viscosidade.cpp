#include "agua/viscosidade.h"

#include "agua/coeficientes.h"

#include <cmath>

namespace tramelo {

double ViscosidadeAgua_Pas(double rho, double T) {
    using namespace if97;
    // R12-08 Eqs. (3) and (4): reduced by the critical values of R7-97.
    const double Tr = T / Tc, rhor = rho / rhoc;
    // R12-08 Eq. (11).
    double soma0 = 0, potT = 1;
    for (double H : Viscosidade0) {
        soma0 += H / potT;
        potT = potT * Tr;
    }
    const double mu0 = 100 * std::sqrt(Tr) / soma0;
    // R12-08 Eq. (12); the powers of the two small bases are kept in tables
    // since every one of the 21 terms needs one of each.
    double potX[6] = {1}, potY[7] = {1};
    const double x = 1 / Tr - 1, y = rhor - 1;
    for (int i = 1; i < 6; ++i)
        potX[i] = potX[i - 1] * x;
    for (int j = 1; j < 7; ++j)
        potY[j] = potY[j - 1] * y;
    double soma1 = 0;
    for (const Termo& t : Viscosidade1)
        soma1 += t.n * potX[t.I] * potY[t.J];
    const double mu1 = std::exp(rhor * soma1);
    return muEstrela * mu0 * mu1;
}

} // namespace tramelo
