#include "desktop/calculo_view.h"

#include "document/entrada.h"
#include "document/frm_calc_tramelo.h"
#include "sizing/catalogo.h"

#include <QCloseEvent>
#include <QContextMenuEvent>
#include <QComboBox>
#include <QFrame>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QScrollBar>

#include <algorithm>

namespace tramelo {
namespace {

QString Q(const std::string& s) {
    return QString::fromStdString(s);
}

// Design pixels, scaled on dense screens.
int Px(int px, const QWidget* w) {
    return static_cast<int>(px * w->logicalDpiX() / 96.0 + 0.5);
}

constexpr int AlturaLinha = 25;

} // namespace


CalculoView::CalculoView(FrmCalcTramelo& registro, QWidget* pai)
    : QWidget(pai), registro_(registro) {
    setFixedSize(Px(463, this), Px(375, this));
    QFont arial(QStringLiteral("Arial"), 9);
    setFont(arial);

    // The selections, chosen in order: orifice kind, fluid, tap position.
    auto* fraMisc = new QFrame(this);
    fraMisc->setFrameShape(QFrame::StyledPanel);
    fraMisc->setGeometry(Px(8, this), Px(6, this), Px(447, this), Px(100, this));
    auto selecao = [&](int y, QLabel*& lbl, QComboBox*& cbo, const std::string& rotulo) {
        lbl = new QLabel(Q(rotulo), fraMisc);
        lbl->setGeometry(Px(10, this), Px(y, this), Px(150, this), Px(24, this));
        cbo = new QComboBox(fraMisc);
        cbo->setGeometry(Px(160, this), Px(y, this), Px(272, this), Px(24, this));
    };
    selecao(7, lblTramelo_, cboTramelo_, registro_.lblTramelo.Caption);
    selecao(38, lblFluido_, cboFluido_, registro_.lblFluido.Caption);
    selecao(69, lblTomada_, cboTomada_, registro_.lblTomada.Caption);
    cboTramelo_->setObjectName(QStringLiteral("cboTramelo"));
    cboFluido_->setObjectName(QStringLiteral("cboFluido"));
    cboTomada_->setObjectName(QStringLiteral("cboTomada"));

    // The list: head band, the sliding strip of rows, the vertical bar.
    picLista_ = new QFrame(this);
    picLista_->setFrameShape(QFrame::StyledPanel);
    picLista_->setGeometry(Px(8, this), Px(114, this), Px(451, this), Px(254, this));
    picMenu_ = new QWidget(picLista_);
    picMenu_->setGeometry(Px(2, this), Px(2, this), Px(447, this), Px(22, this));
    picMenu_->setAutoFillBackground(true);
    for (auto [x, texto] : {std::pair{4, "Descrição"}, {165, "Valor"}, {316, "Escala"}}) {
        auto* l = new QLabel(QString::fromUtf8(texto), picMenu_);
        QFont negrito = arial;
        negrito.setBold(true);
        l->setFont(negrito);
        l->setGeometry(Px(x, this), 0, Px(140, this), Px(22, this));
        l->setForegroundRole(QPalette::HighlightedText);
    }
    janela_ = new QWidget(picLista_);
    janela_->setGeometry(Px(2, this), Px(26, this), Px(432, this), Px(224, this));
    picMove_ = new QWidget(janela_);
    barraV_ = new QScrollBar(Qt::Vertical, picLista_);
    barraV_->setObjectName(QStringLiteral("barraV"));
    barraV_->setGeometry(Px(434, this), Px(26, this), Px(15, this), Px(224, this));

    auto faixa = [&](int i) {
        auto* p = new QWidget(picMove_);
        p->resize(Px(432, this), Px(AlturaLinha, this));
        picDados_[static_cast<size_t>(i)] = p;
        return p;
    };
    // Row 0, the tag; row 1, the density mode.
    QWidget* p0 = faixa(0);
    lblTag_ = new QLabel(Q(registro_.lblTag.Caption), p0);
    lblTag_->setGeometry(Px(4, this), 0, Px(160, this), Px(AlturaLinha, this));
    txtTag_ = new QLineEdit(p0);
    txtTag_->setObjectName(QStringLiteral("txtTag"));
    txtTag_->setMaxLength(20);
    txtTag_->setGeometry(Px(165, this), Px(2, this), Px(149, this), Px(21, this));
    txtTag_->installEventFilter(this);
    // The caption names its field for a screen reader.
    lblTag_->setBuddy(txtTag_);
    QWidget* p1 = faixa(1);
    lblMassaDensidade_ = new QLabel(Q(registro_.lblMassaDensidade.Caption), p1);
    lblMassaDensidade_->setGeometry(Px(4, this), 0, Px(160, this), Px(AlturaLinha, this));
    cboMassaDensidade_ = new QComboBox(p1);
    cboMassaDensidade_->setObjectName(QStringLiteral("cboMassaDensidade"));
    cboMassaDensidade_->setGeometry(Px(165, this), Px(1, this), Px(266, this), Px(23, this));
    cboMassaDensidade_->installEventFilter(this);
    for (int i : LinhasDados) {
        QWidget* p = faixa(i);
        auto* l = new QLabel(p);
        l->setGeometry(Px(4, this), 0, Px(160, this), Px(AlturaLinha, this));
        lblDados_[static_cast<size_t>(i)] = l;
        auto* t = new QLineEdit(p);
        t->setMaxLength(20);
        t->setGeometry(Px(165, this), Px(2, this), Px(149, this), Px(21, this));
        t->setProperty("linha", i);
        t->setObjectName(QStringLiteral("txtDados(%1)").arg(i));
        t->installEventFilter(this);
        txtDados_[static_cast<size_t>(i)] = t;
        l->setBuddy(t);
        if (registro_.cboDados(i)) {
            auto* c = new QComboBox(p);
            c->setGeometry(Px(316, this), Px(1, this), Px(114, this), Px(23, this));
            c->setProperty("linha", i);
            c->setObjectName(QStringLiteral("cboDados(%1)").arg(i));
            c->installEventFilter(this);
            cboDados_[static_cast<size_t>(i)] = c;
            connect(c, QOverload<int>::of(&QComboBox::activated), this, [this, i](int k) {
                Age([this, i, k] { registro_.cboDados(i)->DefineListIndex(k); });
            });
        }
        connect(t, &QLineEdit::textEdited, this, [this, i](const QString& s) {
            Age([this, i, s] { registro_.txtDados(i)->DefineTexto(s.toStdString()); });
        });
    }
    connect(cboTramelo_, QOverload<int>::of(&QComboBox::activated), this,
            [this](int k) { Age([this, k] { registro_.cboTramelo.DefineListIndex(k); }); });
    connect(cboFluido_, QOverload<int>::of(&QComboBox::activated), this,
            [this](int k) { Age([this, k] { registro_.cboFluido.DefineListIndex(k); }); });
    connect(cboTomada_, QOverload<int>::of(&QComboBox::activated), this,
            [this](int k) { Age([this, k] { registro_.cboTomada.DefineListIndex(k); }); });
    connect(cboMassaDensidade_, QOverload<int>::of(&QComboBox::activated), this,
            [this](int k) { Age([this, k] { registro_.cboMassaDensidade.DefineListIndex(k); }); });
    connect(txtTag_, &QLineEdit::textEdited, this, [this](const QString& s) {
        Age([this, s] { registro_.txtTag.DefineTexto(s.toStdString()); });
    });
    connect(barraV_, &QScrollBar::valueChanged, this, [this](int v) {
        if (sincronizando_) return;
        Age([this, v] {
            registro_.barraV.Value = v;
            barraV_Change(registro_);
        });
    });
    Sincroniza();
}

void CalculoView::Age(const std::function<void()>& acao) {
    if (sincronizando_) return;
    acao();
    // This window shows its own record at once; what the action changed
    // elsewhere, the core has told the frame.
    Sincroniza();
}

void CalculoView::SincronizaLista(QComboBox* w, const CaixaCombinacao& c) {
    bool igual = w->count() == c.ListCount();
    for (int k = 0; igual && k < w->count(); ++k)
        igual = w->itemText(k) == Q(c.itens[static_cast<size_t>(k)].texto);
    if (!igual) {
        w->clear();
        for (const ItemLista& item : c.itens)
            w->addItem(Q(item.texto));
    }
    if (w->currentIndex() != c.ListIndex()) w->setCurrentIndex(c.ListIndex());
    w->setEnabled(c.Enabled);
}

void CalculoView::SincronizaTexto(QLineEdit* w, const CaixaTexto& t) {
    QString q = Q(t.Text());
    if (w->text() != q) w->setText(q);
    w->setReadOnly(t.Locked);
    w->setEnabled(t.Enabled);
}

void CalculoView::Sincroniza() {
    sincronizando_ = true;
    FrmCalcTramelo& f = registro_;
    setWindowTitle(Q(f.Caption));
    SincronizaLista(cboTramelo_, f.cboTramelo);
    SincronizaLista(cboFluido_, f.cboFluido);
    SincronizaLista(cboTomada_, f.cboTomada);
    lblTramelo_->setEnabled(f.lblTramelo.Enabled);
    lblFluido_->setEnabled(f.lblFluido.Enabled);
    lblTomada_->setEnabled(f.lblTomada.Enabled);
    picLista_->setEnabled(f.picLista.Enabled);
    // The head band takes the active title bar's colour while the list is in use.
    picMenu_->setBackgroundRole(f.picMenu.corAtiva ? QPalette::Highlight : QPalette::Mid);
    lblTag_->setEnabled(f.lblTag.Enabled);
    SincronizaTexto(txtTag_, f.txtTag);
    lblMassaDensidade_->setEnabled(f.lblMassaDensidade.Enabled);
    SincronizaLista(cboMassaDensidade_, f.cboMassaDensidade);
    for (int i = 0; i <= 30; ++i) {
        Faixa* faixa = f.picDados(i);
        QWidget* p = picDados_[static_cast<size_t>(i)];
        if (!faixa || !p) continue;
        p->move(0, Px(faixa->Top, this));
        p->setVisible(faixa->Visible);
        p->setEnabled(faixa->Enabled);
        if (Rotulo* l = f.lblDados(i)) {
            lblDados_[static_cast<size_t>(i)]->setText(Q(l->Caption));
            lblDados_[static_cast<size_t>(i)]->setEnabled(l->Enabled);
        }
        if (CaixaTexto* t = f.txtDados(i)) SincronizaTexto(txtDados_[static_cast<size_t>(i)], *t);
        if (CaixaCombinacao* c = f.cboDados(i)) {
            QComboBox* w = cboDados_[static_cast<size_t>(i)];
            SincronizaLista(w, *c);
            w->setVisible(c->Visible);
        }
    }
    picMove_->setGeometry(0, Px(f.picMove.Top, this), Px(432, this),
                          Px(std::max(f.picMove.Height, 225), this));
    barraV_->setEnabled(f.barraV.Enabled);
    barraV_->setRange(0, f.barraV.Max);
    barraV_->setPageStep(std::max(1, f.barraV.LargeChange));
    barraV_->setSingleStep(std::max(1, f.barraV.SmallChange));
    barraV_->setValue(f.barraV.Value);
    sincronizando_ = false;
    OrdenaTab();
    AtendeFoco();
}

void CalculoView::OrdenaTab() {
    // The display order: the three selections, then the rows in sight order,
    // which changes with the fluid (the density-mode row stands among them).
    std::vector<int> linhas;
    for (int i = 0; i <= 30; ++i) {
        const Faixa* faixa = registro_.picDados(i);
        if (faixa && faixa->Visible) linhas.push_back(i);
    }
    std::stable_sort(linhas.begin(), linhas.end(), [this](int a, int b) {
        return registro_.picDados(a)->Top < registro_.picDados(b)->Top;
    });
    if (linhas == ordemTab_) return;
    ordemTab_ = linhas;
    std::vector<QWidget*> cadeia{cboTramelo_, cboFluido_, cboTomada_};
    for (int i : linhas) {
        if (i == 0) cadeia.push_back(txtTag_);
        else if (i == 1) cadeia.push_back(cboMassaDensidade_);
        else {
            if (QWidget* t = txtDados_[static_cast<size_t>(i)]) cadeia.push_back(t);
            if (QWidget* c = cboDados_[static_cast<size_t>(i)]) cadeia.push_back(c);
        }
    }
    for (size_t k = 1; k < cadeia.size(); ++k)
        QWidget::setTabOrder(cadeia[k - 1], cadeia[k]);
}

void CalculoView::AtendeFoco() {
    // A handler asked for the focus (the material's factor, an empty field
    // met by "Calcular"). Its GotFocus runs as for a user's click: the scroll
    // rule, the calculator button, the selected text.
    if (registro_.pedidosDeFoco == pedidosAtendidos_) return;
    pedidosAtendidos_ = registro_.pedidosDeFoco;
    auto* w = findChild<QWidget*>(Q(registro_.foco));
    if (w && w->isEnabled() && w->isVisibleTo(this)) w->setFocus(Qt::OtherFocusReason);
}

int CalculoView::LinhaComFoco() const {
    QWidget* w = focusWidget();
    if (!w) return -1;
    QVariant v = w->property("linha");
    return v.isValid() && qobject_cast<QLineEdit*>(w) ? v.toInt() : -1;
}

bool CalculoView::eventFilter(QObject* objeto, QEvent* evento) {
    auto* w = qobject_cast<QWidget*>(objeto);
    QVariant linha = w ? w->property("linha") : QVariant();
    auto* campo = qobject_cast<QLineEdit*>(objeto);
    const int i = linha.isValid() ? linha.toInt() : -1;
    switch (evento->type()) {
    case QEvent::KeyPress: {
        if (!campo || i < 0) break;
        auto* tecla = static_cast<QKeyEvent*>(evento);
        QString texto = tecla->text();
        if (tecla->key() == Qt::Key_Return || tecla->key() == Qt::Key_Enter) {
            if (!tecla->isAutoRepeat()) enterNoCampo_ = campo;
            return true;
        }
        if (texto.size() != 1 || texto[0].unicode() < 32 || tecla->key() == Qt::Key_Delete) break;
        int passa = txtDados_KeyPress(registro_, i, texto[0].unicode());
        if (passa == 0) return true;
        if (passa != texto[0].unicode() && !campo->isReadOnly()) {
            campo->insert(QString(QChar(passa)));
            Age([this, i, campo] {
                registro_.txtDados(i)->DefineTexto(campo->text().toStdString());
            });
            return true;
        }
        break;
    }
    case QEvent::KeyRelease: {
        auto* tecla = static_cast<QKeyEvent*>(evento);
        if (campo && i >= 0 && !tecla->isAutoRepeat() &&
            (tecla->key() == Qt::Key_Return || tecla->key() == Qt::Key_Enter)) {
            // Only an Enter pressed here: the release of one that closed a
            // box, which then put the focus here, opens nothing.
            const bool aqui = enterNoCampo_ == campo;
            enterNoCampo_ = nullptr;
            if (aqui) emit duploCliqueCampo(i);
            return true;
        }
        break;
    }
    case QEvent::MouseButtonDblClick:
        if (campo && i >= 0) {
            emit duploCliqueCampo(i);
            return true;
        }
        break;
    case QEvent::FocusIn:
        // The record knows which control has the focus: the toolbar's
        // calculator opens on it.
        registro_.foco = campo == txtTag_               ? "txtTag"
                         : objeto == cboMassaDensidade_ ? "cboMassaDensidade"
                         : campo && i >= 0              ? "txtDados(" + std::to_string(i) + ")"
                         : i >= 0                       ? "cboDados(" + std::to_string(i) + ")"
                                                        : std::string();
        if (campo == txtTag_) {
            Age([this] { txtTag_GotFocus(registro_); });
            txtTag_->selectAll();
        } else if (objeto == cboMassaDensidade_) {
            Age([this] { cboMassaDensidade_GotFocus(registro_); });
        } else if (campo && i >= 0) {
            Age([this, i] { txtDados_GotFocus(registro_, i); });
            QMetaObject::invokeMethod(campo, &QLineEdit::selectAll, Qt::QueuedConnection);
        } else if (i >= 0) {
            Age([this, i] { cboDados_GotFocus(registro_, i); });
        }
        break;
    case QEvent::FocusOut:
        if (campo && i >= 0) Age([this, i] { txtDados_LostFocus(registro_, i); });
        break;
    default:
        break;
    }
    return QWidget::eventFilter(objeto, evento);
}

void CalculoView::contextMenuEvent(QContextMenuEvent* e) {
    // The right button anywhere but in a text field, whose menu is its own.
    QMenu menu(this);
    connect(menu.addAction(QStringLiteral("&Propriedades da água e do vapor...")),
            &QAction::triggered, this, &CalculoView::pedePropriedades, Qt::QueuedConnection);
    menu.exec(e->globalPos());
}

void CalculoView::closeEvent(QCloseEvent* e) {
    // The record decides (the question about unsaved changes); the frame
    // unloads the window when it may go.
    e->ignore();
    emit pedeFechar();
}

} // namespace tramelo
