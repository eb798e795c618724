// The first instance from its entry to its running state, a second start's
// command, the way down, and the splash and about records.
#include "caixas_roteiro.h"
#include "dialogos_roteiro.h"
#include "pasta_temporaria.h"

#include "document/ciclo.h"
#include "document/frm_calc_tramelo.h"
#include "document/janelas.h"
#include "plataforma/canal.h"
#include "shell/abertura.h"
#include "shell/associacao.h"
#include "shell/barras.h"
#include "shell/entrada.h"
#include "shell/inicio.h"
#include "shell/mdi_menu.h"
#include "shell/mod_base.h"
#include "shell/recentes.h"
#include "shell/registro.h"
#include "sizing/catalogo.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

namespace tramelo::teste {
namespace {

using Registro = std::vector<std::string>;

class TelaAberturaRoteiro : public TelaAbertura {
  public:
    explicit TelaAberturaRoteiro(Registro& r) : eventos(r) {}
    void Carregada(FrmAbertura&) override { eventos.push_back("splash carregado"); }
    void MostraModal(FrmAbertura& f) override {
        eventos.push_back("splash modal");
        if (duranteOSplash) duranteOSplash();
        tmrLogin_Timer(f); // its time is up
    }
    void Descarregada(FrmAbertura&) override { eventos.push_back("splash descarregado"); }
    Registro& eventos;
    std::function<void()> duranteOSplash;
};

struct Lugar {
    int Left, Top, Width, Height;
    bool minimizada, maximizada; // as the desktop reports them
};

class TelaMenuRoteiro : public TelaMenu {
  public:
    explicit TelaMenuRoteiro(Registro& r) : eventos(r) {}
    void Carrega() override { eventos.push_back("menu carregado"); }
    void Mostra() override {
        if (mostraFalha) throw Falha(5);
        eventos.push_back("menu mostrado");
        visivel = true;
    }
    bool Visivel() override { return visivel; }
    void AplicaEstado() override {
        eventos.push_back("estado " + std::to_string(mdiMenu().WindowState));
    }
    void GuardaLugar() override {
        MdiMenu& m = mdiMenu();
        m.Left = lugar.Left;
        m.Top = lugar.Top;
        m.Width = lugar.Width;
        m.Height = lugar.Height;
        m.WindowState = EstadoDaJanela(lugar.minimizada, lugar.maximizada);
        eventos.push_back("lugar guardado");
    }
    void DescarregaOutras() override { eventos.push_back("outras descarregadas"); }
    Registro& eventos;
    bool visivel = false, mostraFalha = false;
    Lugar lugar{60, 630, 6495, 5730, false, false};
};

class LigacaoRoteiro : public LigacaoInstancias {
  public:
    explicit LigacaoRoteiro(Registro& r) : eventos(r) {}
    bool OutraInstancia() override { return false; }
    bool Conecta(const std::string&) override { return false; }
    bool Envia(const std::string&, int) override { return false; }
    void Atende(const std::string& servicoTopico,
                std::function<void(const std::string&)> r) override {
        eventos.push_back("atende " + servicoTopico);
        recebe = std::move(r);
    }
    Registro& eventos;
    std::function<void(const std::string&)> recebe;
};

class SistemaRoteiro : public Sistema {
  public:
    SistemaRoteiro() : anterior_(ambiente().sistema) { ambiente().sistema = this; }
    ~SistemaRoteiro() override { ambiente().sistema = anterior_; }
    void DoEvents() override {}
    void MousePointer(int forma) override { ponteiro = forma; }
    bool Abre(const std::string& c) override {
        abertos.push_back(c);
        return abre;
    }
    std::vector<std::string> abertos;
    int ponteiro = -1;
    bool abre = true;

