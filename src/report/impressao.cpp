#include "report/impressao.h"

#include "plataforma/ambiente.h"
#include "plataforma/falha.h"
#include "report/frm_relatorio.h"
#include "report/graficos_verificacao.h"
#include "report/linhas_iso.h"
#include "report/linhas_verificacao.h"
#include "base/mod_base.h"

#include <new>

namespace tramelo {
namespace {

constexpr int ErroImpressora = 482;

// The print dialog's flags: no selection, information context, the device's
// own copies, no printing to a file; the set-up form on request.
constexpr int FlagsImprimir =
    cdlPDHidePrintToFile | cdlPDUseDevModeCopies | cdlPDReturnIC | cdlPDNoSelection;
constexpr int FlagsConfigurar = FlagsImprimir | cdlPDPrintSetup;
static_assert(FlagsImprimir == 0x140204 && FlagsConfigurar == 0x140244);

// Where the data sheet's columns lie, in the printer's tab columns.
constexpr int ColunaTitulo = 15;
constexpr int ColunaTexto = 9;
constexpr int ColunaCampo = 29;

Impressora& Printer() {
    Impressora* p = impressoraInstalada();
    if (!p) throw Falha(ErroImpressora);
    return *p;
}

void Linha(std::vector<PecaLinha> pecas = {}) {
    Printer().ImprimeLinha(pecas);
}

// The ISO 5167-2:2003 check under its own title, with the data sheet's
// header and the calculation's Tag and file, so that a page that comes
// apart from its sheet still tells which plate it speaks of.
void SegundaPagina(const FrmRelatorio& r) {
    Printer().NovaPagina();
    Printer().DefineFonte("Arial Black", 20, true);
    Linha();
    Linha({{ColunaTexto, TituloIso5167}});
    Linha();
    Printer().DefineFonte("Courier New", 10, false);
    Linha({{ColunaTexto, r.txtData}});
    Linha();
    Linha({{ColunaTexto, r.lblOS}, {ColunaCampo, r.txtOS}});
    Linha({{ColunaTexto, r.lblCliente}, {ColunaCampo, r.txtCliente}});
    Linha({{ColunaTexto, " Tag..............:"}, {ColunaCampo, r.Tag}});
    Linha({{ColunaTexto, " Arquivo..........:"}, {ColunaCampo, r.Arquivo}});
    Linha();
    for (const std::string& l : CorpoIso5167(*r.iso))
        Linha({{ColunaTexto, l}});
    // The rating of an existing plate made in the check's tab, with its
    // pictures where it applies.
    if (!r.verificacao || !r.pontoIso) return;
    Linha();
    for (const std::string& l : LinhasVerificacao(*r.verificacao, *r.pontoIso))
        Linha({{ColunaTexto, l}});
    if (!r.verificacao->resultado.aplicavel) return;
    Linha();
    Printer().ImprimeGraficos(
        {GraficoLimites(*r.verificacao), GraficoPressao(*r.verificacao, *r.pontoIso)}, ColunaTexto);
}

} // namespace

void Impressora::NovaPagina() {
    throw Falha(ErroImpressora);
}

void Impressora::ImprimeGraficos(const std::vector<Grafico>&, int) {
    throw Falha(ErroImpressora);
}

Impressora*& impressoraInstalada() {
    static Impressora* p = nullptr;
    return p;
}

ConfiguraDialogo& DialogoImpressao() {
    static ConfiguraDialogo d;
    return d;
}

bool MostraImpressora(bool Configurar) {
    try {
        ConfiguraDialogo& d = DialogoImpressao();
        d.Flags = Configurar ? FlagsConfigurar : FlagsImprimir;
        Dialogos* dl = ambiente().dialogos;
        if (!dl || !dl->ShowPrinter(d)) throw Falha(DialogoCancelado);
        return true;
    } catch (...) {
        return false;
    }
}

void mnuArquivoConfigurarImpressao_Click() {
    MostraImpressora(true);
}

void mnuArquivoImprimir_Click(FrmRelatorio& r) {
    if (!MostraImpressora(false)) return;

    // The only step whose failure is passed over: a printer that can't take
    // the number of copies still prints.
    try {
        Printer().DefineCopias(DialogoImpressao().Copies);
    } catch (...) {
    }

    r.Enabled = false;
    MousePointer(vbHourglass);
    try {
        Printer().DefineFonte("Arial Black", 28, true);
        Linha();
        Linha();
        Linha({{ColunaTitulo, "Data Sheet"}});
        Linha();

        Printer().DefineFonte("Courier New", 10, false);
        // lblData isn't printed, though the export writes it.
        Linha({{ColunaTexto, r.txtData}});
        Linha();
        Linha({{ColunaTexto, r.lblOS}, {ColunaCampo, r.txtOS}});
        Linha({{ColunaTexto, r.lblCliente}, {ColunaCampo, r.txtCliente}});
        Linha();
        Linha();

        Linha({{ColunaTexto, r.lblMenu}});
        for (const std::string& l : r.lstRelatorio)
            Linha({{ColunaTexto, l}});
        if (DialogoImpressao().SegundaPaginaIso && r.iso) SegundaPagina(r);

        Printer().FimDocumento();
    } catch (const Falha& f) {
        // The document begun is neither ended nor cancelled.
        r.Enabled = true;
        MousePointer(vbDefault);
        InformaErro(f);
        return;
    } catch (const std::bad_alloc&) {
        r.Enabled = true;
        MousePointer(vbDefault);
        InformaErro(Falha(FaltaMemoria));
        return;
    }
    r.Enabled = true;
    MousePointer(vbDefault);
}

} // namespace tramelo
