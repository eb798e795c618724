// The calculation window's own events: its load, its activation and
// deactivation, and Atualiza, which derives the file name from the caption and
// brings the frame's buttons in line with this window.
#pragma once

namespace tramelo {

class FrmCalcTramelo;

// Creates the hidden report, sets the row captions, disables the data list,
// fills the three selections and the unit lists, and leaves the window
// unchanged (Alterado false).
void Form_Load(FrmCalcTramelo& f);

// Atualiza, then the report's header check.
void Form_Activate(FrmCalcTramelo& f);

// The buttons that belong to an active document go off; the next window to be
// activated sets them again for itself.
void Form_Deactivate(const FrmCalcTramelo& f);

// The file name follows from the program's "Saves" folder and the caption:
// ArquivoCalculo becomes PastaSaves, "/" and the caption, and the caption
// keeps what stands behind the last "/" of it. Then the bars and the window's
// recent-files menu.
void Atualiza(FrmCalcTramelo& f);

// Text typed in the report window comes back into the document: unless the
// report was never initialised ("Abrindo"), any difference of the three header
// texts copies all three and marks the document changed.
void ConfereCabecalho(FrmCalcTramelo& f);

} // namespace tramelo
