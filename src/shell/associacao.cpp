#include "shell/associacao.h"

#include "plataforma/ambiente.h"
#include "plataforma/caixas.h"
#include "plataforma/texto.h"
#include "shell/entrada.h"
#include "base/instalacao.h"
#include "shell/registro.h"

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fstream>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace tramelo {
namespace {

namespace fs = std::filesystem;

const char* const ChaveClasse = "Software\\Classes\\Tramelo.File";
const char* const ChaveIcone = "Software\\Classes\\Tramelo.File\\DefaultIcon";
const char* const ChaveComando = "Software\\Classes\\Tramelo.File\\Shell\\Open\\Command";
const char* const DescricaoClasse = "Arquivo de Tramelo";

std::string CaminhoExecutavel() {
    return PastaExecutavel() + "/" + NomeExecutavel;
}

// A file of the desktop's databases; a failure is as silent as the store's.
void GravaTexto(const fs::path& arquivo, const std::string& texto) {
    std::error_code ec;
    fs::create_directories(arquivo.parent_path(), ec);
    std::ofstream f(arquivo, std::ios::binary | std::ios::trunc);
    f << texto;
}

std::string EntradaDesktop() {
    return "[Desktop Entry]\n"
           "Type=Application\n"
           "Version=1.0\n"
           "Name=Tramelo\n"
           "GenericName=Dimensionamento de placas de orifício\n"
           "Comment=Cálculo de placas de orifício e orifícios de restrição\n"
           "Exec=" +
           ArgumentoExec(CaminhoExecutavel()) +
           " %f\n"
           "Icon=tramelo\n"
           "Terminal=false\n"
           "MimeType=" +
           std::string(TipoMime) +
           ";\n"
           "Categories=Science;Engineering;\n";
}

std::string TipoMimeXml() {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<mime-info xmlns=\"http://www.freedesktop.org/standards/shared-mime-info\">\n"
           "  <mime-type type=\"" +
           std::string(TipoMime) +
           "\">\n"
           "    <comment>" +
           DescricaoClasse +
           "</comment>\n"
           "    <glob pattern=\"*.trl\"/>\n"
           "  </mime-type>\n"
           "</mime-info>\n";
}

void Executa(const std::string& programa, const std::vector<std::string>& argumentos) {
    Sistema* s = ambiente().sistema;
    if (!s || !s->Executa(programa, argumentos)) ExecutaSeInstalada(programa, argumentos);
}

// The desktop's side of the association: a desktop entry that opens the
// file and the MIME type of "*.trl", then their caches, when the tools exist.
// An installed copy brought its own entry and type with it; a second entry
// of the user's would only show the program twice in the menu.
void AssociaNaArea() {
    if (ProgramaInstalado(PastaExecutavel())) return;
    const fs::path dados = PastaDadosUsuario();
    GravaTexto(dados / "applications" / "Tramelo.desktop", EntradaDesktop());
    GravaTexto(dados / "mime" / "packages" / "tramelo.xml", TipoMimeXml());
    Executa("update-desktop-database", {(dados / "applications").string()});
    Executa("update-mime-database", {(dados / "mime").string()});
}

} // namespace

std::string ComandoAssociacao() {
    return CaminhoExecutavel() + " %1";
}

void VerificaAssociacao() {
    if (LeChave(HKEY_CLASSES_ROOT, ".trl", "") != ClasseArquivo) {
        AssociaArquivos();
        return;
    }
    if (LeChave(HKEY_LOCAL_MACHINE, ChaveComando, "").empty()) return;
    const std::string esperado = ComandoAssociacao();
    // Both sides are the expected command, not the stored one, so they never
    // differ: a command pointing to another copy is left alone and nothing is
    // asked. That stays; the question behind it is what a difference would do.
    const std::string armazenado = esperado;
    if (LCase(esperado) == LCase(armazenado)) return;
    PerguntaAssociacao();
}

bool AssociaArquivos() {
    GravaChave(HKEY_CLASSES_ROOT, ".trl", "", ClasseArquivo);
    GravaChave(HKEY_LOCAL_MACHINE, ChaveClasse, "", DescricaoClasse);
    GravaChave(HKEY_LOCAL_MACHINE, ChaveIcone, "", CaminhoExecutavel() + ",1");
    const bool gravado = GravaChave(HKEY_LOCAL_MACHINE, ChaveComando, "", ComandoAssociacao());
    AssociaNaArea();
    return gravado;
}

void PerguntaAssociacao() {
    if (LeConfig("System", "Associa") == "0") return;
    if (MsgBox("Os arquivos de extenção 'trl' não estão associados a este programa de Tramelo.",
               vbYesNo + vbExclamation, "Deseja restaurar a associação dos arquivos ?") == vbYes) {
        AssociaArquivos();
        return;
    }
    if (MsgBox("Deseja receber esta mensagem novamente?", vbYesNo + vbExclamation,
               "Associação de arquivos") == vbNo)
        GravaConfig("System", "Associa", "0");
}

std::string PastaDadosUsuario() {
    if (const char* x = std::getenv("XDG_DATA_HOME"); x && *x) return x;
    if (const char* h = std::getenv("HOME"); h && *h) return std::string(h) + "/.local/share";
    return "/tmp";
}

std::string ArgumentoExec(const std::string& caminho) {
    // Quoting rules of the desktop entry's Exec key: inside double quotes,
    // '"', '`', '$' and '\' take a backslash; the value's own escapes then
    // double every backslash, and '%' is written "%%".
    static const std::string reservados = " \t\n\"'\\><~|&;$*?#()`";
    std::string argumento = caminho;
    if (caminho.find_first_of(reservados) != std::string::npos) {
        argumento = "\"";
        for (char c : caminho) {
            if (c == '"' || c == '`' || c == '$' || c == '\\') argumento += '\\';
            argumento += c;
        }
        argumento += '"';
    }
    std::string valor;
    for (char c : argumento) {
        if (c == '%')
            valor += "%%";
        else if (c == '\\')
            valor += "\\\\";
        else if (c == '\n')
            valor += "\\n";
        else if (c == '\t')
            valor += "\\t";
        else
            valor += c;
    }
    return valor;
}

void ExecutaSeInstalada(const std::string& programa, const std::vector<std::string>& argumentos) {
    const char* path = std::getenv("PATH");
    if (!path) return;
    std::string achado;
    std::string lista = path;
    for (size_t inicio = 0; inicio <= lista.size();) {
        size_t fim = lista.find(':', inicio);
        if (fim == std::string::npos) fim = lista.size();
        const std::string pasta = lista.substr(inicio, fim - inicio);
        const std::string candidato = (pasta.empty() ? "." : pasta) + "/" + programa;
        if (access(candidato.c_str(), X_OK) == 0 && !fs::is_directory(candidato)) {
            achado = candidato;
            break;
        }
        inicio = fim + 1;
    }
    if (achado.empty()) return;

    std::vector<std::string> textos{programa};
    textos.insert(textos.end(), argumentos.begin(), argumentos.end());
    std::vector<char*> argv;
    for (std::string& t : textos)
        argv.push_back(t.data());
    argv.push_back(nullptr);

    posix_spawn_file_actions_t acoes;
    posix_spawn_file_actions_init(&acoes);
    for (int fd = 0; fd <= 2; ++fd)
        posix_spawn_file_actions_addopen(&acoes, fd, "/dev/null", fd == 0 ? O_RDONLY : O_WRONLY, 0);
    pid_t pid = 0;
    if (posix_spawn(&pid, achado.c_str(), &acoes, nullptr, argv.data(), environ) == 0) {
        int estado = 0;
        while (waitpid(pid, &estado, 0) < 0 && errno == EINTR) {
        }
    }
    posix_spawn_file_actions_destroy(&acoes);
}

} // namespace tramelo
