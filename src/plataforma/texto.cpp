#include "plataforma/texto.h"

#include "plataforma/falha.h"

#include <cstdint>
#include <cstring>

namespace tramelo {
namespace {

bool Continuacao(unsigned char c) { return (c & 0xC0) == 0x80; }

// Byte offset of character n (from 0); the size when beyond the end.
size_t Deslocamento(std::string_view s, int n) {
    size_t i = 0;
    while (i < s.size() && n > 0) {
        ++i;
        while (i < s.size() && Continuacao(static_cast<unsigned char>(s[i]))) ++i;
        --n;
    }
    return i;
}

} // namespace

int Len(std::string_view s) {
    // Every report line is measured: eight bytes at a time, a continuation
    // byte being one whose top two bits are 10.
    size_t continuacoes = 0, i = 0;
    for (; i + 8 <= s.size(); i += 8) {
        std::uint64_t w;
        std::memcpy(&w, s.data() + i, 8);
        // One bit a byte at bit 7; summed by the multiply into the top byte
        // (the default x86-64 target has no population-count instruction).
        const std::uint64_t m = (w & ~(w << 1) & 0x8080808080808080ULL) >> 7;
        continuacoes += static_cast<size_t>((m * 0x0101010101010101ULL) >> 56);
    }
    for (; i < s.size(); ++i)
        if (Continuacao(static_cast<unsigned char>(s[i]))) ++continuacoes;
    return static_cast<int>(s.size() - continuacoes);
}

bool EmBranco(std::string_view s) {
    return s.find_first_not_of(" \t") == std::string_view::npos;
}

std::string Left(std::string_view s, int n) {
    if (n < 0) throw Falha(ArgumentoInvalido);
    return std::string(s.substr(0, Deslocamento(s, n)));
}

std::string Mid(std::string_view s, int inicio) {
    return std::string(MidVista(s, inicio));
}

std::string_view MidVista(std::string_view s, int inicio) {
    if (inicio < 1) throw Falha(ArgumentoInvalido);
    return s.substr(Deslocamento(s, inicio - 1));
}

std::string Mid(std::string_view s, int inicio, int n) {
    if (n < 0) throw Falha(ArgumentoInvalido);
    return Left(Mid(s, inicio), n);
}

std::string String(int n, std::string_view c) {
    if (n < 0 || c.empty()) throw Falha(ArgumentoInvalido);
    std::string_view primeiro = c.substr(0, Deslocamento(c, 1));
    if (primeiro.size() == 1) return std::string(static_cast<size_t>(n), primeiro[0]);
    std::string r;
    r.reserve(static_cast<size_t>(n) * primeiro.size());
    for (int i = 0; i < n; ++i) r += primeiro;
    return r;
}

int InStr(int inicio, std::string_view s, std::string_view procura) {
    if (inicio < 1) throw Falha(ArgumentoInvalido);
    size_t de = Deslocamento(s, inicio - 1);
    size_t p = s.find(procura, de);
    if (p == std::string_view::npos) return 0;
    return Len(s.substr(0, p)) + 1;
}

std::string LCase(std::string_view s) {
    std::string r;
    r.reserve(s.size());
    for (size_t i = 0; i < s.size(); ++i) {
        unsigned char c = static_cast<unsigned char>(s[i]);
        if (c >= 'A' && c <= 'Z') {
            r += static_cast<char>(c + 32);
        } else if (c == 0xC3 && i + 1 < s.size()) {
            // U+00C0..U+00DE (but not U+00D7) lower to U+00E0..U+00FE.
            unsigned char d = static_cast<unsigned char>(s[i + 1]);
            if (d >= 0x80 && d <= 0x9E && d != 0x97) d = static_cast<unsigned char>(d + 0x20);
            r += static_cast<char>(c);
            r += static_cast<char>(d);
            ++i;
        } else {
            r += static_cast<char>(c);
        }
    }
    return r;
}

} // namespace tramelo
