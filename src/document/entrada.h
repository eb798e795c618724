// Typing into the rows: the keys that pass, what a changed text sets off, and
// how the list follows the focus. Nothing is checked here; the values stay
// texts until "Calcular".
#pragma once

namespace tramelo {

class FrmCalcTramelo;

// The key that reaches the field for a typed key, or 0 when it is dropped.
// The point key gives the decimal comma.
int txtDados_KeyPress(FrmCalcTramelo& f, int Index, int KeyAscii);
// Enter opens the desk calculator, as a double click does.
void txtDados_KeyUp(FrmCalcTramelo& f, int Index, int KeyCode, int Shift);
void txtDados_Change(FrmCalcTramelo& f, int Index);
void txtTag_Change(FrmCalcTramelo& f);

void txtDados_GotFocus(FrmCalcTramelo& f, int Index);
void txtDados_LostFocus(FrmCalcTramelo& f, int Index);
void cboDados_GotFocus(FrmCalcTramelo& f, int Index);
void cboMassaDensidade_GotFocus(FrmCalcTramelo& f);
void txtTag_GotFocus(FrmCalcTramelo& f);

// The strip of rows follows the scroll bar.
void barraV_Change(FrmCalcTramelo& f);
void barraV_Scroll(FrmCalcTramelo& f);

// Opens the desk calculator on a row, through the desktop.
void txtDados_DblClick(FrmCalcTramelo& f, int Index);

} // namespace tramelo
