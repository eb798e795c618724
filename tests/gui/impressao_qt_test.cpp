// The data sheet on a real printer: printed to PDF and read back with
// pdftotext, as text for what is printed and as word boxes for where.
#include "dialogos_roteiro.h"
#include "pasta_temporaria.h"

#include "app/impressora_qt.h"
#include "report/buffer.h"
#include "report/frm_relatorio.h"
#include "report/impressao.h"

#include <QPageLayout>
#include <QPageSize>
#include <QPrinter>
#include <QProcess>
#include <QRegularExpression>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

namespace tramelo::teste {
namespace {

struct Palavra {
    int pagina; // from 0
    double x, y, yFim;
    std::string texto;
};

struct Pdf {
    std::vector<std::string> paginas; // the text of each page, laid out
    std::vector<Palavra> palavras;
};

std::string Executa(const QStringList& argumentos) {
    QProcess p;
    p.start(QStringLiteral("pdftotext"), argumentos);
    p.waitForFinished(-1);
    return p.readAllStandardOutput().toStdString();
}

Pdf LePdf(const std::string& arquivo) {
    Pdf pdf;
    const QString a = QString::fromStdString(arquivo);
    std::string texto = Executa({QStringLiteral("-layout"), a, QStringLiteral("-")});
    for (size_t inicio = 0, fim; (fim = texto.find('\f', inicio)) != std::string::npos;
         inicio = fim + 1)
        pdf.paginas.push_back(texto.substr(inicio, fim - inicio));

    const QString caixas =
        QString::fromStdString(Executa({QStringLiteral("-bbox"), a, QStringLiteral("-")}));
    static const QRegularExpression palavra(QStringLiteral(
        R"re(<page |<word xMin="([\d.]+)" yMin="([\d.]+)" xMax="[\d.]+" yMax="([\d.]+)">([^<]*)</word>)re"));
    int pagina = -1;
    for (auto it = palavra.globalMatch(caixas); it.hasNext();) {
        QRegularExpressionMatch m = it.next();
        if (m.captured(0).startsWith(QStringLiteral("<page"))) {
            ++pagina;
            continue;
        }
        pdf.palavras.push_back({pagina, m.captured(1).toDouble(), m.captured(2).toDouble(),
                                m.captured(3).toDouble(), m.captured(4).toStdString()});
    }
    return pdf;
}

const Palavra* Acha(const Pdf& pdf, const std::string& texto) {
    for (const Palavra& p : pdf.palavras)
        if (p.texto == texto) return &p;
    return nullptr;
}

int Conta(const std::string& texto, const std::string& trecho) {
    int n = 0;
    for (size_t i = texto.find(trecho); i != std::string::npos; i = texto.find(trecho, i + 1))
        ++n;
    return n;
}

FrmRelatorio Relatorio(int linhas) {
    FrmRelatorio r;
    r.txtData = "14:20 - terça-feira, 3 de março de 2026";
    r.txtOS = "OS-118";
    r.txtCliente = "Refinaria";
    for (int i = 1; i <= linhas; ++i) {
        char linha[80];
        std::snprintf(linha, sizeof linha, "L%03d Pressão a montante .....  %3d,5   kPa", i, i);
        AddRel(r, linha);
    }
    return r;
}

class ImpressaoQt : public ::testing::Test {
  protected:
    // Prints through the report's own routine, the dialog confirmed, to a PDF
    // on A4 with 20 mm margins.
    Pdf Imprime(const FrmRelatorio& relatorio) {
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(QString::fromStdString(pasta / "folha.pdf"));
        printer.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait,
                                          QMarginsF(20, 20, 20, 20), QPageLayout::Millimeter));
        ImpressoraQt impressora(printer);
        impressoraInstalada() = &impressora;
        DialogosRoteiro dialogos;
        dialogos.nomes = {"ok"};
        FrmRelatorio r = relatorio;
        mnuArquivoImprimir_Click(r);
        impressoraInstalada() = nullptr;
        return LePdf(pasta / "folha.pdf");
    }
    // The printable area in PDF points, from the page's top left.
    QRectF Area() const { return printer.pageLayout().paintRect(QPageLayout::Point); }

    PastaTemporaria pasta;
    QPrinter printer{QPrinter::HighResolution};
};

