// The batch run of the command-line tool: each file opened as the desktop
// program opens it, then "Calcular", with a scripted user who answers the
// boxes the way the tool's options say.
#pragma once

#include "plataforma/falha.h"
#include "iso5167/iso5167.h"
#include "report/verifica_placa.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tramelo {

struct MensagemLote {
    std::string titulo;
    std::string texto;
};

struct ResultadoLote {
    std::string arquivo;
    std::vector<std::string> linhas;     // the report lines as stored
    std::string exportacao;              // the report as an export writes it, "\n" after each line
    std::vector<MensagemLote> mensagens; // every message and input box, in order
    bool concluido = false;              // the run reached the report window
    std::optional<ErroExecucao> erro;
    // False for a folder or a file whose first lines aren't a calculation's
    // header; such a file isn't opened at all.
    bool arquivoDeCalculo = true;
    // 0 completed, 1 ended on a message, 2 missing, unreadable or failed,
    // 3 not a calculation file.
    int status = 0;
    ResultadoIso iso; // the ISO 5167-2 check of the run, or why there is none
    // The run's point for a rating of an existing plate; a run that didn't
    // complete leaves one the rating refuses.
    PontoDeProjeto ponto;
};

// The batch tool's test of a file's first bytes: the header lines a
// calculation file begins with (three strings, a number, a number and a
// string, a number, a string), as far as the file goes. The desktop program
// opens anything; a batch over a folder of files wants to know.
bool PareceArquivoDeCalculo(std::string_view bytes);

// Opens `arquivo` (AbreCalculo), runs "Calcular", closes the window without
// saving. A folder, or a file that isn't a calculation file, is told on a box
// of its own and not opened. `sim` answers "Sim" to "Deseja alterar o dados para cálculo?".
ResultadoLote CalculaArquivo(const std::string& arquivo, bool sim);

} // namespace tramelo
