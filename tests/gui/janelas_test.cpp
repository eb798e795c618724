// What a person sees of the program's identity: the picture of the about box
// and the windows' icon, which come from the pictures compiled into the
// program.

#include "app/programa_qt.h"
#include "desktop/abertura_view.h"

#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QTimer>
#include <gtest/gtest.h>

namespace tramelo::teste {
namespace {

// Something is drawn: a picture that isn't there, or is all transparent,
// is what the window manager's empty square looks like.
bool TemDesenho(const QImage& imagem) {
    for (int y = 0; y < imagem.height(); ++y)
        for (int x = 0; x < imagem.width(); ++x)
            if (qAlpha(imagem.pixel(x, y)) > 0) return true;
    return false;
}

TEST(Janelas, SobreEJanelasTemOIconeDoPrograma) {
    ProgramaQt programa(false);
    EXPECT_TRUE(TemDesenho(QApplication::windowIcon().pixmap(32, 32).toImage()));
    QImage figura;
    QTimer::singleShot(0, [&figura] {
        QWidget* caixa = QApplication::activeModalWidget();
        ASSERT_TRUE(caixa);
        if (auto* imagem = caixa->findChild<QLabel*>(QStringLiteral("imgIcone")))
            figura = imagem->pixmap().toImage();
        caixa->close();
    });
    MostraSobreQt(nullptr);
    EXPECT_TRUE(TemDesenho(figura));
}

} // namespace
} // namespace tramelo::teste
