#include "agua/propriedades.h"

#include "agua/coeficientes.h"
#include "agua/if97.h"
#include "agua/viscosidade.h"

#include <cmath>

namespace tramelo {
namespace {

using namespace if97;
constexpr double pMaximo_kPa = 1000 * pMaximo, pMaximo5_kPa = 1000 * pMaximo5;

// Why the point is refused; empty when it is inside IAPWS-IF97's range.
std::string Recusa(double p_kPa, double T_C) {
    if (!std::isfinite(p_kPa) || !std::isfinite(T_C))
        return "A pressão e a temperatura têm que ser números.";
    if (!(p_kPa > 0)) return "A pressão tem que ser maior que zero.";
    if (p_kPa > pMaximo_kPa) return "A pressão está acima do limite da IAPWS-IF97 (100 MPa).";
    if (T_C < TMinimoC || T_C > TMaximoC || (T_C > T25C && p_kPa > pMaximo5_kPa))
        return "A temperatura está fora da faixa da IAPWS-IF97 (0 a 800 ºC até 100 MPa; "
               "acima de 800 ºC até 2000 ºC, só até 50 MPa).";
    return {};
}

// Vapour side of the saturation line: T > Tsat(p) below the critical
// pressure, compared in ºC as TemperaturaSaturacao_C gives it, so that its
// figure fed back is liquid; and every temperature below the triple point's
// pressure, where Eq. (31) no longer holds.
bool LadoVapor(double p_kPa, double T_C) {
    if (p_kPa < 1000 * pTriplo) return true;
    const std::optional<double> Tsat = TemperaturaSaturacao_C(p_kPa);
    return Tsat && T_C > *Tsat;
}

// R7-97(2012) section 4: region 5 above 800 ºC; below 350 ºC region 1 or 2
// by the saturation line; up to 590 ºC region 3 above the B23 line.
int Regiao(double p_kPa, double T_C) {
    if (T_C > T25C) return 5;
    if (T_C <= T13C) return LadoVapor(p_kPa, T_C) ? 2 : 1;
    if (T_C <= T23MaximoC && p_kPa / 1000 > If97PressaoB23_MPa(T_C + ZeroCelsius)) return 3;
    return 2;
}

// Region 3 holds liquid, vapour and fluid above the critical point; the
// words follow T against Tc and p against pc.
std::string FaseRegiao3(double p_kPa, double T_C) {
    if (T_C + ZeroCelsius < Tc) return LadoVapor(p_kPa, T_C) ? "vapor superaquecido" : "líquido";
    return p_kPa / 1000 >= pc ? "supercrítico" : "vapor superaquecido";
}

} // namespace

PropriedadesAgua CalculaPropriedadesAgua(double p_kPa, double T_C) {
    PropriedadesAgua r;
    r.erro = Recusa(p_kPa, T_C);
    if (!r.erro.empty()) return r;
    const double p = p_kPa / 1000, T = T_C + ZeroCelsius;
    const int regiao = Regiao(p_kPa, T_C);
    EstadoIf97 e;
    if (regiao == 1)
        e = If97Regiao1(p, T);
    else if (regiao == 2)
        e = If97Regiao2(p, T);
    else if (regiao == 5)
        e = If97Regiao5(p, T);
    else {
        const std::optional<double> rho = If97MassaEspecificaRegiao3(p, T, !LadoVapor(p_kPa, T_C));
        if (!rho) {
            r.erro = "A massa específica da água não converge para esta pressão e temperatura.";
            return r;
        }
        e = If97Regiao3(*rho, T);
    }
    r.regiao = regiao;
    r.fase = regiao == 1   ? "líquido"
             : regiao == 3 ? FaseRegiao3(p_kPa, T_C)
                           : "vapor superaquecido";
    r.massa_especifica = e.rho;
    r.volume_especifico = e.v;
    r.entalpia = e.h;
    r.entropia = e.s;
    r.cp = e.cp;
    r.cv = e.cv;
    r.velocidade_som = e.w;
    r.viscosidade_Pas = ViscosidadeAgua_Pas(e.rho, T);
    r.viscosidade_cP = 1000 * r.viscosidade_Pas;
    // ISO 5167-1 wants the isentropic exponent, −(v/p)(∂p/∂v)s = w²ρ/p with p in Pa.
    r.kappa = e.w * e.w * e.rho / (1000 * p_kPa);
    r.razao_cp_cv = e.cp / e.cv;
    r.temperatura_saturacao_C = TemperaturaSaturacao_C(p_kPa);
    // A pressure too close to zero leaves no volume to divide by.
    if (!std::isfinite(r.volume_especifico) || !std::isfinite(r.kappa) ||
        !(r.massa_especifica > 0)) {
        r = PropriedadesAgua{};
        r.erro = "A pressão é baixa demais para o cálculo das propriedades da água.";
    }
    return r;
}

std::optional<double> TemperaturaSaturacao_C(double p_kPa) {
    const double p = p_kPa / 1000;
    if (!(p >= pTriplo && p < pc)) return std::nullopt;
    return If97TemperaturaSaturacao_K(p) - ZeroCelsius;
}

std::optional<double> PressaoSaturacao_kPa(double T_C) {
    const double T = T_C + ZeroCelsius;
    if (!(T_C >= TMinimoC && T <= Tc)) return std::nullopt;
    return 1000 * If97PressaoSaturacao_MPa(T);
}

} // namespace tramelo
