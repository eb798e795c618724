#include "shell/mdi_menu.h"

#include "document/campos.h"
#include "document/ciclo.h"
#include "document/entrada.h"
#include "document/frm_calc_tramelo.h"
#include "document/janela.h"
#include "document/janelas.h"
#include "plataforma/ambiente.h"
#include "report/frm_relatorio.h"
#include "report/janela_relatorio.h"
#include "base/barras.h"
#include "base/instalacao.h"
#include "plataforma/numero.h"
#include "base/mod_base.h"
#include "base/pedidos.h"
#include "base/recentes.h"
#include "shell/entrada.h"
#include "shell/registro.h"
#include "document/calculo.h"
#include "plataforma/notificador.h"

#include <cmath>
#include <string_view>
#include <filesystem>

namespace tramelo {
namespace {

// " 1" to " 4": the text of a positive number keeps a blank for its sign,
// and the stored names have always had it.
std::string NomeValor(int i) {
    return " " + std::to_string(i);
}


// The same tick on the active child's copy of the menu; a child without it
// is passed over.
void MarcaNoFilho(ItemMenu FrmCalcTramelo::*noCalculo, ItemMenu FrmRelatorio::*noRelatorio,
                  bool marcado) {
    FilhoAtivo& a = filhoAtivo();
    if (a.calculo)
        (a.calculo->*noCalculo).Checked = marcado;
    else if (a.relatorio)
        (a.relatorio->*noRelatorio).Checked = marcado;
}

// Band B toggled, O the other one: the coolbar goes when its last band does.
void AlternaBanda(int b, int o, ItemMenu MdiMenu::*item, ItemMenu FrmCalcTramelo::*noCalculo,
                  ItemMenu FrmRelatorio::*noRelatorio) {
    Notifica(Mudanca::Barras);
    MdiMenu& m = mdiMenu();
    if (m.cobBarra.Visible) {
        if (!m.cobBarra.Bands(o).Visible) m.cobBarra.Visible = false;
    } else {
        m.cobBarra.Visible = true;
    }
    m.cobBarra.Bands(b).Visible = !m.cobBarra.Bands(b).Visible;
    (m.*item).Checked = m.cobBarra.Bands(b).Visible;
    MarcaNoFilho(noCalculo, noRelatorio, (m.*item).Checked);
    AjustaBarra();
}

// A file as a file: address, the one form that carries a section to the
// desktop's browser; every byte of the path but the plain ones is escaped, so
// a blank or a "#" in a folder's name stays part of the path.
std::string EnderecoDeArquivo(const std::string& caminho, const std::string& secao) {
    static const char hex[] = "0123456789ABCDEF";
    std::string r = "file://";
    std::error_code ec;
    for (unsigned char c : std::filesystem::absolute(caminho, ec).lexically_normal().string()) {
        const bool simples = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') ||
                             (c >= '0' && c <= '9') || std::string_view("/-._~").find(c) != std::string_view::npos;
        if (simples) {
            r += static_cast<char>(c);
        } else {
            r += '%';
            r += hex[c >> 4];
            r += hex[c & 15];
        }
    }
    return secao.empty() ? r : r + "#" + secao;
}

// The manual, installed with the program or beside a build's executable, in
// the desktop's browser; a program without it keeps the box it always had.
// A browser that fails to start is the desktop's business, as a help viewer's
// failure was the platform's.
void MostraAjuda(const std::string& secao) {
    const std::string pagina = ArquivoDoPrograma(PastaExecutavel(), ArquivoManual);
    if (ExisteArquivo(pagina)) {
        AbreNoSistema(EnderecoDeArquivo(pagina, secao));
        return;
    }
    MsgBox("Não foi possivel exibir o arquivo da ajuda. Não há nenhum arquivo de Ajuda "
           "associado à este projeto.",
           vbInformation, mdiMenu().Caption);
}

} // namespace

void InformaFalhaDeCalculo(int numero, const std::string& descricao) {
    InformaErro(ErroExecucao{numero, descricao});
}

void mnuArquivoNew_Click() {
    AbreCalculo(false, std::string());
}

void mnuArquivoOpen_Click() {
    AbreCalculo(true, std::string());
}

void mnuArquivoFecharTodos_Click() {
    HabilitaMenu(false);
    // A calculation that refuses to close is asked again, until it goes.
    for (;;) {
        DoEvents();
        auto& lista = Calculos();
        if (lista.empty()) break;
        DescarregaCalculo(*lista.front());
    }
    HabilitaMenu(true);
}

void mnuExibirBarraPadrao_Click() {
    AlternaBanda(1, 2, &MdiMenu::mnuExibirBarraPadrao, &FrmCalcTramelo::mnuExibirBarraPadrao,
                 &FrmRelatorio::mnuExibirBarraPadrao);
}

void mnuExibirBarraCalculo_Click() {
    AlternaBanda(2, 1, &MdiMenu::mnuExibirBarraCalculo, &FrmCalcTramelo::mnuExibirBarraCalculo,
                 &FrmRelatorio::mnuExibirBarraCalculo);
}

void mnuExibirEtiqueta_Click() {
    MdiMenu& m = mdiMenu();
    m.mnuExibirEtiqueta.Checked = !m.mnuExibirEtiqueta.Checked;
    MarcaNoFilho(&FrmCalcTramelo::mnuExibirEtiqueta, &FrmRelatorio::mnuExibirEtiqueta,
                 m.mnuExibirEtiqueta.Checked);
    m.tbPadrao.MostraEtiquetas(m.mnuExibirEtiqueta.Checked);
    m.tbCalculo.MostraEtiquetas(m.mnuExibirEtiqueta.Checked);
    AjustaBarra();
}

void mnuExibirStatusBar_Click() {
    Notifica(Mudanca::Barras);
    MdiMenu& m = mdiMenu();
    m.sbStatusBar.Visible = !m.sbStatusBar.Visible;
    m.mnuExibirStatusBar.Checked = m.sbStatusBar.Visible;
    MarcaNoFilho(&FrmCalcTramelo::mnuExibirStatusBar, &FrmRelatorio::mnuExibirStatusBar,
                 m.mnuExibirStatusBar.Checked);
}

void AjustaBarra() {
    MdiMenu& m = mdiMenu();
    // The toolbars' design sizes, in twips, with the text labels on.
    struct {
        int alturaPadrao = 540, larguraPadrao = 3000, larguraCalculo = 4215;
    } medidas;
    Banda& b1 = m.cobBarra.Bands(1);
    Banda& b2 = m.cobBarra.Bands(2);
    if (m.mnuExibirEtiqueta.Checked) {
        b1.MinHeight = medidas.alturaPadrao;
        b2.MinHeight = b1.MinHeight;
        b1.MinWidth = medidas.larguraPadrao;
        b2.MinWidth = medidas.larguraCalculo;
    } else {
        b1.MinWidth = 1600;
        b1.Width = 1600;
        b2.MinWidth = 1500;
        b2.Width = 1500;
        b1.MinHeight = medidas.alturaPadrao;
        b2.MinHeight = b1.MinHeight;
    }
}

void mnuExibirRelatorio_Click() {
    try {
        CriaPasta(modBase().PastaRelatorios);
        AbreNoSistema(modBase().PastaRelatorios);
    } catch (const Falha&) {
    }
}

void mnuAjudaConteudo_Click() {
    MostraAjuda("");
}

// The platform's help on help has no counterpart here: the manual opens at
// its own section on how to read it.
void mnuAjudaComoUsar_Click() { MostraAjuda("como-usar"); }

void CarregaMRU() {
    for (int i = 1; i <= 4; ++i)
        FilesMRU()[static_cast<size_t>(i - 1)] = LeConfig("FilesMRU", NomeValor(i));
    Notifica(Mudanca::Recentes);
}

void GravaMRU() {
    for (int i = 1; i <= 4; ++i) {
        const std::string& F = FilesMRU()[static_cast<size_t>(i - 1)];
        if (F.empty()) break;
        GravaConfig("FilesMRU", NomeValor(i), F);
    }
}

void MdiMenu_Load() {
    // All four toggles start ticked; only the exact text "False" turns one off.
    if (LeConfig("Config", "Barra0") == "False") mnuExibirBarraPadrao_Click();
    if (LeConfig("Config", "Barra1") == "False") mnuExibirBarraCalculo_Click();
    if (LeConfig("Config", "Barra2") == "False") mnuExibirEtiqueta_Click();
    if (LeConfig("Config", "Barra3") == "False") mnuExibirStatusBar_Click();
    MdiMenu& m = mdiMenu();
    int* lugar[] = {&m.Left, &m.Top, &m.Width, &m.Height, &m.WindowState};
    const char* nomes[] = {"MainLeft", "MainTop", "MainWidth", "MainHeight", "MainWindowsState"};
    for (int i = 0; i < 5; ++i) {
        const double v = std::nearbyint(Val(LeConfig("Config\\Menu", nomes[i])));
        if (v > 0 && v < 1e9) *lugar[i] = static_cast<int>(v);
    }
    CarregaMRU();
    Atualiza(m);
}

void MdiMenu_QueryUnload() { GravaMRU(); }

void MdiMenu_Unload() {
    MdiMenu& m = mdiMenu();
    auto texto = [](bool b) { return std::string(b ? "True" : "False"); };
    GravaConfig("Config", "Barra0", texto(m.mnuExibirBarraPadrao.Checked));
    GravaConfig("Config", "Barra1", texto(m.mnuExibirBarraCalculo.Checked));
    GravaConfig("Config", "Barra2", texto(m.mnuExibirEtiqueta.Checked));
    GravaConfig("Config", "Barra3", texto(m.mnuExibirStatusBar.Checked));
    // The place stored is always the normal window's; a maximised exit is
    // remembered by the state alone.
    GravaConfig("Config\\Menu", "MainWindowsState", m.WindowState == 2 ? "2" : "0");
    m.WindowState = 0;
    DoEvents();
    GravaConfig("Config\\Menu", "MainLeft", NumeroSimplesParaTexto(static_cast<float>(m.Left)));
    GravaConfig("Config\\Menu", "MainTop", NumeroSimplesParaTexto(static_cast<float>(m.Top)));
    GravaConfig("Config\\Menu", "MainWidth", NumeroSimplesParaTexto(static_cast<float>(m.Width)));
    GravaConfig("Config\\Menu", "MainHeight", NumeroSimplesParaTexto(static_cast<float>(m.Height)));
}

int EstadoDaJanela(bool minimizada, bool maximizada) {
    return minimizada ? 1 : maximizada ? 2 : 0;
}

void HabilitaMenu(bool Habilitado) {
    DoEvents();
    MousePointer(Habilitado ? vbDefault : vbHourglass);
    mdiMenu().Enabled = Habilitado;
    Notifica(Mudanca::Barras);
    DoEvents();
}

void tbPadrao_ButtonClick(std::string_view key) {
    DoEvents();
    FilhoAtivo& a = filhoAtivo();
    if (key == "Novo") {
        HabilitaMenu(false);
        DoEvents();
        mnuArquivoNew_Click();
        DoEvents();
        HabilitaMenu(true);
    } else if (key == "Abrir") {
        mnuArquivoOpen_Click();
    } else if (key == "Salvar") {
        if (a.calculo) mnuArquivoSalvar_Click(*a.calculo);
    } else if (key == "Imprimir") {
        if (a.relatorio && pedidosDesktop()) pedidosDesktop()->ImprimeRelatorio(*a.relatorio);
    } else if (key == "Sair") {
        if (pedidosDesktop()) pedidosDesktop()->Sai();
    }
}

void tbCalculo_ButtonClick(std::string_view key) {
    // A button on a child without the member does nothing.
    FilhoAtivo a = filhoAtivo();
    try {
        if (key == "Calcular") {
            if (a.calculo && a.calculo->cmdCalcular.Enabled) {
                ResultadoCalculo r = cmdCalcular_Click(*a.calculo);
                if (r.fim == FimCalculo::Falhou)
                    InformaFalhaDeCalculo(r.erro.numero, r.erro.descricao);
            }
        } else if (key == "Calculadora") {
            if (a.calculo) {
                int i = a.calculo->IndiceControleAtivo();
                if (i >= 0) txtDados_DblClick(*a.calculo, i);
            }
        } else if (key == "Imprimir") {
            if (a.relatorio && pedidosDesktop()) pedidosDesktop()->ImprimeRelatorio(*a.relatorio);
        } else if (key == "Exportar") {
            if (a.relatorio && pedidosDesktop()) pedidosDesktop()->ExportaRelatorio(*a.relatorio);
        }
    } catch (const Falha&) {
    }
}

} // namespace tramelo
