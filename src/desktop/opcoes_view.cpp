#include "desktop/opcoes_view.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace tramelo {
namespace {

QString Q(const std::string& s) {
    return QString::fromStdString(s);
}

} // namespace

OpcoesView::OpcoesView(FrmOpcao& registro, QWidget* dono) : QDialog(dono), registro_(registro) {
    setObjectName(QStringLiteral("frmOpcao"));
    QFont fonte(QStringLiteral("Arial"), 9);
    fonte.setStyleHint(QFont::SansSerif);
    setFont(fonte);

    for (size_t i = 0; i < chkOpcao_.size(); ++i) {
        auto* c = new QCheckBox(this);
        c->setObjectName(QStringLiteral("chkOpcao(%1)").arg(i));
        connect(c, &QCheckBox::clicked, this, [this, i](bool marcada) {
            registro_.chkOpcao[i].Value = marcada;
            chkOpcao_Click(registro_, static_cast<int>(i));
            Sincroniza();
        });
        chkOpcao_[i] = c;
    }

    // On screen the boxes run 0, 1, 2 (under the two bars it names), 3, 5;
    // box 4 stands alone under "Geral".
    fraExibir_ = new QGroupBox(this);
    auto* exibir = new QVBoxLayout(fraExibir_);
    exibir->addWidget(chkOpcao_[0]);
    exibir->addWidget(chkOpcao_[1]);
    auto* recuo = new QHBoxLayout;
    recuo->addSpacing(20);
    recuo->addWidget(chkOpcao_[2]);
    exibir->addLayout(recuo);
    exibir->addWidget(chkOpcao_[3]);
    exibir->addWidget(chkOpcao_[5]);

    fraGeral_ = new QGroupBox(this);
    auto* geral = new QVBoxLayout(fraGeral_);
    geral->addWidget(chkOpcao_[4]);

    auto botao = [this](const char* nome) {
        auto* b = new QPushButton(this);
        b->setObjectName(QString::fromLatin1(nome));
        b->setMinimumWidth(88);
        return b;
    };
    cmdOK_ = botao("cmdOK");
    cmdCancel_ = botao("cmdCancel");
    cmdApply_ = botao("cmdApply");
    cmdOK_->setDefault(true);
    auto* botoes = new QHBoxLayout;
    botoes->addStretch();
    botoes->addWidget(cmdOK_);
    botoes->addWidget(cmdCancel_);
    botoes->addWidget(cmdApply_);

    auto* tudo = new QVBoxLayout(this);
    tudo->addWidget(fraExibir_);
    tudo->addWidget(fraGeral_);
    tudo->addSpacing(4);
    tudo->addLayout(botoes);
    tudo->setSizeConstraint(QLayout::SetFixedSize);

    connect(cmdOK_, &QPushButton::clicked, this, [this] {
        cmdOK_Click(registro_);
        accept();
    });
    connect(cmdCancel_, &QPushButton::clicked, this, &OpcoesView::reject);
    connect(cmdApply_, &QPushButton::clicked, this, [this] {
        cmdApply_Click(registro_);
        Sincroniza();
    });
    Sincroniza();
}

void OpcoesView::Sincroniza() {
    setWindowTitle(Q(registro_.Caption));
    fraExibir_->setTitle(Q(registro_.fraExibir));
    fraGeral_->setTitle(Q(registro_.fraGeral));
    for (size_t i = 0; i < chkOpcao_.size(); ++i) {
        chkOpcao_[i]->setText(Q(registro_.chkOpcao[i].Caption));
        chkOpcao_[i]->setChecked(registro_.chkOpcao[i].Value);
    }
    auto botao = [](QPushButton* b, const BotaoComando& c) {
        b->setText(Q(c.Caption));
        b->setEnabled(c.Enabled);
    };
    botao(cmdOK_, registro_.cmdOK);
    botao(cmdCancel_, registro_.cmdCancel);
    botao(cmdApply_, registro_.cmdApply);
}

void OpcoesView::reject() {
    cmdCancel_Click(registro_);
    QDialog::reject();
}

void MostraOpcoesQt(QWidget* dono) {
    FrmOpcao f;
    Form_Load(f);
    OpcoesView janela(f, dono);
    janela.exec();
}

} // namespace tramelo
