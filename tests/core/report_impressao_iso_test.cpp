// The data sheet's second page: the ISO 5167-2 check, printed only when the
// print dialog asked for it and the run has one.
#include "caixas_roteiro.h"
#include "dialogos_roteiro.h"
#include "report/frm_relatorio.h"
#include "report/impressao.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace tramelo::teste {
namespace {

// Writes down the texts of each line and each new page.
class ImpressoraPaginas : public Impressora {
  public:
    ImpressoraPaginas() : anterior_(impressoraInstalada()) { impressoraInstalada() = this; }
    ~ImpressoraPaginas() override { impressoraInstalada() = anterior_; }
    std::vector<std::string> saida;
    void DefineCopias(int) override {}
    void DefineFonte(const std::string&, int, bool) override {}
    void ImprimeLinha(const std::vector<PecaLinha>& pecas) override {
        std::string s;
        for (const PecaLinha& p : pecas) s += p.texto;
        saida.push_back(s);
    }
    void NovaPagina() override { saida.push_back("<nova página>"); }
    void FimDocumento() override { saida.push_back("<fim>"); }

  private:
    Impressora* anterior_;
};

TEST(ReportImpressaoIso, SegundaPagina) {
    struct Caso {
        bool pedida;
        std::vector<std::string> iso;
        bool temPagina;
    };
    const std::vector<Caso> casos = {
        {true, {" ISO 5167-2:2003 - segunda opinião", " Beta = d/D ___ 0,604197"}, true},
        {false, {" ISO 5167-2:2003 - segunda opinião"}, false},
        {true, {}, false}, // a report from before any run
    };
    for (const Caso& c : casos) {
        CaixasRoteiro caixas;
        DialogosRoteiro dialogos;
        dialogos.nomes = {"impressora"};
        ImpressoraPaginas impressora;
        FrmRelatorio r;
        r.lstRelatorio = {" linha do relatório"};
        r.lstIso = c.iso;
        r.txtCliente = "Usina Norte";
        DialogoImpressao().SegundaPaginaIso = c.pedida;
        mnuArquivoImprimir_Click(r);
        DialogoImpressao().SegundaPaginaIso = false;
        const auto& s = impressora.saida;
        auto pagina = std::find(s.begin(), s.end(), "<nova página>");
        ASSERT_EQ(pagina != s.end(), c.temPagina);
        EXPECT_EQ(s.back(), "<fim>");
        if (!c.temPagina) continue;
        // After the report's last line: the title, the header fields, the lines.
        EXPECT_EQ(*(pagina - 1), " linha do relatório");
        const std::vector<std::string> resto(pagina + 1, s.end());
        const std::vector<std::string> esperado = {
            "", "ISO 5167-2:2003", "", "Abrindo",
            r.lblOS + r.txtOS, r.lblCliente + "Usina Norte", "",
            c.iso[0], c.iso[1], "<fim>"};
        EXPECT_EQ(resto, esperado);
    }
}

} // namespace
} // namespace tramelo::teste
