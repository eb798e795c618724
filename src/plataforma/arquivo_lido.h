// A whole file read with the fewest calls to the system (open, its status,
// one read, close): the batch tool reads thousands of small files, and each
// call costs more than the bytes it brings.
#pragma once

#include <cstddef>
#include <filesystem>
#include <limits>
#include <string>

namespace tramelo {

struct ArquivoLido {
    enum class Estado { Lido, Pasta, NaoAbriu, ErroLeitura };
    Estado estado = Estado::NaoAbriu;
    int erro = 0;      // the system's errno when it didn't open or read
    bool regular = false; // opened, and a regular file (not a pipe, not a device)
    std::string bytes; // what was read, at most the limit asked for
};

ArquivoLido LeArquivoInteiro(const std::filesystem::path& caminho,
                             std::size_t limite = std::numeric_limits<std::size_t>::max());

// What the disk says now: a regular file, a folder.
bool ArquivoNoDisco(const std::filesystem::path& caminho);
bool PastaNoDisco(const std::filesystem::path& caminho);

// Where the routines read whole files and ask whether a file or a folder is
// there: the disk when none is installed. The batch tool installs one that
// answers for the file whose header it has just read, so each file is read
// once and not asked about again.
class FonteArquivos {
  public:
    virtual ~FonteArquivos() = default;
    virtual ArquivoLido Le(const std::filesystem::path& caminho) = 0;
    // Names as the routines hold them: most answers need no path built.
    virtual bool ExisteArquivo(const std::string& nome) { return ArquivoNoDisco(nome); }
    virtual bool ExistePasta(const std::string& nome) { return PastaNoDisco(nome); }
};

} // namespace tramelo