  private:
    Sistema* anterior_;
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
        ContadorCalculos() = 0;
        Calculos().clear();
        filhoAtivo() = {};
        FilesMRU() = {};
        mdiMenu() = MdiMenu{};
        modBase().ArquivoInicial.clear();
        frmAbertura() = FrmAbertura{};
        LinhaComando().clear();
        canal1().Reinicia();
        ExecutaFerramenta = [](const std::string&, const std::vector<std::string>&) {};
        telaMenu() = &tela;
        telaAbertura() = &abertura;
        ligacaoInstancias() = &ligacao;
        MostraDicas = [this] { eventos.push_back("dica"); };
    }
    void TearDown() override {
        Calculos().clear();
        filhoAtivo() = {};
        mdiMenu() = MdiMenu{};
        telaMenu() = nullptr;
        telaAbertura() = nullptr;
        ligacaoInstancias() = nullptr;
        MostraDicas = nullptr;
        ExecutaFerramenta = nullptr;
        PastaExecutavel().clear();
        LinhaComando().clear();
        unsetenv("XDG_CONFIG_HOME");
        unsetenv("XDG_DATA_HOME");
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
        return std::find(eventos.begin(), eventos.end(), evento) != eventos.end();
    }

    PastaTemporaria pasta;
    CaixasRoteiro caixas;
    DialogosRoteiro dialogos;
    SistemaRoteiro sistema;
    Registro eventos;
    TelaAberturaRoteiro abertura{eventos};
    TelaMenuRoteiro tela{eventos};
    LigacaoRoteiro ligacao{eventos};
};

TEST_F(ShellInicio, PrimeiraPartidaSemNadaGuardado) {
    Main();
    EXPECT_EQ(eventos, (Registro{"splash carregado", "menu carregado", "atende Tramelo|Menu",
                                 "splash modal", "splash descarregado", "menu mostrado", "dica"}));
    EXPECT_TRUE(Calculos().empty());
    EXPECT_TRUE(caixas.mostradas.empty());
    EXPECT_FALSE(frmAbertura().tmrLogin.Enabled);
    EXPECT_EQ(mdiMenu().Left, 60); // the design place
    EXPECT_EQ(mdiMenu().WindowState, 0);
    EXPECT_EQ(mdiMenu().Caption, "Tramelo");
    // Folders named, none made; the association claimed on the way.
    EXPECT_EQ(modBase().PastaSaves, pasta / "bin/Saves");
    EXPECT_EQ(modBase().PastaRelatorios, pasta / "bin/Relatorios");
    EXPECT_FALSE(std::filesystem::exists(pasta / "bin/Saves"));
    EXPECT_EQ(LeChave(HKEY_CLASSES_ROOT, ".trl", ""), "Tramelo.File");
    EXPECT_TRUE(std::filesystem::exists(pasta / "share/applications/Tramelo.desktop"));
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
        {"valor vazio", "", "", true, "", false},
        {"arquivo, dicas ligadas", nullptr, "/A " + arquivo, false, "água 1.trl", false},
        {"arquivo, dicas desligadas", "0", arquivo, false, "água 1.trl", false},
        // No failure of the bring-up: the box, and neither tip nor calculation.
        {"arquivo inexistente", nullptr, pasta / "não há.trl", false, "", true},
    };
    for (const Caso& c : casos) {
        SCOPED_TRACE(c.nome);
        std::filesystem::remove_all(pasta / "config");
        if (c.dicas) GravaConfig("Config", "DicasIniciar", c.dicas);
        Calculos().clear();
        filhoAtivo() = {};
        ContadorCalculos() = 0;
        caixas.mostradas.clear();
        eventos.clear();
        LinhaComando() = c.linha;

        Main();

        EXPECT_EQ(Houve("dica"), c.dica);
        EXPECT_EQ(eventos.back(), c.dica ? "dica" : "menu mostrado");
        if (*c.calculo) {
            ASSERT_EQ(Calculos().size(), 1u);
            EXPECT_EQ(Calculos()[0]->Caption, c.calculo);
        } else {
            EXPECT_TRUE(Calculos().empty());
        }
        ASSERT_EQ(caixas.mostradas.size(), c.naoEncontrado ? 1u : 0u);
        if (c.naoEncontrado) {
            EXPECT_EQ(caixas.mostradas[0].texto, "Arquivo não encontrado");
            EXPECT_EQ(caixas.mostradas[0].titulo, c.linha);
        }
    }
}

