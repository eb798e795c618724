#include "desktop/tabela_view.h"

#include "steam/tabelas_vapor.h"

#include <QHeaderView>
#include <QResizeEvent>
#include <QTableWidget>

namespace tramelo {
namespace {

int Px(int twips, const QWidget* w) {
    return static_cast<int>(twips / 15.0 * w->logicalDpiX() / 96.0 + 0.5);
}

} // namespace

TabelaView::TabelaView(QWidget* pai) : QWidget(pai) {
    resize(Px(6735, this), Px(3870, this));
    MSF_ = new QTableWidget(this);
    MSF_->setObjectName(QStringLiteral("MSF"));
    QFont arial(QStringLiteral("Arial"));
    arial.setPointSizeF(8.25);
    MSF_->setFont(arial);
    MSF_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    MSF_->setSelectionMode(QAbstractItemView::SingleSelection);
    // The header row and the pressure column are the grid's fixed cells: its
    // own header sections, which stay in place while the grid scrolls.
    MSF_->verticalHeader()->setDefaultAlignment(Qt::AlignCenter);
    MSF_->horizontalHeader()->setDefaultAlignment(Qt::AlignCenter);
    MSF_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    MSF_->verticalHeader()->setDefaultSectionSize(QFontMetrics(arial).height() + 4);
    MSF_->move(0, Px(15, this));
}

void TabelaView::TabelaInicia(short Tipo) {
    TipoTabela = Tipo;
    const std::vector<std::vector<std::string>> grade = GradeTabela(TipoTabela);
    const int linhas = static_cast<int>(grade.size()) - 1;
    MSF_->setRowCount(linhas);
    MSF_->setColumnCount(ColunasVapor - 1);
    for (int c = 1; c < ColunasVapor; ++c) {
        MSF_->setHorizontalHeaderItem(c - 1,
                                      new QTableWidgetItem(QString::fromStdString(grade[0][c])));
        MSF_->setColumnWidth(c - 1, Px(LarguraColunaTabela(c), this));
    }
    MSF_->verticalHeader()->setFixedWidth(Px(LarguraColunaTabela(0), this));
    for (int l = 1; l <= linhas; ++l) {
        const auto& linha = grade[static_cast<size_t>(l)];
        MSF_->setVerticalHeaderItem(l - 1, new QTableWidgetItem(QString::fromStdString(linha[0])));
        for (int c = 1; c < ColunasVapor; ++c) {
            auto* item =
                new QTableWidgetItem(QString::fromStdString(linha[static_cast<size_t>(c)]));
            item->setTextAlignment(Qt::AlignCenter);
            MSF_->setItem(l - 1, c - 1, item);
        }
    }
    setWindowTitle(QString::fromUtf8(TituloTabela(TipoTabela).data(),
                                     static_cast<int>(TituloTabela(TipoTabela).size())));
}

QSize TabelaView::sizeHint() const {
    return {Px(6735, this), Px(3870, this)};
}

void TabelaView::resizeEvent(QResizeEvent* e) {
    // The grid fills the window below its 15-twip margin.
    MSF_->resize(std::max(0, e->size().width()), std::max(0, e->size().height() - Px(15, this)));
    QWidget::resizeEvent(e);
}

} // namespace tramelo
