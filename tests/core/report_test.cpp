// The report window's buttons: the clock, the export and the print's ISO page.
#include "caixas_roteiro.h"
#include "dialogos_roteiro.h"
#include "pasta_temporaria.h"
#include "plataforma/ambiente.h"
#include "plataforma/canal.h"
#include "report/agora.h"
#include "report/buffer.h"
#include "report/exportar.h"
#include "report/frm_relatorio.h"
#include "report/impressao.h"
#include "report/linhas.h"
#include "report/linhas_iso.h"
#include "base/mod_base.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <string>
#include <tuple>

namespace tramelo::teste {
namespace {

// The report's rounding to significant digits: the divisor is 10^m as its
// text reads back, which pow(10, 23) isn't. Expected values from Python 3.11:
// floor(x * math.pow(10, m) + 0.5) / float(f"1e{m}"), m = d - floor(log(x) / log(10)).
TEST(Report, ArredondaPelaPotenciaLida) {
    const struct {
        double x;
        int digitos;
        double esperado;
    } casos[] = {
        {0.0123456, 3, 0.01235},
        {102.26, 4, 102.26},
        {1234567.891, 2, 1230000.0},
        {0.000987654321, 5, 0.000987654},
        {6.117142834651689e-20, 3, 6.117000000000001e-20}, // m = 23
        {1e-25, 4, 1e-25},                                  // m = 29
        {0.5, 1, 0.5},
    };
    for (const auto& c : casos)
        EXPECT_EQ(Arredonda(c.x, c.digitos).valor(), c.esperado) << c.x << " " << c.digitos;
    // Every power the divisor table holds: x = 1.2345678901e(3 - m) to three
    // digits, m = -22 to 22, by the same Python formula.
    const double porPotencia[] = {
        1.235e+25, 1.235e+24, 1.2350000000000001e+23, 1.235e+22,
        1.235e+21, 1.2349999999999998e+20, 1.235e+19, 1.235e+18,
        1.235e+17, 1.235e+16, 1235000000000000.0, 123500000000000.0,
        12350000000000.0, 1235000000000.0, 123500000000.0, 12350000000.0,
        1235000000.0, 123499999.99999999, 12350000.0, 1235000.0,
        123500.0, 12350.0, 1235.0, 123.5,
        12.35, 1.235, 0.1235, 0.01235,
        0.001235, 0.0001235, 1.235e-05, 1.235e-06,
        1.235e-07, 1.235e-08, 1.235e-09, 1.235e-10,
        1.235e-11, 1.235e-12, 1.235e-13, 1.235e-14,
        1.235e-15, 1.235e-16, 1.235e-17, 1.235e-18,
        1.235e-19,
    };
    for (int m = -22; m <= 22; ++m) {
        const std::string texto = "1.2345678901e" + std::to_string(3 - m);
        double x = 0;
        std::from_chars(texto.data(), texto.data() + texto.size(), x);
        EXPECT_EQ(Arredonda(x, 3).valor(), porPotencia[m + 22]) << m;
    }
}

// The column heading: "Valor" from column 36, "Escala" ending at the 79th
// character, over the report's columns.
TEST(Report, CabecalhoDasColunas) {
    EXPECT_EQ(FrmRelatorio().lblMenu,
              " Descrição" + std::string(26, ' ') + "Valor" + std::string(32, ' ') + "Escala");
}

TEST(Report, HoraEDataDoBotao) {
    struct RelogioFixo : Relogio {
        Momento m{2026, 11, 23, 7, 5, 0, 1};
        Momento Agora() override { return m; }
    } relogio;
    Relogio* anterior = std::exchange(ambiente().relogio, &relogio);
    FrmRelatorio r;
    r.txtData = "texto digitado";
    cmdAgora_Click(r);
    EXPECT_EQ(r.txtData, "07:05 - segunda-feira, 23 de novembro de 2026");
    // Two-digit hours, minutes, days and months; 20/01/2026 is a Tuesday
    // (Python 3.11: date(2026, 1, 20).weekday() is 1, Monday being 0).
    relogio.m = {2026, 1, 20, 20, 53, 0, 2};
    cmdAgora_Click(r);
    EXPECT_EQ(r.txtData, "20:53 - terça-feira, 20 de janeiro de 2026");
    EXPECT_EQ(DataCurta({2027, 3, 6, 23, 59, 0, 6}), "06/03/2027");
    EXPECT_EQ(DataCurta({2026, 10, 30, 10, 0, 0, 5}), "30/10/2026");
    ambiente().relogio = anterior;
}

// The file as it must come out, in Windows-1252 ("ç" E7, "ã" E3, "â" E2,
// "í" ED), under the name as typed; then the desktop opens it, and whether
// anything could is not reported.
TEST(Report, ExportaOsBytesDoRelatorio) {
    struct SistemaRoteiro : Sistema {
        std::vector<std::string> abertos;
        void DoEvents() override {}
        void MousePointer(int) override {}
        bool Abre(const std::string& caminho) override {
            abertos.push_back(caminho);
            return false;
        }
    } sistema;
    Sistema* anterior = std::exchange(ambiente().sistema, &sistema);
    PastaTemporaria pasta;
    CaixasRoteiro caixas;
    DialogosRoteiro dialogos;
    canal1().Reinicia();
    const std::string pastaAntes = std::exchange(modBase().PastaRelatorios, pasta / "Relatorios");
    const std::string arquivo = pasta / "Relatorios/sem extensao";
    dialogos.nomes = {arquivo};
    FrmRelatorio r;
    r.txtData = "09:41 - quarta-feira, 4 de março de 2026";
    r.txtOS = "OS-2031";
    r.txtCliente = "Usina São João";
    AddRel(r, "");
    AddRel(r, "Diâmetro do orifício (mm)   52,31");
    AddRel(r, "Beta  0,5231");
    mnuArquivoExportarRelatorio_Click(r);
    EXPECT_EQ(LeBytes(arquivo),
              "================================= Data Sheet =================================\r\n"
              "\r\n"
              "Hora - data......: 09:41 - quarta-feira, 4 de mar\xE7o de 2026\r\n"
              "\r\n"
              "Ordem de servi\xE7o.: OS-2031\r\n"
              "Cliente..........: Usina S\xE3o Jo\xE3o\r\n"
              "\r\n"
              "Di\xE2metro do orif\xED" "cio (mm)   52,31\r\n"
              "Beta  0,5231\r\n"
              "==============================================================================\r\n");
    ASSERT_EQ(dialogos.mostrados.size(), 1u);
    EXPECT_EQ(dialogos.mostrados[0].InitDir, pasta / "Relatorios");
    EXPECT_EQ(dialogos.mostrados[0].FileName, "Usina São João");
    EXPECT_EQ(sistema.abertos, std::vector<std::string>{arquivo});
    modBase().PastaRelatorios = pastaAntes;
    ambiente().sistema = anterior;
}

// The data sheet's second page: the ISO 5167-2 check, printed only when the
// print dialog asked for it and the run has one.
TEST(Report, SegundaPaginaIso) {
    struct ImpressoraPaginas : Impressora {
        Impressora* anterior = std::exchange(impressoraInstalada(), this);
        ~ImpressoraPaginas() override { impressoraInstalada() = anterior; }
        std::vector<std::string> saida, fontes;
        void DefineCopias(int) override {}
        void DefineFonte(const std::string& n, int t, bool negrito) override {
            fontes.push_back(n + " " + std::to_string(t) + (negrito ? " negrito" : ""));
        }
        void ImprimeLinha(const std::vector<PecaLinha>& pecas) override {
            saida.emplace_back();
            for (const PecaLinha& p : pecas) saida.back() += p.texto;
        }
        void NovaPagina() override { saida.push_back("<nova página>"); }
        void FimDocumento() override { saida.push_back("<fim>"); }
    };
    ResultadoIso naoConcluido;
    naoConcluido.motivo = "O cálculo não foi concluído.";
    const std::string naoSeAplica = " Não se aplica: O cálculo não foi concluído.";
    // Asked for, the run's check, a second page; the last is a report from before any run.
    const std::tuple<bool, std::optional<ResultadoIso>, bool> casos[] = {
        {true, naoConcluido, true}, {false, naoConcluido, false}, {true, std::nullopt, false}};
    for (const auto& [pedida, verificacao, temPagina] : casos) {
        CaixasRoteiro caixas;
        DialogosRoteiro dialogos;
        dialogos.nomes = {"impressora"};
        ImpressoraPaginas impressora;
        FrmRelatorio r;
        r.lstRelatorio = {" linha do relatório"};
        r.iso = verificacao;
        r.Tag = "FT-2301";
        r.Arquivo = "agua.trl";
        r.txtCliente = "Usina Norte";
        DialogoImpressao().SegundaPaginaIso = pedida;
        mnuArquivoImprimir_Click(r);
        DialogoImpressao().SegundaPaginaIso = false;
        const auto& s = impressora.saida;
        auto pagina = std::find(s.begin(), s.end(), "<nova página>");
        ASSERT_EQ(pagina != s.end(), temPagina);
        EXPECT_EQ(s.back(), "<fim>");
        EXPECT_EQ(impressora.fontes.at(1), "Courier New 10"); // the body isn't bold
        if (!temPagina) continue;
        // After the report's last line: the title once, the sheet's header
        // with the Tag and the file that tell its plate, the check.
        EXPECT_EQ(*(pagina - 1), " linha do relatório");
        EXPECT_EQ(std::vector<std::string>(pagina + 1, s.end()),
                  (std::vector<std::string>{"", "ISO 5167-2:2003 - segunda opinião", "", "Abrindo", "",
                                            r.lblOS + r.txtOS, r.lblCliente + "Usina Norte",
                                            " Tag..............:FT-2301",
                                            " Arquivo..........:agua.trl", "", naoSeAplica,
                                            "<fim>"}));
    }
    // "Configurar impressão" shows the same dialog, for the printer's setup.
    DialogosRoteiro dialogos;
    mnuArquivoConfigurarImpressao_Click();
    EXPECT_TRUE(dialogos.mostrados.at(0).Flags & cdlPDPrintSetup);
}

} // namespace
} // namespace tramelo::teste

