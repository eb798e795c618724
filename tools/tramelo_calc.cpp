// tramelo-calc: opens calculation files as the desktop program does, runs
// "Calcular" on each and prints the reports; or prints the properties of
// water and steam at a pressure and a temperature.
#include "ajuda_portugues.h"
#include "document/propriedades_agua.h"
#include "lote/lote.h"
#include "report/linhas_iso.h"
#include "report/linhas_verificacao.h"
#include "base/barras.h"
#include "base/mod_base.h"
#include "plataforma/numero.h"
#include "plataforma/texto.h"
#include "sizing/catalogo.h"

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <optional>
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
            // Characters, not bytes: the labels carry accents and Greek letters.
            const size_t n = static_cast<size_t>(tramelo::Len(l.rotulo));
            std::cout << l.rotulo << " " << std::string(n < 42 ? 42 - n : 1, '.') << " " << l.valor
                      << (l.unidade.empty() ? "" : " " + l.unidade) << "\n";
        }
    }
    std::cout.flush();
    return ok ? 0 : 1;
}

// --verifica D_MM [--faixa P1,P2,...]: the bore with a point or a comma
// for its decimal mark; the percentages apart at commas, so their decimal
// mark is the point.
std::optional<double> NumeroDaOpcao(const std::string& s) {
    const std::optional<double> v = tramelo::LeNumeroPontoOuVirgula(s);
    if (!v || !std::isfinite(*v)) return std::nullopt;
    return v;
}

std::optional<std::vector<double>> FaixaDaOpcao(const std::string& s) {
    std::vector<double> v;
    for (size_t i = 0; i <= s.size();) {
        const size_t fim = std::min(s.find(',', i), s.size());
        const std::optional<double> n = NumeroDaOpcao(s.substr(i, fim - i));
        if (!n || !(*n > 0) || *n > tramelo::PorcentagemMaxima) return std::nullopt;
        v.push_back(*n);
        i = fim + 1;
    }
    if (v.size() > static_cast<size_t>(tramelo::PontosMaximos)) return std::nullopt;
    return v;
}

tramelo::VerificacaoFeita Verifica(const tramelo::ResultadoLote& r, const std::string& d,
                                   const std::string& faixa) {
    tramelo::EntradaVerificacao e;
    e.ponto = r.ponto.iso;
    e.d20_mm = NumeroDaOpcao(d).value_or(0);
    if (!faixa.empty()) e.vazoes_pct = FaixaDaOpcao(faixa).value_or(std::vector<double>{});
    return {e, tramelo::VerificaPlaca(e)};
}

void OpcoesDeVerificacao(CLI::App& app, std::string& verifica, std::string& faixa) {
    auto* opcao =
        app.add_option("--verifica", verifica,
                       "Verifica uma placa existente com este diâmetro do orifício a 20 ºC, em mm")
            ->type_name("D_MM")
            ->check([](const std::string& s) {
                const std::optional<double> d = NumeroDaOpcao(s);
                return d && *d > 0 ? std::string() : std::string("D_MM");
            });
    app.add_option("--faixa", faixa,
                   "Porcentagens da vazão de projeto na verificação (padrão 10,25,50,75,100)")
        ->type_name("P1,P2,...")
        ->needs(opcao)
        ->check([](const std::string& s) { return FaixaDaOpcao(s) ? std::string() : std::string("P"); });
}

