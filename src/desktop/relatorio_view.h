// The report window: three header fields above the fixed-pitch line list,
// and beside the list, in a second tab, the ISO 5167-2:2003 check. It opens
// at its built size and can be made larger or maximised; the list and the
// tabs grow with it.
// It shows a FrmRelatorio record and writes the typed header texts back.
#pragma once

#include <QWidget>

class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QTabWidget;

namespace tramelo {

struct FrmRelatorio;
class VerificacaoView;

class RelatorioView : public QWidget {
    Q_OBJECT
  public:
    explicit RelatorioView(FrmRelatorio& registro, QWidget* pai = nullptr);

    FrmRelatorio& registro() { return registro_; }
    // Brings the widgets in line with the record.
    void Sincroniza();
    // The built size, which the window opens at.
    QSize sizeHint() const override;

  signals:
    // The user asked to close: the window hides instead (its lines stay).
    void pedeOcultar();

  protected:
    void closeEvent(QCloseEvent* e) override;
    void resizeEvent(QResizeEvent* e) override;

  private:
    FrmRelatorio& registro_;
    QSize tamanhoProjeto_;
    QWidget* picTodos_;
    QLabel *lblData_, *lblOS_, *lblCliente_, *lblMenu_;
    QLineEdit *txtData_, *txtOS_, *txtCliente_;
    QPushButton* cmdAgora_;
    QWidget* shpMenu_;
    QListWidget* lstRelatorio_;
    QTabWidget* abas_;
    QListWidget* lstIso_;
    VerificacaoView* verificacao_;
    int linhasMostradas_ = -1;
};

} // namespace tramelo
