#include "report/exportacao.h"

#include "plataforma/texto.h"
#include "report/frm_relatorio.h"

#include <string_view>
#include <utility>

namespace tramelo {
namespace {

// The layout, once for both forms: `linha` gets each line's pieces in order,
// `fim` ends the line.
template <class Linha, class Fim>
void Percorre(const FrmRelatorio& r, Linha&& linha, Fim&& fim) {
    static const std::string iguais(78, '=');
    linha(std::string_view(iguais).substr(0, 33));
    linha(" Data Sheet ");
    linha(std::string_view(iguais).substr(0, 33));
    fim();
    fim();
    linha(MidVista(r.lblData, 2));
    linha(" ");
    linha(r.txtData);
    fim();
    fim();
    linha(MidVista(r.lblOS, 2));
    linha(" ");
    linha(r.txtOS);
    fim();
    linha(MidVista(r.lblCliente, 2));
    linha(" ");
    linha(r.txtCliente);
    fim();
    for (const std::string& l : r.lstRelatorio) {
        linha(MidVista(l, 2));
        fim();
    }
    linha(iguais);
    fim();
}

} // namespace

std::vector<std::string> LinhasExportacao(const FrmRelatorio& r) {
    std::vector<std::string> linhas;
    linhas.reserve(r.lstRelatorio.size() + 7);
    std::string atual;
    Percorre(
        r, [&](std::string_view pedaco) { atual += pedaco; },
        [&] { linhas.push_back(std::exchange(atual, {})); });
    return linhas;
}

void AnexaExportacao(const FrmRelatorio& r, std::string& texto) {
    // Measured first, so the text grows once.
    std::size_t tamanho = texto.size();
    Percorre(
        r, [&](std::string_view pedaco) { tamanho += pedaco.size(); }, [&] { ++tamanho; });
    texto.reserve(tamanho);
    Percorre(
        r, [&](std::string_view pedaco) { texto += pedaco; }, [&] { texto += '\n'; });
}

} // namespace tramelo
