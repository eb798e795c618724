#include "plataforma/arquivo_lido.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>

#ifndef _WIN32
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace tramelo {

bool ArquivoNoDisco(const std::filesystem::path& caminho) {
    std::error_code ec;
    return std::filesystem::is_regular_file(caminho, ec);
}

bool PastaNoDisco(const std::filesystem::path& caminho) {
    std::error_code ec;
    return std::filesystem::is_directory(caminho, ec);
}

#ifndef _WIN32

ArquivoLido LeArquivoInteiro(const std::filesystem::path& caminho, std::size_t limite) {
    ArquivoLido r;
    const int fd = ::open(caminho.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0) {
        r.erro = errno;
        return r;
    }
    struct stat st {};
    if (::fstat(fd, &st) != 0) {
        r.erro = errno;
        r.estado = ArquivoLido::Estado::ErroLeitura;
        ::close(fd);
        return r;
    }
    if (S_ISDIR(st.st_mode)) {
        r.estado = ArquivoLido::Estado::Pasta;
        ::close(fd);
        return r;
    }
    // A regular file's size asks for all of it at once, and one byte more:
    // a short read of a regular file is its end. Anything else (a pipe, a
    // file of /proc) is read until the system says there is no more.
    const bool regular = S_ISREG(st.st_mode);
    r.regular = regular;
    std::size_t pedido =
        regular && st.st_size >= 0 ? static_cast<std::size_t>(st.st_size) + 1 : 8192;
    r.estado = ArquivoLido::Estado::Lido;
    std::size_t usado = 0;
    while (usado < limite) {
        pedido = std::min(pedido, limite - usado);
        r.bytes.resize(usado + pedido);
        const ssize_t n = ::read(fd, r.bytes.data() + usado, pedido);
        if (n < 0) {
            if (errno == EINTR) continue;
            r.erro = errno;
            r.estado = ArquivoLido::Estado::ErroLeitura;
            break;
        }
        usado += static_cast<std::size_t>(n);
        if (n == 0 || (regular && static_cast<std::size_t>(n) < pedido)) break;
        pedido = 8192;
    }
    r.bytes.resize(usado);
    ::close(fd);
    return r;
}

#else

ArquivoLido LeArquivoInteiro(const std::filesystem::path& caminho, std::size_t limite) {
    ArquivoLido r;
    std::error_code ec;
    if (std::filesystem::is_directory(caminho, ec)) {
        r.estado = ArquivoLido::Estado::Pasta;
        return r;
    }
    std::FILE* f = ::_wfopen(caminho.c_str(), L"rb");
    if (!f) {
        r.erro = errno;
        return r;
    }
    r.estado = ArquivoLido::Estado::Lido;
    r.regular = std::filesystem::is_regular_file(caminho, ec);
    char bloco[8192];
    std::size_t n;
    while (r.bytes.size() < limite &&
           (n = std::fread(bloco, 1, std::min(sizeof bloco, limite - r.bytes.size()), f)) > 0)
        r.bytes.append(bloco, n);
    if (std::ferror(f)) {
        r.erro = errno;
        r.estado = ArquivoLido::Estado::ErroLeitura;
    }
    std::fclose(f);
    return r;
}

#endif

} // namespace tramelo
