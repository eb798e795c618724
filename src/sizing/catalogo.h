// The fixed vocabulary of a calculation: orifice kinds, fluids, tap kinds,
// field labels and unit names. Filled once at start-up; the index of a field
// here is its row index everywhere.
#pragma once

#include <array>
#include <string>

namespace tramelo {

struct Catalogo {
    std::array<std::string, 3> NomePlacas;
    // Entry 0 is a live slot: the fluid text last selected in any calculation.
    std::array<std::string, 4> NomeFluidos;
    // Entry 0 is a live slot: the tap text last selected in any calculation.
    std::array<std::string, 6> NomeTomadas;
    std::array<std::string, 31> NomeDados;
    std::array<std::string, 31> NomeEscalas;
    std::string Preenche; // fill character of report lines
    std::string Separa;   // separator
};

// The program's catalogue, shared by all calculations.
Catalogo& catalogo();

// The start-up fill of modCalculo. Runs again harmlessly; the live slots are
// emptied.
void CarregaCatalogo();

} // namespace tramelo
