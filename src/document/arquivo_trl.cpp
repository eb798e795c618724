#include "document/arquivo_trl.h"

#include "document/campos.h"
#include "document/ciclo.h"
#include "document/frm_calc_tramelo.h"
#include "document/janela.h"
#include "document/janelas.h"
#include "plataforma/ambiente.h"
#include "plataforma/canal.h"
#include "plataforma/texto.h"
#include "base/mod_base.h"
#include "base/recentes.h"

namespace tramelo {
namespace {

constexpr int FlagsArquivo = 2054; // hide read-only, ask before overwriting, path must exist

void Ocupado(FrmCalcTramelo& f, bool ocupado) {
    f.Enabled = !ocupado;
    if (JanelasCalculo* j = janelasCalculo()) j->Ocupado(f, ocupado);
}

void AbreArquivoGravacao(FrmCalcTramelo& f) {
    canal1().AbreSaida(f.ArquivoCalculo);
}

// Runs one step whose failure is passed over, as the row loops want.
template <typename F> void Passa(F&& passo) {
    try {
        passo();
    } catch (const Falha&) {
    }
}

} // namespace

void TrameloSave(FrmCalcTramelo& f, bool SalvarComo, bool& Ok) {
    const bool alteradoAntes = f.Alterado();
    const std::string arquivoAntes = f.ArquivoCalculo;
    f.DefineAlterado(false);
    Ok = false;
    try {
        if (SalvarComo) {
            CriaPasta(modBase().PastaSaves);
            const size_t barra = f.ArquivoCalculo.rfind('/');
            ConfiguraDialogo d;
            d.DialogTitle = "Salvar Como";
            d.Filter = "Arquivo Tramelo (*.trl)|*.trl";
            d.Flags = FlagsArquivo;
            d.InitDir = barra == std::string::npos ? "" : f.ArquivoCalculo.substr(0, barra + 1);
            d.FileName =
                barra == std::string::npos ? f.ArquivoCalculo : f.ArquivoCalculo.substr(barra + 1);
            f.ArquivoCalculo = ShowSave(d);
        }
        Ocupado(f, true);
        AbreArquivoGravacao(f);
        CanalArquivo& c = canal1();
        c.Escreve({f.TextoData});
        c.Escreve({f.TextoOS});
        c.Escreve({f.TextoCliente});
        c.Escreve({f.cboTramelo.ListIndex()});
        // Line 5 pads so that the fluid's text opens at column 5.
        c.Imprime(std::to_string(f.cboFluido.ListIndex()) + ",");
        c.Tab(5);
        c.Escreve({f.cboFluido.Text()});
        c.Escreve({f.cboTomada.ListIndex()});
        c.Escreve({f.txtTag.Text()});
        Ok = true;
        for (int i = 2; i <= 30; ++i) {
            Passa([&] {
                if (!LinhaEmUso(f, i)) return;
                int unidade = 0;
                if (CaixaCombinacao* cbo = f.cboDados(i)) unidade = cbo->ListIndex();
                CaixaTexto* txt = f.txtDados(i);
                c.Escreve({i, txt ? txt->Text() : std::string(), unidade});
            });
        }
        c.Fecha();
        AdicionaMRU(f.ArquivoCalculo);
        Atualiza(f);
        Ocupado(f, false);
        AtualizaBarra(f);
    } catch (const Falha& e) {
        // The channel stays as the failure left it: a part-written file keeps
        // it taken, and the earlier file is untouched.
        Ocupado(f, false);
        f.ArquivoCalculo = arquivoAntes;
        f.DefineAlterado(alteradoAntes);
        if (e.numero() != DialogoCancelado) InformaErro(e);
    }
}

void TrameloOpen(FrmCalcTramelo& f, const std::string& Arquivo) {
    if (TrameloFecha(f) == vbCancel) {
        Ocupado(f, false);
        return;
    }
    f.CarregandoArquivo = true;
    try {
        f.ArquivoCalculo = Arquivo;
        f.Caption = Arquivo;
        if (f.ArquivoCalculo.empty()) {
            CriaPasta(modBase().PastaSaves);
            ConfiguraDialogo d;
            d.DialogTitle = "Abrir Tramelo";
            d.Filter = "Arquivo de Tramelo (*.trl)|*.trl";
            d.Flags = FlagsArquivo;
            d.InitDir = modBase().PastaSaves;
            f.ArquivoCalculo = ShowOpen(d);
        }
        Ocupado(f, true);
        if (!ExisteArquivo(f.ArquivoCalculo)) {
            MsgBox("Arquivo não encontrado", vbExclamation, "Arquivo: " + f.ArquivoCalculo);
            f.ArquivoCalculo.clear();
        } else {
            CanalArquivo& c = canal1();
            c.AbreEntrada(f.ArquivoCalculo);
            f.ArquivoExiste = true;
            f.TextoData = c.LeItem();
            f.TextoOS = c.LeItem();
            f.TextoCliente = c.LeItem();
            f.cboTramelo.DefineListIndex(NumeroDoItem(c.LeItem()));
            // The fluid's position from the number's first character alone;
            // the click handling doesn't ask for a name while loading.
            f.cboFluido.DefineListIndex(NumeroDoItem(Left(c.LeItem(), 1)));
            std::string nomeFluido = c.LeItem();
            const int fluido = f.cboFluido.ListIndex();
            if (fluido < 0 || fluido >= f.cboFluido.ListCount())
                throw Falha(381, "Índice de matriz de propriedade inválido");
            f.cboFluido.itens[static_cast<size_t>(fluido)].texto = nomeFluido;
            f.cboTomada.DefineListIndex(NumeroDoItem(c.LeItem()));
            f.txtTag.DefineTexto(c.LeItem());
            // Row lines: a failing step is skipped and the next one runs, so
            // an unknown row or a unit beyond its list is read and dropped. A
            // row without the control (340 on the platform) is passed over
            // without a throw: every file has rows with no unit list.
            short i = 0;
            while (!c.Eof()) {
                Passa([&] { i = NumeroDoItem(c.LeItem()); });
                Passa([&] {
                    std::string texto = c.LeItem();
                    if (CaixaTexto* txt = f.txtDados(i)) txt->DefineTexto(std::move(texto));
                });
                Passa([&] {
                    short unidade = NumeroDoItem(c.LeItem());
                    if (CaixaCombinacao* cbo = f.cboDados(i)) cbo->DefineListIndex(unidade);
                });
            }
            c.Fecha();
            f.Relatorio->txtData = f.TextoData;
            f.Relatorio->txtOS = f.TextoOS;
            f.Relatorio->txtCliente = f.TextoCliente;
            AdicionaMRU(f.ArquivoCalculo);
        }
        f.CarregandoArquivo = false;
        Atualiza(f);
        f.DefineAlterado(false);
        Ocupado(f, false);
    } catch (const Falha& e) {
        // The channel isn't closed here: a short file leaves it taken.
        Ocupado(f, false);
        f.ArquivoExiste = false;
        f.CarregandoArquivo = false;
        if (e.numero() != DialogoCancelado) InformaErro(e);
    }
}

} // namespace tramelo
