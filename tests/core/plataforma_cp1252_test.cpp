// The code page of the files: every byte has a character and comes back.
#include "plataforma/cp1252.h"

#include <gtest/gtest.h>

#include <string>

namespace tramelo {
namespace {

std::string Byte(int b) {
    return std::string(1, static_cast<char>(b));
}

TEST(PlataformaCp1252, CadaByteVoltaIgual) {
    std::string todos;
    for (int b = 0; b <= 0xFF; ++b) {
        SCOPED_TRACE(b);
        const std::string texto = DeCp1252(Byte(b));
        EXPECT_EQ(ParaCp1252(texto), Byte(b));
        // Below 0x80 the text is the byte itself; above, a character of two or three bytes.
        EXPECT_EQ(texto.size() == 1, b < 0x80);
        todos += Byte(b);
    }
    EXPECT_EQ(ParaCp1252(DeCp1252(todos)), todos);
}

TEST(PlataformaCp1252, CaracteresDaPagina) {
    struct Caso {
        int byte;
        const char* utf8;
    };
    const Caso casos[] = {
        {0x41, "A"},      {0x80, "€"},      {0x81, "\u0081"}, // the five undefined bytes: their own
                                                              // control characters
        {0x8D, "\u008D"}, {0x8F, "\u008F"}, {0x90, "\u0090"}, {0x9D, "\u009D"}, {0x82, "‚"},
        {0x8A, "Š"},      {0x93, "“"},      {0x96, "–"},      {0x99, "™"},      {0x9F, "Ÿ"},
        {0xA0, "\u00A0"}, {0xAA, "ª"},      {0xB2, "²"},      {0xBA, "º"},      {0xC1, "Á"},
        {0xC7, "Ç"},      {0xE3, "ã"},      {0xFC, "ü"},      {0xFF, "ÿ"},
    };
    for (const Caso& c : casos) {
        SCOPED_TRACE(c.byte);
        EXPECT_EQ(DeCp1252(Byte(c.byte)), c.utf8);
        EXPECT_EQ(ParaCp1252(c.utf8), Byte(c.byte));
    }
    EXPECT_EQ(ParaCp1252(std::string("a\0b", 3)), std::string("a\0b", 3));
    EXPECT_EQ(ParaCp1252("Água (Liqüido)"), "\xC1gua (Liq\xFCido)");
    EXPECT_EQ(DeCp1252("M\xB3/h, Kg/cm\xB2, \xBA"
                       "C"),
              "M³/h, Kg/cm², ºC");
}

TEST(PlataformaCp1252, ForaDaPaginaEUtf8Invalido) {
    struct Caso {
        std::string utf8;
        std::string bytes;
    };
    const Caso casos[] = {
        {"ā", "?"},         // Latin Extended-A, not in the page
        {"x → y", "x ? y"}, // arrow
        {"Ω=1", "?=1"},     // Greek
        {"😀!", "?!"},       // four-byte sequence, one character
        {"\u0080", "?"},    // a C1 control whose byte means "€"
        {"\u0085", "?"},    // idem, "…"
        {"\u009F", "?"},    // idem, "Ÿ"
        {"\xC3", "?"},      // truncated at the end
        {"\xC3"
         "A",
         "?A"},                       // lead byte without continuation
        {"\x80\xBF", "??"},           // stray continuation bytes
        {"\xC0\xAF", "??"},           // overlong "/"
        {"\xE0\x80\xAF", "???"},      // overlong in three bytes
        {"\xED\xA0\x80", "???"},      // a surrogate
        {"\xF4\x90\x80\x80", "????"}, // beyond U+10FFFF
        {"\xFF"
         "a\xFE",
         "?a?"}, // bytes that never occur in UTF-8
        {"\xE2\x82"
         "x",
         "??x"}, // truncated "€"
    };
    for (const Caso& c : casos) {
        SCOPED_TRACE(c.utf8);
        EXPECT_EQ(ParaCp1252(c.utf8), c.bytes);
    }
}

} // namespace
} // namespace tramelo
