// The calculation windows that are loaded, and what the desktop does for
// them: a core routine makes, shows and unloads a calculation here; the
// desktop's service puts a window on screen for it. Without a service (the
// command-line tool, tests) the records simply live in the list.
#pragma once

#include <memory>
#include <vector>

namespace tramelo {

class FrmCalcTramelo;

class JanelasCalculo {
public:
    virtual ~JanelasCalculo() = default;
    virtual void Carregada(FrmCalcTramelo& f) = 0;    // a new record: make its (hidden) window
    virtual void Mostra(FrmCalcTramelo& f) = 0;       // show it and bring it to the top
    virtual void Descarregada(const FrmCalcTramelo& f) = 0; // the record is going: drop its window
    virtual void Ocupado(const FrmCalcTramelo& f, bool ocupado) = 0; // disabled, busy pointer
    virtual void BombeiaEventos() = 0;                // let pending window events run
};

// The installed service (may be null).
JanelasCalculo*& janelasCalculo();

// The loaded calculation windows, oldest first: the "loaded forms" that the
// frame walks.
std::vector<std::unique_ptr<FrmCalcTramelo>>& Calculos();

// Makes a new record, runs its Form_Load and tells the service.
FrmCalcTramelo& CarregaCalculo();

// Unloads a record: Form_QueryUnload may refuse (false); otherwise
// Form_Unload runs and the record is destroyed.
bool DescarregaCalculo(FrmCalcTramelo& f);

// The program's exit: every calculation is asked first (its query-unload),
// and only when none refuses are they all unloaded. False when one refused.
bool DescarregaTodosCalculos();

} // namespace tramelo
