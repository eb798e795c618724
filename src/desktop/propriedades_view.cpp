#include "desktop/propriedades_view.h"

#include "base/mod_base.h"
#include "document/frm_calc_tramelo.h"
#include "plataforma/falha.h"
#include "sizing/catalogo.h"

#include <QComboBox>
#include <QFrame>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace tramelo {
namespace {

QString Q(const std::string& s) {
    return QString::fromStdString(s);
}

} // namespace

PropriedadesView::PropriedadesView(FrmCalcTramelo* calculo, QWidget* dono)
    : QWidget(dono, Qt::Tool | Qt::WindowTitleHint | Qt::WindowCloseButtonHint |
                        Qt::CustomizeWindowHint) {
    setWindowTitle(QStringLiteral("Propriedades da água e do vapor"));
    setObjectName(QStringLiteral("frmPropriedades"));
    setAttribute(Qt::WA_DeleteOnClose);
    QFont arial(QStringLiteral("Arial"), 9);
    arial.setStyleHint(QFont::SansSerif);
    setFont(arial);

    // The point: the pressure in the program's two absolute units, as the
    // calculation's rows 10, 12 and 14 offer them, and the temperature.
    auto* ponto = new QGridLayout;
    auto* lblPressao = new QLabel(QStringLiteral("Pressão absoluta"));
    pressao_ = new QLineEdit;
    pressao_->setObjectName(QStringLiteral("txtPressao"));
    unidade_ = new QComboBox;
    unidade_->setObjectName(QStringLiteral("cboUnidadePressao"));
    unidade_->setAccessibleName(QStringLiteral("Unidade da pressão"));
    for (int escala : {10, 11}) unidade_->addItem(Q(catalogo().NomeEscalas[static_cast<size_t>(escala)]));
    auto* lblTemperatura = new QLabel(QStringLiteral("Temperatura"));
    temperatura_ = new QLineEdit;
    temperatura_->setObjectName(QStringLiteral("txtTemperatura"));
    for (QLineEdit* e : {pressao_, temperatura_}) e->setMaxLength(20);
    lblPressao->setBuddy(pressao_);
    lblTemperatura->setBuddy(temperatura_);
    ponto->addWidget(lblPressao, 0, 0);
    ponto->addWidget(pressao_, 0, 1);
    ponto->addWidget(unidade_, 0, 2);
    ponto->addWidget(lblTemperatura, 1, 0);
    ponto->addWidget(temperatura_, 1, 1);
    ponto->addWidget(new QLabel(QStringLiteral("ºC")), 1, 2);
    ponto->setColumnStretch(1, 1);

    // One row a property: its name, its value on the right, its unit. A value
    // is described for a screen reader by its property and unit.
    auto* quadro = new QGroupBox(QStringLiteral("IAPWS-IF97"));
    grade_ = new QGridLayout(quadro);
    grade_->setColumnStretch(0, 1);
    // The lines with no point: their names and units.
    PropriedadesAgua semPonto;
    semPonto.erro = "-";
    const std::vector<LinhaPropriedade> linhas = LinhasPropriedades(semPonto);
    for (size_t k = 0; k < linhas.size(); ++k) {
        const LinhaPropriedade& l = linhas[k];
        const int linha = static_cast<int>(k);
        auto* valor = new QLabel;
        valor->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        valor->setMinimumWidth(140);
        valor->setTextInteractionFlags(Qt::TextSelectableByMouse);
        valor->setAccessibleDescription(Q(l.rotulo + (l.unidade.empty() ? "" : " (" + l.unidade + ")")));
        grade_->addWidget(new QLabel(Q(l.rotulo)), linha, 0);
        grade_->addWidget(valor, linha, 1);
        auto* unidade = new QLabel(Q(l.unidade));
        grade_->addWidget(unidade, linha, 2);
        valores_.push_back(valor);
        unidades_.push_back(unidade);
    }

    alvo_ = new QLabel;
    alvo_->setWordWrap(true);
    mensagem_ = new QLabel;
    mensagem_->setObjectName(QStringLiteral("lblMensagem"));
    mensagem_->setWordWrap(true);
    mensagem_->setFrameShape(QFrame::StyledPanel);
    mensagem_->setMinimumHeight(mensagem_->fontMetrics().lineSpacing() * 5 + 8);
    mensagem_->setAlignment(Qt::AlignLeft | Qt::AlignTop);

    aplicar_ = new QPushButton(QStringLiteral("Aplicar ao cálculo"));
    aplicar_->setObjectName(QStringLiteral("cmdAplicar"));
    auto* fechar = new QPushButton(QStringLiteral("Fechar"));
    auto* botoes = new QHBoxLayout;
    botoes->addStretch(1);
    botoes->addWidget(aplicar_);
    botoes->addWidget(fechar);

    auto* tudo = new QVBoxLayout(this);
    tudo->addLayout(ponto);
    tudo->addWidget(quadro);
    tudo->addWidget(alvo_);
    tudo->addWidget(mensagem_);
    tudo->addLayout(botoes);
    setMinimumWidth(460);

    connect(pressao_, &QLineEdit::textEdited, this, &PropriedadesView::Calcula);
    connect(temperatura_, &QLineEdit::textEdited, this, &PropriedadesView::Calcula);
    connect(unidade_, QOverload<int>::of(&QComboBox::activated), this, &PropriedadesView::Calcula);
    connect(aplicar_, &QPushButton::clicked, this, &PropriedadesView::Aplica);
    connect(fechar, &QPushButton::clicked, this, &QWidget::close);

    calculo_ = calculo;
    MostraPonto(PontoDoCalculo(calculo_));
    MostraAlvo();
    notificador().Inscreve(this);
}

