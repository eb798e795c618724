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
    // conversion of a power of ten does: 10 ^ -3 comes back as 0,001.
    Num p = TextoParaNumero(NumeroParaTexto(Pot(10, m).valor()));
    return Int(valor * Pot(10, m) + 0.5) / p;
}

} // namespace tramelo
