// A fresh folder under the system's temporary folder, removed at the end.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace tramelo::teste {

class PastaTemporaria {
  public:
    PastaTemporaria() {
        std::string modelo = (std::filesystem::temp_directory_path() / "tramelo-XXXXXX").string();
        caminho_ = mkdtemp(modelo.data());
    }
    ~PastaTemporaria() {
        std::error_code ec;
        std::filesystem::remove_all(caminho_, ec);
    }
    std::string operator/(const std::string& nome) const { return (caminho_ / nome).string(); }
    std::string str() const { return caminho_.string(); }

  private:
    std::filesystem::path caminho_;
};

inline std::string LeBytes(const std::string& arquivo) {
    std::ifstream f(arquivo, std::ios::binary);
    return {std::istreambuf_iterator<char>(f), std::istreambuf_iterator<char>()};
}

inline void GravaBytes(const std::string& arquivo, const std::string& bytes) {
    std::ofstream f(arquivo, std::ios::binary);
    f << bytes;
}

} // namespace tramelo::teste
