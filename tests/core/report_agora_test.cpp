// The header texts of a report and the lines of its export.
#include "caixas_roteiro.h"
#include "plataforma/ambiente.h"
#include "report/agora.h"
#include "report/buffer.h"
#include "report/exportacao.h"
#include "report/frm_relatorio.h"

#include <gtest/gtest.h>

namespace tramelo {
namespace {

class RelogioFixo : public Relogio {
  public:
    Momento m;
    Momento Agora() override { return m; }
};

TEST(ReportAgora, HoraEDataDoBotao) {
    RelogioFixo relogio;
    relogio.m = {2026, 11, 23, 7, 5, 0, 1};
    Relogio* anterior = ambiente().relogio;
    ambiente().relogio = &relogio;
    FrmRelatorio r;
    r.txtData = "texto digitado";
    cmdAgora_Click(r);
    EXPECT_EQ(r.txtData, "07:05 - segunda-feira, 23 de novembro de 2026");
    EXPECT_EQ(r.foco, "txtData");
    relogio.m = {2027, 3, 6, 23, 59, 0, 6};
    cmdAgora_Click(r);
    EXPECT_EQ(r.txtData, "23:59 - sábado, 6 de março de 2027");
    EXPECT_EQ(DataCurta(relogio.m), "06/03/2027");
    ambiente().relogio = anterior;
}

TEST(ReportExportacao, LinhasNaOrdemDoArquivo) {
    FrmRelatorio r;
    r.txtData = "07:05 - segunda-feira, 23 de novembro de 2026";
    r.txtOS = "OS-17";
    r.txtCliente = "";
    std::vector<std::string> vazio = LinhasExportacao(r);
    ASSERT_EQ(vazio.size(), 7u);
    EXPECT_EQ(vazio[0], std::string(33, '=') + " Data Sheet " + std::string(33, '='));
    EXPECT_EQ(vazio[0].size(), 78u);
    EXPECT_EQ(vazio[1], "");
    EXPECT_EQ(vazio[2], "Hora - data......: 07:05 - segunda-feira, 23 de novembro de 2026");
    EXPECT_EQ(vazio[4], "Ordem de serviço.: OS-17");
    EXPECT_EQ(vazio[5], "Cliente..........: ");
    EXPECT_EQ(vazio[6], std::string(78, '='));

    AddRel(r, "");
    AddRel(r, "Beta = d/D");
    std::vector<std::string> linhas = LinhasExportacao(r);
    ASSERT_EQ(linhas.size(), 9u);
    EXPECT_EQ(linhas[6], "");
    EXPECT_EQ(linhas[7], "Beta = d/D");
}

} // namespace
} // namespace tramelo