TEST_F(ShellInicio, PrefixoSemNomeFalhaNaPartida) {
    for (const char* linha : {"/A", "/C"}) {
        SCOPED_TRACE(linha);
        std::filesystem::remove_all(pasta / "bin");
        std::filesystem::create_directories(pasta / "bin");
        caixas.mostradas.clear();
        eventos.clear();
        LinhaComando() = linha;

        Main();

        ASSERT_EQ(caixas.mostradas.size(), 1u);
        EXPECT_EQ(caixas.mostradas[0].titulo, "Informação de Erro Código :5");
        // The frame comes up with nothing opened, and the steps after the
        // failure, the association among them, never ran.
        EXPECT_EQ(eventos, (Registro{"splash carregado", "menu carregado", "atende Tramelo|Menu",
                                     "splash modal", "splash descarregado", "menu mostrado"}));
        EXPECT_TRUE(Calculos().empty());
        EXPECT_EQ(LeChave(HKEY_CLASSES_ROOT, ".trl", ""), "");
    }
}

TEST_F(ShellInicio, ComandoQueChegaDuranteOSplash) {
    const std::string arquivo = Exemplo();
    abertura.duranteOSplash = [&] { ligacao.recebe("/P " + arquivo); };
    Main();
    // The frame shows early and the file opens at once; the own command line
    // (empty) then takes the shared slot, so the tip comes up as well.
    EXPECT_EQ(eventos,
              (Registro{"splash carregado", "menu carregado", "atende Tramelo|Menu", "splash modal",
                        "menu mostrado", "splash descarregado", "menu mostrado", "dica"}));
    ASSERT_EQ(Calculos().size(), 1u);
    EXPECT_EQ(Calculos()[0]->Caption, "água 1.trl");
    EXPECT_EQ(FilesMRU()[0], arquivo);
    EXPECT_EQ(modBase().ArquivoInicial, "");
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
        bool abre;
        bool naoEncontrado;
    };
    const Caso casos[] = {
        {"minimizada com arquivo", 1, 2, "/P " + arquivo, false, 2, arquivo, true, false},
        {"normal, sem arquivo", 0, 0, "/P ", false, 0, "", false, false},
        {"só /P", 1, 0, "/P", false, 0, "", false, false},
        {"/A não é lido de novo", 0, 0, "/P /A " + arquivo, false, 0, "/A " + arquivo, false, true},
        {"sem /P: o nome como está", 1, 2, arquivo, false, 1, arquivo, true, false},
        {"janela que não se mostra", 0, 0, "/P " + arquivo, true, 0, arquivo, false, false},
    };
    for (const Caso& c : casos) {
        SCOPED_TRACE(c.nome);
        Calculos().clear();
        filhoAtivo() = {};
        caixas.mostradas.clear();
        eventos.clear();
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
        if (c.naoEncontrado) {
            EXPECT_EQ(caixas.mostradas[0].texto, "Arquivo não encontrado");
            EXPECT_EQ(caixas.mostradas[0].titulo, "/A " + arquivo);
        }
    }
}

TEST_F(ShellInicio, EstadoAnteriorNoRedimensionamento) {
    struct Passo {
        int estado, anterior;
    };
    const Passo passos[] = {{2, 2}, {1, 2}, {0, 0}, {1, 0}, {1, 0}, {2, 2}};
    for (const Passo& p : passos) {
        mdiMenu().WindowState = p.estado;
        MdiMenu_Resize();
        EXPECT_EQ(mdiMenu().EstadoAnterior, p.anterior);
    }
}

