// The first instance from its command line to what it opens, a second
// start's command reaching it, the frame with its settings, and the about box.
#include "caixas_roteiro.h"
#include "pasta_temporaria.h"

#include "document/ciclo.h"
#include "document/frm_calc_tramelo.h"
#include "document/janelas.h"
#include "plataforma/falha.h"
#include "shell/abertura.h"
#include "shell/associacao.h"
#include "base/barras.h"
#include "shell/dicas.h"
#include "shell/entrada.h"
#include "shell/inicio.h"
#include "shell/mdi_menu.h"
#include "base/mod_base.h"
#include "base/recentes.h"
#include "shell/registro.h"
#include "sizing/catalogo.h"
#include "pedidos_roteiro.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <optional>

namespace tramelo::teste {
namespace {

class TelaMenuRoteiro : public TelaMenu {
  public:
    void Carrega() override {}
    void Mostra() override {
        if (mostraFalha) throw Falha(5);
        eventos.push_back("menu mostrado");
        visivel = true;
    }
    bool Visivel() override { return visivel; }
    void AplicaEstado() override { eventos.push_back("estado " + std::to_string(mdiMenu().WindowState)); }
    void GuardaLugar() override {}
    void DescarregaOutras() override {}
    std::vector<std::string> eventos;
    bool visivel = false, mostraFalha = false;
};

// The tips are shown among the frame's own events.
struct PedidosDaTela : PedidosRoteiro {
    explicit PedidosDaTela(TelaMenuRoteiro& t) : tela(t) {}
    void MostraDicas() override { tela.eventos.push_back("dica"); }
    TelaMenuRoteiro& tela;
};

class ShellInicio : public ::testing::Test {
  protected:
    void SetUp() override {
        setenv("XDG_CONFIG_HOME", (pasta / "config").c_str(), 1);
        setenv("XDG_DATA_HOME", (pasta / "share").c_str(), 1);
        std::filesystem::create_directories(pasta / "bin");
        PastaExecutavel() = pasta / "bin";
        // The folders as the entry sets them, for the settings a test stores first.
        DefinePastas(pasta / "bin");
        DefinePastasRegistro(pasta / "config/Tramelo", pasta / "bin");
        CarregaCatalogo();
        Limpa();
        FilesMRU() = {};
        mdiMenu() = MdiMenu{};
        ambiente().sistema = &sistema;
        telaMenu() = &tela;
        pedidosDesktop() = &pedidos;
    }
    void TearDown() override {
        Limpa();
        mdiMenu() = MdiMenu{};
        telaMenu() = nullptr;
        pedidosDesktop() = nullptr;
        ambiente().sistema = nullptr;
        PastaExecutavel().clear();
        LinhaComando().clear();
        modBase().ArquivoInicial.clear();
        unsetenv("XDG_CONFIG_HOME");
        unsetenv("XDG_DATA_HOME");
    }
    void Limpa() {
        Calculos().clear();
        filhoAtivo() = {};
        ContadorCalculos() = 0;
        caixas.mostradas.clear();
        tela.eventos.clear();
    }
    // A calculation file, in a folder with a blank in its name.
    std::string Exemplo() {
        std::filesystem::create_directories(pasta / "meus cálculos");
        const std::string destino = pasta / "meus cálculos/água 1.trl";
        std::filesystem::copy_file(std::string(TRAMELO_EXEMPLOS) + "/agua.trl", destino,
                                   std::filesystem::copy_options::overwrite_existing);
        return destino;
    }
    bool Houve(const std::string& evento) const {
        return std::find(tela.eventos.begin(), tela.eventos.end(), evento) != tela.eventos.end();
    }

