#include "desktop/relatorio_view.h"

#include "desktop/verificacao_view.h"
#include "report/agora.h"
#include "report/frm_relatorio.h"
#include "report/linhas_iso.h"

#include <QCloseEvent>
#include <QColor>
#include <QFontDatabase>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

namespace tramelo {
namespace {

// Twips to pixels at the design's 15 twips a pixel, scaled on dense screens.
int Px(int twips, QWidget* w) {
    return static_cast<int>(twips / 15.0 * w->logicalDpiX() / 96.0 + 0.5);
}

// "Courier New" where it is installed; otherwise its metric twin from
// fonts-liberation, so the 79 columns line up the same.
QFont FonteFixa(int pontos) {
    QFont f(QStringLiteral("Courier New"), pontos);
    f.setStyleHint(QFont::TypeWriter);
    f.setFixedPitch(true);
    // Whole-pixel advances, as the design's 79 columns were measured with.
    f.setHintingPreference(QFont::PreferFullHinting);
    if (!QFontInfo(f).fixedPitch()) f.setFamily(QStringLiteral("Liberation Mono"));
    return f;
}

QString Q(const std::string& s) {
    return QString::fromStdString(s);
}

} // namespace

RelatorioView::RelatorioView(FrmRelatorio& registro, QWidget* pai)
    : QWidget(pai), registro_(registro) {
    // The built size is the size it opens at and the least it takes; what
    // more the user gives it goes to the report's list and the tabs.
    tamanhoProjeto_ = QSize(Px(8895, this), Px(4830, this));
    setMinimumSize(tamanhoProjeto_);
    resize(tamanhoProjeto_);
    picTodos_ = new QWidget(this);
    picTodos_->setGeometry(Px(75, this), Px(30, this), Px(8745, this), Px(4740, this));
    picTodos_->setAutoFillBackground(true);
    picTodos_->setBackgroundRole(QPalette::Base);
    QWidget* picTodos = picTodos_;

    const QFont fixa = FonteFixa(9);
    auto rotulo = [&](int x, int y, int w, int h, const std::string& texto) {
        auto* l = new QLabel(Q(texto), picTodos);
        l->setFont(fixa);
        l->setGeometry(Px(x, this), Px(y, this), Px(w, this), Px(h, this) + 2);
        return l;
    };
    auto campo = [&](int x, int y, int w, int h) {
        auto* t = new QLineEdit(picTodos);
        t->setFont(fixa);
        t->setMaxLength(55);
        t->setGeometry(Px(x, this), Px(y, this), Px(w, this), Px(h, this));
        return t;
    };
    lblData_ = rotulo(30, 90, 1995, 225, registro_.lblData);
    txtData_ = campo(2130, 60, 6435, 330);
    txtData_->setObjectName(QStringLiteral("txtData"));
    lblOS_ = rotulo(30, 480, 1995, 225, registro_.lblOS);
    txtOS_ = campo(2130, 450, 6435, 330);
    txtOS_->setObjectName(QStringLiteral("txtOS"));
    lblCliente_ = rotulo(30, 870, 1995, 225, registro_.lblCliente);
    txtCliente_ = campo(2130, 840, 6435, 330);
    txtCliente_->setObjectName(QStringLiteral("txtCliente"));
    // "..." sits at the right end of txtData, over its border.
    txtData_->setTextMargins(0, 0, Px(315, this), 0);
    cmdAgora_ = new QPushButton(QStringLiteral("..."), picTodos);
    cmdAgora_->setObjectName(QStringLiteral("cmdAgora"));
    QFont arial(QStringLiteral("Arial"), 8, QFont::Bold);
    cmdAgora_->setFont(arial);
    cmdAgora_->setGeometry(Px(8250, this), Px(75, this), Px(315, this), Px(300, this));
    cmdAgora_->setFocusPolicy(Qt::NoFocus);
    cmdAgora_->setToolTip(QStringLiteral("Hora e data atuais"));

    // The report and the standard's check share the place under the header
    // fields, one tab each, the tabs below. The column header band belongs
    // to the report's tab: the check's lines have columns of their own.
    abas_ = new QTabWidget(picTodos);
    abas_->setObjectName(QStringLiteral("abasRelatorio"));
    abas_->setTabPosition(QTabWidget::South);
    abas_->setDocumentMode(true);
    abas_->setGeometry(0, Px(1260, this), Px(8715, this), Px(4695 - 1260, this));
    auto* paginaRelatorio = new QWidget;
    shpMenu_ = new QWidget(paginaRelatorio);
    shpMenu_->setFixedHeight(Px(285, this));
    shpMenu_->setAutoFillBackground(true);
    shpMenu_->setBackgroundRole(QPalette::Highlight);
    lblMenu_ = new QLabel(Q(registro_.lblMenu), shpMenu_);
    lblMenu_->setFont(fixa);
    lblMenu_->setForegroundRole(QPalette::HighlightedText);
    lblMenu_->move(Px(30, this), (shpMenu_->height() - lblMenu_->sizeHint().height()) / 2);
    lblMenu_->adjustSize();
    lstRelatorio_ = new QListWidget;
    lstRelatorio_->setObjectName(QStringLiteral("lstRelatorio"));
    lstRelatorio_->setFont(fixa);
    auto* pilha = new QVBoxLayout(paginaRelatorio);
    pilha->setContentsMargins(0, 0, 0, 0);
    pilha->setSpacing(0);
    pilha->addWidget(shpMenu_);
    pilha->addWidget(lstRelatorio_, 1);
    abas_->addTab(paginaRelatorio, QStringLiteral("Relatório"));
    lstIso_ = new QListWidget;
    lstIso_->setObjectName(QStringLiteral("lstIso"));
    lstIso_->setFont(fixa);
    lstIso_->setTextElideMode(Qt::ElideNone);
    verificacao_ = new VerificacaoView(registro_);
    abas_->addTab(AbaIsoComVerificacao(lstIso_, verificacao_), QStringLiteral("ISO 5167-2:2003"));
    lstRelatorio_->setUniformItemSizes(true);
    lstRelatorio_->setTextElideMode(Qt::ElideNone);
    lstRelatorio_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);

