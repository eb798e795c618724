// A picture of the core drawn with QPainter: the same drawing on the screen
// and on the printed page, its sizes in points so that it reads alike on both.
#pragma once

#include "report/grafico.h"

#include <QWidget>

class QPainter;
class QRectF;

namespace tramelo {

// Draws `g` inside `area`: title, axes with their ticks and grid, the
// series, and a legend below. `pontos` is the size of its text.
void DesenhaGrafico(QPainter& p, const QRectF& area, const Grafico& g, double pontos);

// A widget that shows one picture, named after its title for assistive
// technologies, which see it as a chart.
class GraficoView : public QWidget {
    Q_OBJECT
  public:
    explicit GraficoView(QWidget* pai = nullptr);
    void Mostra(Grafico g);
    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* e) override;

  private:
    Grafico grafico_;
};

} // namespace tramelo
