// A desktop of its own for the real program: an X server, a session bus with
// the accessibility bus, a window manager, and fresh home, data, settings and
// runtime folders, so a run never meets the user's own Tramelo. Everything is
// driven with X events (xdotool) and read back through the accessibility tree.
#pragma once

#include <sys/types.h>

#include <optional>
#include <string>
#include <vector>

namespace tramelo::teste {

// One object of the accessibility tree, with its place on the screen.
struct No {
    int nivel = 0;
    std::string papel, nome, texto;
    int x = 0, y = 0, w = 0, h = 0;
    bool visivel = false, ativo = false, focado = false, marcado = false;
    int cx() const { return x + w / 2; }
    int cy() const { return y + h / 2; }
};

class SessaoX {
  public:
    // `programa` is copied into the session's own folder and run from there,
    // so its data folder beside it is fresh too.
    explicit SessaoX(const std::string& programa, const std::string& dicas = "");
    ~SessaoX();
    SessaoX(const SessaoX&) = delete;
    SessaoX& operator=(const SessaoX&) = delete;

    const std::string& pasta() const { return raiz_; }
    std::string Caminho(const std::string& nome) const { return raiz_ + "/" + nome; }

    // Starts the program with these arguments and waits for its main window.
    bool Inicia(const std::vector<std::string>& argumentos = {}, int ms = 20000);
    bool Vivo();
    // Waits for the program to end; its exit status, or -1 still running,
    // or 128 + signal for a signal.
    int Espera(int ms);
    // Ends the program (SIGKILL) if it still runs.
    void Mata();
    // Sends the program a signal, as a terminal or the system does.
    void Sinaliza(int sinal);
    std::string Saida() const; // what it wrote on standard error

    std::vector<No> Arvore() const;
    std::optional<No> Acha(const std::string& papel, const std::string& nome) const;
    // Polls the tree until the object is there (or gone).
    std::optional<No> Espera(const std::string& papel, const std::string& nome, int ms) const;
    bool EsperaSumir(const std::string& papel, const std::string& nome, int ms) const;

    void Clica(int x, int y, int botao = 1) const;
    void DuploClique(int x, int y) const;
    // xdotool key names: "ctrl+a", "Escape", "KP_Divide", "alt+j".
    void Tecla(const std::string& teclas) const;
    void Digita(const std::string& texto) const;
    void Pausa(int ms) const;
    std::string AreaDeTransferencia() const;
    void Captura(const std::string& png) const;
    // Runs a command in the session's environment; its standard output.
    std::string Comando(const std::string& linha) const;

  private:
    pid_t Lanca(const std::vector<std::string>& argv, int fdSaida, const std::string& log);

    std::string raiz_, programa_, display_;
    pid_t xvfb_ = -1, dbus_ = -1, a11y_ = -1, wm_ = -1, app_ = -1;
    int statusApp_ = -1;
};

} // namespace tramelo::teste
