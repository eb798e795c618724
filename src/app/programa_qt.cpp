#include "app/programa_qt.h"

#include "app/encerramento_qt.h"
#include "app/impressora_qt.h"
#include "app/ligacao_qt.h"
#include "app/servicos_qt.h"
#include "desktop/calculadora_view.h"
#include "desktop/calculo_view.h"
#include "document/ciclo.h"
#include "document/entrada.h"
#include "document/frm_calc_tramelo.h"
#include "document/janelas.h"
#include "plataforma/ambiente.h"
#include "desktop/caixas_view.h"
#include "report/exportar.h"
#include "report/frm_relatorio.h"
#include "report/impressao.h"
#include "desktop/abertura_view.h"
#include "shell/associacao.h"
#include "base/barras.h"
#include "desktop/dicas_view.h"
#include "shell/entrada.h"
#include "shell/mdi_menu.h"
#include "desktop/mdi_menu_view.h"
#include "base/mod_base.h"
#include "desktop/opcoes_view.h"
#include "desktop/tabela_view.h"

#include <QApplication>
#include <QIcon>
#include <QLineEdit>
#include <QLocale>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QProcess>
#include <QStandardPaths>

namespace tramelo {

ProgramaQt::ProgramaQt(bool servicosDoUsuario) {
    QLocale::setDefault(QLocale(QLocale::Portuguese, QLocale::Brazil));
    if (QApplication::windowIcon().isNull())
        QApplication::setWindowIcon(QIcon(QStringLiteral(":/tramelo/tramelo.png")));
    sistema_ = std::make_unique<SistemaQt>();
    ambiente().sistema = sistema_.get();
    if (servicosDoUsuario) {
        caixas_ = std::make_unique<CaixasQt>();
        dialogos_ = std::make_unique<DialogosQt>();
        ambiente().caixas = caixas_.get();
        ambiente().dialogos = dialogos_.get();
        ligacao_ = std::make_unique<LigacaoQt>();
        ligacaoInstancias() = ligacao_.get();
        abertura_ = std::make_unique<AberturaQt>();
        telaAbertura() = abertura_.get();
    }
    telaMenu() = this;
    // The desktop's databases are refreshed in the background: the start
    // doesn't wait for them.
    ExecutaFerramenta = [](const std::string& programa, const std::vector<std::string>& argumentos) {
        const QString caminho = QStandardPaths::findExecutable(QString::fromStdString(programa));
        if (caminho.isEmpty()) return;
        QStringList lista;
        for (const std::string& a : argumentos) lista << QString::fromStdString(a);
        QProcess::startDetached(caminho, lista);
    };
    // One run of the program: its frame and its numbering start afresh.
    mdiMenu() = MdiMenu{};
    ContadorCalculos() = 0;
    // A second start ends at once, before any window.
    EncerraProcesso = [this] { segundaInstancia_ = true; };
}

ProgramaQt::~ProgramaQt() {
    // The windows go first, while the records they show still exist.
    janelasCalculo() = nullptr;
    SairDoPrograma = nullptr;
    janela_.reset();
    filhoAtivo() = {};
    Calculos().clear();
    telaMenu() = nullptr;
    ExecutaFerramenta = nullptr;
    mnuAjudaDocumentacaoTabela = nullptr;
    AbreCalculadora = nullptr;
    MostraSobre = nullptr;
    MostraDicas = nullptr;
    MostraOpcoes = nullptr;
    ConfiguraImpressao = nullptr;
    ExportaRelatorio = nullptr;
    ImprimeRelatorio = nullptr;
    if (telaAbertura() == abertura_.get()) telaAbertura() = nullptr;
    CalculadoraView::aoEscrever = nullptr;
    EncerraProcesso = nullptr;
    if (ligacao_) ligacaoInstancias() = nullptr;
    if (caixas_) ambiente().caixas = nullptr;
    if (dialogos_) ambiente().dialogos = nullptr;
    ambiente().sistema = nullptr;
}

bool ProgramaQt::Inicia() {
    Main();
    return !segundaInstancia_;
}

void ProgramaQt::Carrega() {
    janela_ = std::make_unique<MdiMenuView>();
    if (caixas_) caixas_->DefineDono(janela_.get());
    if (dialogos_) dialogos_->DefineDono(janela_.get());
    janelasCalculo() = janela_.get();
    SairDoPrograma = [this] { janela_->close(); };
    janela_->aoFechar = [] { return FechaPrograma(); };
    // The desk calculator opens beside the field it types into.
    AbreCalculadora = [this](FrmCalcTramelo& f, int indice) {
        CalculoView* v = janela_->VistaCalculo(f);
        CalculadoraView::Abre(f, indice, v ? v->CampoDados(indice) : nullptr, janela_.get());
    };
    CalculadoraView::aoEscrever = [this] { janela_->SincronizaTudo(); };
    // The shell's windows and the report's paper and file.
    MostraSobre = [this] { MostraSobreQt(janela_.get()); };
    MostraDicas = [this] { MostraDicasQt(janela_.get()); };
    MostraOpcoes = [this] { MostraOpcoesQt(janela_.get()); };
    ConfiguraImpressao = [] { mnuArquivoConfigurarImpressao_Click(); };
    ExportaRelatorio = [](FrmRelatorio& r) {
        // A reports folder that can't be made has no handler of its own: the
        // error box, and the report window usable again.
        try {
            mnuArquivoExportarRelatorio_Click(r);
        } catch (const Falha& e) {
            r.Enabled = true;
            InformaErro(e);
        }
    };
    ImprimeRelatorio = [](FrmRelatorio& r) {
        ImpressoraQt impressora(ImpressoraDoPrograma());
        impressoraInstalada() = &impressora;
        mnuArquivoImprimir_Click(r);
        impressoraInstalada() = nullptr;
    };
    // Each click makes one more table window; nothing keeps a reference.
    mnuAjudaDocumentacaoTabela = [this](int indice) {
        auto* tabela = new TabelaView;
        tabela->TabelaInicia(static_cast<short>(indice));
        janela_->AdicionaFilho(tabela);
    };
}

bool ProgramaQt::Fecha() {
    if (!janela_) {
        QCoreApplication::quit();
        return true;
    }
    return janela_->close();
}

void ProgramaQt::Mostra() {
    if (!janela_) return;
    AplicaEstado();
    janela_->raise();
    janela_->activateWindow();
    janela_->SincronizaTudo();
}

bool ProgramaQt::Visivel() {
    return janela_ && janela_->isVisible();
}

void ProgramaQt::AplicaEstado() {
    switch (mdiMenu().WindowState) {
    case 2:
        janela_->showMaximized();
        break;
    case 1:
        janela_->showMinimized();
        break;
    default:
        janela_->showNormal();
        break;
    }
}

void ProgramaQt::GuardaLugar() {
    if (janela_) janela_->GuardaLugar();
}

void ProgramaQt::DescarregaOutras() {
    // What is left beside the calculations: tables, the calculator, tips.
    for (QMdiSubWindow* j : janela_->area()->subWindowList())
        j->close();
    for (QWidget* w : QApplication::topLevelWidgets())
        if (w != janela_.get() && w->isVisible()) w->close();
}

namespace {

// A running first instance, asked before any window system is brought up: a
// second start then hands its command line over with no more than the
// event loop of a plain core application, and ends.
bool EntregaASegunda(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    LigacaoQt ligacao;
    if (!ligacao.OutraInstancia()) return false;
    DefineLinhaComando(argc, argv);
    ligacaoInstancias() = &ligacao;
    bool entregue = false;
    EncerraProcesso = [&entregue] { entregue = true; };
    Main();
    EncerraProcesso = nullptr;
    ligacaoInstancias() = nullptr;
    return entregue;
}

} // namespace

int ExecutaPrograma(int argc, char** argv) {
    if (EntregaASegunda(argc, argv)) return 0;
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Tramelo"));
    QApplication::setApplicationVersion(QStringLiteral("2.0.1"));
    DefineLinhaComando(argc, argv);
    ProgramaQt programa;
    // A SIGTERM or the session's end, from the bring-up on.
    EncerramentoQt encerramento([&programa] { return programa.Fecha(); }, [] { GuardaSessao(); });
    if (!programa.Inicia()) return 0;
    return app.exec();
}

} // namespace tramelo
