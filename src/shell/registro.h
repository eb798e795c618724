// The settings store (modRegistro): a tree of keys under three roots, each key
// with named, typed values; everything the program writes is text. On Linux
// each root is one JSON file a person can read, keyed by the full key path,
// written whole through a temporary file and a rename. No cache: every call
// goes to the file, and no failure reaches the caller.
#pragma once

#include <cstdint>
#include <string>

namespace tramelo {

// The roots, by the platform's numbers. The user root and the machine root
// are two files, so that the section rule below has somewhere to split.
enum RaizRegistro : uint32_t {
    HKEY_CLASSES_ROOT = 0x80000000,  // the file extension entry
    HKEY_CURRENT_USER = 0x80000001,  // sections that begin with "Config"
    HKEY_LOCAL_MACHINE = 0x80000002, // every other section, and the file class
};

// Value types, by the platform's numbers.
enum TipoValor : int { REG_SZ = 1, REG_EXPAND_SZ = 2, REG_BINARY = 3, REG_DWORD = 4 };

// Where the roots live: the user root in `pastaUsuario` (the user's
// configuration folder, "registro-usuario.json"), the machine and classes
// roots in `pastaDados`, the program's data folder ("registro-maquina.json",
// "registro-classes.json"). Set at start-up; until then both are the user's
// own folders, so the store works from the first line of the program.
void DefinePastasRegistro(const std::string& pastaUsuario, const std::string& pastaDados);
// $XDG_CONFIG_HOME/Tramelo, by default ~/.config/Tramelo.
std::string PastaConfiguracaoUsuario();
// The file that holds a root; empty for a number that is no root.
std::string ArquivoDaRaiz(uint32_t Raiz);

// "Software\Quillon\Tramelo\2.0\" & section: a new major or minor version
// starts with no settings; the revision isn't part of it.
std::string ChaveDaSecao(const std::string& Secao);

// The section's value as text; empty when absent or on any failure. Sections
// whose first 6 characters are "Config" (case-sensitive) are the user's; all
// others, "FilesMRU" and "System" among them, the machine's.
std::string LeConfig(const std::string& Secao, const std::string& Valor);
// Writes the value; a failure is lost in silence.
void GravaConfig(const std::string& Secao, const std::string& Valor, const std::string& Dado);

// Reads a value of a key as text; an empty name is the key's default value.
// Keys and names compare without case, as the platform's do.
std::string LeChave(uint32_t Raiz, const std::string& Chave, const std::string& Valor);
// Writes a string value, creating the key; an empty text is stored as one
// blank. True when written.
bool GravaChave(uint32_t Raiz, const std::string& Chave, const std::string& Valor,
                const std::string& Dado);
// Writes a value of any type from its raw bytes, as other programs may leave
// in the store (a 32-bit number is its 4 bytes, low byte first). The program
// itself writes only strings.
bool GravaChaveBruta(uint32_t Raiz, const std::string& Chave, const std::string& Valor, int tipo,
                     const std::string& bytes);

} // namespace tramelo
