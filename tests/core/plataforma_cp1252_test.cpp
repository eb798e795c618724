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

TEST(PlataformaCp1252, ForaDaPaginaEUtf8Invalido) {
    struct Caso {
        std::string utf8;
        std::string bytes;
    };
    const Caso casos[] = {
        {"ā", "?"},         // Latin Extended-A, not in the page
        {"\u07FF", "?"},    // the last two-byte character
        {"Ω=1", "?=1"},     // Greek
        {"😀!", "?!"},       // four-byte sequence, one character
        {"\u0080", "?"},    // a C1 control whose byte means "€"
        {"\xC3", "?"},      // truncated at the end
        {"\xC3"
         "A",
         "?A"},                       // lead byte without continuation
        {"\x80\xBF", "??"},           // stray continuation bytes
        {"\xC0\xAF", "??"},           // overlong "/"
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