// The rating as JSON: unrounded numbers, null where nothing was computed.
nlohmann::json JsonVerificacao(const tramelo::ResultadoVerificacao& r) {
    auto numero = [](bool ok, double v) { return ok ? nlohmann::json(v) : nlohmann::json(nullptr); };
    nlohmann::json faixa = nlohmann::json::array();
    for (const tramelo::PontoFaixa& f : r.faixa)
        faixa.push_back({{"vazao_pct", f.vazao_pct},
                         {"vazao_kg_h", numero(f.aplicavel, f.vazao_kg_h)},
                         {"pressao_diferencial_Pa", numero(f.aplicavel, f.pressao_diferencial_Pa)},
                         {"ReD", numero(f.aplicavel, f.ReD)},
                         {"C", numero(f.aplicavel, f.C)},
                         {"epsilo", numero(f.aplicavel, f.epsilo)},
                         {"incerteza_vazao_pct", numero(f.aplicavel, f.incerteza_vazao_pct)},
                         {"dentro_dos_limites", f.aplicavel ? nlohmann::json(f.dentro_dos_limites)
                                                            : nlohmann::json(nullptr)},
                         {"limites_fora", f.limites_fora}});
    return {{"aplicavel", r.aplicavel},
            {"motivo", r.aplicavel ? nlohmann::json(nullptr) : nlohmann::json(r.motivo)},
            {"d_mm_20C", numero(r.aplicavel, r.d_mm_20C)},
            {"d_mm_operacao", numero(r.aplicavel, r.d_mm_operacao)},
            {"vazao_kg_h", numero(r.aplicavel, r.vazao_kg_h)},
            {"pressao_diferencial_Pa", numero(r.aplicavel, r.pressao_diferencial_Pa)},
            {"faixa", std::move(faixa)}};
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
    std::string verifica, faixa;
    OpcoesDeVerificacao(app, verifica, faixa);
    app.add_option("ARQUIVO", arquivos, "Arquivos de cálculo (.trl)");
    auto erro = [](const std::string& mensagem) {
        std::cerr << "tramelo-calc: " << mensagem << "\n"
                  << "uso: tramelo-calc [--json] [--sim] [--iso] [--verifica D_MM [--faixa P1,P2,...]] "
                     "ARQUIVO.trl...\n"
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
        if (!arquivos.empty() || sim || iso || !verifica.empty())
            return erro("--propriedades não se usa com ARQUIVO, --sim, --iso nem --verifica");
        return Propriedades(propriedades[0], propriedades[1], json);
    }
    if (arquivos.empty()) return erro("falta o argumento obrigatório ARQUIVO");

    tramelo::DefinePastas(PastaDoPrograma(argv[0]));
    // No frame here: the windows the run opens keep no toolbars or recent files.
    tramelo::mdiMenu().mostrado = false;
    tramelo::CarregaCatalogo();

    int status = 0;
    nlohmann::json saida = nlohmann::json::array();
    // The text goes out in large pieces: a report is some fifty short lines.
    std::string texto;
    auto despeja = [&texto] {
        std::cout.write(texto.data(), static_cast<std::streamsize>(texto.size()));
        texto.clear();
    };
    for (size_t k = 0; k < arquivos.size(); ++k) {
        const tramelo::ResultadoLote r = tramelo::CalculaArquivo(arquivos[k], sim);
        status = std::max(status, r.status);
        // The reports before a file's messages go out before them.
        if (!r.mensagens.empty() && !texto.empty()) {
            despeja();
            std::cout.flush();
        }
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
            if (!verifica.empty()) objeto["verificacao"] = JsonVerificacao(Verifica(r, verifica, faixa).resultado);
            saida.push_back(std::move(objeto));
        } else {
            auto linhas = [&](const std::vector<std::string>& ls) {
                for (const std::string& l : ls) {
                    texto += l;
                    texto += '\n';
                }
            };
            if (k > 0) texto += '\n';
            texto += r.exportacao;
            if (iso) {
                texto += '\n';
                linhas(tramelo::LinhasIso5167(r.iso));
            }
            if (!verifica.empty()) {
                texto += '\n';
                linhas(tramelo::LinhasVerificacao(Verifica(r, verifica, faixa), r.ponto));
            }
            if (texto.size() >= 64 * 1024) despeja();
        }
    }
    despeja();
    if (json)
        std::cout << saida.dump(2, ' ', false, nlohmann::json::error_handler_t::replace) << "\n";
    std::cout.flush();
    return status;
}
