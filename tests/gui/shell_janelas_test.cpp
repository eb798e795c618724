// The splash, the about box, the tips and the options as a user meets them.
#include "pasta_temporaria.h"

#include "app/servicos_qt.h"
#include "plataforma/ambiente.h"
#include "plataforma/canal.h"
#include "shell/abertura_view.h"
#include "shell/barras.h"
#include "shell/dicas_view.h"
#include "shell/entrada.h"
#include "shell/opcoes_view.h"
#include "shell/registro.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QCursor>
#include <QDeadlineTimer>
#include <QLabel>
#include <QPageSetupDialog>
#include <QPrinter>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTimer>
#include <QUrl>
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace tramelo::teste {
namespace {

// Opens nothing: keeps what the program asked the desktop to open.
class SistemaRoteiro : public Sistema {
  public:
    SistemaRoteiro() : anterior_(ambiente().sistema) { ambiente().sistema = this; }
    ~SistemaRoteiro() override { ambiente().sistema = anterior_; }
    void DoEvents() override {}
    void MousePointer(int) override {}
    bool Abre(const std::string& caminho) override {
        abertos.push_back(caminho);
        return true;
    }
    std::vector<std::string> abertos;

  private:
    Sistema* anterior_;
};

// Runs events until `pronto` holds; a bound on waiting, not a measure.
bool Espera(const std::function<bool()>& pronto) {
    QDeadlineTimer limite(10000);
    while (!pronto() && !limite.hasExpired())
        QApplication::processEvents(QEventLoop::AllEvents, 20);
    return pronto();
}

// Calls `abre`, which shows a modal dialog of type D, and acts on that
// dialog from inside its loop; the action must close it.
template <typename D>
void NoModal(const std::function<void()>& abre, const std::function<void(D&)>& acao) {
    bool feito = false;
    int voltas = 0;
    QTimer vigia;
    QObject::connect(&vigia, &QTimer::timeout, [&] {
        if (auto* d = qobject_cast<D*>(QApplication::activeModalWidget())) {
            vigia.stop();
            feito = true;
            acao(*d);
            if (d->isVisible()) d->reject(); // an action that failed half-way
        } else if (++voltas > 500) {
            vigia.stop();
        }
    });
    vigia.start(10);
    abre();
    EXPECT_TRUE(feito) << "the dialog never came up";
}

template <typename W> W* Filho(QWidget& pai, const char* nome) {
    W* w = pai.findChild<W*>(QString::fromLatin1(nome));
    EXPECT_NE(w, nullptr) << nome;
    return w;
}

QString Texto(QWidget& pai, const char* nome) {
    QLabel* l = Filho<QLabel>(pai, nome);
    return l ? l->text() : QString();
}

class ShellJanelas : public ::testing::Test {
  protected:
    void SetUp() override {
        qputenv("XDG_CONFIG_HOME", pasta.str().c_str());
        qputenv("XDG_DATA_HOME", pasta.str().c_str());
        DefinePastasRegistro(PastaConfiguracaoUsuario(), pasta.str());
        mdiMenu() = MdiMenu{};
        canal1().Reinicia();
        PastaExecutavel() = pasta.str();
    }
    void TearDown() override {
        if (DicaView* d = DicaAberta()) delete d;
    }

    void Dicas(const std::string& bytes) { GravaBytes(pasta / "DicaDoDia.txt", bytes); }

    PastaTemporaria pasta;
};

// --- Splash -----------------------------------------------------------------

TEST_F(ShellJanelas, AberturaMostraOProgramaEFechaSeAoFimDoIntervalo) {
    AberturaQt tela;
    telaAbertura() = &tela;
    frmAbertura() = FrmAbertura{};
    frmAbertura().tmrLogin.Interval = 50;
    FrmAbertura_Load(frmAbertura());
    ASSERT_NE(tela.janela(), nullptr);
    EXPECT_FALSE(tela.janela()->isVisible()); // loaded hidden

    bool visivel = false;
    QString titulo, sombra, versao, plataforma;
    QPoint deslocamento;
    QTimer::singleShot(0, [&] {
        AberturaView* j = tela.janela();
        if (!j) return;
        visivel = j->isVisible();
        titulo = Texto(*j, "lblProductName(0)");
        sombra = Texto(*j, "lblProductName(1)");
        versao = Texto(*j, "lblVersion");
        plataforma = Texto(*j, "lblPlatform");
        deslocamento = Filho<QLabel>(*j, "lblProductName(1)")->pos() -
                       Filho<QLabel>(*j, "lblProductName(0)")->pos();
    });
    tela.MostraModal(frmAbertura());

    EXPECT_TRUE(visivel);
    EXPECT_EQ(titulo, "Tramelo");
    EXPECT_EQ(sombra, "Tramelo");
    EXPECT_EQ(versao, "Versão 2.0.1");
    EXPECT_EQ(plataforma, "for Linux");
    EXPECT_EQ(deslocamento, QPoint(2, 2)); // the shadow, 30 twips right and below
    // The wait ended because the timer unloaded the splash.
    EXPECT_FALSE(frmAbertura().Carregado);
    EXPECT_FALSE(frmAbertura().tmrLogin.Enabled);
    EXPECT_EQ(tela.janela(), nullptr);
    telaAbertura() = nullptr;
}

TEST_F(ShellJanelas, AberturaContaDesdeACargaENaoDesdeAExibicao) {
    AberturaQt tela;
    telaAbertura() = &tela;
    frmAbertura() = FrmAbertura{};
    frmAbertura().tmrLogin.Interval = 1;
    FrmAbertura_Load(frmAbertura());
    // The start-up's work outlasts the interval before the splash is shown.
    ASSERT_TRUE(Espera([] { return !frmAbertura().Carregado; }));
    bool mostrou = false;
    QTimer::singleShot(0, [&] { mostrou = true; });
    tela.MostraModal(frmAbertura()); // returns at once: no loop ran
    EXPECT_FALSE(mostrou);
    EXPECT_EQ(tela.janela(), nullptr);
    telaAbertura() = nullptr;
}

// --- About box --------------------------------------------------------------

TEST_F(ShellJanelas, SobreMostraVersaoERevisaoModalSobreODono) {
    QWidget dono;
    dono.show();
    NoModal<SobreView>([&] { MostraSobreQt(&dono); },
                       [&](SobreView& s) {
                           EXPECT_EQ(s.parentWidget(), &dono);
                           EXPECT_TRUE(s.isModal());
                           EXPECT_EQ(s.windowTitle(), "Sobre o Tramelo");
                           EXPECT_EQ(Texto(s, "lblTitulo"), "Tramelo");
                           EXPECT_EQ(Texto(s, "lblVersao"), "Versão 2.0 - Revisão 1");
                           EXPECT_EQ(Texto(s, "lblWindows"), "for Linux");
                           EXPECT_EQ(Texto(s, "lblLink(0)"), "E-mail: suporte@quillon.com.br");
                           EXPECT_EQ(Texto(s, "lblLink(1)"),
                                     "Internet: https://www.quillon.com.br");
                           EXPECT_EQ(Filho<QWidget>(s, "picPosLink(0)")->toolTip(),
                                     "Clique aqui para enviar um E-mail");
                           EXPECT_EQ(Filho<QWidget>(s, "picPosLink(1)")->toolTip(),
                                     "Clique aqui para entrar no site");
                           Filho<QPushButton>(s, "cmdOK")->click();
                           EXPECT_FALSE(s.isVisible());
                       });
}

TEST_F(ShellJanelas, SobreAbreCadaLinkPelaSuaCaixa) {
    SistemaRoteiro sistema;
    FrmSobre f;
    FrmSobre_Load(f);
    SobreView s(f);
    s.show();
    QTest::mouseClick(Filho<QWidget>(s, "picPosLink(1)"), Qt::LeftButton);
    QTest::mouseClick(Filho<QWidget>(s, "picPosLink(0)"), Qt::LeftButton);
    EXPECT_EQ(sistema.abertos,
              (std::vector<std::string>{"https://www.quillon.com.br",
                                        "mailto:suporte@quillon.com.br?Subject=Sobre o Tramelo"}));
    // The desktop gets each as an address of its scheme, the mail with its
    // subject; a path stays a local file.
    const QUrl email = EnderecoParaUrl(sistema.abertos.at(1));
    EXPECT_EQ(email.scheme(), "mailto");
    EXPECT_EQ(email.path(), "suporte@quillon.com.br");
    EXPECT_EQ(email.query(QUrl::FullyDecoded), "Subject=Sobre o Tramelo");
    EXPECT_EQ(EnderecoParaUrl(sistema.abertos.at(0)).host(), "www.quillon.com.br");
    EXPECT_TRUE(EnderecoParaUrl("/home/ana/Relatorios").isLocalFile());
}

TEST_F(ShellJanelas, ConfigurarImpressaoEscolheAPaginaDaProximaImpressao) {
    // A page set-up, not a print dialog: what is chosen there stays in the
    // printer that the next print draws on.
    QPrinter& impressora = ImpressoraDoPrograma();
    const QPageLayout antes = impressora.pageLayout();
    DialogosQt dialogos;
    ConfiguraDialogo d;
    d.Flags = cdlPDPrintSetup;
    bool confirmado = false;
    NoModal<QPageSetupDialog>([&] { confirmado = dialogos.ShowPrinter(d); },
                              [](QPageSetupDialog& p) {
                                  EXPECT_EQ(p.windowTitle(), "Configurar impressão");
                                  EXPECT_NE(Filho<QComboBox>(p, "impressora"), nullptr);
                                  auto* paisagem = Filho<QRadioButton>(p, "landscape");
                                  ASSERT_NE(paisagem, nullptr);
                                  paisagem->click();
                                  p.accept();
                              });
    EXPECT_TRUE(confirmado);
    EXPECT_EQ(impressora.pageLayout().orientation(), QPageLayout::Landscape);
    impressora.setPageLayout(antes);
}

TEST_F(ShellJanelas, SobreSublinhaOLinkSoComOPonteiroDentroDaCaixa) {
    FrmSobre f;
    FrmSobre_Load(f);
    SobreView s(f);
    s.show();
    QWidget* caixa0 = Filho<QWidget>(s, "picPosLink(0)");
    QWidget* caixa1 = Filho<QWidget>(s, "picPosLink(1)");
    QLabel* link0 = Filho<QLabel>(s, "lblLink(0)");
    QLabel* link1 = Filho<QLabel>(s, "lblLink(1)");
    auto global = [](QWidget* w, QPoint p) { return w->mapToGlobal(p); };
    struct Caso {
        QPoint ponteiro;
        bool sublinha0, sublinha1;
    };
    const QPoint ultimo0(caixa0->width() - 1, caixa0->height() - 1);
    const Caso casos[] = {
        {global(caixa0, caixa0->rect().center()), true, false},
        {global(caixa1, caixa1->rect().center()), false, true},
        {global(caixa0, QPoint(0, 0)), false, false}, // on the edge
        {global(caixa0, QPoint(0, 5)), false, false}, // on the left edge
        {global(caixa0, ultimo0), true, false},       // last pixel within
        {global(caixa0, ultimo0 + QPoint(1, 0)), false, false},
        {global(caixa0, QPoint(-40, -40)), false, false},
    };
    for (const Caso& c : casos) {
        s.Sublinha(c.ponteiro);
        EXPECT_EQ(link0->font().underline(), c.sublinha0)
            << c.ponteiro.x() << "," << c.ponteiro.y();
        EXPECT_EQ(link1->font().underline(), c.sublinha1)
            << c.ponteiro.x() << "," << c.ponteiro.y();
    }

    // The timer follows the real pointer.
    QCursor::setPos(global(caixa1, caixa1->rect().center()));
    if (QCursor::pos() == global(caixa1, caixa1->rect().center())) {
        EXPECT_TRUE(Espera([&] { return link1->font().underline(); }));
        QCursor::setPos(global(caixa1, QPoint(-40, -40)));
        EXPECT_TRUE(Espera([&] { return !link1->font().underline(); }));
    }
}

// --- Options ----------------------------------------------------------------

void Marca(OpcoesView& o, int i) {
    Filho<QCheckBox>(o, QStringLiteral("chkOpcao(%1)").arg(i).toLatin1().constData())->click();
}
bool Marcada(OpcoesView& o, int i) {
    return Filho<QCheckBox>(o, QStringLiteral("chkOpcao(%1)").arg(i).toLatin1().constData())
        ->isChecked();
}

TEST_F(ShellJanelas, OpcoesOKGravaUmOuZeroPorCaixa) {
    GravaConfig("System", "Associa", "0");
    mdiMenu().mnuExibirStatusBar.Checked = false;
    NoModal<OpcoesView>([] { MostraOpcoesQt(nullptr); },
                        [](OpcoesView& o) {
                            EXPECT_EQ(o.windowTitle(), "Opções");
                            EXPECT_FALSE(Filho<QPushButton>(o, "cmdApply")->isEnabled());
                            const bool marcadas[] = {true, true, true, false, false, true};
                            for (int i = 0; i < 6; ++i)
                                EXPECT_EQ(Marcada(o, i), marcadas[i]) << i;
                            Marca(o, 3);
                            Marca(o, 5);
                            EXPECT_TRUE(Filho<QPushButton>(o, "cmdApply")->isEnabled());
                            Filho<QPushButton>(o, "cmdOK")->click();
                            EXPECT_FALSE(o.isVisible());
                        });
    for (const char* barra : {"Barra0", "Barra1", "Barra2", "Barra3"})
        EXPECT_EQ(LeConfig("Config", barra), "1") << barra;
    EXPECT_EQ(LeConfig("System", "Associa"), "0");
    EXPECT_EQ(LeConfig("Config", "DicasIniciar"), "0");
}

TEST_F(ShellJanelas, OpcoesAplicarGravaEFecharNaoDesfaz) {
    NoModal<OpcoesView>([] { MostraOpcoesQt(nullptr); },
                        [](OpcoesView& o) {
                            auto* aplicar = Filho<QPushButton>(o, "cmdApply");
                            auto* cancelar = Filho<QPushButton>(o, "cmdCancel");
                            EXPECT_EQ(cancelar->text(), "Cancela&r");
                            Marca(o, 0);
                            aplicar->click();
                            EXPECT_EQ(LeConfig("Config", "Barra0"), "0");
                            EXPECT_EQ(LeConfig("System", "Associa"), "1");
                            EXPECT_EQ(LeConfig("Config", "DicasIniciar"), "1");
                            EXPECT_EQ(cancelar->text(), "Fecha&r");
                            EXPECT_FALSE(aplicar->isEnabled());
                            Marca(o, 1);
                            EXPECT_TRUE(aplicar->isEnabled());
                            EXPECT_EQ(cancelar->text(), "Fecha&r");
                            cancelar->click();
                            EXPECT_FALSE(o.isVisible());
                        });
    EXPECT_EQ(LeConfig("Config", "Barra0"), "0"); // the apply stays
    EXPECT_EQ(LeConfig("Config", "Barra1"), "1"); // the later click doesn't
}

TEST_F(ShellJanelas, OpcoesCancelarOuOKSemCliqueNadaGravam) {
    // Esc is Cancel: the unticked boxes aren't stored.
    NoModal<OpcoesView>([] { MostraOpcoesQt(nullptr); },
                        [](OpcoesView& o) {
                            Marca(o, 3);
                            Marca(o, 4);
                            Marca(o, 5);
                            QTest::keyClick(&o, Qt::Key_Escape);
                            EXPECT_FALSE(o.isVisible());
                        });
    // Only the opening's own copy of the frame's ticks is there.
    for (const char* barra : {"Barra0", "Barra1", "Barra2", "Barra3"})
        EXPECT_EQ(LeConfig("Config", barra), "True") << barra;
    EXPECT_EQ(LeConfig("System", "Associa"), "");
    EXPECT_EQ(LeConfig("Config", "DicasIniciar"), "");

    NoModal<OpcoesView>([] { MostraOpcoesQt(nullptr); },
                        [](OpcoesView& o) { Filho<QPushButton>(o, "cmdOK")->click(); });
    EXPECT_EQ(LeConfig("Config", "Barra3"), "True");
    EXPECT_EQ(LeConfig("Config", "DicasIniciar"), "");
}

// --- Tips -------------------------------------------------------------------

TEST_F(ShellJanelas, DicaMostraALinhaDoArquivoEACaixaGravaNaHora) {
    // One tip in the system's 8-bit code page: "&Nova Dica" always shows it.
    Dicas("Use o bot\xe3o \"Calcular\" <depois> de preencher os campos.\r\n");
    MostraDicasQt(nullptr);
    DicaView* d = DicaAberta();
    ASSERT_NE(d, nullptr);
    EXPECT_TRUE(d->isVisible());
    EXPECT_FALSE(d->isModal());
    EXPECT_EQ(d->windowTitle(), "Dica do dia");
    EXPECT_EQ(Texto(*d, "lblVcSabia"), "Você sabia...");
    const QString dica = "Use o botão \"Calcular\" <depois> de preencher os campos.";
    EXPECT_EQ(Texto(*d, "lblTipText"), dica);
    EXPECT_EQ(Filho<QLabel>(*d, "lblTipText")->textFormat(), Qt::PlainText);
    Filho<QPushButton>(*d, "cmdNextTip")->click();
    EXPECT_EQ(Texto(*d, "lblTipText"), dica);

    // Absent "DicasIniciar" ticks the box; each click is stored at once.
    auto* caixa = Filho<QCheckBox>(*d, "chkDicasIniciar");
    EXPECT_EQ(caixa->text(), "&Mostrar dicas ao iniciar");
    EXPECT_TRUE(caixa->isChecked());
    caixa->click();
    EXPECT_EQ(LeConfig("Config", "DicasIniciar"), "0");
    caixa->click();
    EXPECT_EQ(LeConfig("Config", "DicasIniciar"), "1");
    caixa->click();

    // The options dialog, opened next, shows the box as the tip window left it.
    NoModal<OpcoesView>([] { MostraOpcoesQt(nullptr); },
                        [](OpcoesView& o) {
                            EXPECT_FALSE(Marcada(o, 5));
                            o.reject();
                        });
}

TEST_F(ShellJanelas, DicaSemArquivoDizQueNaoFoiEncontrado) {
    MostraDicasQt(nullptr);
    DicaView* d = DicaAberta();
    ASSERT_NE(d, nullptr);
    EXPECT_EQ(Texto(*d, "lblTipText"),
              "Este arquivo 'DicaDoDia.txt' não foi encontrado? \n\n"
              "Verifique se o arquivo não foi movido ou excluído, e reinsta-le o Tramelo");
    Filho<QPushButton>(*d, "cmdNextTip")->click(); // nothing to draw from
    EXPECT_TRUE(Texto(*d, "lblTipText").startsWith("Este arquivo"));
}

TEST_F(ShellJanelas, DicaUmaSoJanelaCentradaSobreODono) {
    Dicas("Primeira dica.\r\nSegunda dica.\r\n");
    QWidget dono;
    dono.setGeometry(100, 80, 800, 600);
    dono.show();
    MostraDicasQt(&dono);
    DicaView* d = DicaAberta();
    ASSERT_NE(d, nullptr);
    // Centred but for the width of the window frames, which the place
    // counts from the client area takes in by halves.
    const int folga = 2 * (dono.geometry().left() - dono.frameGeometry().left()) + 1;
    EXPECT_NEAR(d->frameGeometry().center().x(), dono.frameGeometry().center().x(), folga);
    EXPECT_NEAR(d->frameGeometry().center().y(), dono.frameGeometry().center().y(), folga);

    // A second call brings the same window forward.
    MostraDicasQt(&dono);
    EXPECT_EQ(DicaAberta(), d);
    int abertas = 0;
    for (QWidget* w : QApplication::topLevelWidgets())
        if (qobject_cast<DicaView*>(w) && w->isVisible()) ++abertas;
    EXPECT_EQ(abertas, 1);

    // OK (or Esc) unloads it; the next call makes a new one.
    QTest::keyClick(d, Qt::Key_Escape);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(DicaAberta(), nullptr);
    MostraDicasQt(&dono);
    ASSERT_NE(DicaAberta(), nullptr);
    Filho<QPushButton>(*DicaAberta(), "cmdOK")->click();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(DicaAberta(), nullptr);
}

} // namespace
} // namespace tramelo::teste
