#include "shell/entrada.h"

#include "plataforma/ambiente.h"
#include "plataforma/caixas.h"
#include "plataforma/texto.h"
#include "shell/abertura.h"
#include "shell/inicio.h"
#include "base/mod_base.h"
#include "shell/registro.h"
#include "sizing/catalogo.h"

#include <cstdlib>
#include <filesystem>

namespace tramelo {
namespace {

// The hand-over of a second start, then its end. Every step ignores its
// failure: the command is sent whatever happened before, and a failed send
// goes unreported.
void SegundaInstancia(LigacaoInstancias& lblDDE) {
    const std::string titulo = TituloAplicacao();
    TituloAplicacao() = TituloInstanciaAnterior;
    for (int i = 0; i < TentativasLigacao; ++i) {
        bool ligado = false;
        try {
            ligado = lblDDE.Conecta(titulo + "|" + TopicoMenu);
        } catch (...) {
        }
        if (ligado) break;
        DoEvents();
    }
    for (int i = 0; i < BombeamentosEnvio; ++i)
        DoEvents();
    try {
        lblDDE.Envia("/P " + LinhaComando(), TempoLimiteLigacao);
    } catch (...) {
    }
    Sistema* s = ambiente().sistema;
    if (!s || !s->Encerra()) std::exit(0);
}

} // namespace

LigacaoInstancias*& ligacaoInstancias() {
    static LigacaoInstancias* l = nullptr;
    return l;
}

std::string& LinhaComando() {
    static std::string s;
    return s;
}

std::string JuntaArgumentos(int argc, const char* const* argv) {
    std::string s;
    for (int i = 1; i < argc; ++i) {
        if (i > 1) s += ' ';
        s += argv[i];
    }
    return s;
}

std::string& PastaExecutavel() {
    static std::string s;
    return s;
}

std::string PastaDoExecutavel(const char* argv0) {
    namespace fs = std::filesystem;
    std::error_code ec;
    fs::path p = fs::read_symlink("/proc/self/exe", ec);
    if (ec || p.empty()) {
        if (!argv0 || !*argv0) return fs::current_path(ec).string();
        p = fs::absolute(argv0, ec);
    }
    return p.parent_path().string();
}

void DefineLinhaComando(int argc, const char* const* argv) {
    LinhaComando() = JuntaArgumentos(argc, argv);
    PastaExecutavel() = PastaDoExecutavel(argc > 0 ? argv[0] : nullptr);
}

std::string& TituloAplicacao() {
    static std::string s = TituloPrograma;
    return s;
}

void LeLinhaComando() {
    const std::string& linha = LinhaComando();
    std::string& arquivo = modBase().ArquivoInicial;
    const std::string prefixo = Left(linha, 2);
    // All but the first three characters: a line shorter than that fails.
    if (prefixo == "/A")
        arquivo = Mid(linha, 4, Len(linha) - 3);
    else if (prefixo == "/C")
        arquivo = Mid(linha, 4, Len(linha) - 3);
    else
        arquivo = linha;
}

void Main() {
    // The splash's hidden label is the link's client end, so it comes first.
    FrmAbertura_Load(frmAbertura());
    LigacaoInstancias* lblDDE = ligacaoInstancias();
    if (lblDDE && lblDDE->OutraInstancia()) {
        SegundaInstancia(*lblDDE);
        return;
    }
    DefinePastas(PastaDadosPrograma(PastaExecutavel()));
    DefinePastasRegistro(PastaConfiguracaoUsuario(), modBase().PastaPrograma);
    CarregaCatalogo();
    IniciaPrograma();
}

} // namespace tramelo
