#include "report/exportacao.h"

#include "plataforma/texto.h"
#include "report/frm_relatorio.h"

namespace tramelo {

std::vector<std::string> LinhasExportacao(const FrmRelatorio& r) {
    std::vector<std::string> linhas;
    linhas.reserve(r.lstRelatorio.size() + 7);
    linhas.push_back(std::string(33, '=') + " Data Sheet " + std::string(33, '='));
    linhas.emplace_back();
    linhas.push_back(Mid(r.lblData, 2) + " " + r.txtData);
    linhas.emplace_back();
    linhas.push_back(Mid(r.lblOS, 2) + " " + r.txtOS);
    linhas.push_back(Mid(r.lblCliente, 2) + " " + r.txtCliente);
    for (const std::string& l : r.lstRelatorio) linhas.push_back(Mid(l, 2));
    linhas.push_back(std::string(78, '='));
    return linhas;
}

} // namespace tramelo
