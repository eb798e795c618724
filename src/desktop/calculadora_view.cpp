#include "desktop/calculadora_view.h"

#include "calculator/lugar.h"
#include "document/frm_calc_tramelo.h"
#include "desktop/caixas_view.h"
#include "base/mod_base.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QMdiSubWindow>
#include <QPainter>
#include <QPointer>
#include <QScreen>
#include <QStyleOptionButton>
#include <QTimer>

#include <utility>

namespace tramelo {
namespace {

int Px(int twips, const QWidget* w) {
    return static_cast<int>(twips / 15.0 * w->logicalDpiX() / 96.0 + 0.5);
}

QPointer<CalculadoraView>& Unica() {
    static QPointer<CalculadoraView> c;
    return c;
}

} // namespace

// A button drawn from its two faces, raised (2) and sunken (0), with its
// caption over it; a press on the caption is a press on the face.
class BotaoCalculadora : public QWidget {
  public:
    BotaoCalculadora(CalculadoraView* calc, int tecla, const QString& texto, bool digito)
        : QWidget(calc), calc_(calc), tecla_(tecla), texto_(texto), digito_(digito) {
        setFocusPolicy(Qt::NoFocus);
        setCursor(Qt::PointingHandCursor);
    }
    int Tag = -1; // the face shown
    int tecla() const { return tecla_; }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter p(this);
        QStyleOptionButton o;
        o.initFrom(this);
        o.state |= Tag == 0 ? QStyle::State_Sunken : QStyle::State_Raised;
        style()->drawControl(QStyle::CE_PushButtonBevel, &o, &p, this);
        QFont f(QStringLiteral("Arial"));
        f.setPointSizeF(9.75);
        p.setFont(f);
        p.setPen(digito_ ? QColor(0, 0, 255) : QColor(255, 0, 0));
        QRect r = rect();
        if (Tag == 0) r.translate(1, 1);
        p.drawText(r, Qt::AlignCenter, texto_);
    }
    void mousePressEvent(QMouseEvent* e) override {
        if (e->button() != Qt::LeftButton) return;
        QPointer<CalculadoraView> vivo(calc_);
        calc_->CumpreSoltura();
        if (!vivo) return;
        if (calc_->voltando_) calc_->TerminaVolta();
        calc_->Pressiona(tecla_);
    }
    void mouseReleaseEvent(QMouseEvent* e) override {
        if (e->button() != Qt::LeftButton) return;
        const bool dentro = rect().contains(e->position().toPoint());
        calc_->Solta(tecla_);
        if (dentro) calc_->Executa(tecla_);
    }

  private:
    CalculadoraView* calc_;
    int tecla_;
    QString texto_;
    bool digito_;
};


