// The batch run of the command-line tool: each file opened as the desktop
// program opens it, then "Calcular", with a scripted user who answers the
// boxes the way the tool's options say.
#pragma once

#include "plataforma/falha.h"
#include "sizing/iso5167.h"

#include <optional>
#include <string>
#include <vector>

namespace tramelo {

struct MensagemLote {
    std::string titulo;
    std::string texto;
};

struct ResultadoLote {
    std::string arquivo;
    std::vector<std::string> linhas;     // the report lines as stored
    std::vector<std::string> exportacao; // the report as an export writes it
    std::vector<MensagemLote> mensagens; // every message and input box, in order
    bool concluido = false;              // the run reached the report window
    std::optional<ErroExecucao> erro;
    int status = 0; // 0 completed, 1 ended on a message, 2 missing, unreadable or failed
    ResultadoIso iso; // the ISO 5167-2 check of the run, or why there is none
};

// Opens `arquivo` (AbreCalculo), runs "Calcular", closes the window without
// saving. `sim` answers "Sim" to "Deseja alterar o dados para cálculo?".
ResultadoLote CalculaArquivo(const std::string& arquivo, bool sim);

} // namespace tramelo
