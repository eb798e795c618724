#include "plataforma/falha.h"

namespace tramelo {

std::string DescricaoFalha(int numero) {
    switch (numero) {
    case 5: return "Chamada de procedimento ou argumento inválido";
    case 6: return "Estouro";
    case 7: return "Memória insuficiente";
    case 9: return "Subscrito fora do intervalo";
    case 11: return "Divisão por zero";
    case 13: return "Tipos incompatíveis";
    case 52: return "Nome ou número de arquivo incorreto";
    case 53: return "Arquivo não encontrado";
    case 54: return "Modo de arquivo incorreto";
    case 55: return "Arquivo já aberto";
    case 57: return "Erro de E/S do dispositivo";
    case 61: return "Disco cheio";
    case 62: return "Entrada além do fim do arquivo";
    case 75: return "Erro de acesso ao caminho/arquivo";
    case 76: return "Caminho não encontrado";
    case 482: return "Erro de impressora";
    case 32755: return "Cancelar foi selecionado.";
    default: return "Erro definido pelo aplicativo ou pelo objeto";
    }
}

Falha::Falha(int numero) : Falha(numero, DescricaoFalha(numero)) {}

Falha::Falha(int numero, std::string descricao)
    : std::runtime_error(descricao), numero_(numero), descricao_(std::move(descricao)) {}

} // namespace tramelo
