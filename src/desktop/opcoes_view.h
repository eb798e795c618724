// The modal dialog "Opções": two frames of check boxes over the settings,
// with OK, Cancel and Apply. It shows a loaded record and hands each click to
// it; the record decides what is stored and when.
#pragma once

#include "shell/opcoes.h"

#include <QDialog>

#include <array>

class QCheckBox;
class QGroupBox;
class QPushButton;

namespace tramelo {

class OpcoesView : public QDialog {
    Q_OBJECT
  public:
    OpcoesView(FrmOpcao& registro, QWidget* dono = nullptr);

    void Sincroniza();

  public slots:
    // Esc and the close box count as "Cancela&r".
    void reject() override;

  private:
    FrmOpcao& registro_;
    QGroupBox *fraExibir_, *fraGeral_;
    std::array<QCheckBox*, 6> chkOpcao_;
    QPushButton *cmdOK_, *cmdCancel_, *cmdApply_;
};

// Loads the dialog over `dono` and waits until OK or Cancel closes it.
void MostraOpcoesQt(QWidget* dono);

} // namespace tramelo
