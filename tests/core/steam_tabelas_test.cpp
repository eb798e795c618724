// The superheated steam tables as stored and as the viewer's grid shows them.
#include "steam/tabelas_vapor.h"

#include <gtest/gtest.h>

#include <regex>
#include <string>
#include <vector>

namespace tramelo {
namespace {

const short Massa = 0, Volume = 1;

// The pressure labels as issued: 1 to 16, 18 to 50 by 2, 55, 60, 70 to 160 by
// 10, 180, 200, 250.
std::vector<std::string> RotulosEsperados() {
    std::vector<std::string> r;
    for (int p = 1; p <= 16; ++p)
        r.push_back(std::to_string(p));
    for (int p = 18; p <= 50; p += 2)
        r.push_back(std::to_string(p));
    for (int p : {55, 60})
        r.push_back(std::to_string(p));
    for (int p = 70; p <= 160; p += 10)
        r.push_back(std::to_string(p));
    for (int p : {180, 200, 250})
        r.push_back(std::to_string(p));
    return r;
}

// Grid row of a pressure label.
int LinhaDe(const std::vector<std::vector<std::string>>& grade, const std::string& rotulo) {
    for (int i = 1; i < static_cast<int>(grade.size()); ++i)
        if (grade[i][0] == rotulo) return i;
    ADD_FAILURE() << "sem a linha " << rotulo;
    return 0;
}

TEST(SteamTabelas, TamanhoERotulosDasLinhas) {
    const std::vector<std::string> rotulos = RotulosEsperados();
    ASSERT_EQ(rotulos.size(), 48u);
    for (short tipo : {Massa, Volume, short(7)}) {
        SCOPED_TRACE(tipo);
        auto grade = GradeTabela(tipo);
        ASSERT_EQ(grade.size(), 49u);
        for (const auto& linha : grade)
            EXPECT_EQ(linha.size(), 17u);
        for (int i = 0; i < 48; ++i)
            EXPECT_EQ(grade[i + 1][0], rotulos[i]);
    }
    // Any type but 0 is the volume table.
    EXPECT_EQ(GradeTabela(7), GradeTabela(Volume));
    EXPECT_NE(GradeTabela(Massa), GradeTabela(Volume));
}

TEST(SteamTabelas, CabecalhoELarguras) {
    const std::vector<std::string> esperado = {
        "",       "220 ºC", "220 ºC", "240 ºC", "260 ºC", "280 ºC", "300 ºC", "320 ºC", "340 ºC",
        "360 ºC", "380 ºC", "400 ºC", "420 ºC", "440 ºC", "460 ºC", "480 ºC", "500 ºC"};
    EXPECT_EQ(CabecalhoTabela(), esperado);
    EXPECT_EQ(GradeTabela(Massa)[0], esperado);
    EXPECT_EQ(GradeTabela(Volume)[0], esperado);
    EXPECT_EQ(LarguraColunaTabela(0), 390);
    for (int c = 1; c < 17; ++c)
        EXPECT_EQ(LarguraColunaTabela(c), 720);
}

TEST(SteamTabelas, Titulos) {
    EXPECT_EQ(TituloTabela(Massa), "Massa específica do vapor superaquecido - Pressão (kgf/cm2) / "
                                   "Temperatura (ºC)\"  ");
    EXPECT_EQ(TituloTabela(Volume),
              "Volume específico do vapor superaquecido - Pressão (kgf/cm2) / "
              "Temperatura (ºC)");
    EXPECT_EQ(TituloTabela(-1), TituloTabela(Volume));
}

TEST(SteamTabelas, CelulasNomeadas) {
    struct Caso {
        const char* linha;
        int coluna;
        const char* massa;
        const char* volume;
    };
    // The cells that break the rise of volume along their row, as issued, and
    // the edges of the superheated region.
    const Caso casos[] = {
        {"3", 11, "0,662", "1,510"},
        {"3", 15, "0,887", "1,127"},
        {"4", 3, "1,984", "0,504"},
        {"4", 13, "1,070", "0,935"},
        {"5", 13, "1,153", "0,867"},
        {"18", 9, "6,623", "0,151"},
        {"60", 15, "1,786", "0,560"},
        {"90", 16, "27,778", "0,036"},
        {"1", 1, "0,451", "2,218"},
        {"1", 16, "0,275", "3,638"},
        {"15", 1, "7,353", "0,136"},
        {"16", 1, "-", "-"},
        {"16", 2, "7,463", "0,134"},
        {"22", 2, "10,638", "0,094"},
        {"24", 2, "-", "-"},
        {"180", 9, "111,111", "0,009"},
        {"200", 9, "-", "-"},
        {"250", 9, "-", "-"},
        {"250", 10, "-", ""},
        {"250", 11, "125,000", "0,008"},
        {"250", 16, "83,333", "0,012"},
        {"13", 16, "3,597", "0,278"},
    };
    auto massa = GradeTabela(Massa);
    auto volume = GradeTabela(Volume);
    for (const Caso& c : casos) {
        SCOPED_TRACE(std::string(c.linha) + " / " + massa[0][c.coluna]);
        EXPECT_EQ(massa[LinhaDe(massa, c.linha)][c.coluna], c.massa);
        EXPECT_EQ(volume[LinhaDe(volume, c.linha)][c.coluna], c.volume);
    }
}

TEST(SteamTabelas, TabulacoesExcedentesDoVolume) {
    for (int i = 0; i < LinhasVapor; ++i) {
        SCOPED_TRACE(i);
        auto massa = CelulasLinha(lstMassa[i]);
        auto volume = CelulasLinha(lstVolume[i]);
        EXPECT_EQ(massa.size(), 17u);
        if (i < 13) {
            // Kept in the stored row, three empty cells beyond the last column...
            ASSERT_EQ(volume.size(), 20u);
            EXPECT_EQ(lstVolume[i].substr(lstVolume[i].size() - 3), "\t\t\t");
            for (int c = 17; c < 20; ++c)
                EXPECT_EQ(volume[c], "");
            EXPECT_NE(volume[16], "");
        } else {
            EXPECT_EQ(volume.size(), 17u);
        }
        // ...and dropped by the grid, which shows the row's first 17 cells.
        volume.resize(17);
        EXPECT_EQ(GradeTabela(Volume)[i + 1], volume);
        EXPECT_EQ(GradeTabela(Massa)[i + 1], massa);
    }
}

TEST(SteamTabelas, CelulasComTraco) {
    auto massa = GradeTabela(Massa);
    auto volume = GradeTabela(Volume);
    // Row 1 has no "-"; the first value column's first "-" is at row 16.
    for (int c = 1; c < 17; ++c)
        EXPECT_NE(massa[1][c], "-");
    int primeiro = 0;
    for (int i = 1; i <= 48 && !primeiro; ++i)
        if (massa[i][1] == "-") primeiro = i;
    EXPECT_EQ(massa[primeiro][0], "16");
    // In every row the cells where the steam isn't superheated come first, and
    // both tables end the run at the same column.
    for (int i = 1; i <= 48; ++i) {
        SCOPED_TRACE(massa[i][0]);
        int c = 1;
        while (c < 17 && massa[i][c] == "-")
            ++c;
        for (int k = c; k < 17; ++k)
            EXPECT_NE(massa[i][k], "-");
        for (int k = 1; k < c; ++k) {
            const bool vazia = massa[i][0] == "250" && k == 10;
            EXPECT_EQ(volume[i][k], vazia ? "" : "-");
        }
        for (int k = c; k < 17; ++k)
            EXPECT_NE(volume[i][k], "-");
    }
    // Row 250's first value is at 400 ºC in both tables.
    EXPECT_EQ(massa[48][11], "125,000");
    EXPECT_EQ(volume[48][11], "0,008");
}

// Every value cell of the mass table is the reciprocal of the volume cell,
// rounded half up to three decimals: a typing slip in either table shows here.
TEST(SteamTabelas, MassaEhOInversoDoVolume) {
    const std::regex numero("[0-9]+,[0-9]{3}");
    auto milesimos = [](const std::string& s) {
        std::string d;
        for (char ch : s)
            if (ch != ',') d += ch;
        return std::stol(d);
    };
    auto massa = GradeTabela(Massa);
    auto volume = GradeTabela(Volume);
    int conferidas = 0;
    for (int i = 1; i <= 48; ++i) {
        for (int c = 1; c < 17; ++c) {
            if (massa[i][c] == "-") continue;
            SCOPED_TRACE(massa[i][0] + " / " + massa[0][c]);
            ASSERT_TRUE(std::regex_match(massa[i][c], numero)) << massa[i][c];
            ASSERT_TRUE(std::regex_match(volume[i][c], numero)) << volume[i][c];
            long v = milesimos(volume[i][c]);
            EXPECT_EQ(milesimos(massa[i][c]), (2000000 + v) / (2 * v));
            ++conferidas;
        }
    }
    EXPECT_EQ(conferidas, 626);
}

} // namespace
} // namespace tramelo
