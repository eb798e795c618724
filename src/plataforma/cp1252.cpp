#include "plataforma/cp1252.h"

#include <array>
#include <cstdint>

namespace tramelo {
namespace {

// 0x80..0x9F: the only range where the code page differs from Latin-1. The
// undefined bytes keep their own value, so they read as C1 controls.
constexpr std::array<char16_t, 32> Faixa80 = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, // 80
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F, // 88
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, // 90
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178, // 98
};

char32_t CaractereDoByte(unsigned char b) {
    if (b >= 0x80 && b <= 0x9F) return Faixa80[b - 0x80];
    return b;
}

// The byte of a code point, or '?' when the code page hasn't got it.
char ByteDoCaractere(char32_t c) {
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) return static_cast<char>(c);
    for (std::size_t i = 0; i < Faixa80.size(); ++i)
        if (Faixa80[i] == c) return static_cast<char>(0x80 + i);
    return '?';
}

void AcrescentaUtf8(std::string& s, char32_t c) {
    if (c < 0x80) {
        s += static_cast<char>(c);
    } else if (c < 0x800) {
        s += static_cast<char>(0xC0 | (c >> 6));
        s += static_cast<char>(0x80 | (c & 0x3F));
    } else {
        s += static_cast<char>(0xE0 | (c >> 12));
        s += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        s += static_cast<char>(0x80 | (c & 0x3F));
    }
}

// Decodes the sequence at s[i]. Returns its length in bytes, 0 when ill-formed.
std::size_t DecodificaUtf8(std::string_view s, std::size_t i, char32_t& c) {
    const auto b0 = static_cast<unsigned char>(s[i]);
    std::size_t n;
    char32_t minimo;
    if (b0 < 0x80) {
        c = b0;
        return 1;
    } else if (b0 >= 0xC2 && b0 <= 0xDF) {
        n = 2, minimo = 0x80, c = b0 & 0x1F;
    } else if (b0 >= 0xE0 && b0 <= 0xEF) {
        n = 3, minimo = 0x800, c = b0 & 0x0F;
    } else if (b0 >= 0xF0 && b0 <= 0xF4) {
        n = 4, minimo = 0x10000, c = b0 & 0x07;
    } else {
        return 0;
    }
    if (i + n > s.size()) return 0;
    for (std::size_t k = 1; k < n; ++k) {
        const auto b = static_cast<unsigned char>(s[i + k]);
        if ((b & 0xC0) != 0x80) return 0;
        c = (c << 6) | (b & 0x3F);
    }
    if (c < minimo || c > 0x10FFFF || (c >= 0xD800 && c <= 0xDFFF)) return 0;
    return n;
}

} // namespace

std::string ParaCp1252(std::string_view utf8) {
    std::string saida;
    saida.reserve(utf8.size());
    for (std::size_t i = 0; i < utf8.size();) {
        char32_t c = 0;
        const std::size_t n = DecodificaUtf8(utf8, i, c);
        if (n == 0) {
            saida += '?';
            ++i;
        } else {
            saida += ByteDoCaractere(c);
            i += n;
        }
    }
    return saida;
}

std::string DeCp1252(std::string_view bytes) {
    // Most items are plain ASCII, the same bytes in both: copied whole up to
    // the first byte that isn't.
    std::size_t ascii = 0;
    while (ascii < bytes.size() && static_cast<unsigned char>(bytes[ascii]) < 0x80) ++ascii;
    std::string saida;
    saida.reserve(bytes.size() + (bytes.size() - ascii) / 2);
    saida.append(bytes.data(), ascii);
    for (char b : bytes.substr(ascii))
        AcrescentaUtf8(saida, CaractereDoByte(static_cast<unsigned char>(b)));
    return saida;
}

} // namespace tramelo
