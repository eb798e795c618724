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
#include "base/pedidos.h"
#include "base/recentes.h"

#include <QPointer>
#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPainter>
#include <QPixmap>
#include <QStatusBar>
#include <QStyle>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>

#include <algorithm>
#include <utility>

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

// A desk calculator drawn at each size: the style's stand-in for a missing
// theme icon is a 16-pixel computer, smaller than its neighbours, and its
// label then sits higher than theirs.
QIcon IconeCalculadora() {
    QIcon icone;
    for (int lado : {16, 22, 24, 32, 48, 64}) {
        QPixmap p(lado, lado);
        p.fill(Qt::transparent);
        QPainter g(&p);
        g.setRenderHint(QPainter::Antialiasing);
        const double u = lado / 24.0;
        const QRectF corpo(4 * u, 1.5 * u, 16 * u, 21 * u);
        g.setPen(QPen(QColor(0x2e, 0x34, 0x36), std::max(1.0, u)));
        g.setBrush(QColor(0x55, 0x57, 0x53));
        g.drawRoundedRect(corpo, 2 * u, 2 * u);
        g.setPen(Qt::NoPen);
        g.setBrush(QColor(0xd3, 0xe8, 0xc8));
        g.drawRect(QRectF(6 * u, 3.5 * u, 12 * u, 5 * u));
        for (int linha = 0; linha < 4; ++linha)
            for (int coluna = 0; coluna < 3; ++coluna) {
                g.setBrush(coluna == 2 && linha > 1 ? QColor(0xf5, 0x79, 0x00) : QColor(0xee, 0xee, 0xec));
                g.drawRect(QRectF((6 + coluna * 4.3) * u, (10.5 + linha * 2.9) * u, 3.1 * u, 2.1 * u));
            }
        g.end();
        icone.addPixmap(p);
    }
    return icone;
}

QIcon IconeDoBotao(const std::string& key) {
    if (key == "Novo") return Icone("document-new", QStyle::SP_FileIcon);
    if (key == "Abrir") return Icone("document-open", QStyle::SP_DialogOpenButton);
    if (key == "Salvar") return Icone("document-save", QStyle::SP_DialogSaveButton);
    if (key == "Sair") return Icone("application-exit", QStyle::SP_DialogCloseButton);
    if (key == "Calcular") return Icone("system-run", QStyle::SP_MediaPlay);
    if (key == "Calculadora") {
        QIcon i = QIcon::fromTheme(QStringLiteral("accessories-calculator"));
        return i.isNull() ? IconeCalculadora() : i;
    }
    if (key == "Imprimir") return Icone("document-print", QStyle::SP_FileDialogDetailedView);
    return Icone("document-export", QStyle::SP_FileDialogContentsView);
}

Qt::WindowFlags FlagsFilho() {
    // Fixed windows: no maximise box and no resizing of their own.
    return Qt::SubWindow | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
           Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint |
           Qt::MSWindowsFixedSizeDialogHint;
}

Qt::WindowFlags FlagsRelatorio() {
    // A report is read more than ten lines at a time: it can be made larger
    // and maximised.
    return Qt::SubWindow | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
           Qt::WindowMinimizeButtonHint | Qt::WindowMaximizeButtonHint |
           Qt::WindowCloseButtonHint;
}

} // namespace

MdiMenuView::MdiMenuView() {
    setWindowTitle(QStringLiteral("Tramelo"));
    area_ = new QMdiArea(this);
    area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    area_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    // A maximised report doesn't make the fixed calculation windows
    // maximised as they come to the front.
    area_->setOption(QMdiArea::DontMaximizeSubWindowOnActivation);
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

    ConstroiMenus();
    AtualizaMenus();
    AtualizaRecentes();
    SincronizaFrame();
    notificador().Inscreve(this);
    // A text field claims Ctrl+A (select all) and others before the menus
    // see them; the menus' keys are looked at here first.
    qApp->installEventFilter(this);
}

MdiMenuView::~MdiMenuView() {
    qApp->removeEventFilter(this);
    notificador().Desinscreve(this);
    disconnect(area_, nullptr, this, nullptr);
    if (janelasCalculo() == this) janelasCalculo() = nullptr;
}

