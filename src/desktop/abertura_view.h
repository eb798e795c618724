// The two windows that tell who the program is: the splash, a frameless
// picture with the title and its shadow that stands until its timer fires,
// and the modal about box whose two links underline themselves under the
// pointer.
#pragma once

#include "shell/abertura.h"

#include <QDialog>
#include <QTimer>
#include <QWidget>

#include <array>
#include <memory>

class QEventLoop;
class QLabel;
class QPushButton;

namespace tramelo {

// The splash's window: the background, the two frame lines and the labels.
class AberturaView : public QWidget {
    Q_OBJECT
  public:
    explicit AberturaView(FrmAbertura& registro);
    void Sincroniza();

  protected:
    void paintEvent(QPaintEvent* e) override;

  private:
    FrmAbertura& registro_;
    std::array<QLabel*, 2> lblProductName_;
    QLabel *lblVersion_, *lblPlatform_;
};

// The desktop's side of the splash. Install it with `telaAbertura() = &tela`
// before the entry routine: the window is made at the record's load, its
// timer counts the record's interval from then, and the modal showing runs
// its own event loop until that timer has unloaded it.
class AberturaQt : public TelaAbertura {
  public:
    AberturaQt();
    ~AberturaQt() override;

    void Carregada(FrmAbertura& f) override;
    void MostraModal(FrmAbertura& f) override;
    void Descarregada(FrmAbertura& f) override;

    // The window while the splash is loaded; null before and after.
    AberturaView* janela() const { return janela_.get(); }

  private:
    std::unique_ptr<AberturaView> janela_;
    FrmAbertura* registro_ = nullptr;
    QTimer tmrLogin_;
    QEventLoop* espera_ = nullptr;
};

// The about box: shows a loaded record, opens the links through it and
// checks the pointer against the two boxes every tick of its timer.
class SobreView : public QDialog {
    Q_OBJECT
  public:
    SobreView(FrmSobre& registro, QWidget* dono = nullptr);

    void Sincroniza();
    // One tick of the underline timer with the pointer at `cursor`, in screen
    // pixels; the timer passes the real pointer.
    void Sublinha(QPoint cursor);

  protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;

  private:
    FrmSobre& registro_;
    QLabel *lblTitulo_, *lblVersao_, *lblWindows_, *lblAviso_;
    std::array<QLabel*, 2> lblLink_;
    std::array<QWidget*, 2> picPosLink_;
    QPushButton* cmdOK_;
    QTimer tmrSublinha_;
};

// "Sobre o Tramelo", modal over `dono`; built anew at each opening.
void MostraSobreQt(QWidget* dono);

} // namespace tramelo
