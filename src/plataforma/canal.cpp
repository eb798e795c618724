#include "plataforma/canal.h"

#include "plataforma/ambiente.h"
#include "plataforma/arquivo_lido.h"
#include "plataforma/cp1252.h"
#include "plataforma/falha.h"
#include "plataforma/numero.h"

#include <cerrno>
#include <cmath>
#include <filesystem>
#include <system_error>

namespace tramelo {
namespace {

namespace fs = std::filesystem;

constexpr int CaminhoNaoEncontrado = 76;
constexpr int NomeArquivoIncorreto = 52;
constexpr int ErroDispositivo = 57;
constexpr int DiscoCheio = 61;

// Writing on a channel opened for input, or the reverse.
Falha ModoIncorreto() {
    return Falha(54, "Modo de arquivo incorreto");
}

// The failure for an errno left by a file operation that failed.
Falha FalhaDoSistema(int erro, int outra) {
    const auto e = std::errc(erro);
    if (e == std::errc::no_space_on_device) return Falha(DiscoCheio);
    if (e == std::errc::no_such_file_or_directory || e == std::errc::not_a_directory)
        return Falha(CaminhoNaoEncontrado);
    if (e == std::errc::permission_denied || e == std::errc::operation_not_permitted ||
        e == std::errc::read_only_file_system || e == std::errc::is_a_directory)
        return Falha(AcessoNegado);
    return Falha(outra);
}

// Names are UTF-8 in memory, whatever the platform's own file names are.
fs::path Caminho(const std::string& nome) {
    return fs::path(std::u8string(nome.begin(), nome.end()));
}

bool PastaExiste(const fs::path& arquivo) {
    const fs::path pasta = arquivo.parent_path();
    std::error_code ec;
    return pasta.empty() || fs::is_directory(pasta, ec);
}

// The platform's own open, so that a name outside the ANSI code page opens too.
std::FILE* AbreArquivo(const fs::path& caminho, const char* modo) {
#ifdef _WIN32
    const std::wstring m(modo, modo + std::char_traits<char>::length(modo));
    return ::_wfopen(caminho.c_str(), m.c_str());
#else
    return std::fopen(caminho.c_str(), modo);
#endif
}

std::u8string Numero8(int n) {
    const std::string s = std::to_string(n);
    return std::u8string(s.begin(), s.end());
}

bool Branco(char c) {
    return c == ' ' || c == '\t';
}
bool FimDeLinha(char c) {
    return c == '\r' || c == '\n';
}

} // namespace

std::string ItemArquivo::FormaEscrita() const {
    return numero_ ? texto_ : '"' + texto_ + '"';
}

std::string ItemArquivo::FormaNumero(double x) {
    std::string s = NumeroParaTexto(x);
    if (x != std::trunc(x))
        for (char& c : s)
            if (c == ',') c = '.';
    return s;
}

CanalArquivo::~CanalArquivo() {
    Reinicia();
}

void CanalArquivo::AbreSaida(const std::string& arquivo) {
    if (Ocupado()) throw Falha(ArquivoJaAberto);
    fs::path alvo = Caminho(arquivo);
    if (arquivo.empty()) throw Falha(AcessoNegado);
    if (!PastaExiste(alvo)) throw Falha(CaminhoNaoEncontrado);
    std::error_code ec;
    // Through a link, the file it names is the one replaced, not the link.
    if (fs::is_symlink(alvo, ec)) {
        const fs::path real = fs::weakly_canonical(alvo, ec);
        if (!ec) alvo = real;
    }
    const fs::file_status estado = fs::status(alvo, ec);
    if (fs::is_directory(estado)) throw Falha(AcessoNegado);
    if (fs::is_regular_file(estado)) {
        // A file that can't be written keeps its content: it isn't ours to replace.
        std::FILE* teste = AbreArquivo(alvo, "ab");
        if (!teste) throw FalhaDoSistema(errno, AcessoNegado);
        std::fclose(teste);
    }
    // The temporary lies beside the target, so the rename at close stays on one disk.
    const std::u8string base = u8"." + alvo.filename().u8string() + u8".~";
    for (int n = 1;; ++n) {
        const fs::path temp = alvo.parent_path() / (base + Numero8(n));
        errno = 0;
        saida_ = AbreArquivo(temp, "wbx");
        if (saida_) {
            temporario_ = temp;
            break;
        }
        if (errno != EEXIST || n == 1000) throw FalhaDoSistema(errno, AcessoNegado);
    }
    alvo_ = alvo;
    coluna_ = 1;
    modo_ = Modo::Saida;
}

void CanalArquivo::AbreEntrada(const std::string& arquivo) {
    if (Ocupado()) throw Falha(ArquivoJaAberto);
    const fs::path caminho = Caminho(arquivo);
    FonteArquivos* fonte = ambiente().arquivos;
    ArquivoLido lido = fonte ? fonte->Le(caminho) : LeArquivoInteiro(caminho);
    switch (lido.estado) {
    case ArquivoLido::Estado::Lido:
        break;
    case ArquivoLido::Estado::Pasta:
        throw Falha(AcessoNegado);
    case ArquivoLido::Estado::ErroLeitura:
        throw Falha(ErroDispositivo);
    case ArquivoLido::Estado::NaoAbriu: {
        // Only now is it asked why: a file that isn't there is 53, or 76
        // when its folder isn't either.
        std::error_code ec;
        if (!fs::exists(fs::status(caminho, ec)))
            throw Falha(PastaExiste(caminho) ? ArquivoNaoEncontrado : CaminhoNaoEncontrado);
        throw FalhaDoSistema(lido.erro, AcessoNegado);
    }
    }
    bytes_ = std::move(lido.bytes);
    pos_ = 0;
    modo_ = Modo::Entrada;
}

void CanalArquivo::Fecha() {
    if (modo_ == Modo::Entrada) {
        bytes_.clear();
        pos_ = 0;
        modo_ = Modo::Livre;
        return;
    }
    if (modo_ != Modo::Saida) return;
    errno = 0;
    bool gravou = std::fflush(saida_) == 0 && !std::ferror(saida_);
    const int erro = errno;
    gravou = std::fclose(saida_) == 0 && gravou;
    saida_ = nullptr;
    if (!gravou) {
        DescartaTemporario();
        throw FalhaDoSistema(erro, ErroDispositivo);
    }
    std::error_code ec;
    // The new file keeps the permissions the user had given the old one.
    const fs::file_status antigo = fs::status(alvo_, ec);
    if (!ec && fs::is_regular_file(antigo)) fs::permissions(temporario_, antigo.permissions(), ec);
    fs::rename(temporario_, alvo_, ec);
    if (ec) {
        DescartaTemporario();
        throw FalhaDoSistema(ec.value(), AcessoNegado);
    }
    temporario_.clear();
    alvo_.clear();
    modo_ = Modo::Livre;
}

void CanalArquivo::Reinicia() {
    if (saida_) {
        std::fclose(saida_);
        saida_ = nullptr;
    }
    if (modo_ == Modo::Saida) DescartaTemporario();
    bytes_.clear();
    pos_ = 0;
    modo_ = Modo::Livre;
}

void CanalArquivo::DescartaTemporario() {
    std::error_code ec;
    if (!temporario_.empty()) fs::remove(temporario_, ec);
    temporario_.clear();
    alvo_.clear();
    modo_ = Modo::Livre;
}

void CanalArquivo::ExigeSaida() const {
    if (modo_ == Modo::Livre) throw Falha(NomeArquivoIncorreto);
    if (modo_ != Modo::Saida) throw ModoIncorreto();
}

void CanalArquivo::ExigeEntrada() const {
    if (modo_ == Modo::Livre) throw Falha(NomeArquivoIncorreto);
    if (modo_ != Modo::Entrada) throw ModoIncorreto();
}

void CanalArquivo::Grava(std::string_view bytes) {
    errno = 0;
    if (std::fwrite(bytes.data(), 1, bytes.size(), saida_) != bytes.size())
        throw FalhaDoSistema(errno, ErroDispositivo);
    for (char c : bytes)
        coluna_ = FimDeLinha(c) ? 1 : coluna_ + 1;
}

void CanalArquivo::Escreve(std::initializer_list<ItemArquivo> itens) {
    ExigeSaida();
    std::string linha;
    for (const ItemArquivo& item : itens) {
        if (&item != itens.begin()) linha += ',';
        linha += item.FormaEscrita();
    }
    Grava(ParaCp1252(linha) + "\r\n");
}

void CanalArquivo::Imprime(std::string_view texto) {
    ExigeSaida();
    Grava(ParaCp1252(texto));
}

void CanalArquivo::Tab(int coluna) {
    ExigeSaida();
    if (coluna < 1) coluna = 1;
    if (coluna_ > coluna) Grava("\r\n");
    Grava(std::string(coluna - coluna_, ' '));
}

void CanalArquivo::NovaLinha() {
    ExigeSaida();
    Grava("\r\n");
}

std::string CanalArquivo::LeItem() {
    ExigeEntrada();
    const std::size_t n = bytes_.size();
    while (pos_ < n && (Branco(bytes_[pos_]) || FimDeLinha(bytes_[pos_])))
        ++pos_;
    if (pos_ >= n) throw Falha(FimDeArquivo);
    std::size_t inicio, fim;
    if (bytes_[pos_] == '"') {
        inicio = pos_ + 1;
        fim = bytes_.find('"', inicio);
        if (fim == std::string::npos) fim = n;
        // Whatever follows the closing quote on its line, up to the separator, is dropped.
        pos_ = fim;
        while (pos_ < n && bytes_[pos_] != ',' && !FimDeLinha(bytes_[pos_]))
            ++pos_;
    } else {
        inicio = pos_;
        while (pos_ < n && bytes_[pos_] != ',' && !FimDeLinha(bytes_[pos_]))
            ++pos_;
        fim = pos_;
    }
    if (pos_ < n) {
        // The separator: a comma, or a line end (CR LF as one).
        if (bytes_[pos_] == '\r' && pos_ + 1 < n && bytes_[pos_ + 1] == '\n') ++pos_;
        ++pos_;
    }
    return DeCp1252(std::string_view(bytes_).substr(inicio, fim - inicio));
}

std::string CanalArquivo::LeLinha() {
    ExigeEntrada();
    const std::size_t n = bytes_.size();
    if (pos_ >= n) throw Falha(FimDeArquivo);
    const std::size_t inicio = pos_;
    while (pos_ < n && !FimDeLinha(bytes_[pos_]))
        ++pos_;
    const std::size_t fim = pos_;
    if (pos_ < n) {
        if (bytes_[pos_] == '\r' && pos_ + 1 < n && bytes_[pos_ + 1] == '\n') ++pos_;
        ++pos_;
    }
    return DeCp1252(std::string_view(bytes_).substr(inicio, fim - inicio));
}

bool CanalArquivo::Eof() const {
    ExigeEntrada();
    return pos_ >= bytes_.size();
}

CanalArquivo& canal1() {
    static CanalArquivo canal;
    return canal;
}

short NumeroDoItem(std::string_view item) {
    return CInt(Val(item));
}

} // namespace tramelo
