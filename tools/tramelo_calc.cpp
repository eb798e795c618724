// tramelo-calc: opens calculation files as the desktop program does, runs
// "Calcular" on each and prints the reports; or prints the properties of
// water and steam at a pressure and a temperature.
#include "ajuda_portugues.h"
#include "document/propriedades_agua.h"
#include "lote/lote.h"
#include "report/linhas_iso.h"
#include "base/mod_base.h"
#include "plataforma/numero.h"
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

// The program's data folder, chosen as the desktop program chooses it.
std::string PastaDoPrograma(const char* argv0) {
    namespace fs = std::filesystem;
    std::error_code ec;
    fs::path exe = fs::read_symlink("/proc/self/exe", ec);
    if (ec) exe = fs::absolute(argv0, ec);
    return tramelo::PastaDadosPrograma(exe.parent_path().string());
}

// The ISO 5167-2 check as JSON: unrounded numbers, null where it computed
// nothing or a bound is open.
nlohmann::json JsonIso(const tramelo::ResultadoIso& r) {
    nlohmann::json j;
    j["aplicavel"] = r.aplicavel;
    j["motivo"] = r.aplicavel ? nlohmann::json(nullptr) : nlohmann::json(r.motivo);
    auto numero = [&](double v) { return r.aplicavel ? nlohmann::json(v) : nlohmann::json(nullptr); };
    j["beta"] = numero(r.beta);
    j["d_mm"] = numero(r.d_mm);
    j["C"] = numero(r.C);
    j["epsilo"] = numero(r.epsilo);
    j["perda_permanente_Pa"] = numero(r.perda_permanente_Pa);
    j["incerteza_C_pct"] = numero(r.incerteza_C_pct);
    j["incerteza_epsilo_pct"] = numero(r.incerteza_epsilo_pct);
    j["d_mm_20C"] = numero(r.d_mm_20C);
    j["diferenca_d_pct"] = numero(r.diferenca_d_pct);
    j["dentro_dos_limites"] = r.aplicavel ? nlohmann::json(r.dentro_dos_limites) : nlohmann::json(nullptr);
    j["limites"] = nlohmann::json::array();
    auto limite = [](const std::optional<double>& v) {
        return v ? nlohmann::json(*v) : nlohmann::json(nullptr);
    };
    for (const auto& l : r.limites)
        j["limites"].push_back({{"nome", l.nome},
                                {"valor", l.valor},
                                {"minimo", limite(l.minimo)},
                                {"maximo", limite(l.maximo)},
                                {"ok", l.ok}});
    return j;
}

// Characters, not bytes: the labels carry accents and Greek letters.
size_t Largura(const std::string& s) {
    return static_cast<size_t>(
        std::count_if(s.begin(), s.end(), [](char c) { return (c & 0xC0) != 0x80; }));
}

// --propriedades P T: P in kPa absolute, T in ºC. Exit status 1 when IAPWS-IF97
// gives no figures, with the reason on standard error or in "erro".
int Propriedades(const std::string& P, const std::string& T, bool json) {
    const tramelo::PontoAgua p = tramelo::LePontoAgua({P, 0, T});
    const tramelo::PropriedadesAgua r = tramelo::PropriedadesNoPonto(p);
    const bool ok = r.erro.empty();
    if (json) {
        using J = nlohmann::ordered_json;
        auto numero = [ok](double v) { return ok ? J(v) : J(nullptr); };
        J j;
        j["pressao_kPa"] = p.erro.empty() ? J(p.p_kPa) : J(nullptr);
        j["temperatura_C"] = p.erro.empty() ? J(p.T_C) : J(nullptr);
        j["regiao"] = ok ? J(r.regiao) : J(nullptr);
        j["fase"] = ok ? J(r.fase) : J(nullptr);
        j["massa_especifica_kg_m3"] = numero(r.massa_especifica);
        j["volume_especifico_m3_kg"] = numero(r.volume_especifico);
        j["entalpia_kJ_kg"] = numero(r.entalpia);
        j["entropia_kJ_kgK"] = numero(r.entropia);
        j["cp_kJ_kgK"] = numero(r.cp);
        j["cv_kJ_kgK"] = numero(r.cv);
        j["velocidade_som_m_s"] = numero(r.velocidade_som);
        j["viscosidade_cP"] = numero(r.viscosidade_cP);
        j["kappa"] = numero(r.kappa);
        j["cp_cv"] = numero(r.razao_cp_cv);
        j["t_saturacao_C"] = r.temperatura_saturacao_C ? J(*r.temperatura_saturacao_C) : J(nullptr);
        j["erro"] = ok ? J(nullptr) : J(r.erro);
        std::cout << j.dump(2, ' ', false, nlohmann::json::error_handler_t::replace) << "\n";
    } else if (!ok) {
        std::cerr << "Propriedades da água e do vapor: " << UmaLinha(r.erro) << "\n";
    } else {
        std::vector<tramelo::LinhaPropriedade> linhas = tramelo::LinhasPropriedades(r);
        linhas.insert(linhas.begin(),
                      {{"Pressão absoluta", tramelo::NumeroParaTexto(p.p_kPa), "kPa"},
                       {"Temperatura", tramelo::NumeroParaTexto(p.T_C), "ºC"}});
        std::cout << "Propriedades da água e do vapor (IAPWS-IF97)\n";
        for (const auto& l : linhas) {
            const size_t n = Largura(l.rotulo);
            std::cout << l.rotulo << " " << std::string(n < 42 ? 42 - n : 1, '.') << " " << l.valor
                      << (l.unidade.empty() ? "" : " " + l.unidade) << "\n";
        }
    }
    std::cout.flush();
    return ok ? 0 : 1;
}

} // namespace

