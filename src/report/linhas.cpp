#include "report/linhas.h"

#include "plataforma/numero.h"
#include "plataforma/texto.h"
#include "report/frm_relatorio.h"

#include <cmath>

namespace tramelo {
namespace {

// Appends n fill characters ("_" or "="), failing as String does for n < 0.
void Repete(std::string& s, int n, char c) {
    if (n < 0) throw Falha(ArgumentoInvalido);
    s.append(static_cast<size_t>(n), c);
}

// 10 ^ m as its text reads back; m is whole.
Num PotenciaDeDezLida(Num m) {
    static constexpr double potencias[] = {
        1e-22, 1e-21, 1e-20, 1e-19, 1e-18, 1e-17, 1e-16, 1e-15,
        1e-14, 1e-13, 1e-12, 1e-11, 1e-10, 1e-9, 1e-8, 1e-7,
        1e-6, 1e-5, 1e-4, 1e-3, 1e-2, 1e-1, 1e0, 1e1,
        1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9,
        1e10, 1e11, 1e12, 1e13, 1e14, 1e15, 1e16, 1e17,
        1e18, 1e19, 1e20, 1e21, 1e22};
    constexpr int menor = -22, maior = 22;
    const double e = m.valor();
    if (e >= menor && e <= maior) return potencias[static_cast<int>(e) - menor];
    return TextoParaNumero(NumeroParaTexto(Pot(10, m).valor()));
}

} // namespace

void Cabecalho(FrmRelatorio& r, std::string_view titulo) {
    int n = CInt((78.0 - Len(titulo)) / 2.0);
    std::string linha = " ";
    Repete(linha, n, '=');
    linha += titulo;
    Repete(linha, n, '=');
    r.lstRelatorio.push_back(std::move(linha));
}

void LinhaRelatorio(FrmRelatorio& r, std::string_view rotulo, std::string_view valor,
                    std::string_view unidade) {
    // Stored with the leading blank that AddRel would add; lengths below are
    // of the line without it.
    std::string linha;
    linha.reserve(96);
    linha += ' ';
    linha += rotulo;
    linha += ' ';
    const int lenRotulo = Len(rotulo);
    Repete(linha, 33 - lenRotulo, '_');
    linha += ' ';
    linha += valor;
    if (!unidade.empty()) {
        const int lenLinha = 35 + Len(valor);
        linha += ' ';
        Repete(linha, 76 - lenLinha - Len(unidade), '_');
        linha += ' ';
        linha += unidade;
    }
    r.lstRelatorio.push_back(std::move(linha));
}

void LinhaRelatorio(FrmRelatorio& r, std::string_view rotulo, double valor,
                    std::string_view unidade) {
    std::string texto; // most numbers fit in the string itself, no allocation
    AcrescentaNumero(texto, valor);
    LinhaRelatorio(r, rotulo, std::string_view(texto), unidade);
}

Num Arredonda(Num valor, int digitos) {
    Num k = Int(Log(valor) / Log(10));
    Num m = Num(digitos) - k;
    // The divisor goes through its text and back, as the platform's
    // conversion of a power of ten does: 10 ^ -3 comes back as 0,001. Within
    // a ULP of 10^m, pow's result always has the text "1" and zeros at 15
    // digits, which reads back as the double nearest 10^m: the literal below.
    Num p = PotenciaDeDezLida(m);
    return Int(valor * Pot(10, m) + 0.5) / p;
}

} // namespace tramelo
