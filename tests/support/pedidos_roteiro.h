// A desktop that only writes down what the core asked of it.
#pragma once

#include "base/pedidos.h"
#include "plataforma/sistema.h"

#include <string>
#include <vector>

namespace tramelo {

struct PedidosRoteiro : PedidosDesktop {
    std::string pedidos;
    void AbreCalculadora(FrmCalcTramelo&, int indice) override {
        pedidos += "calculadora " + std::to_string(indice) + " ";
    }
    void ImprimeRelatorio(FrmRelatorio&) override { pedidos += "imprime "; }
    void ExportaRelatorio(FrmRelatorio&) override { pedidos += "exporta "; }
    void MostraDicas() override { pedidos += "dica "; }
    void Sai() override { pedidos += "sai"; }
};

// A platform that runs and opens nothing but writes down each program it was
// asked to run and each file or address it was asked to open.
struct SistemaRoteiroExecuta : Sistema {
    std::vector<std::vector<std::string>> executados;
    std::vector<std::string> abertos;
    bool executa = true; // false: leaves the run to the caller, as a bare platform
    void DoEvents() override {}
    void MousePointer(int) override {}
    bool Abre(const std::string& caminho) override {
        abertos.push_back(caminho);
        return false;
    }
    bool Executa(const std::string& p, const std::vector<std::string>& a) override {
        if (!executa) return false;
        executados.push_back({p});
        executados.back().insert(executados.back().end(), a.begin(), a.end());
        return true;
    }
};

} // namespace tramelo
