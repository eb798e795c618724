// Exporting a report: the save dialog, the bytes of the file, the desktop's
// open, and the failure paths with channel 1.
#include "caixas_roteiro.h"
#include "dialogos_roteiro.h"
#include "pasta_temporaria.h"
#include "plataforma/ambiente.h"
#include "plataforma/canal.h"
#include "report/buffer.h"
#include "report/exportar.h"
#include "report/frm_relatorio.h"
#include "shell/mdi_menu.h"
#include "shell/mod_base.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

namespace tramelo::teste {
namespace {

class SistemaRoteiro : public Sistema {
  public:
    SistemaRoteiro() : anterior_(ambiente().sistema) { ambiente().sistema = this; }
    ~SistemaRoteiro() override { ambiente().sistema = anterior_; }
    std::vector<int> ponteiros;
    std::vector<std::string> abertos;
    bool associado = true;
    void DoEvents() override {}
    void MousePointer(int forma) override { ponteiros.push_back(forma); }
    bool Abre(const std::string& caminho) override {
        abertos.push_back(caminho);
        return associado;
    }

  private:
    Sistema* anterior_;
};

// A reports folder of its own, channel 1 free before and after.
class ReportExportar : public ::testing::Test {
  protected:
    void SetUp() override {
        canal1().Reinicia();
        anterior_ = modBase().PastaRelatorios;
        modBase().PastaRelatorios = pasta / "Relatorios";
    }
    void TearDown() override {
        canal1().Reinicia();
        modBase().PastaRelatorios = anterior_;
    }
    std::string Relatorios(const std::string& nome) {
        return modBase().PastaRelatorios + "/" + nome;
    }

    PastaTemporaria pasta;
    SistemaRoteiro sistema;
    CaixasRoteiro caixas;
    DialogosRoteiro dialogos;

  private:
    std::string anterior_;
};

FrmRelatorio Relatorio() {
    FrmRelatorio r;
    r.txtData = "09:41 - quarta-feira, 4 de março de 2026";
    r.txtOS = "OS-2031";
    r.txtCliente = "Usina São João";
    AddRel(r, "");
    AddRel(r, "Diâmetro do orifício (mm)   52,31");
    AddRel(r, "Beta  0,5231");
    return r;
}

// The file as it must come out, in Windows-1252: "ç" E7, "ã" E3, "â" E2, "í" ED.
const std::string BytesDoRelatorio =
    "================================= Data Sheet =================================\r\n"
    "\r\n"
    "Hora - data......: 09:41 - quarta-feira, 4 de mar\xE7o de 2026\r\n"
    "\r\n"
    "Ordem de servi\xE7o.: OS-2031\r\n"
    "Cliente..........: Usina S\xE3o Jo\xE3o\r\n"
    "\r\n"
    "Di\xE2metro do orif\xED"
    "cio (mm)   52,31\r\n"
    "Beta  0,5231\r\n"
    "==============================================================================\r\n";

TEST_F(ReportExportar, TextoEWordComOsMesmosBytes) {
    sistema.associado = false; // nothing to open it with: not reported
    for (const char* nome : {"Usina.txt", "Usina.doc", "sem extensao"}) {
        SCOPED_TRACE(nome);
        FrmRelatorio r = Relatorio();
        r.Visible = false;
        dialogos.nomes = {Relatorios(nome)};
        dialogos.mostrados.clear();
        sistema.ponteiros.clear();
        sistema.abertos.clear();

        mnuArquivoExportarRelatorio_Click(r);

        EXPECT_EQ(LeBytes(Relatorios(nome)), BytesDoRelatorio);
        ASSERT_EQ(dialogos.mostrados.size(), 1u);
        const ConfiguraDialogo& d = dialogos.mostrados[0];
        EXPECT_EQ(d.InitDir, modBase().PastaRelatorios);
        EXPECT_EQ(d.FileName, "Usina São João");
        EXPECT_EQ(sistema.abertos, std::vector<std::string>{Relatorios(nome)});
        EXPECT_EQ(sistema.ponteiros, (std::vector<int>{vbHourglass, vbDefault}));
        EXPECT_TRUE(r.Enabled);
        EXPECT_TRUE(r.Visible);
        EXPECT_FALSE(canal1().Ocupado());
    }
    EXPECT_TRUE(caixas.mostradas.empty());
    // No extension is added to a name typed without one.
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(modBase().PastaRelatorios),
                            std::filesystem::directory_iterator()),
              3);
}

} // namespace
} // namespace tramelo::teste
