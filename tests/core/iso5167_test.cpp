// The ISO 5167-2:2003 check on points past every limit and every case it
// refuses; the rating of a given bore against python3-fluids and against the
// check's own bore, and the points it refuses.
#include "iso5167/iso5167.h"
#include "iso5167/verificacao.h"

#include <gtest/gtest.h>

#include <cmath>


namespace tramelo::teste {
namespace {

constexpr int Flange = 1, Raio = 2, Vena = 3, Canto = 4, Tubo = 5;

EntradaIso Ponto(int fluido, int tomada, double qm, double rho, double mu, double D, double dp,
                 double p1 = 0, double k = 0) {
    EntradaIso e;
    e.concluido = true, e.Fluido = fluido, e.Tomada = tomada;
    e.qm = qm, e.rho1 = rho, e.mu = mu, e.D_mm = D, e.dp = dp, e.p1 = p1, e.kappa = k;
    e.d_legado_mm = 61.83;
    return e;
}

// Sources of the expected figures: tests/data/iso5167/referencia.py, the
// equations typed again and beta found by bisection, printed to 10 digits;
// the uncertainties (5.3.3) and the difference in d worked by hand from them.
// Verdicts: d, D, beta, ReD, then p2/p1 for gas; 1 inside, 0 out. Water on
// flange taps and air on corner taps are the sample files' golden check.
struct Caso {
    const char* nome;
    EntradaIso e;
    double beta, d, C, eps, perda;
    std::vector<int> dentro;
    double uC = -1, uEps = 0, dif = 0; // uC < 0: not checked
};

TEST(Iso5167, PontosDeCadaTomadaEDeCadaLimite) {
    const std::vector<Caso> casos = {
        // D < 71,12 mm adds its term; d below 12,5 mm.
        // uC: 0,5 + 0,9 (0,75 - beta)(2,8 - 52,5/25,4).
        {"tubo pequeno", Ponto(0, Canto, 0.5, 998, 0.001, 52.5, 30000), 0.2217920378, 11.64408198,
         0.6060418609, 1, 28261.75571, {0, 1, 1, 1},
         0.5 + 0.9 * (0.75 - 0.2217920378) * (2.8 - 52.5 / 25.4), 0, 100 * (61.83 / 11.64408198 - 1)},
        // Radius taps; ReD 3183, below 5000. uC: 0,7 - beta below 0,2 (5.3.3.1).
        {"viscoso", Ponto(0, Raio, 0.5, 998, 0.002, 100, 5000), 0.1823802322, 18.23802322,
         0.6055066811, 1, 4802.501588, {1, 1, 1, 0}, 0.7 - 0.1823802322, 0,
         100 * (61.83 / 18.23802322 - 1)},
        // D above 1000 mm, beta below 0,1.
        {"tubo grande", Ponto(0, Flange, 5.0, 998, 0.001, 1200, 50000), 0.02720921839, 32.65106206,
         0.5977507207, 1, 49955.7656, {1, 0, 0, 1}},
        // D below 50 mm, beta above 0,75, p2/p1 = 0,7; uEps 3,5 dp / (k p1).
        {"gas fora", Ponto(1, Canto, 0.16, 1.19, 1.8e-5, 40, 30000, 100000, 1.4), 0.8362678986,
         33.45071594, 0.577811232, 0.8428683977, 10210.95014, {1, 0, 0, 1, 0},
         1.667 * 0.8362678986 - 0.5 + 0.9 * (0.75 - 0.8362678986) * (2.8 - 40 / 25.4),
         3.5 * 30000 / (1.4 * 100000), 100 * (61.83 / 33.45071594 - 1)},
    };
    for (const Caso& c : casos) {
        SCOPED_TRACE(c.nome);
        ResultadoIso r = CalculaIso5167(c.e);
        ASSERT_TRUE(r.aplicavel) << r.motivo;
        EXPECT_NEAR(r.beta, c.beta, 1e-9);
        EXPECT_NEAR(r.d_mm, c.d, 1e-7);
        EXPECT_NEAR(r.C, c.C, 1e-9);
        EXPECT_NEAR(r.epsilo, c.eps, 1e-9);
        EXPECT_NEAR(r.perda_permanente_Pa, c.perda, 1e-4);
        std::vector<int> dentro;
        for (const LimiteIso& l : r.limites) dentro.push_back(l.ok);
        EXPECT_EQ(dentro, c.dentro);
        if (c.uC < 0) continue;
        EXPECT_NEAR(r.incerteza_C_pct, c.uC, 1e-7);
        EXPECT_NEAR(r.incerteza_epsilo_pct, c.uEps, 1e-12);
        EXPECT_NEAR(r.diferenca_d_pct, c.dif, 1e-6);
    }
}

TEST(Iso5167, CasosForaDaNorma) {
    // Not done, restriction plates and vena contracta: the sample files.
    const std::pair<EntradaIso, std::string> casos[] = {
        {Ponto(0, Tubo, 13.86, 998, 0.001, 102.26, 25000),
         "A ISO 5167-2 não prevê tomadas 2 1/2D e 8D."},
        {Ponto(1, Flange, 13.86, 998, 0.001, 102.26, 25000, 20000, 1.4),
         "A pressão absoluta tem que ser maior que a pressão diferencial, e k maior que zero."},
        // More flow than a bore of the whole pipe passes.
        {Ponto(0, Flange, 1000, 998, 0.001, 102.26, 25000),
         "O diâmetro do orifício pela ISO 5167-2 não converge para estes dados."},
        // A flow beyond any number: the first step has no beta to work with.
        {Ponto(0, Flange, 1e200, 998, 0.001, 102.26, 25000),
         "O diâmetro do orifício pela ISO 5167-2 não converge para estes dados."},
    };
    for (const auto& [e, motivo] : casos) {
        ResultadoIso r = CalculaIso5167(e);
        EXPECT_FALSE(r.aplicavel);
        EXPECT_EQ(r.motivo, motivo);
        EXPECT_TRUE(r.limites.empty());
    }
}

EntradaVerificacao Placa(EntradaIso e, double d20, double fator, std::vector<double> pcts = {},
                         double uD = 0, double ud = 0, double udp = 0, double urho = 0) {
    e.fator_area = fator;
    EntradaVerificacao v{e, d20, std::move(pcts), uD, ud, udp, urho};
    return v;
}

double Relativo(double a, double b) {
    return std::abs(a / b - 1);
}

// Source of every figure: tests/data/iso5167/verifica.py, python3-fluids'
// differential_pressure_meter_solver (m at the design dp; P2 at each flow,
// dp = P1 - P2) and its C and epsilon at that point; the flow's uncertainty,
// ISO 5167-2 5.3.3 combined by ISO 5167-1 clause 8, and the limits out by
// 5.3.1, typed again in the script. The first flow is the design flow.
struct Faixa {
    double pct, dp, ReD, C, eps, u;
    std::vector<std::string> fora;
};
struct CasoFaixa {
    const char* nome;
    EntradaVerificacao e;
    double vazao_kg_h;
    std::vector<Faixa> pontos;
};

TEST(VerificacaoIso5167, ContraPythonFluids) {
    const CasoFaixa casos[] = {
        {"agua flange",
         Placa(Ponto(0, Flange, 13.86, 998, 0.001, 102.26, 25000), 60, 1.000884, {100, 10, 50}, 0.4,
               0.07, 0.6, 0.2),
         46674.6920035,
         {{100, 28585.8536528, 172570.898592, 0.608676440951, 1, 0.6219749805, {}},
          {10, 275.149810952, 17257.0898592, 0.62040810981, 1, 0.6219749805, {}},
          {50, 7097.77196426, 86285.4492961, 0.610760664197, 1, 0.6219749805, {}}}},
        // D < 71,12 mm; beta 0,572 > 0,56 puts 42 % (ReD 5093) below 16000 beta^2.
        {"oleo raio tubo pequeno",
         Placa(Ponto(0, Raio, 2.0, 870, 0.004, 52.5, 30000), 30, 1.0034, {100, 37.5, 42, 50}, 0.4,
               0.07, 0.6, 0.2),
         12099.4082523,
         {{100, 10455.0447649, 12126.0909022, 0.624635846958, 1, 0.7174661807, {}},
          {37.5, 1395.87521411, 4547.28408834, 0.641058735162, 1, 1.175556171, {"ReD"}},
          {42, 1765.19175315, 5092.95817894, 0.638473972662, 1, 1.175556171, {"ReD"}},
          {50, 2529.7736376, 6063.04545112, 0.63492002626, 1, 1.175556171, {}}}},
        {"ar canto",
         Placa(Ponto(1, Canto, 2.0, 5.5, 1.8e-5, 154.05, 20000, 500000, 1.4), 95, 1, {100, 25, 75},
               0.4, 0.07, 0.6, 0.2),
         7742.72255336,
         {{100, 17231.9827161, 918345.086181, 0.605490329927, 0.989918960362, 0.6567366768, {}},
          {25, 1047.63616756, 229586.271545, 0.608098954181, 0.99938997783, 0.6510813854, {}},
          {75, 9592.45031351, 688758.814635, 0.605911979002, 0.994400708049, 0.6528245626, {}}}},
        {"gas flange tubo pequeno",
         Placa(Ponto(1, Flange, 0.3, 10, 1.1e-5, 60, 40000, 130000, 1.3), 30, 1, {100, 50, 120},
               0.4, 0.07, 0.6, 0.2),
         1291.11487478,
         {{100, 26063.2475768, 578745.247607, 0.604606713822, 0.941395838379, 0.8801732871, {}},
          {50, 5913.04088605, 289372.623803, 0.605373338212, 0.986962786208, 0.7059377895, {}},
          {120, 40385.5027263, 694494.297128, 0.604443098723, 0.907763215572, 1.087609142,
           {"p2/p1"}}}},
        {"vapor raio",
         Placa(Ponto(2, Raio, 5.0, 20, 1.6e-5, 202.74, 50000, 4e6, 1.3), 120, 1.006494, {100, 10}),
         37352.6749738,
         {{100, 11520.6219576, 1962549.85563, 0.606024563918, 0.999119695016, 0.500060125, {}},
          {10, 113.699984373, 196254.985563, 0.60949378297, 0.999991314905, 0.5000000059, {}}}},
    };
    for (const CasoFaixa& c : casos) {
        SCOPED_TRACE(c.nome);
        const ResultadoVerificacao r = VerificaPlaca(c.e);
        ASSERT_TRUE(r.aplicavel) << r.motivo;
        EXPECT_EQ(r.d_mm_20C, c.e.d20_mm);
        EXPECT_LT(Relativo(r.d_mm_operacao, c.e.d20_mm * std::sqrt(c.e.ponto.fator_area)), 1e-15);
        EXPECT_LT(Relativo(r.vazao_kg_h, c.vazao_kg_h), 1e-9);
        EXPECT_LT(Relativo(r.pressao_diferencial_Pa, c.pontos[0].dp), 1e-9);
        ASSERT_EQ(r.faixa.size(), c.pontos.size());
        for (size_t i = 0; i < c.pontos.size(); ++i) {
            const PontoFaixa& p = r.faixa[i];
            const Faixa& f = c.pontos[i];
            SCOPED_TRACE(f.pct);
            ASSERT_TRUE(p.aplicavel) << p.motivo;
            EXPECT_EQ(p.vazao_pct, f.pct);
            EXPECT_LT(Relativo(p.vazao_kg_h, (f.pct / 100) * c.e.ponto.qm * 3600), 1e-14);
            EXPECT_LT(Relativo(p.pressao_diferencial_Pa, f.dp), 1e-9);
            EXPECT_LT(Relativo(p.ReD, f.ReD), 1e-11);
            EXPECT_NEAR(p.C, f.C, 1e-11);
            EXPECT_NEAR(p.epsilo, f.eps, 1e-11);
            EXPECT_NEAR(p.incerteza_vazao_pct, f.u, 1e-9);
            EXPECT_EQ(p.limites_fora, f.fora);
            EXPECT_EQ(p.dentro_dos_limites, f.fora.empty());
            EXPECT_EQ(p.avisos.size(), f.fora.size());
        }
    }
}

// The check's own bore, at 20 ºC, gives back the design flow and dp.
TEST(VerificacaoIso5167, IdaEVoltaPeloDiametroDaVerificacao) {
    for (int tomada : {Flange, Raio, Canto}) {
        for (const EntradaIso& e :
             {Ponto(0, tomada, 13.86, 998, 0.001, 102.26, 25000),
              Ponto(1, tomada, 2.0, 5.5, 1.8e-5, 154.05, 20000, 500000, 1.4)}) {
            SCOPED_TRACE(testing::Message() << "tomada " << tomada << " fluido " << e.Fluido);
            const ResultadoIso iso = CalculaIso5167(e);
            ASSERT_TRUE(iso.aplicavel);
            const double fator = 1.0034;
            const ResultadoVerificacao r =
                VerificaPlaca(Placa(e, iso.d_mm / std::sqrt(fator), fator, {100}));
            ASSERT_TRUE(r.aplicavel) << r.motivo;
            EXPECT_LT(Relativo(r.vazao_kg_h, e.qm * 3600), 1e-9);
            EXPECT_LT(Relativo(r.pressao_diferencial_Pa, e.dp), 1e-9);
            EXPECT_NEAR(r.faixa[0].C, iso.C, 1e-9);
            EXPECT_NEAR(r.faixa[0].epsilo, iso.epsilo, 1e-9);
        }
    }
}

TEST(VerificacaoIso5167, CasosQueNaoSeVerificam) {
    const EntradaIso agua = Ponto(0, Flange, 13.86, 998, 0.001, 102.26, 25000);
    EntradaIso aberto = agua, restricao = agua, vena = agua;
    aberto.concluido = false, restricao.Placa = 2, vena.Tomada = Vena;
    const std::pair<EntradaVerificacao, std::string> casos[] = {
        {Placa(aberto, 60, 1), "O cálculo não foi concluído."},
        {Placa(restricao, 60, 1), "A ISO 5167-2 não se aplica a orifícios de restrição."},
        {Placa(vena, 60, 1), "A ISO 5167-2 não prevê tomadas de vena contracta."},
        {Placa(Ponto(0, Tubo, 13.86, 998, 0.001, 102.26, 25000), 60, 1),
         "A ISO 5167-2 não prevê tomadas 2 1/2D e 8D."},
        {Placa(agua, 102.26, 1),
         "O diâmetro do orifício tem que ser menor que o diâmetro interno do tubo."},
        {Placa(agua, 0, 1),
         "O diâmetro do orifício a 20 ºC e o fator de área têm que ser maiores que zero."},
        {Placa(agua, 60, 1, {50, 0}),
         "As porcentagens da vazão de projeto têm que ser maiores que zero."},
        {Placa(agua, 60, 1, {}, 0, NAN), "As incertezas de D, d, pressão diferencial e massa "
                                         "específica têm que ser números não negativos."},
        // A bore so small the design flow of gas would need more than p1.
        {Placa(Ponto(1, Canto, 2.0, 5.5, 1.8e-5, 154.05, 20000, 500000, 1.4), 20, 1),
         "À vazão de projeto, a pressão diferencial não seria menor que a pressão absoluta a "
         "montante."},
    };
    for (const auto& [e, motivo] : casos) {
        const ResultadoVerificacao r = VerificaPlaca(e);
        EXPECT_FALSE(r.aplicavel);
        EXPECT_EQ(r.motivo, motivo);
        EXPECT_TRUE(r.faixa.empty());
    }
}

// Each limit out named in its point's sentence; a flow whose dp would pass p1
// refused alone. Limits by ISO 5167-2 5.3.1 worked by hand: beta 80/102,26.
TEST(VerificacaoIso5167, LimitesForaEPontoRecusado) {
    const EntradaIso gas = Ponto(1, Flange, 0.3, 10, 1.1e-5, 60, 40000, 130000, 1.3);
    ResultadoVerificacao r = VerificaPlaca(Placa(gas, 30, 1, {120, 300}));
    ASSERT_TRUE(r.aplicavel) << r.motivo;
    EXPECT_EQ(r.faixa[0].avisos,
              std::vector<std::string>{"p2/p1 abaixo do limite a 120 % da vazão"});
    EXPECT_FALSE(r.faixa[1].aplicavel);
    EXPECT_EQ(r.faixa[1].motivo,
              "A pressão diferencial não seria menor que a pressão absoluta a montante.");
    EXPECT_EQ(r.faixa[1].pressao_diferencial_Pa, 0);

    r = VerificaPlaca(Placa(Ponto(0, Raio, 2.0, 870, 0.004, 52.5, 30000), 30, 1.0034, {37.5}));
    EXPECT_EQ(r.faixa[0].avisos,
              std::vector<std::string>{"ReD abaixo do limite a 37,5 % da vazão"});
    r = VerificaPlaca(Placa(Ponto(0, Canto, 13.86, 998, 0.001, 102.26, 25000), 80, 1, {100}));
    EXPECT_EQ(r.faixa[0].avisos, std::vector<std::string>{"beta acima do limite a 100 % da vazão"});
}

// ISO 5167-2 5.3.1 worked by hand: 5000, 170 beta^2 D for flange taps,
// 16000 beta^2 above beta 0,56 for the others.
TEST(VerificacaoIso5167, ReynoldsMinimoDeCadaTomada) {
    EXPECT_EQ(iso::ReDMinimo(0.5, Flange, 102.26), 5000);
    EXPECT_DOUBLE_EQ(iso::ReDMinimo(0.75, Flange, 1000), 95625);
    EXPECT_EQ(iso::ReDMinimo(0.56, Canto, 100), 5000);
    EXPECT_DOUBLE_EQ(iso::ReDMinimo(0.75, Canto, 100), 9000);
    EXPECT_DOUBLE_EQ(iso::ReDMinimo(0.6, Raio, 100), 5760);
    EXPECT_TRUE(std::isnan(iso::ReDMinimo(0.5, Vena, 100)));
}

} // namespace
} // namespace tramelo::teste
