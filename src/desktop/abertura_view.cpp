#include "desktop/abertura_view.h"

#include <QApplication>
#include <QCursor>
#include <QEvent>
#include <QEventLoop>
#include <QFrame>
#include <QIcon>
#include <QLabel>
#include <QLinearGradient>
#include <QPainter>
#include <QPushButton>
#include <QScreen>

#include <algorithm>

namespace tramelo {
namespace {

// Twips to pixels at the design's 15 twips a pixel, scaled on dense screens.
int Px(int twips, const QWidget* w) {
    return static_cast<int>(twips / 15.0 * w->logicalDpiX() / 96.0 + 0.5);
}

QString Q(const std::string& s) {
    return QString::fromStdString(s);
}

QFont Fonte(const char* familia, int pontos, bool negrito = false) {
    QFont f(QString::fromLatin1(familia), pontos, negrito ? QFont::Bold : QFont::Normal);
    f.setStyleHint(QFont::SansSerif);
    return f;
}

QLabel* Rotulo(QWidget* pai, const char* nome, int x, int y, int w, int h, const QFont& fonte) {
    auto* l = new QLabel(pai);
    l->setObjectName(QString::fromLatin1(nome));
    l->setFont(fonte);
    l->setGeometry(Px(x, pai), Px(y, pai), Px(w, pai), Px(h, pai));
    return l;
}

void Cor(QLabel* l, const QColor& cor) {
    QPalette p = l->palette();
    p.setColor(QPalette::WindowText, cor);
    l->setPalette(p);
}

} // namespace

// --- The splash -----------------------------------------------------------

AberturaView::AberturaView(FrmAbertura& registro)
    : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint), registro_(registro) {
    setObjectName(QStringLiteral("frmAbertura"));
    // The size of the design's background picture, 427 x 283 pixels.
    setFixedSize(Px(427 * 15, this), Px(283 * 15, this));
    setWindowModality(Qt::ApplicationModal);

    const QFont titulo = Fonte("Tahoma", 26, true);
    // The shadow goes first so that the title lies over it.
    lblProductName_[1] = Rotulo(this, "lblProductName(1)", 1920 + 30, 2550 + 30, 4200, 660, titulo);
    lblProductName_[0] = Rotulo(this, "lblProductName(0)", 1920, 2550, 4200, 660, titulo);
    Cor(lblProductName_[0], QColor(255, 255, 0));
    Cor(lblProductName_[1], Qt::black);

    const QFont texto = Fonte("Arial", 9);
    lblVersion_ = Rotulo(this, "lblVersion", 1950, 3255, 4200, 255, texto);
    lblPlatform_ = Rotulo(this, "lblPlatform", 1950, 3510, 4200, 255, texto);
    for (QLabel* l : {lblVersion_, lblPlatform_})
        Cor(l, QColor(235, 240, 245));
}

void AberturaView::Sincroniza() {
    for (size_t i = 0; i < 2; ++i)
        lblProductName_[i]->setText(Q(registro_.lblProductName[i]));
    lblVersion_->setText(Q(registro_.lblVersion));
    lblPlatform_->setText(Q(registro_.lblPlatform));
}

void AberturaView::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const QRectF r = rect();

    // In place of a picture: a steel-blue field with an orifice plate held
    // between two flanges of a pipe, drawn in light lines.
    QLinearGradient fundo(r.topLeft(), r.bottomRight());
    fundo.setColorAt(0, QColor(16, 42, 72));
    fundo.setColorAt(1, QColor(52, 104, 146));
    p.fillRect(r, fundo);

    const double u = width() / 427.0;
    p.setPen(QPen(QColor(255, 255, 255, 60), 2 * u));
    p.setBrush(Qt::NoBrush);
    const double eixo = 82 * u;
    p.drawLine(QPointF(0, eixo - 34 * u), QPointF(r.width(), eixo - 34 * u));
    p.drawLine(QPointF(0, eixo + 34 * u), QPointF(r.width(), eixo + 34 * u));
    p.setBrush(QColor(255, 255, 255, 40));
    p.drawRect(QRectF(206 * u, eixo - 52 * u, 14 * u, 104 * u));
    p.drawRect(QRectF(236 * u, eixo - 52 * u, 14 * u, 104 * u));
    p.setBrush(QColor(255, 255, 255, 90));
    p.drawRect(QRectF(224 * u, eixo - 70 * u, 8 * u, 56 * u));
    p.drawRect(QRectF(224 * u, eixo + 14 * u, 8 * u, 20 * u));
    p.setPen(QPen(QColor(255, 255, 255, 110), 1.5 * u, Qt::DashLine));
    p.drawLine(QPointF(40 * u, eixo), QPointF(r.width() - 40 * u, eixo));

    // The two frame lines, grey outside and white 15 twips within.
    p.setRenderHint(QPainter::Antialiasing, false);
    p.setBrush(Qt::NoBrush);
    const int um = std::max(1, Px(15, this));
    p.setPen(QPen(QColor(128, 128, 128), 1));
    p.drawRect(rect().adjusted(0, 0, -1, -1));
    p.setPen(QPen(Qt::white, 1));
    p.drawRect(rect().adjusted(um, um, -1 - um, -1 - um));
}

