// Water and steam: IAPWS-IF97 region by region against the verification
// tables of IAPWS R7-97(2012), the viscosity against IAPWS R12-08, and the
// whole (p, T) evaluation against python3-iapws.
#include "agua/if97.h"
#include "agua/propriedades.h"
#include "agua/viscosidade.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>
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
    // R7-97(2012) Table 35: psat (MPa) at 300, 500 and 600 K, through the kPa and ºC entry.
    const std::pair<double, const char*> psat[] = {
        {300, "0.353658941e-2"}, {500, "0.263889776e1"}, {600, "0.123443146e2"}};
    // R7-97(2012) Table 36: Tsat (K) at 0.1, 1 and 10 MPa.
    const std::pair<double, const char*> tsat[] = {
        {0.1, "0.372755919e3"}, {1, "0.453035632e3"}, {10, "0.584149488e3"}};
    for (auto [T, p] : psat)
        ConfereImpresso(*PressaoSaturacao_kPa(T - 273.15) / 1000, p);
    for (auto [p, T] : tsat)
        ConfereImpresso(If97TemperaturaSaturacao_K(p), T);
    // R7-97(2012) section 4, the check of Eqs. (5) and (6): T=623.15 K ↔ p=16.5291643 MPa.
    ConfereImpresso(If97PressaoB23_MPa(623.15), "0.165291643e2");
    ConfereImpresso(If97TemperaturaB23_K(16.5291643), "0.623150000e3");
    EXPECT_FALSE(PressaoSaturacao_kPa(-0.01));
    EXPECT_FALSE(PressaoSaturacao_kPa(374));
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

// Rows printed by tests/data/agua/referencia.py (python3-iapws 1.5.3,
// IAPWS97(P, T)); the phase words are this program's.
struct PontoAgua {
    double p_kPa, T_C;
    int regiao;
    double rho, h, s, cp, cv, w, mu, kappa, cpcv, tsat; // tsat NAN: none
    const char* fase;
};

