// The fixed vocabulary of a calculation: orifice kinds, fluids, tap kinds,
// field labels and unit names. Filled once at start-up; the index of a field
// here is its row index everywhere.
#pragma once

#include <array>
#include <string>

namespace tramelo {

struct Catalogo {
    std::array<std::string, 3> NomePlacas;
    // Entry 0 is unused: each calculation keeps the names it chose itself.
    std::array<std::string, 4> NomeFluidos;
    // Entry 0 is unused, as for the fluids.
    std::array<std::string, 6> NomeTomadas;
    std::array<std::string, 31> NomeDados;
    std::array<std::string, 31> NomeEscalas;
    std::string Preenche; // fill character of report lines
    std::string Separa;   // separator
};

// The conversions "Calcular" makes to bring the rows to its working units:
// a water column at 4 ºC, standard gravity, the density of water at 4 ºC
// for a relative density, of air at 0 ºC for a gas's.
inline constexpr double PaPorMmca = 9.79763;            // "mmCA" to Pa
inline constexpr double KPaPorKgCm2 = 98.0665;          // "Kg/cm²" to kPa; a tenth of it, "Kg/m²" to Pa
inline constexpr double MassaEspecificaAgua4C = 999.08; // kg/m³
inline constexpr double MassaEspecificaAr0C = 1.29307;  // kg/m³

// The program's catalogue, shared by all calculations.
Catalogo& catalogo();

// The start-up fill of modCalculo. Runs again harmlessly.
void CarregaCatalogo();

} // namespace tramelo
