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

#include <csignal>
#include <filesystem>
#include <string>
#include <vector>

#include <sys/resource.h>

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
        EXPECT_EQ(d.DialogTitle, "Exportar relatório");
        EXPECT_EQ(d.Filter, "Documentos de texto (*.txt)|*.txt|Documentos de Word (*.doc)|*.doc");
        EXPECT_EQ(d.Flags, 0x806);
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

TEST_F(ReportExportar, SemLinhasEDeNovoPorCima) {
    FrmRelatorio r = Relatorio();
    dialogos.nomes = {Relatorios("a.txt")};
    mnuArquivoExportarRelatorio_Click(r);

    // The second export to the same name replaces the file whole.
    r.lstRelatorio.clear();
    r.txtCliente = "";
    dialogos.nomes = {Relatorios("a.txt")};
    mnuArquivoExportarRelatorio_Click(r);

    EXPECT_EQ(dialogos.mostrados.back().FileName, "");
    EXPECT_EQ(LeBytes(Relatorios("a.txt")),
              "================================= Data Sheet =================================\r\n"
              "\r\n"
              "Hora - data......: 09:41 - quarta-feira, 4 de mar\xE7o de 2026\r\n"
              "\r\n"
              "Ordem de servi\xE7o.: OS-2031\r\n"
              "Cliente..........: \r\n"
              "==============================================================================\r\n");
}

// Failures of the dialog and of the opening, each shown (or not) and each
// leaving the window enabled, shown, and the pointer restored.
TEST_F(ReportExportar, CancelamentoEFalhasAntesDeEscrever) {
    struct Caso {
        const char* nome;
        std::string escolhido; // "" cancels the dialog
        bool canalTomado;
        std::string titulo; // of the error box; "" none
        std::string descricao;
    };
    const std::vector<Caso> casos = {
        {"cancelado", "", false, "", ""},
        {"pasta inexistente", "nenhuma/r.txt", false, "Informação de Erro Código :76",
         "Caminho não encontrado"},
        {"canal tomado", "r.txt", true, "Informação de Erro Código :55", "Arquivo já aberto"},
    };
    for (const Caso& c : casos) {
        SCOPED_TRACE(c.nome);
        canal1().Reinicia();
        if (c.canalTomado) canal1().AbreSaida(pasta / "outro.trl");
        caixas.mostradas.clear();
        sistema.ponteiros.clear();
        FrmRelatorio r = Relatorio();
        r.Visible = false;
        dialogos.nomes = {c.escolhido.empty() ? "" : Relatorios(c.escolhido)};

        mnuArquivoExportarRelatorio_Click(r);

        // The folder is made before the dialog, whatever follows.
        EXPECT_TRUE(std::filesystem::is_directory(modBase().PastaRelatorios));
        EXPECT_TRUE(std::filesystem::is_empty(modBase().PastaRelatorios));
        EXPECT_TRUE(sistema.abertos.empty());
        EXPECT_TRUE(r.Enabled);
        EXPECT_TRUE(r.Visible);
        // The error box puts the default pointer back once more.
        std::vector<int> ponteiros{vbHourglass, vbDefault};
        if (!c.titulo.empty()) ponteiros.push_back(vbDefault);
        EXPECT_EQ(sistema.ponteiros, ponteiros);
        if (c.titulo.empty()) {
            EXPECT_TRUE(caixas.mostradas.empty());
        } else {
            ASSERT_EQ(caixas.mostradas.size(), 1u);
            EXPECT_EQ(caixas.mostradas[0].titulo, c.titulo);
            EXPECT_EQ(caixas.mostradas[0].texto,
                      "Descrição do Erro: " + c.descricao +
                          "\n\nEm caso de dúvidas, informe o código e descrição do erro ao "
                          "fabricante do software");
            EXPECT_EQ(caixas.mostradas[0].estilo, vbCritical);
        }
    }
}

// A file-size limit makes the writing itself fail half-way, as a full disk
// would; restored on leaving.
class LimiteDeArquivo {
  public:
    explicit LimiteDeArquivo(rlim_t bytes) {
        sinal_ = std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &anterior_);
        rlimit novo = anterior_;
        novo.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &novo);
    }
    ~LimiteDeArquivo() {
        setrlimit(RLIMIT_FSIZE, &anterior_);
        std::signal(SIGXFSZ, sinal_);
    }

  private:
    rlimit anterior_{};
    void (*sinal_)(int) = nullptr;
};

TEST_F(ReportExportar, FalhaAoEscreverDeixaOCanalTomado) {
    FrmRelatorio r = Relatorio();
    for (int i = 0; i < 2000; ++i)
        AddRel(r, std::string(70, 'x'));
    dialogos.nomes = {Relatorios("grande.txt"), Relatorios("pequeno.txt")};
    {
        LimiteDeArquivo limite(1024);
        mnuArquivoExportarRelatorio_Click(r);
    }
    ASSERT_EQ(caixas.mostradas.size(), 1u);
    EXPECT_EQ(caixas.mostradas[0].titulo, "Informação de Erro Código :57");
    EXPECT_TRUE(canal1().Ocupado());
    EXPECT_FALSE(std::filesystem::exists(Relatorios("grande.txt")));
    EXPECT_TRUE(r.Enabled);

    // The next export, however small, finds channel 1 taken.
    FrmRelatorio pequeno = Relatorio();
    mnuArquivoExportarRelatorio_Click(pequeno);
    ASSERT_EQ(caixas.mostradas.size(), 2u);
    EXPECT_EQ(caixas.mostradas[1].titulo, "Informação de Erro Código :55");
    EXPECT_FALSE(std::filesystem::exists(Relatorios("pequeno.txt")));
    EXPECT_TRUE(sistema.abertos.empty());
}

TEST_F(ReportExportar, PastaQueNaoPodeSerCriada) {
    // A file where the folder should be: the failure has no handler here.
    GravaBytes(pasta / "Relatorios", "x");
    FrmRelatorio r = Relatorio();
    try {
        mnuArquivoExportarRelatorio_Click(r);
        ADD_FAILURE() << "sem falha";
    } catch (const Falha& f) {
        EXPECT_EQ(f.numero(), 76);
    }
    EXPECT_TRUE(dialogos.mostrados.empty());
    EXPECT_TRUE(caixas.mostradas.empty());

    // The reports folder of the main menu passes the same failure over.
    mnuExibirRelatorio_Click();
    EXPECT_TRUE(sistema.abertos.empty());
}

TEST_F(ReportExportar, PastaDeRelatoriosAbertaNoSistema) {
    mnuExibirRelatorio_Click();
    EXPECT_TRUE(std::filesystem::is_directory(modBase().PastaRelatorios));
    EXPECT_EQ(sistema.abertos, std::vector<std::string>{modBase().PastaRelatorios});
    sistema.associado = false;
    mnuExibirRelatorio_Click();
    EXPECT_TRUE(caixas.mostradas.empty());
}

} // namespace
} // namespace tramelo::teste
