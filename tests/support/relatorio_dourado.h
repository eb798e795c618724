// Whole reports compared line by line with the files under
// tests/data/relatorios. Run the tests with TRAMELO_REESCREVE_RELATORIOS=1 to
// write the files anew from what the program gives (then read the diff).
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <string>
#include <vector>

namespace tramelo::teste {

inline std::string CaminhoDourado(const std::string& nome) {
    return std::string(TRAMELO_TEST_DATA) + "/relatorios/" + nome;
}

inline void ConfereDourado(const std::string& nome, const std::vector<std::string>& linhas) {
    const std::string caminho = CaminhoDourado(nome);
    if (const char* r = std::getenv("TRAMELO_REESCREVE_RELATORIOS"); r && std::string(r) == "1") {
        std::ofstream saida(caminho, std::ios::binary);
        for (const std::string& l : linhas)
            saida << l << '\n';
        return;
    }
    std::ifstream entrada(caminho, std::ios::binary);
    ASSERT_TRUE(entrada) << "falta o arquivo " << caminho;
    std::vector<std::string> esperadas;
    for (std::string l; std::getline(entrada, l);)
        esperadas.push_back(l);
    ASSERT_EQ(linhas.size(), esperadas.size()) << nome;
    for (size_t i = 0; i < linhas.size(); ++i)
        EXPECT_EQ(linhas[i], esperadas[i]) << nome << ", linha " << i + 1;
}

} // namespace tramelo::teste
