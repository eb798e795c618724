// A picture of figures as plain data: two axes with their ticks already
// written in the program's number text, and the series to draw on them. The
// core says what a picture shows; the desktop draws it, on the screen and on
// the printed page alike, so both show the same thing.
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace tramelo {

struct EixoGrafico {
    std::string titulo;
    double minimo = 0, maximo = 1;
    bool logaritmico = false; // decades; minimo and maximo then above zero
    std::vector<std::pair<double, std::string>> marcas; // value and its text
};

enum class Traco {
    Regiao,   // a closed polygon, filled pale in its colour
    Linha,    // an open polyline
    Pontos,   // a round marker at each point
    Destaque, // a diamond at each point, drawn larger, for the design point
};

struct SerieGrafico {
    Traco traco = Traco::Linha;
    std::string nome;  // in the legend; empty keeps it out
    std::uint32_t cor = 0; // 0xRRGGBB
    std::vector<std::pair<double, double>> pontos; // (x, y)
    std::vector<std::string> rotulos; // beside each point; empty for none
};

struct Grafico {
    std::string titulo;
    EixoGrafico x, y;
    std::vector<SerieGrafico> series; // drawn in this order
};

} // namespace tramelo
