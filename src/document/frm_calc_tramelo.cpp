#include "document/frm_calc_tramelo.h"

#include <cstdlib>

#include "document/campos.h"
#include "document/entrada.h"
#include "document/selecoes.h"

namespace tramelo {

FrmCalcTramelo::FrmCalcTramelo() : Relatorio(std::make_unique<FrmRelatorio>()) {
    txtTag.MaxLength = 20;
    // The selections are made in order: orifice kind, fluid, tap position.
    lblFluido.Enabled = cboFluido.Enabled = false;
    lblTomada.Enabled = cboTomada.Enabled = false;
    cboMassaDensidade.AddItem("Massa Específica (Kg/m³)");
    cboMassaDensidade.AddItem("Densidade Relativa");
    linhas[0].emplace();
    linhas[1].emplace();
    for (int i : LinhasDados) {
        Linha& l = linhas[static_cast<size_t>(i)].emplace();
        l.lblDados.emplace();
        l.txtDados.emplace();
        l.txtDados->MaxLength = 20;
        bool semLista = i >= 25 && i <= 28;
        if (!semLista) l.cboDados.emplace();
    }
    // Rows 17 to 19 have their unit lists, but nobody sees them.
    for (int i = 17; i <= 19; ++i)
        cboDados(i)->Visible = false;
    txtDados(10)->Locked = true;
    txtDados(29)->Enabled = false;
    // The built order: the rows stand one below the other as designed.
    int p = 0;
    for (int i : {0, 2, 4, 5, 8, 9, 10, 12, 14, 16, 1, 17, 18, 19, 20, 25, 26, 27, 28, 29})
        linhas[static_cast<size_t>(i)]->picDados.Top = AlturaLinha * p++;

    // A change made by code runs the handling as a user's does. The record
    // can't be copied or moved, so the handlers may hold on to it.
    cboTramelo.Click = [this] { cboTramelo_Click(*this); };
    cboFluido.Click = [this] { cboFluido_Click(*this); };
    cboTomada.Click = [this] { cboTomada_Click(*this); };
    cboMassaDensidade.Click = [this] { cboMassaDensidade_Click(*this); };
    txtTag.Change = [this] { txtTag_Change(*this); };
    barraV.Change = [this] { barraV_Change(*this); };
    for (int i : LinhasDados) {
        txtDados(i)->Change = [this, i] { txtDados_Change(*this, i); };
        if (CaixaCombinacao* c = cboDados(i)) c->Click = [this, i] { cboDados_Click(*this, i); };
    }
}

void FrmCalcTramelo::DefineAlterado(bool v) {
    if (v == alterado_) return;
    alterado_ = v;
    AtualizaBarra(*this);
}

int FrmCalcTramelo::IndiceControleAtivo() const {
    for (const char* prefixo : {"txtDados(", "cboDados("}) {
        const std::string p = prefixo;
        if (foco.rfind(p, 0) == 0) return std::atoi(foco.c_str() + p.size());
    }
    return -1;
}

} // namespace tramelo
