// How the core tells the views what changed. A core routine that changes a
// record says so once the change is made, with the kind of change and the
// record; each view listens and updates only what the change touches. Nobody
// polls. The desktop applies what it was told once the current event is
// done; a routine that lets events run (a box, DoEvents) says so after them.
#pragma once

#include <vector>

namespace tramelo {

enum class Mudanca {
    CalculoAberto,  // quem: the FrmCalcTramelo just made
    CalculoFechado, // quem: the FrmCalcTramelo about to go
    FilhoAtivado,   // the active child changed; quem: null
    Calculo,        // a calculation's state (caption, rows, Salvar); quem: FrmCalcTramelo
    Relatorio,      // a report's lines, caption or visibility; quem: FrmRelatorio
    Barras,         // the frame's bars, their ticks and buttons, its enabled state
    Recentes,       // the recent-files list
};

class Observador {
  public:
    virtual ~Observador() = default;
    virtual void Mudou(Mudanca tipo, const void* quem) = 0;
};

class Notificador {
  public:
    // An observer stays until it leaves; it must leave before it dies.
    void Inscreve(Observador* o);
    void Desinscreve(Observador* o);
    // Tells every observer present when the call began and still present
    // when its turn comes, so one may leave from inside its own Mudou.
    void Notifica(Mudanca tipo, const void* quem = nullptr);

  private:
    std::vector<Observador*> observadores_; // not owned
};

// The one notifier of the program.
Notificador& notificador();

inline void Notifica(Mudanca tipo, const void* quem = nullptr) {
    notificador().Notifica(tipo, quem);
}

} // namespace tramelo
