// tramelo-calc run as a user runs it: the sample files, JSON, each exit
// status, and the ISO 5167-2 check of each file.
#include "pasta_temporaria.h"
#include "relatorio_dourado.h"

#include "plataforma/cp1252.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <tuple>
#include <string>
#include <sys/wait.h>

namespace tramelo::teste {
namespace {

struct Saida {
    int status = -1;
    std::string saida, erros;
};

class ShellLote : public ::testing::Test {
protected:
    // Runs the tool with its data folder in a temporary place.
    Saida Executa(const std::string& argumentos) {
        const std::string erros = pasta / "erros.txt";
        const std::string comando = "XDG_DATA_HOME=" + pasta.str() + " XDG_CONFIG_HOME=" + pasta.str() +
                                    " " TRAMELO_CALC " " + argumentos + " 2>" + erros;
        Saida s;
        FILE* p = popen(comando.c_str(), "r");
        char buf[4096];
        for (size_t n; (n = fread(buf, 1, sizeof buf, p)) > 0;) s.saida.append(buf, n);
        int r = pclose(p);
        s.status = WIFEXITED(r) ? WEXITSTATUS(r) : -1;
        s.erros = LeBytes(erros);
        return s;
    }
    static std::string Exemplo(const std::string& nome) { return std::string(TRAMELO_EXEMPLOS) + "/" + nome; }
    // The air sample made an orifice plate (the first of the file's lists).
    std::string PlacaDeAr() {
        std::string bytes = LeBytes(Exemplo("ar.trl"));
        const std::string restricao = "\r\n1\r\n1,  ";
        bytes.replace(bytes.find(restricao), restricao.size(), "\r\n0\r\n1,  ");
        GravaBytes(pasta / "ar_placa.trl", bytes);
        return pasta / "ar_placa.trl";
    }

    PastaTemporaria pasta;
};

TEST_F(ShellLote, JsonComAVerificacaoIsoDeCadaArquivo) {
    Saida s = Executa("--json " + Exemplo("agua.trl") + " " + PlacaDeAr() + " " + Exemplo("vapor.trl") +
                      " " + pasta / "falta.trl" + " " + Exemplo("ar.trl"));
    EXPECT_EQ(s.status, 2);
    auto j = nlohmann::json::parse(s.saida);
    ASSERT_EQ(j.size(), 5u);
    EXPECT_TRUE(j[0]["arquivo"] == Exemplo("agua.trl") && j[0]["concluido"] == true && j[0]["erro"].is_null());
    EXPECT_EQ(j[0]["linhas"][3], " Fluido utilizado _________________ Liqüido");
    EXPECT_EQ(j[3]["concluido"], false);
    EXPECT_EQ(j[3]["mensagens"], nlohmann::json::parse(R"([{"texto": "Arquivo não encontrado", "titulo": ")" +
                                                       pasta / "falta.trl" + "\"}]"));
    // Water, flange taps: d = 61.78516 mm, C = 0.6093025 by the reference
    // implementation, against Tramelo's 61,83 mm.
    const auto& agua = j[0]["iso5167"];
    EXPECT_NEAR(agua["d_mm"].get<double>(), 61.78516, 5e-6);
    EXPECT_NEAR(agua["C"].get<double>(), 0.6093025, 5e-8);
    EXPECT_NEAR(agua["diferenca_d_pct"].get<double>(), 0.07, 0.01);
    ASSERT_EQ(agua["limites"].size(), 4u); // no pressure ratio for a liquid
    EXPECT_EQ(agua["limites"][1], nlohmann::json::parse(
                                      R"j({"nome": "D (mm)", "valor": 102.26, "minimo": 50.0, "maximo": 1000.0, "ok": true})j"));
    // Air, corner taps: expansibility and the pressure ratio come in.
    EXPECT_LT(j[1]["iso5167"]["epsilo"].get<double>(), 1.0);
    EXPECT_EQ(j[1]["iso5167"]["limites"][4]["nome"], "p2/p1");
    // Steam through vena-contracta taps, a file that isn't there, a
    // restriction orifice.
    const std::pair<int, std::string> fora[] = {
        {2, "A ISO 5167-2 não prevê tomadas de vena contracta."},
        {3, "O cálculo não foi concluído."},
        {4, "A ISO 5167-2 não se aplica a orifícios de restrição."}};
    for (const auto& [i, motivo] : fora) {
        const auto& iso = j[static_cast<size_t>(i)]["iso5167"];
        EXPECT_TRUE(iso["aplicavel"] == false && iso["motivo"] == motivo && iso["d_mm"].is_null() && iso["limites"].empty()) << i;
    }

