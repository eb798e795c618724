// A calculation as a record: the calculation window's controls and members.
// The window is the record; the desktop view only shows it and passes the
// user's actions to the routines that work on it.
#pragma once

#include "plataforma/controles.h"
#include "plataforma/variante.h"
#include "report/frm_relatorio.h"

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <utility>

namespace tramelo {

// One data row: strip, caption, text and unit list. Some rows lack a list.
struct Linha {
    Faixa picDados;
    std::optional<Rotulo> lblDados;
    std::optional<CaixaTexto> txtDados;
    std::optional<CaixaCombinacao> cboDados;
};

// Row indices that exist, in display order of the design.
inline constexpr std::array<int, 18> LinhasDados = {2,  4,  5,  8,  9,  10, 12, 14, 16,
                                                    17, 18, 19, 20, 25, 26, 27, 28, 29};

class FrmCalcTramelo {
  public:
    // Builds the controls as designed and ties their events to the handlers;
    // Form_Load does the rest.
    FrmCalcTramelo();
    FrmCalcTramelo(const FrmCalcTramelo&) = delete;
    FrmCalcTramelo& operator=(const FrmCalcTramelo&) = delete;

    std::string Caption;
    bool Visible = false;
    bool Enabled = true;

    // Members, in declaration order.
    std::string ArquivoCalculo;
    bool Alterado() const { return alterado_; }
    void DefineAlterado(bool v); // stores, and runs AtualizaBarra when it changes
    bool CarregandoArquivo = false;
    bool ArquivoExiste = false;
    std::string TextoData, TextoOS, TextoCliente;
    std::unique_ptr<FrmRelatorio> Relatorio;
    float FatorPerda = 1.0f;
    Variante ValorCampo;
    std::string NomeMaterial;
    // The fluid and the taps as this window's selections last named them, for
    // its own report: another window's choice never reaches it.
    std::string NomeFluido, NomeTomada;
    short Campo = 0;
    short Escala = 0;
    short Fluido = 0;
    short Tomada = 0;
    short Placa = 0;

    // The selections.
    Rotulo lblTramelo{"Tipo de orifício"}, lblFluido{"Fluido"}, lblTomada{"Posição das tomadas"};
    CaixaCombinacao cboTramelo, cboFluido, cboTomada;
    // Row 0, the tag, and row 1, the density mode.
    Rotulo lblTag{"Tag"};
    CaixaTexto txtTag;
    Rotulo lblMassaDensidade{"Massa / Densidade"};
    CaixaCombinacao cboMassaDensidade;
    // Hidden controls that the toolbar reaches.
    struct {
        bool Enabled = true;
        bool Visible = false;
    } cmdCalcular;
    struct {
        bool Enabled = true;
        bool Visible = false;
        int Value = 0;
    } chkDesenho;
    Painel picLista, picMove, picMenu;
    BarraRolagem barraV;

    // The entries of this window's menu bar that follow the window's state.
    ItemMenu mnuArquivoSalvar{"&Salvar"}, mnuArquivoSalvarComo{"Salvar &como..."},
        mnuArquivoSalvarTodos{"Salvar &todos"};
    ItemMenu mnuExibirBarraPadrao{"Botões &padrão", true, true},
        mnuExibirBarraCalculo{"Barra de &calculo", true, true},
        mnuExibirEtiqueta{"Etiquetas de texto", true, true},
        mnuExibirStatusBar{"Barra de &status", true, true};

    std::array<std::optional<Linha>, 31> linhas;
    // The control that has the focus, by name: "txtDados(9)", "txtTag", ...
    std::string foco;
    // A handler that moves the focus (a SetFocus) names the control here; the
    // count tells the window that a new request came, even for the control
    // named last time.
    void PedeFoco(std::string controle) {
        foco = std::move(controle);
        ++pedidosDeFoco;
    }
    unsigned pedidosDeFoco = 0;
    // The Index of the control that has the focus when it is a data row's
    // ("txtDados(9)", "cboDados(5)"), else -1.
    int IndiceControleAtivo() const;

    // A row's controls; nullptr where the row or the control doesn't exist.
    // Inline: the routines walk the rows by index many times per file.
    Faixa* picDados(int i) {
        Linha* l = LinhaDe(i);
        return l ? &l->picDados : nullptr;
    }
    Rotulo* lblDados(int i) { return Controle(i, &Linha::lblDados); }
    CaixaTexto* txtDados(int i) { return Controle(i, &Linha::txtDados); }
    CaixaCombinacao* cboDados(int i) { return Controle(i, &Linha::cboDados); }
    // The same for a query, which only reads.
    const Faixa* picDados(int i) const { return const_cast<FrmCalcTramelo*>(this)->picDados(i); }
    const Rotulo* lblDados(int i) const { return const_cast<FrmCalcTramelo*>(this)->lblDados(i); }
    const CaixaTexto* txtDados(int i) const { return const_cast<FrmCalcTramelo*>(this)->txtDados(i); }
    const CaixaCombinacao* cboDados(int i) const {
        return const_cast<FrmCalcTramelo*>(this)->cboDados(i);
    }

  private:
    Linha* LinhaDe(int i) {
        if (i < 0 || i >= static_cast<int>(linhas.size())) return nullptr;
        auto& l = linhas[static_cast<size_t>(i)];
        return l ? &*l : nullptr;
    }
    template <class C> C* Controle(int i, std::optional<C> Linha::*membro) {
        Linha* l = LinhaDe(i);
        return l && (l->*membro) ? &*(l->*membro) : nullptr;
    }

    bool alterado_ = false;
};

} // namespace tramelo
