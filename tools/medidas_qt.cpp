// tramelo-medidas: a scripted run of the desktop program that measures the
// time from main() to the first frame painted with "Cálculo 1" open, from
// "Calcular" to the report window shown, and the peak memory with ten
// calculation windows open.
#include "caixas_roteiro.h"
#include "dialogos_roteiro.h"
#include "usuario_qt.h"

#include "app/programa_qt.h"
#include "document/frm_calc_tramelo.h"
#include "desktop/relatorio_view.h"
#include "shell/mdi_menu.h"
#include "shell/registro.h"

#include "app/servicos_qt.h"
#include "report/frm_relatorio.h"
#include <QDir>
#include <QElapsedTimer>
#include <QMdiSubWindow>
#include <QPrinter>

#include <cstdio>
#include <sys/resource.h>

using namespace tramelo;
using namespace tramelo::teste;

namespace {

// Paints once: the moment the window's first frame is on screen.
class Pintura : public QObject {
  public:
    bool pintou = false;
    bool eventFilter(QObject*, QEvent* e) override {
        if (e->type() == QEvent::Paint) pintou = true;
        return false;
    }
};

long PicoKiB() {
    rusage r{};
    getrusage(RUSAGE_SELF, &r);
    return r.ru_maxrss;
}

} // namespace

int main(int argc, char** argv) {
    QElapsedTimer relogio;
    relogio.start();
    QApplication app(argc, argv);
    CaixasRoteiro caixas;
    DialogosRoteiro dialogos;
    ProgramaQt programa(false);
    // A new calculation at start, rather than the tip of the day.
    DefinePastasRegistro(PastaConfiguracaoUsuario(), ".");
    GravaConfig("Config", "DicasIniciar", "0");
    Pintura pintura;
    const double antes = relogio.nsecsElapsed() / 1e6;
    if (!programa.Inicia()) return 1;
    std::printf("(aplicação pronta em %.1f ms; subida do programa %.1f ms)\n", antes,
                relogio.nsecsElapsed() / 1e6 - antes);
    CalculoView& v = *programa.janela().VistaCalculo(*Calculos().at(0));
    v.installEventFilter(&pintura);
    while (!pintura.pintou)
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    std::printf("primeiro quadro com \"Cálculo 1\": %.1f ms\n", relogio.nsecsElapsed() / 1e6);

    caixas.textos = {"Água"};
    Escolhe(Widget<QComboBox>(&v, "cboTramelo"), 0);
    Escolhe(Widget<QComboBox>(&v, "cboFluido"), 0);
    Escolhe(Widget<QComboBox>(&v, "cboTomada"), 0);
    for (auto [i, t] : std::vector<std::pair<int, const char*>>{{2, "50"},
                                                                {4, "102.26"},
                                                                {5, "25000"},
                                                                {8, "20"},
                                                                {9, "20"},
                                                                {17, "998"},
                                                                {18, "998"},
                                                                {20, "1"},
                                                                {28, "0.8"}})
        Digita(Widget<QLineEdit>(&v, QStringLiteral("txtDados(%1)").arg(i)),
               QString::fromLatin1(t));
    RelatorioView* r = programa.janela().VistaRelatorio(*Calculos().at(0)->Relatorio);
    Pintura pinturaRelatorio;
    r->installEventFilter(&pinturaRelatorio);
    QElapsedTimer calculo;
    calculo.start();
    Botao(programa.janela(), "tbCalculo", "Calcular");
    while (!pinturaRelatorio.pintou)
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    std::printf("\"Calcular\" até o relatório na tela: %.1f ms\n", calculo.nsecsElapsed() / 1e6);

    std::printf("memória com 1 cálculo: %.1f MiB\n", PicoKiB() / 1024.0);

    // A 60-line report printed to a PDF file.
    FrmRelatorio& rel = *Calculos().at(0)->Relatorio;
    while (rel.lstRelatorio.size() < 60)
        rel.lstRelatorio.push_back(" linha de teste");
    QPrinter& impressora = ImpressoraDoPrograma();
    impressora.setOutputFormat(QPrinter::PdfFormat);
    impressora.setOutputFileName(QDir::temp().filePath(QStringLiteral("tramelo-medidas.pdf")));
    dialogos.nomes = {"pdf"};
    QElapsedTimer impressao;
    impressao.start();
    programa.ImprimeRelatorio(rel);
    std::printf("relatório de 60 linhas impresso em PDF: %.1f ms\n",
                impressao.nsecsElapsed() / 1e6);
    for (int i = 1; i < 10; ++i) {
        mnuArquivoNew_Click();
        programa.janela().AplicaMudancas();
        QApplication::processEvents();
    }
    QTest::qWait(200);
    std::printf("pico de memória com 10 cálculos: %.1f MiB\n", PicoKiB() / 1024.0);
    return 0;
}
