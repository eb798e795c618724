// A calculation made the way a user makes one: the window loaded, then orifice
// kind, fluid and tap position chosen through their lists, the fluid's name
// left empty. Every unit list stands on its first unit, the density mode as
// the fluid sets it.
#pragma once

#include "caixas_roteiro.h"
#include "document/frm_calc_tramelo.h"
#include "document/janela.h"
#include "base/barras.h"
#include "sizing/catalogo.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace tramelo::teste {

// A window after its load, the frame at its design state.
inline std::unique_ptr<FrmCalcTramelo> Carregado() {
    CarregaCatalogo();
    mdiMenu() = MdiMenu{};
    auto f = std::make_unique<FrmCalcTramelo>();
    Form_Load(*f);
    return f;
}

// The three selections made through their lists, the fluid left unnamed.
inline std::unique_ptr<FrmCalcTramelo> Escolhido(int fluido = 0, int tomada = 1, int placa = 1) {
    // Its own answers, so the fluid's name box stays out of the caller's script.
    CaixasRoteiro semNome;
    auto f = Carregado();
    f->cboTramelo.DefineListIndex(placa - 1);
    f->cboFluido.DefineListIndex(fluido);
    f->cboTomada.DefineListIndex(tomada - 1);
    return f;
}

inline std::unique_ptr<FrmCalcTramelo> CalculoPronto(int fluido, int tomada, int placa = 1) {
    auto f = Escolhido(fluido, tomada, placa);
    f->Caption = "Cálculo 1";
    return f;
}

// The liquid case of the worked figures: water at 20 ºC through flange taps,
// every other field as the window leaves it.
inline const std::vector<std::pair<int, std::string>> Agua = {
    {2, "50"}, {4, "102,26"}, {5, "25000"}, {8, "20"}, {9, "20"}, {17, "998"}, {18, "998"}, {20, "1"}, {28, "0,8"}};

inline void Preenche(FrmCalcTramelo& f, const std::vector<std::pair<int, std::string>>& valores) {
    for (const auto& [i, texto] : valores)
        f.txtDados(i)->DefineTexto(texto);
}

} // namespace tramelo::teste
