// The printer object on the desktop: text lines laid out on pages by a
// cursor that moves down the page, tab columns in the current font's average
// character width, and a new page whenever the next line doesn't fit. The
// pages are drawn on the QPrinter when the document ends, once for each copy
// where the printer can't make copies itself (a PDF file).
#pragma once

#include "report/impressao.h"

#include <QFont>
#include <QPointF>
#include <QRectF>
#include <QString>

#include <vector>

class QPainter;
class QPrinter;

namespace tramelo {

class ImpressoraQt : public Impressora {
  public:
    // Draws on `impressora`, which must outlive this object: the program's
    // printer, which the print dialog sets up.
    explicit ImpressoraQt(QPrinter& impressora);
    ~ImpressoraQt() override;

    void DefineCopias(int copias) override;
    void DefineFonte(const std::string& nome, int tamanho, bool negrito) override;
    void ImprimeLinha(const std::vector<PecaLinha>& pecas) override;
    void NovaPagina() override;
    void ImprimeGraficos(const std::vector<Grafico>& graficos, int coluna) override;
    void FimDocumento() override;

  private:
    // A piece of text in its font at its place on a page.
    struct Texto {
        QFont fonte;
        QPointF lugar;
        QString texto;
    };
    // A picture at its place on a page.
    struct Figura {
        QRectF lugar;
        Grafico grafico;
    };
    struct Pagina {
        std::vector<Texto> textos;
        std::vector<Figura> figuras;
    };

    // The document begins with the first output, as the printer's job does.
    void Comeca();
    void Desenha(QPainter& p, const Pagina& pagina) const;
    double AlturaLinha() const;
    // The cursor to the next line, on a new page when that line wouldn't fit.
    void ProximaLinha();
    void ConfereEspaco();

    QPrinter& impressora_;
    std::vector<Pagina> paginas_; // empty: no document begun
    QFont fonte_;
    // The cursor, in device pixels from the printable area's top left.
    double x_ = 0;
    double y_ = 0;
};

} // namespace tramelo
