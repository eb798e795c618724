// The common dialogs (open, save, print) as a platform service. The program
// sets them up as the routines tell, and a cancel is failure 32755.
#pragma once

#include <string>

namespace tramelo {

// Dialog flags, with the platform's numbers.
enum FlagsDialogo : int {
    cdlOFNOverwritePrompt = 0x2,
    cdlOFNHideReadOnly = 0x4,
    cdlOFNPathMustExist = 0x800,
    cdlPDNoSelection = 0x4,
    cdlPDPrintSetup = 0x40,
    cdlPDReturnIC = 0x200,
    cdlPDUseDevModeCopies = 0x40000,
    cdlPDHidePrintToFile = 0x100000,
};

struct ConfiguraDialogo {
    std::string DialogTitle;
    std::string Filter;      // "Descrição (*.ext)|*.ext|..."
    int Flags = 0;
    std::string InitDir;
    std::string FileName;    // proposed name; the chosen one on return
    int Copies = 1;          // print dialog: the copies chosen
    bool SegundaPaginaIso = false; // print dialog: the ISO 5167-2 check on a second page
};

class Dialogos {
public:
    virtual ~Dialogos() = default;
    // Each returns true on the user's confirmation and fills FileName (or
    // Copies); false when the user cancelled.
    virtual bool ShowOpen(ConfiguraDialogo& d) = 0;
    virtual bool ShowSave(ConfiguraDialogo& d) = 0;
    virtual bool ShowPrinter(ConfiguraDialogo& d) = 0;
};

} // namespace tramelo