TEST_F(ImpressaoQt, TituloCabecalhoEColunas) {
    const Pdf pdf = Imprime(Relatorio(60));
    ASSERT_FALSE(pdf.paginas.empty());
    const std::string& p1 = pdf.paginas[0];
    EXPECT_EQ(Conta(p1, "Data Sheet"), 1);
    EXPECT_EQ(Conta(p1, "14:20 - terça-feira, 3 de março de 2026"), 1);
    EXPECT_EQ(Conta(p1, "Hora - data"), 0); // the label isn't printed
    EXPECT_NE(p1.find("Ordem de serviço.:"), std::string::npos);
    EXPECT_NE(p1.find("Cliente..........:"), std::string::npos);
    EXPECT_NE(p1.find("Descrição"), std::string::npos);
    // The title block comes first, then the header block, the column header
    // and the lines.
    EXPECT_LT(p1.find("Data Sheet"), p1.find("14:20"));
    EXPECT_LT(p1.find("14:20"), p1.find("Ordem"));
    EXPECT_LT(p1.find("Cliente"), p1.find("Descrição"));
    EXPECT_LT(p1.find("Descrição"), p1.find("L001"));

    // Courier New at 10 points: 6 points a column from the printable left
    // edge, for the tab columns and for the characters within a piece. Column 9 is at 48 points;
    // the labels and lines begin with a blank.
    const double esquerda = Area().left();
    struct Coluna {
        const char* palavra;
        double pontos;
    };
    const Coluna colunas[] = {
        {"14:20", 48},      {"Ordem", 54},     {"OS-118", 168}, {"Cliente..........:", 54},
        {"Refinaria", 168}, {"Descrição", 54}, {"Valor", 264},  {"Escala", 486},
        {"L001", 54},       {"L060", 54},
    };
    for (const Coluna& c : colunas) {
        SCOPED_TRACE(c.palavra);
        const Palavra* p = Acha(pdf, c.palavra);
        ASSERT_NE(p, nullptr);
        // Qt sizes the font in whole device pixels: some 0.2 % off 6 points.
        EXPECT_NEAR(p->x - esquerda, c.pontos, std::max(0.5, c.pontos * 0.003));
    }
    // The title at column 15 of its own, wider font.
    const Palavra* titulo = Acha(pdf, "Data");
    ASSERT_NE(titulo, nullptr);
    EXPECT_GT(titulo->x - esquerda, 14 * 6.0);

    // One line height of the font from one line to the next.
    const Palavra* l1 = Acha(pdf, "L001");
    const Palavra* l2 = Acha(pdf, "L002");
    const Palavra* l3 = Acha(pdf, "L003");
    ASSERT_TRUE(l1 && l2 && l3);
    EXPECT_NEAR(l2->y - l1->y, l3->y - l2->y, 0.05);
    EXPECT_GT(l2->y - l1->y, 10.0);
    EXPECT_LT(l2->y - l1->y, 13.0);
    // Below the title's empty lines, each a line of the 28-point font.
    EXPECT_GT(titulo->y - Area().top(), 2 * 28.0);
}

TEST_F(ImpressaoQt, RelatorioLongoSegueParaAsPaginasSeguintes) {
    const int total = 200;
    const Pdf pdf = Imprime(Relatorio(total));
    ASSERT_GE(pdf.paginas.size(), 3u);

    std::string tudo;
    for (const std::string& p : pdf.paginas)
        tudo += p;
    // Every line once, in order, however the pages fall.
    size_t depois = 0;
    for (int i = 1; i <= total; ++i) {
        char marca[8];
        std::snprintf(marca, sizeof marca, "L%03d", i);
        SCOPED_TRACE(marca);
        EXPECT_EQ(Conta(tudo, marca), 1);
        size_t onde = tudo.find(marca);
        EXPECT_GT(onde, depois);
        depois = onde;
    }
    // No title, header or numbering on the continuation pages: they hold
    // report lines only, from the top of the printable area.
    for (size_t n = 1; n < pdf.paginas.size(); ++n) {
        SCOPED_TRACE(n);
        EXPECT_EQ(Conta(pdf.paginas[n], "Data Sheet"), 0);
        EXPECT_EQ(Conta(pdf.paginas[n], "Descrição"), 0);
        EXPECT_EQ(Conta(pdf.paginas[n], "Ordem"), 0);
    }
    const QRectF area = Area();
    const Palavra* primeira = nullptr;
    for (const Palavra& p : pdf.palavras) {
        EXPECT_LE(p.yFim, area.bottom() + 0.5) << p.texto << " na página " << p.pagina + 1;
        if (!primeira && p.pagina == 1) primeira = &p;
    }
    ASSERT_NE(primeira, nullptr);
    EXPECT_EQ(primeira->texto.substr(0, 1), "L");
    EXPECT_NEAR(primeira->x - area.left(), 54, 0.5);
    EXPECT_LT(primeira->y - area.top(), 12.0);
    // The page is filled before it turns: the next line wouldn't have fit.
    double ultima = 0;
    for (const Palavra& p : pdf.palavras)
        if (p.pagina == 0) ultima = std::max(ultima, p.yFim);
    EXPECT_GT(ultima + 11.0, area.bottom() - 1.0);
}

} // namespace
} // namespace tramelo::teste
