// The rating of an existing orifice plate by ISO 5167-2:2003: for a bore
// already made, the flow its design differential pressure means, the
// differential pressure its design flow makes, and the same over a range of
// flows, each point with its limits of use and the flow's uncertainty.
#pragma once

#include "iso5167/iso5167.h"

#include <string>
#include <vector>

namespace tramelo {

struct EntradaVerificacao {
    EntradaIso ponto;   // the design point of a completed run
    double d20_mm = 0;  // the plate's bore at 20 ºC
    std::vector<double> vazoes_pct = {10, 25, 50, 75, 100}; // of the design flow
    // Expanded relative uncertainties of the measured quantities, in %.
    double incerteza_D_pct = 0, incerteza_d_pct = 0, incerteza_dp_pct = 0, incerteza_rho_pct = 0;
};

// One flow of the range. Where it isn't aplicavel (no physical answer) its
// figures are zero and motivo says why.
struct PontoFaixa {
    bool aplicavel = false;
    std::string motivo;
    double vazao_pct = 0, vazao_kg_h = 0, pressao_diferencial_Pa = 0;
    double ReD = 0, C = 0, epsilo = 0;
    double incerteza_vazao_pct = 0;
    std::vector<LimiteIso> limites;      // ISO 5167-2, §5.3.1, every verdict
    bool dentro_dos_limites = false;
    std::vector<std::string> limites_fora; // the names of those out
    std::vector<std::string> avisos;       // a Portuguese sentence for each one out
};

struct ResultadoVerificacao {
    bool aplicavel = false;
    std::string motivo; // why not, in Portuguese; empty where it applies
    double d_mm_20C = 0, d_mm_operacao = 0, beta = 0;
    double vazao_kg_h = 0;              // at the design differential pressure
    double pressao_diferencial_Pa = 0;  // at the design flow
    std::vector<PontoFaixa> faixa;
};

// The whole rating; never throws.
ResultadoVerificacao VerificaPlaca(const EntradaVerificacao& e);

} // namespace tramelo
