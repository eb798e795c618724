#include "shell/registro.h"

#include "plataforma/cp1252.h"
#include "plataforma/numero.h"
#include "plataforma/texto.h"

#include <nlohmann/json.hpp>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace tramelo {
namespace {

namespace fs = std::filesystem;
using Json = nlohmann::json;

struct Pastas {
    std::string usuario, dados;
};

Pastas& pastas() {
    static Pastas p{PastaConfiguracaoUsuario(), "."};
    return p;
}

std::string ArquivoDaRaiz(uint32_t raiz) {
    switch (raiz) {
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

// The whole root as {"chave": {"valor": {"tipo": n, "dados": "hex"}}}. Keys
// and value names compare without case, as the platform's do. A damaged or
// missing file reads as an empty root.
Json LeRaiz(const std::string& arquivo) {
    std::ifstream f(arquivo, std::ios::binary);
    if (!f) return Json::object();
    Json j = Json::parse(f, nullptr, false);
    if (j.is_discarded() || !j.is_object()) return Json::object();
    return j;
}

bool GravaRaiz(const std::string& arquivo, const Json& j) {
    std::error_code ec;
    fs::create_directories(fs::path(arquivo).parent_path(), ec);
    const std::string temporario = arquivo + ".tmp";
    {
        std::ofstream f(temporario, std::ios::binary | std::ios::trunc);
        if (!f) return false;
        f << j.dump(2) << '\n';
        if (!f.flush()) return false;
    }
    fs::rename(temporario, arquivo, ec);
    if (ec) fs::remove(temporario, ec);
    return !ec;
}

std::string Hex(const std::string& bytes) {
    static const char* d = "0123456789abcdef";
    std::string s;
    for (unsigned char c : bytes) {
        s += d[c >> 4];
        s += d[c & 15];
    }
    return s;
}

std::string DeHex(const std::string& hex) {
    std::string s;
    for (size_t i = 0; i + 1 < hex.size(); i += 2)
        s += static_cast<char>(std::stoi(hex.substr(i, 2), nullptr, 16));
    return s;
}

// The stored name of a key or value that matches `nome` without case.
const std::string* Procura(const Json& objeto, const std::string& nome) {
    const std::string alvo = LCase(nome);
    for (auto it = objeto.begin(); it != objeto.end(); ++it)
        if (LCase(it.key()) == alvo) return &it.key();
    return nullptr;
}

bool Grava(uint32_t raiz, const std::string& chave, const std::string& valor, int tipo,
           const std::string& bytes) {
    try {
        const std::string arquivo = ArquivoDaRaiz(raiz);
        if (arquivo.empty()) return false;
        Json j = LeRaiz(arquivo);
        const std::string* k = Procura(j, chave);
        Json& objetoChave = k ? j[*k] : j[chave];
        if (!objetoChave.is_object()) objetoChave = Json::object();
        const std::string* v = Procura(objetoChave, valor);
        objetoChave[v ? *v : valor] = {{"tipo", tipo}, {"dados", Hex(bytes)}};
        return GravaRaiz(arquivo, j);
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

std::string ChaveDaSecao(const std::string& Secao) {
    return "Software\\Quillon\\Tramelo\\" + std::to_string(TRAMELO_VERSAO_MAIOR) + "." +
           std::to_string(TRAMELO_VERSAO_MENOR) + "\\" + Secao;
}

namespace {
// The first six characters, case-sensitive: "Config..." is the user's.
uint32_t RaizDaSecao(const std::string& Secao) {
    return Secao.compare(0, 6, "Config") == 0 && Secao.size() >= 6 ? HKEY_CURRENT_USER
                                                                   : HKEY_LOCAL_MACHINE;
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
        if (arquivo.empty()) return {};
        const Json j = LeRaiz(arquivo);
        const std::string* k = Procura(j, Chave);
        if (!k || !j[*k].is_object()) return {};
        const Json& objetoChave = j[*k];
        const std::string* v = Procura(objetoChave, Valor);
        if (!v) return {};
        const Json& valor = objetoChave[*v];
        const int tipo = valor.value("tipo", 0);
        std::string bytes = DeHex(valor.value("dados", std::string()));
        // A buffer of 1024 characters; a longer value doesn't fit and fails.
        const size_t tamanho =
            tipo == REG_SZ || tipo == REG_EXPAND_SZ ? bytes.size() + 1 : bytes.size();
        if (tamanho > 1024) return {};
        bytes = bytes.substr(0, bytes.find('\0'));
        switch (tipo) {
        case REG_SZ:
        case REG_EXPAND_SZ:
            return DeCp1252(bytes);
        case REG_DWORD: {
            // The cut bytes from the last to the first, each in hexadecimal
            // without leading zeros, read as "&h" and that text.
            std::string hex;
            static const char* d = "0123456789ABCDEF";
            for (auto it = bytes.rbegin(); it != bytes.rend(); ++it) {
                unsigned char c = static_cast<unsigned char>(*it);
                if (c >= 16) hex += d[c >> 4];
                hex += d[c & 15];
            }
            long long n = 0;
            for (char c : hex)
                n = n * 16 + (c <= '9' ? c - '0' : c - 'A' + 10);
            if (hex.size() == 8 && n >= 0x80000000LL) n -= 0x100000000LL;
            return std::to_string(n);
        }
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
