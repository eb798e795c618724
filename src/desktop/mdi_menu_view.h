// The main window: the multiple-document frame with its menu, the two
// toolbars, the status bar, and the calculation and report windows as its
// children. It shows the frame record and passes clicks to the frame's
// operations; a child's menu replaces the frame's while that child is active.
#pragma once

#include "desktop/calculo_view.h"
#include "desktop/relatorio_view.h"
#include "document/janelas.h"
#include "plataforma/notificador.h"

#include <QMainWindow>
#include <QMdiSubWindow>
#include <QPointer>

#include <array>
#include <functional>
#include <set>
#include <vector>

class QLabel;
class QMdiArea;
class QMenu;
class QToolBar;

namespace tramelo {

class FrmCalcTramelo;
struct FrmRelatorio;

class MdiMenuView : public QMainWindow, public JanelasCalculo, public Observador {
    Q_OBJECT
  public:
    MdiMenuView();
    ~MdiMenuView() override;

    // What the core said changed, applied now instead of once the current
    // event is done (before a picture, a measure or the first show).
    void AplicaMudancas();
    CalculoView* VistaCalculo(const FrmCalcTramelo& f) const;
    RelatorioView* VistaRelatorio(const FrmRelatorio& r) const;
    QMdiArea* area() const { return area_; }

    // The normal window's place and size, in twips, and its state, into the
    // frame record (for the settings at close).
    void GuardaLugar();

    // Adds any other child (a steam table); it is closed with the frame.
    QMdiSubWindow* AdicionaFilho(QWidget* filho);

    // JanelasCalculo: the desktop's side of a calculation's life.
    void Carregada(FrmCalcTramelo& f) override;
    void Mostra(FrmCalcTramelo& f) override;
    void Descarregada(const FrmCalcTramelo& f) override;
    void Ocupado(const FrmCalcTramelo& f, bool ocupado) override;
    void BombeiaEventos() override;

    // Observador: the core's word that something changed, kept until applied.
    void Mudou(Mudanca tipo, const void* quem) override;

    // Runs when the user closes the frame; returns false to stay open.
    std::function<bool()> aoFechar;

  signals:
    // The frame's menu entries whose windows the program makes.
    void pedeConfigurarImpressao();
    void pedeOpcoes();
    void pedeDicas();
    void pedeSobre();
    void pedeTabelaVapor(int indice);
    void pedePropriedades();

  protected:
    void closeEvent(QCloseEvent* e) override;
    void changeEvent(QEvent* e) override;
    bool eventFilter(QObject* objeto, QEvent* evento) override;

  private:
    enum class Tipo { Frame, Calculo, Relatorio, Outro };
    // A calculation's two windows. The record is the core's, alive from
    // Carregada to Descarregada; the windows belong to the MDI area (Qt's
    // object tree), so they are held by handles that know when they are gone.
    struct Par {
        FrmCalcTramelo* registro;
        QPointer<QMdiSubWindow> janelaCalculo;
        QPointer<CalculoView> calculo;
        QPointer<QMdiSubWindow> janelaRelatorio;
        QPointer<RelatorioView> relatorio;
        bool inteiro() const { return janelaCalculo && calculo && janelaRelatorio && relatorio; }
    };

    void SincronizaFrame();
    void SincronizaPar(Par& p, bool calculo, bool relatorio);
    void ConstroiMenus();
    void AtualizaMenus();
    void AtualizaRecentes();
    void AoAtivar(QMdiSubWindow* janela);
    Tipo TipoDe(QMdiSubWindow* janela, FrmCalcTramelo** calculo, FrmRelatorio** relatorio) const;
    void Acao(const std::function<void()>& acao);
    void PreencheJanela(QMenu* menu);
    // The children brought back inside the work area after it shrank.
    void RecolheFilhos();
    QMenu* MenuBarras();

    QMdiArea* area_;
    QToolBar *tbPadrao_, *tbCalculo_;
    QLabel *status_, *data_, *hora_;
    std::vector<Par> pares_;
    QPointer<QMdiSubWindow> ativo_;
    Tipo tipoMenu_ = Tipo::Frame;
    bool habilitado_ = true; // the frame's parts, as last set

    // The menu bar is made once; these entries change with the active child.
    // Owned by their menus, which the menu bar owns.
    struct Menus {
        QAction *abrir, *fechar, *fecharTodos, *salvar, *salvarComo, *salvarTodos;
        QAction *exportar, *imprimir;
        std::array<QAction*, 4> recentes;
        QAction* vazio;
        QAction *barraPadrao, *barraCalculo, *sepBarras, *etiquetaBarras, *etiquetaExibir;
        QAction *statusBar, *sepExibir1, *relatorios, *sepExibir2;
        QAction *cascata, *icones, *conteudo, *comoUsar, *sobre;
    } menus_{};

    // What changed since the last application.
    // The menu entries with a key of their own (Ctrl+A, Ctrl+O, ...): in
    // this window they win over a text field's use of the same key. Owned
    // by their menus.
    std::vector<QAction*> atalhos_;

    std::set<const void*> calculosMudados_, relatoriosMudados_;
    bool barrasMudaram_ = false, recentesMudaram_ = false, ativoMudou_ = false;
    bool aplicacaoPendente_ = false;
};

} // namespace tramelo
