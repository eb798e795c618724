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

ImpressoraQt::~ImpressoraQt() {
    if (pintor_ && pintor_->isActive()) pintor_->end();
}

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
    if (pintor_) pintor_->setFont(fonte_);
}

QPainter& ImpressoraQt::Pintor() {
    if (!pintor_) pintor_ = std::make_unique<QPainter>();
    if (!pintor_->isActive()) {
        if (!pintor_->begin(&impressora_)) throw Falha(ErroImpressora);
        pintor_->setFont(fonte_);
        x_ = 0;
        y_ = 0;
    }
    return *pintor_;
}

double ImpressoraQt::AlturaLinha() const {
    return QFontMetricsF(fonte_, &impressora_).lineSpacing();
}

void ImpressoraQt::ConfereEspaco() {
    // A line that starts at the top goes there even when it is taller than
    // the page: nothing else could be done with it.
    if (y_ > 0 && y_ + AlturaLinha() > impressora_.height()) {
        if (!impressora_.newPage()) throw Falha(ErroImpressora);
        y_ = 0;
    }
}

void ImpressoraQt::ProximaLinha() {
    x_ = 0;
    y_ += AlturaLinha();
}

void ImpressoraQt::ImprimeLinha(const std::vector<PecaLinha>& pecas) {
    QPainter& p = Pintor();
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
        p.drawText(QPointF(coluna, y_ + m.ascent()), texto);
        x_ = coluna + m.horizontalAdvance(texto);
    }
    ProximaLinha();
}

void ImpressoraQt::NovaPagina() {
    Pintor();
    if (!impressora_.newPage()) throw Falha(ErroImpressora);
    x_ = 0;
    y_ = 0;
}

void ImpressoraQt::ImprimeGraficos(const std::vector<Grafico>& graficos, int coluna) {
    if (graficos.empty()) return;
    QPainter& p = Pintor();
    const QFontMetricsF m(fonte_, &impressora_);
    const double esquerda = (std::max(coluna, 1) - 1) * m.averageCharWidth();
    const double vao = 2 * m.averageCharWidth();
    const double n = static_cast<double>(graficos.size());
    const double largura = (impressora_.width() - esquerda - (n - 1) * vao) / n;
    const double altura = largura * ProporcaoGrafico;
    if (y_ > 0 && y_ + altura > impressora_.height()) {
        if (!impressora_.newPage()) throw Falha(ErroImpressora);
        y_ = 0;
    }
    for (size_t i = 0; i < graficos.size(); ++i)
        DesenhaGrafico(p, QRectF(esquerda + static_cast<double>(i) * (largura + vao), y_, largura, altura),
                       graficos[i], PontosGrafico);
    p.setFont(fonte_);
    x_ = 0;
    y_ += altura;
}

void ImpressoraQt::FimDocumento() {
    // A job with nothing printed ends without a page.
    if (!pintor_ || !pintor_->isActive()) return;
    if (!pintor_->end()) throw Falha(ErroImpressora);
    x_ = 0;
    y_ = 0;
}

} // namespace tramelo
