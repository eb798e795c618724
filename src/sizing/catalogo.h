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

// The program's catalogue, shared by all calculations.
Catalogo& catalogo();

// The start-up fill of modCalculo. Runs again harmlessly.
void CarregaCatalogo();

} // namespace tramelo