TEST(AguaPropriedades, PontosDoPythonIapws) {
    const char *L = "líquido", *V = "vapor superaquecido", *S = "supercrítico";
    // clang-format off
    const PontoAgua pontos[] = {
        // referencia.py, region 1: water at 20 ºC, 150 ºC, just below Tsat, 0 ºC, 100 MPa
        {101.325, 20, 1, 998.2060925, 84.01305815, 0.2964826466, 4.184794095, 4.157436851, 1483.418861, 0.001001596855, 21678.59824, 1.006580315, 99.9743, L},
        {5000, 150, 1, 919.5554679, 635.0553995, 1.836935787, 4.295852958, 3.522294438, 1478.128407, 0.0001837619287, 401.8206519, 1.21961779, 263.9428712, L},
        {1000, 179.8, 1, 887.2201769, 762.3056385, 2.137598654, 4.404774067, 3.397099771, 1391.884255, 0.000150561208, 1718.848717, 1.296627819, 179.8856324, L},
        {101.325, 0, 1, 999.8443073, 0.06101196191, -0.0001477118231, 4.21943034, 4.216970261, 1402.439791, 0.001791750792, 19408.15342, 1.000583376, 99.9743, L},
        {100000, 300, 1, 823.1810838, 1328.919289, 3.021518392, 4.400306984, 2.9928599, 1373.412385, 0.000109607606, 15.52734851, 1.470268282, NAN, L},
        // referencia.py, region 2: 1000 kPa 250 ºC steam, kappa 1,300 and cp/cv 1,352
        {1000, 250, 2, 4.29665972, 2943.222165, 6.92662274, 2.211620273, 1.636190174, 550.1074973, 1.80582516e-05, 1.300247682, 1.351689008, 179.8856324, V},
        // referencia.py, region 2: sizing steam, low pressure, 100 MPa 800 ºC, and 40 MPa
        // 750 K, under the B23 line (46,0 MPa at 750 K)
        {500, 200, 2, 2.352754806, 2855.896196, 7.061071133, 2.144841712, 1.595862353, 526.8436408, 1.605952375e-05, 1.306081114, 1.344001698, 151.8362439, V},
        {4000, 400, 2, 13.61807753, 3214.373509, 6.771191994, 2.364224279, 1.733702919, 614.4893474, 2.440279464e-05, 1.285536844, 1.363684778, 250.3575191, V},
        {5, 50, 2, 0.0335771536, 2593.360364, 8.49755897, 1.89465019, 1.426356118, 444.3991551, 1.053007546e-05, 1.326234503, 1.328314974, 32.87548952, V},
        {100000, 800, 2, 230.6534967, 3715.188944, 6.040483672, 3.576244769, 2.240966291, 820.9974979, 5.078081827e-05, 1.554689659, 1.595849426, NAN, V},
        {40000, 476.85, 2, 206.9146017, 2754.099658, 5.274116854, 7.465893528, 2.702130064, 538.5863728, 3.613976703e-05, 1.50052028, 2.762966012, NAN, V},
        // referencia.py, region 3: 25 MPa 650 K, 20 MPa 635 K (liquid), 50 MPa 750 K,
        // 20 MPa 645 K (vapour), 22 MPa 650 K, 22,064 MPa 380 ºC, 100 MPa 420 ºC
        {25000, 376.85, 3, 488.8750521, 1876.359123, 4.075979, 15.73102414, 3.24406665, 478.9802547, 5.653962985e-05, 4.486349337, 4.849167985, NAN, S},
        {20000, 361.85, 3, 534.0897617, 1762.658947, 3.914237518, 13.00814144, 3.222691953, 512.0451137, 6.11552731e-05, 7.001655032, 4.03642099, 365.7459115, L},
        {50000, 476.85, 3, 309.9330853, 2536.422362, 4.93144752, 8.808641405, 2.803369765, 553.5216497, 4.400732762e-05, 1.899184509, 3.142161807, NAN, S},
        {20000, 371.85, 3, 138.2754072, 2558.053323, 5.158558802, 15.70548706, 3.491604323, 430.9343575, 2.610378463e-05, 1.283917718, 4.498071833, 365.7459115, V},
        {22000, 376.85, 3, 182.125387, 2428.95934, 4.939580368, 30.8266158, 3.862534645, 397.9169633, 2.877876759e-05, 1.310788776, 7.98092927, 373.7065652, V},
        {22064, 380, 3, 165.2734692, 2497.861844, 5.044777893, 20.07374916, 3.585346478, 418.6653166, 2.799743533e-05, 1.312964135, 5.598831043, NAN, S},
        {100000, 420, 3, 662.5621263, 1890.273852, 3.908918205, 5.025341615, 2.763620742, 1037.164802, 8.050011679e-05, 7.127252523, 1.818390468, NAN, S},
        // referencia.py, region 5: 10 MPa 1000 ºC, and the range's corner 50 MPa 2000 ºC
        {10000, 1000, 5, 17.12638817, 4613.657691, 7.834733725, 2.540330959, 2.037843984, 850.5346808, 4.830642559e-05, 1.23893875, 1.246577745, 310.999488, V},
        {50000, 2000, 5, 46.59094162, 7365.802234, 8.668866265, 2.98051762, 2.488479041, 1147.254348, 8.047010244e-05, 1.226452994, 1.197726632, NAN, V},
    };
    // clang-format on
    for (const PontoAgua& e : pontos) {
        SCOPED_TRACE(testing::Message() << e.p_kPa << " kPa, " << e.T_C << " ºC");
        const PropriedadesAgua r = CalculaPropriedadesAgua(e.p_kPa, e.T_C);
        ASSERT_EQ(r.erro, "");
        EXPECT_EQ(r.regiao, e.regiao);
        EXPECT_EQ(r.fase, e.fase);
        // Ten digits printed: agreement to 1e-9, relative.
        const double rhoDoVolume = 1 / r.volume_especifico, mu = r.viscosidade_cP / 1000;
        const double obtidos[] = {
            r.massa_especifica, rhoDoVolume,       r.entalpia, r.entropia, r.cp,         r.cv,
            r.velocidade_som,   r.viscosidade_Pas, mu,         r.kappa,    r.razao_cp_cv};
        const double esperados[] = {e.rho, e.rho, e.h,  e.s,     e.cp,  e.cv,
                                    e.w,   e.mu,  e.mu, e.kappa, e.cpcv};
        for (int k = 0; k < 11; ++k)
            EXPECT_NEAR(obtidos[k], esperados[k], 1e-9 * std::abs(esperados[k])) << k;
        // None at or above the critical pressure, NAN in the row.
        EXPECT_EQ(r.temperatura_saturacao_C.has_value(), !std::isnan(e.tsat));
        if (!std::isnan(e.tsat)) {
            EXPECT_NEAR(r.temperatura_saturacao_C.value_or(0), e.tsat, 1e-7);
        }
    }
}

