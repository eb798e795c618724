#include "document/janela.h"

#include "document/campos.h"
#include "document/frm_calc_tramelo.h"
#include "base/barras.h"
#include "base/mod_base.h"
#include "sizing/catalogo.h"

#include <memory>

namespace tramelo {

void Form_Load(FrmCalcTramelo& f) {
    if (!f.Relatorio) f.Relatorio = std::make_unique<FrmRelatorio>();
    f.Relatorio->Hide();

    const Catalogo& c = catalogo();
    for (int i = 2; i <= 30; ++i)
        if (Rotulo* l = f.lblDados(i)) l->Caption = c.NomeDados[static_cast<size_t>(i)];

    // Nothing but the three selections can be touched yet.
    Lista(f, false);

    for (int i = 1; i <= 2; ++i)
        f.cboTramelo.AddItem(c.NomePlacas[static_cast<size_t>(i)]);
    for (int i = 1; i <= 3; ++i)
        f.cboFluido.AddItem(c.NomeFluidos[static_cast<size_t>(i)]);
    // "Pipe Taps", the fifth, is deliberately not offered.
    for (int i = 1; i <= 4; ++i)
        f.cboTomada.AddItem(c.NomeTomadas[static_cast<size_t>(i)]);

    PreencheEscalas(f);
    f.cboMassaDensidade.DefineListIndex(0);

    // Undoes what the click handling of the lists set.
    f.DefineAlterado(false);
    Atualiza(f);
}

void Form_Activate(FrmCalcTramelo& f) {
    Atualiza(f);
    ConfereCabecalho(f);
}

void Form_Deactivate(const FrmCalcTramelo&) {
    MdiMenu& m = mdiMenu();
    if (!m.mostrado) return;
    m.tbCalculo.Habilita("Calcular", false);
    m.tbCalculo.Habilita("Calculadora", false);
    m.tbPadrao.Habilita("Salvar", false);
}

void Atualiza(FrmCalcTramelo& f) {
    if (!f.Caption.empty()) {
        // Folder and caption make the file name, not the other way round: a
        // file opened elsewhere is saved into the "Saves" folder.
        f.ArquivoCalculo = modBase().PastaSaves + "/" + f.Caption;
        f.Caption = f.ArquivoCalculo.substr(f.ArquivoCalculo.rfind('/') + 1);
    }
    AtualizaBarra(f);
}

void ConfereCabecalho(FrmCalcTramelo& f) {
    if (!f.Relatorio) return;
    FrmRelatorio& r = *f.Relatorio;
    if (r.txtData == MarcaAbrindo) return;
    if (r.txtData != f.TextoData || r.txtOS != f.TextoOS || r.txtCliente != f.TextoCliente) {
        f.TextoData = r.txtData;
        f.TextoOS = r.txtOS;
        f.TextoCliente = r.txtCliente;
        f.DefineAlterado(true);
    }
}

} // namespace tramelo
