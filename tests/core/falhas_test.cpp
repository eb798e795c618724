// Faults that must lose nothing: a full disk and a read-only folder during a
// save, an export and a settings write; a settings file cut in the middle;
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
#include "shell/mod_base.h"
#include "shell/registro.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <dlfcn.h>
#include <filesystem>
#include <functional>
#include <random>
#include <set>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

// The disk as the tests script it: files opened for writing under one folder
// fail, on open with EROFS (a read-only folder) or on the flush with ENOSPC
// (a full disk, found when the buffered bytes go out). Interposed here,
// in the test program, over the C library's own calls; inactive while no
// folder is set.
namespace {

std::string pastaEmFalha;
int erroDaPasta = 0;
std::set<FILE*> arquivosNoDiscoCheio;

template <typename F> F Real(const char* nome) {
    return reinterpret_cast<F>(dlsym(RTLD_NEXT, nome));
}

bool NaPastaEmFalha(const char* caminho, const char* modo) {
    return erroDaPasta != 0 && std::strpbrk(modo, "wax+") &&
           std::string_view(caminho).starts_with(pastaEmFalha);
}

} // namespace

extern "C" FILE* fopen(const char* caminho, const char* modo) {
    static auto real = Real<FILE* (*)(const char*, const char*)>("fopen");
    if (!NaPastaEmFalha(caminho, modo)) return real(caminho, modo);
    if (erroDaPasta == EROFS) {
        errno = EROFS;
        return nullptr;
    }
    FILE* f = real(caminho, modo);
    if (f) arquivosNoDiscoCheio.insert(f);
    return f;
}

extern "C" int fflush(FILE* f) {
    static auto real = Real<int (*)(FILE*)>("fflush");
    if (f && arquivosNoDiscoCheio.count(f)) {
        errno = ENOSPC;
        return EOF;
    }
    return real(f);
}

extern "C" int fclose(FILE* f) {
    static auto real = Real<int (*)(FILE*)>("fclose");
    const bool cheio = arquivosNoDiscoCheio.erase(f) > 0;
    const int r = real(f);
    if (cheio) {
        errno = ENOSPC;
        return EOF;
    }
    return r;
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

    // Each operation writes its file with the given text in it.
    struct Operacao {
        const char* nome;
        std::string arquivo;
        std::function<void(const std::string&)> grava;
    };
    const Operacao operacoes[] = {
        {"salvar", f->ArquivoCalculo,
         [&](const std::string& texto) {
             f->txtTag.DefineTexto(texto);
             bool ok = false;
             TrameloSave(*f, false, ok);
         }},
        {"exportar", relatorio,
         [&](const std::string& texto) {
             r.txtOS = texto;
             dialogos.nomes = {relatorio};
             mnuArquivoExportarRelatorio_Click(r);
             EXPECT_TRUE(r.Enabled);
         }},
        {"configuracao", pasta / "config/registro-usuario.json",
         [&](const std::string& texto) { GravaConfig("Config", "Ultimo", texto); }},
    };
    struct Defeito {
        int erro;
        const char* caixa; // the box the program gives; none for the settings
    };
    const Defeito defeitos[] = {{ENOSPC, "Informação de Erro Código :61"},
                            {EROFS, "Informação de Erro Código :75"}};
    for (const Operacao& o : operacoes) {
        for (const Defeito& falha : defeitos) {
            SCOPED_TRACE(std::string(o.nome) + " " + std::strerror(falha.erro));
            o.grava("antes");
            const std::string antes = LeBytes(o.arquivo);
            ASSERT_NE(antes.find("antes"), std::string::npos);
            caixas.mostradas.clear();

            pastaEmFalha = pasta.str();
            erroDaPasta = falha.erro;
            o.grava("depois");
            erroDaPasta = 0;
            EXPECT_EQ(LeBytes(o.arquivo), antes);
            if (o.nome == std::string("configuracao")) {
                EXPECT_TRUE(caixas.mostradas.empty());
                EXPECT_EQ(LeConfig("Config", "Ultimo"), "antes");
            } else {
                ASSERT_EQ(caixas.mostradas.size(), 1u);
                EXPECT_EQ(caixas.mostradas[0].titulo, falha.caixa);
            }
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
    EXPECT_EQ(f->ArquivoCalculo, pasta / "Saves/calculo.trl");
}

TEST_F(Falhas, ConfiguracaoCortadaLeVazia) {
    GravaConfig("Config", "DicasIniciar", "0");
    GravaConfig("FilesMRU", "File1", pasta / "a.trl");
    for (const char* raiz : {"config/registro-usuario.json", "registro-maquina.json"}) {
        const std::string inteiro = LeBytes(pasta / raiz);
        GravaBytes(pasta / raiz, inteiro.substr(0, inteiro.size() / 2));
    }
    EXPECT_EQ(LeConfig("Config", "DicasIniciar"), "");
    EXPECT_EQ(LeConfig("FilesMRU", "File1"), "");
    // The next write starts a fresh root and keeps the cut one aside.
    GravaConfig("Config", "DicasIniciar", "1");
    EXPECT_EQ(LeConfig("Config", "DicasIniciar"), "1");
    EXPECT_TRUE(std::filesystem::exists(pasta / "config/registro-usuario.json.danificado"));
}

// Killed at random points of saves in a loop, the file is always one of the
// two whole versions, never a mix.
TEST_F(Falhas, MortoNoMeioDoSalvar) {
    auto f = CalculoPronto(0, 1);
    for (int i : {2, 4, 5, 8, 9, 17, 18, 20, 28})
        f->txtDados(i)->DefineTexto(std::string(200, static_cast<char>('0' + i % 10)));
    f->Caption = "morto.trl";
    f->ArquivoCalculo = pasta / "Saves/morto.trl";
    std::string versoes[2];
    for (int v : {0, 1}) {
        f->txtTag.DefineTexto(v ? "nova" : "velha");
        bool ok = false;
        TrameloSave(*f, false, ok);
        versoes[v] = LeBytes(f->ArquivoCalculo);
    }
    ASSERT_NE(versoes[0], versoes[1]);
    std::mt19937 sorte(20261123);
    int noMeio = 0;
    for (int volta = 0; volta < 40; ++volta) {
        const pid_t filho = fork();
        ASSERT_GE(filho, 0);
        if (filho == 0) {
            for (int v = 0;; v ^= 1) {
                f->txtTag.DefineTexto(v ? "nova" : "velha");
                bool ok = false;
                TrameloSave(*f, false, ok);
            }
        }
        usleep(std::uniform_int_distribution<useconds_t>(200, 5000)(sorte));
        kill(filho, SIGKILL);
        int estado = 0;
        waitpid(filho, &estado, 0);
        const std::string agora = LeBytes(f->ArquivoCalculo);
        EXPECT_TRUE(agora == versoes[0] || agora == versoes[1]) << "volta " << volta;
        // A temporary left behind is a save cut short; it is hidden, and the
        // next save takes another name.
        for (const auto& e : std::filesystem::directory_iterator(pasta / "Saves"))
            if (e.path().filename().string().starts_with(".morto.trl.~")) {
                ++noMeio;
                std::filesystem::remove(e.path());
            }
    }
    std::printf("mortos no meio de um salvar: %d de 40\n", noMeio);
}

} // namespace
} // namespace tramelo::teste
