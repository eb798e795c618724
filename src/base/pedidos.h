// What a core routine asks of the desktop that only a desktop can do: a
// window of its own (the calculator, the tips, the print and export dialogs)
// or the end of the program. The desktop installs itself; without it (the
// command-line tool, the core tests) each request is passed over.
#pragma once

namespace tramelo {

class FrmCalcTramelo;
struct FrmRelatorio;

class PedidosDesktop {
  public:
    virtual ~PedidosDesktop() = default;
    virtual void AbreCalculadora(FrmCalcTramelo& f, int indice) = 0;
    virtual void ImprimeRelatorio(FrmRelatorio& r) = 0;
    virtual void ExportaRelatorio(FrmRelatorio& r) = 0;
    virtual void MostraDicas() = 0;
    virtual void Sai() = 0;
};

// The installed desktop, or null. Not owned: the desktop removes itself.
PedidosDesktop*& pedidosDesktop();

} // namespace tramelo
