// The report window: three header fields above the fixed-pitch line list,
// and beside the list, in a second tab, the ISO 5167-2:2003 check.
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

  signals:
    // The user asked to close: the window hides instead (its lines stay).
    void pedeOcultar();

  protected:
    void closeEvent(QCloseEvent* e) override;

  private:
    FrmRelatorio& registro_;
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
