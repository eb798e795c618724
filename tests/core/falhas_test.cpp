// Faults that must lose nothing: a full disk and a read-only folder during a
// save, an export and a settings write; memory running out in "Calcular";
// the program killed in the middle of a save.
#include "caixas_roteiro.h"
#include "calculo_pronto.h"
#include "dialogos_roteiro.h"
#include "pasta_temporaria.h"

#include "document/arquivo_trl.h"
#include "document/campos.h"
#include "plataforma/canal.h"
#include "report/buffer.h"
#include "report/exportar.h"
#include "report/frm_relatorio.h"
#include "base/mod_base.h"
#include "shell/registro.h"
#include "document/calculo.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <dlfcn.h>
#include <filesystem>
#include <functional>
#include <random>
#include <set>
#include <sys/wait.h>
#include <unistd.h>

// The disk as the tests script it: files opened for writing under one folder
// fail, on open with EROFS (a read-only folder) or on the flush with the
// folder's error (ENOSPC, a full disk found when the buffered bytes go out;
// EIO, a failing device). Interposed here, in the test program, over the C
// library's own calls; inactive while no folder is set.
namespace {

std::string pastaEmFalha;
int erroDaPasta = 0;
std::set<FILE*> arquivosNoDiscoCheio;

template <typename F> F Real(const char* nome) {
    return reinterpret_cast<F>(dlsym(RTLD_NEXT, nome));
}

} // namespace

extern int alocacoesAteFalhar; // memoria_roteiro.cpp

extern "C" FILE* fopen(const char* caminho, const char* modo) {
    static auto real = Real<FILE* (*)(const char*, const char*)>("fopen");
    const bool naPasta = erroDaPasta != 0 && std::strpbrk(modo, "wax+") &&
                         std::string_view(caminho).starts_with(pastaEmFalha);
    if (naPasta && erroDaPasta == EROFS) return errno = EROFS, nullptr;
    FILE* f = real(caminho, modo);
    if (f && naPasta) arquivosNoDiscoCheio.insert(f);
    return f;
}

// The set is emptied with the folder, so a closed stream's address taken
// again by another stream later is no longer "full".
extern "C" int fflush(FILE* f) {
    static auto real = Real<int (*)(FILE*)>("fflush");
    if (!f || !arquivosNoDiscoCheio.count(f)) return real(f);
    errno = erroDaPasta;
    return EOF;
}

namespace tramelo::teste {
namespace {

class Falhas : public ::testing::Test {
  protected:
    void SetUp() override {
        canal1().Reinicia();
        // A saved calculation goes to the "Saves" folder under its caption.
        DefinePastas(pasta.str());
        CriaPasta(modBase().PastaSaves);
        DefinePastasRegistro(pasta / "config", pasta.str());
    }
    void TearDown() override {
        erroDaPasta = 0;
        arquivosNoDiscoCheio.clear();
        canal1().Reinicia();
    }

