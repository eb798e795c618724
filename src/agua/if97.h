// The basic equations of IAPWS-IF97 (IAPWS R7-97(2012)) region by region, in
// the release's own units (MPa, K, kJ/kg), so that they can be held against
// its verification tables. The program's entry point is agua/propriedades.h;
// these take their arguments as given, with no check of the region's range.
#pragma once

#include <optional>

namespace tramelo {

// One state: specific volume m³/kg, density kg/m³, enthalpy and internal
// energy kJ/kg, entropy and heat capacities kJ/(kg·K), speed of sound m/s.
struct EstadoIf97 {
    double p_MPa = 0, T_K = 0;
    double v = 0, rho = 0, h = 0, u = 0, s = 0, cp = 0, cv = 0, w = 0;
};

EstadoIf97 If97Regiao1(double p_MPa, double T_K);
EstadoIf97 If97Regiao2(double p_MPa, double T_K);
EstadoIf97 If97Regiao5(double p_MPa, double T_K);
// Region 3 is explicit in density: the pressure is an output.
EstadoIf97 If97Regiao3(double rho, double T_K);

// Region 3's density at (p, T). Below the critical temperature the equation
// has a liquid and a vapour root; `liquido` picks one. Above it there is one
// root and `liquido` is not read. None when the pressure has no root there.
std::optional<double> If97MassaEspecificaRegiao3(double p_MPa, double T_K, bool liquido);

// The saturation line, R7-97(2012) Eqs. (30) and (31).
double If97PressaoSaturacao_MPa(double T_K);
double If97TemperaturaSaturacao_K(double p_MPa);

// The boundary between regions 2 and 3, R7-97(2012) Eqs. (5) and (6).
double If97PressaoB23_MPa(double T_K);
double If97TemperaturaB23_K(double p_MPa);

} // namespace tramelo
