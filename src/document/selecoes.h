// The click handling of the calculation window's lists: the three selections,
// the density mode and the unit of each row. They run on a user's choice and
// on every change of a list position made by code. A unit change converts no
// value; it switches rows, keeps related lists in step and asks for names.
#pragma once

namespace tramelo {

class FrmCalcTramelo;

void cboTramelo_Click(FrmCalcTramelo& f);
void cboFluido_Click(FrmCalcTramelo& f);
void cboTomada_Click(FrmCalcTramelo& f);
void cboMassaDensidade_Click(FrmCalcTramelo& f);
void cboDados_Click(FrmCalcTramelo& f, int Index);

// The three selections are made: the data list may be used.
bool Pronto(const FrmCalcTramelo& f);

} // namespace tramelo
