#include "desktop/grafico_view.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QFontMetricsF>
#include <QPaintDevice>
#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>

#include <algorithm>
#include <cmath>
#include <vector>

namespace tramelo {
namespace {

QString Q(const std::string& s) {
    return QString::fromStdString(s);
}

QColor Cor(std::uint32_t rgb, int alfa = 255) {
    return QColor((rgb >> 16) & 0xFF, (rgb >> 8) & 0xFF, rgb & 0xFF, alfa);
}

// Where a value falls along an axis, from 0 at its minimum to 1 at its maximum.
double Fracao(const EixoGrafico& e, double v) {
    if (e.logaritmico)
        return (std::log10(v) - std::log10(e.minimo)) / (std::log10(e.maximo) - std::log10(e.minimo));
    return (v - e.minimo) / (e.maximo - e.minimo);
}

QPolygonF Losango(QPointF c, double r) {
    return QPolygonF({c + QPointF(0, -r), c + QPointF(r, 0), c + QPointF(0, r), c + QPointF(-r, 0)});
}

// The mark of a series, at a point: in the plot and in the legend alike.
void Marca(QPainter& p, const SerieGrafico& s, QPointF c, double u) {
    switch (s.traco) {
    case Traco::Pontos:
        p.setPen(QPen(Qt::white, 0.8 * u));
        p.setBrush(Cor(s.cor));
        p.drawEllipse(c, 3.5 * u, 3.5 * u);
        break;
    case Traco::Destaque:
        p.setPen(QPen(Qt::black, 0.8 * u));
        p.setBrush(Cor(s.cor));
        p.drawPolygon(Losango(c, 6 * u));
        break;
    case Traco::Linha:
        p.setPen(QPen(Cor(s.cor), 1.6 * u));
        p.drawLine(c - QPointF(7 * u, 0), c + QPointF(7 * u, 0));
        break;
    case Traco::Regiao:
        p.setPen(QPen(Cor(s.cor), 1.2 * u));
        p.setBrush(Cor(s.cor, 60));
        p.drawRect(QRectF(c - QPointF(6 * u, 4 * u), c + QPointF(6 * u, 4 * u)));
        break;
    }
}

// Assistive technologies see the picture as a chart, named by its title.
QAccessibleInterface* Acessivel(const QString& classe, QObject* objeto) {
    if (classe == QLatin1String("tramelo::GraficoView") && objeto && objeto->isWidgetType())
        return new QAccessibleWidget(static_cast<QWidget*>(objeto), QAccessible::Chart);
    return nullptr;
}

} // namespace

void DesenhaGrafico(QPainter& p, const QRectF& area, const Grafico& g, double pontos) {
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    // Lengths in pixels of a 96 dpi screen, whatever the device.
    const double u = p.device() ? p.device()->logicalDpiY() / 96.0 : 1;
    QFont texto(QStringLiteral("Liberation Sans"));
    texto.setStyleHint(QFont::SansSerif);
    texto.setPointSizeF(pontos);
    QFont titulo = texto;
    titulo.setBold(true);
    const QFontMetricsF m(texto, p.device());
    const double linha = m.height();

    // Title on top, the legend's rows at the bottom, the x axis's ticks and
    // title above them, the y axis's ticks and title on the left.
    p.setFont(titulo);
    p.setPen(Qt::black);
    p.drawText(QRectF(area.left(), area.top(), area.width(), 1.4 * linha), Qt::AlignCenter,
               Q(g.titulo));
    double larguraMarcas = 0;
    for (const auto& [v, t] : g.y.marcas)
        larguraMarcas = std::max(larguraMarcas, m.horizontalAdvance(Q(t)));
    const double esquerda = area.left() + linha * 1.4 + larguraMarcas + 4 * u;

    // The legend: each named series with its mark, in rows as wide as the
    // plot, laid out first so the plot knows the room left to it.
    struct Entrada {
        const SerieGrafico* serie;
        QString nome;
        double x;
        int fila;
    };
    std::vector<Entrada> legenda;
    double x = esquerda;
    int filas = 0;
    for (const SerieGrafico& s : g.series) {
        if (s.nome.empty()) continue;
        const QString nome = Q(s.nome);
        const double w = 16 * u + m.horizontalAdvance(nome) + 10 * u;
        if (legenda.empty()) filas = 1;
        else if (x + w > area.right() && x > esquerda) x = esquerda, ++filas;
        legenda.push_back({&s, nome, x, filas - 1});
        x += w;
    }
    const double topoLegenda = area.bottom() - filas * linha - 0.2 * linha;
    QRectF r(QPointF(esquerda, area.top() + 1.6 * linha),
             QPointF(area.right() - 8 * u, topoLegenda - 2.2 * linha));
    if (!g.series.empty() && r.width() > 0 && r.height() > 0) {
        p.fillRect(r, Qt::white);
        auto Ponto = [&](double vx, double vy) {
            return QPointF(r.left() + Fracao(g.x, vx) * r.width(),
                           r.bottom() - Fracao(g.y, vy) * r.height());
        };

        // Grid and ticks.
        p.setFont(texto);
        for (const auto& [v, t] : g.x.marcas) {
            const double px = r.left() + Fracao(g.x, v) * r.width();
            p.setPen(QPen(QColor(0xDD, 0xDD, 0xDD), 0.8 * u));
            p.drawLine(QPointF(px, r.top()), QPointF(px, r.bottom()));
            p.setPen(Qt::black);
            p.drawText(QRectF(px - 40 * u, r.bottom() + 2 * u, 80 * u, linha),
                       Qt::AlignHCenter | Qt::AlignTop, Q(t));
        }
        for (const auto& [v, t] : g.y.marcas) {
            const double y = r.bottom() - Fracao(g.y, v) * r.height();
            p.setPen(QPen(QColor(0xDD, 0xDD, 0xDD), 0.8 * u));
            p.drawLine(QPointF(r.left(), y), QPointF(r.right(), y));
            p.setPen(Qt::black);
            p.drawText(QRectF(area.left(), y - linha / 2, r.left() - area.left() - 3 * u, linha),
                       Qt::AlignRight | Qt::AlignVCenter, Q(t));
        }
        p.drawText(QRectF(r.left(), r.bottom() + linha + 2 * u, r.width(), linha), Qt::AlignHCenter,
                   Q(g.x.titulo));
        p.save();
        p.translate(area.left(), r.center().y());
        p.rotate(-90);
        p.drawText(QRectF(-r.height() / 2, 0, r.height(), linha), Qt::AlignHCenter | Qt::AlignTop,
                   Q(g.y.titulo));
        p.restore();

        // The series, inside the plot.
        p.save();
        p.setClipRect(r);
        QFont menor = texto;
        menor.setPointSizeF(pontos * 0.85);
        const QFontMetricsF mm(menor, p.device());
        for (const SerieGrafico& s : g.series) {
            QPolygonF pol;
            for (const auto& [vx, vy] : s.pontos) pol << Ponto(vx, vy);
            if (s.traco == Traco::Regiao) {
                p.setPen(QPen(Cor(s.cor), 1.4 * u));
                p.setBrush(Cor(s.cor, 50));
                p.drawPolygon(pol);
                continue;
            }
            if (s.traco == Traco::Linha) {
                p.setPen(QPen(Cor(s.cor), 1.6 * u));
                p.setBrush(Qt::NoBrush);
                p.drawPolyline(pol);
                continue;
            }
            for (int i = 0; i < pol.size(); ++i) {
                Marca(p, s, pol[i], u);
                if (static_cast<size_t>(i) >= s.rotulos.size()) continue;
                // Labels right and left in turn, so close points stay legible.
                const QString rotulo = Q(s.rotulos[static_cast<size_t>(i)]);
                const double w = mm.horizontalAdvance(rotulo);
                const double dx = i % 2 == 0 ? 6 * u : -6 * u - w;
                p.setFont(menor);
                p.setPen(Cor(s.cor).darker(130));
                p.drawText(QPointF(pol[i].x() + dx, pol[i].y() + mm.ascent() / 2 - u), rotulo);
            }
        }
        p.restore();
        p.setPen(QPen(QColor(0x80, 0x80, 0x80), 1 * u));
        p.setBrush(Qt::NoBrush);
        p.drawRect(r);
    }

    p.setFont(texto);
    for (const Entrada& e : legenda) {
        const double y = topoLegenda + e.fila * linha;
        Marca(p, *e.serie, QPointF(e.x + 7 * u, y + linha / 2), u);
        p.setPen(Qt::black);
        p.drawText(QRectF(e.x + 16 * u, y, area.right() - e.x, linha), Qt::AlignLeft | Qt::AlignVCenter,
                   e.nome);
    }
    p.restore();
}

GraficoView::GraficoView(QWidget* pai) : QWidget(pai) {
    static const bool instalada = (QAccessible::installFactory(Acessivel), true);
    (void)instalada;
    setMinimumSize(240, 200);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void GraficoView::Mostra(Grafico g) {
    grafico_ = std::move(g);
    setAccessibleName(Q(grafico_.titulo));
    update();
}

QSize GraficoView::sizeHint() const {
    return {320, 260};
}

void GraficoView::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.fillRect(rect(), palette().window());
    DesenhaGrafico(p, QRectF(rect()).adjusted(2, 2, -2, -2), grafico_, 8);
}

} // namespace tramelo
