// tramelo-capturas: runs the desktop program, fills calculations the way a
// user does, and writes PNG pictures of its windows for a person to look at.
#include "caixas_roteiro.h"
#include "dialogos_roteiro.h"
#include "usuario_qt.h"

#include "app/programa_qt.h"
#include "document/frm_calc_tramelo.h"
#include "shell/mdi_menu.h"
#include "shell/registro.h"

#include <QDir>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScrollBar>

#include <cstdio>

using namespace tramelo;
using namespace tramelo::teste;

namespace {

QString pasta;

void Captura(QWidget* w, const char* nome) {
    QApplication::processEvents();
    QTest::qWait(150);
    const QString arquivo = pasta + QLatin1Char('/') + QString::fromLatin1(nome) + QStringLiteral(".png");
    w->window()->grab().save(arquivo);
    std::printf("%s\n", qPrintable(arquivo));
}

CalculoView& Vista(ProgramaQt& p, size_t i) { return *p.janela().VistaCalculo(*Calculos().at(i)); }

void Preenche(CalculoView& v, int orificio, int fluido, int tomada,
              const std::vector<std::pair<int, const char*>>& valores) {
    Escolhe(Widget<QComboBox>(&v, "cboTramelo"), orificio);
    Escolhe(Widget<QComboBox>(&v, "cboFluido"), fluido);
    Escolhe(Widget<QComboBox>(&v, "cboTomada"), tomada);
    for (auto [i, texto] : valores)
        Digita(Widget<QLineEdit>(&v, QStringLiteral("txtDados(%1)").arg(i)), QString::fromUtf8(texto));
}

} // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    pasta = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QStringLiteral("capturas");
    QDir().mkpath(pasta);
    CaixasRoteiro caixas;
    DialogosRoteiro dialogos;
    ProgramaQt programa(false);
    // A new calculation at start, rather than the tip of the day.
    DefinePastasRegistro(PastaConfiguracaoUsuario(), ".");
    GravaConfig("Config", "DicasIniciar", "0");
    if (!programa.Inicia()) return 1;
    programa.janela().resize(1000, 760);
    programa.janela().activateWindow();
    QApplication::setActiveWindow(&programa.janela());
    Captura(&programa.janela(), "01-janela-principal");

    caixas.textos = {"Água"};
    CalculoView& agua = Vista(programa, 0);
    Preenche(agua, 0, 0, 0,
             {{2, "50"}, {4, "102.26"}, {5, "25000"}, {8, "20"}, {9, "20"}, {17, "998"}, {18, "998"},
              {20, "1"}, {28, "0.8"}});
    Digita(Widget<QLineEdit>(&agua, "txtTag"), "FT-2301");
    Captura(&programa.janela(), "02-calculo-liquido");

    mnuArquivoNew_Click();
    programa.janela().SincronizaTudo();
    caixas.textos = {"Ar comprimido"};
    CalculoView& ar = Vista(programa, 1);
    Preenche(ar, 1, 1, 3,
             {{2, "1000"}, {4, "102.26"}, {5, "10000"}, {8, "0"}, {9, "40"}, {12, "500"}, {16, "0"},
              {19, "1"}, {25, "1"}, {26, "1"}, {20, "0.018"}, {27, "1.4"}, {28, "0.8"}});
    Widget<QLineEdit>(&ar, "txtDados(28)")->setFocus(); // the list scrolls to the row
    Captura(&programa.janela(), "03-calculo-gas");

    programa.janela().area()->setActiveSubWindow(qobject_cast<QMdiSubWindow*>(agua.parentWidget()));
    Widget<QLineEdit>(&agua, "txtDados(9)")->setFocus();
    Botao(programa.janela(), "tbCalculo", "Calcular");
    Captura(&programa.janela(), "04-relatorio");

    for (int i = 0; i < 2; ++i) {
        mnuAjudaDocumentacaoTabela(i);
        QMdiSubWindow* tabela = programa.janela().area()->subWindowList().last();
        tabela->resize(720, 420);
        tabela->move(40 + 60 * i, 60 + 40 * i);
        tabela->raise();
    }
    Captura(&programa.janela(), "05-tabelas-vapor");
    return 0;
}