PropriedadesView::~PropriedadesView() {
    notificador().Desinscreve(this);
}

void PropriedadesView::Serve(FrmCalcTramelo* calculo) {
    if (!calculo || calculo == calculo_) return;
    calculo_ = calculo;
    MostraPonto(PontoDoCalculo(calculo_));
    MostraAlvo();
}

void PropriedadesView::Mudou(Mudanca tipo, const void* quem) {
    if (!calculo_ || quem != calculo_) return;
    if (tipo == Mudanca::CalculoFechado) calculo_ = nullptr;
    if (tipo == Mudanca::CalculoFechado || tipo == Mudanca::Calculo) MostraAlvo();
}

PontoDigitado PropriedadesView::Ponto() const {
    return {pressao_->text().toStdString(), unidade_->currentIndex(),
            temperatura_->text().toStdString()};
}

void PropriedadesView::MostraPonto(const PontoDigitado& p) {
    pressao_->setText(Q(p.pressao));
    unidade_->setCurrentIndex(p.escala);
    temperatura_->setText(Q(p.temperatura));
    Calcula();
}

void PropriedadesView::Calcula() {
    const PropriedadesAgua r = PropriedadesNoPonto(Ponto());
    const std::vector<LinhaPropriedade> linhas = LinhasPropriedades(r);
    for (size_t k = 0; k < linhas.size() && k < valores_.size(); ++k) {
        valores_[k]->setText(Q(linhas[k].valor));
        unidades_[k]->setText(Q(linhas[k].unidade));
    }
    Mensagem(Q(r.erro), true);
}

void PropriedadesView::Aplica() {
    if (!calculo_) return;
    // The edge of a user's action: a run-time failure shows the error box.
    try {
        const Aplicacao a = AplicaPropriedadesAgua(*calculo_, Ponto());
        if (!a.aplicado) {
            Mensagem(Q(a.mensagem), true);
            return;
        }
        QString escritas;
        for (const std::string& e : a.escritas) escritas += QStringLiteral("\n") + Q(e);
        Mensagem(QStringLiteral("Escrito no cálculo:") + escritas, false);
    } catch (const Falha& e) {
        InformaErro(e);
    }
}

void PropriedadesView::MostraAlvo() {
    alvo_->setText(Q(DescreveAlvo(calculo_)));
    aplicar_->setEnabled(calculo_ != nullptr);
}

void PropriedadesView::Mensagem(const QString& texto, bool erro) {
    mensagem_->setText(texto);
    mensagem_->setStyleSheet(erro ? QStringLiteral("color: #b00000;") : QString());
}

} // namespace tramelo
