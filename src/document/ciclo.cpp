#include "document/ciclo.h"

#include "document/arquivo_trl.h"
#include "document/campos.h"
#include "document/frm_calc_tramelo.h"
#include "document/janela.h"
#include "document/janelas.h"
#include "plataforma/ambiente.h"
#include "report/frm_relatorio.h"
#include "report/janela_relatorio.h"
#include "base/barras.h"
#include "base/mod_base.h"
#include "sizing/catalogo.h"
#include "plataforma/notificador.h"

#include <algorithm>
#include <new>

namespace tramelo {

long& ContadorCalculos() {
    static long contador = 0;
    return contador;
}

JanelasCalculo*& janelasCalculo() {
    static JanelasCalculo* j = nullptr;
    return j;
}

std::vector<std::unique_ptr<FrmCalcTramelo>>& Calculos() {
    static std::vector<std::unique_ptr<FrmCalcTramelo>> c;
    return c;
}

FrmCalcTramelo& CarregaCalculo() {
    auto& lista = Calculos();
    lista.push_back(std::make_unique<FrmCalcTramelo>());
    FrmCalcTramelo& f = *lista.back();
    if (JanelasCalculo* j = janelasCalculo()) j->Carregada(f);
    Notifica(Mudanca::CalculoAberto, &f);
    Form_Load(f);
    return f;
}

namespace {

void Remove(FrmCalcTramelo& f) {
    Notifica(Mudanca::CalculoFechado, &f);
    FilhoAtivo& a = filhoAtivo();
    if (a.calculo == &f || a.relatorio == f.Relatorio.get()) a = {};
    if (JanelasCalculo* j = janelasCalculo()) j->Descarregada(f);
    auto& lista = Calculos();
    lista.erase(
        std::remove_if(lista.begin(), lista.end(),
                       [&](const std::unique_ptr<FrmCalcTramelo>& p) { return p.get() == &f; }),
        lista.end());
}

} // namespace

FilhoAtivo& filhoAtivo() {
    static FilhoAtivo a;
    return a;
}

void AtivaFilho(FilhoAtivo novo) {
    FilhoAtivo& a = filhoAtivo();
    if (a.calculo == novo.calculo && a.relatorio == novo.relatorio) return;
    if (a.calculo) Form_Deactivate(*a.calculo);
    if (a.relatorio) Relatorio_Deactivate(*a.relatorio);
    a = novo;
    if (a.calculo) Form_Activate(*a.calculo);
    if (a.relatorio) Relatorio_Activate(*a.relatorio);
    Notifica(Mudanca::FilhoAtivado);
}


bool DescarregaCalculo(FrmCalcTramelo& f) {
    if (Form_QueryUnload(f)) return false;
    Form_Unload(f);
    Remove(f);
    return true;
}

bool DescarregaTodosCalculos() {
    // A copy: answering a question may not change the list, but be safe.
    std::vector<FrmCalcTramelo*> todos;
    for (auto& p : Calculos()) todos.push_back(p.get());
    for (FrmCalcTramelo* f : todos)
        if (Form_QueryUnload(*f)) return false;
    for (FrmCalcTramelo* f : todos) {
        Form_Unload(*f);
        Remove(*f);
    }
    return true;
}

FrmCalcTramelo* AbreCalculo(bool Abrir, std::string& Arquivo) {
    if (JanelasCalculo* j = janelasCalculo()) j->BombeiaEventos();
    FrmCalcTramelo* f = nullptr;
    try {
        if (Abrir) {
            CriaPasta(modBase().PastaSaves);
            if (Arquivo.empty()) {
                ConfiguraDialogo d;
                d.DialogTitle = "Abrir Tramelo";
                d.Filter = "Arquivo de Tramelo (*.trl)|*.trl";
                d.Flags = 2054;
                d.InitDir = modBase().PastaSaves;
                Arquivo = ShowOpen(d);
            }
            if (!ExisteArquivo(Arquivo)) {
                MsgBox("Arquivo não encontrado", vbExclamation, Arquivo);
                return nullptr;
            }
            f = &CarregaCalculo();
            TrameloOpen(*f, Arquivo);
        } else {
            ++ContadorCalculos();
            f = &CarregaCalculo();
            f->Caption = "Cálculo " + std::to_string(ContadorCalculos());
        }
        f->Visible = true;
        // Shown on top, the new window is the active one.
        AtivaFilho({f, nullptr});
        if (JanelasCalculo* j = janelasCalculo()) j->Mostra(*f);
        if (mdiMenu().mostrado) Atualiza(mdiMenu());
        return f;
    } catch (const std::bad_alloc&) {
        // No half-built calculation stays behind.
        if (f) Remove(*f);
        MsgBox("Não há memória disponível, feche um ou mais programas e tente novamente.",
               vbCritical, "Falta de memória");
    } catch (const Falha& e) {
        if (e.numero() == FaltaMemoria) {
            if (f) Remove(*f);
            MsgBox("Não há memória disponível, feche um ou mais programas e tente novamente.",
                   vbCritical, "Falta de memória");
        } else if (e.numero() != DialogoCancelado) {
            InformaErro(e);
        }
    }
    return nullptr;
}

FrmCalcTramelo* AbreCalculo(bool Abrir, const std::string& Arquivo) {
    std::string a = Arquivo;
    return AbreCalculo(Abrir, a);
}

short TrameloFecha(FrmCalcTramelo& f) {
    if (!(f.Alterado() && f.txtTag.Enabled)) return -1;
    short resposta =
        static_cast<short>(MsgBox("Deseja salvar as alterações efetuadas neste Cálculo?",
                                  vbYesNoCancel + vbQuestion, f.ArquivoCalculo));
    if (resposta == vbYes) {
        bool ok = false;
        TrameloSave(f, !f.ArquivoExiste, ok);
        if (ok)
            f.DefineAlterado(false);
        else
            resposta = vbCancel;
    }
    return resposta;
}

void TrameloLimpa(FrmCalcTramelo& f) {
    auto passa = [](auto&& passo) {
        try {
            passo();
        } catch (const Falha&) {
        }
    };
    passa([&] { f.txtTag.DefineTexto(""); });
    for (int i = 2; i <= 30; ++i) {
        passa([&] {
            if (CaixaTexto* t = f.txtDados(i)) t->DefineTexto("");
        });
        passa([&] {
            if (CaixaCombinacao* c = f.cboDados(i)) c->DefineListIndex(0);
        });
    }
    const Catalogo& cat = catalogo();
    for (int i = 0; i <= 2; ++i)
        passa([&] {
            f.cboFluido.itens.at(static_cast<size_t>(i)).texto =
                cat.NomeFluidos[static_cast<size_t>(i + 1)];
        });
    passa([&] { f.cboTomada.DefineListIndex(-1); });
    passa([&] { f.cboTomada.DefineListIndex(-1); });
    passa([&] { f.cboFluido.DefineListIndex(-1); });
    passa([&] { f.cboTramelo.DefineListIndex(-1); });
    f.TextoData.clear();
    f.TextoOS.clear();
    f.TextoCliente.clear();
    f.Relatorio->txtData = f.TextoData;
    f.Relatorio->txtOS = f.TextoOS;
    f.Relatorio->txtCliente = f.TextoCliente;
    Atualiza(f);
}

bool Form_QueryUnload(FrmCalcTramelo& f) {
    ConfereCabecalho(f);
    return TrameloFecha(f) == vbCancel;
}

void Form_Unload(FrmCalcTramelo& f) {
    Form_Deactivate(f);
    Relatorio_Unload(*f.Relatorio);
}

void mnuArquivoSalvar_Click(FrmCalcTramelo& f) {
    bool ok = false;
    TrameloSave(f, !f.ArquivoExiste, ok);
}

void mnuArquivoSalvarComo_Click(FrmCalcTramelo& f) {
    bool ok = false;
    TrameloSave(f, true, ok);
}

bool mnuArquivoFechar_Click(FrmCalcTramelo& f) {
    return DescarregaCalculo(f);
}

} // namespace tramelo
