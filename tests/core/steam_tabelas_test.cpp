// The superheated steam tables as stored and as the viewer's grid shows them.
#include "steam/tabelas_vapor.h"

#include <gtest/gtest.h>

#include <regex>
#include <string>

namespace tramelo {
namespace {

const short Massa = 0, Volume = 1;

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
