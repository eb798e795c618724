// Random input on the real program: clicks, double clicks and keys inside the
// main window, Escape and Enter now and then, the program started again when
// it ends. A seed gives the same events again, so a crash can be replayed.
//
//   tramelo-aleatorio [--semente N] [--segundos N] [--programa CAMINHO]
//
// Prints "eventos N, execucoes N, quedas N, travamentos N"; for a fall, the
// seed, the event's number and the last events. Exit status 1 when anything
// fell, hung, or left a settings file that doesn't read.
#include "sessao_x.h"

#include <nlohmann/json.hpp>

#include <chrono>
#include <cstdlib>
#include <deque>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <random>
#include <string>

namespace fs = std::filesystem;
using tramelo::teste::SessaoX;

namespace {

// Every settings file of the session still reads as JSON.
bool ConfiguracaoLegivel(const SessaoX& x, std::string& qual) {
    for (const char* pasta : {"config", "bin", "data"}) {
        const fs::path p = x.Caminho(pasta);
        if (!fs::exists(p)) continue;
        for (const auto& e : fs::recursive_directory_iterator(p)) {
            const std::string nome = e.path().filename().string();
            if (nome.rfind("registro-", 0) != 0 || e.path().extension() != ".json") continue;
            std::ifstream f(e.path());
            if (!nlohmann::json::accept(f)) {
                qual = e.path().string();
                return false;
            }
        }
    }
    return true;
}

const char* const Teclas[] = {
    "0", "1", "2", "5", "9", "comma", "period", "minus", "a", "e", "x", "KP_Divide",
    "KP_Multiply", "KP_Add", "KP_Subtract", "KP_Enter", "Tab", "shift+Tab", "BackSpace",
    "Delete", "Up", "Down", "Left", "Right", "Home", "End", "space", "F1", "alt+a", "alt+x",
    "alt+j", "alt+u", "ctrl+o", "ctrl+a", "ctrl+b", "ctrl+r", "ctrl+p", "ctrl+c", "ctrl+v",
    "ctrl+F4", "ctrl+F6", "alt+F4"};

} // namespace

