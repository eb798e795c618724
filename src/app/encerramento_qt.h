// The ways out that don't start at the program's own windows: SIGTERM, SIGHUP
// (the terminal it was started from closed), SIGINT (Ctrl+C in that
// terminal) and the end of the desktop session. All take the road of the
// main window's close: recent files, each unsaved calculation asked about,
// bars and place.
#pragma once

#include <QObject>

#include <csignal>
#include <functional>
#include <vector>

class QSessionManager;

namespace tramelo {

class EncerramentoQt : public QObject {
  public:
    // `fecha` closes the main window as its close box does, and says whether
    // it closed (a calculation may refuse). `guarda` stores what the exit
    // stores, asking nothing and unloading nothing: for a session that lets
    // no program ask.
    EncerramentoQt(std::function<bool()> fecha, std::function<void()> guarda);
    ~EncerramentoQt() override;

  private:
    void Sinal();
    void FimDaSessao(QSessionManager& sessao);

    std::function<bool()> fecha_;
    std::function<void()> guarda_;
    // What each signal did before, given back at the end.
    struct Anterior {
        int sinal;
        struct sigaction acao;
    };
    std::vector<Anterior> anteriores_;
};

} // namespace tramelo
