// What the program asks of the desktop around it: run pending events, the
// mouse pointer, and opening a file, a folder or a link with the program the
// desktop associates with it.
#pragma once

#include <string>

namespace tramelo {

enum PonteiroMouse : int { vbDefault = 0, vbHourglass = 11 };

class Sistema {
public:
    virtual ~Sistema() = default;
    virtual void DoEvents() = 0;
    virtual void MousePointer(int forma) = 0;
    // Opens a file, a folder or an address; false when nothing could open it.
    virtual bool Abre(const std::string& caminho) = 0;
};

} // namespace tramelo
