// Driving the desktop program as a user does: finding its widgets by name,
// choosing list items with the keyboard, typing key by key, pressing toolbar
// buttons and menu entries.
#pragma once

#include "desktop/calculo_view.h"
#include "document/janelas.h"
#include "desktop/mdi_menu_view.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QToolBar>

#include <string>
#include <vector>

namespace tramelo::teste {

template <typename W> W* Widget(QWidget* pai, const QString& nome) {
    return pai->findChild<W*>(nome);
}

// Picks an item of a list from the keyboard, as a user does.
inline void Escolhe(QComboBox* c, int item) {
    c->setFocus();
    QTest::keyClick(c, Qt::Key_Home);
    for (int i = 0; i < item; ++i)
        QTest::keyClick(c, Qt::Key_Down);
    if (c->currentIndex() != item)
        QTest::keyClick(c, Qt::Key_Up); // Home may have selected 0 already
    QApplication::processEvents();
}

// Replaces a field's text by typing it key by key.
inline void Digita(QLineEdit* e, const QString& texto) {
    e->setFocus();
    e->selectAll();
    QTest::keyClick(e, Qt::Key_Backspace);
    QTest::keyClicks(e, texto);
    QApplication::processEvents();
}

inline void Botao(MdiMenuView& janela, const char* barra, const QString& key) {
    QToolBar* tb = janela.findChild<QToolBar*>(QString::fromLatin1(barra));
    for (QAction* a : tb->actions())
        if (a->data().toString() == key) a->trigger();
    QApplication::processEvents();
}

// A menu entry by the captions on the way, "&Arquivo" / "Arquivos recentes" / ...
inline QAction* Entrada(MdiMenuView& janela, const std::vector<QString>& caminho) {
    QList<QAction*> acoes = janela.menuBar()->actions();
    QAction* achada = nullptr;
    for (const QString& parte : caminho) {
        achada = nullptr;
        for (QAction* a : acoes)
            if (a->text() == parte || a->text().startsWith(parte)) achada = a;
        if (!achada) return nullptr;
        if (achada->menu()) acoes = achada->menu()->actions();
    }
    return achada;
}

inline QStringList Linhas(QListWidget* lista) {
    QStringList l;
    for (int i = 0; i < lista->count(); ++i)
        l << lista->item(i)->text();
    return l;
}

} // namespace tramelo::teste
