// Message boxes and input boxes on the desktop, in Portuguese.
#pragma once

#include "plataforma/caixas.h"

class QWidget;

namespace tramelo {

class CaixasQt : public Caixas {
  public:
    // Boxes are centred on `dono` (the main window), when given.
    explicit CaixasQt(QWidget* dono = nullptr) : dono_(dono) {}
    void DefineDono(QWidget* dono) { dono_ = dono; }

    int MsgBox(const std::string& texto, int estilo, const std::string& titulo) override;
    std::string InputBox(const std::string& prompt, const std::string& titulo,
                         const std::string& padrao) override;
    // How many boxes have been shown so far: a window can tell that one of
    // its handlers showed one, whatever order the focus events come in.
    static int Mostradas();

  private:
    QWidget* dono_;
};

} // namespace tramelo
