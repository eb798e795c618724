// The part "Verificação de placa existente" of the report window's ISO tab:
// the bore, the flows of the range and the uncertainties as typed, the
// button "Verificar", and the rating the report keeps: its summary, its
// table and its two pictures. It reads its fields, calls cmdVerificar_Click
// and shows the record.
#pragma once

#include <QWidget>

#include <string>
#include <vector>

class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QTableWidget;

namespace tramelo {

struct FrmRelatorio;
class GraficoView;

class VerificacaoView : public QWidget {
    Q_OBJECT
  public:
    explicit VerificacaoView(FrmRelatorio& registro, QWidget* pai = nullptr);

    // Brings the part in line with the record: a new run proposes its bore
    // and drops the rating shown.
    void Sincroniza();

  signals:
    // A rating was just shown: its place may want to bring it into view.
    void mostrou(QWidget* resultado);

  private:
    void Verifica();

    FrmRelatorio& registro_;
    QLineEdit *txtDiametro_, *txtFaixa_, *txtIncertezaD_, *txtIncertezad_, *txtIncertezaDp_,
        *txtIncertezaRho_;
    QPushButton* cmdVerificar_;
    QWidget* resultado_;
    QLabel *lblResumo_, *lblAvisos_;
    QTableWidget* tabela_;
    GraficoView *graficoLimites_, *graficoPressao_;
    std::string propostaMostrada_;
    std::vector<std::string> linhasMostradas_;
};

// The ISO tab's page: the check's list, sized to its lines, above the
// rating, the two in one scrolling column.
QWidget* AbaIsoComVerificacao(QListWidget* lista, VerificacaoView* verificacao);

} // namespace tramelo
