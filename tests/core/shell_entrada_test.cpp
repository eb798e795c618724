// The program's entry: the command line, and a second start handing its
// line over to the running instance and ending without a trace.
#include "pasta_temporaria.h"

#include "plataforma/ambiente.h"
#include "plataforma/falha.h"
#include "shell/abertura.h"
#include "shell/entrada.h"
#include "shell/mod_base.h"
#include "shell/registro.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <optional>
#include <vector>

namespace tramelo::teste {
namespace {

TEST(ShellEntrada, LinhaDeComandoParaArquivoInicial) {
    struct Caso {
        const char* linha;
        std::optional<std::string> arquivo; // none: failure 5
    };
    const Caso casos[] = {
        {"", ""},
        {"/A /home/ana/Saves/a.trl", "/home/ana/Saves/a.trl"},
        {"/C /home/ana/Saves/a.trl", "/home/ana/Saves/a.trl"},
        {"/A /home/ana/meus cálculos/placa 1.trl", "/home/ana/meus cálculos/placa 1.trl"},
        {"/a /home/ana/a.trl", "/a /home/ana/a.trl"}, // the test is case-sensitive
        {"/c x.trl", "/c x.trl"},
        {"/Ax.trl", ".trl"},                         // any separator character is dropped
        {"/A \"/tmp/a b.trl\"", "\"/tmp/a b.trl\""}, // quotes stay
        {"/tmp/a b.trl", "/tmp/a b.trl"},
        {"/A ", ""},
        {"/Aé/x.trl", "/x.trl"}, // characters, not bytes
        {"/A", std::nullopt},
        {"/C", std::nullopt},
        {"/P /tmp/a.trl", "/P /tmp/a.trl"}, // only the second start's command knows "/P"
    };
    for (const Caso& c : casos) {
        SCOPED_TRACE(c.linha);
        LinhaComando() = c.linha;
        modBase().ArquivoInicial = "antes";
        if (c.arquivo) {
            LeLinhaComando();
            EXPECT_EQ(modBase().ArquivoInicial, *c.arquivo);
        } else {
            try {
                LeLinhaComando();
                ADD_FAILURE() << "no failure";
            } catch (const Falha& f) {
                EXPECT_EQ(f.numero(), 5);
            }
        }
    }
    LinhaComando().clear();
    modBase().ArquivoInicial.clear();
}

TEST(ShellEntrada, ArgumentosJuntosPorUmBranco) {
    struct Caso {
        std::vector<const char*> argv;
        const char* linha;
    };
    const Caso casos[] = {
        {{"/usr/bin/Tramelo"}, ""},
        {{"/usr/bin/Tramelo", "/home/ana/a b.trl"}, "/home/ana/a b.trl"},
        {{"Tramelo", "/A", "/home/ana/a.trl"}, "/A /home/ana/a.trl"},
        {{"Tramelo", "/home/ana/meus", "cálculos/a.trl"}, "/home/ana/meus cálculos/a.trl"},
        {{"Tramelo", "", "x"}, " x"},
    };
    for (const Caso& c : casos)
        EXPECT_EQ(JuntaArgumentos(static_cast<int>(c.argv.size()), c.argv.data()), c.linha);

    const char* argv[] = {"Tramelo", "/C", "/tmp/x.trl"};
    DefineLinhaComando(3, argv);
    EXPECT_EQ(LinhaComando(), "/C /tmp/x.trl");
    EXPECT_TRUE(std::filesystem::path(PastaExecutavel()).is_absolute());
    EXPECT_TRUE(std::filesystem::is_directory(PastaExecutavel()));
    EXPECT_NE(PastaExecutavel().back(), '/');
    LinhaComando().clear();
}

// Counts the runs of the event loop.
class SistemaContador : public Sistema {
  public:
    SistemaContador() : anterior_(ambiente().sistema) { ambiente().sistema = this; }
    ~SistemaContador() override { ambiente().sistema = anterior_; }
    void DoEvents() override { ++eventos; }
    void MousePointer(int) override {}
    bool Abre(const std::string&) override { return false; }
    int eventos = 0;

