#include "shell/inicio.h"

#include "document/ciclo.h"
#include "document/frm_calc_tramelo.h"
#include "document/janelas.h"
#include "plataforma/ambiente.h"
#include "plataforma/caixas.h"
#include "plataforma/falha.h"
#include "plataforma/texto.h"
#include "shell/abertura.h"
#include "shell/associacao.h"
#include "base/barras.h"
#include "shell/entrada.h"
#include "shell/mdi_menu.h"
#include "base/mod_base.h"
#include "base/pedidos.h"
#include "shell/registro.h"

#include <new>

namespace tramelo {
namespace {

void MostraMenu() {
    if (TelaMenu* t = telaMenu()) t->Mostra();
}

// One step of a routine that ignores its failures and goes on.
template <typename Passo> void Ignorando(Passo&& passo) {
    try {
        passo();
    } catch (...) {
    }
}

} // namespace

TelaMenu*& telaMenu() {
    static TelaMenu* t = nullptr;
    return t;
}

void IniciaPrograma() {
    try {
        MdiMenu_Load();
        if (TelaMenu* t = telaMenu()) t->Carrega();
        if (LigacaoInstancias* l = ligacaoInstancias())
            l->Atende(TituloAplicacao() + "|" + TopicoMenu, MdiMenu_LinkExecute);
        // The splash counts from its load at the very start, not from here.
        if (TelaAbertura* t = telaAbertura()) t->MostraModal(frmAbertura());
        LeLinhaComando();
        VerificaAssociacao();
        MostraMenu();
        Atualiza(mdiMenu());
        std::string& ArquivoInicial = modBase().ArquivoInicial;
        const bool Abrir = !ArquivoInicial.empty();
        if (LeConfig("Config", "DicasIniciar") == "0" || Abrir)
            AbreCalculo(Abrir, ArquivoInicial);
        else if (PedidosDesktop* d = pedidosDesktop())
            d->MostraDicas();
    } catch (const Falha& e) {
        InformaErro(e);
        MostraMenu();
    } catch (const std::bad_alloc&) {
        InformaErro(Falha(FaltaMemoria));
        MostraMenu();
    }
}

void MdiMenu_LinkExecute(const std::string& CmdStr) {
    std::string& ArquivoInicial = modBase().ArquivoInicial;
    MdiMenu& m = mdiMenu();
    TelaMenu* t = telaMenu();
    Ignorando([&] { ArquivoInicial = CmdStr; });
    if (Left(ArquivoInicial, 2) == "/P") {
        Ignorando([&] { ArquivoInicial = Mid(ArquivoInicial, 4); });
        if (m.WindowState == 1) {
            m.WindowState = m.EstadoAnterior;
            if (t) Ignorando([&] { t->AplicaEstado(); });
        }
    }
    Ignorando([] { MostraMenu(); });
    // The text behind "/P " isn't parsed again: "/A" and a name reach
    // AbreCalculo as they stand.
    Ignorando([&] {
        if (t && t->Visivel() && !ArquivoInicial.empty()) AbreCalculo(true, ArquivoInicial);
    });
}

void MdiMenu_Resize() {
    MdiMenu& m = mdiMenu();
    if (m.WindowState != 1) m.EstadoAnterior = m.WindowState;
}

bool FechaPrograma() {
    MdiMenu_QueryUnload();
    // Every calculation is asked before any goes: one cancel keeps them all.
    if (!DescarregaTodosCalculos()) return false;
    TelaMenu* t = telaMenu();
    if (t) t->GuardaLugar();
    // Bars as "True"/"False", the state, then the normal window's place.
    MdiMenu_Unload();
    if (t) t->DescarregaOutras();
    DoEvents();
    return true;
}

void GuardaSessao() {
    MdiMenu_QueryUnload();
    if (TelaMenu* t = telaMenu()) t->GuardaLugar();
    MdiMenu_Unload();
}

} // namespace tramelo
