#include "desktop/mdi_menu_view.h"

#include "desktop/calculadora_view.h"
#include "desktop/calculo_view.h"
#include "document/ciclo.h"
#include "document/entrada.h"
#include "document/frm_calc_tramelo.h"
#include "document/janela.h"
#include "plataforma/ambiente.h"
#include "report/agora.h"
#include "report/frm_relatorio.h"
#include "report/janela_relatorio.h"
#include "desktop/relatorio_view.h"
#include "base/barras.h"
#include "shell/mdi_menu.h"
#include "base/mod_base.h"
#include "base/recentes.h"

#include <QPointer>
#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QContextMenuEvent>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QStatusBar>
#include <QStyle>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>

namespace tramelo {
namespace {

QString Q(const std::string& s) {
    return QString::fromStdString(s);
}

int Px(int twips) {
    return static_cast<int>(twips / 15.0 + 0.5);
}

QIcon Icone(const char* tema, QStyle::StandardPixmap reserva) {
    QIcon i = QIcon::fromTheme(QString::fromLatin1(tema));
    return i.isNull() ? QApplication::style()->standardIcon(reserva) : i;
}

QIcon IconeDoBotao(const std::string& key) {
    if (key == "Novo") return Icone("document-new", QStyle::SP_FileIcon);
    if (key == "Abrir") return Icone("document-open", QStyle::SP_DialogOpenButton);
    if (key == "Salvar") return Icone("document-save", QStyle::SP_DialogSaveButton);
    if (key == "Sair") return Icone("application-exit", QStyle::SP_DialogCloseButton);
    if (key == "Calcular") return Icone("system-run", QStyle::SP_MediaPlay);
    if (key == "Calculadora") return Icone("accessories-calculator", QStyle::SP_ComputerIcon);
    if (key == "Imprimir") return Icone("document-print", QStyle::SP_FileDialogDetailedView);
    return Icone("document-export", QStyle::SP_FileDialogContentsView);
}

Qt::WindowFlags FlagsFilho() {
    // Fixed windows: no maximise box and no resizing of their own.
    return Qt::SubWindow | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
           Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint |
           Qt::MSWindowsFixedSizeDialogHint;
}

} // namespace

MdiMenuView::MdiMenuView() {
    setWindowTitle(QStringLiteral("Tramelo"));
    area_ = new QMdiArea(this);
    area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    area_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setCentralWidget(area_);
    connect(area_, &QMdiArea::subWindowActivated, this, &MdiMenuView::AoAtivar);

    auto barra = [this](const char* nome, BarraFerramentas& registro, bool padrao) {
        auto* tb = new QToolBar(QString::fromUtf8(nome), this);
        tb->setObjectName(QString::fromUtf8(nome));
        tb->setMovable(false);
        tb->setFloatable(false);
        tb->setContextMenuPolicy(Qt::PreventContextMenu);
        tb->installEventFilter(this);
        for (BotaoBarra& b : registro.Buttons) {
            if (b.separador) {
                tb->addSeparator();
                continue;
            }
            QAction* a = tb->addAction(IconeDoBotao(b.Key), Q(b.Caption));
            a->setData(Q(b.Key));
            a->setToolTip(Q(b.ToolTipText));
            const std::string key = b.Key;
            connect(a, &QAction::triggered, this, [this, key, padrao] {
                Acao([key, padrao] {
                    if (padrao)
                        tbPadrao_ButtonClick(key);
                    else
                        tbCalculo_ButtonClick(key);
                });
            });
        }
        addToolBar(Qt::TopToolBarArea, tb);
        return tb;
    };
    tbPadrao_ = barra("tbPadrao", mdiMenu().tbPadrao, true);
    tbCalculo_ = barra("tbCalculo", mdiMenu().tbCalculo, false);

    status_ = new QLabel(QStringLiteral("Status"));
    data_ = new QLabel;
    hora_ = new QLabel;
    for (QLabel* l : {data_, hora_}) {
        l->setFixedWidth(Px(2540));
        l->setAlignment(Qt::AlignCenter);
    }
    statusBar()->addWidget(status_, 1);
    statusBar()->addPermanentWidget(data_);
    statusBar()->addPermanentWidget(hora_);
    statusBar()->installEventFilter(this);
    auto relogio = [this] {
        Momento m = Agora();
        data_->setText(Q(DataCurta(m)));
        hora_->setText(Q(HoraCurta(m)));
    };
    relogio();
    auto* timer = new QTimer(this);
    connect(timer, &QTimer::timeout, this, relogio);
    timer->start(1000);

    // The stored place, or the design's made large enough for a calculation
    // and its report. GuardaLugar stores the client area's corner, so that
    // corner is what comes back: setGeometry places the client area, where
    // move() would place the frame and shift the window by its title bar.
    const MdiMenu& m = mdiMenu();
    const MdiMenu projeto;
    const QSize tamanho = m.Width == projeto.Width && m.Height == projeto.Height
                              ? QSize(720, 600)
                              : QSize(Px(m.Width), Px(m.Height));
    setGeometry(QRect(QPoint(Px(m.Left), Px(m.Top)), tamanho));

    CalculoView::aoAgir = [this] { SincronizaTudo(); };
    ConstroiMenus(Tipo::Frame);
    SincronizaFrame();
}

MdiMenuView::~MdiMenuView() {
    disconnect(area_, nullptr, this, nullptr);
    CalculoView::aoAgir = nullptr;
    if (janelasCalculo() == this) janelasCalculo() = nullptr;
}

void MdiMenuView::Acao(const std::function<void()>& acao) {
    // The edge of every user action: a run-time failure shows the error box
    // and the program goes on.
    try {
        acao();
    } catch (const Falha& e) {
        MousePointer(vbDefault);
        InformaErro(e);
    } catch (const std::exception& e) {
        MousePointer(vbDefault);
        InformaErro(ErroExecucao{51, std::string("Erro interno: ") + e.what()});
    }
    SincronizaTudo();
}

QMdiSubWindow* MdiMenuView::AdicionaFilho(QWidget* filho) {
    // Other children (the steam tables) can be resized and maximised.
    QMdiSubWindow* j = area_->addSubWindow(filho);
    j->setAttribute(Qt::WA_DeleteOnClose);
    j->show();
    // A window just opened is the one in front: an inactive one takes its
    // first click on the title bar for the activation and drops the button.
    area_->setActiveSubWindow(j);
    return j;
}

void MdiMenuView::Carregada(FrmCalcTramelo& f) {
    auto* vc = new CalculoView(f);
    QMdiSubWindow* jc = area_->addSubWindow(vc, FlagsFilho());
    jc->setWindowIcon(QApplication::windowIcon());
    auto* vr = new RelatorioView(*f.Relatorio);
    QMdiSubWindow* jr = area_->addSubWindow(vr, FlagsFilho());
    // The area marks the windows it makes delete-on-close; these two live
    // until the record unloads them, a close by the user only asks.
    for (QMdiSubWindow* j : {jc, jr}) {
        j->setAttribute(Qt::WA_DeleteOnClose, false);
        j->hide();
    }
    FrmCalcTramelo* p = &f;
    connect(vc, &CalculoView::pedeFechar, this,
            [this, p] { Acao([p] { mnuArquivoFechar_Click(*p); }); });
    connect(vc, &CalculoView::duploCliqueCampo, this,
            [this, p](int i) { Acao([p, i] { txtDados_DblClick(*p, i); }); });
    connect(vr, &RelatorioView::pedeOcultar, this,
            [this, p] { Acao([p] { Relatorio_QueryUnload(*p->Relatorio, true); }); });
    pares_.push_back({p, jc, vc, jr, vr});
}

void MdiMenuView::Mostra(FrmCalcTramelo& f) {
    for (Par& par : pares_) {
        if (par.registro != &f || !par.inteiro()) continue;
        par.calculo->Sincroniza();
        par.janelaCalculo->adjustSize();
        par.janelaCalculo->show();
        area_->setActiveSubWindow(par.janelaCalculo);
        par.janelaCalculo->raise();
    }
}

void MdiMenuView::Descarregada(FrmCalcTramelo& f) {
    for (auto it = pares_.begin(); it != pares_.end(); ++it) {
        if (it->registro != &f) continue;
        Par par = *it;
        pares_.erase(it);
        if (ativo_ == par.janelaCalculo || ativo_ == par.janelaRelatorio) ativo_ = nullptr;
        FilhoAtivo& a = filhoAtivo();
        if (a.calculo == &f) a.calculo = nullptr;
        if (a.relatorio == f.Relatorio.get()) a.relatorio = nullptr;
        // Removed without a close event: the record already said its goodbye.
        if (CalculadoraView* c = CalculadoraView::Aberta()) c->Esquece(f);
        for (QMdiSubWindow* j : {par.janelaRelatorio.data(), par.janelaCalculo.data()}) {
            if (!j) continue;
            area_->removeSubWindow(j);
            j->deleteLater();
        }
        break;
    }
}

void MdiMenuView::Ocupado(FrmCalcTramelo& f, bool ocupado) {
    if (CalculoView* v = VistaCalculo(f)) v->setEnabled(!ocupado);
    MousePointer(ocupado ? vbHourglass : vbDefault);
}

void MdiMenuView::BombeiaEventos() {
    QCoreApplication::processEvents();
}

CalculoView* MdiMenuView::VistaCalculo(const FrmCalcTramelo& f) const {
    for (const Par& p : pares_)
        if (p.registro == &f) return p.calculo.data();
    return nullptr;
}

RelatorioView* MdiMenuView::VistaRelatorio(const FrmRelatorio& r) const {
    for (const Par& p : pares_)
        if (p.registro->Relatorio.get() == &r) return p.relatorio.data();
    return nullptr;
}

MdiMenuView::Tipo MdiMenuView::TipoDe(QMdiSubWindow* janela, FrmCalcTramelo** calculo,
                                      FrmRelatorio** relatorio) const {
    *calculo = nullptr;
    *relatorio = nullptr;
    if (!janela) return Tipo::Frame;
    for (const Par& p : pares_) {
        if (p.janelaCalculo == janela) {
            *calculo = p.registro;
            return Tipo::Calculo;
        }
        if (p.janelaRelatorio == janela) {
            *relatorio = p.registro->Relatorio.get();
            return Tipo::Relatorio;
        }
    }
    return Tipo::Outro;
}

void MdiMenuView::AoAtivar(QMdiSubWindow* janela) {
    if (janela == ativo_) return;
    FrmCalcTramelo* calculo;
    FrmRelatorio* relatorio;
    // The window that loses the activation first, then the one that gains it.
    TipoDe(ativo_, &calculo, &relatorio);
    if (calculo) Form_Deactivate(*calculo);
    if (relatorio) Relatorio_Deactivate(*relatorio);
    ativo_ = janela;
    Tipo tipo = TipoDe(janela, &calculo, &relatorio);
    filhoAtivo() = {calculo, relatorio};
    try {
        if (calculo) Form_Activate(*calculo);
        if (relatorio) Relatorio_Activate(*relatorio);
    } catch (const Falha& e) {
        InformaErro(e);
    }
    ConstroiMenus(tipo == Tipo::Outro ? Tipo::Outro : tipo);
    SincronizaTudo();
}

void MdiMenuView::SincronizaFrame() {
    const MdiMenu& m = mdiMenu();
    setWindowTitle(Q(m.Caption));
    auto barra = [&](QToolBar* tb, const BarraFerramentas& registro, const Banda& banda) {
        tb->setVisible(m.cobBarra.Visible && banda.Visible);
        tb->setToolButtonStyle(m.mnuExibirEtiqueta.Checked ? Qt::ToolButtonTextUnderIcon
                                                           : Qt::ToolButtonIconOnly);
        for (QAction* a : tb->actions()) {
            const std::string key = a->data().toString().toStdString();
            for (const BotaoBarra& b : registro.Buttons) {
                if (b.separador || b.Key != key) continue;
                a->setText(Q(b.Caption.empty() ? b.Tag : b.Caption));
                a->setEnabled(b.Enabled);
                a->setVisible(b.Visible);
            }
        }
    };
    barra(tbPadrao_, m.tbPadrao, m.cobBarra.Bands(1));
    barra(tbCalculo_, m.tbCalculo, m.cobBarra.Bands(2));
    statusBar()->setVisible(m.sbStatusBar.Visible);
    // The frame's own parts, not the window: a box or dialog shown over a
    // busy frame is its child and must stay answerable.
    for (QWidget* parte : {static_cast<QWidget*>(area_), static_cast<QWidget*>(menuBar()),
                           static_cast<QWidget*>(tbPadrao_), static_cast<QWidget*>(tbCalculo_),
                           static_cast<QWidget*>(statusBar())})
        parte->setEnabled(m.Enabled);
}

void MdiMenuView::SincronizaTudo() {
    SincronizaFrame();
    // The menu's states (Salvar, the ticks, the recent files) follow the
    // records too; rebuilt once the current event is done.
    if (!menusPendentes_) {
        menusPendentes_ = true;
        QMetaObject::invokeMethod(this, &MdiMenuView::ReconstroiMenus, Qt::QueuedConnection);
    }
    for (Par& p : pares_) {
        if (!p.inteiro()) continue;
        p.calculo->Sincroniza();
        p.janelaCalculo->setWindowTitle(Q(p.registro->Caption));
        p.janelaCalculo->setEnabled(p.registro->Enabled);
        FrmRelatorio& r = *p.registro->Relatorio;
        p.relatorio->Sincroniza();
        p.janelaRelatorio->setWindowTitle(Q(r.Caption));
        const int ordem = p.janelaRelatorio->property("ordemZ").toInt();
        if (r.Visible && (p.janelaRelatorio->isHidden() || ordem != r.ordemZ)) {
            // Shown and brought to the front by "Calcular".
            p.janelaRelatorio->setProperty("ordemZ", r.ordemZ);
            p.janelaRelatorio->adjustSize();
            p.janelaRelatorio->show();
            p.janelaRelatorio->raise();
            QMetaObject::invokeMethod(
                this,
                [this, j = p.janelaRelatorio] {
                    if (j) area_->setActiveSubWindow(j);
                },
                Qt::QueuedConnection);
        } else if (!r.Visible && !p.janelaRelatorio->isHidden()) {
            const bool eraAtivo = area_->activeSubWindow() == p.janelaRelatorio;
            p.janelaRelatorio->hide();
            // As a hidden child gives the activation to the one beneath it:
            // its calculation, so "Calcular" is at hand again.
            if (eraAtivo && !p.janelaCalculo->isHidden())
                area_->setActiveSubWindow(p.janelaCalculo);
        }
    }
}

void MdiMenuView::ReconstroiMenus() {
    // Never under an open menu: the one the user is opening would be deleted
    // in their hands. Tried again once it has closed.
    if (QApplication::activePopupWidget()) {
        QTimer::singleShot(200, this, &MdiMenuView::ReconstroiMenus);
        return;
    }
    menusPendentes_ = false;
    ConstroiMenus(tipoMenu_);
}

void MdiMenuView::GuardaLugar() {
    MdiMenu& m = mdiMenu();
    const QRect r = normalGeometry().isValid() ? normalGeometry() : geometry();
    m.Left = r.x() * 15;
    m.Top = r.y() * 15;
    m.Width = r.width() * 15;
    m.Height = r.height() * 15;
    m.WindowState = EstadoDaJanela(isMinimized(), isMaximized());
}

void MdiMenuView::closeEvent(QCloseEvent* e) {
    if (aoFechar && !aoFechar()) {
        e->ignore();
        SincronizaTudo();
        return;
    }
    e->accept();
}

void MdiMenuView::changeEvent(QEvent* e) {
    if (e->type() == QEvent::WindowStateChange) {
        MdiMenu& m = mdiMenu();
        m.WindowState = EstadoDaJanela(isMinimized(), isMaximized());
        if (m.WindowState != 1) m.EstadoAnterior = m.WindowState;
    }
    QMainWindow::changeEvent(e);
}

bool MdiMenuView::eventFilter(QObject* objeto, QEvent* evento) {
    // The right button on a bar opens the bars menu at the pointer.
    if (evento->type() == QEvent::ContextMenu &&
        (objeto == tbPadrao_ || objeto == tbCalculo_ || objeto == statusBar())) {
        auto* c = static_cast<QContextMenuEvent*>(evento);
        QMenu* menu = MenuBarras();
        menu->exec(c->globalPos());
        menu->deleteLater();
        return true;
    }
    return QMainWindow::eventFilter(objeto, evento);
}

QMenu* MdiMenuView::MenuBarras() {
    auto* menu = new QMenu(QStringLiteral("&Barra de ferramentas"), this);
    const MdiMenu& m = mdiMenu();
    auto marca = [&](const ItemMenu& item, void (*acao)()) {
        QAction* a = menu->addAction(Q(item.Caption));
        a->setCheckable(true);
        a->setChecked(item.Checked);
        connect(a, &QAction::triggered, this, [this, acao] { Acao(acao); }, Qt::QueuedConnection);
    };
    marca(m.mnuExibirBarraPadrao, &mnuExibirBarraPadrao_Click);
    marca(m.mnuExibirBarraCalculo, &mnuExibirBarraCalculo_Click);
    menu->addSeparator();
    marca(m.mnuExibirEtiqueta, &mnuExibirEtiqueta_Click);
    return menu;
}

void MdiMenuView::PreencheJanela(QMenu* menu) {
    int n = 0;
    for (QMdiSubWindow* j : area_->subWindowList()) {
        if (j->isHidden()) continue;
        ++n;
        QAction* a = menu->addAction(QStringLiteral("&%1 %2").arg(n).arg(j->windowTitle()));
        a->setCheckable(true);
        a->setChecked(j == area_->activeSubWindow());
        // Chosen from the list, a minimised window comes back, as a person
        // who picks it means to see it.
        QPointer<QMdiSubWindow> alvo(j);
        connect(a, &QAction::triggered, this, [this, alvo] {
            if (!alvo) return;
            if (alvo->isMinimized()) alvo->showNormal();
            area_->setActiveSubWindow(alvo);
        });
    }
}

void MdiMenuView::ConstroiMenus(Tipo tipo) {
    tipoMenu_ = tipo;
    QMenuBar* barra = menuBar();
    for (QAction* a : barra->actions())
        if (QMenu* m = a->menu()) m->deleteLater();
    barra->clear();
    FrmCalcTramelo* calculo = filhoAtivo().calculo;
    FrmRelatorio* relatorio = filhoAtivo().relatorio;
    const bool frame = tipo == Tipo::Frame || tipo == Tipo::Outro;
    const bool rel = tipo == Tipo::Relatorio;

    auto item = [this](QMenu* menu, const QString& texto, std::function<void()> acao,
                       bool habilitado = true, const QKeySequence& tecla = {}) {
        QAction* a = menu->addAction(texto);
        a->setEnabled(habilitado);
        if (!tecla.isEmpty()) a->setShortcut(tecla);
        // Run once the menu has closed: an action that shows a box would
        // otherwise rebuild the menu bar under the open menu, which leaves
        // the bar dead to the mouse and the keys.
        if (acao)
            connect(a, &QAction::triggered, this, [this, acao] { Acao(acao); },
                    Qt::QueuedConnection);
        return a;
    };
    auto marcado = [&](QMenu* menu, const ItemMenu& frameItem, const ItemMenu* filhoItem,
                       void (*acao)()) {
        // A child's menu has its own captions: the report's "&Etiquetas de
        // texto" carries a key the frame's doesn't.
        QAction* a = item(menu, Q(filhoItem ? filhoItem->Caption : frameItem.Caption), acao);
        a->setCheckable(true);
        a->setChecked(filhoItem ? filhoItem->Checked : frameItem.Checked);
    };

    QMenu* arquivo = barra->addMenu(QStringLiteral("&Arquivo"));
    item(arquivo, QStringLiteral("&Novo"), &mnuArquivoNew_Click, true,
         QKeySequence(QStringLiteral("Ctrl+O")));
    item(arquivo, rel ? QStringLiteral("&Abrir...") : QStringLiteral("&Abrir"),
         &mnuArquivoOpen_Click, true, QKeySequence(QStringLiteral("Ctrl+A")));
    item(
        arquivo, frame ? QStringLiteral("&Fechar") : QStringLiteral("Fechar"),
        [calculo, relatorio] {
            if (calculo)
                mnuArquivoFechar_Click(*calculo);
            else if (relatorio)
                relatorio->Hide();
        },
        !frame);
    item(arquivo, QStringLiteral("Fechar &todos"), &mnuArquivoFecharTodos_Click, !frame);
    arquivo->addSeparator();
    item(
        arquivo, QStringLiteral("&Salvar"),
        [calculo] {
            if (calculo) mnuArquivoSalvar_Click(*calculo);
        },
        calculo && calculo->mnuArquivoSalvar.Enabled, QKeySequence(QStringLiteral("Ctrl+B")));
    item(
        arquivo, QStringLiteral("Salvar &como..."),
        [calculo] {
            if (calculo) mnuArquivoSalvarComo_Click(*calculo);
        },
        calculo && calculo->mnuArquivoSalvarComo.Enabled);
    QAction* todos =
        item(arquivo, rel ? QStringLiteral("Salvar todos") : QStringLiteral("Salvar &todos"),
             nullptr, calculo && calculo->mnuArquivoSalvarTodos.Enabled);
    todos->setVisible(!frame);
    arquivo->addSeparator();
    QMenu* exportar = arquivo->addMenu(QStringLiteral("Exportar"));
    item(
        exportar, QStringLiteral("Relatório..."),
        [relatorio] {
            if (relatorio && ExportaRelatorio) ExportaRelatorio(*relatorio);
        },
        !frame);
    arquivo->addSeparator();
    item(arquivo, QStringLiteral("Configurar impressão..."), [] {
        if (ConfiguraImpressao) ConfiguraImpressao();
    });
    item(
        arquivo, rel ? QStringLiteral("Imprimir...") : QStringLiteral("&Imprimir..."),
        [relatorio] {
            if (relatorio && ImprimeRelatorio) ImprimeRelatorio(*relatorio);
        },
        !frame, QKeySequence(QStringLiteral("Ctrl+P")));
    arquivo->addSeparator();
    QMenu* recentes = arquivo->addMenu(QStringLiteral("Arquivos recentes"));
    MenuRecentes mru;
    AtualizaMRU(mru);
    for (int i = 0; i < 4; ++i) {
        const EntradaMenu& e = mru.mnuArquivoMRU[static_cast<size_t>(i)];
        if (!e.Visible) continue;
        item(recentes, Q(e.Caption),
             [i] { AbreCalculo(true, FilesMRU()[static_cast<size_t>(i)]); });
    }
    if (mru.mnuArquivoMRUVazio.Visible)
        item(recentes, Q(mru.mnuArquivoMRUVazio.Caption), nullptr, false);
    arquivo->addSeparator();
    item(arquivo, QStringLiteral("Sai&r"),
         [this] { QMetaObject::invokeMethod(this, &QWidget::close, Qt::QueuedConnection); });

    const MdiMenu& m = mdiMenu();
    QMenu* exibir = barra->addMenu(QStringLiteral("E&xibir"));
    QMenu* barras = exibir->addMenu(QStringLiteral("&Barra de ferramentas"));
    marcado(barras, m.mnuExibirBarraPadrao,
            calculo     ? &calculo->mnuExibirBarraPadrao
            : relatorio ? &relatorio->mnuExibirBarraPadrao
                        : nullptr,
            &mnuExibirBarraPadrao_Click);
    marcado(barras, m.mnuExibirBarraCalculo,
            calculo     ? &calculo->mnuExibirBarraCalculo
            : relatorio ? &relatorio->mnuExibirBarraCalculo
                        : nullptr,
            &mnuExibirBarraCalculo_Click);
    if (!rel) barras->addSeparator();
    QMenu* etiquetas = rel ? exibir : barras;
    marcado(etiquetas, m.mnuExibirEtiqueta,
            calculo     ? &calculo->mnuExibirEtiqueta
            : relatorio ? &relatorio->mnuExibirEtiqueta
                        : nullptr,
            &mnuExibirEtiqueta_Click);
    marcado(exibir, m.mnuExibirStatusBar,
            calculo     ? &calculo->mnuExibirStatusBar
            : relatorio ? &relatorio->mnuExibirStatusBar
                        : nullptr,
            &mnuExibirStatusBar_Click);
    if (!rel) exibir->addSeparator();
    item(exibir, rel ? QStringLiteral("&Relatórios...") : QStringLiteral("Relatórios"),
         &mnuExibirRelatorio_Click, true, QKeySequence(QStringLiteral("Ctrl+R")));
    if (!rel) exibir->addSeparator();
    item(exibir, QStringLiteral("&Opções..."), [] {
        if (MostraOpcoes) MostraOpcoes();
    });

    QMenu* janela = barra->addMenu(QStringLiteral("&Janela"));
    item(
        janela, rel ? QStringLiteral("Organizar em &cascata") : QStringLiteral("&Cascata"),
        [this] { area_->cascadeSubWindows(); }, !frame);
    item(
        janela, QStringLiteral("&Organizar ícones"),
        [this] {
            int x = 0;
            for (QMdiSubWindow* j : area_->subWindowList())
                if (j->isMinimized()) {
                    j->move(x, area_->viewport()->height() - j->height());
                    x += j->width();
                }
        },
        !frame);
    connect(janela, &QMenu::aboutToShow, this, [this, janela] {
        for (QAction* a : janela->actions().mid(2))
            janela->removeAction(a);
        if (!area_->subWindowList().isEmpty()) janela->addSeparator();
        PreencheJanela(janela);
    });

    QMenu* ajuda = barra->addMenu(QStringLiteral("Aj&uda"));
    item(ajuda, QStringLiteral("&Conteúdo e índice..."), &mnuAjudaConteudo_Click, !frame,
         QKeySequence(Qt::Key_F1));
    item(ajuda,
         rel ? QStringLiteral("Como utilizar a &ajuda...")
             : QStringLiteral("Como utilizar a ajuda..."),
         &mnuAjudaComoUsar_Click);
    item(ajuda, QStringLiteral("Exibir &dicas..."), [] {
        if (MostraDicas) MostraDicas();
    });
    ajuda->addSeparator();
    QMenu* doc = ajuda->addMenu(QStringLiteral("D&ocumentação"));
    item(doc, QStringLiteral("&Massa do Vapor Superaquecido"), [] {
        if (mnuAjudaDocumentacaoTabela) mnuAjudaDocumentacaoTabela(0);
    });
    item(doc, QStringLiteral("&Volume do Vapor Superaquecido"), [] {
        if (mnuAjudaDocumentacaoTabela) mnuAjudaDocumentacaoTabela(1);
    });
    ajuda->addSeparator();
    item(ajuda,
         rel ? QStringLiteral("&Sobre o Tramelo") : QStringLiteral("&Sobre o Tramelo..."), [] {
             if (MostraSobre) MostraSobre();
         });
}

} // namespace tramelo
