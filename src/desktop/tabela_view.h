// A steam table in a read-only grid, in a child window of the main window.
#pragma once

#include <QWidget>

class QTableWidget;

namespace tramelo {

class TabelaView : public QWidget {
    Q_OBJECT
  public:
    explicit TabelaView(QWidget* pai = nullptr);

    // Keeps the kind (0 mass, any other volume), fills the grid and sets the
    // caption. Showing the window is the caller's.
    void TabelaInicia(short Tipo);
    QTableWidget* grade() const { return MSF_; }

  protected:
    void resizeEvent(QResizeEvent* e) override;
    // The designed client area, which its MDI frame takes when it first shows.
    QSize sizeHint() const override;

  private:
    QTableWidget* MSF_;
    short TipoTabela = 0;
};

} // namespace tramelo
