// Printing a report as a data sheet, through the printer as a platform
// service: a flow of text lines with tab columns, drawn by the printer's own
// cursor, the page advancing by itself at the bottom.
#pragma once

#include "plataforma/dialogos.h"
#include "report/grafico.h"

#include <string>
#include <vector>

namespace tramelo {

struct FrmRelatorio;

// One piece of a printed line: Tab(coluna), then the text. Column n lies
// n - 1 average character widths of the current font from the printable left
// edge; a piece whose column is already passed starts a new line there.
struct PecaLinha {
    int coluna = 1;
    std::string texto;
    bool operator==(const PecaLinha&) const = default;
};

// The printer object. Every operation fails with a Falha (482 "Erro de
// impressora" unless the printer has its own number); the document begins
// with the first output and stays open until FimDocumento.
class Impressora {
  public:
    virtual ~Impressora() = default;
    // Printer.Copies; a printer may refuse the number.
    virtual void DefineCopias(int copias) = 0;
    virtual void DefineFonte(const std::string& nome, int tamanho, bool negrito) = 0;
    // Printer.Print with its pieces; no pieces is an empty line, one line
    // high in the current font.
    virtual void ImprimeLinha(const std::vector<PecaLinha>& pecas) = 0;
    // NewPage: what follows begins at the top of a new sheet. A printer
    // that has no pages of its own fails.
    virtual void NovaPagina();
    // Pictures side by side in one band, from the tab column to the right
    // edge, below the last line; on a new sheet when the band doesn't fit.
    // A printer that draws only text fails.
    virtual void ImprimeGraficos(const std::vector<Grafico>& graficos, int coluna);
    // EndDoc: releases the job.
    virtual void FimDocumento() = 0;
};

// The installed printer; none: every print fails with 482.
Impressora*& impressoraInstalada();

// The print dialog's settings as the last print dialog left them (Copies).
ConfiguraDialogo& DialogoImpressao();

// The system's print dialog through Dialogos, with the print-setup form when
// Configurar. True on the user's confirmation; false on Cancel or on any
// failure, with no message.
bool MostraImpressora(bool Configurar);

// "Configurar impressão...": the set-up dialog, its answer not looked at.
void mnuArquivoConfigurarImpressao_Click();

// "Imprimir...": the report as a data sheet, with the ISO 5167-2 check on a
// second page when the print dialog asked for it. Nothing crosses out of it: a
// printer failure shows the error box.
void mnuArquivoImprimir_Click(FrmRelatorio& r);

} // namespace tramelo
