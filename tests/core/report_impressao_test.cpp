// Printing a report: the print dialog, and the data sheet as the printer
// receives it, line by line, on the good path and on each kind of failure.
#include "caixas_roteiro.h"
#include "dialogos_roteiro.h"
#include "plataforma/ambiente.h"
#include "plataforma/falha.h"
#include "report/buffer.h"
#include "report/frm_relatorio.h"
#include "report/impressao.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tramelo::teste {
namespace {

// A printer that writes down what it is asked, one text per call, and fails
// on request: at the call numbered `falhaEm` (from 1, copies included), or
// whenever copies are set.
class ImpressoraRoteiro : public Impressora {
  public:
    explicit ImpressoraRoteiro(const FrmRelatorio& r) : r_(r), anterior_(impressoraInstalada()) {
        impressoraInstalada() = this;
    }
    ~ImpressoraRoteiro() override { impressoraInstalada() = anterior_; }

    std::vector<std::string> chamadas;
    int falhaEm = 0;
    bool recusaCopias = false;
    bool janelaHabilitadaAoImprimir = true;

    void DefineCopias(int copias) override {
        Anota("copias " + std::to_string(copias));
        if (recusaCopias) throw Falha(380, "Valor de propriedade inválido");
    }
    void DefineFonte(const std::string& nome, int tamanho, bool negrito) override {
        Anota("fonte " + nome + " " + std::to_string(tamanho) + (negrito ? " negrito" : ""));
    }
    void ImprimeLinha(const std::vector<PecaLinha>& pecas) override {
        std::string s = "linha";
        for (const PecaLinha& p : pecas)
            s += " Tab(" + std::to_string(p.coluna) + ")[" + p.texto + "]";
        Anota(s);
    }
    void FimDocumento() override { Anota("fim"); }

  private:
    void Anota(const std::string& s) {
        chamadas.push_back(s);
        janelaHabilitadaAoImprimir = janelaHabilitadaAoImprimir && r_.Enabled;
        if (falhaEm == static_cast<int>(chamadas.size())) throw Falha(482);
    }
    const FrmRelatorio& r_;
    Impressora* anterior_;
};

// The mouse pointer as the desktop sees it.
class SistemaRoteiro : public Sistema {
  public:
    SistemaRoteiro() : anterior_(ambiente().sistema) { ambiente().sistema = this; }
    ~SistemaRoteiro() override { ambiente().sistema = anterior_; }
    std::vector<int> ponteiros;
    void DoEvents() override {}
    void MousePointer(int forma) override { ponteiros.push_back(forma); }
    bool Abre(const std::string&) override { return true; }

