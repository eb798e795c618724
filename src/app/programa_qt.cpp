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
#include "desktop/propriedades_view.h"
#include "desktop/tabela_view.h"

#include <QApplication>
#include <QIcon>
#include <QLibraryInfo>
#include <QLineEdit>
#include <QLocale>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QProcess>
#include <QStandardPaths>
#include <QTranslator>

// The pictures are compiled into the views' static library, where nothing
// refers to them: without this call the linker leaves them out, and every
// window has the window manager's generic icon. Q_INIT_RESOURCE names a
// function of the global namespace.
static void CarregaRecursos() {
    Q_INIT_RESOURCE(tramelo);
}

namespace tramelo {

namespace {

// Qt's own words (the file, print and page set-up dialogs, an edit field's
// menu, a window's system menu, a standard button) in Portuguese (Brazil),
// from the translations the system ships with Qt, whatever the user's
// language; the program's own texts pass through none of it. Once per
// application, so a test or a tool that builds the program twice loads it
// once. Without the translations installed Qt speaks English, and the program
// runs on.
void CarregaTraducoesDoQt() {
    const QString nome = QStringLiteral("traducoesDoQt");
    if (!qApp || qApp->findChild<QTranslator*>(nome, Qt::FindDirectChildrenOnly)) return;
    auto* traducoes = new QTranslator(qApp);
    traducoes->setObjectName(nome);
    if (traducoes->load(QLocale(QLocale::Portuguese, QLocale::Brazil), QStringLiteral("qtbase"),
                        QStringLiteral("_"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(traducoes);
}

} // namespace

ProgramaQt::ProgramaQt(bool servicosDoUsuario) {
    QLocale::setDefault(QLocale(QLocale::Portuguese, QLocale::Brazil));
    CarregaTraducoesDoQt();
    CarregaRecursos();
    if (QApplication::windowIcon().isNull()) {
        QIcon icone;
        for (int lado : {16, 24, 32, 48, 64, 128, 256})
            icone.addFile(QStringLiteral(":/tramelo/tramelo-%1.png").arg(lado), QSize(lado, lado));
        QApplication::setWindowIcon(icone);
    }
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
    pedidosDesktop() = this;
    // One run of the program: its frame and its numbering start afresh.
    mdiMenu() = MdiMenu{};
    ContadorCalculos() = 0;
}

ProgramaQt::~ProgramaQt() {
    // The windows go first, while the records they show still exist.
    janelasCalculo() = nullptr;
    pedidosDesktop() = nullptr;
    janela_.reset();
    filhoAtivo() = {};
    Calculos().clear();
    telaMenu() = nullptr;
    if (telaAbertura() == abertura_.get()) telaAbertura() = nullptr;
    if (ligacao_) ligacaoInstancias() = nullptr;
    if (caixas_) ambiente().caixas = nullptr;
    if (dialogos_) ambiente().dialogos = nullptr;
    ambiente().sistema = nullptr;
}

bool ProgramaQt::Inicia() {
    Main();
    return !sistema_->encerrado;
}

void ProgramaQt::Carrega() {
    janela_ = std::make_unique<MdiMenuView>();
    if (caixas_) caixas_->DefineDono(janela_.get());
    if (dialogos_) dialogos_->DefineDono(janela_.get());
    janelasCalculo() = janela_.get();
    janela_->aoFechar = [] { return FechaPrograma(); };
    // The frame's entries for the shell's windows.
    MdiMenuView* j = janela_.get();
    QObject::connect(j, &MdiMenuView::pedeSobre, j, [j] { MostraSobreQt(j); });
    QObject::connect(j, &MdiMenuView::pedeDicas, j, [j] { MostraDicasQt(j); });
    QObject::connect(j, &MdiMenuView::pedeOpcoes, j, [j] { MostraOpcoesQt(j); });
    QObject::connect(j, &MdiMenuView::pedeConfigurarImpressao, j,
                     [] { mnuArquivoConfigurarImpressao_Click(); });
    // Each click makes one more table window; nothing keeps a reference.
    QObject::connect(j, &MdiMenuView::pedeTabelaVapor, j, [j](int indice) {
        auto* tabela = new TabelaView;
        tabela->TabelaInicia(static_cast<short>(indice));
        j->AdicionaFilho(tabela);
    });
    QObject::connect(j, &MdiMenuView::pedePropriedades, j, [this] { AbrePropriedades(); });
}

void ProgramaQt::AbrePropriedades() {
    if (!janela_) return;
    FrmCalcTramelo* ativo = filhoAtivo().calculo;
    if (!propriedades_) {
        propriedades_ = new PropriedadesView(ativo, janela_.get());
        // Serves the calculation the user was last in; the frame has set it
        // as the active child by the time this runs.
        QObject::connect(janela_->area(), &QMdiArea::subWindowActivated, propriedades_,
                         [v = propriedades_.data()] { v->Serve(filhoAtivo().calculo); });
    } else {
        propriedades_->Serve(ativo);
    }
    propriedades_->show();
    propriedades_->raise();
    propriedades_->activateWindow();
}

// The desk calculator opens beside the field it types into.
void ProgramaQt::AbreCalculadora(FrmCalcTramelo& f, int indice) {
    if (!janela_) return;
    CalculoView* v = janela_->VistaCalculo(f);
    CalculadoraView::Abre(f, indice, v ? v->CampoDados(indice) : nullptr, janela_.get());
}

void ProgramaQt::ImprimeRelatorio(FrmRelatorio& r) {
    ImpressoraQt impressora(ImpressoraDoPrograma());
    impressoraInstalada() = &impressora;
    mnuArquivoImprimir_Click(r);
    impressoraInstalada() = nullptr;
}

void ProgramaQt::ExportaRelatorio(FrmRelatorio& r) {
    // A reports folder that can't be made has no handler of its own: the
    // error box, and the report window usable again.
    try {
        mnuArquivoExportarRelatorio_Click(r);
    } catch (const Falha& e) {
        r.Enabled = true;
        InformaErro(e);
    }
}

void ProgramaQt::MostraDicas() {
    if (janela_) MostraDicasQt(janela_.get());
}

void ProgramaQt::Sai() {
    if (janela_) janela_->close();
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
    janela_->AplicaMudancas();
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
    // No window system yet: no events to run and no pointer, only the end.
    struct SistemaDaEntrega : Sistema {
        void DoEvents() override {}
        void MousePointer(int) override {}
        bool Abre(const std::string&) override { return false; }
        bool Encerra() override { return entregue = true; }
        bool entregue = false;
    } sistema;
    ambiente().sistema = &sistema;
    Main();
    ambiente().sistema = nullptr;
    ligacaoInstancias() = nullptr;
    return sistema.entregue;
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
