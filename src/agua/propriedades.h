// Water and steam at a pressure and a temperature, in the program's units:
// IAPWS-IF97 (IAPWS R7-97(2012)) for the thermodynamic properties and IAPWS
// R12-08 for the viscosity.
//
// Range of IAPWS-IF97: 0 ºC to 800 ºC up to 100 MPa, and above 800 ºC to
// 2000 ºC up to 50 MPa. A point given on the saturation line is ambiguous
// with p and T alone; below the critical pressure T ≤ Tsat(p) is taken as
// liquid (region 1, or region 3 on its liquid branch) and T > Tsat(p) as
// vapour.
#pragma once

#include <optional>
#include <string>

namespace tramelo {

struct PropriedadesAgua {
    int regiao = 0;               // 1, 2, 3 or 5 of IAPWS-IF97
    std::string fase;             // "líquido", "vapor superaquecido" or "supercrítico"
    double massa_especifica = 0;  // kg/m³
    double volume_especifico = 0; // m³/kg
    double entalpia = 0;          // kJ/kg
    double entropia = 0;          // kJ/(kg·K)
    double cp = 0, cv = 0;        // kJ/(kg·K)
    double velocidade_som = 0;    // m/s
    double viscosidade_Pas = 0;   // Pa·s
    double viscosidade_cP = 0;    // cP = mPa·s
    double kappa = 0;             // w²ρ/p, ISO 5167-1's isentropic exponent
    double razao_cp_cv = 0;
    std::optional<double> temperatura_saturacao_C; // none at or above 22,064 MPa
    std::string erro; // empty when the figures are there; a Portuguese message otherwise
};

// Absolute pressure in kPa, temperature in ºC. Never throws; outside the range
// or with a pressure of zero or less, NaN or infinity, only `erro` is filled.
PropriedadesAgua CalculaPropriedadesAgua(double p_kPa, double T_C);

// Saturation temperature at p; none at or above the critical pressure and
// below the triple point's (0,611213 kPa), where there is no such line.
std::optional<double> TemperaturaSaturacao_C(double p_kPa);

// Saturation pressure at T; none outside 0 ºC to the critical 373,946 ºC.
std::optional<double> PressaoSaturacao_kPa(double T_C);

} // namespace tramelo
