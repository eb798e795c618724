// The desk calculator opened at a data field, as a user meets it.
#include "programa_de_teste.h"
#include "usuario_qt.h"

#include "app/programa_qt.h"
#include "calculator/calculadora_view.h"
#include "document/frm_calc_tramelo.h"

#include <gtest/gtest.h>

namespace tramelo::teste {
namespace {

class Calculadora : public ::testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(t.Inicia());
        CalculoView& v = *programa->janela().VistaCalculo(*Calculos().at(0));
        Escolhe(Widget<QComboBox>(&v, "cboTramelo"), 0);
        Escolhe(Widget<QComboBox>(&v, "cboFluido"), 0);
        Escolhe(Widget<QComboBox>(&v, "cboTomada"), 0);
        campo = Widget<QLineEdit>(&v, "txtDados(4)");
    }
    void TearDown() override {
        if (CalculadoraView* c = CalculadoraView::Aberta()) c->close();
        QApplication::processEvents();
    }
    FrmCalcTramelo& f() { return *Calculos().at(0); }
    // A key pressed and released on the calculator.
    void Tecla(Qt::Key k, Qt::KeyboardModifiers m = Qt::NoModifier) {
        QWidget* c = CalculadoraView::Aberta();
        QTest::keyPress(c, k, m);
        QTest::keyRelease(c, k, m);
        QApplication::processEvents();
    }

    ProgramaDeTeste t;
    std::unique_ptr<ProgramaQt>& programa = t.programa;
    CaixasRoteiro& caixas = t.caixas;
    QLineEdit* campo = nullptr;
};

TEST_F(Calculadora, AbreComOValorESomaNoCampo) {
    Digita(campo, "12,5");
    QTest::mouseDClick(campo, Qt::LeftButton);
    QApplication::processEvents();
    CalculadoraView* c = CalculadoraView::Aberta();
    ASSERT_NE(c, nullptr);
    EXPECT_EQ(c->Visor(), QStringLiteral("12,5"));
    EXPECT_EQ(c->registro().UltimaEntrada, "NUMS");
    Tecla(Qt::Key_Plus, Qt::KeypadModifier);
    Tecla(Qt::Key_1);
    Tecla(Qt::Key_Equal); // the main keyboard's operators do nothing
    Tecla(Qt::Key_Enter, Qt::KeypadModifier);
    QApplication::processEvents();
    EXPECT_EQ(CalculadoraView::Aberta(), nullptr);
    EXPECT_EQ(f().txtDados(4)->Text(), "13,5");
    EXPECT_EQ(campo->text(), QStringLiteral("13,5"));
}

TEST_F(Calculadora, CampoVazioDeixaOSeparador) {
    campo->setFocus();
    QApplication::processEvents();
    Botao(programa->janela(), "tbCalculo", "Calculadora"); // the toolbar on the focused field
    CalculadoraView* c = CalculadoraView::Aberta();
    ASSERT_NE(c, nullptr);
    EXPECT_EQ(c->Visor(), QStringLiteral("0,"));
    // Held down: one 7, typed on release.
    QTest::keyPress(c, Qt::Key_7);
    QTest::keyPress(c, Qt::Key_7, Qt::NoModifier, -1);
    QKeyEvent repeticao(QEvent::KeyPress, Qt::Key_7, Qt::NoModifier, QStringLiteral("7"), true);
    QApplication::sendEvent(c, &repeticao);
    EXPECT_EQ(c->Visor(), QStringLiteral("0,"));
    QTest::keyRelease(c, Qt::Key_7);
    EXPECT_EQ(c->Visor(), QStringLiteral("7,"));
    Tecla(Qt::Key_Return);
    EXPECT_EQ(f().txtDados(4)->Text(), "7,");
}

TEST_F(Calculadora, DesativadaFechaSemEscrever) {
    Digita(campo, "3");
    QTest::mouseDClick(campo, Qt::LeftButton);
    QApplication::processEvents();
    CalculadoraView* c = CalculadoraView::Aberta();
    ASSERT_NE(c, nullptr);
    Tecla(Qt::Key_9);
    // Another window takes the activation.
    QEvent desativa(QEvent::ActivationChange);
    c->setAttribute(Qt::WA_WState_Visible, true);
    programa->janela().activateWindow();
    QApplication::setActiveWindow(&programa->janela());
    QApplication::sendEvent(c, &desativa);
    for (int i = 0; i < 5; ++i)
        QApplication::processEvents();
    EXPECT_EQ(CalculadoraView::Aberta(), nullptr);
    EXPECT_EQ(f().txtDados(4)->Text(), "3");
}

TEST_F(Calculadora, CaractereQueNaoSeDigitaDaOErroSemQuebrar) {
    f().txtDados(4)->DefineTexto("-5");
    programa->janela().SincronizaTudo();
    caixas.mostradas.clear();
    QTest::mouseDClick(campo, Qt::LeftButton);
    QApplication::processEvents();
    ASSERT_EQ(caixas.mostradas.size(), 1u);
    EXPECT_EQ(caixas.mostradas[0].titulo.rfind("Informação de Erro Código :", 0), 0u);
    EXPECT_EQ(CalculadoraView::Aberta(), nullptr);
    EXPECT_EQ(f().txtDados(4)->Text(), "-5");
}

} // namespace
} // namespace tramelo::teste
