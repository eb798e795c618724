// The steam table windows, opened from the help menu.
#include "programa_de_teste.h"
#include "usuario_qt.h"

#include "app/programa_qt.h"
#include "steam/tabela_view.h"

#include <QHeaderView>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QTableWidget>
#include <gtest/gtest.h>

namespace tramelo::teste {
namespace {

TEST(Tabela, DuasJanelasPorDoisCliquesEAGrade) {
    ProgramaDeTeste t;
    ASSERT_TRUE(t.Inicia());
    ProgramaQt& programa = *t.programa;

    for (int vez = 0; vez < 2; ++vez)
        Entrada(programa.janela(), {"Aj&uda", "D&ocumentação", "&Massa do Vapor Superaquecido"})
            ->trigger();
    Entrada(programa.janela(), {"Aj&uda", "D&ocumentação", "&Volume do Vapor Superaquecido"})
        ->trigger();
    QApplication::processEvents();
    std::vector<TabelaView*> tabelas;
    for (QMdiSubWindow* j : programa.janela().area()->subWindowList())
        if (auto* t = qobject_cast<TabelaView*>(j->widget())) tabelas.push_back(t);
    ASSERT_EQ(tabelas.size(), 3u);

    const TabelaView& massa = *tabelas[0];
    EXPECT_EQ(massa.windowTitle().toStdString(),
              "Massa específica do vapor superaquecido - Pressão (kgf/cm2) / Temperatura (ºC)\"  ");
    QTableWidget* g = massa.grade();
    EXPECT_EQ(g->rowCount() + 1, 49); // the header row and 48 pressures
    EXPECT_EQ(g->columnCount() + 1, 17);
    EXPECT_EQ(g->horizontalHeaderItem(0)->text(), QStringLiteral("220 ºC"));
    EXPECT_EQ(g->horizontalHeaderItem(1)->text(), QStringLiteral("220 ºC"));
    EXPECT_EQ(g->horizontalHeaderItem(15)->text(), QStringLiteral("500 ºC"));
    EXPECT_EQ(g->verticalHeaderItem(0)->text(), QStringLiteral("1"));
    EXPECT_EQ(g->verticalHeaderItem(47)->text(), QStringLiteral("250"));
    EXPECT_EQ(g->editTriggers(), QAbstractItemView::NoEditTriggers);
    EXPECT_EQ(g->item(0, 0)->textAlignment(), Qt::AlignCenter);

    const TabelaView& volume = *tabelas[2];
    EXPECT_EQ(volume.windowTitle().toStdString(),
              "Volume específico do vapor superaquecido - Pressão (kgf/cm2) / Temperatura (ºC)");
    EXPECT_EQ(volume.grade()->columnCount() + 1, 17); // surplus tabs dropped
}

} // namespace
} // namespace tramelo::teste
