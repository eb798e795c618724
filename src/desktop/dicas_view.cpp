#include "desktop/dicas_view.h"

#include "base/barras.h"

#include <QApplication>
#include <QCheckBox>
#include <QFrame>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QMainWindow>
#include <QPointer>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

#include <cmath>

namespace tramelo {
namespace {

QString Q(const std::string& s) {
    return QString::fromStdString(s);
}

QPointer<DicaView>& aberta() {
    static QPointer<DicaView> janela;
    return janela;
}

// The screen's twips per pixel: 15 at 96 dots an inch.
int TwipsPorPixel(const QWidget* w) {
    return static_cast<int>(std::lround(15.0 * 96.0 / w->logicalDpiX()));
}

Retangulo NaTela(const QRect& r) {
    return {r.left(), r.top(), r.left() + r.width(), r.top() + r.height()};
}

} // namespace

DicaView::DicaView(QWidget* dono) : QDialog(dono) {
    setObjectName(QStringLiteral("frmDica"));
    setAttribute(Qt::WA_DeleteOnClose);
    setModal(false);
    QFont fonte(QStringLiteral("Arial"), 9);
    fonte.setStyleHint(QFont::SansSerif);
    setFont(fonte);
    const int t = TwipsPorPixel(this);
    setFixedSize(registro_.Width / t, registro_.Height / t);

    // The tip on a white sheet, with the picture beside it.
    auto* folha = new QFrame(this);
    folha->setFrameShape(QFrame::StyledPanel);
    folha->setFrameShadow(QFrame::Sunken);
    folha->setAutoFillBackground(true);
    folha->setBackgroundRole(QPalette::Base);

    auto* picDicas = new QLabel(folha);
    picDicas->setObjectName(QStringLiteral("picDicas"));
    QIcon lampada = QIcon::fromTheme(QStringLiteral("help-hint"));
    if (lampada.isNull()) lampada = style()->standardIcon(QStyle::SP_MessageBoxInformation);
    picDicas->setPixmap(lampada.pixmap(32, 32));
    picDicas->setAlignment(Qt::AlignTop | Qt::AlignHCenter);

    lblVcSabia_ = new QLabel(folha);
    lblVcSabia_->setObjectName(QStringLiteral("lblVcSabia"));
    QFont titulo = fonte;
    titulo.setPointSize(12);
    titulo.setBold(true);
    lblVcSabia_->setFont(titulo);

    auto* linha = new QFrame(folha);
    linha->setFrameShape(QFrame::HLine);
    linha->setFrameShadow(QFrame::Sunken);

    // A tip is plain text: its line ends break the line, nothing is markup.
    lblTipText_ = new QLabel(folha);
    lblTipText_->setObjectName(QStringLiteral("lblTipText"));
    lblTipText_->setTextFormat(Qt::PlainText);
    lblTipText_->setWordWrap(true);
    lblTipText_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    lblTipText_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding);

    auto* texto = new QVBoxLayout;
    texto->addWidget(lblVcSabia_);
    texto->addWidget(linha);
    texto->addWidget(lblTipText_, 1);
    auto* dentro = new QHBoxLayout(folha);
    dentro->addWidget(picDicas, 0, Qt::AlignTop);
    dentro->addLayout(texto, 1);

    cmdOK_ = new QPushButton(this);
    cmdOK_->setObjectName(QStringLiteral("cmdOK"));
    cmdOK_->setDefault(true);
    cmdNextTip_ = new QPushButton(this);
    cmdNextTip_->setObjectName(QStringLiteral("cmdNextTip"));
    auto* botoes = new QVBoxLayout;
    botoes->addWidget(cmdOK_);
    botoes->addWidget(cmdNextTip_);
    botoes->addStretch();

    chkDicasIniciar_ = new QCheckBox(this);
    chkDicasIniciar_->setObjectName(QStringLiteral("chkDicasIniciar"));

    auto* cima = new QHBoxLayout;
    cima->addWidget(folha, 1);
    cima->addLayout(botoes);
    auto* tudo = new QVBoxLayout(this);
    tudo->addLayout(cima, 1);
    tudo->addWidget(chkDicasIniciar_);

    connect(cmdOK_, &QPushButton::clicked, this, &DicaView::reject);
    connect(cmdNextTip_, &QPushButton::clicked, this, [this] {
        cmdNextTip_Click(registro_);
        Sincroniza();
    });
    connect(chkDicasIniciar_, &QCheckBox::clicked, this, [this](bool marcada) {
        registro_.chkDicasIniciar.Value = marcada;
        chkDicasIniciar_Click(registro_);
        Sincroniza();
    });
    Sincroniza();
}

void DicaView::Sincroniza() {
    setWindowTitle(Q(registro_.Caption));
    lblVcSabia_->setText(Q(registro_.lblVcSabia));
    lblTipText_->setText(Q(registro_.lblTipText));
    chkDicasIniciar_->setText(Q(registro_.chkDicasIniciar.Caption));
    chkDicasIniciar_->setChecked(registro_.chkDicasIniciar.Value);
    cmdNextTip_->setText(Q(registro_.cmdNextTip.Caption));
    cmdNextTip_->setEnabled(registro_.cmdNextTip.Enabled);
    cmdOK_->setText(Q(registro_.cmdOK.Caption));
    cmdOK_->setEnabled(registro_.cmdOK.Enabled);
}

void DicaView::reject() {
    cmdOK_Click(registro_);
    QDialog::reject();
    close();
}

void MostraDicasQt(QWidget* dono) {
    if (DicaView* j = aberta()) {
        j->show();
        j->raise();
        j->activateWindow();
        return;
    }
    auto* janela = new DicaView(dono);
    aberta() = janela;
    const int t = TwipsPorPixel(janela);

    // The form's place counts from the main window's client area: for a
    // main window, the area under its menu and bars.
    LugarDica lugar;
    lugar.twipsPorPixel = t;
    QPoint origem;
    if (dono) {
        QWidget* cliente = dono;
        if (auto* principal = qobject_cast<QMainWindow*>(dono);
            principal && principal->centralWidget())
            cliente = principal->centralWidget();
        origem = cliente->mapToGlobal(QPoint(0, 0));
        const QRect moldura = dono->frameGeometry();
        lugar.menu = NaTela(moldura);
        // The frame's size as it is now, not as it was stored at its load.
        mdiMenu().Width = moldura.width() * t;
        mdiMenu().Height = moldura.height() * t;
    }
    lugar.dica = NaTela(QRect(origem, janela->frameGeometry().size()));
    Form_Load(janela->registro(), lugar);
    janela->Sincroniza();
    const FrmDica& f = janela->registro();
    janela->move(origem + QPoint(static_cast<int>(std::lround(f.Left / static_cast<double>(t))),
                                 static_cast<int>(std::lround(f.Top / static_cast<double>(t)))));
    janela->show();
    // Not modal, so not given the keys by being shown: at start the frame,
    // shown a moment before, would keep them, and Enter and Escape would
    // reach no OK.
    janela->raise();
    janela->activateWindow();
}

DicaView* DicaAberta() {
    return aberta();
}

} // namespace tramelo
