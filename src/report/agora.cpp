#include "report/agora.h"

#include "plataforma/ambiente.h"
#include "report/frm_relatorio.h"

#include <cstdio>

namespace tramelo {
namespace {

std::string DoisDigitos(int n) {
    char b[4] = {static_cast<char>('0' + n / 10 % 10), static_cast<char>('0' + n % 10), 0, 0};
    return b;
}

} // namespace

std::string HoraCurta(const Momento& m) { return DoisDigitos(m.hora) + ":" + DoisDigitos(m.minuto); }

std::string DataLonga(const Momento& m) {
    static const char* const dias[] = {"domingo",      "segunda-feira", "terça-feira", "quarta-feira",
                                       "quinta-feira", "sexta-feira",   "sábado"};
    static const char* const meses[] = {"janeiro", "fevereiro", "março",    "abril",
                                        "maio",    "junho",     "julho",    "agosto",
                                        "setembro", "outubro",  "novembro", "dezembro"};
    return std::string(dias[m.diaSemana % 7]) + ", " + std::to_string(m.dia) + " de " +
           meses[(m.mes + 11) % 12] + " de " + std::to_string(m.ano);
}

std::string DataCurta(const Momento& m) {
    return DoisDigitos(m.dia) + "/" + DoisDigitos(m.mes) + "/" + std::to_string(m.ano);
}

void cmdAgora_Click(FrmRelatorio& r) {
    Momento m = Agora();
    r.txtData = HoraCurta(m) + " - " + DataLonga(m);
    r.foco = "txtData";
}

} // namespace tramelo
