#include "base/mod_base.h"

#include "plataforma/controles.h"
#include "plataforma/ambiente.h"
#include "plataforma/texto.h"
#include "base/instalacao.h"

#include <cstdlib>
#include <filesystem>

#include <unistd.h>

namespace tramelo {

ModBase& modBase() {
    static ModBase m;
    return m;
}

std::string PastaDadosPrograma(const std::string& pastaExecutavel) {
    if (!pastaExecutavel.empty() && !ProgramaInstalado(pastaExecutavel) &&
        access(pastaExecutavel.c_str(), W_OK) == 0)
        return pastaExecutavel;
    std::string base;
    if (const char* x = std::getenv("XDG_DATA_HOME"); x && *x) base = x;
    else if (const char* h = std::getenv("HOME"); h && *h) base = std::string(h) + "/.local/share";
    else base = "/tmp";
    return base + "/Tramelo";
}

void DefinePastas(const std::string& pastaPrograma) {
    ModBase& m = modBase();
    m.PastaPrograma = pastaPrograma;
    m.PastaSaves = pastaPrograma + "/Saves";
    m.PastaRelatorios = pastaPrograma + "/Relatorios";
}

void InformaErro(const ErroExecucao& erro) {
    MousePointer(vbDefault);
    MsgBox("Descrição do Erro: " + erro.descricao + "\n\n" +
               "Em caso de dúvidas, informe o código e descrição do erro ao fabricante do software",
           vbCritical + vbOKOnly, "Informação de Erro Código :" + std::to_string(erro.numero));
}

void InformaErro(const Falha& falha) { InformaErro(ErroExecucao{falha.numero(), falha.descricao()}); }

void SelecionaTexto(CaixaTexto& campo) {
    campo.SelStart = 0;
    campo.SelLength = Len(campo.Text());
}

void CriaPasta(const std::string& pasta) {
    if (ExistePasta(pasta)) return;
    std::error_code ec;
    std::filesystem::create_directories(pasta, ec);
    if (ec || !PastaNoDisco(pasta)) throw Falha(76);
}

bool ExistePasta(const std::string& pasta) {
    if (pasta.empty()) return false;
    FonteArquivos* fonte = ambiente().arquivos;
    return fonte ? fonte->ExistePasta(pasta) : PastaNoDisco(pasta);
}

bool ExisteArquivo(const std::string& arquivo) {
    if (arquivo.empty()) return false;
    FonteArquivos* fonte = ambiente().arquivos;
    return fonte ? fonte->ExisteArquivo(arquivo) : ArquivoNoDisco(arquivo);
}

} // namespace tramelo
