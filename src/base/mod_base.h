// The program-wide module: the folders, the file named at start, and the
// common operations every window calls.
#pragma once

#include "plataforma/falha.h"

#include <string>

namespace tramelo {

struct CaixaTexto;

struct ModBase {
    std::string ArquivoInicial;  // file named on the command line or by a second start
    std::string PastaPrograma;   // the program's data folder, without a trailing "/"
    std::string PastaSaves;      // PastaPrograma & "/Saves", made on demand
    std::string PastaRelatorios; // PastaPrograma & "/Relatorios", made on demand
};

ModBase& modBase();

// The program's data folder (Saves, Relatorios, the machine's settings) for
// an executable in `pastaExecutavel`. An installed copy keeps each user's
// data in $XDG_DATA_HOME/Tramelo (by default ~/.local/share/Tramelo), never
// under its prefix, even when root runs it or the prefix is the user's own.
// Run from a build folder it stays beside the executable, when that folder
// can be written.
std::string PastaDadosPrograma(const std::string& pastaExecutavel);

// Sets the program folder and the two folders beside it. Touches no folder.
void DefinePastas(const std::string& pastaPrograma);

// The common error box: critical icon, OK only, the number in the title.
void InformaErro(const ErroExecucao& erro);
void InformaErro(const Falha& falha);

// Selects the whole text of a field, so that typing replaces it.
void SelecionaTexto(CaixaTexto& campo);

// Makes a folder when it is missing (with its parents). Fails with 76 when it
// can't be made.
void CriaPasta(const std::string& pasta);
bool ExistePasta(const std::string& pasta);
bool ExisteArquivo(const std::string& arquivo);

} // namespace tramelo
