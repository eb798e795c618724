// What every fuzz target shares: a user who answers every box with its first
// button and every input box with an empty text, no dialogs (each one is
// cancelled), and a private folder for the files the routines read.
#pragma once

#include "plataforma/ambiente.h"
#include "plataforma/canal.h"
#include "base/mod_base.h"
#include "shell/registro.h"
#include "sizing/catalogo.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace tramelo::fuzz {

class UsuarioCalado : public Caixas {
  public:
    int MsgBox(const std::string&, int estilo, const std::string&) override {
        const int botoes = estilo & 7;
        return botoes == vbYesNo || botoes == vbYesNoCancel ? vbNo : vbOK;
    }
    std::string InputBox(const std::string&, const std::string&, const std::string&) override {
        return {};
    }
};

// The program's folders in a fresh temporary folder (in memory where the
// system has one), with the user's settings there too. Set up once per process.
inline const std::string& PastaDoFuzz() {
    static const std::string pasta = [] {
        std::string modelo =
            (access("/dev/shm", W_OK) == 0 ? std::string("/dev/shm") : std::string("/tmp")) +
            "/tramelo-fuzz-XXXXXX";
        if (!mkdtemp(modelo.data())) std::abort();
        if (mkdir((modelo + "/config").c_str(), 0700) != 0) std::abort();
        static UsuarioCalado usuario;
        ambiente().caixas = &usuario;
        DefinePastas(modelo);
        DefinePastasRegistro(modelo + "/config", modelo);
        CarregaCatalogo();
        return modelo;
    }();
    return pasta;
}

// Writes the bytes to `nome` in the fuzz folder and returns its path.
inline std::string GravaEntrada(const std::string& nome, const uint8_t* dados, size_t n) {
    const std::string arquivo = PastaDoFuzz() + "/" + nome;
    std::FILE* f = std::fopen(arquivo.c_str(), "wb");
    if (!f) std::abort();
    if (n && std::fwrite(dados, 1, n, f) != n) std::abort();
    std::fclose(f);
    return arquivo;
}

} // namespace tramelo::fuzz
