#include "report/frm_relatorio.h"

#include "plataforma/notificador.h"
#include "plataforma/texto.h"

namespace tramelo {

namespace {

// The heading over the report's columns, the same for every report.
const std::string& CabecalhoColunas() {
    static const std::string cabecalho = [] {
        std::string s = " Descrição";
        s += String(35 - Len("Descrição"), " ") + "Valor";
        s += String(79 - Len(s) - Len("Escala"), " ") + "Escala";
        return s;
    }();
    return cabecalho;
}

} // namespace

FrmRelatorio::FrmRelatorio() : lblMenu(CabecalhoColunas()) {}

void FrmRelatorio::Show() {
    Visible = true;
    Notifica(Mudanca::Relatorio, this);
}

void FrmRelatorio::Hide() {
    Visible = false;
    Notifica(Mudanca::Relatorio, this);
}

void FrmRelatorio::ZOrder() {
    static int contador = 0;
    ordemZ = ++contador;
    Notifica(Mudanca::Relatorio, this);
}

} // namespace tramelo
