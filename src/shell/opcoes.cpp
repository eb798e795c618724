#include "shell/opcoes.h"

#include "base/barras.h"
#include "shell/registro.h"

namespace tramelo {

FrmOpcao::FrmOpcao() {
    chkOpcao[0].Caption = "Barra de Ferramentas Botões Padrão";
    chkOpcao[1].Caption = "Barra de Ferramentas de Cálculo";
    chkOpcao[2].Caption = "Nome dos botões das Barras de Ferramentas";
    chkOpcao[3].Caption = "Barra de Status";
    chkOpcao[4].Caption = "Verificar se os arqivos '.trl' estão associados a este programa";
    chkOpcao[5].Caption = "&Mostrar dicas ao iniciar";
}

void Form_Load(FrmOpcao& f) {
    f.Carregado = true;
    f.Carregando = true;
    // The settings take the screen's truth, whatever an earlier apply wrote.
    const MdiMenu& m = mdiMenu();
    auto texto = [](bool b) { return std::string(b ? "True" : "False"); };
    GravaConfig("Config", "Barra0", texto(m.mnuExibirBarraPadrao.Checked));
    GravaConfig("Config", "Barra1", texto(m.mnuExibirBarraCalculo.Checked));
    GravaConfig("Config", "Barra2", texto(m.mnuExibirEtiqueta.Checked));
    GravaConfig("Config", "Barra3", texto(m.mnuExibirStatusBar.Checked));
    for (size_t i = 0; i < OpcoesArmazenadas.size(); ++i) {
        const OpcaoArmazenada& o = OpcoesArmazenadas[i];
        if (LeConfig(o.Secao, o.Valor) != o.Desligado) f.chkOpcao[i].Value = true;
    }
    f.Carregando = false;
}

void chkOpcao_Click(FrmOpcao& f, int) {
    if (f.Carregando) return;
    f.OpcaoAlterada = true;
    f.cmdApply.Enabled = true;
}

void cmdApply_Click(FrmOpcao& f) {
    for (size_t i = 0; i < OpcoesArmazenadas.size(); ++i) {
        const OpcaoArmazenada& o = OpcoesArmazenadas[i];
        GravaConfig(o.Secao, o.Valor, f.chkOpcao[i].Value ? "1" : "0");
    }
    f.cmdCancel.Caption = "Fecha&r";
    f.cmdApply.Enabled = false;
}

void cmdOK_Click(FrmOpcao& f) {
    if (f.OpcaoAlterada) cmdApply_Click(f);
    f.Carregado = false;
}

void cmdCancel_Click(FrmOpcao& f) {
    f.Carregado = false;
}

} // namespace tramelo