    PastaTemporaria pasta;
    CaixasRoteiro caixas;
    DialogosRoteiro dialogos;
};

TEST_F(Falhas, DiscoCheioEPastaSomenteLeitura) {
    auto f = CalculoPronto(0, 1);
    Preenche(*f, {{2, "1200"}, {4, "154,05"}, {9, "35"}});
    f->Caption = "calculo.trl";
    f->ArquivoCalculo = pasta / "Saves/calculo.trl";
    FrmRelatorio r;
    r.txtCliente = "Usina Norte";
    AddRel(r, "Beta  0,5231");
    const std::string relatorio = pasta / "Relatorios/relatorio.txt";
    // Each operation writes its file with the given text in it; the settings
    // give no box.
    struct Operacao {
        std::string arquivo;
        std::function<void(const std::string&)> grava;
        bool caixa;
    };
    const Operacao operacoes[] = {
        {f->ArquivoCalculo,
         [&](const std::string& texto) {
             f->txtTag.DefineTexto(texto);
             bool ok = false;
             TrameloSave(*f, false, ok);
         }, true},
        {relatorio,
         [&](const std::string& texto) {
             r.txtOS = texto;
             dialogos.nomes = {relatorio};
             mnuArquivoExportarRelatorio_Click(r);
             EXPECT_TRUE(r.Enabled);
         }, true},
        {pasta / "config/registro-usuario.json",
         [&](const std::string& texto) { GravaConfig("Config", "Ultimo", texto); }, false},
    };
    for (const Operacao& o : operacoes) {
        for (const auto& [erro, caixa] : {std::pair(ENOSPC, ":61Descrição do Erro: Disco cheio"),
                                          std::pair(EIO, ":57Descrição do Erro: Erro de E/S do dispositivo"),
                                          std::pair(EROFS, ":75Descrição do Erro: Erro de acesso ao caminho/arquivo")}) {
            SCOPED_TRACE(o.arquivo + " " + std::strerror(erro));
            o.grava("antes");
            const std::string antes = LeBytes(o.arquivo);
            caixas.mostradas.clear();
            pastaEmFalha = pasta.str();
            erroDaPasta = erro;
            o.grava("depois");
            erroDaPasta = 0;
            arquivosNoDiscoCheio.clear();
            EXPECT_EQ(LeBytes(o.arquivo), antes);
            ASSERT_EQ(caixas.mostradas.size(), o.caixa ? 1u : 0u);
            if (o.caixa) EXPECT_EQ(caixas.mostradas[0].titulo + caixas.mostradas[0].texto.substr(0, caixas.mostradas[0].texto.find('\n')),
                                   "Informação de Erro Código " + std::string(caixa));
            else EXPECT_EQ(LeConfig("Config", "Ultimo"), "antes");
            // Nothing half-written is left beside it, and the program goes on:
            // with room again, the same operation writes.
            for (const auto& e : std::filesystem::directory_iterator(
                     std::filesystem::path(o.arquivo).parent_path())) {
                const std::string nome = e.path().filename().string();
                EXPECT_FALSE(nome.starts_with(".") || nome.ends_with(".tmp")) << nome;
            }
            EXPECT_FALSE(canal1().Ocupado());
            o.grava("depois");
            EXPECT_NE(LeBytes(o.arquivo).find("depois"), std::string::npos);
        }
    }
}

// Each allocation of "Calcular" in turn fails: each time the run ends with
// failure 7, nothing escapes, and the next run completes.
TEST_F(Falhas, MemoriaEsgotadaNoCalculo) {
    auto f = CalculoPronto(0, 1);
    Preenche(*f, Agua);
    for (int k = 0;; ++k) {
        alocacoesAteFalhar = k;
        const ResultadoCalculo r = cmdCalcular_Click(*f);
        const bool falhou = alocacoesAteFalhar < 0;
        alocacoesAteFalhar = -1;
        ASSERT_EQ(r.erro, (falhou ? ErroExecucao{7, "Memória insuficiente"} : ErroExecucao{})) << k;
        if (!falhou) break;
    }
}

// Killed at random points of saves in a loop, the file is always one of the
// two whole versions, never a mix.
TEST_F(Falhas, MortoNoMeioDoSalvar) {
    auto f = CalculoPronto(0, 1);
    for (int i : {2, 4, 5, 8, 9, 17, 18, 20, 28})
        f->txtDados(i)->DefineTexto(std::string(200, static_cast<char>('0' + i % 10)));
    f->Caption = "morto.trl";
    f->ArquivoCalculo = pasta / "Saves/morto.trl";
    auto Salva = [&](int v) {
        f->txtTag.DefineTexto(v ? "nova" : "velha");
        bool ok = false;
        TrameloSave(*f, false, ok);
        return LeBytes(f->ArquivoCalculo);
    };
    const std::string versoes[2] = {Salva(0), Salva(1)};
    ASSERT_NE(versoes[0], versoes[1]);
    std::mt19937 sorte(20261123);
    for (int volta = 0; volta < 40; ++volta) {
        const pid_t filho = fork();
        ASSERT_GE(filho, 0);
        if (filho == 0)
            for (int v = 0;; v ^= 1) Salva(v);
        usleep(std::uniform_int_distribution<useconds_t>(200, 5000)(sorte));
        kill(filho, SIGKILL);
        waitpid(filho, nullptr, 0);
        const std::string agora = LeBytes(f->ArquivoCalculo);
        EXPECT_TRUE(agora == versoes[0] || agora == versoes[1]) << "volta " << volta;
    }
}

} // namespace
} // namespace tramelo::teste