  private:
    Sistema* anterior_;
};

// The running instance as the second start sees it.
class LigacaoRoteiro : public LigacaoInstancias {
  public:
    explicit LigacaoRoteiro(const SistemaContador& s) : sistema(s) {}
    bool OutraInstancia() override { return outra; }
    bool Conecta(const std::string& servicoTopico) override {
        conexoes.push_back(servicoTopico);
        if (lancaAoConectar) throw Falha(282);
        return static_cast<int>(conexoes.size()) > falhas;
    }
    bool Envia(const std::string& comando, int tempoLimite) override {
        enviados.push_back(comando);
        limite = tempoLimite;
        eventosAntesDoEnvio = sistema.eventos;
        if (lancaAoEnviar) throw Falha(286);
        return true;
    }
    void Atende(const std::string& servicoTopico,
                std::function<void(const std::string&)>) override {
        atendido = servicoTopico;
    }

    const SistemaContador& sistema;
    bool outra = true;
    int falhas = 0; // Conecta fails this many times first
    bool lancaAoConectar = false, lancaAoEnviar = false;
    std::vector<std::string> conexoes, enviados;
    std::string atendido;
    int limite = 0, eventosAntesDoEnvio = -1;
};

class ShellSegundaInstancia : public ::testing::Test {
  protected:
    void SetUp() override {
        setenv("XDG_CONFIG_HOME", (pasta / "config").c_str(), 1);
        setenv("XDG_DATA_HOME", (pasta / "share").c_str(), 1);
        DefinePastasRegistro(pasta / "usuario", pasta / "dados");
        PastaExecutavel() = pasta.str();
        ligacaoInstancias() = &ligacao;
        EncerraProcesso = [this] { ++encerrado; };
        modBase() = ModBase{};
        frmAbertura() = FrmAbertura{};
    }
    void TearDown() override {
        ligacaoInstancias() = nullptr;
        EncerraProcesso = nullptr;
        TituloAplicacao() = "Tramelo";
        LinhaComando().clear();
        unsetenv("XDG_CONFIG_HOME");
        unsetenv("XDG_DATA_HOME");
    }

    PastaTemporaria pasta;
    SistemaContador sistema;
    LigacaoRoteiro ligacao{sistema};
    int encerrado = 0;
};

TEST_F(ShellSegundaInstancia, EntregaALinhaEEncerra) {
    struct Caso {
        const char* linha;
        int falhas;
        bool lancaAoConectar, lancaAoEnviar;
        size_t tentativas;
        int eventosAntesDoEnvio;
        const char* comando;
    };
    const Caso casos[] = {
        {"", 0, false, false, 1, 10, "/P "},
        {"/home/ana/a b.trl", 0, false, false, 1, 10, "/P /home/ana/a b.trl"},
        {"/A /home/ana/a.trl", 3, false, false, 4, 13, "/P /A /home/ana/a.trl"},
        // No partner ever answers: 20 attempts, and the command goes anyway.
        {"x.trl", 1000, false, false, 20, 30, "/P x.trl"},
        {"x.trl", 0, true, true, 20, 30, "/P x.trl"},
    };
    for (const Caso& c : casos) {
        SCOPED_TRACE(c.comando);
        LinhaComando() = c.linha;
        TituloAplicacao() = "Tramelo";
        sistema.eventos = 0;
        encerrado = 0;
        ligacao.conexoes.clear();
        ligacao.enviados.clear();
        ligacao.falhas = c.falhas;
        ligacao.lancaAoConectar = c.lancaAoConectar;
        ligacao.lancaAoEnviar = c.lancaAoEnviar;

        Main();

        ASSERT_EQ(ligacao.conexoes.size(), c.tentativas);
        EXPECT_EQ(ligacao.conexoes.front(), "Tramelo|Menu"); // the title before the change
        EXPECT_EQ(ligacao.eventosAntesDoEnvio, c.eventosAntesDoEnvio);
        ASSERT_EQ(ligacao.enviados.size(), 1u);
        EXPECT_EQ(ligacao.enviados[0], c.comando);
        EXPECT_EQ(ligacao.limite, 100);
        EXPECT_EQ(encerrado, 1);
        EXPECT_EQ(TituloAplicacao(), "Instancia anterior");
    }
    // Loaded for its link, never shown; nothing read or written, no folder set.
    EXPECT_TRUE(frmAbertura().Carregado);
    EXPECT_EQ(modBase().PastaSaves, "");
    EXPECT_EQ(ligacao.atendido, "");
    EXPECT_TRUE(std::filesystem::is_empty(pasta.str()));
}

} // namespace
} // namespace tramelo::teste
