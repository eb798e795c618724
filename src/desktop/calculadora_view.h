// The desk calculator's floating window: opened at a data field with its
// value typed in, "=" writes the display back into the field, and losing the
// activation closes it with nothing written.
#pragma once

#include "calculator/calculadora.h"

#include <QTimer>
#include <QWidget>

#include <array>
#include <functional>

class QLabel;

namespace tramelo {

class FrmCalcTramelo;
class BotaoCalculadora;

class CalculadoraView : public QWidget {
    Q_OBJECT
  public:
    explicit CalculadoraView(QWidget* dono = nullptr);
    ~CalculadoraView() override;

    Calculadora& registro() { return calc_; }
    const QString Visor() const;

    // Types a text in, as the keys would; false (after the error box) when a
    // character can't be typed.
    bool Cola(const std::string& texto);
    // Keeps the calculation window and the row it writes to, and shows it.
    void Inicia(FrmCalcTramelo& pai, int indice);

    // The program's one calculator, opened at row `indice` of `pai`, beside
    // `campo` (its screen rectangle decides above or below).
    static void Abre(FrmCalcTramelo& pai, int indice, QWidget* campo, QWidget* dono);
    static CalculadoraView* Aberta();

  protected:
    void keyPressEvent(QKeyEvent* e) override;
    void keyReleaseEvent(QKeyEvent* e) override;
    void changeEvent(QEvent* e) override;
    bool eventFilter(QObject* alvo, QEvent* e) override;

  private:
    friend class BotaoCalculadora;
    // Which handler a button or key runs: digits 0-9, then the others.
    enum Tecla { Separador = 10, Percentual, CancelaEntrada, Cancela, Operador0 };
    void Pressiona(int tecla);
    void Solta(int tecla);
    void Executa(int tecla);
    void ExecutaHandler(int tecla);
    void PedeAtivacao(int vezes);
    void TerminaVolta();
    // Without the activation: asks it back while waiting after the box,
    // closes otherwise.
    void DecideSaida();
    void Botao(BotaoCalculadora* imagem, int face);
    void Mostra();
    // The operation of the key released last, unless the server's
    // autorepeat presses it again at once.
    void CumpreSoltura();

  public:
    // Closes the calculator, writing nothing.
    void Fecha();
    // The calculation `f` is unloading: the calculator, open on one of its
    // fields, closes with nothing written.
    void Esquece(const FrmCalcTramelo& f);

    Calculadora calc_;
    // The calculation that opened it: the core's record, alive until its
    // unload, which calls Esquece first.
    FrmCalcTramelo* FormPai = nullptr;
    int indice_ = -1;
    QLabel* Readout_;
    std::array<BotaoCalculadora*, 19> botoes_{};
    BotaoCalculadora* BotaoAtual = nullptr;
    bool fechando_ = false;
    // A handler of the engine is running: a box it shows takes the
    // activation, and that isn't the user leaving the calculator.
    bool emHandler_ = false;
    bool caixaNoHandler_ = false; // the handler's box took the activation
    // Asking the activation back after that box, until the user's next key or
    // click or five seconds; meanwhile the application's events pass here.
    bool voltando_ = false;
    int teclaPressionada_ = -1; // the key whose press this window received
    // The key released, waiting to act: X's autorepeat sends a release and
    // a press with the same time, and the press may not be there yet.
    int teclaSolta_ = -1;
    unsigned long long horaSoltura_ = 0;
    QTimer tmrSoltura_;
};

} // namespace tramelo
