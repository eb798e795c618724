// A calculation with its three selections made, its unit lists filled and
// each list on its first unit, for the sizing tests to fill in.
#pragma once

#include "document/frm_calc_tramelo.h"
#include "sizing/catalogo.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace tramelo::teste {

inline std::unique_ptr<FrmCalcTramelo> CalculoPronto(int fluido, int tomada, int placa = 1) {
    CarregaCatalogo();
    const Catalogo& c = catalogo();
    auto f = std::make_unique<FrmCalcTramelo>();
    auto lista = [&](int i, std::vector<int> escalas) {
        CaixaCombinacao* cbo = f->cboDados(i);
        cbo->Clear();
        for (int e : escalas) cbo->AddItem(c.NomeEscalas[static_cast<size_t>(e)], e);
        cbo->DefineListIndex(0);
    };
    if (fluido == 2) lista(2, {2, 3});
    else lista(2, {1, 2, 3});
    lista(4, {4});
    lista(5, {5, 6, 7});
    lista(8, {8});
    lista(9, {8});
    for (int i : {10, 12, 14}) lista(i, {10, 11});
    lista(16, {16});
    for (int i : {17, 18, 19}) lista(i, {17, 0});
    lista(20, {20, 21});
    lista(29, {29, 30});
    for (int i : LinhasDados) f->lblDados(i)->Caption = c.NomeDados[static_cast<size_t>(i)];
    f->Fluido = static_cast<short>(fluido);
    f->Tomada = static_cast<short>(tomada);
    f->Placa = static_cast<short>(placa);
    catalogo().NomeFluidos[0] = c.NomeFluidos[static_cast<size_t>(fluido + 1)];
    catalogo().NomeTomadas[0] = c.NomeTomadas[static_cast<size_t>(tomada)];
    f->cboMassaDensidade.DefineListIndex(fluido == 1 ? 1 : 0);
    for (int i = 17; i <= 19; ++i) f->cboDados(i)->DefineListIndex(fluido == 1 ? 1 : 0);
    f->Caption = "Cálculo 1";
    return f;
}

inline void Preenche(FrmCalcTramelo& f, const std::vector<std::pair<int, std::string>>& valores) {
    for (const auto& [i, texto] : valores) f.txtDados(i)->DefineTexto(texto);
}

} // namespace tramelo::teste