    PastaTemporaria pasta;
    CaixasRoteiro caixas;
    TelaMenuRoteiro tela;
    PedidosDaTela pedidos{tela};
    SistemaRoteiroExecuta sistema;
};

TEST(ShellEntrada, LinhaDeComandoParaArquivoInicial) {
    const struct {
        const char* linha;
        std::optional<std::string> arquivo; // none: failure 5
    } casos[] = {
        {"", ""},
        {"/A /home/ana/Saves/a.trl", "/home/ana/Saves/a.trl"},
        {"/C /home/ana/Saves/a.trl", "/home/ana/Saves/a.trl"},
        {"/a /home/ana/a.trl", "/a /home/ana/a.trl"}, // the test is case-sensitive
        {"/Ax.trl", ".trl"},                         // any separator character is dropped
        {"/A \"/tmp/a b.trl\"", "\"/tmp/a b.trl\""}, // quotes stay
        {"/A ", ""},
        {"/Aé/x.trl", "/x.trl"}, // characters, not bytes
        {"/A", std::nullopt},
        {"/C", std::nullopt},
        {"/P /tmp/a.trl", "/P /tmp/a.trl"}, // only the second start's command knows "/P"
    };
    for (const auto& c : casos) {
        SCOPED_TRACE(c.linha);
        LinhaComando() = c.linha;
        modBase().ArquivoInicial = "antes";
        try {
            LeLinhaComando();
            EXPECT_EQ(modBase().ArquivoInicial, c.arquivo.value_or("sem falha?"));
        } catch (const Falha& f) {
            EXPECT_FALSE(c.arquivo);
            EXPECT_EQ(f.numero(), 5);
        }
    }
    LinhaComando().clear();
    modBase().ArquivoInicial.clear();
}

TEST_F(ShellInicio, OQueAbreAoFimDaPartida) {
    struct Caso {
        const char* nome;
        const char* dicas; // nullptr: absent
        std::string linha;
        bool dica;
        const char* calculo; // caption of the calculation opened, or ""; a file's is its name
        bool naoEncontrado;
    };
    const std::string arquivo = Exemplo();
    const Caso casos[] = {
        {"dicas desligadas", "0", "", false, "Cálculo 1", false},
        {"dicas ligadas", "1", "", true, "", false},
        {"arquivo, dicas ligadas", nullptr, "/A " + arquivo, false, "água 1.trl", false},
        {"arquivo, dicas desligadas", "0", arquivo, false, "água 1.trl", false},
        // No failure of the bring-up: the box, and neither tip nor calculation.
        {"arquivo inexistente", nullptr, pasta / "não há.trl", false, "", true},
    };
    for (const Caso& c : casos) {
        SCOPED_TRACE(c.nome);
        std::filesystem::remove_all(pasta / "config");
        if (c.dicas) GravaConfig("Config", "DicasIniciar", c.dicas);
        Limpa();
        LinhaComando() = c.linha;

        Main();

        EXPECT_TRUE(Houve("dica") == c.dica && tela.eventos.back() == (c.dica ? "dica" : "menu mostrado"));
        ASSERT_EQ(Calculos().size(), *c.calculo ? 1u : 0u);
        EXPECT_EQ(*c.calculo ? Calculos()[0]->Caption : "", c.calculo);
        ASSERT_EQ(caixas.mostradas.size(), c.naoEncontrado ? 1u : 0u);
        const std::string caixa = c.naoEncontrado ? caixas.mostradas[0].texto + "|" + caixas.mostradas[0].titulo : "";
        EXPECT_EQ(caixa, c.naoEncontrado ? "Arquivo não encontrado|" + c.linha : "");
    }
}

TEST_F(ShellInicio, ComandoDeUmaSegundaPartida) {
    const std::string arquivo = Exemplo();
    struct Caso {
        const char* nome;
        int estado, anterior;
        std::string comando;
        bool mostraFalha;
        int estadoDepois;
        std::string arquivoInicial;
        bool abre, naoEncontrado;
    };
    const Caso casos[] = {
        {"minimizada com arquivo", 1, 2, "/P " + arquivo, false, 2, arquivo, true, false},
        {"normal, sem arquivo", 0, 0, "/P ", false, 0, "", false, false},
        {"/A não é lido de novo", 0, 0, "/P /A " + arquivo, false, 0, "/A " + arquivo, false, true},
        {"sem /P: o nome como está", 1, 2, arquivo, false, 1, arquivo, true, false},
        {"janela que não se mostra", 0, 0, "/P " + arquivo, true, 0, arquivo, false, false},
    };
    for (const Caso& c : casos) {
        SCOPED_TRACE(c.nome);
        Limpa();
        tela.visivel = false;
        tela.mostraFalha = c.mostraFalha;
        mdiMenu().WindowState = c.estado;
        mdiMenu().EstadoAnterior = c.anterior;

        MdiMenu_LinkExecute(c.comando);

        EXPECT_EQ(mdiMenu().WindowState, c.estadoDepois);
        EXPECT_EQ(Houve("estado 2"), c.estado == 1 && c.estadoDepois == 2);
        EXPECT_EQ(modBase().ArquivoInicial, c.arquivoInicial);
        EXPECT_EQ(Houve("menu mostrado"), !c.mostraFalha);
        EXPECT_EQ(Calculos().size(), c.abre ? 1u : 0u);
        EXPECT_EQ(caixas.mostradas.size(), c.naoEncontrado ? 1u : 0u);
        EXPECT_EQ(c.naoEncontrado ? caixas.mostradas[0].titulo : "", c.naoEncontrado ? "/A " + arquivo : "");
    }
}

TEST_F(ShellInicio, MenuCarregadoEDescarregadoComAsConfiguracoes) {
    MdiMenu& m = mdiMenu();
    EXPECT_FALSE(m.tbPadrao.Botao("Salvar")->Enabled); // no calculation open yet
    GravaConfig("Config", "Barra1", "False");
    GravaConfig("Config", "Barra2", "false"); // only the exact text hides
    GravaConfig("Config\\Menu", "MainLeft", "0");
    GravaConfig("Config\\Menu", "MainTop", "900");
    GravaConfig("FilesMRU", " 1", "/x/a.trl");
    MdiMenu_Load();
    EXPECT_TRUE(!m.cobBarra.Bands(2).Visible && m.mnuExibirEtiqueta.Checked && FilesMRU()[0] == "/x/a.trl");
    EXPECT_EQ(std::pair(m.Left, m.Top), std::pair(60, 900)); // 0 isn't restored
    m.WindowState = 2;
    m.Left = 1500;
    MdiMenu_Unload();
    EXPECT_EQ(LeConfig("Config", "Barra1") + LeConfig("Config", "Barra0"), "FalseTrue");
    EXPECT_EQ(LeConfig("Config\\Menu", "MainWindowsState") + LeConfig("Config\\Menu", "MainLeft"), "21500");
    // The last band shown goes, and the whole bar with it; "Exportar" with no
    // report open does nothing, "Sair" asks the program to end.
    mnuExibirBarraPadrao_Click();
    EXPECT_FALSE(m.cobBarra.Visible || m.cobBarra.Bands(1).Visible || m.mnuExibirBarraPadrao.Checked);
    pedidos.pedidos.clear();
    tbCalculo_ButtonClick("Exportar");
    tbPadrao_ButtonClick("Sair");
    EXPECT_EQ(pedidos.pedidos, "sai");
}

TEST_F(ShellInicio, DicaDoDia) {
    mdiMenu().Width = 12000;
    mdiMenu().Height = 9000;
    // The tips box 400 by 240 pixels at 100, 80 in the frame's window: centred
    // in the client area, (12000 - 6000 - 15 * 100) / 2 by (9000 - 3600 - 15 * 80) / 2.
    const LugarDica lugar{{0, 0, 800, 600}, {100, 80, 500, 320}, 15};
    FrmDica sem;
    Form_Load(sem, lugar);
    EXPECT_EQ(std::pair(sem.Left, sem.Top), std::pair(2250, 2100));
    // Drawn at random unless a source is given; the box ticked; the message.
    EXPECT_TRUE(sem.Rnd && sem.chkDicasIniciar.Value && sem.lblTipText.starts_with("Este arquivo 'DicaDoDia.txt' não foi"));
    // Three tips, drawn by the random number; "Nova Dica" draws again. A data
    // folder of an installed copy without them leaves them beside the program.
    GravaBytes(pasta / "bin/DicaDoDia.txt", "um\r\ndois\r\ntres\r\n");
    std::filesystem::create_directories(pasta / "share/tramelo");
    GravaConfig("Config", "DicasIniciar", "0");
    FrmDica f;
    double sorte = 0.5;
    f.Rnd = [&] { return sorte; };
    Form_Load(f, lugar);
    EXPECT_TRUE(f.lblTipText == "dois" && !f.chkDicasIniciar.Value);
    sorte = 0.99;
    cmdNextTip_Click(f);
    EXPECT_EQ(f.lblTipText, "tres");
    f.chkDicasIniciar.Value = true;
    chkDicasIniciar_Click(f);
    EXPECT_EQ(LeConfig("Config", "DicasIniciar"), "1");
}

// The manual in the desktop's browser, beside a build's executable or in an
// installed data folder; without it, the box there always was.
TEST_F(ShellInicio, AjudaAbreOManualOuDizQueNaoHa) {
    mdiMenu().Caption = "Tramelo";
    mnuAjudaConteudo_Click();
    mnuAjudaComoUsar_Click();
    ASSERT_EQ(caixas.mostradas.size(), 2u);
    for (const CaixaMostrada& c : caixas.mostradas)
        EXPECT_TRUE(c.titulo == "Tramelo" && c.estilo == vbInformation &&
                    c.texto == "Não foi possivel exibir o arquivo da ajuda. Não há nenhum arquivo "
                               "de Ajuda associado à este projeto.");
    EXPECT_TRUE(sistema.abertos.empty());

    caixas.mostradas.clear();
    const std::string programa = pasta / "meu programa #2";
    std::filesystem::create_directories(programa + "/manual");
    GravaBytes(programa + "/manual/index.html", "<html></html>");
    PastaExecutavel() = programa;
    mnuAjudaConteudo_Click();
    mnuAjudaComoUsar_Click();
    std::filesystem::create_directories(pasta / "usr/bin");
    std::filesystem::create_directories(pasta / "usr/share/tramelo/manual");
    GravaBytes(pasta / "usr/share/tramelo/manual/index.html", "<html></html>");
    PastaExecutavel() = pasta / "usr/bin";
    mnuAjudaConteudo_Click();
    const std::string raiz = "file://" + pasta.str();
    EXPECT_EQ(sistema.abertos, (std::vector<std::string>{
                                   raiz + "/meu%20programa%20%232/manual/index.html",
                                   raiz + "/meu%20programa%20%232/manual/index.html#como-usar",
                                   raiz + "/usr/share/tramelo/manual/index.html"}));
    EXPECT_TRUE(caixas.mostradas.empty());
}

TEST(ShellSobre, DicaESublinhadoDosLinks) {
    FrmAbertura splash; // its clock starts with it
    FrmAbertura_Load(splash);
    EXPECT_TRUE(splash.tmrLogin.Enabled);
    FrmSobre f;
    FrmSobre_Load(f);
    // The site's tip is on the pointer box moved over the site's link.
    EXPECT_EQ(f.picPosLink[1].ToolTipText, "Clique aqui para entrar no site");
    EXPECT_EQ(f.picPosLink[1].Top, f.lblLink[1].Top);
    // Underlined while the pointer is strictly inside a link's box.
    const std::array<Retangulo, 2> caixas{Retangulo{10, 20, 110, 40}, Retangulo{10, 50, 110, 70}};
    const struct {
        Ponto cursor;
        bool link0, link1;
    } casos[] = {{{60, 30}, true, false},   {{60, 60}, false, true},  {{10, 30}, false, false},
                 {{110, 60}, false, false}, {{60, 20}, false, false}, {{60, 70}, false, false}};
    for (const auto& c : casos) {
        tmrSublinha_Timer(f, c.cursor, caixas);
        EXPECT_EQ(std::pair(f.lblLink[0].Underline, f.lblLink[1].Underline), std::pair(c.link0, c.link1))
            << c.cursor.x << "," << c.cursor.y;
    }
}

} // namespace
} // namespace tramelo::teste
