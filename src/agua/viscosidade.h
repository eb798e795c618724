// Dynamic viscosity of water and steam by IAPWS R12-08, the industrial form:
// μ = μ* · μ0(T̄) · μ1(T̄, ρ̄) with μ2 = 1, i.e. without the critical
// enhancement, which R12-08 leaves out for industrial use: it matters only
// near the critical point (645.91 K < T < 650.77 K, 245.8 < ρ < 405.3 kg/m³)
// and needs more than ρ and T to work out.
#pragma once

namespace tramelo {

// ρ in kg/m³, T in K; Pa·s. R12-08 is fitted to 1173.15 K: above that the
// figures of region 5 are an extrapolation.
double ViscosidadeAgua_Pas(double rho, double T_K);

} // namespace tramelo
