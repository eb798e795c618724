// A second opinion on an orifice plate: the bore by ISO 5167-2:2003
// (Reader-Harris/Gallagher discharge coefficient, the 2003 expansibility, the
// flow equation of ISO 5167-1), with the standard's permanent pressure loss,
// uncertainties and limits of use, beside the bore this program found.
#pragma once

#include "iso5167/equacoes.h"

#include <string>
#include <vector>

namespace tramelo {

// The point as the standard wants it, in SI units except the diameters.
struct EntradaIso {
    bool concluido = false; // the run of "Calcular" reached its report
    int Fluido = 0;         // 0 liquid, 1 gas, 2 steam
    int Placa = 1;          // 1 orifice plate, 2 restriction orifice
    int Tomada = 1;         // 1 flange, 2 D and D/2, 3 vena contracta, 4 corner, 5 pipe taps
    double qm = 0;          // mass flow, kg/s
    double rho1 = 0;        // density upstream, kg/m³
    double mu = 0;          // dynamic viscosity, Pa·s
    double D_mm = 0;        // pipe's inside diameter
    double dp = 0;          // differential pressure, Pa
    double p1 = 0;          // absolute pressure upstream, Pa (gas and steam)
    double kappa = 0;       // isentropic exponent (gas and steam)
    double d_legado_mm = 0; // this program's bore, Beta · D
    double fator_area = 1;  // row 29: the bore's area at the flowing temperature over at 20 ºC
    // The unit the user chose for the differential pressure, and the pascals
    // in one of it, for the permanent loss in that unit.
    std::string unidade_dp = "Pa";
    double pa_por_unidade_dp = 1;
};

struct ResultadoIso {
    bool aplicavel = false;
    std::string motivo; // why not, in Portuguese; empty where it applies
    double beta = 0, d_mm = 0, C = 0, epsilo = 0, ReD = 0;
    int Fluido = 0;
    double perda_permanente_Pa = 0;
    double perda_permanente = 0;    // in unidade_perda, the differential pressure's unit
    std::string unidade_perda = "Pa";
    double incerteza_C_pct = 0, incerteza_epsilo_pct = 0;
    // The standard's bore at 20 ºC, where this program gives its own: the
    // bore at the flowing temperature over √(row 29), row 29 being the
    // factor of the bore's area.
    double d_mm_20C = 0;
    double diferenca_d_pct = 0; // 100 · (d_legado / d_mm_20C − 1)
    std::vector<LimiteIso> limites;
    bool dentro_dos_limites = false;
};

// Why ISO 5167-2 doesn't apply to this point (in Portuguese); empty where it
// does. The rating of a given bore refuses the same points.
std::string MotivoIso5167(const EntradaIso& e);

// The whole check; never throws.
ResultadoIso CalculaIso5167(const EntradaIso& e);

} // namespace tramelo
