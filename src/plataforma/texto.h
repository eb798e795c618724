// Text measured in characters. Strings are UTF-8 inside the program, but every
// length the report layout depends on counts characters, as the user sees
// them: "Pressão diferencial" has 19.
#pragma once

#include <string>
#include <string_view>

namespace tramelo {

// Number of characters (code points) in a UTF-8 string.
int Len(std::string_view s);

// The first n characters.
std::string Left(std::string_view s, int n);

// From character `inicio` (counted from 1) to the end, or `n` characters.
std::string Mid(std::string_view s, int inicio);
// The same, as a view of s: nothing copied.
std::string_view MidVista(std::string_view s, int inicio);
std::string Mid(std::string_view s, int inicio, int n);

// n copies of the first character of c. A negative count is failure 5.
std::string String(int n, std::string_view c);

// Position (from 1) of the first `procura` at or after character `inicio`, 0 if none.
int InStr(int inicio, std::string_view s, std::string_view procura);

// Nothing but blanks and tabs, or nothing at all: a field left empty.
bool EmBranco(std::string_view s);

// Lower-cases the letters of the Latin-1 range, as the platform's LCase.
std::string LCase(std::string_view s);

} // namespace tramelo
