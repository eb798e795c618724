#include "desktop/verificacao_view.h"

#include "desktop/grafico_view.h"
#include "report/frm_relatorio.h"
#include "report/graficos_verificacao.h"
#include "report/linhas_verificacao.h"

#include <QAbstractScrollArea>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTableWidget>
#include <QVBoxLayout>

namespace tramelo {
namespace {

QString Q(const std::string& s) {
    return QString::fromStdString(s);
}

std::string S(const QLineEdit* t) {
    return t->text().toStdString();
}

// The summary's lines are the report's, filled to a column: a fixed pitch,
// "Courier New" or its metric twin.
QFont FonteFixa() {
    QFont f(QStringLiteral("Courier New"), 9);
    f.setStyleHint(QFont::TypeWriter);
    f.setFixedPitch(true);
    if (!QFontInfo(f).fixedPitch()) f.setFamily(QStringLiteral("Liberation Mono"));
    return f;
}

const QColor Fora(0xB0, 0x00, 0x00);

QString Juntas(const std::vector<std::string>& linhas) {
    QStringList l;
    for (const std::string& s : linhas) l << Q(s);
    return l.join(QLatin1Char('\n'));
}

} // namespace

VerificacaoView::VerificacaoView(FrmRelatorio& registro, QWidget* pai)
    : QWidget(pai), registro_(registro) {
    setObjectName(QStringLiteral("verificacao"));
    auto* pilha = new QVBoxLayout(this);
    pilha->setContentsMargins(4, 8, 4, 4);
    auto* titulo = new QLabel(Q(TituloVerificacao), this);
    QFont negrito = titulo->font();
    negrito.setBold(true);
    titulo->setFont(negrito);
    pilha->addWidget(titulo);

    auto* grade = new QGridLayout;
    pilha->addLayout(grade);
    auto campo = [&](const QString& nome, int largura) {
        auto* t = new QLineEdit(this);
        t->setAccessibleName(nome);
        t->setMaximumWidth(largura);
        return t;
    };
    auto rotulo = [&](const QString& texto, QLineEdit* t) {
        auto* l = new QLabel(texto, this);
        l->setBuddy(t);
        return l;
    };
    txtDiametro_ = campo(QStringLiteral("Diâmetro do orifício a 20 ºC (mm)"), 90);
    txtDiametro_->setObjectName(QStringLiteral("txtDiametroVerificacao"));
    txtFaixa_ = campo(QStringLiteral("Vazões (% da vazão de projeto)"), 220);
    txtFaixa_->setObjectName(QStringLiteral("txtFaixaVerificacao"));
    txtFaixa_->setText(Q(PorcentagensPropostas()));
    grade->addWidget(rotulo(QStringLiteral("d a 20 ºC (mm):"), txtDiametro_), 0, 0);
    grade->addWidget(txtDiametro_, 0, 1);
    grade->addWidget(rotulo(QStringLiteral("Vazões (% da de projeto):"), txtFaixa_), 0, 2, 1, 4);
    grade->addWidget(txtFaixa_, 0, 6, 1, 4);

    grade->addWidget(new QLabel(QStringLiteral("Incertezas (%):"), this), 1, 0);
    int coluna = 1;
    for (auto [t, nome] : {std::pair{&txtIncertezaD_, "D"}, {&txtIncertezad_, "d"},
                           {&txtIncertezaDp_, "Δp"}, {&txtIncertezaRho_, "ρ1"}}) {
        *t = campo(QStringLiteral("Incerteza de %1 (%)").arg(QString::fromUtf8(nome)), 50);
        (*t)->setText(QStringLiteral("0"));
        grade->addWidget(rotulo(QString::fromUtf8(nome), *t), 1, coluna++, Qt::AlignRight);
        grade->addWidget(*t, 1, coluna++);
    }
    cmdVerificar_ = new QPushButton(QStringLiteral("Verificar"), this);
    cmdVerificar_->setObjectName(QStringLiteral("cmdVerificar"));
    grade->addWidget(cmdVerificar_, 1, coluna);
    grade->setColumnStretch(coluna + 1, 1);

    // What a rating shows, hidden until one is made.
    resultado_ = new QWidget(this);
    auto* r = new QVBoxLayout(resultado_);
    r->setContentsMargins(0, 4, 0, 0);
    lblResumo_ = new QLabel(resultado_);
    lblResumo_->setFont(FonteFixa());
    lblResumo_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    r->addWidget(lblResumo_);
    tabela_ = new QTableWidget(resultado_);
    tabela_->setObjectName(QStringLiteral("tabelaVerificacao"));
    tabela_->setAccessibleName(QStringLiteral("Tabela da verificação"));
    tabela_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    tabela_->setSelectionBehavior(QAbstractItemView::SelectRows);
    tabela_->verticalHeader()->hide();
    tabela_->verticalHeader()->setDefaultSectionSize(tabela_->fontMetrics().height() + 6);
    tabela_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    tabela_->setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
    r->addWidget(tabela_);
    lblAvisos_ = new QLabel(resultado_);
    lblAvisos_->setWordWrap(true);
    QPalette vermelho = lblAvisos_->palette();
    vermelho.setColor(QPalette::WindowText, Fora);
    lblAvisos_->setPalette(vermelho);
    r->addWidget(lblAvisos_);
    auto* graficos = new QHBoxLayout;
    graficoLimites_ = new GraficoView(resultado_);
    graficoLimites_->setObjectName(QStringLiteral("graficoLimites"));
    graficoPressao_ = new GraficoView(resultado_);
    graficoPressao_->setObjectName(QStringLiteral("graficoPressao"));
    graficos->addWidget(graficoLimites_);
    graficos->addWidget(graficoPressao_);
    r->addLayout(graficos);
    resultado_->hide();
    pilha->addWidget(resultado_);
    pilha->addStretch();

    connect(cmdVerificar_, &QPushButton::clicked, this, &VerificacaoView::Verifica);
    for (QLineEdit* t : {txtDiametro_, txtFaixa_, txtIncertezaD_, txtIncertezad_, txtIncertezaDp_,
                         txtIncertezaRho_})
        connect(t, &QLineEdit::returnPressed, this, &VerificacaoView::Verifica);
    Sincroniza();
}

void VerificacaoView::Verifica() {
    const TextosVerificacao t{S(txtDiametro_),    S(txtFaixa_),       S(txtIncertezaD_),
                              S(txtIncertezad_), S(txtIncertezaDp_), S(txtIncertezaRho_)};
    QLineEdit* errado = nullptr;
    switch (cmdVerificar_Click(registro_, t)) {
    case CampoVerificacao::Nenhum: break;
    case CampoVerificacao::Diametro: errado = txtDiametro_; break;
    case CampoVerificacao::Porcentagens: errado = txtFaixa_; break;
    case CampoVerificacao::IncertezaD: errado = txtIncertezaD_; break;
    case CampoVerificacao::Incertezad: errado = txtIncertezad_; break;
    case CampoVerificacao::IncertezaDp: errado = txtIncertezaDp_; break;
    case CampoVerificacao::IncertezaRho: errado = txtIncertezaRho_; break;
    }
    if (errado) {
        errado->setFocus();
        errado->selectAll();
        return;
    }
    Sincroniza();
    if (resultado_->isVisible()) emit mostrou(resultado_);
}

void VerificacaoView::Sincroniza() {
    const FrmRelatorio& r = registro_;
    cmdVerificar_->setEnabled(r.pontoIso.has_value());
    const std::string proposta = r.pontoIso ? DiametroProposto(*r.pontoIso) : std::string();
    if (proposta != propostaMostrada_) {
        propostaMostrada_ = proposta;
        txtDiametro_->setText(Q(proposta));
    }
    if (!r.verificacao || !r.pontoIso) {
        linhasMostradas_.clear();
        resultado_->hide();
        return;
    }
    // Redrawn only when the rating changed.
    std::vector<std::string> linhas = LinhasVerificacao(*r.verificacao, *r.pontoIso);
    if (linhas == linhasMostradas_ && resultado_->isVisibleTo(this)) return;
    linhasMostradas_ = std::move(linhas);

    const VerificacaoFeita& v = *r.verificacao;
    const bool aplicavel = v.resultado.aplicavel;
    lblResumo_->setText(Juntas(ResumoVerificacao(v, *r.pontoIso)));
    const TabelaVerificacao t = TabelaDaVerificacao(v, *r.pontoIso);
    tabela_->clear();
    tabela_->setColumnCount(static_cast<int>(t.colunas.size()));
    tabela_->setRowCount(static_cast<int>(t.linhas.size()));
    QStringList cabecalho;
    for (size_t c = 0; c < t.colunas.size(); ++c)
        cabecalho << (t.unidades[c].empty() ? Q(t.colunas[c]) : Q(t.colunas[c] + "\n" + t.unidades[c]));
    tabela_->setHorizontalHeaderLabels(cabecalho);
    for (size_t i = 0; i < t.linhas.size(); ++i)
        for (size_t c = 0; c < t.linhas[i].size(); ++c) {
            auto* item = new QTableWidgetItem(Q(t.linhas[i][c]));
            const bool ultima = c + 1 == t.linhas[i].size();
            item->setTextAlignment(ultima ? Qt::AlignLeft | Qt::AlignVCenter
                                          : Qt::AlignRight | Qt::AlignVCenter);
            if (!t.dentro[i]) item->setForeground(Fora);
            tabela_->setItem(static_cast<int>(i), static_cast<int>(c), item);
        }
    tabela_->resizeColumnsToContents();
    tabela_->horizontalHeader()->setStretchLastSection(true);
    tabela_->setVisible(aplicavel);
    const std::vector<std::string> avisos = AvisosVerificacao(v);
    lblAvisos_->setText(Juntas(avisos));
    lblAvisos_->setVisible(!avisos.empty());
    graficoLimites_->Mostra(GraficoLimites(v));
    graficoPressao_->Mostra(GraficoPressao(v, *r.pontoIso));
    graficoLimites_->setVisible(aplicavel);
    graficoPressao_->setVisible(aplicavel);
    resultado_->show();
}

QWidget* AbaIsoComVerificacao(QListWidget* lista, VerificacaoView* verificacao) {
    auto* rolagem = new QScrollArea;
    rolagem->setObjectName(QStringLiteral("rolagemIso"));
    rolagem->setWidgetResizable(true);
    rolagem->setFrameShape(QFrame::NoFrame);
    auto* pagina = new QWidget;
    auto* pilha = new QVBoxLayout(pagina);
    pilha->setContentsMargins(0, 0, 0, 0);
    pilha->setSpacing(0);
    // The list as tall as its lines: the page scrolls, not the list.
    lista->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    lista->setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
    lista->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    pilha->addWidget(lista);
    pilha->addWidget(verificacao);
    rolagem->setWidget(pagina);
    QObject::connect(verificacao, &VerificacaoView::mostrou, rolagem, [rolagem](QWidget* w) {
        rolagem->ensureWidgetVisible(w, 0, 0);
    });
    return rolagem;
}

} // namespace tramelo
