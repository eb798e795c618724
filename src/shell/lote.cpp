#include "shell/lote.h"

#include "document/ciclo.h"
#include "document/frm_calc_tramelo.h"
#include "document/janelas.h"
#include "plataforma/ambiente.h"
#include "report/exportacao.h"
#include "sizing/calculo.h"
#include "sizing/execucao.h"

#include <cstdlib>

namespace tramelo {
namespace {

// The tool's user: "Não" to every question but the limits one with --sim,
// an empty text to every input box; each box is kept.
class CaixasLote : public Caixas {
  public:
    CaixasLote(ResultadoLote& r, bool sim) : r_(r), sim_(sim), anterior_(ambiente().caixas) {
        ambiente().caixas = this;
    }
    ~CaixasLote() override { ambiente().caixas = anterior_; }

    int MsgBox(const std::string& texto, int estilo, const std::string& titulo) override {
        r_.mensagens.push_back({titulo, texto});
        // The common error box: keep its number and description.
        const std::string prefixo = "Informação de Erro Código :";
        if ((estilo & 0x70) == vbCritical && titulo.rfind(prefixo, 0) == 0) {
            const std::string cabeca = "Descrição do Erro: ";
            std::string descricao =
                texto.rfind(cabeca, 0) == 0 ? texto.substr(cabeca.size()) : texto;
            descricao = descricao.substr(0, descricao.find("\n\n"));
            r_.erro = ErroExecucao{std::atoi(titulo.c_str() + prefixo.size()), descricao};
        }
        switch (estilo & 7) {
        case vbYesNo:
            return sim_ && texto == "Deseja alterar o dados para cálculo?" ? vbYes : vbNo;
        case vbYesNoCancel:
            return vbNo;
        case vbOKCancel:
            return vbOK;
        default:
            return vbOK;
        }
    }
    std::string InputBox(const std::string& prompt, const std::string& titulo,
                         const std::string&) override {
        r_.mensagens.push_back({titulo, prompt});
        return {};
    }

  private:
    ResultadoLote& r_;
    bool sim_;
    Caixas* anterior_;
};

} // namespace

ResultadoLote CalculaArquivo(const std::string& arquivo, bool sim) {
    ResultadoLote r;
    r.arquivo = arquivo;
    CaixasLote caixas(r, sim);
    FrmCalcTramelo* f = AbreCalculo(true, arquivo);
    if (!f || !f->ArquivoExiste) {
        r.status = 2;
        r.iso = CalculaIso5167(EntradaIso{});
        if (f) DescarregaCalculo(*f);
        return r;
    }
    Execucao x;
    ResultadoCalculo c = cmdCalcular_Click(*f, &x);
    r.linhas = f->Relatorio->lstRelatorio;
    r.exportacao = LinhasExportacao(*f->Relatorio);
    r.concluido = c.fim == FimCalculo::Concluido;
    if (c.fim == FimCalculo::Falhou) {
        r.erro = c.erro;
        r.mensagens.push_back({"Informação de Erro Código :" + std::to_string(c.erro.numero),
                               "Descrição do Erro: " + c.erro.descricao});
    }
    r.iso = CalculaIso5167(
        EntradaIso5167(x, f->Fluido, f->Placa, f->Tomada, c.fim == FimCalculo::Concluido));
    r.status = c.fim == FimCalculo::Concluido ? 0 : c.fim == FimCalculo::Interrompido ? 1 : 2;
    // Closed without a question: the tool never saves.
    f->DefineAlterado(false);
    DescarregaCalculo(*f);
    return r;
}

} // namespace tramelo
