#include "lote/lote.h"

#include "document/ciclo.h"
#include "document/frm_calc_tramelo.h"
#include "document/janelas.h"
#include "plataforma/ambiente.h"
#include "plataforma/arquivo_lido.h"
#include "report/exportacao.h"
#include "document/calculo.h"
#include "plataforma/canal.h"
#include "sizing/execucao.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <utility>
#include <vector>

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

// Folders found on the disk during this run. The open of every file makes
// sure of the "Saves" folder; once it is there, it is taken to stay. A folder
// that isn't there is asked about again, so a failure repeats as it would.
bool PastaVista(const std::string& pasta) {
    static std::vector<std::string> vistas;
    if (std::find(vistas.begin(), vistas.end(), pasta) != vistas.end()) return true;
    if (!PastaNoDisco(pasta)) return false;
    if (vistas.size() < 16) vistas.push_back(pasta);
    return true;
}

// The file of the run as its header check read it: the channel gets those
// bytes instead of reading the file again, when they are the whole file, and
// whether it is a file is answered from that read.
class ArquivoJaLido : public FonteArquivos {
  public:
    ArquivoJaLido(std::filesystem::path caminho, ArquivoLido lido, bool inteiro)
        : caminho_(std::move(caminho)), lido_(std::move(lido)), inteiro_(inteiro),
          anterior_(ambiente().arquivos) {
        ambiente().arquivos = this;
    }
    ~ArquivoJaLido() override { ambiente().arquivos = anterior_; }

    ArquivoLido Le(const std::filesystem::path& caminho) override {
        // Handed over once: a second open of the same file reads it afresh.
        if (!inteiro_ || caminho.native() != caminho_.native()) return LeArquivoInteiro(caminho);
        inteiro_ = false;
        return std::move(lido_);
    }
    bool ExisteArquivo(const std::string& nome) override {
        if (regular_ && nome == caminho_.native()) return true;
        return ArquivoNoDisco(nome);
    }
    bool ExistePasta(const std::string& nome) override { return PastaVista(nome); }

  private:
    std::filesystem::path caminho_;
    ArquivoLido lido_;
    bool inteiro_;
    bool regular_ = lido_.estado == ArquivoLido::Estado::Lido && lido_.regular;
    FonteArquivos* anterior_;
};

bool Digitos(std::string_view s) {
    return !s.empty() && s.find_first_not_of("0123456789") == std::string_view::npos;
}

// Line 5: the fluid's number, then, as far as the line goes, a comma, blanks
// and the quote of its name.
bool LinhaDoFluido(std::string_view s) {
    const size_t virgula = s.find(',');
    if (!Digitos(s.substr(0, virgula))) return false;
    if (virgula == std::string_view::npos) return true;
    const size_t aspas = s.find_first_not_of(' ', virgula + 1);
    return aspas == std::string_view::npos || s[aspas] == '"';
}

// Enough of a file to hold any header a user typed.
constexpr std::size_t BytesDoCabecalho = 64 * 1024;

// Each file starts as the first of a run would: a file that failed before
// it may have left the channel taken (the desktop program keeps that, a batch
// of unrelated files must not) or a window behind.
void EstadoLimpo() {
    canal1().Reinicia();
    for (auto& f : Calculos()) f->DefineAlterado(false);
    DescarregaTodosCalculos();
    filhoAtivo() = {};
}

} // namespace

bool PareceArquivoDeCalculo(std::string_view bytes) {
    if (bytes.empty() || bytes[0] != '"') return false;
    size_t inicio = 0;
    for (int linha = 1; linha <= 7 && inicio < bytes.size(); ++linha) {
        size_t fim = bytes.find_first_of("\r\n", inicio);
        if (fim == std::string_view::npos) fim = bytes.size();
        std::string_view s = bytes.substr(inicio, fim - inicio);
        const bool ok = linha == 4 || linha == 6 ? Digitos(s)
                        : linha == 5             ? LinhaDoFluido(s)
                                                 : !s.empty() && s[0] == '"';
        if (!ok) return false;
        inicio = fim;
        if (inicio < bytes.size() && bytes[inicio] == '\r') ++inicio;
        if (inicio < bytes.size() && bytes[inicio] == '\n') ++inicio;
    }
    return true;
}

ResultadoLote CalculaArquivo(const std::string& arquivo, bool sim) {
    EstadoLimpo();
    ResultadoLote r;
    r.arquivo = arquivo;
    CaixasLote caixas(r, sim);
    const std::filesystem::path caminho(std::u8string(arquivo.begin(), arquivo.end()));
    // One read gives the header and tells a folder. A file that can't be
    // read here goes on to the open, which tells why.
    ArquivoLido lido = LeArquivoInteiro(caminho, BytesDoCabecalho);
    if (lido.estado == ArquivoLido::Estado::Pasta ||
        (lido.estado == ArquivoLido::Estado::NaoAbriu && PastaNoDisco(caminho))) {
        r.arquivoDeCalculo = false;
        r.status = 3;
        MsgBox("É uma pasta, não um arquivo de cálculo", vbExclamation, "Arquivo: " + arquivo);
        return r;
    }
    if (lido.estado == ArquivoLido::Estado::Lido && !PareceArquivoDeCalculo(lido.bytes)) {
        r.arquivoDeCalculo = false;
        r.status = 3;
        MsgBox("Não é um arquivo de cálculo do Tramelo", vbExclamation, "Arquivo: " + arquivo);
        return r;
    }
    // Less than the limit read is the whole file.
    const bool inteiro =
        lido.estado == ArquivoLido::Estado::Lido && lido.bytes.size() < BytesDoCabecalho;
    ArquivoJaLido jaLido(caminho, std::move(lido), inteiro);
    FrmCalcTramelo* f = AbreCalculo(true, arquivo);
    if (!f || !f->ArquivoExiste) {
        r.status = 2;
        r.iso = CalculaIso5167(EntradaIso{});
        if (f) DescarregaCalculo(*f);
        return r;
    }
    Execucao x;
    ResultadoCalculo c = cmdCalcular_Click(*f, &x);
    AnexaExportacao(*f->Relatorio, r.exportacao);
    // The window goes away below with its report: its lines are taken, not copied.
    r.linhas = std::move(f->Relatorio->lstRelatorio);
    r.concluido = c.fim == FimCalculo::Concluido;
    if (c.fim == FimCalculo::Falhou) {
        r.erro = c.erro;
        r.mensagens.push_back({"Informação de Erro Código :" + std::to_string(c.erro.numero),
                               "Descrição do Erro: " + c.erro.descricao});
    }
    // The check the run made for its report window, not a second one.
    r.iso = f->Relatorio->iso.value_or(ResultadoIso{});
    r.ponto = f->Relatorio->pontoIso.value_or(PontoDeProjeto{});
    r.status = c.fim == FimCalculo::Concluido ? 0 : c.fim == FimCalculo::Interrompido ? 1 : 2;
    // Closed without a question: the tool never saves.
    f->DefineAlterado(false);
    DescarregaCalculo(*f);
    return r;
}

} // namespace tramelo
