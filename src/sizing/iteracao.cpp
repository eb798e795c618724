#include "sizing/iteracao.h"

#include "plataforma/ambiente.h"
#include "plataforma/numero.h"
#include "sizing/catalogo.h"
#include "sizing/equacoes.h"
#include "sizing/execucao.h"

namespace tramelo {
namespace {

// Beta straight from the sizing value, for pipe taps at small ratios.
void ValorDireto(Execucao& x, int Fluido) {
    if (Fluido != 0) x.Beta = Sqr(x.CoefCarga / 0.519);
    else x.Beta = Sqr(x.CoefCarga / 0.61);
}

void Equacao(Execucao& x, int Tomada, Num D) {
    EquacaoTomada(Tomada, x.Beta, D, x.Reynolds, x.CoefTomada, x.ReynoldsLimite);
}

} // namespace

bool Expansibilidade(Execucao& x, int Tomada) {
    const auto& d = x.Dados;
    Num p12 = d[12].Numero();
    Num dp = d[5].Numero();
    x.RelPressao = (p12 - dp / 1000) / p12;
    x.RelPressaoUsual = (p12 - (dp * x.Razao2) / 1000) / p12;
    if (!(x.RelPressao > 0.75)) {
        const Catalogo& c = catalogo();
        MsgBox(c.NomeDados[12] + " / " + c.NomeDados[5] + " = " +
                   NumeroParaTexto(x.RelPressao.valor()) + "\n\n" +
                   "O resultado tem que ser maior que '0,75'",
               vbExclamation, "Valor fora dos limites");
        return false;
    }
    Num b = x.Beta;
    Num k = d[27].Numero();
    if (Tomada == 4) {
        x.Epsilo = 1 - (0.3707 + 0.3184 * Pot(b, 4)) *
                           Pot(1 - Pot(x.RelPressaoUsual, 1 / k), 0.935);
    } else if (Tomada == 5) {
        // The factor 91 and the subtraction of the usual ratio are this
        // program's rule for pipe taps, kept as they are.
        x.Epsilo = 1 - ((0.333 + (1.145 * (Pot(b, 2) + 0.7 * Pot(b, 5) + 12 * Pot(b, 13))) * 91) -
                        x.RelPressaoUsual) /
                           k;
    } else {
        x.Epsilo = 1 - ((0.41 + 0.35 * Pot(b, 4)) * (1 - x.RelPressaoUsual)) / k;
    }
    x.CoefAlvo = x.CoefCarga / x.Epsilo;
    return true;
}

bool CalculaBeta(Execucao& x, int Fluido, int Tomada, Num D) {
    x.passes = 0;
    // The short way tests the saturation pressure, field 14, as it always has.
    if (Tomada == 5 && x.Dados[14].Numero() < 50) {
        ValorDireto(x, Fluido);
        return true;
    }
    Num T = x.CoefAlvo / 0.61;
    x.BetaAnt = Pot(Pot(T, 2) / (1 + Pot(T, 2)), 0.25);
    x.Beta = x.BetaAnt;
    Equacao(x, Tomada, D);
    x.ErroAnt = x.CoefTomada - x.CoefAlvo;
    x.BetaAtual = x.BetaAnt * 1.02;
    x.Beta = x.BetaAtual;
    Equacao(x, Tomada, D);
    x.ErroAtual = x.CoefTomada - x.CoefAlvo;
    do {
        if (x.passes == MaximoPassesBeta) {
            MsgBox("O cálculo de 'Beta' não convergiu em " + std::to_string(MaximoPassesBeta) +
                       " passos.\n\nVerifique os dados para cálculo.",
                   vbExclamation, "Valor fora dos limites");
            return false;
        }
        ++x.passes;
        x.Beta = (x.ErroAtual * x.BetaAnt - x.ErroAnt * x.BetaAtual) / (x.ErroAtual - x.ErroAnt);
        if (Fluido != 0 && !Expansibilidade(x, Tomada)) return false;
        Equacao(x, Tomada, D);
        x.ErroAnt = x.ErroAtual;
        x.ErroAtual = x.CoefTomada - x.CoefAlvo;
        x.BetaAnt = x.BetaAtual;
        x.BetaAtual = x.Beta;
    } while (Abs(x.ErroAtual) > 0.000001);
    if (Tomada == 5 && x.Beta < 0.2) ValorDireto(x, Fluido);
    return true;
}

} // namespace tramelo