int main(int argc, char** argv) {
    // The reports go out through std::cout alone; unsynchronised it buffers
    // them whole instead of handing each piece to stdio.
    std::ios::sync_with_stdio(false);
    CLI::App app{"Calcula os arquivos de cálculo (.trl) do Tramelo e imprime seus relatórios, ou "
                 "as propriedades da água e do vapor.",
                 "tramelo-calc"};
    tramelo::PreparaEmPortugues(app);
    bool json = false, sim = false, iso = false;
    std::vector<std::string> arquivos, propriedades;
    app.add_flag("--json", json, "Saída em JSON: um objeto por arquivo");
    app.add_flag(
        "--sim", sim,
        "Responde \"Sim\" a \"Deseja alterar o dados para cálculo?\" (o padrão é \"Não\")");
    app.add_flag("--iso", iso, "Acrescenta a cada relatório a verificação pela ISO 5167-2:2003");
    app.add_option("--propriedades", propriedades,
                   "Propriedades da água e do vapor pela IAPWS-IF97 a P kPa absolutos e T ºC, "
                   "em vez de arquivos")
        ->expected(1, 2) // two, checked below: the help then shows "P T" alone
        ->type_name("P T");
    app.add_option("ARQUIVO", arquivos, "Arquivos de cálculo (.trl)");
    auto erro = [](const std::string& mensagem) {
        std::cerr << "tramelo-calc: " << mensagem << "\n"
                  << "uso: tramelo-calc [--json] [--sim] [--iso] ARQUIVO.trl...\n"
                  << "     tramelo-calc --propriedades P T [--json]\n"
                  << "Use --help para mais informações.\n";
        return 64;
    };
    try {
        app.parse(argc, argv);
    } catch (const CLI::CallForHelp& e) {
        return app.exit(e);
    } catch (const CLI::ParseError& e) {
        return erro(tramelo::MensagemEmPortugues(app, e));
    }
    if (!propriedades.empty()) {
        if (propriedades.size() != 2) return erro("valor não aceito em --propriedades");
        if (!arquivos.empty() || sim || iso)
            return erro("--propriedades não se usa com ARQUIVO, --sim nem --iso");
        return Propriedades(propriedades[0], propriedades[1], json);
    }
    if (arquivos.empty()) return erro("falta o argumento obrigatório ARQUIVO");

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
            objeto["iso5167"] = JsonIso(r.iso);
            saida.push_back(std::move(objeto));
        } else {
            if (k > 0) std::cout << "\n";
            for (const std::string& l : r.exportacao)
                std::cout << l << "\n";
            if (iso) {
                std::cout << "\n";
                for (const std::string& l : tramelo::LinhasIso5167(r.iso))
                    std::cout << l << "\n";
            }
        }
    }
    if (json)
        std::cout << saida.dump(2, ' ', false, nlohmann::json::error_handler_t::replace) << "\n";
    std::cout.flush();
    return status;
}
