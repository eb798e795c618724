// tramelo-calc: opens calculation files as the desktop program does, runs
// "Calcular" on each and prints the reports.
#include "shell/lote.h"
#include "shell/mod_base.h"
#include "sizing/catalogo.h"

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

namespace {

std::string UmaLinha(std::string s) {
    std::replace(s.begin(), s.end(), '\n', ' ');
    std::replace(s.begin(), s.end(), '\r', ' ');
    return s;
}

// The program's data folder: beside the executable when it can be written
// there, otherwise the user's data folder.
std::string PastaDoPrograma(const char* argv0) {
    namespace fs = std::filesystem;
    std::error_code ec;
    fs::path exe = fs::read_symlink("/proc/self/exe", ec);
    if (ec) exe = fs::absolute(argv0, ec);
    return tramelo::PastaDadosPrograma(exe.parent_path().string());
}

} // namespace

int main(int argc, char** argv) {
    CLI::App app{"Calcula os arquivos de cálculo (.trl) do Tramelo e imprime seus relatórios.",
                 "tramelo-calc"};
    bool json = false, sim = false;
    std::vector<std::string> arquivos;
    app.add_flag("--json", json, "Saída em JSON: um objeto por arquivo");
    app.add_flag(
        "--sim", sim,
        "Responde \"Sim\" a \"Deseja alterar o dados para cálculo?\" (o padrão é \"Não\")");
    app.add_option("ARQUIVO", arquivos, "Arquivos de cálculo (.trl)")->required();
    try {
        app.parse(argc, argv);
    } catch (const CLI::CallForHelp& e) {
        return app.exit(e);
    } catch (const CLI::ParseError& e) {
        app.exit(e);
        std::cerr << "uso: tramelo-calc [--json] [--sim] ARQUIVO.trl...\n";
        return 64;
    }

    tramelo::DefinePastas(PastaDoPrograma(argv[0]));
    tramelo::CarregaCatalogo();

    int status = 0;
    nlohmann::json saida = nlohmann::json::array();
    for (size_t k = 0; k < arquivos.size(); ++k) {
        tramelo::ResultadoLote r = tramelo::CalculaArquivo(arquivos[k], sim);
        status = std::max(status, r.status);
        for (const auto& m : r.mensagens)
            std::cerr << UmaLinha(m.titulo) << ": " << UmaLinha(m.texto) << "\n";
        if (json) {
            nlohmann::json objeto;
            objeto["arquivo"] = r.arquivo;
            objeto["arquivo_de_calculo"] = r.arquivoDeCalculo;
            objeto["linhas"] = r.linhas;
            nlohmann::json mensagens = nlohmann::json::array();
            for (const auto& m : r.mensagens)
                mensagens.push_back({{"titulo", m.titulo}, {"texto", m.texto}});
            objeto["mensagens"] = std::move(mensagens);
            objeto["concluido"] = r.concluido;
            if (r.erro)
                objeto["erro"] = {{"numero", r.erro->numero}, {"descricao", r.erro->descricao}};
            else
                objeto["erro"] = nullptr;
            saida.push_back(std::move(objeto));
        } else {
            if (k > 0) std::cout << "\n";
            for (const std::string& l : r.exportacao)
                std::cout << l << "\n";
        }
    }
    if (json)
        std::cout << saida.dump(2, ' ', false, nlohmann::json::error_handler_t::replace) << "\n";
    std::cout.flush();
    return status;
}
