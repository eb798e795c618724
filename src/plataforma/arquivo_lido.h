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
    std::string bytes; // what was read, at most the limit asked for
};

ArquivoLido LeArquivoInteiro(const std::filesystem::path& caminho,
                             std::size_t limite = std::numeric_limits<std::size_t>::max());

// Where the file channel reads a whole file from: the disk when none is
// installed. The batch tool installs one that hands over the bytes it has
// just read for a file's header, so each file is read once.
class FonteArquivos {
  public:
    virtual ~FonteArquivos() = default;
    virtual ArquivoLido Le(const std::filesystem::path& caminho) = 0;
};

} // namespace tramelo
