#include "sizing/catalogo.h"

namespace tramelo {

Catalogo& catalogo() {
    static Catalogo c;
    return c;
}

void CarregaCatalogo() {
    Catalogo& c = catalogo();
    c = Catalogo{};
    c.NomePlacas[1] = "Placa de orifício";
    c.NomePlacas[2] = "Orifício de restricão";

    c.NomeFluidos[1] = "Liqüido";
    c.NomeFluidos[2] = "Gas";
    c.NomeFluidos[3] = "Vapor";

    c.NomeTomadas[1] = "Flange Taps";
    c.NomeTomadas[2] = "Radius Taps";
    c.NomeTomadas[3] = "Vena Contracta";
    c.NomeTomadas[4] = "Corner Taps";
    c.NomeTomadas[5] = "Pipe Taps(2 1/2D e 8D)";

    auto& d = c.NomeDados;
    d[2] = "Vazão de projeto";
    d[4] = "Diâmetro interno do tubo";
    d[5] = "Pressão diferencial";
    d[8] = "Temperatura de leitura";
    d[9] = "Temperatura de projeto";
    d[10] = "Pressão Absoluta (leit)";
    d[12] = "Pressão Absoluta (proj)";
    d[14] = "Pressão satur. vapor a T.P.";
    d[16] = "Umidade de Projeto";
    d[17] = "Massa Específica (leit)";
    d[18] = "Massa Específica (proj)";
    d[19] = "Massa Específica (a 0ºC)";
    d[20] = "Viscosidade dinâmica (proj)";
    d[22] = "Densidade relativa (leit)";
    d[23] = "Densidade relativa (proj)";
    d[24] = "Densidade relativa (Ar = 1)";
    d[25] = "Fator Compensado (leit)";
    d[26] = "Fator Compensado (proj)";
    d[27] = "Relação k=Cp/Cv";
    d[28] = "Relação Vz.Usual/Vz.Max.";
    d[29] = "Fator do material utilizado";

    auto& e = c.NomeEscalas;
    e[0] = "";
    e[1] = "M³/h";
    e[2] = "Kg/h";
    e[3] = "T/h";
    e[4] = "mm";
    e[5] = "Pa";
    e[6] = "Kg/m²";
    e[7] = "mmCA";
    e[8] = "ºC";
    e[10] = "kPa";
    e[11] = "Kg/cm²";
    e[16] = "%";
    e[17] = "Kg/m³";
    e[20] = "cP";
    e[21] = "Pa.s";
    e[22] = "Densidade";
    for (int i = 23; i <= 28; ++i) e[i] = e[0];
    e[29] = "Aço inox 304/316";
    e[30] = "Outro material";

    c.Preenche = "_";
    c.Separa = " ";
}

} // namespace tramelo
