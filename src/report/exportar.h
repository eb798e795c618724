// Exporting a report: the data sheet as a plain text file in the reports
// folder, then opened with the program the desktop associates with it.
#pragma once

namespace tramelo {

struct FrmRelatorio;

// "Exportar" > "Relatório...". The same text goes to a .txt and to a .doc,
// on channel 1 (Windows-1252, CR LF). A cancelled dialog is silent; other
// failures of the dialog or the file show the error box. A failure while
// writing leaves channel 1 taken, so the next export fails with 55.
//
// The making of the reports folder has no handler here: when the folder
// can't be made, Falha 76 goes out to the caller's edge, the window still
// disabled.
void mnuArquivoExportarRelatorio_Click(FrmRelatorio& r);

} // namespace tramelo