AberturaQt::AberturaQt() {
    QObject::connect(&tmrLogin_, &QTimer::timeout, [this] {
        if (registro_ && registro_->tmrLogin.Enabled) tmrLogin_Timer(*registro_);
    });
}

AberturaQt::~AberturaQt() {
    if (telaAbertura() == this) telaAbertura() = nullptr;
}

void AberturaQt::Carregada(FrmAbertura& f) {
    registro_ = &f;
    janela_ = std::make_unique<AberturaView>(f);
    janela_->Sincroniza();
    tmrLogin_.setInterval(f.tmrLogin.Interval);
    if (f.tmrLogin.Enabled) tmrLogin_.start();
}

void AberturaQt::MostraModal(FrmAbertura& f) {
    // The count began at load: the splash may be over before it shows.
    if (!f.Carregado || !janela_) return;
    if (QScreen* tela = QGuiApplication::primaryScreen()) {
        QRect r = janela_->rect();
        r.moveCenter(tela->availableGeometry().center());
        janela_->move(r.topLeft());
    }
    janela_->show();
    janela_->raise();
    if (!f.Carregado) return;
    QEventLoop espera;
    espera_ = &espera;
    espera.exec();
    espera_ = nullptr;
}

void AberturaQt::Descarregada(FrmAbertura&) {
    tmrLogin_.stop();
    janela_.reset();
    if (espera_) espera_->quit();
}

// --- The about box --------------------------------------------------------

namespace {

// A link or its pointer box, at least as tall as the link's text.
QRect Lugar(const QWidget* w, int left, int top, int width, int height, const QFont& fonte) {
    const int alto = std::max(Px(height, w), QFontMetrics(fonte).height() + 1);
    return {Px(left, w), Px(top, w), Px(width, w), alto};
}

} // namespace

