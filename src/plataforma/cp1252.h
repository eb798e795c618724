// The 8-bit code page of the calculation files and the other texts the
// program reads and writes: Windows-1252. Strings are UTF-8 in memory and
// become these bytes only at the file's edge.
#pragma once

#include <string>
#include <string_view>

namespace tramelo {

// UTF-8 to Windows-1252 bytes, one byte per character. A character the code
// page hasn't got is written as "?", and so is every byte of ill-formed UTF-8
// that doesn't begin a well-formed sequence (a stray continuation byte, a
// truncated or overlong sequence, a surrogate, anything past U+10FFFF).
// The five bytes the code page leaves undefined (81, 8D, 8F, 90, 9D) stand
// for the control characters of the same value, so U+0081 gives 0x81 back.
std::string ParaCp1252(std::string_view utf8);

// Windows-1252 bytes to UTF-8. Every byte has a character, the five
// undefined ones their control characters, so any file read and written
// again keeps its bytes.
std::string DeCp1252(std::string_view bytes);

} // namespace tramelo
