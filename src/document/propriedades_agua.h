// Water and steam properties for a calculation: the point a person asks
// about, its properties as lines to read, and "Aplicar ao cálculo", which
// writes them into the rows where the engineer would otherwise type them.
#pragma once

#include "agua/propriedades.h"

#include <string>
#include <vector>

namespace tramelo {

class FrmCalcTramelo;

// A point as typed: the absolute pressure in one of the program's pressure
// units (the position in the lists of rows 10, 12 and 14: 0 "kPa",
// 1 "Kg/cm²") and the temperature in ºC.
struct PontoDigitado {
    std::string pressao;
    int escala = 0;
    std::string temperatura;
};

// The point read, or why it can't be: empty, letters, a unit not offered.
// A negative or out-of-range figure is read; IAPWS-IF97 refuses it.
struct PontoAgua {
    double pressao = 0; // in its unit, as typed
    int escala = 0;
    double p_kPa = 0, T_C = 0;
    std::string erro;
};

PontoAgua LePontoAgua(const PontoDigitado& d);

// What the window starts with: the calculation's design pressure and
// temperature (rows 12 and 9, row 12 in its unit); for a liquid, which has
// no pressure row, the standard atmosphere. With no calculation, water at
// the standard atmosphere and 20 ºC.
PontoDigitado PontoDoCalculo(const FrmCalcTramelo* f);

// The properties at the point; only `erro` when the point wasn't read or is
// outside IAPWS-IF97.
PropriedadesAgua PropriedadesNoPonto(const PontoAgua& p);
// The same for a point as typed: what the window shows at each key.
PropriedadesAgua PropriedadesNoPonto(const PontoDigitado& d);

// The properties as a person reads them: six significant digits with the
// decimal comma, units in the program's spelling. With an error, the same
// lines with no values.
struct LinhaPropriedade {
    std::string rotulo, valor, unidade;
};
std::vector<LinhaPropriedade> LinhasPropriedades(const PropriedadesAgua& r);

// One line on what "Aplicar ao cálculo" would do to this calculation.
std::string DescreveAlvo(const FrmCalcTramelo* f);

struct Aplicacao {
    bool aplicado = false;
    // Why nothing was written, as the message box said it; empty when
    // written, or when the user declined the question about the liquid.
    std::string mensagem;
    std::vector<std::string> escritas; // "caption: text unit", one per row written
};

// "Aplicar ao cálculo". Steam: the density (row 18), the viscosity (row 20)
// and the isentropic exponent (row 27) at the point, with the point itself
// in rows 12 and 9 where they hold another. A liquid that is water: the
// densities at the reading and design temperatures (rows 8 and 9 → 17 and
// 18, the point's temperature going into row 9) at the point's pressure,
// and the viscosity at row 9. A gas: nothing. Each row gets a text with the
// decimal comma in the unit it shows, through its own change handling, as
// if typed. Steam that isn't superheated, or water that isn't liquid, gets a
// message box and nothing is written; so does any point not read.
Aplicacao AplicaPropriedadesAgua(FrmCalcTramelo& f, const PontoDigitado& ponto);

} // namespace tramelo