    setTabOrder(txtCliente_, txtOS_);
    setTabOrder(txtOS_, txtData_);
    setTabOrder(txtData_, lstRelatorio_);

    connect(txtData_, &QLineEdit::textEdited, this,
            [this](const QString& t) { registro_.txtData = t.toStdString(); });
    connect(txtOS_, &QLineEdit::textEdited, this,
            [this](const QString& t) { registro_.txtOS = t.toStdString(); });
    connect(txtCliente_, &QLineEdit::textEdited, this,
            [this](const QString& t) { registro_.txtCliente = t.toStdString(); });
    connect(cmdAgora_, &QPushButton::clicked, this, [this] {
        cmdAgora_Click(registro_);
        Sincroniza();
        txtData_->setFocus();
    });
    Sincroniza();
}

void RelatorioView::Sincroniza() {
    auto texto = [](QLineEdit* t, const std::string& s) {
        QString q = Q(s);
        if (t->text() != q) t->setText(q);
    };
    texto(txtData_, registro_.txtData);
    texto(txtOS_, registro_.txtOS);
    texto(txtCliente_, registro_.txtCliente);
    setWindowTitle(Q(registro_.Caption));
    setEnabled(registro_.Enabled);
    // The list is rebuilt by each run of "Calcular"; compare before redrawing.
    bool igual = static_cast<int>(registro_.lstRelatorio.size()) == lstRelatorio_->count();
    for (int i = 0; igual && i < lstRelatorio_->count(); ++i)
        igual = lstRelatorio_->item(i)->text() == Q(registro_.lstRelatorio[static_cast<size_t>(i)]);
    if (!igual) {
        lstRelatorio_->clear();
        for (const std::string& l : registro_.lstRelatorio)
            lstRelatorio_->addItem(Q(l));
    }
    const std::vector<std::string> iso =
        registro_.iso ? LinhasIso5167(*registro_.iso) : std::vector<std::string>{};
    igual = static_cast<int>(iso.size()) == lstIso_->count();
    for (int i = 0; igual && i < lstIso_->count(); ++i)
        igual = lstIso_->item(i)->text() == Q(iso[static_cast<size_t>(i)]);
    if (!igual) {
        lstIso_->clear();
        for (const std::string& l : iso) {
            auto* item = new QListWidgetItem(Q(l), lstIso_);
            // A limit of use that the point crosses stands out.
            if (l.ends_with("FORA")) item->setForeground(QColor(0xB0, 0x00, 0x00));
        }
    }
    verificacao_->Sincroniza();
}

QSize RelatorioView::sizeHint() const {
    return tamanhoProjeto_;
}

void RelatorioView::resizeEvent(QResizeEvent* e) {
    // The header fields keep their place and size; the sheet under them,
    // and the tabs on it, take what the window has over its built size.
    const QSize mais = size() - tamanhoProjeto_;
    picTodos_->resize(Px(8745, this) + mais.width(), Px(4740, this) + mais.height());
    abas_->resize(Px(8715, this) + mais.width(), Px(4695 - 1260, this) + mais.height());
    QWidget::resizeEvent(e);
}

void RelatorioView::closeEvent(QCloseEvent* e) {
    // Every close that reaches the view is a user's: the title bar's button
    // and the system menu come through the MDI window as a close of its
    // widget. It hides the report; the calculation's unload removes the
    // window without a close event.
    e->ignore();
    emit pedeOcultar();
}

} // namespace tramelo
