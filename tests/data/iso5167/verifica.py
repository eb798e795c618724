#!/usr/bin/python3
"""Expected figures of the rating of a given orifice plate by ISO 5167-2:2003,
worked out apart from the program by python3-fluids (Debian package):
differential_pressure_meter_solver solves for m at the design differential
pressure and for P2 at each flow; C_Reader_Harris_Gallagher and
orifice_expansibility give C and epsilon at the point so found.

fluids adds two terms to the Reader-Harris/Gallagher equation below
ReD ~ 3700 that ISO 5167-2 doesn't have, so every point here stays above
ReD = 3700 (the script stops if one doesn't). fluids has no uncertainties:
those are the standard's formulas typed again below (ISO 5167-2 5.3.3, and
ISO 5167-1 clause 8 to combine them).

Run: /usr/bin/python3 verifica.py   -- prints the rows of the test table.
"""
from math import pi, sqrt

from fluids.flow_meter import (C_Reader_Harris_Gallagher, ISO_5167_ORIFICE,
                               differential_pressure_meter_solver, orifice_expansibility)

# Liquids have no upstream pressure in the rating: any P1 well above the
# differential pressure gives the same P1 - P2.
P1_LIQUIDO = 1e6
TOMADA = {1: "flange", 2: "D and D/2", 4: "corner"}

def incerteza_C(b, D, re):
    # ISO 5167-2:2003 5.3.3.1, in %.
    u = 0.7 - b if b < 0.2 else (0.5 if b <= 0.6 else 1.667 * b - 0.5)
    if D < 71.12:
        u += 0.9 * (0.75 - b) * (2.8 - D / 25.4)
    if b > 0.5 and re < 10000:
        u += 0.5
    return u

def incerteza_vazao(b, uC, uE, uD, ud, udp, urho):
    # ISO 5167-1:2003 clause 8, the working formula, all in %.
    b4 = b**4
    return sqrt(uC**2 + uE**2 + (2 * b4 / (1 - b4) * uD)**2 + (2 / (1 - b4) * ud)**2
                + (udp / 2)**2 + (urho / 2)**2)

def fora(tomada, d, D, b, re, razao):
    # ISO 5167-2:2003 5.3.1, the limits out by name; razao None: a liquid.
    if tomada == 1:
        re_min = max(5000, 170 * b * b * D)
    else:
        re_min = 16000 * b * b if b > 0.56 else 5000
    nomes = []
    if d < 12.5: nomes.append("d (mm)")
    if not 50 <= D <= 1000: nomes.append("D (mm)")
    if not 0.1 <= b <= 0.75: nomes.append("beta")
    if re < re_min: nomes.append("ReD")
    if razao is not None and razao < 0.75: nomes.append("p2/p1")
    return nomes

def caso(fluido, tomada, qm, rho, mu, D, dp, p1, k, d20, fator, incertezas, pcts):
    d = d20 * sqrt(fator)  # row 29 is the area's factor
    gas = fluido != 0
    P1 = p1 if gas else P1_LIQUIDO
    kw = dict(D=D / 1000, D2=d / 1000, rho=rho, mu=mu, meter_type=ISO_5167_ORIFICE,
              taps=TOMADA[tomada])
    if gas:
        kw["k"] = k
    else:
        kw["epsilon_specified"] = 1.0
    m = differential_pressure_meter_solver(P1=P1, P2=P1 - dp, **kw)
    pontos = []
    for pct in [100] + pcts:
        mp = pct / 100 * qm
        P2 = differential_pressure_meter_solver(P1=P1, m=mp, **kw)
        re = 4 * mp / (pi * mu * D / 1000)
        assert re > 3700, "fluids leaves ISO 5167-2 below ReD 3700"
        C = C_Reader_Harris_Gallagher(D / 1000, d / 1000, rho, mu, mp, TOMADA[tomada])
        e = orifice_expansibility(D / 1000, d / 1000, P1, P2, k) if gas else 1.0
        b = d / D
        uE = 3.5 * (P1 - P2) / (k * P1) if gas else 0.0  # 5.3.3.2
        u = incerteza_vazao(b, incerteza_C(b, D, re), uE, *incertezas)
        pontos.append((pct, P1 - P2, re, C, e, u, fora(tomada, d, D, b, re, P2 / P1 if gas else None)))
    assert re > 3700
    return m * 3600, pontos