SobreView::SobreView(FrmSobre& registro, QWidget* dono) : QDialog(dono), registro_(registro) {
    setObjectName(QStringLiteral("frmSobre"));
    setFixedSize(Px(6330, this), Px(3720, this));

    auto* imagem = new QLabel(this);
    imagem->setObjectName(QStringLiteral("imgIcone"));
    imagem->setPixmap(QApplication::windowIcon().pixmap(Px(720, this), Px(720, this)));
    imagem->setGeometry(Px(240, this), Px(240, this), Px(720, this), Px(720, this));

    lblTitulo_ = Rotulo(this, "lblTitulo", 1200, 210, 4890, 495, Fonte("Arial", 16, true));
    lblVersao_ = Rotulo(this, "lblVersao", 1200, 750, 4890, 255, Fonte("Arial", 9));
    lblWindows_ = Rotulo(this, "lblWindows", 1200, 1005, 4890, 255, Fonte("Arial", 9));

    auto* linha = new QFrame(this);
    linha->setFrameShape(QFrame::HLine);
    linha->setFrameShadow(QFrame::Sunken);
    linha->setGeometry(Px(240, this), Px(1380, this), Px(5850, this), Px(30, this));

    lblAviso_ = Rotulo(this, "lblAviso", 240, 1530, 5850, 1260, Fonte("Arial", 8));
    lblAviso_->setWordWrap(true);
    lblAviso_->setAlignment(Qt::AlignLeft | Qt::AlignTop);

    const QFont link = Fonte("Arial", 8);
    for (size_t i = 0; i < 2; ++i) {
        const RotuloLink& l = registro_.lblLink[i];
        auto* rotulo = new QLabel(this);
        rotulo->setObjectName(QStringLiteral("lblLink(%1)").arg(i));
        rotulo->setFont(link);
        rotulo->setGeometry(Lugar(this, l.Left, l.Top, l.Width, l.Height, link));
        rotulo->setForegroundRole(QPalette::Link);
        lblLink_[i] = rotulo;

        // Over the link, where the pointer is tested and the click lands.
        const CaixaPosicao& c = registro_.picPosLink[i];
        auto* caixa = new QWidget(this);
        caixa->setObjectName(QStringLiteral("picPosLink(%1)").arg(i));
        caixa->setGeometry(Lugar(this, c.Left, c.Top, c.Width, c.Height, link));
        caixa->setToolTip(Q(c.ToolTipText));
        caixa->setCursor(Qt::PointingHandCursor);
        caixa->installEventFilter(this);
        picPosLink_[i] = caixa;
    }

    cmdOK_ = new QPushButton(QStringLiteral("OK"), this);
    cmdOK_->setObjectName(QStringLiteral("cmdOK"));
    cmdOK_->setFont(Fonte("Arial", 9));
    cmdOK_->setGeometry(Px(4875, this), Px(3075, this), Px(1215, this), Px(420, this));
    cmdOK_->setDefault(true);
    cmdOK_->setFocus();
    connect(cmdOK_, &QPushButton::clicked, this, [this] {
        cmdOK_Click(registro_);
        Sincroniza();
        accept();
    });

    tmrSublinha_.setInterval(registro_.tmrSublinha.Interval);
    connect(&tmrSublinha_, &QTimer::timeout, this, [this] { Sublinha(QCursor::pos()); });
    connect(this, &QDialog::finished, &tmrSublinha_, &QTimer::stop);
    Sincroniza();
}

void SobreView::Sincroniza() {
    setWindowTitle(Q(registro_.Caption));
    setEnabled(registro_.Enabled);
    lblTitulo_->setText(Q(registro_.lblTitulo));
    lblVersao_->setText(Q(registro_.lblVersao));
    lblWindows_->setText(Q(registro_.lblWindows));
    lblAviso_->setText(Q(registro_.lblAviso));
    for (size_t i = 0; i < 2; ++i) {
        const RotuloLink& l = registro_.lblLink[i];
        lblLink_[i]->setText(Q(l.Caption));
        if (lblLink_[i]->font().underline() != l.Underline) {
            QFont f = lblLink_[i]->font();
            f.setUnderline(l.Underline);
            lblLink_[i]->setFont(f);
        }
    }
    const bool ligado = registro_.tmrSublinha.Enabled && registro_.Carregado;
    if (ligado && !tmrSublinha_.isActive()) tmrSublinha_.start();
    if (!ligado) tmrSublinha_.stop();
}

void SobreView::Sublinha(QPoint cursor) {
    std::array<Retangulo, 2> caixas;
    for (size_t i = 0; i < 2; ++i) {
        const QPoint canto = picPosLink_[i]->mapToGlobal(QPoint(0, 0));
        caixas[i] = {canto.x(), canto.y(), canto.x() + picPosLink_[i]->width(),
                     canto.y() + picPosLink_[i]->height()};
    }
    tmrSublinha_Timer(registro_, {cursor.x(), cursor.y()}, caixas);
    Sincroniza();
}

bool SobreView::eventFilter(QObject* objeto, QEvent* evento) {
    if (evento->type() == QEvent::MouseButtonRelease) {
        for (int i = 0; i < 2; ++i)
            if (objeto == picPosLink_[static_cast<size_t>(i)]) {
                lblLink_Click(registro_, i);
                return true;
            }
    }
    return QDialog::eventFilter(objeto, evento);
}

void MostraSobreQt(QWidget* dono) {
    FrmSobre f;
    FrmSobre_Load(f);
    SobreView janela(f, dono);
    janela.exec();
}

} // namespace tramelo
