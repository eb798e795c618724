#include "report/buffer.h"

#include "plataforma/texto.h"
#include "report/frm_relatorio.h"

namespace tramelo {

void AddRel(FrmRelatorio& r, std::string_view item) {
    std::string linha;
    linha.reserve(item.size() + 1);
    linha += ' ';
    linha += item;
    r.lstRelatorio.push_back(std::move(linha));
}

void AddRel2(FrmRelatorio& r, std::string_view preenche, const Variante& campo1, short largura1,
             const Variante& campo2, short largura2, const Variante& campo3, short largura3,
             const Variante& campo4, short largura4, const Variante& campo5, short largura5) {
    const Variante* campos[5] = {&campo1, &campo2, &campo3, &campo4, &campo5};
    const short larguras[5] = {largura1, largura2, largura3, largura4, largura5};
    std::string acumulado;
    for (int i = 0; i < 5; ++i) {
        std::string t = campos[i]->Texto();
        int w = larguras[i];
        if (w < 1) {
            acumulado += t;
        } else if (w > Len(t)) {
            acumulado += t;
            acumulado += String(w - Len(t), preenche);
        } else {
            acumulado += Left(t, w - 1);
            acumulado += preenche;
        }
    }
    AddRel(r, acumulado);
}

} // namespace tramelo
