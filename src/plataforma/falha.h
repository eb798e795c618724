// Run-time failures of the program: a number and a Portuguese description,
// the way the platform reports them to the error box.
#pragma once

#include <stdexcept>
#include <string>

namespace tramelo {

enum CodigoFalha : int {
    ArgumentoInvalido = 5,   // "Chamada de procedimento ou argumento inválido"
    Estouro = 6,             // "Estouro"
    FaltaMemoria = 7,        // "Memória insuficiente"
    IndiceForaIntervalo = 9, // "Subscrito fora do intervalo"
    DivisaoPorZero = 11,     // "Divisão por zero"
    TiposIncompativeis = 13, // "Tipos incompatíveis"
    ArquivoNaoEncontrado = 53,
    ArquivoJaAberto = 55,
    FimDeArquivo = 62,
    AcessoNegado = 75,
    DialogoCancelado = 32755,
};

// The description the platform gives for a failure number.
std::string DescricaoFalha(int numero);

// A failure in flight. Routines with a handler catch it at their edge and
// hand number and description on; nothing lets it cross a public interface.
class Falha : public std::runtime_error {
public:
    explicit Falha(int numero);
    Falha(int numero, std::string descricao);
    int numero() const { return numero_; }
    const std::string& descricao() const { return descricao_; }

private:
    int numero_;
    std::string descricao_;
};

// A failure as a value, for the callers at the edge.
struct ErroExecucao {
    int numero = 0;
    std::string descricao;
    bool operator==(const ErroExecucao&) const = default;
};

} // namespace tramelo
