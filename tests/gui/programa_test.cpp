// The desktop program end to end, driven the way a user drives it.
#include "programa_de_teste.h"
#include "usuario_qt.h"

#include "app/programa_qt.h"
#include "document/frm_calc_tramelo.h"
#include "plataforma/canal.h"
#include "report/relatorio_view.h"
#include "shell/barras.h"
#include "shell/mdi_menu.h"
#include "shell/mod_base.h"
#include "shell/recentes.h"
#include "shell/registro.h"

#include <QClipboard>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <cstdio>

namespace tramelo::teste {
namespace {

class Programa : public ::testing::Test {
  protected:
    void SetUp() override { ASSERT_TRUE(t.Inicia()); }

    MdiMenuView& janela() { return programa->janela(); }
    FrmCalcTramelo& calculo(size_t i = 0) { return *Calculos().at(i); }
    CalculoView& vista(size_t i = 0) { return *janela().VistaCalculo(calculo(i)); }
    QLineEdit* campo(int i) {
        return Widget<QLineEdit>(&vista(), QStringLiteral("txtDados(%1)").arg(i));
    }
    QListWidget* linhasDoRelatorio() {
        return Widget<QListWidget>(janela().VistaRelatorio(*calculo().Relatorio),
                                   QStringLiteral("lstRelatorio"));
    }

    // Water in M³/h, as a user fills it in.
    void PreencheAgua() {
        caixas.textos = {"Água"};
        Escolhe(Widget<QComboBox>(&vista(), "cboTramelo"), 0);
        Escolhe(Widget<QComboBox>(&vista(), "cboFluido"), 0);
        Escolhe(Widget<QComboBox>(&vista(), "cboTomada"), 0);
        Digita(Widget<QLineEdit>(&vista(), "txtTag"), "FT-2301");
        const std::pair<int, const char*> valores[] = {{2, "50"},   {4, "102.26"}, {5, "25000"},
                                                       {8, "20"},   {9, "20"},     {17, "998"},
                                                       {18, "998"}, {20, "1"},     {28, "0.8"}};
        for (auto [i, texto] : valores)
            Digita(campo(i), QString::fromLatin1(texto));
    }

    // The report lines of the command-line tool for a file.
    QStringList LinhasDaFerramenta(const std::string& arquivo) {
        std::string saida;
        FILE* p = popen(
            (std::string(TRAMELO_CALC) + " --json '" + arquivo + "' 2>/dev/null").c_str(), "r");
        char buf[4096];
        for (size_t n; (n = fread(buf, 1, sizeof buf, p)) > 0;)
            saida.append(buf, n);
        int r = pclose(p);
        EXPECT_EQ(r, 0);
        const nlohmann::json j = nlohmann::json::parse(saida);
        QStringList l;
        for (const auto& linha : j[0]["linhas"])
            l << QString::fromStdString(linha.get<std::string>());
        return l;
    }

