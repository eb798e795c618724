// The header text the report's clock button writes.
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

} // namespace
} // namespace tramelo
