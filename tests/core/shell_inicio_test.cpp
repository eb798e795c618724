// The first instance from its entry to what it opens, and a second start's
// command reaching it.
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
    void GuardaLugar() override { eventos.push_back("lugar guardado"); }
    void DescarregaOutras() override { eventos.push_back("outras descarregadas"); }
    Registro& eventos;
    bool visivel = false, mostraFalha = false;
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
    Registro eventos;
    TelaAberturaRoteiro abertura{eventos};
    TelaMenuRoteiro tela{eventos};
    LigacaoRoteiro ligacao{eventos};
};

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

} // namespace
} // namespace tramelo::teste
