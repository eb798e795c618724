// tramelo-capturas: runs the desktop program, fills calculations the way a
// user does, and writes PNG pictures of its windows for a person to look at.
#include "caixas_roteiro.h"
#include "dialogos_roteiro.h"
#include "usuario_qt.h"

#include "app/programa_qt.h"
#include "app/servicos_qt.h"
#include "desktop/calculadora_view.h"
#include "document/frm_calc_tramelo.h"
#include "report/frm_relatorio.h"
#include "report/impressao.h"
#include "shell/abertura.h"
#include "desktop/abertura_view.h"
#include "desktop/dicas_view.h"
#include "shell/entrada.h"
#include "shell/mdi_menu.h"
#include "desktop/opcoes_view.h"
#include "shell/registro.h"
#include "desktop/tabela_view.h"
#include "desktop/verificacao_view.h"
#include <QPrinter>
#include <QPushButton>
#include <QProcess>
#include <QScreen>
#include <QTimer>

#include <QDir>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QScrollBar>
#include <QTabWidget>

#include <cstdio>

using namespace tramelo;
using namespace tramelo::teste;

namespace {

QString pasta;

// The whole screen, so that the floating windows are in the picture too.
void Captura(QWidget*, const char* nome) {
    QApplication::processEvents();
    QTest::qWait(150);
    const QString arquivo =
        pasta + QLatin1Char('/') + QString::fromLatin1(nome) + QStringLiteral(".png");
    QApplication::primaryScreen()->grabWindow(0).save(arquivo);
    std::printf("%s\n", qPrintable(arquivo));
}

// Pictures a modal window once it is up, then closes it.
void CapturaModal(const char* nome) {
    QTimer::singleShot(400, [nome] {
        Captura(nullptr, nome);
        if (QWidget* m = QApplication::activeModalWidget()) m->close();
    });
}

CalculoView& Vista(ProgramaQt& p, size_t i) {
    return *p.janela().VistaCalculo(*Calculos().at(i));
}

void Preenche(CalculoView& v, int orificio, int fluido, int tomada,
              const std::vector<std::pair<int, const char*>>& valores) {
    Escolhe(Widget<QComboBox>(&v, "cboTramelo"), orificio);
    Escolhe(Widget<QComboBox>(&v, "cboFluido"), fluido);
    Escolhe(Widget<QComboBox>(&v, "cboTomada"), tomada);
    for (auto [i, texto] : valores)
        Digita(Widget<QLineEdit>(&v, QStringLiteral("txtDados(%1)").arg(i)),
               QString::fromUtf8(texto));
}

} // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    pasta = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QStringLiteral("capturas");
    QDir().mkpath(pasta);
    CaixasRoteiro caixas;
    DialogosRoteiro dialogos;
    ProgramaQt programa(false);
    // A new calculation at start, rather than the tip of the day.
    DefinePastasRegistro(PastaConfiguracaoUsuario(), ".");
    GravaConfig("Config", "DicasIniciar", "0");
    // The tips file ships beside the executables of the build.
    const char* argumentos[] = {argv[0]};
    DefineLinhaComando(1, argumentos);
    if (!programa.Inicia()) return 1;
    programa.janela().resize(1000, 760);
    programa.janela().activateWindow();
    QApplication::setActiveWindow(&programa.janela());
    Captura(&programa.janela(), "01-janela-principal");

    caixas.textos = {"Água"};
    CalculoView& agua = Vista(programa, 0);
    Preenche(agua, 0, 0, 0,
             {{2, "50"},
              {4, "102.26"},
              {5, "25000"},
              {8, "20"},
              {9, "20"},
              {17, "998"},
              {18, "998"},
              {20, "1"},
              {28, "0.8"}});
    Digita(Widget<QLineEdit>(&agua, "txtTag"), "FT-2301");
    Captura(&programa.janela(), "02-calculo-liquido");

    mnuArquivoNew_Click();
    programa.janela().AplicaMudancas();
    caixas.textos = {"Ar comprimido"};
    CalculoView& ar = Vista(programa, 1);
    Preenche(ar, 1, 1, 3,
             {{2, "1000"},
              {4, "102.26"},
              {5, "10000"},
              {8, "0"},
              {9, "40"},
              {12, "500"},
              {16, "0"},
              {19, "1"},
              {25, "1"},
              {26, "1"},
              {20, "0.018"},
              {27, "1.4"},
              {28, "0.8"}});
    Widget<QLineEdit>(&ar, "txtDados(28)")->setFocus(); // the list scrolls to the row
    Captura(&programa.janela(), "03-calculo-gas");

    programa.janela().area()->setActiveSubWindow(qobject_cast<QMdiSubWindow*>(agua.parentWidget()));
    Widget<QLineEdit>(&agua, "txtDados(9)")->setFocus();
    Botao(programa.janela(), "tbCalculo", "Calcular");
    Captura(&programa.janela(), "04-relatorio");
    // The same report's ISO 5167-2 tab (every calculation has a report,
    // shown or not).
    for (auto* abas : programa.janela().findChildren<QTabWidget*>(QStringLiteral("abasRelatorio"))) {
        if (!abas->isVisible()) continue;
        abas->setCurrentIndex(1);
        Captura(&programa.janela(), "04-relatorio-iso");
        // The rating of a 60 mm plate over a range reaching below the
        // least ReD, pictured whole, beyond the tab's scrolling.
        if (auto* v = abas->findChild<VerificacaoView*>()) {
            Digita(Widget<QLineEdit>(v, "txtDiametroVerificacao"), QStringLiteral("60"));
            Digita(Widget<QLineEdit>(v, "txtFaixaVerificacao"), QStringLiteral("2; 10; 25; 50; 75; 100; 120"));
            QTest::mouseClick(Widget<QPushButton>(v, "cmdVerificar"), Qt::LeftButton);
            QApplication::processEvents();
            const QString arquivo = pasta + QStringLiteral("/04-verificacao.png");
            v->grab().save(arquivo);
            std::printf("%s\n", qPrintable(arquivo));
        }
        abas->setCurrentIndex(0);
        // Made larger by the user: the list takes the room.
        QWidget* janela = abas;
        while (janela && !qobject_cast<QMdiSubWindow*>(janela))
            janela = janela->parentWidget();
        if (janela) {
            const QSize antes = janela->size();
            janela->resize(antes + QSize(150, 200));
            Captura(&programa.janela(), "04-relatorio-maior");
            janela->resize(antes);
        }
    }

    for (int i = 0; i < 2; ++i) {
        emit programa.janela().pedeTabelaVapor(i);
        QMdiSubWindow* tabela = programa.janela().area()->subWindowList().last();
        tabela->resize(720, 420);
        tabela->move(40 + 60 * i, 60 + 40 * i);
        tabela->raise();
    }
    Captura(&programa.janela(), "05-tabelas-vapor");
    for (QMdiSubWindow* j : programa.janela().area()->subWindowList())
        if (qobject_cast<TabelaView*>(j->widget())) j->close();

    // The desk calculator on a field with a value.
    programa.janela().area()->setActiveSubWindow(qobject_cast<QMdiSubWindow*>(agua.parentWidget()));
    QLineEdit* campo = Widget<QLineEdit>(&agua, "txtDados(18)");
    QTest::mouseDClick(campo, Qt::LeftButton);
    Captura(&programa.janela(), "06-calculadora");
    if (CalculadoraView* c = CalculadoraView::Aberta()) c->Fecha();

    // The water and steam window on the water calculation, applied to it.
    emit programa.janela().pedePropriedades();
    if (auto* p = programa.janela().findChild<QWidget*>(QStringLiteral("frmPropriedades"))) {
        p->move(programa.janela().geometry().right() - p->width() - 20, 120);
        QTest::mouseClick(Widget<QPushButton>(p, "cmdAplicar"), Qt::LeftButton);
        Captura(&programa.janela(), "12-propriedades");
        p->close();
    }

    MostraDicasQt(&programa.janela());
    Captura(&programa.janela(), "07-dica-do-dia");
    if (QWidget* d = DicaAberta()) d->close();
    CapturaModal("08-opcoes");
    MostraOpcoesQt(&programa.janela());
    CapturaModal("09-sobre");
    MostraSobreQt(&programa.janela());

    // The splash, over the main window, for its two seconds.
    AberturaQt abertura;
    FrmAbertura& f = frmAbertura();
    f = FrmAbertura{};
    telaAbertura() = &abertura;
    FrmAbertura_Load(f);
    QTimer::singleShot(600, [] { Captura(nullptr, "10-abertura"); });
    abertura.MostraModal(f);
    telaAbertura() = nullptr;

    // The data sheet printed to a PDF file, its first page as a picture.
    QPrinter& impressora = ImpressoraDoPrograma();
    impressora.setOutputFormat(QPrinter::PdfFormat);
    const QString pdf = pasta + QStringLiteral("/11-folha-de-dados.pdf");
    impressora.setOutputFileName(pdf);
    dialogos.nomes = {"pdf"};
    FrmRelatorio& r = *Calculos().at(0)->Relatorio;
    r.txtData = "08:30 - segunda-feira, 23 de novembro de 2026";
    r.txtOS = "OS-1234";
    r.txtCliente = "Usina Norte";
    DialogoImpressao().SegundaPaginaIso = true; // the ISO 5167-2 check on page 2
    programa.ImprimeRelatorio(r);
    const QString png = pasta + QStringLiteral("/11-folha-de-dados");
    if (QProcess::execute(QStringLiteral("pdftoppm"),
                          {QStringLiteral("-png"), QStringLiteral("-r"), QStringLiteral("70"),
                           QStringLiteral("-f"), QStringLiteral("1"), QStringLiteral("-l"),
                           QStringLiteral("3"), pdf, png}) == 0)
        std::printf("%s-1.png\n%s-2.png\n%s-3.png\n", qPrintable(png), qPrintable(png), qPrintable(png));

    // Qt's own dialogs as the program shows them, each cancelled once pictured.
    DialogosQt dialogosQt(&programa.janela());
    ambiente().dialogos = &dialogosQt;
    CapturaModal("12-abrir");
    mnuArquivoOpen_Click();
    CapturaModal("13-configurar-impressao");
    mnuArquivoConfigurarImpressao_Click();
    CapturaModal("14-imprimir");
    programa.ImprimeRelatorio(r);
    ambiente().dialogos = &dialogos;
    return 0;
}
