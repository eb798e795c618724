// The rating of an existing plate from a completed run, in the user's terms:
// the run's own point with the flow and pressure units the user chose, the
// figures typed in the report window read by the program's number rules, and
// the rating kept beside the report for its window and its printed page.
#pragma once

#include "iso5167/verificacao.h"

#include <optional>
#include <string>

namespace tramelo {

struct FrmRelatorio;

// What a run of "Calcular" leaves for a rating: the point the second opinion
// got, and the design flow of row 2 as typed with its unit's name, so the
// rating can give its flows in that unit.
struct PontoDeProjeto {
    EntradaIso iso;
    double vazao = 0;          // row 2 as typed, in unidade_vazao
    std::string unidade_vazao; // "M³/h", "Kg/h", "T/h"
};

// A rating made, with what it was asked.
struct VerificacaoFeita {
    EntradaVerificacao entrada;
    ResultadoVerificacao resultado;
};

// The bounds of what the user may ask for: a range beyond twice the design
// flow says little, the upstream state being held at the design point's.
inline constexpr double PorcentagemMaxima = 200;
inline constexpr int PontosMaximos = 20;
inline constexpr double IncertezaMaxima = 100;

// A flow of kg/h in the calculation's own unit. At fixed upstream conditions
// every flow unit of row 2 is a fixed multiple of the mass flow (a volume at
// reading conditions or a mass), so the design flow scales linearly.
double VazaoNaUnidade(const PontoDeProjeto& p, double kg_h);

// A pressure of Pa in the unit the user chose for the differential pressure.
double PressaoNaUnidade(const PontoDeProjeto& p, double Pa);

// The bore to propose: Tramelo's own, at 20 ºC, as its report prints it;
// empty where the run didn't complete.
std::string DiametroProposto(const PontoDeProjeto& p);

// The percentages as the tab proposes them: "10; 25; 50; 75; 100".
std::string PorcentagensPropostas();

// The texts of the tab's fields.
struct TextosVerificacao {
    std::string d20_mm, porcentagens;
    std::string incerteza_D, incerteza_d, incerteza_dp, incerteza_rho;
};

// The field a wrong text was found in, for the view to put the user back there.
enum class CampoVerificacao { Nenhum, Diametro, Porcentagens, IncertezaD, Incertezad,
                              IncertezaDp, IncertezaRho };

struct LeituraVerificacao {
    std::optional<EntradaVerificacao> entrada; // none where a text is wrong
    std::string mensagem;                      // why, in Portuguese
    CampoVerificacao campo = CampoVerificacao::Nenhum;
};

// Reads the texts by the program's number rules: a bore above zero and below
// the pipe's D; percentages above zero up to PorcentagemMaxima, separated by
// ";" or blanks, at most PontosMaximos of them; uncertainties from 0 to
// IncertezaMaxima, an empty one being 0.
LeituraVerificacao LeVerificacao(const TextosVerificacao& t, const PontoDeProjeto& p);

// "Verificar": reads the texts, rates the plate and keeps the rating in the
// report; a wrong text is told in a message box and keeps the last rating.
// The field to go back to, or Nenhum.
CampoVerificacao cmdVerificar_Click(FrmRelatorio& r, const TextosVerificacao& t);

} // namespace tramelo
