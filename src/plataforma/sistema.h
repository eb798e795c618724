// What the program asks of the desktop around it: run pending events, the
// mouse pointer, and opening a file, a folder or a link with the program the
// desktop associates with it.
#pragma once

#include <string>
#include <vector>

namespace tramelo {

enum PonteiroMouse : int { vbDefault = 0, vbHourglass = 11 };

class Sistema {
public:
    virtual ~Sistema() = default;
    virtual void DoEvents() = 0;
    virtual void MousePointer(int forma) = 0;
    // Opens a file, a folder or an address; false when nothing could open it.
    virtual bool Abre(const std::string& caminho) = 0;
    // Runs a program of the desktop's (a cache tool) and waits for it; false
    // when the platform has no way to, and the caller runs it itself.
    virtual bool Executa(const std::string&, const std::vector<std::string>&) { return false; }
    // Ends the process at once, as a second start does once it has handed
    // its file over; false when the platform leaves that to the caller.
    virtual bool Encerra() { return false; }
};

} // namespace tramelo
