// Message boxes and input boxes: what a core routine asks the user. The
// desktop shows real dialogs; tests and the command-line tool answer from a
// script.
#pragma once

#include <string>

namespace tramelo {

// Buttons, icons and answers keep the platform's numbers, which the routines
// compare against.
enum EstiloCaixa : int {
    vbOKOnly = 0,
    vbOKCancel = 1,
    vbYesNoCancel = 3,
    vbYesNo = 4,
    vbCritical = 16,
    vbQuestion = 32,
    vbExclamation = 48,
    vbInformation = 64,
};
enum RespostaCaixa : int { vbOK = 1, vbCancel = 2, vbYes = 6, vbNo = 7 };

// The title a message box gets when the caller gives none: the program's.
inline constexpr const char* TituloPrograma = "Tramelo";

class Caixas {
public:
    virtual ~Caixas() = default;
    // Shows a modal message box; `estilo` is buttons + icon. Returns the answer.
    virtual int MsgBox(const std::string& texto, int estilo, const std::string& titulo) = 0;
    // Asks for a text; cancelling gives "".
    virtual std::string InputBox(const std::string& prompt, const std::string& titulo,
                                 const std::string& padrao) = 0;
};

} // namespace tramelo
