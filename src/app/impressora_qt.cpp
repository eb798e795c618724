#include "app/impressora_qt.h"

#include "desktop/grafico_view.h"
#include "plataforma/falha.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPrinter>
#include <QString>

#include <algorithm>

namespace tramelo {
namespace {

constexpr int ErroImpressora = 482;
constexpr int ValorInvalido = 380;
// A printed picture's height over its width, and the size of its text.
constexpr double ProporcaoGrafico = 0.8;
constexpr double PontosGrafico = 7;

} // namespace

ImpressoraQt::ImpressoraQt(QPrinter& impressora) : impressora_(impressora) {}

ImpressoraQt::~ImpressoraQt() = default;

void ImpressoraQt::DefineCopias(int copias) {
    if (copias < 1) throw Falha(ValorInvalido, "Valor de propriedade inválido");
    impressora_.setCopyCount(copias);
}

void ImpressoraQt::DefineFonte(const std::string& nome, int tamanho, bool negrito) {
    QFont f(QString::fromStdString(nome));
    f.setPointSize(tamanho);
    f.setBold(negrito);
    // Where the named face is missing, a fixed-pitch name gets a fixed-pitch
    // face ("Courier New" is Liberation Mono on most Linux desktops), so the
    // report's columns stay aligned.
    const bool fixo =
        QString::fromStdString(nome).contains(QStringLiteral("Courier"), Qt::CaseInsensitive);
    f.setStyleHint(fixo ? QFont::TypeWriter : QFont::SansSerif);
    if (fixo) f.setFixedPitch(true);
    fonte_ = f;
}

void ImpressoraQt::Comeca() {
    if (!paginas_.empty()) return;
    paginas_.emplace_back();
    x_ = 0;
    y_ = 0;
}

double ImpressoraQt::AlturaLinha() const {
    return QFontMetricsF(fonte_, &impressora_).lineSpacing();
}

void ImpressoraQt::ConfereEspaco() {
    // A line that starts at the top goes there even when it is taller than
    // the page: nothing else could be done with it.
    if (y_ > 0 && y_ + AlturaLinha() > impressora_.height()) {
        paginas_.emplace_back();
        y_ = 0;
    }
}

void ImpressoraQt::ProximaLinha() {
    x_ = 0;
    y_ += AlturaLinha();
}

void ImpressoraQt::ImprimeLinha(const std::vector<PecaLinha>& pecas) {
    Comeca();
    const QFontMetricsF m(fonte_, &impressora_);
    ConfereEspaco();
    for (const PecaLinha& peca : pecas) {
        // Tab(n): n - 1 average widths from the printable left edge; a column
        // already passed is taken on the next line.
        const double coluna = (std::max(peca.coluna, 1) - 1) * m.averageCharWidth();
        if (x_ > coluna) {
            ProximaLinha();
            ConfereEspaco();
        }
        const QString texto = QString::fromStdString(peca.texto);
        paginas_.back().textos.push_back({fonte_, QPointF(coluna, y_ + m.ascent()), texto});
        x_ = coluna + m.horizontalAdvance(texto);
    }
    ProximaLinha();
}

void ImpressoraQt::NovaPagina() {
    Comeca();
    paginas_.emplace_back();
    x_ = 0;
    y_ = 0;
}

// The pictures side by side from the column to the right edge, on the next
// page when they don't fit under what is there.
void ImpressoraQt::ImprimeGraficos(const std::vector<Grafico>& graficos, int coluna) {
    if (graficos.empty()) return;
    Comeca();
    const QFontMetricsF m(fonte_, &impressora_);
    const double esquerda = (std::max(coluna, 1) - 1) * m.averageCharWidth();
    const double vao = 2 * m.averageCharWidth();
    const double n = static_cast<double>(graficos.size());
    const double largura = (impressora_.width() - esquerda - (n - 1) * vao) / n;
    const double altura = largura * ProporcaoGrafico;
    if (y_ > 0 && y_ + altura > impressora_.height()) {
        paginas_.emplace_back();
        y_ = 0;
    }
    for (size_t i = 0; i < graficos.size(); ++i)
        paginas_.back().figuras.push_back(
            {QRectF(esquerda + static_cast<double>(i) * (largura + vao), y_, largura, altura), graficos[i]});
    x_ = 0;
    y_ += altura;
}

void ImpressoraQt::Desenha(QPainter& p, const Pagina& pagina) const {
    for (const Texto& t : pagina.textos) {
        p.setFont(t.fonte);
        p.drawText(t.lugar, t.texto);
    }
    for (const Figura& f : pagina.figuras)
        DesenhaGrafico(p, f.lugar, f.grafico, PontosGrafico);
}

void ImpressoraQt::FimDocumento() {
    // A job with nothing printed ends without a page.
    if (paginas_.empty()) return;
    const std::vector<Pagina> paginas = std::move(paginas_);
    paginas_.clear();
    x_ = 0;
    y_ = 0;
    // A printer makes the copies itself; a PDF file gets each page again,
    // whole copies one after the other when they are collated.
    const int copias = impressora_.supportsMultipleCopies() ? 1 : std::max(1, impressora_.copyCount());
    const bool agrupadas = impressora_.collateCopies();
    std::vector<const Pagina*> ordem;
    for (int c = 0; c < (agrupadas ? copias : 1); ++c)
        for (const Pagina& pagina : paginas)
            for (int v = 0; v < (agrupadas ? 1 : copias); ++v)
                ordem.push_back(&pagina);
    QPainter p;
    if (!p.begin(&impressora_)) throw Falha(ErroImpressora);
    for (size_t i = 0; i < ordem.size(); ++i) {
        if (i > 0 && !impressora_.newPage()) throw Falha(ErroImpressora);
        Desenha(p, *ordem[i]);
    }
    if (!p.end()) throw Falha(ErroImpressora);
}

} // namespace tramelo
