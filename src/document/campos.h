// The rows of a calculation: which are in use for the chosen fluid, their
// unit lists, their order on the list, and the enabled state of the list as a
// whole. A row's text is never touched here: a row out of use keeps it.
#pragma once

namespace tramelo {

class FrmCalcTramelo;

// The design layout of the list: a row is 25 pixels high, and the scroll bar,
// 224 pixels high, keeps nine rows in sight.
inline constexpr int AlturaLinha = 25;
inline constexpr int LinhasVisiveis = 9;

// A row is in use when its strip's Tag says so; an index without a row, or a
// strip never touched, is out of use.
bool LinhaEmUso(const FrmCalcTramelo& f, int Index);

// Puts a row in or out of use. While the list is disabled a row put in use
// keeps its caption, text and unit list off.
void CampoDados(FrmCalcTramelo& f, int Index, bool Habilitado);

// Sets the list's overall state and greys and hides the rows below the
// differential pressure. Doesn't touch the bars.
void TodosCampoDados(FrmCalcTramelo& f, bool Habilitado);

// The fluid's rows in use, its flow units on row 2, and the layout.
void AlteraEscalas(FrmCalcTramelo& f, int Fluido);

// Appends unit `Escala` of the catalogue to the unit list of a row.
void AddItemCombo(FrmCalcTramelo& f, int Index, int Escala);

// Fills every unit list and selects each first unit, with its click handling.
// Runs once, at load.
void PreencheEscalas(FrmCalcTramelo& f);

// Lays the rows in use out one below the other and sets up the scroll bar.
void OrganizaCampos(FrmCalcTramelo& f);

// Enables or disables the whole data list, then the bars follow.
void Lista(FrmCalcTramelo& f, bool Habilitado);

// Mirrors the window's state onto the frame's toolbars and this window's menu.
void AtualizaBarra(FrmCalcTramelo& f);

} // namespace tramelo