CASOS = [
    # name, Fluido, Tomada, qm kg/s, rho, mu Pa.s, D mm, dp Pa, p1 Pa, k, d20 mm,
    # area factor, uncertainties % of (D, d, dp, rho), % of design flow
    ("agua flange", 0, 1, 13.86, 998, 0.001, 102.26, 25000, 0, 0, 60, 1.000884,
     (0.4, 0.07, 0.6, 0.2), [10, 50]),
    # D < 71,12 mm; beta 0,58 > 0,56, so ReD >= 16000 beta^2 = 5340.
    ("oleo raio tubo pequeno", 0, 2, 2.0, 870, 0.004, 52.5, 30000, 0, 0, 30, 1.0034,
     (0.4, 0.07, 0.6, 0.2), [37.5, 42, 50]),
    ("ar canto", 1, 4, 2.0, 5.5, 1.8e-5, 154.05, 20000, 500000, 1.4, 95, 1.0,
     (0.4, 0.07, 0.6, 0.2), [25, 75]),
    # D < 71,12 mm; at 120 % p2/p1 falls below 0,75.
    ("gas flange tubo pequeno", 1, 1, 0.3, 10, 1.1e-5, 60, 40000, 130000, 1.3, 30, 1.0,
     (0.4, 0.07, 0.6, 0.2), [50, 120]),
    ("vapor raio", 2, 2, 5.0, 20, 1.6e-5, 202.74, 50000, 4e6, 1.3, 120, 1.006494,
     (0, 0, 0, 0), [10]),
]

# The sample files as tramelo-calc --verifica rates them: data/exemplos/agua.trl
# (50 M3/h of water at 998 kg/m3, 1 cP, D 102,26 mm, 25000 Pa, flange taps,
# stainless at 20 C so the area factor is 1) with Tramelo's own bore as its
# report prints it, 61,83 mm, and no uncertainty given. The flow in the file's
# own unit is the mass flow over the density.
AMOSTRAS = [
    ("agua.trl 61,83", 0, 1, 50 * 998 / 3600, 998, 0.001, 102.26, 25000, 0, 0, 61.83, 1.0,
     (0, 0, 0, 0), [10, 50], 998),
]

if __name__ == "__main__":
    # One line per case: its name and the flow at the design differential
    # pressure, kg/h; then one per flow, the design flow's first:
    # {% of design flow, dp Pa, ReD, C, eps, flow's uncertainty %, {limits out}}.
    for nome, *a in CASOS:
        m, pontos = caso(*a)
        print(f'"{nome}", {m:.12g},')
        for pct, dp, re, C, e, u, f in pontos:
            nomes = ", ".join(f'"{n}"' for n in f)
            print(f"  {{{pct:g}, {dp:.12g}, {re:.12g}, {C:.12g}, {e:.12g}, {u:.10g}, {{{nomes}}}}},")
    # The samples: name, flow at the design dp in kg/h and in M3/h, then the
    # flows as above.
    for nome, *a, rho_leitura in AMOSTRAS:
        m, pontos = caso(*a)
        print(f'"{nome}", {m:.12g}, {m / rho_leitura:.12g},')
        for pct, dp, re, C, e, u, f in pontos:
            nomes = ", ".join(f'"{n}"' for n in f)
            print(f"  {{{pct:g}, {dp:.12g}, {re:.12g}, {C:.12g}, {e:.12g}, {u:.10g}, {{{nomes}}}}},")
