// The desktop program: the platform services installed for the core, the
// main window the core's bring-up loads and shows, and the program's entry.
// Tests and the tools build the same program with their own scripted boxes.
#pragma once

#include "base/pedidos.h"
#include "shell/inicio.h"

#include <QPointer>

#include <memory>

namespace tramelo {

class MdiMenuView;
class CaixasQt;
class DialogosQt;
class SistemaQt;
class LigacaoQt;
class AberturaQt;
class PropriedadesView;

class ProgramaQt : public TelaMenu, public PedidosDesktop {
  public:
    // With `servicosDoUsuario` false the caller installs its own message
    // boxes and dialogs, and no link to other instances is made (tests).
    explicit ProgramaQt(bool servicosDoUsuario = true);
    ~ProgramaQt() override;

    MdiMenuView& janela() { return *janela_; }
    // The entry routine: a second start hands its command line over and
    // returns false; the first brings the program up and returns true.
    bool Inicia();
    // The main window closed as by its close box; false when a calculation
    // kept it open.
    bool Fecha();

    // TelaMenu: the main window for the core's bring-up and shutdown.
    void Carrega() override;
    void Mostra() override;
    bool Visivel() override;
    void AplicaEstado() override;
    void GuardaLugar() override;
    void DescarregaOutras() override;

    // PedidosDesktop: the windows the core asks for.
    void AbreCalculadora(FrmCalcTramelo& f, int indice) override;
    void ImprimeRelatorio(FrmRelatorio& r) override;
    void ExportaRelatorio(FrmRelatorio& r) override;
    void MostraDicas() override;
    void Sai() override;

    // The water and steam window, one at a time, serving the active
    // calculation; opened again, it comes to the front.
    void AbrePropriedades();

  private:
    std::unique_ptr<CaixasQt> caixas_;
    std::unique_ptr<DialogosQt> dialogos_;
    std::unique_ptr<SistemaQt> sistema_;
    std::unique_ptr<LigacaoQt> ligacao_;
    std::unique_ptr<AberturaQt> abertura_;
    std::unique_ptr<MdiMenuView> janela_;
    QPointer<PropriedadesView> propriedades_; // owned by the main window
};

// main(): the Qt application around the program.
int ExecutaPrograma(int argc, char** argv);

} // namespace tramelo
