// Water and steam: IAPWS-IF97 region by region against the verification
// tables of IAPWS R7-97(2012), the viscosity against IAPWS R12-08.
#include "agua/if97.h"
#include "agua/viscosidade.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <sstream>
#include <string>

namespace tramelo::teste {
namespace {

// A figure as the release prints it, e.g. "0.100215168e-2", must be matched to
// half a unit of its last printed digit.
void ConfereImpresso(double x, const std::string& impresso) {
    const size_t e = impresso.find('e'),
                 casas = std::min(e, impresso.size()) - impresso.find('.') - 1;
    const int expoente = e == std::string::npos ? 0 : std::atoi(impresso.c_str() + e + 1);
    const double meiaUnidade = 0.5 * std::pow(10.0, expoente - static_cast<int>(casas));
    EXPECT_NEAR(x, std::stod(impresso), meiaUnidade) << impresso;
}

// T in K, then p in MPa (ρ in kg/m³ in region 3), then v (p in region 3), h,
// u, s, cp and w as printed, apart by spaces.
void ConfereTabela(EstadoIf97 (*regiao)(double, double), const char* const (&linhas)[3]) {
    for (const char* linha : linhas) {
        SCOPED_TRACE(linha);
        std::istringstream l(linha);
        double T = 0, x = 0;
        l >> T >> x;
        const EstadoIf97 e = regiao(x, T);
        std::string impresso;
        for (double obtido : {regiao == If97Regiao3 ? e.p_MPa : e.v, e.h, e.u, e.s, e.cp, e.w}) {
            ASSERT_TRUE(l >> impresso);
            ConfereImpresso(obtido, impresso);
        }
    }
}

// clang-format off
TEST(AguaIf97, Regiao1) {
    ConfereTabela(If97Regiao1, {
        // R7-97(2012) Table 5, T=300 K, p=3 MPa
        "300 3 0.100215168e-2 0.115331273e3 0.112324818e3 0.392294792 0.417301218e1 0.150773921e4",
        // R7-97(2012) Table 5, T=300 K, p=80 MPa
        "300 80 0.971180894e-3 0.184142828e3 0.106448356e3 0.368563852 0.401008987e1 0.163469054e4",
        // R7-97(2012) Table 5, T=500 K, p=3 MPa
        "500 3 0.120241800e-2 0.975542239e3 0.971934985e3 0.258041912e1 0.465580682e1 0.124071337e4"});
}

TEST(AguaIf97, Regiao2) {
    ConfereTabela(If97Regiao2, {
        // R7-97(2012) Table 15, T=300 K, p=0.0035 MPa
        "300 0.0035 0.394913866e2 0.254991145e4 0.241169160e4 0.852238967e1 0.191300162e1 0.427920172e3",
        // R7-97(2012) Table 15, T=700 K, p=0.0035 MPa
        "700 0.0035 0.923015898e2 0.333568375e4 0.301262819e4 0.101749996e2 0.208141274e1 0.644289068e3",
        // R7-97(2012) Table 15, T=700 K, p=30 MPa
        "700 30 0.542946619e-2 0.263149474e4 0.246861076e4 0.517540298e1 0.103505092e2 0.480386523e3"});
}

TEST(AguaIf97, Regiao3PorMassaEspecifica) {
    ConfereTabela(If97Regiao3, {
        // R7-97(2012) Table 33, T=650 K, ρ=500 kg/m³
        "650 500 0.255837018e2 0.186343019e4 0.181226279e4 0.405427273e1 0.138935717e2 0.502005554e3",
        // R7-97(2012) Table 33, T=650 K, ρ=200 kg/m³
        "650 200 0.222930643e2 0.237512401e4 0.226365868e4 0.485438792e1 0.446579342e2 0.383444594e3",
        // R7-97(2012) Table 33, T=750 K, ρ=500 kg/m³
        "750 500 0.783095639e2 0.225868845e4 0.210206932e4 0.446971906e1 0.634165359e1 0.760696041e3"});
}

TEST(AguaIf97, Regiao5) {
    ConfereTabela(If97Regiao5, {
        // R7-97(2012) Table 42, T=1500 K, p=0.5 MPa
        "1500 0.5 0.138455090e1 0.521976855e4 0.452749310e4 0.965408875e1 0.261609445e1 0.917068690e3",
        // R7-97(2012) Table 42, T=1500 K, p=30 MPa
        "1500 30 0.230761299e-1 0.516723514e4 0.447495124e4 0.772970133e1 0.272724317e1 0.928548002e3",
        // R7-97(2012) Table 42, T=2000 K, p=30 MPa
        "2000 30 0.311385219e-1 0.657122604e4 0.563707038e4 0.853640523e1 0.288569882e1 0.106736948e4"});
}
// clang-format on

TEST(AguaIf97, LinhaDeSaturacaoEFronteiraB23) {
    // R7-97(2012) Table 35: psat (MPa) at 300, 500 and 600 K.
    const std::pair<double, const char*> psat[] = {
        {300, "0.353658941e-2"}, {500, "0.263889776e1"}, {600, "0.123443146e2"}};
    // R7-97(2012) Table 36: Tsat (K) at 0.1, 1 and 10 MPa.
    const std::pair<double, const char*> tsat[] = {
        {0.1, "0.372755919e3"}, {1, "0.453035632e3"}, {10, "0.584149488e3"}};
    for (auto [T, p] : psat)
        ConfereImpresso(If97PressaoSaturacao_MPa(T), p);
    for (auto [p, T] : tsat)
        ConfereImpresso(If97TemperaturaSaturacao_K(p), T);
    // R7-97(2012) section 4, the check of Eqs. (5) and (6): T=623.15 K ↔ p=16.5291643 MPa.
    ConfereImpresso(If97PressaoB23_MPa(623.15), "0.165291643e2");
    ConfereImpresso(If97TemperaturaB23_K(16.5291643), "0.623150000e3");
}

TEST(AguaIf97, Regiao3DaPressao) {
    // The density found for (p, T) gives p back, on the B23 line, on the
    // branch of each side of saturation below Tc and next to the critical
    // point (647,096 K, 22,064 MPa); the other branch has no root far from it.
    for (double T : {623.16, 640.0, 647.0, 647.096, 647.1, 700.0, 863.15})
        for (double p : {If97PressaoB23_MPa(T), 21.0, 22.064, 22.1, 50.0, 100.0}) {
            if (p < If97PressaoB23_MPa(T)) continue;
            SCOPED_TRACE(testing::Message() << T << " K, " << p << " MPa");
            const bool liquido = T >= 647.096 || p >= If97PressaoSaturacao_MPa(T);
            const std::optional<double> rho = If97MassaEspecificaRegiao3(p, T, liquido);
            ASSERT_TRUE(rho);
            EXPECT_NEAR(If97Regiao3(*rho, T).p_MPa, p, 1e-12 * p);
        }
    // python3-iapws's region 3 at 640 K, scanned: p stays above 19,80 MPa on
    // the liquid branch and below 20,48 MPa on the vapour one.
    EXPECT_FALSE(If97MassaEspecificaRegiao3(100, 640, false));
    EXPECT_FALSE(If97MassaEspecificaRegiao3(18.6, 640, true));
}

TEST(AguaViscosidade, Tabela4) {
    // R12-08 Table 4 (μ2 = 1): T in K, ρ in kg/m³, μ in μPa·s.
    const struct {
        double T, rho;
        const char* mu;
    } tabela[] = {
        {298.15, 998, "889.735100"}, {298.15, 1200, "1437.649467"}, {373.15, 1000, "307.883622"},
        {433.15, 1, "14.538324"},    {433.15, 1000, "217.685358"},  {873.15, 1, "32.619287"},
        {873.15, 100, "35.802262"},  {873.15, 600, "77.430195"},    {1173.15, 1, "44.217245"},
        {1173.15, 100, "47.640433"}, {1173.15, 400, "64.154608"}};
    for (const auto& l : tabela)
        ConfereImpresso(1e6 * ViscosidadeAgua_Pas(l.rho, l.T), l.mu);
}

} // namespace
} // namespace tramelo::teste
