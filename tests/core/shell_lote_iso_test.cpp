// tramelo-calc's ISO 5167-2 check: the JSON object of each file and the
// section that --iso prints after each report.
#include "pasta_temporaria.h"
#include "relatorio_dourado.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <cstdio>
#include <sstream>
#include <string>
#include <vector>

namespace tramelo::teste {
namespace {

std::string Executa(const PastaTemporaria& pasta, const std::string& argumentos) {
    const std::string comando = "XDG_DATA_HOME=" + pasta.str() + " XDG_CONFIG_HOME=" +
                                pasta.str() + " " TRAMELO_CALC " " + argumentos + " 2>/dev/null";
    std::string saida;
    FILE* p = popen(comando.c_str(), "r");
    char buf[4096];
    for (size_t n; (n = fread(buf, 1, sizeof buf, p)) > 0;) saida.append(buf, n);
    pclose(p);
    return saida;
}

std::string Exemplo(const std::string& nome) {
    return std::string(TRAMELO_EXEMPLOS) + "/" + nome;
}

// The air sample made an orifice plate (the first of the file's lists).
std::string PlacaDeAr(const PastaTemporaria& pasta) {
    std::string bytes = LeBytes(Exemplo("ar.trl"));
    const std::string restricao = "\r\n1\r\n1,  ";
    bytes.replace(bytes.find(restricao), restricao.size(), "\r\n0\r\n1,  ");
    GravaBytes(pasta / "ar_placa.trl", bytes);
    return pasta / "ar_placa.trl";
}

TEST(ShellLoteIso, JsonDeCadaArquivo) {
    PastaTemporaria pasta;
    auto j = nlohmann::json::parse(Executa(
        pasta, "--json " + Exemplo("agua.trl") + " " + PlacaDeAr(pasta) + " " +
                   Exemplo("vapor.trl") + " " + pasta / "falta.trl" + " " + Exemplo("ar.trl")));
    ASSERT_EQ(j.size(), 5u);
    // Water, flange taps: the reference implementation's d = 61.78516 mm,
    // beta = 0.6041967, C = 0.6093025, loss 15 572.0 Pa, against 61,83 mm.
    const auto& agua = j[0]["iso5167"];
    EXPECT_EQ(agua["aplicavel"], true);
    EXPECT_TRUE(agua["motivo"].is_null());
    EXPECT_NEAR(agua["d_mm"].get<double>(), 61.78516, 5e-6);
    EXPECT_NEAR(agua["beta"].get<double>(), 0.6041967, 5e-8);
    EXPECT_NEAR(agua["C"].get<double>(), 0.6093025, 5e-8);
    EXPECT_EQ(agua["epsilo"], 1.0);
    EXPECT_NEAR(agua["perda_permanente_Pa"].get<double>(), 15572.0, 0.05);
    // Tramelo's Beta of this file is 0,6046...: 100 (Beta D / d - 1).
    EXPECT_NEAR(agua["diferenca_d_pct"].get<double>(), 0.07, 0.01);
    ASSERT_EQ(agua["limites"].size(), 4u); // no pressure ratio for a liquid
    const nlohmann::json D = {
        {"nome", "D (mm)"}, {"valor", 102.26}, {"minimo", 50.0}, {"maximo", 1000.0}, {"ok", true}};
    EXPECT_EQ(agua["limites"][1], D);
    EXPECT_TRUE(agua["limites"][0]["maximo"].is_null());
    // Air, corner taps: expansibility and the pressure ratio come in.
    const auto& ar = j[1]["iso5167"];
    EXPECT_EQ(ar["aplicavel"], true);
    EXPECT_LT(ar["epsilo"].get<double>(), 1.0);
    EXPECT_GT(ar["incerteza_epsilo_pct"].get<double>(), 0.0);
    EXPECT_EQ(ar["limites"].size(), 5u);
    EXPECT_EQ(ar["limites"][4]["nome"], "p2/p1");
    // Steam through vena-contracta taps, a file that isn't there, a
    // restriction orifice.
    const std::vector<std::pair<int, std::string>> fora = {
        {2, "A ISO 5167-2 não prevê tomadas de vena contracta."},
        {3, "O cálculo não foi concluído."},
        {4, "A ISO 5167-2 não se aplica a orifícios de restrição."}};
    for (const auto& [i, motivo] : fora) {
        const auto& iso = j[static_cast<size_t>(i)]["iso5167"];
        EXPECT_EQ(iso["aplicavel"], false);
        EXPECT_EQ(iso["motivo"], motivo);
        EXPECT_TRUE(iso["d_mm"].is_null());
        EXPECT_TRUE(iso["limites"].empty());
    }
}

// The whole text of --iso: the reports exactly as without it, each followed
// by its section. The air plate's section agrees with "ar placa" of
// tests/data/iso5167/referencia.py (d 47,2055 mm, C 0,603973, eps 0,994777).
TEST(ShellLoteIso, SecaoDepoisDeCadaRelatorio) {
    PastaTemporaria pasta;
    const std::string arquivos = Exemplo("agua.trl") + " " + PlacaDeAr(pasta) + " " +
                                 Exemplo("ar.trl") + " " + Exemplo("vapor.trl");
    const std::string semIso = Executa(pasta, arquivos);
    const std::string comIso = Executa(pasta, "--iso " + arquivos);
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
    EXPECT_EQ(resto, semIso);
}

} // namespace
} // namespace tramelo::teste
