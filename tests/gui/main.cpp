// The window tests run inside one Qt application, each process in folders
// of its own.
#include "ambiente_isolado.h"

#include <QApplication>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    tramelo::teste::AmbienteIsolado ambiente;
    qputenv("QT_QPA_PLATFORM",
            qgetenv("QT_QPA_PLATFORM").isEmpty() ? "offscreen" : qgetenv("QT_QPA_PLATFORM"));
    int codigo = 0;
    {
        QApplication app(argc, argv);
        ::testing::InitGoogleTest(&argc, argv);
        codigo = RUN_ALL_TESTS();
    }
    return codigo;
}
