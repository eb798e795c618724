#include "base/instalacao.h"

#include <filesystem>

namespace tramelo {

namespace fs = std::filesystem;

std::string PastaDadosInstalados(const std::string& pastaExecutavel) {
    if (pastaExecutavel.empty()) return {};
    const fs::path bin = fs::path(pastaExecutavel).lexically_normal();
    // "bin/" normalises to a trailing empty name; its parent is "bin" itself.
    const fs::path pasta = bin.has_filename() ? bin : bin.parent_path();
    if (pasta.filename() != "bin") return {};
    const fs::path dados = pasta.parent_path() / "share" / "tramelo";
    std::error_code ec;
    return fs::is_directory(dados, ec) ? dados.string() : std::string();
}

bool ProgramaInstalado(const std::string& pastaExecutavel) {
    return !PastaDadosInstalados(pastaExecutavel).empty();
}

std::string ArquivoDoPrograma(const std::string& pastaExecutavel, const std::string& nome) {
    const std::string dados = PastaDadosInstalados(pastaExecutavel);
    std::error_code ec;
    if (!dados.empty() && fs::exists(dados + "/" + nome, ec)) return dados + "/" + nome;
    return pastaExecutavel + "/" + nome;
}

} // namespace tramelo
