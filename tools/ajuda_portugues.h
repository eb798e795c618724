// tramelo-calc speaks Portuguese in its help and in its option errors too:
// the option parser's own words (usage line, group titles, the help flag,
// parse errors) in the user's language.
#pragma once

#include <CLI/CLI.hpp>

#include <string>

namespace tramelo {

// Call before any option is added: the group title is the options' default.
void PreparaEmPortugues(CLI::App& app);

// The parse error as one Portuguese line, without the program's name.
std::string MensagemEmPortugues(const CLI::App& app, const CLI::ParseError& erro);

} // namespace tramelo
