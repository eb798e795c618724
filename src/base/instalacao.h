// Where an installed copy keeps what it ships. Installed, the executables sit
// in <prefix>/bin and their data in <prefix>/share/tramelo, as on a Debian
// system or under a user prefix such as ~/.local; run from its build folder,
// the program finds everything beside the executable, as it always did.
#pragma once

#include <string>

namespace tramelo {

// <prefix>/share/tramelo for an executable in <prefix>/bin, when that folder
// exists; empty for any other executable folder (a build folder).
std::string PastaDadosInstalados(const std::string& pastaExecutavel);

// True when the executable runs from an installed layout.
bool ProgramaInstalado(const std::string& pastaExecutavel);

// A file the program ships: in the installed data folder when it is there,
// otherwise beside the executable.
std::string ArquivoDoPrograma(const std::string& pastaExecutavel, const std::string& nome);

} // namespace tramelo
