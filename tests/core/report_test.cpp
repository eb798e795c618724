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
#include "base/mod_base.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

namespace tramelo::teste {
namespace {

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
    EXPECT_EQ(DataCurta({2027, 3, 6, 23, 59, 0, 6}), "06/03/2027");
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
    const std::vector<std::string> iso = {" ISO 5167-2:2003 - segunda opinião", "",
                                          " Não se aplica: O cálculo não foi concluído."};
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
        // After the report's last line: the title, the header fields, the lines.
        EXPECT_EQ(*(pagina - 1), " linha do relatório");
        EXPECT_EQ(std::vector<std::string>(pagina + 1, s.end()),
                  (std::vector<std::string>{"", "ISO 5167-2:2003", "", "Abrindo", r.lblOS + r.txtOS,
                                            r.lblCliente + "Usina Norte", "", iso[0], iso[1],
                                            iso[2], "<fim>"}));
    }
    // "Configurar impressão" shows the same dialog, for the printer's setup.
    DialogosRoteiro dialogos;
    mnuArquivoConfigurarImpressao_Click();
    EXPECT_TRUE(dialogos.mostrados.at(0).Flags & cdlPDPrintSetup);
}

} // namespace
} // namespace tramelo::teste