TEST(AguaPropriedades, ForaDaFaixa) {
    const char* T = "A temperatura está fora da faixa da IAPWS-IF97 (0 a 800 ºC até 100 MPa; "
                    "acima de 800 ºC até 2000 ºC, só até 50 MPa).";
    const char* p = "A pressão tem que ser maior que zero.";
    const char* numeros = "A pressão e a temperatura têm que ser números.";
    const char* pMaxima = "A pressão está acima do limite da IAPWS-IF97 (100 MPa).";
    const double nan = std::numeric_limits<double>::quiet_NaN(), inf = INFINITY;
    const struct {
        double p_kPa, T_C;
        const char* erro;
    } casos[] = {{101.325, -0.01, T}, {60000, 800.01, T},      {101.325, 2000.01, T},
                 {0, 20, p},          {-100, 20, p},           {100000.01, 20, pMaxima},
                 {nan, 20, numeros},  {101.325, nan, numeros}, {inf, 20, numeros}};
    for (const auto& c : casos) {
        const PropriedadesAgua r = CalculaPropriedadesAgua(c.p_kPa, c.T_C);
        EXPECT_EQ(r.erro, c.erro) << c.p_kPa << " kPa, " << c.T_C << " ºC";
        EXPECT_TRUE(r.regiao == 0 && r.fase.empty() && r.massa_especifica == 0 && r.kappa == 0 &&
                    r.viscosidade_cP == 0 && !r.temperatura_saturacao_C);
    }
}

TEST(AguaPropriedades, PontoSobreALinhaDeSaturacao) {
    // T = Tsat(p) is liquid and the next temperature up is vapour: regions 1
    // and 2 at 1 MPa, the two branches of region 3 at 20 MPa. Densities:
    // referencia.py, IAPWS97(P, x=0) and (P, x=1).
    const struct {
        double p_kPa, rhoLiquido, rhoVapor;
        int regiaoLiquido, regiaoVapor;
    } casos[] = {{1000, 887.1274517, 5.145385853, 1, 2}, {20000, 490.5213504, 170.6986589, 3, 3}};
    for (const auto& c : casos) {
        const double Tsat = *TemperaturaSaturacao_C(c.p_kPa);
        const PropriedadesAgua l = CalculaPropriedadesAgua(c.p_kPa, Tsat);
        const PropriedadesAgua v = CalculaPropriedadesAgua(c.p_kPa, std::nextafter(Tsat, 1e9));
        EXPECT_EQ(l.fase + "/" + v.fase, "líquido/vapor superaquecido");
        EXPECT_EQ(l.regiao * 10 + v.regiao, c.regiaoLiquido * 10 + c.regiaoVapor);
        EXPECT_NEAR(l.massa_especifica, c.rhoLiquido, 1e-9 * c.rhoLiquido);
        EXPECT_NEAR(v.massa_especifica, c.rhoVapor, 1e-9 * c.rhoVapor);
    }
}

} // namespace
} // namespace tramelo::teste
