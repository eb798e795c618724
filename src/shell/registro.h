// The settings store: a tree of keys under three roots, each key with named,
// typed values; everything the program writes is text. On Linux each root is
// one readable JSON file, written whole through a temporary and a rename.
// No cache: every call goes to the file, and no failure reaches the caller.
#pragma once

#include <cstdint>
#include <string>

namespace tramelo {

enum RaizRegistro : uint32_t {
    HKEY_CLASSES_ROOT = 0x80000000,  // the file extension entry
    HKEY_CURRENT_USER = 0x80000001,  // sections that begin with "Config"
    HKEY_LOCAL_MACHINE = 0x80000002, // every other section, and the file class
};

enum TipoValor : int { REG_SZ = 1, REG_EXPAND_SZ = 2, REG_BINARY = 3, REG_DWORD = 4 };

// Where the roots live: the user root in `pastaUsuario` (the user's
// configuration folder), the machine and classes roots in `pastaDados` (the
// program's data folder).
void DefinePastasRegistro(const std::string& pastaUsuario, const std::string& pastaDados);
// $XDG_CONFIG_HOME/Tramelo, by default ~/.config/Tramelo.
std::string PastaConfiguracaoUsuario();

// "Software\Quillon\Tramelo\2.0\" & section: a new major or minor version
// starts with no settings.
std::string ChaveDaSecao(const std::string& Secao);

// The section's value as text; empty when absent or on any failure.
std::string LeConfig(const std::string& Secao, const std::string& Valor);
// Writes the value; a failure is lost in silence.
void GravaConfig(const std::string& Secao, const std::string& Valor, const std::string& Dado);

// Reads a value of a key; an empty name is the key's default value.
std::string LeChave(uint32_t Raiz, const std::string& Chave, const std::string& Valor);
// Writes a string value, creating the key and its parents; an empty text is
// stored as one blank. True when written.
bool GravaChave(uint32_t Raiz, const std::string& Chave, const std::string& Valor,
                const std::string& Dado);
// Writes a value of another type as raw bytes (what other programs may leave
// in the store); the program itself writes only strings.
bool GravaChaveBruta(uint32_t Raiz, const std::string& Chave, const std::string& Valor, int tipo,
                     const std::string& bytes);

} // namespace tramelo
