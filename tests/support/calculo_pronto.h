// A calculation made the way a user makes one: the window loaded, then orifice
// kind, fluid and tap position chosen through their lists, the fluid's name
// left empty. Every unit list stands on its first unit, the density mode as
// the fluid sets it.
#pragma once

#include "caixas_roteiro.h"
#include "document/frm_calc_tramelo.h"
#include "document/janela.h"
#include "sizing/catalogo.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace tramelo::teste {

inline std::unique_ptr<FrmCalcTramelo> CalculoPronto(int fluido, int tomada, int placa = 1) {
    CarregaCatalogo();
    auto f = std::make_unique<FrmCalcTramelo>();
    {
        // Its own answers, so the fluid's name box stays out of the caller's script.
        CaixasRoteiro semNome;
        Form_Load(*f);
        f->cboTramelo.DefineListIndex(placa - 1);
        f->cboFluido.DefineListIndex(fluido);
        f->cboTomada.DefineListIndex(tomada - 1);
    }
    f->Caption = "Cálculo 1";
    return f;
}

inline void Preenche(FrmCalcTramelo& f, const std::vector<std::pair<int, std::string>>& valores) {
    for (const auto& [i, texto] : valores)
        f.txtDados(i)->DefineTexto(texto);
}

} // namespace tramelo::teste
