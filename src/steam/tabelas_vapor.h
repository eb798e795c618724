// The two superheated steam reference tables: specific mass (kg/m³) and
// specific volume (m³/kg) by absolute pressure (kgf/cm²) and temperature (ºC).
// They are reference text for the engineer, never read by the sizing: each row
// is kept as one string with a tab between cells, exactly as it was issued,
// misprints, the empty cell and the surplus tabs included.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace tramelo {

inline constexpr int LinhasVapor = 48;  // pressure rows of each table
inline constexpr int ColunasVapor = 17; // the pressure label and 16 temperatures

// Specific mass, kg/m³.
extern const std::array<std::string_view, LinhasVapor> lstMassa;
// Specific volume, m³/kg. Its first 13 rows end with three surplus tabs.
extern const std::array<std::string_view, LinhasVapor> lstVolume;

// `TipoTabela` 0 is the mass table; any other value is the volume table.
const std::array<std::string_view, LinhasVapor>& FonteTabela(short tipo);

// The caption of the viewer's window for a table.
std::string_view TituloTabela(short tipo);

// The header row of the grid, columns 0 to 16: an empty corner, then
// "220 ºC" twice and on in steps of 20 to "500 ºC".
std::vector<std::string> CabecalhoTabela();

// The width in twips the viewer gives a grid column.
int LarguraColunaTabela(int coluna);

// The cells of a stored row, split at every tab, surplus cells included.
std::vector<std::string> CelulasLinha(std::string_view linha);

// The grid as the viewer shows it: the header row and the 48 table rows, each
// of 17 cells; cells beyond the last column are dropped.
std::vector<std::vector<std::string>> GradeTabela(short tipo);

} // namespace tramelo
