#include "sessao_x.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <thread>

#ifndef TRAMELO_ARVORE_PY
#define TRAMELO_ARVORE_PY "arvore.py"
#endif

namespace tramelo::teste {
namespace fs = std::filesystem;
namespace {

// The first line a child writes to the pipe: a display number, a bus address.
// Empty if the child ends without one.
std::string LeLinha(int fd) {
    std::string s;
    char c;
    while (read(fd, &c, 1) == 1 && c != '\n') s += c;
    return s;
}

void Encerra(pid_t& pid, int sinal = SIGTERM) {
    if (pid <= 0) return;
    kill(-pid, sinal);
    for (int i = 0; i < 50; ++i) {
        if (waitpid(pid, nullptr, WNOHANG) != 0) {
            pid = -1;
            return;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    kill(-pid, SIGKILL);
    waitpid(pid, nullptr, 0);
    pid = -1;
}

std::string Aspas(const std::string& s) {
    std::string r = "'";
    for (char c : s) r += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return r + "'";
}

} // namespace

pid_t SessaoX::Lanca(const std::vector<std::string>& argv, int fdSaida, const std::string& log) {
    const pid_t pid = fork();
    if (pid < 0) throw std::runtime_error("fork");
    if (pid == 0) {
        setpgid(0, 0);
        const int nulo = open("/dev/null", O_RDONLY);
        dup2(nulo, 0);
        const int f = open(log.empty() ? "/dev/null" : log.c_str(), O_WRONLY | O_CREAT | O_APPEND, 0644);
        dup2(f, 1);
        dup2(f, 2);
        if (fdSaida >= 0) {
            // The descriptor the child writes its address or display to.
            dup2(fdSaida, 3);
        }
        std::vector<char*> a;
        for (const std::string& s : argv) a.push_back(const_cast<char*>(s.c_str()));
        a.push_back(nullptr);
        execvp(a[0], a.data());
        _exit(127);
    }
    setpgid(pid, pid);
    return pid;
}

SessaoX::SessaoX(const std::string& programa, const std::string& dicas) {
    std::string modelo = (fs::temp_directory_path() / "tramelo-x-XXXXXX").string();
    if (!mkdtemp(modelo.data())) throw std::runtime_error("mkdtemp");
    raiz_ = modelo;
    for (const char* d : {"home", "config", "data", "runtime", "bin", "arquivos"})
        fs::create_directories(raiz_ + "/" + d);
    chmod((raiz_ + "/runtime").c_str(), 0700);
    programa_ = raiz_ + "/bin/Tramelo";
    fs::copy_file(programa, programa_);
    if (!dicas.empty() && fs::exists(dicas)) fs::copy_file(dicas, raiz_ + "/bin/DicaDoDia.txt");

    // The session's environment, inherited by everything started from here.
    setenv("HOME", (raiz_ + "/home").c_str(), 1);
    setenv("XDG_CONFIG_HOME", (raiz_ + "/config").c_str(), 1);
    setenv("XDG_DATA_HOME", (raiz_ + "/data").c_str(), 1);
    setenv("XDG_RUNTIME_DIR", (raiz_ + "/runtime").c_str(), 1);
    setenv("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1", 1);
    setenv("NO_AT_BRIDGE", "0", 1);
    unsetenv("QT_QPA_PLATFORM");
    unsetenv("SESSION_MANAGER");

    // A display number the server picks itself, free on this machine.
    int p[2];
    if (pipe(p) != 0) throw std::runtime_error("pipe");
    xvfb_ = Lanca({"Xvfb", "-displayfd", "3", "-screen", "0", "1280x1024x24", "-nolisten", "tcp",
                   "-noreset"},
                  p[1], Caminho("xvfb.log"));
    close(p[1]);
    const std::string numero = LeLinha(p[0]);
    close(p[0]);
    if (numero.empty()) throw std::runtime_error("Xvfb did not start");
    display_ = ":" + numero;
    setenv("DISPLAY", display_.c_str(), 1);

    if (pipe(p) != 0) throw std::runtime_error("pipe");
    dbus_ = Lanca({"dbus-daemon", "--session", "--nofork", "--nopidfile", "--print-address=3"},
                  p[1], Caminho("dbus.log"));
    close(p[1]);
    const std::string endereco = LeLinha(p[0]);
    close(p[0]);
    if (endereco.empty()) throw std::runtime_error("dbus-daemon did not start");
    setenv("DBUS_SESSION_BUS_ADDRESS", endereco.c_str(), 1);

    a11y_ = Lanca({"/usr/libexec/at-spi-bus-launcher", "--launch-immediately"}, -1,
                  Caminho("a11y.log"));
    wm_ = Lanca({"openbox", "--sm-disable"}, -1, Caminho("openbox.log"));
    // The window manager and the accessibility bus are up when they answer.
    for (int i = 0; i < 100; ++i, Pausa(50))
        if (Comando("xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null").find("window id") !=
            std::string::npos)
            break;
    Pausa(300);
}

SessaoX::~SessaoX() {
    Encerra(app_, SIGKILL);
    Encerra(wm_);
    Encerra(a11y_);
    Encerra(dbus_);
    Encerra(xvfb_);
    if (!std::getenv("TRAMELO_JORNADA_GUARDA")) {
        std::error_code ec;
        fs::remove_all(raiz_, ec);
    }
}

bool SessaoX::Inicia(const std::vector<std::string>& argumentos, int ms) {
    std::vector<std::string> argv{programa_};
    argv.insert(argv.end(), argumentos.begin(), argumentos.end());
    statusApp_ = -1;
    app_ = Lanca(argv, -1, Caminho("programa.log"));
    return Espera("frame", "Tramelo", ms).has_value();
}

bool SessaoX::Vivo() {
    return Espera(0) == -1;
}

int SessaoX::Espera(int ms) {
    if (app_ <= 0) return statusApp_;
    const auto fim = std::chrono::steady_clock::now() + std::chrono::milliseconds(ms);
    for (;;) {
        int st = 0;
        if (waitpid(app_, &st, WNOHANG) == app_) {
            app_ = -1;
            statusApp_ = WIFEXITED(st) ? WEXITSTATUS(st) : 128 + WTERMSIG(st);
            return statusApp_;
        }
        if (std::chrono::steady_clock::now() >= fim) return -1;
        Pausa(20);
    }
}

void SessaoX::Mata() {
    Encerra(app_, SIGKILL);
}

void SessaoX::Sinaliza(int sinal) {
    if (app_ > 0) kill(app_, sinal);
}

std::string SessaoX::Saida() const {
    std::ifstream f(Caminho("programa.log"));
    std::stringstream s;
    s << f.rdbuf();
    return s.str();
}

std::string SessaoX::Comando(const std::string& linha) const {
    std::string saida;
    if (FILE* f = popen(linha.c_str(), "r")) {
        char buf[4096];
        size_t n;
        while ((n = fread(buf, 1, sizeof buf, f)) > 0) saida.append(buf, n);
        pclose(f);
    }
    return saida;
}

std::vector<No> SessaoX::Arvore() const {
    std::vector<No> nos;
    std::istringstream linhas(Comando("timeout 20 " TRAMELO_ARVORE_PY " 2>/dev/null"));
    std::string linha;
    while (std::getline(linhas, linha)) {
        std::vector<std::string> c;
        std::string campo;
        std::istringstream l(linha);
        while (std::getline(l, campo, '\t')) c.push_back(campo);
        if (c.size() < 7) continue;
        No n{std::atoi(c[0].c_str()), c[1], c[2], c.size() > 8 ? c[8] : "",
             std::atoi(c[3].c_str()), std::atoi(c[4].c_str()), std::atoi(c[5].c_str()),
             std::atoi(c[6].c_str())};
        const std::string f = c.size() > 7 ? c[7] : "";
        n.visivel = f.find('S') != std::string::npos;
        n.ativo = f.find('A') != std::string::npos;
        n.focado = f.find('F') != std::string::npos;
        n.marcado = f.find('C') != std::string::npos;
        nos.push_back(n);
    }
    return nos;
}

std::optional<No> SessaoX::Acha(const std::string& papel, const std::string& nome) const {
    for (const No& n : Arvore())
        if (n.visivel && n.papel == papel && n.nome == nome) return n;
    return std::nullopt;
}

std::optional<No> SessaoX::Espera(const std::string& papel, const std::string& nome,
                                  int ms) const {
    for (const auto fim = std::chrono::steady_clock::now() + std::chrono::milliseconds(ms);;
         Pausa(100))
        if (auto n = Acha(papel, nome); n || std::chrono::steady_clock::now() >= fim) return n;
}

bool SessaoX::EsperaSumir(const std::string& papel, const std::string& nome, int ms) const {
    for (const auto fim = std::chrono::steady_clock::now() + std::chrono::milliseconds(ms);;
         Pausa(100))
        if (!Acha(papel, nome)) return true;
        else if (std::chrono::steady_clock::now() >= fim) return false;
}

// The pointer comes from beside the point, as a hand does: a title-bar button
// takes a press only once the pointer has moved over it.
static std::string Aproxima(int x, int y) {
    return "xdotool mousemove --sync " + std::to_string(x - 20) + " " + std::to_string(y + 40) +
           " mousemove --sync " + std::to_string(x) + " " + std::to_string(y);
}

void SessaoX::Clica(int x, int y, int botao) const {
    Comando(Aproxima(x, y) + " click " + std::to_string(botao));
    Pausa(150);
}

void SessaoX::DuploClique(int x, int y) const {
    Comando(Aproxima(x, y) + " click --repeat 2 --delay 60 1");
    Pausa(250);
}

void SessaoX::Tecla(const std::string& teclas) const {
    Comando("xdotool key --delay 60 " + teclas);
    Pausa(150);
}

void SessaoX::Digita(const std::string& texto) const {
    Comando("xdotool type --delay 30 " + Aspas(texto));
    Pausa(100);
}

void SessaoX::Pausa(int ms) const {
    std::this_thread::sleep_for(std::chrono::milliseconds(ms));
}

std::string SessaoX::AreaDeTransferencia() const {
    return Comando("timeout 5 xclip -o -selection clipboard 2>/dev/null");
}

void SessaoX::Captura(const std::string& png) const {
    Comando("import -window root " + Aspas(png) + " 2>/dev/null");
}

} // namespace tramelo::teste