void MdiMenuView::Mudou(Mudanca tipo, const void* quem) {
    switch (tipo) {
    case Mudanca::CalculoFechado:
        // Its windows go at once; nothing of it may be applied later.
        if (const auto* f = static_cast<const FrmCalcTramelo*>(quem)) {
            calculosMudados_.erase(f);
            relatoriosMudados_.erase(f->Relatorio.get());
        }
        ativoMudou_ = true;
        break;
    case Mudanca::CalculoAberto:
    case Mudanca::FilhoAtivado: ativoMudou_ = true; break;
    case Mudanca::Calculo: calculosMudados_.insert(quem); break;
    case Mudanca::Relatorio: relatoriosMudados_.insert(quem); break;
    case Mudanca::Barras: barrasMudaram_ = true; break;
    case Mudanca::Recentes: recentesMudaram_ = true; break;
    }
    if (!aplicacaoPendente_) {
        aplicacaoPendente_ = true;
        QMetaObject::invokeMethod(this, &MdiMenuView::AplicaMudancas, Qt::QueuedConnection);
    }
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
    QMdiSubWindow* jr = area_->addSubWindow(vr, FlagsRelatorio());
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
    connect(vc, &CalculoView::pedePropriedades, this, &MdiMenuView::pedePropriedades);
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

void MdiMenuView::Descarregada(const FrmCalcTramelo& f) {
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

void MdiMenuView::Ocupado(const FrmCalcTramelo& f, bool ocupado) {
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
    tipoMenu_ = tipo;
    AtualizaMenus();
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
    // A child activated while the frame was busy (the toolbar's "Novo")
    // couldn't take the focus then: it takes it now, as its activation
    // would have given it.
    QMdiSubWindow* ativa = area_->activeSubWindow();
    if (m.Enabled && !std::exchange(habilitado_, true) && ativa && isActiveWindow() &&
        !ativa->isAncestorOf(QApplication::focusWidget()))
        ativa->setFocus(Qt::OtherFocusReason);
    habilitado_ = m.Enabled;
}

void MdiMenuView::AplicaMudancas() {
    aplicacaoPendente_ = false;
    const bool barras = std::exchange(barrasMudaram_, false);
    const bool recentes = std::exchange(recentesMudaram_, false);
    const bool ativo = std::exchange(ativoMudou_, false);
    const auto calculos = std::exchange(calculosMudados_, {});
    const auto relatorios = std::exchange(relatoriosMudados_, {});
    if (barras) SincronizaFrame();
    if (recentes) AtualizaRecentes();
    for (Par& p : pares_) {
        const bool c = calculos.count(p.registro) > 0;
        const bool r = relatorios.count(p.registro->Relatorio.get()) > 0;
        if (c || r) SincronizaPar(p, c, r);
    }
    // The ticks, Salvar and the captions follow the active child's record.
    if (barras || ativo || calculos.count(filhoAtivo().calculo) ||
        relatorios.count(filhoAtivo().relatorio))
        AtualizaMenus();
}

void MdiMenuView::SincronizaPar(Par& p, bool calculo, bool relatorio) {
    if (!p.inteiro()) return;
    if (calculo) {
        p.calculo->Sincroniza();
        p.janelaCalculo->setWindowTitle(Q(p.registro->Caption));
        p.janelaCalculo->setEnabled(p.registro->Enabled);
    }
    if (!relatorio) return;
    FrmRelatorio& r = *p.registro->Relatorio;
    p.relatorio->Sincroniza();
    p.janelaRelatorio->setWindowTitle(Q(r.Caption));
    const int ordem = p.janelaRelatorio->property("ordemZ").toInt();
    if (r.Visible && (p.janelaRelatorio->isHidden() || ordem != r.ordemZ)) {
        // Shown and brought to the front by "Calcular"; at its built size
        // the first time, afterwards at the size the user left it.
        p.janelaRelatorio->setProperty("ordemZ", r.ordemZ);
        if (!p.janelaRelatorio->property("mostrada").toBool()) {
            p.janelaRelatorio->setProperty("mostrada", true);
            p.janelaRelatorio->adjustSize();
        }
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
        if (eraAtivo && !p.janelaCalculo->isHidden()) area_->setActiveSubWindow(p.janelaCalculo);
    }
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
    // A menu's key pressed in a field of this window is the menu's: the
    // field's claim is refused, and the shortcut runs.
    if (evento->type() == QEvent::ShortcutOverride) {
        auto* w = qobject_cast<QWidget*>(objeto);
        auto* e = static_cast<QKeyEvent*>(evento);
        const QKeySequence tecla(
            QKeyCombination(e->modifiers() & ~Qt::KeypadModifier, Qt::Key(e->key())));
        if (w && w->window() == this)
            for (QAction* a : atalhos_)
                if (a->isEnabled() && a->shortcut() == tecla) {
                    e->ignore();
                    return true;
                }
        return false;
    }
    // A child's title bar takes a press on a button only if a move of the
    // pointer told it the button is there, and it reads the buttons' places
    // from a map it renews 200 ms after the window last changed size. A
    // window that came up under a resting hand (a table opened again, a
    // report shown again) or that has just changed size took the press for
    // a move of the window, and a click on its close box only activated it.
    // The map and the pointer's place on it are renewed before the press.
    if (evento->type() == QEvent::MouseButtonPress) {
        auto* j = qobject_cast<QMdiSubWindow*>(objeto);
        auto* m = static_cast<QMouseEvent*>(evento);
        if (j && j->parentWidget() == area_->viewport() && m->button() == Qt::LeftButton) {
            QEvent renova(QEvent::LayoutRequest);
            QCoreApplication::sendEvent(j, &renova);
            QMouseEvent aqui(QEvent::MouseMove, m->position(), m->scenePosition(),
                             m->globalPosition(), Qt::NoButton, Qt::NoButton, m->modifiers());
            QCoreApplication::sendEvent(j, &aqui);
        }
        return false;
    }
    // The work area shrinks when bars come back (or the frame is made
    // smaller): children placed while it was larger would hang past its
    // edges behind scroll bars.
    if (evento->type() == QEvent::Resize && objeto == area_->viewport()) {
        QMetaObject::invokeMethod(this, &MdiMenuView::RecolheFilhos, Qt::QueuedConnection);
        return false;
    }
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

void MdiMenuView::RecolheFilhos() {
    const QSize area = area_->viewport()->size();
    for (QMdiSubWindow* j : area_->subWindowList()) {
        if (j->isHidden() || j->isMaximized()) continue;
        const QRect g = j->geometry();
        // As far in as it fits; one larger than the area keeps its top left.
        const int x = std::max(0, std::min(g.x(), area.width() - g.width()));
        const int y = std::max(0, std::min(g.y(), area.height() - g.height()));
        if (x != g.x() || y != g.y()) j->move(x, y);
    }
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

void MdiMenuView::ConstroiMenus() {
    QMenuBar* barra = menuBar();
    // Each entry reaches the active child when it runs, not when it was made.
    auto item = [this](QMenu* menu, const QString& texto, std::function<void()> acao,
                       const QKeySequence& tecla = {}) {
        QAction* a = menu->addAction(texto);
        if (!tecla.isEmpty()) {
            a->setShortcut(tecla);
            atalhos_.push_back(a);
        }
        // Run once the menu has closed: a box shown under an open menu
        // leaves the bar dead to the mouse and the keys.
        if (acao)
            connect(a, &QAction::triggered, this, [this, acao] { Acao(acao); },
                    Qt::QueuedConnection);
        return a;
    };
    auto marcado = [&](QMenu* menu, void (*acao)()) {
        QAction* a = item(menu, QString(), acao);
        a->setCheckable(true);
        return a;
    };
    auto sinal = [this](void (MdiMenuView::*s)()) { return [this, s] { emit(this->*s)(); }; };
    Menus& m = menus_;

    QMenu* arquivo = barra->addMenu(QStringLiteral("&Arquivo"));
    item(arquivo, QStringLiteral("&Novo"), &mnuArquivoNew_Click, QKeySequence(QStringLiteral("Ctrl+O")));
    m.abrir = item(arquivo, QString(), &mnuArquivoOpen_Click, QKeySequence(QStringLiteral("Ctrl+A")));
    m.fechar = item(arquivo, QString(), [] {
        if (FrmCalcTramelo* c = filhoAtivo().calculo)
            mnuArquivoFechar_Click(*c);
        else if (FrmRelatorio* r = filhoAtivo().relatorio)
            r->Hide();
    });
    m.fecharTodos = item(arquivo, QStringLiteral("Fechar &todos"), &mnuArquivoFecharTodos_Click);
    arquivo->addSeparator();
    m.salvar = item(
        arquivo, QStringLiteral("&Salvar"),
        [] {
            if (FrmCalcTramelo* c = filhoAtivo().calculo) mnuArquivoSalvar_Click(*c);
        },
        QKeySequence(QStringLiteral("Ctrl+B")));
    m.salvarComo = item(arquivo, QStringLiteral("Salvar &como..."), [] {
        if (FrmCalcTramelo* c = filhoAtivo().calculo) mnuArquivoSalvarComo_Click(*c);
    });
    m.salvarTodos = item(arquivo, QString(), nullptr);
    arquivo->addSeparator();
    QMenu* exportar = arquivo->addMenu(QStringLiteral("Exportar"));
    m.exportar = item(exportar, QStringLiteral("Relatório..."), [] {
        FrmRelatorio* r = filhoAtivo().relatorio;
        if (r && pedidosDesktop()) pedidosDesktop()->ExportaRelatorio(*r);
    });
    arquivo->addSeparator();
    item(arquivo, QStringLiteral("Configurar impressão..."), sinal(&MdiMenuView::pedeConfigurarImpressao));
    m.imprimir = item(
        arquivo, QString(),
        [] {
            FrmRelatorio* r = filhoAtivo().relatorio;
            if (r && pedidosDesktop()) pedidosDesktop()->ImprimeRelatorio(*r);
        },
        QKeySequence(QStringLiteral("Ctrl+P")));
    arquivo->addSeparator();
    QMenu* recentes = arquivo->addMenu(QStringLiteral("Arquivos recentes"));
    for (size_t i = 0; i < m.recentes.size(); ++i)
        m.recentes[i] = item(recentes, QString(), [i] { AbreCalculo(true, FilesMRU()[i]); });
    m.vazio = item(recentes, QString(), nullptr);
    m.vazio->setEnabled(false);
    arquivo->addSeparator();
    item(arquivo, QStringLiteral("Sai&r"),
         [this] { QMetaObject::invokeMethod(this, &QWidget::close, Qt::QueuedConnection); });

    QMenu* exibir = barra->addMenu(QStringLiteral("E&xibir"));
    QMenu* barras = exibir->addMenu(QStringLiteral("&Barra de ferramentas"));
    m.barraPadrao = marcado(barras, &mnuExibirBarraPadrao_Click);
    m.barraCalculo = marcado(barras, &mnuExibirBarraCalculo_Click);
    m.sepBarras = barras->addSeparator();
    // The report's menu keeps the labels' entry one level up.
    m.etiquetaBarras = marcado(barras, &mnuExibirEtiqueta_Click);
    m.etiquetaExibir = marcado(exibir, &mnuExibirEtiqueta_Click);
    m.statusBar = marcado(exibir, &mnuExibirStatusBar_Click);
    m.sepExibir1 = exibir->addSeparator();
    m.relatorios = item(exibir, QString(), &mnuExibirRelatorio_Click, QKeySequence(QStringLiteral("Ctrl+R")));
    m.sepExibir2 = exibir->addSeparator();
    item(exibir, QStringLiteral("&Opções..."), sinal(&MdiMenuView::pedeOpcoes));

    QMenu* ferramentas = barra->addMenu(QStringLiteral("&Ferramentas"));
    item(ferramentas, QStringLiteral("&Propriedades da água e do vapor..."),
         sinal(&MdiMenuView::pedePropriedades));

    QMenu* janela = barra->addMenu(QStringLiteral("&Janela"));
    m.cascata = item(janela, QString(), [this] { area_->cascadeSubWindows(); });
    m.icones = item(janela, QStringLiteral("&Organizar ícones"), [this] {
        int x = 0;
        for (QMdiSubWindow* j : area_->subWindowList())
            if (j->isMinimized()) {
                j->move(x, area_->viewport()->height() - j->height());
                x += j->width();
            }
    });
    // The list of windows is made as the menu opens.
    connect(janela, &QMenu::aboutToShow, this, [this, janela] {
        for (QAction* a : janela->actions().mid(2))
            janela->removeAction(a);
        if (!area_->subWindowList().isEmpty()) janela->addSeparator();
        PreencheJanela(janela);
    });

    QMenu* ajuda = barra->addMenu(QStringLiteral("Aj&uda"));
    m.conteudo = item(ajuda, QStringLiteral("&Conteúdo e índice..."), &mnuAjudaConteudo_Click,
                      QKeySequence(Qt::Key_F1));
    m.comoUsar = item(ajuda, QString(), &mnuAjudaComoUsar_Click);
    item(ajuda, QStringLiteral("Exibir &dicas..."), sinal(&MdiMenuView::pedeDicas));
    ajuda->addSeparator();
    QMenu* doc = ajuda->addMenu(QStringLiteral("D&ocumentação"));
    item(doc, QStringLiteral("&Massa do Vapor Superaquecido"), [this] { emit pedeTabelaVapor(0); });
    item(doc, QStringLiteral("&Volume do Vapor Superaquecido"), [this] { emit pedeTabelaVapor(1); });
    ajuda->addSeparator();
    m.sobre = item(ajuda, QString(), sinal(&MdiMenuView::pedeSobre));
}

void MdiMenuView::AtualizaMenus() {
    const Menus& m = menus_;
    FrmCalcTramelo* calculo = filhoAtivo().calculo;
    FrmRelatorio* relatorio = filhoAtivo().relatorio;
    const bool frame = tipoMenu_ == Tipo::Frame || tipoMenu_ == Tipo::Outro;
    const bool rel = tipoMenu_ == Tipo::Relatorio;
    // Each child's menu has captions of its own: the report's carries keys
    // the frame's doesn't, and the frame's "Fechar" has one the children's lack.
    m.abrir->setText(rel ? QStringLiteral("&Abrir...") : QStringLiteral("&Abrir"));
    m.fechar->setText(frame ? QStringLiteral("&Fechar") : QStringLiteral("Fechar"));
    m.fechar->setEnabled(!frame);
    m.fecharTodos->setEnabled(!frame);
    m.salvar->setEnabled(calculo && calculo->mnuArquivoSalvar.Enabled);
    m.salvarComo->setEnabled(calculo && calculo->mnuArquivoSalvarComo.Enabled);
    m.salvarTodos->setText(rel ? QStringLiteral("Salvar todos") : QStringLiteral("Salvar &todos"));
    m.salvarTodos->setEnabled(calculo && calculo->mnuArquivoSalvarTodos.Enabled);
    m.salvarTodos->setVisible(!frame);
    m.exportar->setEnabled(!frame);
    m.imprimir->setText(rel ? QStringLiteral("Imprimir...") : QStringLiteral("&Imprimir..."));
    m.imprimir->setEnabled(!frame);

    const MdiMenu& f = mdiMenu();
    auto marca = [&](QAction* a, const ItemMenu& doFrame, const ItemMenu* doCalculo,
                     const ItemMenu* doRelatorio) {
        const ItemMenu* filho = calculo ? doCalculo : relatorio ? doRelatorio : nullptr;
        const ItemMenu& i = filho ? *filho : doFrame;
        a->setText(Q(i.Caption));
        a->setChecked(i.Checked);
    };
    marca(m.barraPadrao, f.mnuExibirBarraPadrao, calculo ? &calculo->mnuExibirBarraPadrao : nullptr,
          relatorio ? &relatorio->mnuExibirBarraPadrao : nullptr);
    marca(m.barraCalculo, f.mnuExibirBarraCalculo,
          calculo ? &calculo->mnuExibirBarraCalculo : nullptr,
          relatorio ? &relatorio->mnuExibirBarraCalculo : nullptr);
    for (QAction* a : {m.etiquetaBarras, m.etiquetaExibir})
        marca(a, f.mnuExibirEtiqueta, calculo ? &calculo->mnuExibirEtiqueta : nullptr,
              relatorio ? &relatorio->mnuExibirEtiqueta : nullptr);
    marca(m.statusBar, f.mnuExibirStatusBar, calculo ? &calculo->mnuExibirStatusBar : nullptr,
          relatorio ? &relatorio->mnuExibirStatusBar : nullptr);
    m.sepBarras->setVisible(!rel);
    m.etiquetaBarras->setVisible(!rel);
    m.etiquetaExibir->setVisible(rel);
    m.sepExibir1->setVisible(!rel);
    m.sepExibir2->setVisible(!rel);
    m.relatorios->setText(rel ? QStringLiteral("&Relatórios...") : QStringLiteral("Relatórios"));

    m.cascata->setText(rel ? QStringLiteral("Organizar em &cascata") : QStringLiteral("&Cascata"));
    m.cascata->setEnabled(!frame);
    m.icones->setEnabled(!frame);
    m.conteudo->setEnabled(!frame);
    m.comoUsar->setText(rel ? QStringLiteral("Como utilizar a &ajuda...")
                            : QStringLiteral("Como utilizar a ajuda..."));
    m.sobre->setText(rel ? QStringLiteral("&Sobre o Tramelo") : QStringLiteral("&Sobre o Tramelo..."));
}

void MdiMenuView::AtualizaRecentes() {
    MenuRecentes mru;
    AtualizaMRU(mru);
    for (size_t i = 0; i < menus_.recentes.size(); ++i) {
        const EntradaMenu& e = mru.mnuArquivoMRU[i];
        menus_.recentes[i]->setText(Q(e.Caption));
        menus_.recentes[i]->setVisible(e.Visible);
    }
    menus_.vazio->setText(Q(mru.mnuArquivoMRUVazio.Caption));
    menus_.vazio->setVisible(mru.mnuArquivoMRUVazio.Visible);
}

} // namespace tramelo
