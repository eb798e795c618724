// The rating of an existing plate as a reader wants it: the bore, the flow at
// the design differential pressure and the differential pressure at the
// design flow in the user's units, then the range as a table, then what
// leaves the limits. Figures rounded as the report rounds, decimal comma.
// The same table in the report window, on the printed page and after a
// report of tramelo-calc.
#pragma once

#include "report/verifica_placa.h"

#include <string>
#include <vector>

namespace tramelo {

inline constexpr const char* TituloVerificacao = "Verificação de placa existente";

// The range as cells: a name and a unit for each column (the unit empty
// where there is none), one row a flow. ε only for a gas or steam.
struct TabelaVerificacao {
    std::vector<std::string> colunas, unidades;
    std::vector<std::vector<std::string>> linhas;
    std::vector<bool> dentro; // each row inside every limit of use
};
TabelaVerificacao TabelaDaVerificacao(const VerificacaoFeita& v, const PontoDeProjeto& p);

// The lines above the table: the bore at 20 ºC and flowing, β, the flow at
// the design differential pressure, the differential pressure at the design
// flow, the uncertainties given; or why the rating doesn't apply.
std::vector<std::string> ResumoVerificacao(const VerificacaoFeita& v, const PontoDeProjeto& p);

// A sentence for each limit a flow leaves and for each flow with no answer.
std::vector<std::string> AvisosVerificacao(const VerificacaoFeita& v);

// The title, the summary, the table in fixed-pitch columns and the warnings.
std::vector<std::string> LinhasVerificacao(const VerificacaoFeita& v, const PontoDeProjeto& p);

} // namespace tramelo
