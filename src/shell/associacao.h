// The association of ".trl" files with this program, claimed at each start.
// The store keeps the four entries of the class "Tramelo.File"; on Linux the
// desktop learns it from a desktop entry and a MIME type beside them.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace tramelo {

inline constexpr const char* ClasseArquivo = "Tramelo.File";
inline constexpr const char* TipoMime = "application/x-tramelo";

// The command the association starts: the executable and the file, neither
// quoted, so the whole rest of the line reaches the program as one name.
std::string ComandoAssociacao();

// Rewrites the association when ".trl" isn't this program's; the "Associa"
// setting plays no part in that. Nothing is ever asked: the comparison of
// the command compares the expected command with itself.
void VerificaAssociacao();

// The four store entries, in order, then (for a copy that isn't installed)
// the desktop entry and the MIME type, refreshing the desktop's databases
// when their tools are installed.
// The result is that of the last store write.
bool AssociaArquivos();

// The question put when the stored command differs, which the comparison
// above never finds: restore now, or stop asking ("Associa" = "0").
void PerguntaAssociacao();

// Where the desktop looks: $XDG_DATA_HOME, by default ~/.local/share.
std::string PastaDadosUsuario();

// The Exec line's form of a program path: quoted only when it has a
// character the desktop entry reserves.
std::string ArgumentoExec(const std::string& caminho);

// Runs a tool found on PATH, with its output thrown away; nothing when the
// tool isn't installed. The platform's own Executa goes first.
void ExecutaSeInstalada(const std::string& programa, const std::vector<std::string>& argumentos);

} // namespace tramelo
