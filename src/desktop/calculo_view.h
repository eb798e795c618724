// The calculation window: the three selections, the head band and the rows
// of a FrmCalcTramelo record. A user's action goes to the record's handler;
// the view then shows the record again.
#pragma once

#include <QWidget>

#include <array>
#include <functional>
#include <vector>

class QComboBox;
class QFrame;
class QLabel;
class QLineEdit;
class QScrollBar;

namespace tramelo {

class FrmCalcTramelo;
struct CaixaCombinacao;
struct CaixaTexto;

class CalculoView : public QWidget {
    Q_OBJECT
  public:
    explicit CalculoView(FrmCalcTramelo& registro, QWidget* pai = nullptr);

    FrmCalcTramelo& registro() { return registro_; }
    // Brings every widget in line with the record.
    void Sincroniza();
    // The row index of the field that has the focus, or -1.
    int LinhaComFoco() const;
    // The text field of a row, for the desk calculator to open beside it.
    QLineEdit* CampoDados(int i) const { return txtDados_[static_cast<size_t>(i)]; }

  signals:
    void pedeFechar();
    void duploCliqueCampo(int indice);
    // The window's own entry for the water and steam properties.
    void pedePropriedades();

  protected:
    void closeEvent(QCloseEvent* e) override;
    void contextMenuEvent(QContextMenuEvent* e) override;
    bool eventFilter(QObject* objeto, QEvent* evento) override;

  private:
    void Age(const std::function<void()>& acao);
    void SincronizaLista(QComboBox* w, const CaixaCombinacao& c);
    void SincronizaTexto(QLineEdit* w, const CaixaTexto& t);
    void Rola();
    void OrdenaTab();
    void AtendeFoco();

    FrmCalcTramelo& registro_;
    bool sincronizando_ = false;
    unsigned pedidosAtendidos_ = 0; // the record's focus requests served
    QLineEdit* enterNoCampo_ = nullptr; // the field the last Enter went down in
    std::vector<int> ordemTab_;     // rows in the tab chain, top to bottom
    QComboBox *cboTramelo_, *cboFluido_, *cboTomada_, *cboMassaDensidade_;
    QLabel *lblTramelo_, *lblFluido_, *lblTomada_, *lblTag_, *lblMassaDensidade_;
    QLineEdit* txtTag_;
    QFrame* picLista_;
    QWidget *picMenu_, *janela_, *picMove_;
    QScrollBar* barraV_;
    std::array<QWidget*, 31> picDados_{};
    std::array<QLabel*, 31> lblDados_{};
    std::array<QLineEdit*, 31> txtDados_{};
    std::array<QComboBox*, 31> cboDados_{};
};

} // namespace tramelo
