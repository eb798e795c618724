#include "sizing/entrada_iso.h"

#include "sizing/catalogo.h"
#include "sizing/execucao.h"

namespace tramelo {

EntradaIso EntradaIso5167(const Execucao& x, int Fluido, int Placa, int Tomada, bool concluido) {
    EntradaIso e;
    e.concluido = concluido;
    e.Fluido = Fluido;
    e.Placa = Placa;
    e.Tomada = Tomada;
    if (!concluido) return e;
    const auto& d = x.Dados;
    e.qm = (x.VazaoVol.valor() * x.MassaEsp.valor()) / 3600;
    e.rho1 = x.MassaEsp.valor();
    e.mu = d[20].Numero().valor() / 1000;
    e.D_mm = d[4].Numero().valor();
    e.dp = d[5].Numero().valor();
    if (Fluido != 0) {
        e.p1 = d[12].Numero().valor() * 1000;
        e.kappa = d[27].Numero().valor();
    }
    e.d_legado_mm = x.Beta.valor() * e.D_mm;
    // Row 29 as the run read it: the factor of the bore's area.
    e.fator_area = d[29].Numero().valor();
    // The exact inverse of the conversion that brought row 5 to pascals.
    const Catalogo& c = catalogo();
    const size_t escala = static_cast<size_t>(x.EscalaPerda + 5);
    if (escala < c.NomeEscalas.size()) e.unidade_dp = c.NomeEscalas[escala];
    e.pa_por_unidade_dp = x.EscalaPerda == 2 ? PaPorMmca : x.EscalaPerda == 1 ? KPaPorKgCm2 / 10 : 1;
    return e;
}

} // namespace tramelo
