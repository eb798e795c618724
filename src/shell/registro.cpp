#include "shell/registro.h"

#include "plataforma/caixas.h"
#include "plataforma/cp1252.h"
#include "plataforma/numero.h"
#include "plataforma/texto.h"
#include "shell/entrada.h"

#include <nlohmann/json.hpp>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <unistd.h>

namespace tramelo {
namespace {

namespace fs = std::filesystem;
using Json = nlohmann::json;

// The read buffer of the platform's call, in characters of the 8-bit code
// page. A string needs room for its terminating null as well.
constexpr size_t TamanhoBuffer = 1024;

std::string PastaDadosUsuario() {
    if (const char* x = std::getenv("XDG_DATA_HOME"); x && *x) return std::string(x) + "/Tramelo";
    if (const char* h = std::getenv("HOME"); h && *h)
        return std::string(h) + "/.local/share/Tramelo";
    return "/tmp/Tramelo";
}

struct Pastas {
    std::string usuario, dados;
};

Pastas& pastas() {
    static Pastas p{PastaConfiguracaoUsuario(), PastaDadosUsuario()};
    return p;
}

// A root as it was found on disk. A missing file is an empty root; a file
// that isn't a JSON object is damaged and reads as empty too; a file that
// can't be opened is left alone by writes.
enum class EstadoRaiz { Ausente, Lida, Danificada, Inacessivel };

struct Raiz {
    Json arvore = Json::object();
    EstadoRaiz estado = EstadoRaiz::Ausente;
};

Raiz LeRaiz(const std::string& arquivo) {
    Raiz r;
    std::error_code ec;
    if (!fs::exists(arquivo, ec)) {
        if (ec) r.estado = EstadoRaiz::Inacessivel;
        return r;
    }
    std::ifstream f(arquivo, std::ios::binary);
    if (!f) {
        r.estado = EstadoRaiz::Inacessivel;
        return r;
    }
    Json j = Json::parse(f, nullptr, false);
    if (j.is_discarded() || !j.is_object()) {
        r.estado = EstadoRaiz::Danificada;
        return r;
    }
    r.arvore = std::move(j);
    r.estado = EstadoRaiz::Lida;
    return r;
}

// The whole root to a temporary file beside it, flushed to the disk, then
// renamed over the old one: a crash leaves either the old root or the new.
bool GravaRaiz(const std::string& arquivo, const Json& arvore) {
    std::error_code ec;
    fs::create_directories(fs::path(arquivo).parent_path(), ec);
    if (ec) return false;
    const std::string texto = arvore.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
    const std::string temporario = arquivo + ".tmp";
    std::FILE* f = std::fopen(temporario.c_str(), "wb");
    if (!f) return false;
    bool ok = std::fwrite(texto.data(), 1, texto.size(), f) == texto.size();
    ok = std::fflush(f) == 0 && ok;
    ok = fsync(fileno(f)) == 0 && ok;
    ok = std::fclose(f) == 0 && ok;
    if (ok) fs::rename(temporario, arquivo, ec);
    if (!ok || ec) {
        fs::remove(temporario, ec);
        return false;
    }
    return true;
}

// The platform opens a key for reading and writing at once: where the root
// can't be written, it can't be read either.
bool PodeAbrir(const std::string& arquivo) {
    return access(arquivo.c_str(), W_OK) == 0 || access(arquivo.c_str(), F_OK) != 0;
}

// The stored name of a key or value that matches `nome` without case.
const std::string* Procura(const Json& objeto, const std::string& nome) {
    const std::string alvo = LCase(nome);
    for (auto it = objeto.begin(); it != objeto.end(); ++it)
        if (LCase(it.key()) == alvo) return &it.key();
    return nullptr;
}

bool TipoTexto(int tipo) {
    return tipo == REG_SZ || tipo == REG_EXPAND_SZ;
}

// Strings are kept as the text they are, so that a person can read them;
// the other types as their bytes in hexadecimal, "01 00 00 00".
Json DadosParaJson(int tipo, const std::string& bytes) {
    if (TipoTexto(tipo)) return DeCp1252(bytes);
    static const char* d = "0123456789abcdef";
    std::string s;
    for (unsigned char c : bytes) {
        if (!s.empty()) s += ' ';
        s += d[c >> 4];
        s += d[c & 15];
    }
    return s;
}

int DigitoHex(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return -1;
}

// The bytes back; false when the hexadecimal text is damaged.
bool JsonParaDados(int tipo, const std::string& texto, std::string& bytes) {
    if (TipoTexto(tipo)) {
        bytes = ParaCp1252(texto);
        return true;
    }
    bytes.clear();
    for (size_t i = 0; i < texto.size();) {
        if (texto[i] == ' ') {
            ++i;
            continue;
        }
        if (i + 1 >= texto.size()) return false;
        int a = DigitoHex(texto[i]), b = DigitoHex(texto[i + 1]);
        if (a < 0 || b < 0) return false;
        bytes += static_cast<char>(a * 16 + b);
        i += 2;
    }
    return true;
}

// A 32-bit number from its bytes as the program always read it: the bytes
// (already cut at the first null) from the last to the first, each in
// hexadecimal without leading zeros, joined, and "&h" & that text read as a
// number. The platform reads up to 4 hexadecimal digits as a 16-bit integer
// and up to 8 as a 32-bit one, both signed. "&h" alone reads as 0.
std::string NumeroDosBytes(const std::string& bytes) {
    static const char* d = "0123456789ABCDEF";
    std::string hex;
    for (auto it = bytes.rbegin(); it != bytes.rend(); ++it) {
        const unsigned char c = static_cast<unsigned char>(*it);
        if (c >= 16) hex += d[c >> 4];
        hex += d[c & 15];
    }
    if (hex.size() > 8) return {}; // overflow: a failure, so an empty result
    long long n = 0;
    for (char c : hex)
        n = n * 16 + DigitoHex(c);
    if (hex.size() <= 4 && n >= 0x8000) n -= 0x10000;
    if (hex.size() > 4 && n >= 0x80000000LL) n -= 0x100000000LL;
    return NumeroParaTexto(static_cast<double>(n));
}

bool Grava(uint32_t raiz, const std::string& chave, const std::string& valor, int tipo,
           const std::string& bytes) {
    try {
        const std::string arquivo = ArquivoDaRaiz(raiz);
        if (arquivo.empty() || !PodeAbrir(arquivo)) return false;
        Raiz r = LeRaiz(arquivo);
        if (r.estado == EstadoRaiz::Inacessivel) return false;
        if (r.estado == EstadoRaiz::Danificada) {
            // Begin a fresh root, but keep the damaged one for whoever wants
            // to look at it.
            std::error_code ec;
            fs::rename(arquivo, arquivo + ".danificado", ec);
        }
        Json& arvore = r.arvore;
        const std::string* k = Procura(arvore, chave);
        Json& objetoChave = k ? arvore[*k] : arvore[chave];
        if (!objetoChave.is_object()) objetoChave = Json::object();
        const std::string* v = Procura(objetoChave, valor);
        Json novo = {{"tipo", tipo}, {"dados", DadosParaJson(tipo, bytes)}};
        // The same value already stored: nothing to write (the start writes
        // the association's entries every time).
        if (v && objetoChave[*v] == novo && r.estado != EstadoRaiz::Danificada) return true;
        objetoChave[v ? *v : valor] = std::move(novo);
        return GravaRaiz(arquivo, arvore);
    } catch (...) {
        return false;
    }
}

} // namespace

void DefinePastasRegistro(const std::string& pastaUsuario, const std::string& pastaDados) {
    pastas() = {pastaUsuario, pastaDados};
}

std::string PastaConfiguracaoUsuario() {
    if (const char* x = std::getenv("XDG_CONFIG_HOME"); x && *x) return std::string(x) + "/Tramelo";
    if (const char* h = std::getenv("HOME"); h && *h) return std::string(h) + "/.config/Tramelo";
    return "/tmp/Tramelo";
}

std::string ArquivoDaRaiz(uint32_t Raiz) {
    switch (Raiz) {
    case HKEY_CURRENT_USER:
        return pastas().usuario + "/registro-usuario.json";
    case HKEY_LOCAL_MACHINE:
        return pastas().dados + "/registro-maquina.json";
    case HKEY_CLASSES_ROOT:
        return pastas().dados + "/registro-classes.json";
    default:
        return {};
    }
}

std::string ChaveDaSecao(const std::string& Secao) {
    return std::string("Software\\Quillon\\") + TituloPrograma + "\\" +
           std::to_string(VersaoMaior) + "." + std::to_string(VersaoMenor) + "\\" + Secao;
}

namespace {
// "Config" and "Config\Menu" are per user; "FilesMRU" and "System" per
// machine, so all users of a computer share the recent files.
uint32_t RaizDaSecao(const std::string& Secao) {
    return Left(Secao, 6) == "Config" ? HKEY_CURRENT_USER : HKEY_LOCAL_MACHINE;
}
} // namespace

std::string LeConfig(const std::string& Secao, const std::string& Valor) {
    return LeChave(RaizDaSecao(Secao), ChaveDaSecao(Secao), Valor);
}

void GravaConfig(const std::string& Secao, const std::string& Valor, const std::string& Dado) {
    GravaChave(RaizDaSecao(Secao), ChaveDaSecao(Secao), Valor, Dado);
}

std::string LeChave(uint32_t Raiz, const std::string& Chave, const std::string& Valor) {
    try {
        const std::string arquivo = ArquivoDaRaiz(Raiz);
        if (arquivo.empty() || !PodeAbrir(arquivo)) return {};
        const Json arvore = LeRaiz(arquivo).arvore;
        const std::string* k = Procura(arvore, Chave);
        if (!k || !arvore[*k].is_object()) return {};
        const Json& objetoChave = arvore[*k];
        const std::string* v = Procura(objetoChave, Valor);
        if (!v) return {};
        const Json& valor = objetoChave[*v];
        const int tipo = valor.at("tipo").get<int>();
        std::string bytes;
        if (!JsonParaDados(tipo, valor.at("dados").get<std::string>(), bytes)) return {};
        // A value that doesn't fit the buffer is a failed read.
        if (bytes.size() + (TipoTexto(tipo) ? 1 : 0) > TamanhoBuffer) return {};
        bytes = bytes.substr(0, bytes.find('\0'));
        switch (tipo) {
        case REG_SZ:
        case REG_EXPAND_SZ: // no expansion of variables
            return DeCp1252(bytes);
        case REG_DWORD:
            return NumeroDosBytes(bytes);
        default:
            return {};
        }
    } catch (...) {
        return {};
    }
}

bool GravaChave(uint32_t Raiz, const std::string& Chave, const std::string& Valor,
                const std::string& Dado) {
    // An empty string is never stored: a cleared value reads back as " ".
    return Grava(Raiz, Chave, Valor, REG_SZ, ParaCp1252(Dado.empty() ? std::string(" ") : Dado));
}

bool GravaChaveBruta(uint32_t Raiz, const std::string& Chave, const std::string& Valor, int tipo,
                     const std::string& bytes) {
    return Grava(Raiz, Chave, Valor, tipo, bytes);
}

} // namespace tramelo
