// Every test process gets folders of its own for home, settings, data, the
// run-time socket of the single instance and temporary files, so two runs at
// once, or a run beside a Tramelo in use, never meet. Made before anything
// reads the environment, removed when the process ends.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <string>

namespace tramelo::teste {

class AmbienteIsolado {
  public:
    AmbienteIsolado() {
        std::string modelo =
            (std::filesystem::temp_directory_path() / "tramelo-teste-XXXXXX").string();
        raiz_ = mkdtemp(modelo.data());
        for (const char* nome :
             {"HOME", "XDG_RUNTIME_DIR", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "TMPDIR"}) {
            const std::filesystem::path p = raiz_ / nome;
            std::filesystem::create_directory(p);
            std::filesystem::permissions(p, std::filesystem::perms::owner_all);
            setenv(nome, p.c_str(), 1);
        }
    }
    ~AmbienteIsolado() {
        std::error_code ec;
        std::filesystem::remove_all(raiz_, ec);
    }
    AmbienteIsolado(const AmbienteIsolado&) = delete;
    AmbienteIsolado& operator=(const AmbienteIsolado&) = delete;

  private:
    std::filesystem::path raiz_;
};

} // namespace tramelo::teste
