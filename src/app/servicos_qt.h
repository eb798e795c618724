// The desktop's side of the platform services: events, pointer, opening
// files and folders, and the file dialogs.
#pragma once

#include "plataforma/dialogos.h"
#include "plataforma/sistema.h"

class QPrinter;
class QWidget;

namespace tramelo {

// The program's one printer, set up by the print dialogs and drawn on by
// the printing of a report.
QPrinter& ImpressoraDoPrograma();

class SistemaQt : public Sistema {
  public:
    void DoEvents() override;
    void MousePointer(int forma) override;
    bool Abre(const std::string& caminho) override;

  private:
    bool ocupado_ = false;
};

class DialogosQt : public Dialogos {
  public:
    explicit DialogosQt(QWidget* dono = nullptr) : dono_(dono) {}
    void DefineDono(QWidget* dono) { dono_ = dono; }
    bool ShowOpen(ConfiguraDialogo& d) override;
    bool ShowSave(ConfiguraDialogo& d) override;
    bool ShowPrinter(ConfiguraDialogo& d) override;

  private:
    bool Mostra(ConfiguraDialogo& d, bool salvar);
    QWidget* dono_;
};

} // namespace tramelo