int main(int argc, char** argv) {
    unsigned semente = 1;
    int segundos = 600;
    std::string programa = TRAMELO_PROGRAMA;
    for (int i = 1; i + 1 < argc; i += 2) {
        const std::string op = argv[i];
        if (op == "--semente") semente = static_cast<unsigned>(std::strtoul(argv[i + 1], nullptr, 10));
        else if (op == "--segundos") segundos = std::atoi(argv[i + 1]);
        else if (op == "--programa") programa = argv[i + 1];
        else {
            std::cerr << "opção desconhecida: " << op << "\n";
            return 64;
        }
    }
    // A sanitizer's report ends the program with a status of its own.
    setenv("ASAN_OPTIONS", "exitcode=86:detect_leaks=0:abort_on_error=0", 0);
    setenv("UBSAN_OPTIONS", "halt_on_error=1:exitcode=87:print_stacktrace=1", 0);

    SessaoX x(programa, TRAMELO_DICAS);
    const std::string exemplo = x.Caminho("arquivos/agua.trl");
    fs::copy_file(std::string(TRAMELO_EXEMPLOS) + "/agua.trl", exemplo);

    std::mt19937 gerador(semente);
    auto sorteia = [&](int n) { return static_cast<int>(gerador() % static_cast<unsigned>(n)); };
    std::deque<std::string> ultimos;
    long eventos = 0;
    int execucoes = 0, quedas = 0, travamentos = 0, ilegiveis = 0;
    const auto fim = std::chrono::steady_clock::now() + std::chrono::seconds(segundos);

    auto relata = [&](const std::string& oque, int status) {
        std::cout << oque << " (status " << status << ") na semente " << semente << ", evento "
                  << eventos << "; últimos eventos:\n";
        for (const std::string& e : ultimos) std::cout << "  " << e << "\n";
        // From the sanitizer's headline when there is one, else the end.
        const std::string saida = x.Saida();
        size_t de = saida.find("ERROR: AddressSanitizer");
        if (de == std::string::npos) de = saida.find("runtime error");
        if (de == std::string::npos) de = saida.size() > 4000 ? saida.size() - 4000 : 0;
        std::cout << "saída do programa:\n" << saida.substr(de, 8000) << "\n";
    };
    auto confere = [&] {
        std::string qual;
        if (!ConfiguracaoLegivel(x, qual)) {
            ++ilegiveis;
            std::cout << "configuração ilegível: " << qual << "\n";
        }
    };

    while (std::chrono::steady_clock::now() < fim) {
        fs::remove(x.Caminho("programa.log"));
        ++execucoes;
        if (!x.Inicia({exemplo}, 30000)) {
            const int st = x.Espera(0);
            if (st == -1) {
                ++travamentos;
                relata("não subiu", st);
                x.Mata();
            } else if (st != 0) {
                ++quedas;
                relata("caiu ao subir", st);
            }
            confere();
            continue;
        }
        ultimos.clear();
        // The main window's place, from the accessibility tree.
        tramelo::teste::No r;
        int status = -1;
        for (int n = 0; std::chrono::steady_clock::now() < fim; ++n) {
            if (n % 25 == 0)
                if (auto janela = x.Acha("frame", "Tramelo")) r = *janela;
            std::string evento;
            const int tipo = sorteia(100);
            const int px = r.x + 2 + sorteia(std::max(r.w - 4, 1));
            const int py = r.y + 2 + sorteia(std::max(r.h - 4, 1));
            const std::string ponto = std::to_string(px) + " " + std::to_string(py);
            if (tipo < 56) {
                const char* clique = tipo < 40 ? "click 1" : tipo < 52 ? "click --repeat 2 --delay 40 1" : "click 3";
                evento = std::string(tipo < 40 ? "clique " : tipo < 52 ? "duplo clique " : "botão direito ") + ponto;
                x.Comando("xdotool mousemove " + ponto + " " + clique);
            } else if (tipo < 63) {
                evento = "tecla Escape";
                x.Comando("xdotool key Escape");
            } else if (tipo < 70) {
                evento = "tecla Return";
                x.Comando("xdotool key Return");
            } else {
                evento = std::string("tecla ") + Teclas[sorteia(std::size(Teclas))];
                x.Comando("xdotool key " + evento.substr(6));
            }
            ++eventos;
            ultimos.push_back(evento);
            if (ultimos.size() > 20) ultimos.pop_front();
            x.Pausa(20 + sorteia(60));
            status = x.Espera(0);
            if (status != -1) break;
            // A program that no longer answers its accessibility bus has hung:
            // a modal box still answers, a stuck event loop doesn't.
            if (n % 150 == 149 && x.Arvore().empty() && x.Espera(0) == -1) {
                x.Pausa(10000);
                if (x.Arvore().empty() && x.Espera(0) == -1) {
                    ++travamentos;
                    relata("travou", -1);
                    x.Mata();
                    status = -2;
                    break;
                }
            }
        }
        if (status == -1) {
            // Time is up with the program still running: end it as the user
            // would, and give it a moment to write its settings.
            x.Comando("xdotool key Escape Escape");
            x.Mata();
        } else if (status > 0 && status != -2) {
            const std::string saida = x.Saida();
            if (status >= 128 || status == 86 || status == 87 ||
                saida.find("AddressSanitizer") != std::string::npos ||
                saida.find("runtime error") != std::string::npos) {
                ++quedas;
                relata("caiu", status);
            }
        }
        confere();
    }
    std::cout << "eventos " << eventos << ", execucoes " << execucoes << ", quedas " << quedas
              << ", travamentos " << travamentos << ", configuracoes ilegiveis " << ilegiveis
              << " (semente " << semente << ", " << segundos << " s)\n";
    return quedas + travamentos + ilegiveis == 0 ? 0 : 1;
}