    ProgramaDeTeste t;
    PastaTemporaria& pasta = t.pasta;
    CaixasRoteiro& caixas = t.caixas;
    DialogosRoteiro& dialogos = t.dialogos;
    std::unique_ptr<ProgramaQt>& programa = t.programa;
};

TEST_F(Programa, CalculaSalvaFechaEReabre) {
    ASSERT_EQ(Calculos().size(), 1u);
    EXPECT_EQ(calculo().Caption, "Cálculo 1");
    PreencheAgua();
    EXPECT_EQ(calculo().cboFluido.Text(), "Água (Liqüido)");
    EXPECT_EQ(campo(4)->text(), "102,26"); // the point key gives the comma
    EXPECT_EQ(calculo().txtDados(28)->Text(), "0,8");
    EXPECT_EQ(calculo().txtDados(29)->Text(), "1");
    // A unit changed and back: the value stays as typed.
    Escolhe(Widget<QComboBox>(&vista(), "cboDados(5)"), 2);
    EXPECT_EQ(calculo().FatorPerda, 0.1022f);
    Escolhe(Widget<QComboBox>(&vista(), "cboDados(5)"), 0);
    EXPECT_EQ(campo(5)->text(), "25000");

    campo(9)->setFocus();
    Botao(janela(), "tbCalculo", "Calcular");
    QStringList relatorio = Linhas(linhasDoRelatorio());
    ASSERT_GT(relatorio.size(), 30);
    EXPECT_TRUE(relatorio.contains(QStringLiteral(" Beta = d/D _______________________ 0,60463")));
    EXPECT_TRUE(janela().VistaRelatorio(*calculo().Relatorio)->isVisibleTo(&janela()));
    // The report, now the active window, shows its own menu bar's texts.
    QApplication::processEvents();
    for (const std::vector<QString>& caminho : {std::vector<QString>{"&Arquivo", "Salvar todos"},
                                                {"E&xibir", "&Etiquetas de texto"},
                                                {"Aj&uda", "&Sobre o Tramelo"}}) {
        QAction* a = Entrada(janela(), caminho);
        ASSERT_NE(a, nullptr) << caminho.back().toStdString();
        EXPECT_EQ(a->text(), caminho.back());
    }

    // Saved through the dialog; closed with the question; reopened from the
    // recent files: the same lines, and the same as the command-line tool's.
    const std::string arquivo = pasta / "agua.trl";
    dialogos.nomes = {arquivo};
    QAction* salvar = Entrada(janela(), {"&Arquivo", "&Salvar"});
    janela().area()->setActiveSubWindow(qobject_cast<QMdiSubWindow*>(vista().parentWidget()));
    QApplication::processEvents();
    salvar = Entrada(janela(), {"&Arquivo", "&Salvar"});
    ASSERT_TRUE(salvar && salvar->isEnabled());
    salvar->trigger();
    QApplication::processEvents();
    ASSERT_TRUE(ExisteArquivo(arquivo));

    calculo().txtTag.DefineTexto("FT-2302");
    caixas.mostradas.clear();
    caixas.respostas = {vbNo};
    Entrada(janela(), {"&Arquivo", "Fechar"})->trigger();
    QApplication::processEvents();
    ASSERT_EQ(caixas.mostradas.size(), 1u);
    EXPECT_EQ(caixas.mostradas[0].texto, "Deseja salvar as alterações efetuadas neste Cálculo?");
    EXPECT_TRUE(Calculos().empty());

    QAction* recente = Entrada(janela(), {"&Arquivo", "Arquivos recentes", "&1 "});
    ASSERT_NE(recente, nullptr);
    recente->trigger();
    QApplication::processEvents();
    ASSERT_EQ(Calculos().size(), 1u);
    EXPECT_EQ(calculo().Caption, "agua.trl");
    EXPECT_EQ(calculo().txtTag.Text(), "FT-2301");
    Botao(janela(), "tbCalculo", "Calcular");
    // A file read leaves the plain fluid type in the report's fluid line, the
    // rest is the same; and it is the command-line tool's report, line by line.
    relatorio.replace(3, QStringLiteral(" Fluido utilizado _________________ Liqüido"));
    const QStringList reaberto = Linhas(linhasDoRelatorio());
    EXPECT_EQ(reaberto.join('\n').toStdString(), relatorio.join('\n').toStdString());
    EXPECT_EQ(LinhasDaFerramenta(arquivo).join('\n').toStdString(),
              reaberto.join('\n').toStdString());
}

TEST_F(Programa, FalhaNoCalculoMostraOErroEContinua) {
    PreencheAgua();
    // Tab follows the display order: from the tag to the flow; the density
    // mode stands lower, just above the densities.
    QLineEdit* tag = Widget<QLineEdit>(&vista(), "txtTag");
    tag->setFocus();
    QTest::keyClick(tag, Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), campo(2));
    // Pasted text isn't filtered: a letter reaches the field.
    QLineEdit* e = campo(5);
    e->setFocus();
    e->selectAll();
    QApplication::clipboard()->setText(QStringLiteral("abc"));
    e->paste();
    QApplication::processEvents();
    ASSERT_EQ(calculo().txtDados(5)->Text(), "abc");
    caixas.mostradas.clear();
    Botao(janela(), "tbCalculo", "Calcular");
    ASSERT_EQ(caixas.mostradas.size(), 1u);
    EXPECT_EQ(caixas.mostradas[0].titulo, "Informação de Erro Código :13");
    EXPECT_EQ(caixas.mostradas[0].estilo, vbCritical);
    // Still usable: the value corrected, the run goes through.
    Digita(e, "25000");
    e->setFocus();
    Botao(janela(), "tbCalculo", "Calcular");
    EXPECT_EQ(caixas.mostradas.size(), 1u);
    EXPECT_GT(linhasDoRelatorio()->count(), 30);

    // An empty field met by "Calcular": the message, and the focus is left
    // in that field.
    Digita(campo(8), QString());
    campo(9)->setFocus();
    Botao(janela(), "tbCalculo", "Calcular");
    ASSERT_EQ(caixas.mostradas.size(), 2u);
    EXPECT_EQ(caixas.mostradas[1].texto, "O campo 'Temperatura de leitura' não foi preenchido");
    QApplication::processEvents();
    EXPECT_EQ(QApplication::focusWidget(), campo(8));
}

} // namespace
} // namespace tramelo::teste