CalculadoraView::CalculadoraView(QWidget* dono)
    : QWidget(dono, Qt::Tool | Qt::WindowTitleHint | Qt::WindowCloseButtonHint |
                        Qt::CustomizeWindowHint) {
    setWindowTitle(QStringLiteral("Calculadora"));
    setAttribute(Qt::WA_DeleteOnClose);
    setFixedSize(Px(3105, this), Px(2550, this));
    auto* fundo = new QLabel(this);
    fundo->setGeometry(Px(75, this), Px(75, this), Px(2955, this), Px(375, this));
    fundo->setAutoFillBackground(true);
    fundo->setStyleSheet(QStringLiteral("background: white; border: 1px inset gray;"));
    Readout_ = new QLabel(this);
    Readout_->setObjectName(QStringLiteral("Readout"));
    QFont arial(QStringLiteral("Arial"));
    arial.setPointSizeF(9.75);
    Readout_->setFont(arial);
    Readout_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    Readout_->setGeometry(Px(165, this), Px(135, this), Px(2805, this), Px(240, this));

    struct Desenho {
        int tecla, esquerda, topo, largura;
        const char* texto;
        bool digito;
    };
    const Desenho desenho[] = {
        {7, 75, 555, 540, "7", true},
        {8, 675, 555, 540, "8", true},
        {9, 1275, 555, 540, "9", true},
        {4, 75, 1050, 540, "4", true},
        {5, 675, 1050, 540, "5", true},
        {6, 1275, 1050, 540, "6", true},
        {1, 75, 1545, 540, "1", true},
        {2, 675, 1545, 540, "2", true},
        {3, 1275, 1545, 540, "3", true},
        {0, 75, 2040, 1140, "0", true},
        {Separador, 1275, 2040, 540, ",", true},
        {CancelaEntrada, 1875, 555, 540, "CE", false},
        {Cancela, 2490, 555, 540, "C", false},
        {Operador0 + 2, 1875, 1050, 540, "*", false},
        {Operador0 + 0, 2475, 1050, 540, "/", false},
        {Operador0 + 3, 1875, 1545, 540, "-", false},
        {Percentual, 2475, 1545, 540, "%", false},
        {Operador0 + 1, 1875, 2040, 540, "+", false},
        {Operador0 + 4, 2475, 2040, 540, "=", false},
    };
    for (const Desenho& d : desenho) {
        QString texto = d.tecla == Separador ? QString::fromStdString(calc_.CaptionDecimal)
                                             : QString::fromUtf8(d.texto);
        auto* b = new BotaoCalculadora(this, d.tecla, texto, d.digito);
        b->setObjectName(QStringLiteral("tecla%1").arg(d.tecla));
        b->setGeometry(Px(d.esquerda, this), Px(d.topo, this), Px(d.largura, this), Px(435, this));
        botoes_[static_cast<size_t>(d.tecla)] = b;
    }
    // The load: "=" released, every face raised, then the engine's reset.
    Botao(botoes_[Operador0 + 4], 2);
    for (BotaoCalculadora* b : botoes_)
        Botao(b, 2);
    Form_Load(calc_);
    Mostra();
    tmrSoltura_.setSingleShot(true);
    tmrSoltura_.setInterval(80);
    connect(&tmrSoltura_, &QTimer::timeout, this, &CalculadoraView::CumpreSoltura);
}

CalculadoraView::~CalculadoraView() {
    qApp->removeEventFilter(this);
    if (Unica() == this) Unica() = nullptr;
}

const QString CalculadoraView::Visor() const {
    return Readout_->text();
}

void CalculadoraView::Mostra() {
    Readout_->setText(QString::fromStdString(calc_.Readout));
}

void CalculadoraView::Botao(BotaoCalculadora* imagem, int face) {
    // At most one button is sunken: the last one comes up at the next press.
    if (BotaoAtual && BotaoAtual->Tag != 2) {
        BotaoAtual->Tag = 2;
        BotaoAtual->update();
    }
    BotaoAtual = imagem;
    if (BotaoAtual && BotaoAtual->Tag != face) {
        BotaoAtual->Tag = face;
        BotaoAtual->update();
    }
}

void CalculadoraView::Pressiona(int tecla) {
    Botao(botoes_[static_cast<size_t>(tecla)], 0);
}
void CalculadoraView::Solta(int tecla) {
    Botao(botoes_[static_cast<size_t>(tecla)], 2);
}

void CalculadoraView::Executa(int tecla) {
    QPointer<CalculadoraView> vivo(this);
    emHandler_ = true;
    caixaNoHandler_ = false;
    const int caixas = CaixasQt::Mostradas();
    ExecutaHandler(tecla);
    if (!vivo) return;
    emHandler_ = false;
    // The box's focus events may come late on a busy desktop; the count of
    // boxes doesn't.
    if (CaixasQt::Mostradas() != caixas) caixaNoHandler_ = true;
    if (!caixaNoHandler_ || !isVisible() || fechando_) return;
    // The division by zero's box had the activation. The window manager hands
    // it on when the box goes, often to the main window and sometimes after
    // this window had it back: take it back each time, until the user's next
    // key or click says where they are.
    voltando_ = true;
    qApp->installEventFilter(this);
    raise();
    activateWindow();
    PedeAtivacao(10);
}

