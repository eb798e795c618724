#!/usr/bin/python3
"""Expected figures of water and steam at (p, T) for tests/core/agua_test.cpp,
from Debian's python3-iapws (IAPWS97 and its R12-08 viscosity with mu2 = 1),
apart from the program.

The isentropic exponent python3-iapws 1.5 gives as `gamma` is wrong (0.96
for steam at 1 MPa and 250 ºC), so kappa is worked out here as w^2 rho / p,
p in Pa; cp/cv is cp over cv.

Run: /usr/bin/python3 referencia.py   -- one C++ row per point, p in kPa,
T in ºC, then region, rho, h, s, cp, cv, w, mu (Pa s), kappa, cp/cv and
Tsat (ºC; NAN at or above 22,064 MPa); then, at 1 and 20 MPa, the densities
of saturated liquid and vapour, IAPWS97(P, x=0) and (P, x=1); then the
texts "Aplicar ao cálculo" writes (tests/core/propriedades_agua_test.cpp,
tests/core/shell_lote_test.cpp, the steam journey): six significant digits
with the decimal comma, as the program writes a figure, and the saturation
temperatures of its messages to the hundredth.
"""
from iapws import IAPWS97
from iapws.iapws97 import _TSat_P

PONTOS = [  # kPa, ºC
    (101.325, 20), (5000, 150), (1000, 179.8), (101.325, 0), (100000, 300),
    (1000, 250), (500, 200), (4000, 400), (5, 50), (100000, 800),
    (25000, 650 - 273.15), (40000, 750 - 273.15), (20000, 635 - 273.15),
    (50000, 750 - 273.15), (20000, 645 - 273.15), (22000, 650 - 273.15), (22064, 380),
    (100000, 420),
    (10000, 1000), (50000, 2000),
]

def g(x):
    return "NAN" if x is None else "%.10g" % x

for p_kPa, T_C in PONTOS:
    P, T = p_kPa / 1000, T_C + 273.15
    s = IAPWS97(P=P, T=T)
    kappa = s.w ** 2 * s.rho / (P * 1e6)
    tsat = _TSat_P(P) - 273.15 if 611.213e-6 <= P < 22.064 else None
    campos = [s.region, s.rho, s.h, s.s, s.cp, s.cv, s.w, s.mu, kappa, s.cp / s.cv, tsat]
    print("{%s, %s, %s}," % (g(p_kPa), g(T_C), ", ".join(g(c) for c in campos)))

for P in (1, 20):
    print("{%s, %s, %s}," % (g(1000 * P), g(IAPWS97(P=P, x=0).rho), g(IAPWS97(P=P, x=1).rho)))

def texto(x, digitos=6):
    """x with `digitos` significant digits in the program's text form."""
    m, e = ("%.*e" % (digitos - 1, x)).split("e")
    e = int(e)
    m = m.replace(".", "").rstrip("0") or "0"
    if not -4 <= e < 15:
        return m[0] + ("," + m[1:] if len(m) > 1 else "") + "E%s%02d" % ("-" if e < 0 else "+", abs(e))
    if e < 0:
        return "0," + "0" * (-e - 1) + m
    m = m.ljust(e + 1, "0")
    return m[:e + 1] + ("," + m[e + 1:] if len(m) > e + 1 else "")

print()
# Steam, kPa and ºC: rho (kg/m3), mu (cP and Pa s), kappa. 10,2 Kg/cm2 is
# 10,2 * 98,0665 kPa (data/exemplos/vapor.trl).
for p_kPa, T_C in [(1000, 250), (1000, 300), (10.2 * 98.0665, 200)]:
    s = IAPWS97(P=p_kPa / 1000, T=T_C + 273.15)
    kappa = s.w ** 2 * s.rho / (p_kPa * 1e3)
    print(g(p_kPa), T_C, *(texto(x) for x in (s.rho, 1000 * s.mu, s.mu, kappa)))
# Water at the standard atmosphere: rho, relative density on the program's
# 999,08 kg/m3, mu (cP).
for T_C in (20, 60):
    s = IAPWS97(P=0.101325, T=T_C + 273.15)
    print(101.325, T_C, *(texto(x) for x in (s.rho, s.rho / 999.08, 1000 * s.mu)))
# Saturation temperatures of the refusals, to the hundredth (ºC).
for P in (1, 0.101325, 10.2 * 0.0980665):
    print(1000 * P, texto(round(_TSat_P(P) - 273.15, 2), 15))