TEST_F(ShellInicio, SaidaGuardaBarrasEstadoELugar) {
    struct Caso {
        bool minimizada, maximizada;
        const char* guardado;
    };
    // Minimized from maximized is both at once: stored as minimized.
    for (const Caso& c : {Caso{false, false, "0"}, Caso{true, false, "0"},
                          Caso{false, true, "2"}, Caso{true, true, "0"}}) {
        SCOPED_TRACE(c.guardado);
        std::filesystem::remove_all(pasta / "config");
        mdiMenu() = MdiMenu{};
        MdiMenu_Load();
        mnuExibirEtiqueta_Click(); // labels off
        AdicionaMRU("/home/ana/a.trl");
        AbreCalculo(false, std::string()); // nothing to save: no question
        eventos.clear();
        tela.lugar = {1200, 900, 9000, 6600, c.minimizada, c.maximizada};

        ASSERT_TRUE(FechaPrograma());

        EXPECT_TRUE(Calculos().empty());
        EXPECT_EQ(eventos, (Registro{"lugar guardado", "outras descarregadas"}));
        EXPECT_EQ(LeConfig("Config", "Barra0"), "True");
        EXPECT_EQ(LeConfig("Config", "Barra1"), "True");
        EXPECT_EQ(LeConfig("Config", "Barra2"), "False");
        EXPECT_EQ(LeConfig("Config", "Barra3"), "True");
        EXPECT_EQ(LeConfig("Config\\Menu", "MainWindowsState"), c.guardado);
        EXPECT_EQ(LeConfig("Config\\Menu", "MainLeft"), "1200");
        EXPECT_EQ(LeConfig("Config\\Menu", "MainTop"), "900");
        EXPECT_EQ(LeConfig("Config\\Menu", "MainWidth"), "9000");
        EXPECT_EQ(LeConfig("Config\\Menu", "MainHeight"), "6600");
        EXPECT_EQ(LeConfig("FilesMRU", " 1"), "/home/ana/a.trl");

        // The next start: the normal window's size first, then the state.
        mdiMenu() = MdiMenu{};
        MdiMenu_Load();
        EXPECT_EQ(mdiMenu().Left, 1200);
        EXPECT_EQ(mdiMenu().Height, 6600);
        EXPECT_EQ(mdiMenu().WindowState, c.guardado[0] == '2' ? 2 : 0);
        EXPECT_FALSE(mdiMenu().mnuExibirEtiqueta.Checked);
        EXPECT_TRUE(mdiMenu().mnuExibirStatusBar.Checked);
    }
}

TEST_F(ShellInicio, SaidaCanceladaNumaPergunta) {
    MdiMenu_Load();
    AdicionaMRU("/home/ana/b.trl");
    FrmCalcTramelo& f = *AbreCalculo(false, std::string());
    f.cboTramelo.DefineListIndex(0);
    f.cboFluido.DefineListIndex(0);
    f.cboTomada.DefineListIndex(0);
    f.txtTag.DefineTexto("x");
    caixas.mostradas.clear();
    caixas.respostas = {vbCancel};

    EXPECT_FALSE(FechaPrograma());

    ASSERT_EQ(caixas.mostradas.size(), 1u);
    EXPECT_EQ(caixas.mostradas[0].texto, "Deseja salvar as alterações efetuadas neste Cálculo?");
    EXPECT_EQ(Calculos().size(), 1u);
    EXPECT_TRUE(eventos.empty());
    // The recent files were stored before the question; bars and place weren't.
    EXPECT_EQ(LeConfig("FilesMRU", " 1"), "/home/ana/b.trl");
    EXPECT_EQ(LeConfig("Config", "Barra0"), "");
    EXPECT_EQ(LeConfig("Config\\Menu", "MainLeft"), "");

    // A session that ends letting nobody ask stores bars and place all the
    // same, asks nothing and unloads nothing.
    tela.lugar = {1200, 900, 9000, 6600, false, true};
    GuardaSessao();
    EXPECT_EQ(caixas.mostradas.size(), 1u);
    EXPECT_EQ(Calculos().size(), 1u);
    EXPECT_EQ(LeConfig("Config", "Barra0"), "True");
    EXPECT_EQ(LeConfig("Config\\Menu", "MainWindowsState"), "2");
    EXPECT_EQ(LeConfig("Config\\Menu", "MainLeft"), "1200");

    caixas.respostas = {vbNo};
    EXPECT_TRUE(FechaPrograma());
    EXPECT_TRUE(Calculos().empty());
    EXPECT_EQ(LeConfig("Config", "Barra0"), "True");
}