bool CalculadoraView::eventFilter(QObject* alvo, QEvent* e) {
    const bool usuario = e->type() == QEvent::MouseButtonPress || e->type() == QEvent::KeyPress;
    if (voltando_ && usuario && e->spontaneous()) {
        auto* w = qobject_cast<QWidget*>(alvo);
        if (w && w->window() != this) TerminaVolta();
    }
    return QWidget::eventFilter(alvo, e);
}

void CalculadoraView::TerminaVolta() {
    voltando_ = false;
    qApp->removeEventFilter(this);
    // Past the wait, a window without the activation counts as left.
    QMetaObject::invokeMethod(this, [this] { DecideSaida(); }, Qt::QueuedConnection);
}

void CalculadoraView::DecideSaida() {
    if (!isVisible() || fechando_ || isActiveWindow()) return;
    if (voltando_) {
        raise();
        activateWindow();
    } else {
        Fecha();
    }
}

void CalculadoraView::PedeAtivacao(int vezes) {
    // A request the window manager dropped is made again every half second;
    // the wait ends after `vezes` of them at most.
    QTimer::singleShot(500, this, [this, vezes] {
        if (!voltando_ || !isVisible() || fechando_) return;
        if (vezes > 1) {
            DecideSaida();
            PedeAtivacao(vezes - 1);
            return;
        }
        TerminaVolta();
    });
}

void CalculadoraView::ExecutaHandler(int tecla) {
    std::optional<ErroExecucao> erro;
    if (tecla <= 9) {
        Number_Click(calc_, static_cast<short>(tecla));
    } else if (tecla == Separador) {
        cmdDecimal_Click(calc_);
    } else if (tecla == CancelaEntrada) {
        cmdCancelEntry_Click(calc_);
    } else if (tecla == Cancela) {
        cmdCancel_Click(calc_);
    } else if (tecla == Percentual) {
        erro = cmdPercent_Click(calc_);
    } else {
        SaidaOperador s = cmdOperador_Click(calc_, static_cast<short>(tecla - Operador0));
        erro = s.erro;
        if (s.resultado) {
            // The display, as it stands, into the field; errors passed over.
            if (FormPai) {
                if (CaixaTexto* t = FormPai->txtDados(indice_)) t->DefineTexto(*s.resultado);
            }
            Fecha();
            return;
        }
    }
    Mostra();
    if (erro) {
        // A failure of the engine doesn't stop the program: the error box,
        // and the calculator closes with the field as it was.
        fechando_ = true;
        InformaErro(*erro);
        Fecha();
    }
}

void CalculadoraView::Esquece(const FrmCalcTramelo& f) {
    if (FormPai == &f) Fecha();
}

void CalculadoraView::Fecha() {
    fechando_ = true;
    FormPai = nullptr;
    if (Unica() == this) Unica() = nullptr;
    close();
}

bool CalculadoraView::Cola(const std::string& texto) {
    if (auto erro = tramelo::Cola(calc_, texto)) {
        fechando_ = true;
        InformaErro(*erro);
        return false;
    }
    Mostra();
    return true;
}

void CalculadoraView::Inicia(FrmCalcTramelo& pai, int indice) {
    FormPai = &pai;
    indice_ = indice;
    show();
    raise();
    activateWindow();
    QApplication::processEvents();
    setFocus();
}

namespace {
// The key's handler, by the keypad map; -1 for a key that does nothing.
int TeclaDe(const QKeyEvent* e) {
    const bool teclado = e->modifiers() & Qt::KeypadModifier;
    const int k = e->key();
    if (k >= Qt::Key_0 && k <= Qt::Key_9) return k - Qt::Key_0;
    if (k == Qt::Key_Return || k == Qt::Key_Enter) return 14 + 4;
    if (!teclado) return -1;
    switch (k) {
    case Qt::Key_Slash:
        return 14 + 0;
    case Qt::Key_Plus:
        return 14 + 1;
    case Qt::Key_Asterisk:
        return 14 + 2;
    case Qt::Key_Minus:
        return 14 + 3;
    case Qt::Key_Comma:
    case Qt::Key_Period:
    case Qt::Key_Delete:
        return 10;
    default:
        return -1;
    }
}
} // namespace

