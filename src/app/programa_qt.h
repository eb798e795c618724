// The desktop program: the platform services installed for the core, the
// main window, and its start. Tests and the screenshot tool build the same
// program with their own scripted services.
#pragma once

#include <memory>

namespace tramelo {

class MdiMenuView;
class CaixasQt;
class DialogosQt;
class SistemaQt;

class ProgramaQt {
  public:
    // With `servicosDoUsuario` false the caller installs its own message
    // boxes and dialogs (tests); events, pointer and the shell are the real ones.
    explicit ProgramaQt(bool servicosDoUsuario = true);
    ~ProgramaQt();

    MdiMenuView& janela() { return *janela_; }
    // Shows the main window and opens "Cálculo 1".
    void Inicia();

  private:
    std::unique_ptr<CaixasQt> caixas_;
    std::unique_ptr<DialogosQt> dialogos_;
    std::unique_ptr<SistemaQt> sistema_;
    std::unique_ptr<MdiMenuView> janela_;
};

// main(): the Qt application around the program.
int ExecutaPrograma(int argc, char** argv);

} // namespace tramelo
