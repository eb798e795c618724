#include "shell/abertura.h"

#include "plataforma/ambiente.h"
#include "plataforma/caixas.h"
#include "shell/entrada.h"
#include "base/mod_base.h"

namespace tramelo {

FrmAbertura& frmAbertura() {
    static FrmAbertura f;
    return f;
}

TelaAbertura*& telaAbertura() {
    static TelaAbertura* t = nullptr;
    return t;
}

void FrmAbertura_Load(FrmAbertura& f) {
    f.Carregado = true;
    f.lblVersion = "Versão " + std::to_string(VersaoMaior) + "." + std::to_string(VersaoMenor) +
                   "." + std::to_string(Revisao);
    f.lblProductName = {TituloPrograma, TituloPrograma};
    f.lblPlatform = TextoPlataformaAbertura;
    f.tmrLogin.Enabled = true;
    if (TelaAbertura* t = telaAbertura()) t->Carregada(f);
}

void tmrLogin_Timer(FrmAbertura& f) {
    f.tmrLogin.Enabled = false;
    f.Carregado = false;
    if (TelaAbertura* t = telaAbertura()) t->Descarregada(f);
}

void FrmAbertura_LinkExecute(const std::string& CmdStr) {
    modBase().ArquivoInicial = CmdStr;
}

FrmSobre::FrmSobre() {
    lblWindows = TextoPlataformaSobre;
    lblLink[0] = {240,
                  3000,
                  3735,
                  195,
                  std::string("E-mail: ") + EnderecoEmail,
                  std::string("mailto:") + EnderecoEmail,
                  false};
    lblLink[1] = {240,          3240, 3735, 195, std::string("Internet: ") + EnderecoSite,
                  EnderecoSite, false};
    picPosLink[0].ToolTipText = "Clique aqui para enviar um E-mail";
    picPosLink[1].ToolTipText = "Clique aqui para entrar no site";
}

void FrmSobre_Load(FrmSobre& f) {
    for (int i = 0; i < 2; ++i) {
        const RotuloLink& l = f.lblLink[static_cast<size_t>(i)];
        CaixaPosicao& p = f.picPosLink[static_cast<size_t>(i)];
        p.Left = l.Left;
        p.Top = l.Top;
        p.Width = l.Width;
        p.Height = l.Height;
    }
    f.Caption = std::string("Sobre o ") + TituloPrograma;
    f.lblTitulo = TituloPrograma;
    // Not the splash's form of the version: this one names the revision.
    f.lblVersao = "Versão " + std::to_string(VersaoMaior) + "." + std::to_string(VersaoMenor) +
                  " - Revisão " + std::to_string(Revisao);
    f.lblAviso = "Aviso: este programa de computador é protegido pelas leis de direitos "
                 "autorais e tratados internacionais. A reprodução ou distribuição não "
                 "autorizada deste programa, ou de qualquer parte dele, poderá resultar em "
                 "severas punições civis e criminais.";
    MousePointer(vbDefault);
    f.Enabled = true;
}

void tmrSublinha_Timer(FrmSobre& f, Ponto cursor, const std::array<Retangulo, 2>& caixas) {
    for (size_t i = 0; i < 2; ++i) {
        const Retangulo& r = caixas[i];
        const bool dentro =
            r.Left < cursor.x && cursor.x < r.Right && r.Top < cursor.y && cursor.y < r.Bottom;
        f.lblLink[i].Underline = dentro;
    }
}

void lblLink_Click(FrmSobre& f, int Index) {
    try {
        std::string endereco = f.lblLink.at(static_cast<size_t>(Index)).Tag;
        if (Index == 0) endereco += "?Subject=" + f.Caption;
        AbreNoSistema(endereco);
    } catch (...) {
    }
}

void cmdOK_Click(FrmSobre& f) {
    f.tmrSublinha.Enabled = false;
    f.Carregado = false;
}

} // namespace tramelo