    // The water plate at 120 ºC (stainless: row 29 = 1,0034), Δp 2550 mmCA:
    // the standard's bore comes to 20 ºC by √1,0034 before it meets
    // Tramelo's 61,748 mm; the loss, 15559,7 Pa / 9,79763 = 1588 mmCA, is
    // rounded as the report rounds.
    std::string quente = LeBytes(Exemplo("agua.trl"));
    quente.replace(quente.find("9,\"20\",0"), 8, "9,\"120\",0");
    quente.replace(quente.find("5,\"25000\",0"), 11, "5,\"2550\",2");
    GravaBytes(pasta / "quente.trl", quente);
    const auto q = nlohmann::json::parse(Executa("--json " + pasta / "quente.trl").saida)[0]["iso5167"];
    const double d20 = q["d_mm_20C"].get<double>();
    EXPECT_NEAR(d20, q["d_mm"].get<double>() / std::sqrt(1.0034), 1e-10);
    EXPECT_NEAR(q["diferenca_d_pct"].get<double>(), 100 * (61.748 / d20 - 1), 1e-3);
    EXPECT_EQ(q["dentro_dos_limites"], true);
    EXPECT_NE(Executa("--iso " + pasta / "quente.trl").saida.find(
                  " Perda de carga permanente ________ 1600 mmCA\n"),
              std::string::npos);
}

// The whole text of --iso: the reports exactly as without it (liquid, gas and
// steam, one empty line between them), each followed by its section. The air plate's section agrees with "ar placa" of
// tests/data/iso5167/referencia.py (d 47,2055 mm, C 0,603973, eps 0,994777).
TEST_F(ShellLote, SecaoIsoDepoisDeCadaRelatorio) {
    const std::string arquivos = Exemplo("agua.trl") + " " + PlacaDeAr() + " " + Exemplo("ar.trl") +
                                 " " + Exemplo("vapor.trl");
    const std::string comIso = Executa("--iso " + arquivos).saida;
    std::vector<std::string> linhas;
    std::istringstream s(comIso);
    for (std::string l; std::getline(s, l);) linhas.push_back(l);
    ConfereDourado("iso5167_calc.txt", linhas);
    // Taking the sections out gives the plain output back.
    std::string resto = comIso;
    for (size_t i; (i = resto.find("\n ISO 5167-2:2003")) != std::string::npos;) {
        size_t fim = resto.find("\n\n=", i + 1);
        resto.erase(i, fim == std::string::npos ? std::string::npos : fim + 1 - i);
    }
    const Saida semIso = Executa(arquivos);
    EXPECT_EQ(resto, semIso.saida);
    EXPECT_EQ(semIso.status, 0);
    // The material prompt of each gas file, answered empty, on standard error.
    const std::string material = "Material da placa: Digite o nome do material utilizado\n";
    EXPECT_EQ(semIso.erros, material + material);
}

// --verifica: each file's plate rated with the bore given. JSON with exactly
// the rating's keys, numbers unrounded, against "agua.trl 61,83" of
// tests/data/iso5167/verifica.py (python3-fluids); the file the standard
// doesn't take and the file missing say why. Without --json, the section
// after each report, the reports as they were.
TEST_F(ShellLote, VerificaPlacaExistente) {
    Saida s = Executa("--json --verifica 61,83 --faixa 10,50 " + Exemplo("agua.trl") + " " +
                      Exemplo("vapor.trl") + " " + pasta / "falta.trl");
    const auto j = nlohmann::json::parse(s.saida);
    const auto& v = j[0]["verificacao"];
    std::vector<std::string> chaves, chavesFaixa;
    for (const auto& [k, x] : v.items()) chaves.push_back(k);
    for (const auto& [k, x] : v["faixa"][0].items()) chavesFaixa.push_back(k);
    EXPECT_EQ(chaves, (std::vector<std::string>{"aplicavel", "d_mm_20C", "d_mm_operacao", "faixa", "motivo",
                                                "pressao_diferencial_Pa", "vazao_kg_h"}));
    EXPECT_EQ(chavesFaixa, (std::vector<std::string>{"C", "ReD", "dentro_dos_limites", "epsilo",
                                                     "incerteza_vazao_pct", "limites_fora",
                                                     "pressao_diferencial_Pa", "vazao_kg_h", "vazao_pct"}));
    EXPECT_TRUE(v["aplicavel"] == true && v["motivo"].is_null() && v["d_mm_20C"] == 61.83);
    EXPECT_NEAR(v["vazao_kg_h"].get<double>(), 49984.5067934, 5e-6);
    EXPECT_NEAR(v["pressao_diferencial_Pa"].get<double>(), 24915.1640812, 5e-6);
    const struct {
        double pct, dp, ReD, C, u;
    } faixa[] = {{10, 239.144029579, 17258.473304, 0.621936356194, 0.5079269509},
                 {50, 6183.09437262, 86292.3665198, 0.611565225798, 0.5079269509}};
    ASSERT_EQ(v["faixa"].size(), 2u);
    for (size_t i = 0; i < 2; ++i) {
        const auto& p = v["faixa"][i];
        EXPECT_EQ(p["vazao_pct"], faixa[i].pct);
        EXPECT_NEAR(p["vazao_kg_h"].get<double>(), faixa[i].pct / 100 * 50 * 998, 1e-9);
        EXPECT_NEAR(p["pressao_diferencial_Pa"].get<double>(), faixa[i].dp, 5e-8);
        EXPECT_NEAR(p["ReD"].get<double>(), faixa[i].ReD, 5e-6);
        EXPECT_NEAR(p["C"].get<double>(), faixa[i].C, 5e-12);
        EXPECT_EQ(p["epsilo"], 1.0);
        EXPECT_NEAR(p["incerteza_vazao_pct"].get<double>(), faixa[i].u, 5e-10);
        EXPECT_TRUE(p["dentro_dos_limites"] == true && p["limites_fora"].empty());
    }
    for (const auto& [i, motivo] : {std::pair{1, "A ISO 5167-2 não prevê tomadas de vena contracta."},
                                    std::pair{2, "O cálculo não foi concluído."}}) {
        const auto& n = j[static_cast<size_t>(i)]["verificacao"];
        EXPECT_TRUE(n["aplicavel"] == false && n["motivo"] == motivo && n["vazao_kg_h"].is_null() &&
                    n["faixa"].empty())
            << i;
    }
    EXPECT_FALSE(nlohmann::json::parse(Executa("--json " + Exemplo("agua.trl")).saida)[0].contains("verificacao"));

    const std::string sem = Executa("--iso " + Exemplo("agua.trl")).saida;
    const std::string com = Executa("--iso --verifica 61.83 --faixa 10,50 " + Exemplo("agua.trl")).saida;
    ASSERT_EQ(com.rfind(sem, 0), 0u);
    EXPECT_EQ(com.substr(sem.size()),
              "\n Verificação de placa existente (ISO 5167-2:2003)\n\n"
              " Diâmetro do orifício a 20 ºC _____ 61,83 mm\n"
              " Diâmetro do orifício em operação _ 61,83 mm\n"
              " Beta = d/D _______________________ 0,60464\n"
              " Vazão na Δp de projeto ___________ 50,085 M³/h (49985 Kg/h)\n"
              " Δp na vazão de projeto ___________ 24915 Pa\n"
              " Incertezas de D, d, Δp e ρ1 ______ 0 / 0 / 0 / 0 %\n\n"
              "   Vazão     Vazão        Δp       ReD         C Incerteza  Limites\n"
              "       %      M³/h        Pa                             %\n"
              "      10         5    239,14   17258,5  0,621936      0,51  dentro\n"
              "      50        25    6183,1   86292,4  0,611565      0,51  dentro\n");
}

TEST_F(ShellLote, AjudaEErrosDeOpcaoEmPortugues) {
    const std::string uso = "uso: tramelo-calc [--json] [--sim] [--iso] [--verifica D_MM [--faixa "
                            "P1,P2,...]] ARQUIVO.trl...\n"
                            "     tramelo-calc --propriedades P T [--json]\n"
                            "Use --help para mais informações.\n";
    struct Caso {
        std::string argumentos;
        int status;
        std::string saida, erros;
    } casos[] = {
        {"--help", 0, "Calcula os arquivos de cálculo (.trl) do Tramelo e imprime seus relatórios, ou as "
         "propriedades da água e do vapor.\nUso: tramelo-calc [OPÇÕES] [ARQUIVO...]\n\nArgumentos:\n  ARQUIVO TEXTO ..."
         "           Arquivos de cálculo (.trl)\n\nOpções:\n  -h,--help                   Mostra esta ajuda e sai\n  --json"
         "                      Saída em JSON: um objeto por arquivo\n  --sim                       Responde \"Sim\" "
         "a \"Deseja alterar o dados para cálculo?\" (o padrão é \"Não\")\n  --iso                       "
         "Acrescenta a cada relatório a verificação pela ISO 5167-2:2003\n  --propriedades P T          "
         "Propriedades da água e do vapor pela IAPWS-IF97 a P kPa absolutos e T ºC, em vez de arquivos\n  "
         "--verifica D_MM             Verifica uma placa existente com este diâmetro do orifício a 20 ºC, "
         "em mm\n  --faixa P1,P2,... Requer: --verifica\n" + std::string(30, ' ') +
         "Porcentagens da vazão de projeto na verificação (padrão 10,25,50,75,100)\n\n", ""},
        {"", 64, "", "tramelo-calc: falta o argumento obrigatório ARQUIVO\n" + uso},
        {"--nada -x a.trl", 64, "", "tramelo-calc: argumentos não esperados: --nada -x\n" + uso},
        {"--json=talvez a.trl", 64, "", "tramelo-calc: valor não aceito em --json\n" + uso},
        {"--propriedades 1000", 64, "", "tramelo-calc: valor não aceito em --propriedades\n" + uso},
        {"--iso --propriedades 1000 250", 64, "",
         "tramelo-calc: --propriedades não se usa com ARQUIVO, --sim, --iso nem --verifica\n" + uso},
        {"--faixa 10,50 a.trl", 64, "", "tramelo-calc: --faixa só vale com --verifica\n" + uso},
        {"--verifica a.trl", 64, "", "tramelo-calc: valor não aceito em --verifica\n" + uso},
        {"--verifica 60 --faixa 0,10 a.trl", 64, "", "tramelo-calc: valor não aceito em --faixa\n" + uso},
        {"--verifica 60 --faixa 10,,50 a.trl", 64, "", "tramelo-calc: valor não aceito em --faixa\n" + uso},
    };
    for (const Caso& c : casos) {
        Saida s = Executa(c.argumentos);
        EXPECT_EQ(std::tie(s.status, s.saida, s.erros), std::tie(c.status, c.saida, c.erros)) << c.argumentos;
    }
}

// --propriedades: exactly the keys, unrounded figures against the row of
// tests/data/agua/referencia.py at 1000 kPa, 250 ºC (ten digits printed),
// the text form read with a comma, and points without figures: status 1.
TEST_F(ShellLote, PropriedadesDaAguaEDoVapor) {
    const Saida s = Executa("--propriedades 1000 250 --json");
    EXPECT_EQ(s.status, 0);
    const auto j = nlohmann::ordered_json::parse(s.saida);
    std::vector<std::string> chaves;
    for (const auto& [chave, valor] : j.items()) chaves.push_back(chave);
    EXPECT_EQ(chaves, (std::vector<std::string>{
                          "pressao_kPa", "temperatura_C", "regiao", "fase", "massa_especifica_kg_m3",
                          "volume_especifico_m3_kg", "entalpia_kJ_kg", "entropia_kJ_kgK", "cp_kJ_kgK",
                          "cv_kJ_kgK", "velocidade_som_m_s", "viscosidade_cP", "kappa", "cp_cv",
                          "t_saturacao_C", "erro"}));
    const std::pair<const char*, double> figuras[] = {
        {"pressao_kPa", 1000}, {"temperatura_C", 250}, {"massa_especifica_kg_m3", 4.29665972},
        {"volume_especifico_m3_kg", 1 / 4.29665972}, {"entalpia_kJ_kg", 2943.222165},
        {"entropia_kJ_kgK", 6.92662274}, {"cp_kJ_kgK", 2.211620273}, {"cv_kJ_kgK", 1.636190174},
        {"velocidade_som_m_s", 550.1074973}, {"viscosidade_cP", 1000 * 1.80582516e-05},
        {"kappa", 1.300247682}, {"cp_cv", 1.351689008}, {"t_saturacao_C", 179.8856324}};
    for (const auto& [chave, valor] : figuras) EXPECT_NEAR(j[chave].get<double>(), valor, 1e-9 * valor) << chave;
    EXPECT_TRUE(j["regiao"] == 2 && j["fase"] == "vapor superaquecido" && j["erro"].is_null());
    const std::string texto = Executa("--propriedades 1000,0 250").saida;
    for (const char* linha : {"\nMassa específica .......................... 4,29666 Kg/m³\n",
                              "\nExpoente isentrópico (κ = w²ρ/p) .......... 1,30025\n"})
        EXPECT_NE(texto.find(linha), std::string::npos) << texto;

    const Saida fora = Executa("--json --propriedades 1000 -5");
    EXPECT_EQ(fora.status, 1);
    const auto k = nlohmann::json::parse(fora.saida);
    for (const auto& [chave, valor] : k.items())
        EXPECT_TRUE(valor.is_null() || chave == "pressao_kPa" || chave == "temperatura_C" || chave == "erro") << chave;
    EXPECT_EQ(k["erro"], "A temperatura está fora da faixa da IAPWS-IF97 (0 a 800 ºC até 100 MPa; acima de "
                         "800 ºC até 2000 ºC, só até 50 MPa).");
    const Saida letras = Executa("--propriedades abc 250");
    EXPECT_EQ(std::tie(letras.status, letras.saida, letras.erros),
              std::make_tuple(1, std::string(), std::string("Propriedades da água e do vapor: A pressão “abc” não é um número.\n")));
}

// A copy of the tool in a folder it may write to keeps its data there, as
// the desktop program does: opening the files makes the "Saves" folder once.
TEST_F(ShellLote, PastaSavesAoLadoDoPrograma) {
    const std::string copia = pasta / "tramelo-calc";
    std::filesystem::copy_file(TRAMELO_CALC, copia);
    const std::string comando = "XDG_DATA_HOME=" + pasta / "dados" + " XDG_CONFIG_HOME=" +
                                pasta / "dados" + " " + copia + " " + Exemplo("agua.trl") + " " +
                                Exemplo("agua.trl") + " > /dev/null 2>&1";
    EXPECT_EQ(std::system(comando.c_str()), 0);
    EXPECT_TRUE(std::filesystem::is_directory(pasta / "Saves"));
}

TEST_F(ShellLote, StatusDeSaida) {
    const std::string cabeca = "\"\"\r\n\"\"\r\n\"\"\r\n0\r\n0,  \"Liqüido\"\r\n0\r\n\"t\"\r\n";
    const std::string linhas = "2,\"50\",0\r\n4,\"102,26\",0\r\n5,\"25000\",0\r\n8,\"20\",0\r\n"
                               "9,\"20\",0\r\n17,\"998\",0\r\n18,\"998\",0\r\n20,\"1\",0\r\n";
    GravaBytes(pasta / "vazio.trl", ParaCp1252(cabeca + linhas)); // row 28 missing: empty
    GravaBytes(pasta / "limite.trl", ParaCp1252(cabeca + "2,\"1\",0" + linhas.substr(8) + "28,\"0,8\",0\r\n"));
    GravaBytes(pasta / "falha.trl", ParaCp1252(cabeca + linhas + "28,\"abc\",0\r\n"));
    GravaBytes(pasta / "curto.trl", "\"\"\r\n\"\"\r\n\"\"\r\n0\r\n0\r\n"); // fluid line without its name

    Saida vazio = Executa(pasta / "vazio.trl");
    EXPECT_EQ(vazio.status, 1);
    EXPECT_EQ(vazio.erros, "Todos os campos devem ser preenchidos: O campo 'Relação Vz.Usual/Vz.Max.' não foi preenchido\n");

    // The limits question: "Não" goes on, "Sim" (--sim) ends the run.
    EXPECT_EQ(Executa(pasta / "limite.trl").status, 0);
    Saida sim = Executa("--sim " + pasta / "limite.trl");
    EXPECT_EQ(sim.status, 1);
    EXPECT_NE(sim.erros.find("Tramelo: Deseja alterar o dados para cálculo?"), std::string::npos);

    Saida falha = Executa("--json " + pasta / "falha.trl");
    EXPECT_EQ(falha.status, 2);
    EXPECT_EQ(nlohmann::json::parse(falha.saida)[0]["erro"], nlohmann::json::parse(R"({"numero": 13, "descricao": "Tipos incompatíveis"})"));

    // The damaged file fails alone: the one after it runs as if it weren't there.
    Saida curto = Executa("--json " + Exemplo("agua.trl") + " " + pasta / "curto.trl " + Exemplo("agua.trl"));
    EXPECT_EQ(curto.status, 2);
    auto c = nlohmann::json::parse(curto.saida);
    EXPECT_EQ(c[1]["erro"], nlohmann::json::parse(R"({"numero": 62, "descricao": "Entrada além do fim do arquivo"})"));
    EXPECT_EQ(c[2], c[0]);

    // Not calculation files: random bytes, a text, a folder. None is opened;
    // the batch goes on and its status is the highest.
    std::string aleatorio(5000, '\0');
    for (size_t k = 0; k < aleatorio.size(); ++k) aleatorio[k] = static_cast<char>((k * 7919 + 13) % 251);
    GravaBytes(pasta / "bytes.trl", aleatorio);
    GravaBytes(pasta / "texto.trl", "um,dois,tres\r\nquatro\r\n");
    Saida outros = Executa("--json " + pasta / "bytes.trl " + pasta / "texto.trl " + pasta.str() +
                           " " + pasta / "curto.trl");
    EXPECT_EQ(outros.status, 3);
    auto k = nlohmann::json::parse(outros.saida);
    ASSERT_EQ(k.size(), 4u);
    for (int n : {0, 1, 2}) EXPECT_EQ(k[n]["arquivo_de_calculo"], false);
    EXPECT_EQ(k[3]["arquivo_de_calculo"], true); // cut short: a calculation file all the same
    EXPECT_EQ(outros.erros.substr(0, outros.erros.find("Informação de Erro")), "Arquivo: " + pasta / "bytes.trl" + ": Não é um arquivo de cálculo do Tramelo\n"
                            "Arquivo: " + pasta / "texto.trl" + ": Não é um arquivo de cálculo do Tramelo\n"
                            "Arquivo: " + pasta.str() + ": É uma pasta, não um arquivo de cálculo\n");
    EXPECT_EQ(Executa(pasta / "bytes.trl").saida, "");

    // A date text longer than the header check reads: the calculation still
    // reads the whole file.
    std::string agua = LeBytes(Exemplo("agua.trl"));
    GravaBytes(pasta / "longo.trl", "\"" + std::string(70000, 'x') + "\"" + agua.substr(agua.find("\r\n")));
    Saida longo = Executa(pasta / "longo.trl");
    EXPECT_EQ(longo.status, 0) << longo.erros;
    EXPECT_NE(longo.saida.find(std::string(70000, 'x') + "\n"), std::string::npos);
}

} // namespace
} // namespace tramelo::teste
