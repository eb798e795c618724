// The desktop's side of the platform services: events, pointer, opening
// files and folders, and the file dialogs.
#pragma once

#include "plataforma/dialogos.h"
#include "plataforma/sistema.h"

class QPrinter;
class QUrl;
class QWidget;

namespace tramelo {

// The program's one printer, set up by the print dialogs and drawn on by
// the printing of a report.
QPrinter& ImpressoraDoPrograma();

// What the desktop is asked to open for a path or an address: an address
// with its scheme as it stands, a path as a local file.
QUrl EnderecoParaUrl(const std::string& caminho);

class SistemaQt : public Sistema {
  public:
    void DoEvents() override;
    void MousePointer(int forma) override;
    bool Abre(const std::string& caminho) override;
    bool Executa(const std::string& programa, const std::vector<std::string>& argumentos) override;
    // A second start is over once it has handed its file: the program
    // returns from its entry instead of leaving from inside it.
    bool Encerra() override {
        encerrado = true;
        return true;
    }
    bool encerrado = false;

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
