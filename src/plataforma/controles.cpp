#include "plataforma/controles.h"

#include "plataforma/falha.h"

#include <algorithm>

namespace tramelo {

void CaixaTexto::DefineTexto(std::string t) {
    if (t == texto_) return;
    texto_ = std::move(t);
    if (Change) Change();
}

std::string CaixaCombinacao::Text() const {
    if (indice_ < 0 || indice_ >= ListCount()) return {};
    return itens[static_cast<size_t>(indice_)].texto;
}

void CaixaCombinacao::DefineListIndex(int i) {
    if (i < -1 || i >= ListCount()) throw Falha(380, "Valor de propriedade inválido");
    if (i == indice_) return;
    indice_ = i;
    if (Click) Click();
}

void CaixaCombinacao::AddItem(std::string texto, int itemData) {
    itens.push_back({std::move(texto), itemData});
}

void CaixaCombinacao::Clear() {
    itens.clear();
    indice_ = -1;
}

void BarraRolagem::DefineValue(int v) {
    v = std::clamp(v, 0, std::max(Max, 0));
    if (v == Value) return;
    Value = v;
    if (Change) Change();
}

void BarraRolagem::DefineMax(int m) {
    Max = m;
    if (Value > std::max(Max, 0)) DefineValue(Max);
}

} // namespace tramelo
