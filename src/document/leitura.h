// Reading the fields of a calculation into the values of a run, and bringing
// them to the internal units: flow in m³/h at reading conditions or kg/h,
// diameters in mm, differential pressure in Pa, absolute pressures in kPa,
// temperatures in ºC, density in kg/m³, viscosity in cP.
#pragma once

#include "plataforma/variante.h"

namespace tramelo {

class FrmCalcTramelo;
struct Execucao;

// Reads row Campo: its text becomes ValorCampo and the result, and its line
// goes into the report. An empty row also shows the warning and takes the
// focus; its line (label, no value) is written all the same.
Variante SubDisplay(FrmCalcTramelo& f);

// Escala = ListIndex of cboDados(Campo) + 1.
void LeEscala(FrmCalcTramelo& f);

// SubDisplay into Dados(Campo). Returns false when the field was empty: the
// run ends there.
bool LeDado(FrmCalcTramelo& f, Execucao& x);

// Brings Dados to the internal units; runs once, after all fields are read.
void ConverteUnidades(FrmCalcTramelo& f, Execucao& x);

// Reads the fields of the fluid in its order, writing their report lines, and
// converts them. Returns false when an empty field ended the run.
bool LeCampos(FrmCalcTramelo& f, Execucao& x);

} // namespace tramelo
