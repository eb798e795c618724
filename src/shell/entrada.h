// The program's entry: its identity, its command line, the test for a
// running instance and the hand-over of a second start's command line to it.
// A second start never shows a window of its own.
#pragma once

#include <functional>
#include <string>

namespace tramelo {

// The program's identity, fixed at build time. The title is TituloPrograma.
inline constexpr int VersaoMaior = TRAMELO_VERSAO_MAIOR;
inline constexpr int VersaoMenor = TRAMELO_VERSAO_MENOR;
inline constexpr int Revisao = TRAMELO_REVISAO;
inline constexpr const char* NomeExecutavel = "Tramelo";
// The title a second start gives itself, so that it can't answer on the
// program's own service name.
inline constexpr const char* TituloInstanciaAnterior = "Instancia anterior";
inline constexpr const char* TopicoMenu = "Menu"; // the frame's link topic

// The numbers of the hand-over.
inline constexpr int TentativasLigacao = 20;   // attempts to name the partner
inline constexpr int BombeamentosEnvio = 10;   // event-loop runs before sending
inline constexpr int TempoLimiteLigacao = 100; // tenths of a second

// The link between two instances of the program. On Linux a local socket
// named after the service and topic; the command text is the same.
class LigacaoInstancias {
  public:
    virtual ~LigacaoInstancias() = default;
    // Another instance of this program runs.
    virtual bool OutraInstancia() = 0;
    // Client end: names the partner by "service|topic" and opens the
    // conversation. False when no partner answers.
    virtual bool Conecta(const std::string& servicoTopico) = 0;
    // Sends one text command, waiting at most `tempoLimite` tenths of a
    // second for it to be taken. False when it wasn't.
    virtual bool Envia(const std::string& comando, int tempoLimite) = 0;
    // Server end, in the running instance: from now on each command received
    // is handed to `recebe` on the main loop.
    virtual void Atende(const std::string& servicoTopico,
                        std::function<void(const std::string&)> recebe) = 0;
};

// The installed link (may be null: then no other instance is ever found).
LigacaoInstancias*& ligacaoInstancias();

// The command line as one text: the arguments joined by one blank.
std::string& LinhaComando();
std::string JuntaArgumentos(int argc, const char* const* argv);
// The folder that holds the executable, without a trailing separator: what
// the file association starts, and where a build keeps the tips file.
std::string& PastaExecutavel();
std::string PastaDoExecutavel(const char* argv0);
// Both of the above from main()'s arguments.
void DefineLinhaComando(int argc, const char* const* argv);

// The process's title; the second start changes it.
std::string& TituloAplicacao();

// "/A" or "/C" (case-sensitive, "/A" tested first) and one separator: the
// rest of the line is the file, blanks and quotes included. Anything else is
// the file as it stands. A line of "/A" or "/C" alone fails with 5.
void LeLinhaComando();

// The entry routine: loads the splash hidden, hands the command line over
// and ends when another instance runs; otherwise sets the folders, fills the
// catalogues and goes on with the bring-up.
void Main();

} // namespace tramelo