namespace tramelo::teste {
namespace {

// The check as a reader wants it: the verdict first, the uncertainties only
// where the standard gives them, the loss in the user's unit, numbers in
// the program's text, the bores compared at 20 ºC.
TEST(ReportIso, LinhasComoUmEngenheiroLe) {
    // A gas point with β and ReD out, its loss in mmCA and the plate at 120 ºC
    // (stainless: row 29 = 1 + 34e-6 · 100).
    ResultadoIso fora;
    fora.aplicavel = true;
    fora.Fluido = 1;
    fora.beta = 0.836267898;
    fora.d_mm = 33.450715;
    fora.d_mm_20C = 33.450715 / std::sqrt(1.0034);
    fora.diferenca_d_pct = -4.87254;
    fora.C = 0.577811232;
    fora.epsilo = 0.84286839;
    fora.ReD = 10210.95;
    fora.perda_permanente = 1234.5678;
    fora.unidade_perda = "mmCA";
    fora.incerteza_C_pct = 0.9;
    fora.incerteza_epsilo_pct = 0.00006565;
    fora.limites = {{"beta", 0.836267898, 0.1, 0.75, false}, {"ReD", 10210.95, 11188.3, {}, false},
                    {"p2/p1", 0.8, 0.75, {}, true}};
    const std::vector<std::string> l = LinhasIso5167(fora);
    const std::vector<std::string> esperadas = {
        " ISO 5167-2:2003 - segunda opinião",
        "",
        " Fora dos limites de uso: β, ReD",
        "",
        " Beta = d/D _______________________ 0,83627",
        " Diâmetro do orifício _____________ 33,451 mm",
        " Diâmetro do orifício a 20 ºC _____ 33,394 mm", // 33,450715 / √1,0034 = 33,39396
        " Diferença em d (Tramelo/ISO) _____ -4,873 %",
        " (os dois diâmetros a 20 ºC: o da ISO dividido pela raiz do fator do material)",
        " Coeficiente de descarga C ________ 0,577811",
        " Epsilo ___________________________ 0,842868",
        " ReD na vazão de projeto __________ 10211",
        " Perda de carga permanente ________ 1200 mmCA",
        " Incerteza de C ___________________ fora da norma",
        " Incerteza de Epsilo ______________ fora da norma",
        "",
        " Limites de uso (ISO 5167-2, 5.3.1):",
        " beta _____________________________ 0,836268 (0,1 a 0,75) FORA",
        " ReD ______________________________ 10211 (>= 11188,3) FORA",
        " p2/p1 ____________________________ 0,8 (>= 0,75) dentro",
    };
    EXPECT_EQ(l, esperadas);

    // Inside the limits: the uncertainties; a tiny one in the program's own
    // exponent form, never "6,56491e-05"; a liquid has no ε to speak of.
    fora.limites = {{"beta", 0.6, 0.1, 0.75, true}};
    fora.dentro_dos_limites = true;
    const std::vector<std::string> gas = CorpoIso5167(fora);
    EXPECT_EQ(gas.front(), " Dentro dos limites de uso");
    EXPECT_EQ(gas.at(11), " Incerteza de C ___________________ 0,9 %");
    EXPECT_EQ(gas.at(12), " Incerteza de Epsilo ______________ 6,6E-05 %");
    fora.Fluido = 0;
    const std::vector<std::string> liquido = CorpoIso5167(fora);
    EXPECT_EQ(liquido.at(8), " Epsilo ___________________________ não se aplica");
    EXPECT_EQ(liquido.at(12), " Incerteza de Epsilo ______________ não se aplica");
    ResultadoIso vena;
    vena.motivo = "A ISO 5167-2 não prevê tomadas de vena contracta.";
    EXPECT_EQ(CorpoIso5167(vena),
              std::vector<std::string>{" Não se aplica: A ISO 5167-2 não prevê tomadas de vena contracta."});
}

} // namespace
} // namespace tramelo::teste
