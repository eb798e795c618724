#include "desktop/caixas_view.h"

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

namespace tramelo {
namespace {

QString Q(const std::string& s) {
    return QString::fromStdString(s);
}

// A box lives on the stack of the code that shows it, so its parent must
// outlive it: the main window, never a calculator or a table that may close
// (and delete its children) while the box is open. A modal dialog can't
// close under its box, and keeps the box over it.
QWidget* Dono(QWidget* dono) {
    if (QWidget* ativo = QApplication::activeModalWidget()) return ativo;
    if (dono) return dono;
    for (QWidget* w : QApplication::topLevelWidgets())
        if (qobject_cast<QMainWindow*>(w) && w->isVisible()) return w;
    return nullptr;
}

// A box takes the keyboard once it is up, whatever showed it. A window
// manager need not hand the focus to a new window: under openbox a box shown
// from a menu's entry was left without it, and Enter and Escape went to the
// window below. So the box asks for the activation itself, from its own event
// loop, once it is shown (the desktop holds the request until the window is
// mapped), and puts the keys on the widget Enter belongs to.
void TomaOTeclado(QDialog& caixa, QWidget* foco) {
    QTimer::singleShot(0, &caixa, [&caixa, foco] {
        caixa.raise();
        caixa.activateWindow();
        if (foco) foco->setFocus(Qt::ActiveWindowFocusReason);
    });
}

int caixasMostradas = 0;

} // namespace

int CaixasQt::Mostradas() {
    return caixasMostradas;
}

int CaixasQt::MsgBox(const std::string& texto, int estilo, const std::string& titulo) {
    ++caixasMostradas;
    QMessageBox caixa(Dono(dono_));
    caixa.setWindowTitle(Q(titulo.empty() ? std::string(TituloPrograma) : titulo));
    caixa.setText(Q(texto));
    switch (estilo & 0x70) {
    case vbCritical:
        caixa.setIcon(QMessageBox::Critical);
        break;
    case vbQuestion:
        caixa.setIcon(QMessageBox::Question);
        break;
    case vbExclamation:
        caixa.setIcon(QMessageBox::Warning);
        break;
    case vbInformation:
        caixa.setIcon(QMessageBox::Information);
        break;
    default:
        caixa.setIcon(QMessageBox::NoIcon);
        break;
    }
    struct Botao {
        const char* texto;
        QMessageBox::ButtonRole papel;
        int resposta;
    };
    std::vector<Botao> botoes;
    switch (estilo & 7) {
    case vbOKCancel:
        botoes = {{"OK", QMessageBox::AcceptRole, vbOK},
                  {"Cancelar", QMessageBox::RejectRole, vbCancel}};
        break;
    case vbYesNoCancel:
        botoes = {{"&Sim", QMessageBox::YesRole, vbYes},
                  {"&Não", QMessageBox::NoRole, vbNo},
                  {"Cancelar", QMessageBox::RejectRole, vbCancel}};
        break;
    case vbYesNo:
        botoes = {{"&Sim", QMessageBox::YesRole, vbYes}, {"&Não", QMessageBox::NoRole, vbNo}};
        break;
    default:
        botoes = {{"OK", QMessageBox::AcceptRole, vbOK}};
        break;
    }
    std::vector<QAbstractButton*> criados;
    for (const Botao& b : botoes)
        criados.push_back(caixa.addButton(QString::fromUtf8(b.texto), b.papel));
    // The first button is the default, as on the program's platform.
    caixa.setDefaultButton(static_cast<QPushButton*>(criados.front()));
    if ((estilo & 7) == vbOKOnly || (estilo & 7) == vbOKCancel || (estilo & 7) == vbYesNoCancel)
        caixa.setEscapeButton(criados.back());
    // The window that was active gets the activation back when the box
    // closes: not every window manager hands it back by itself, and a
    // calculator or a field left without the keys is lost to the keyboard.
    QPointer<QWidget> antes = QApplication::activeWindow();
    TomaOTeclado(caixa, caixa.defaultButton());
    caixa.exec();
    if (antes && antes->isVisible()) antes->activateWindow();
    QAbstractButton* clicado = caixa.clickedButton();
    for (size_t i = 0; i < criados.size(); ++i)
        if (criados[i] == clicado) return botoes[i].resposta;
    // Closed by the title bar: the escape answer (the last button), or No.
    return (estilo & 7) == vbYesNo ? vbNo : botoes.back().resposta;
}

std::string CaixasQt::InputBox(const std::string& prompt, const std::string& titulo,
                               const std::string& padrao) {
    ++caixasMostradas;
    QDialog dialogo(Dono(dono_));
    dialogo.setWindowTitle(Q(titulo.empty() ? std::string(TituloPrograma) : titulo));
    auto* layout = new QVBoxLayout(&dialogo);
    auto* rotulo = new QLabel(Q(prompt));
    rotulo->setWordWrap(true);
    auto* campo = new QLineEdit(Q(padrao));
    campo->selectAll();
    campo->setMinimumWidth(320);
    auto* botoes = new QDialogButtonBox;
    botoes->addButton("OK", QDialogButtonBox::AcceptRole)->setDefault(true);
    botoes->addButton("Cancelar", QDialogButtonBox::RejectRole);
    QObject::connect(botoes, &QDialogButtonBox::accepted, &dialogo, &QDialog::accept);
    QObject::connect(botoes, &QDialogButtonBox::rejected, &dialogo, &QDialog::reject);
    layout->addWidget(rotulo);
    layout->addWidget(campo);
    layout->addWidget(botoes);
    campo->setFocus();
    TomaOTeclado(dialogo, campo);
    if (dialogo.exec() != QDialog::Accepted) return {};
    return campo->text().toStdString();
}

} // namespace tramelo
