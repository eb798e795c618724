// The window "Propriedades da água e do vapor": a pressure and a temperature,
// taken at first from the calculation it serves; every property of water and
// steam at that point, worked out as they are typed; and "Aplicar ao
// cálculo", which writes them into that calculation's rows.
#pragma once

#include "document/propriedades_agua.h"
#include "plataforma/notificador.h"

#include <QWidget>

#include <vector>

class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;

namespace tramelo {

class FrmCalcTramelo;

class PropriedadesView : public QWidget, public Observador {
    Q_OBJECT
  public:
    // A floating window of `dono`, serving `calculo` (none: only to look).
    PropriedadesView(FrmCalcTramelo* calculo, QWidget* dono);
    ~PropriedadesView() override;

    // The calculation "Aplicar" writes into: the one the user was last in. A
    // calculation other than the one served brings its own point.
    void Serve(FrmCalcTramelo* calculo);
    const FrmCalcTramelo* calculo() const { return calculo_; }

    // Observador: the calculation served changes or closes.
    void Mudou(Mudanca tipo, const void* quem) override;

  private:
    PontoDigitado Ponto() const;
    void MostraPonto(const PontoDigitado& p);
    void Calcula();
    void Aplica();
    void MostraAlvo();
    void Mensagem(const QString& texto, bool erro);

    // The core's record, alive until it says it closes.
    FrmCalcTramelo* calculo_ = nullptr;
    QLineEdit *pressao_, *temperatura_;
    QComboBox* unidade_;
    QGridLayout* grade_;
    std::vector<QLabel*> valores_, unidades_; // one each per line of LinhasPropriedades
    QLabel *alvo_, *mensagem_;
    QPushButton* aplicar_;
};

} // namespace tramelo
