// The two pictures of a rating: where the range's flows stand among the
// limits of use of the plate's taps, and the differential pressure the plate
// makes over the range. Only for a rating that applies.
#pragma once

#include "report/grafico.h"
#include "report/verifica_placa.h"

namespace tramelo {

// ReD (decades) against β: the region ISO 5167-2, 5.3.1 allows for the tap
// kind (β from 0,1 to 0,75, ReD from iso::ReDMinimo up), each flow of the
// range at the plate's β, inside or outside, and the design flow apart.
Grafico GraficoLimites(const VerificacaoFeita& v);

// The differential pressure against the flow, in the user's units: the
// plate's curve over the range, the range's flows on it, and the design
// point the plate was sized for.
Grafico GraficoPressao(const VerificacaoFeita& v, const PontoDeProjeto& p);

// Ticks of an axis from zero: a step of 1, 2, 2,5 or 5 times a power of ten
// giving at most `marcas` intervals up to a top at or above `maximo`.
EixoGrafico EixoLinear(std::string titulo, double maximo, int marcas = 5);

// Whole decades around [minimo, maximo], each tick written "10³".
EixoGrafico EixoDecadas(std::string titulo, double minimo, double maximo);

} // namespace tramelo