  private:
    Sistema* anterior_;
};

const std::string TituloErro482 = "Informação de Erro Código :482";
const std::string TextoErro482 =
    "Descrição do Erro: Erro de impressora\n\n"
    "Em caso de dúvidas, informe o código e descrição do erro ao fabricante do software";

// The whole data sheet of a report with two lines, ahead of the end.
std::vector<std::string> FolhaDeDados(const std::string& lblMenu) {
    return {
        "copias 2",
        "fonte Arial Black 28 negrito",
        "linha",
        "linha",
        "linha Tab(15)[Data Sheet]",
        "linha",
        "fonte Courier New 10",
        "linha Tab(9)[14:20 - terça-feira, 3 de março de 2026]",
        "linha",
        "linha Tab(9)[ Ordem de serviço.:] Tab(29)[OS-118]",
        "linha Tab(9)[ Cliente..........:] Tab(29)[Refinaria Alberto Pasqualini]",
        "linha",
        "linha",
        "linha Tab(9)[" + lblMenu + "]",
        "linha Tab(9)[ ]",
        "linha Tab(9)[ Diâmetro do orifício     52,31     mm]",
        "fim",
    };
}

FrmRelatorio RelatorioDeDuasLinhas() {
    FrmRelatorio r;
    r.txtData = "14:20 - terça-feira, 3 de março de 2026";
    r.txtOS = "OS-118";
    r.txtCliente = "Refinaria Alberto Pasqualini";
    AddRel(r, "");
    AddRel(r, "Diâmetro do orifício     52,31     mm");
    return r;
}

TEST(ReportImpressao, FolhaDeDadosLinhaALinha) {
    FrmRelatorio r = RelatorioDeDuasLinhas();
    ImpressoraRoteiro impressora(r);
    SistemaRoteiro sistema;
    CaixasRoteiro caixas;
    DialogosRoteiro dialogos;
    dialogos.nomes = {"ok"};
    dialogos.copias = 2;

    mnuArquivoImprimir_Click(r);

    EXPECT_EQ(impressora.chamadas, FolhaDeDados(r.lblMenu));
    ASSERT_FALSE(dialogos.mostrados.empty());
    EXPECT_EQ(dialogos.mostrados.back().Flags, 0x140204);
    EXPECT_FALSE(impressora.janelaHabilitadaAoImprimir);
    EXPECT_TRUE(r.Enabled);
    EXPECT_EQ(sistema.ponteiros, (std::vector<int>{vbHourglass, vbDefault}));
    EXPECT_TRUE(caixas.mostradas.empty());
}

TEST(ReportImpressao, RelatorioVazioCamposVazios) {
    // The title, the header block with its labels, and the column header.
    FrmRelatorio r;
    r.txtData = "";
    r.txtOS = "";
    ImpressoraRoteiro impressora(r);
    SistemaRoteiro sistema;
    DialogosRoteiro dialogos;
    dialogos.nomes = {"ok"};

    mnuArquivoImprimir_Click(r);

    const std::vector<std::string> esperadas = {
        "copias 1",
        "fonte Arial Black 28 negrito",
        "linha",
        "linha",
        "linha Tab(15)[Data Sheet]",
        "linha",
        "fonte Courier New 10",
        "linha Tab(9)[]",
        "linha",
        "linha Tab(9)[ Ordem de serviço.:] Tab(29)[]",
        "linha Tab(9)[ Cliente..........:] Tab(29)[]",
        "linha",
        "linha",
        "linha Tab(9)[ Descrição                          Valor                                "
        "Escala]",
        "fim",
    };
    EXPECT_EQ(impressora.chamadas, esperadas);
}

// Every way the run can end short of the whole print-out, and the refusal of
// copies that doesn't end it.
TEST(ReportImpressao, CancelamentoRecusaEFalhas) {
    struct Caso {
        const char* nome;
        bool confirma;  // the print dialog's answer
        bool instalada; // a printer is installed
        bool recusaCopias;
        int falhaEm;     // the printer's call that fails, 0 none
        size_t chamadas; // how many calls the printer got
        bool fim;        // the document was ended
        bool caixa;      // the error box of 482 was shown
        std::vector<int> ponteiros;
    };
    const std::vector<int> ocupado = {vbHourglass, vbDefault};
    const size_t todas = FolhaDeDados("").size();
    const std::vector<Caso> casos = {
        {"cancelado", false, true, false, 0, 0, false, false, {}},
        {"copias recusadas", true, true, true, 0, todas, true, false, ocupado},
        {"sem impressora", true, false, false, 0, 0, false, true, ocupado},
        {"falha na fonte do titulo", true, true, false, 2, 2, false, true, ocupado},
        {"falha no cabecalho", true, true, false, 10, 10, false, true, ocupado},
        {"falha na ultima linha", true, true, false, 16, 16, false, true, ocupado},
        {"falha ao terminar", true, true, false, 17, 17, true, true, ocupado},
    };
    for (const Caso& c : casos) {
        SCOPED_TRACE(c.nome);
        FrmRelatorio r = RelatorioDeDuasLinhas();
        ImpressoraRoteiro impressora(r);
        if (!c.instalada) impressoraInstalada() = nullptr;
        impressora.recusaCopias = c.recusaCopias;
        impressora.falhaEm = c.falhaEm;
        SistemaRoteiro sistema;
        CaixasRoteiro caixas;
        DialogosRoteiro dialogos;
        if (c.confirma) dialogos.nomes = {"ok"};
        dialogos.copias = 2;

        mnuArquivoImprimir_Click(r);

        EXPECT_EQ(impressora.chamadas.size(), c.chamadas);
        EXPECT_EQ(!impressora.chamadas.empty() && impressora.chamadas.back() == "fim", c.fim);
        EXPECT_TRUE(r.Enabled);
        // The error box puts the default pointer back once more.
        std::vector<int> ponteiros = c.ponteiros;
        if (c.caixa) ponteiros.push_back(vbDefault);
        EXPECT_EQ(sistema.ponteiros, ponteiros);
        if (c.caixa) {
            ASSERT_EQ(caixas.mostradas.size(), 1u);
            EXPECT_EQ(caixas.mostradas[0].titulo, TituloErro482);
            EXPECT_EQ(caixas.mostradas[0].texto, TextoErro482);
            EXPECT_EQ(caixas.mostradas[0].estilo, vbCritical + vbOKOnly);
        } else {
            EXPECT_TRUE(caixas.mostradas.empty());
        }
    }
}

class DialogoQueFalha : public DialogosRoteiro {
  public:
    bool ShowPrinter(ConfiguraDialogo&) override { throw Falha(28695, "Falha do diálogo"); }
};

TEST(ReportImpressao, DialogoDaImpressora) {
    {
        DialogosRoteiro dialogos;
        dialogos.nomes = {"ok", "", "ok"};
        dialogos.copias = 4;
        EXPECT_TRUE(MostraImpressora(true));
        EXPECT_EQ(dialogos.mostrados.back().Flags, 0x140244);
        EXPECT_FALSE(MostraImpressora(false)); // Cancel
        EXPECT_EQ(dialogos.mostrados.back().Flags, 0x140204);
        mnuArquivoConfigurarImpressao_Click();
        EXPECT_EQ(dialogos.mostrados.back().Flags, 0x140244);
        EXPECT_TRUE(dialogos.nomes.empty());
        EXPECT_EQ(DialogoImpressao().Copies, 4);
    }
    {
        DialogoQueFalha dialogos;
        CaixasRoteiro caixas;
        EXPECT_FALSE(MostraImpressora(false));
        EXPECT_TRUE(caixas.mostradas.empty());
    }
    Dialogos* anterior = ambiente().dialogos;
    ambiente().dialogos = nullptr;
    EXPECT_FALSE(MostraImpressora(false));
    ambiente().dialogos = anterior;
}

} // namespace
} // namespace tramelo::teste
