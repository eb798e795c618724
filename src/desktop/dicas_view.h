// The window "Dica do dia": one tip of the tips file at a time, a box that
// turns the tips at start on or off, "&Nova Dica" and OK. Not modal; at most
// one is open, over the main window.
#pragma once

#include "shell/dicas.h"

#include <QDialog>

class QCheckBox;
class QLabel;
class QPushButton;

namespace tramelo {

class DicaView : public QDialog {
    Q_OBJECT
  public:
    // Made hidden; MostraDicasQt loads the record and places it.
    explicit DicaView(QWidget* dono = nullptr);

    FrmDica& registro() { return registro_; }
    void Sincroniza();

  public slots:
    // Esc and the close box count as OK.
    void reject() override;

  private:
    FrmDica registro_;
    QLabel *lblVcSabia_, *lblTipText_;
    QCheckBox* chkDicasIniciar_;
    QPushButton *cmdNextTip_, *cmdOK_;
};

// Opens the tip window centred over `dono`, or brings the open one forward.
void MostraDicasQt(QWidget* dono);
// The open tip window, if any.
DicaView* DicaAberta();

} // namespace tramelo