TEST_F(ShellInicio, Splash) {
    FrmAbertura f;
    FrmAbertura_Load(f);
    EXPECT_TRUE(f.Carregado);
    EXPECT_EQ(f.lblVersion, "Versão 2.0.1");
    EXPECT_EQ(f.lblProductName[0], "Tramelo");
    EXPECT_EQ(f.lblProductName[1], "Tramelo");
    EXPECT_EQ(f.lblPlatform, "for Linux");
    EXPECT_EQ(f.tmrLogin.Interval, 2000);
    EXPECT_TRUE(f.tmrLogin.Enabled); // counting from the load
    tmrLogin_Timer(f);
    EXPECT_FALSE(f.tmrLogin.Enabled);
    EXPECT_FALSE(f.Carregado);
    EXPECT_EQ(eventos, (Registro{"splash carregado", "splash descarregado"}));

    FrmAbertura_LinkExecute("/P x.trl"); // copies, nothing more
    EXPECT_EQ(modBase().ArquivoInicial, "/P x.trl");
}

TEST_F(ShellInicio, Sobre) {
    FrmSobre f;
    EXPECT_FALSE(f.Enabled);
    FrmSobre_Load(f);
    EXPECT_TRUE(f.Enabled);
    EXPECT_EQ(sistema.ponteiro, vbDefault);
    EXPECT_EQ(f.Caption, "Sobre o Tramelo");
    EXPECT_EQ(f.lblTitulo, "Tramelo");
    EXPECT_EQ(f.lblVersao, "Versão 2.0 - Revisão 1");
    EXPECT_EQ(f.lblWindows, "for Linux");
    EXPECT_FALSE(f.lblAviso.empty());
    EXPECT_EQ(f.lblLink[0].Caption, "E-mail: suporte@quillon.com.br");
    EXPECT_EQ(f.picPosLink[1].Top, f.lblLink[1].Top); // the box moved over its link

    // Underlined only strictly inside: the edges don't count.
    const std::array<Retangulo, 2> caixasLink{{{100, 200, 300, 214}, {100, 220, 300, 234}}};
    struct Caso {
        Ponto cursor;
        bool link0, link1;
    };
    const Caso casos[] = {
        {{150, 207}, true, false},  {{150, 227}, false, true},  {{101, 201}, true, false},
        {{100, 207}, false, false}, {{300, 207}, false, false}, {{150, 200}, false, false},
        {{150, 214}, false, false}, {{299, 233}, false, true},  {{0, 0}, false, false},
    };
    for (const Caso& c : casos) {
        tmrSublinha_Timer(f, c.cursor, caixasLink);
        EXPECT_EQ(f.lblLink[0].Underline, c.link0) << c.cursor.x << "," << c.cursor.y;
        EXPECT_EQ(f.lblLink[1].Underline, c.link1) << c.cursor.x << "," << c.cursor.y;
    }

    sistema.abre = false; // a link that opens nothing says nothing
    lblLink_Click(f, 0);
    lblLink_Click(f, 1);
    lblLink_Click(f, 2);
    EXPECT_EQ(sistema.abertos,
              (std::vector<std::string>{"mailto:suporte@quillon.com.br?Subject=Sobre o Tramelo",
                                        "https://www.quillon.com.br"}));
    EXPECT_TRUE(caixas.mostradas.empty());
    cmdOK_Click(f);
    EXPECT_FALSE(f.Carregado);
}

} // namespace
} // namespace tramelo::teste
