#include "base/recentes.h"

#include "base/barras.h"
#include "plataforma/texto.h"
#include "plataforma/notificador.h"

namespace tramelo {
namespace {

// Proper case, as the platform's: every letter lower, except the first
// character of each word, which is upper. Words are parted only by blanks
// and control characters (null, tab, line feed, vertical tab, form feed,
// carriage return), so "pasta-nova" gives "Pasta-nova" and "2a" stays.
// Letters are those of the Latin-1 range, as in LCase.
std::string CasoProprio(const std::string& s) {
    const std::string minusculo = LCase(s);
    std::string r;
    r.reserve(minusculo.size());
    bool inicioPalavra = true;
    for (size_t i = 0; i < minusculo.size(); ++i) {
        const unsigned char c = static_cast<unsigned char>(minusculo[i]);
        if (c >= 0x80) {
            // One whole character: its lead byte and continuation bytes.
            size_t fim = i + 1;
            while (fim < minusculo.size() && (minusculo[fim] & 0xC0) == 0x80)
                ++fim;
            std::string caractere = minusculo.substr(i, fim - i);
            // U+00E0..U+00FE (but not U+00F7) raise to U+00C0..U+00DE.
            if (inicioPalavra && caractere.size() == 2 && c == 0xC3) {
                const unsigned char d = static_cast<unsigned char>(caractere[1]);
                if (d >= 0xA0 && d <= 0xBE && d != 0xB7) caractere[1] = static_cast<char>(d - 0x20);
            }
            r += caractere;
            inicioPalavra = false;
            i = fim - 1;
            continue;
        }
        r += static_cast<char>(inicioPalavra && c >= 'a' && c <= 'z' ? c - 32 : c);
        inicioPalavra = c == ' ' || c == '\0' || (c >= '\t' && c <= '\r');
    }
    return r;
}

} // namespace

std::array<std::string, 4>& FilesMRU() {
    static std::array<std::string, 4> f;
    return f;
}

void AdicionaMRU(const std::string& Arquivo) {
    // A program without a frame has no list of recent files to keep.
    if (!mdiMenu().mostrado) return;
    auto& f = FilesMRU();
    const std::string alvo = LCase(Arquivo);
    // The first entry keeps its own spelling when the same file comes again.
    if (Arquivo.empty() || alvo == LCase(f[0])) return;
    // i ends at the place of a match at 2 or 3, or at 4: no match, or a match
    // at 4, and the last entry drops out either way.
    int i = 2;
    while (i <= 3) {
        if (alvo == LCase(f[static_cast<size_t>(i - 1)])) break;
        ++i;
    }
    for (int j = i; j >= 2; --j)
        f[static_cast<size_t>(j - 1)] = f[static_cast<size_t>(j - 2)];
    f[0] = Arquivo;
    Notifica(Mudanca::Recentes);
}

std::string EncurtaCaminho(const std::string& F) {
    if (Len(F) < 31) return F;
    // The root stands whole and the folder walk starts behind it: "/" on
    // this system; a drive and its separator ("C:/") in a path from Windows.
    const int raiz = Left(F, 1) == "/" ? 1 : 3;
    std::string t = Left(F, raiz);
    int p = raiz;
    for (;;) {
        int q = InStr(p + 1, F, "/");
        if (q == 0) break;
        std::string pasta = Mid(F, p + 1, q - 1 - p);
        // A name of more than 5 characters gives its first 3 and "../".
        if (q - 1 > p + 5)
            t += CasoProprio(Left(pasta, 3)) + "../";
        else
            t += CasoProprio(pasta) + "/";
        p = q;
    }
    return t + Mid(F, p + 1);
}

void AtualizaMRU(MenuRecentes& Janela) {
    const auto& f = FilesMRU();
    for (int i = 1; i <= 4; ++i) {
        const std::string& F = f[static_cast<size_t>(i - 1)];
        EntradaMenu& e = Janela.mnuArquivoMRU[static_cast<size_t>(i - 1)];
        e.Caption = "&" + std::to_string(i) + " " + EncurtaCaminho(F);
        e.Visible = !F.empty();
    }
    Janela.mnuArquivoMRUVazio.Visible = !Janela.mnuArquivoMRU[0].Visible;
}

} // namespace tramelo