void CalculadoraView::keyPressEvent(QKeyEvent* e) {
    // The press gives only the face; the operation waits for the release,
    // so a key held down doesn't repeat it.
    const int t = TeclaDe(e);
    if (t < 0 || e->isAutoRepeat()) return;
    if (teclaSolta_ >= 0) {
        // The server's autorepeat: a release and a press at the same instant,
        // which no hand makes. The key is still down.
        if (t == teclaSolta_ && e->timestamp() != 0 && e->timestamp() - horaSoltura_ <= 2) {
            tmrSoltura_.stop();
            teclaSolta_ = -1;
            return;
        }
        QPointer<CalculadoraView> vivo(this);
        CumpreSoltura();
        if (!vivo || fechando_) return;
    }
    // A repeat that came as a press alone.
    if (t == teclaPressionada_) return;
    teclaPressionada_ = t;
    if (voltando_) TerminaVolta();
    Pressiona(t);
}

void CalculadoraView::keyReleaseEvent(QKeyEvent* e) {
    const int t = TeclaDe(e);
    if (t < 0 || e->isAutoRepeat()) return;
    // Only a key pressed here: the Enter that closed the division's box comes
    // back released over the calculator, and must not be taken for "=".
    if (teclaPressionada_ != t) return;
    teclaSolta_ = t;
    horaSoltura_ = e->timestamp();
    tmrSoltura_.start();
}

void CalculadoraView::CumpreSoltura() {
    tmrSoltura_.stop();
    const int t = std::exchange(teclaSolta_, -1);
    if (t < 0) return;
    teclaPressionada_ = -1;
    QPointer<CalculadoraView> vivo(this);
    Executa(t);
    if (vivo) Solta(t);
}

void CalculadoraView::changeEvent(QEvent* e) {
    // Losing the activation is the only cancel: it closes, writing nothing.
    if (e->type() == QEvent::ActivationChange && !isActiveWindow() && emHandler_)
        caixaNoHandler_ = true;
    if (e->type() == QEvent::ActivationChange && !isActiveWindow() && isVisible() && !fechando_ &&
        !emHandler_) {
        // Decided once the event is done: an activation that only passed
        // through another window and came back is no cancel. While waiting
        // after the box, decided a little later: a click elsewhere moves the
        // activation before the click itself arrives, and must end the wait
        // rather than be fought.
        if (voltando_)
            QTimer::singleShot(200, this, [this] { DecideSaida(); });
        else
            QMetaObject::invokeMethod(this, [this] { DecideSaida(); }, Qt::QueuedConnection);
    }
    QWidget::changeEvent(e);
}

CalculadoraView* CalculadoraView::Aberta() {
    return Unica();
}

void CalculadoraView::Abre(FrmCalcTramelo& pai, int indice, QWidget* campo, QWidget* dono) {
    if (Unica()) Unica()->Fecha();
    auto* c = new CalculadoraView(dono);
    Unica() = c;
    CaixaTexto* t = pai.txtDados(indice);
    if (t && !t->Text().empty() && !c->Cola(t->Text())) {
        c->Fecha();
        return;
    }
    // Under the field, or above it when it would pass the bottom of the
    // calculation window (the field's sub-window, not the main window).
    if (campo) {
        const QPoint canto = campo->mapToGlobal(QPoint(0, 0));
        const QWidget* janela = campo;
        while (janela->parentWidget() && !qobject_cast<const QMdiSubWindow*>(janela))
            janela = janela->parentWidget();
        const int fundoJanela = janela->mapToGlobal(QPoint(0, janela->height())).y();
        // Not framed yet: its title bar and borders are taken as the main
        // window's, which the desktop has framed already.
        const QWidget* principal = campo->window();
        const int moldura = principal->frameGeometry().height() - principal->height();
        const PontoTela p =
            LugarDaCalculadora(c->height() + moldura, canto.x(), canto.y(),
                               canto.y() + campo->height(), fundoJanela);
        c->move(p.x, p.y); // a top-level's move places its frame
    }
    c->Inicia(pai, indice);
}

} // namespace tramelo
