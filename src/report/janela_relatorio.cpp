#include "report/janela_relatorio.h"

#include "report/frm_relatorio.h"
#include "base/barras.h"

namespace tramelo {

void Relatorio_Activate(FrmRelatorio& r) {
    MdiMenu& m = mdiMenu();
    if (m.mostrado) {
        m.tbCalculo.Habilita("Imprimir", true);
        m.tbCalculo.Habilita("Exportar", true);
    }
    r.mnuExibirStatusBar.Checked = m.sbStatusBar.Visible;
    r.mnuExibirBarraPadrao.Checked = m.cobBarra.Bands(1).Visible;
    r.mnuExibirBarraCalculo.Checked = m.cobBarra.Bands(2).Visible;
}

void Relatorio_Deactivate(FrmRelatorio&) {
    MdiMenu& m = mdiMenu();
    if (!m.mostrado) return;
    m.tbCalculo.Habilita("Imprimir", false);
    m.tbCalculo.Habilita("Exportar", false);
}

void Relatorio_Unload(FrmRelatorio& r) {
    // Nothing is left to print or export once the report is gone.
    Relatorio_Deactivate(r);
    r.Hide();
}

bool Relatorio_QueryUnload(FrmRelatorio& r, bool fechadoPeloUsuario) {
    if (!fechadoPeloUsuario) return false;
    r.Hide();
    return true;
}

} // namespace tramelo
