// One window for all starts: a second start of the program hands its file to
// the first and ends; instances under other names never answer it.
#include "caixas_roteiro.h"
#include "dialogos_roteiro.h"
#include "pasta_temporaria.h"

#include "app/ligacao_qt.h"
#include "app/programa_qt.h"
#include "document/frm_calc_tramelo.h"
#include "document/janelas.h"
#include "plataforma/canal.h"
#include "shell/entrada.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <gtest/gtest.h>

#include <filesystem>

namespace tramelo::teste {
namespace {

TEST(Instancia, SegundaPartidaAbreOArquivoNaPrimeira) {
    // The second start is a copy of the program in a folder of its own, which
    // keeps its data beside it; the first is this process.
    PastaTemporaria pasta;
    std::filesystem::create_directory(pasta / "primeira");
    std::filesystem::create_directory(pasta / "segunda");
    const std::string copia = pasta / "segunda/Tramelo";
    std::filesystem::copy_file(TRAMELO_PROGRAMA, copia);
    canal1().Reinicia();
    CaixasRoteiro caixas;
    DialogosRoteiro dialogos;
    LigacaoQt ligacao;
    const std::string agua = std::string(TRAMELO_EXEMPLOS) + "/agua.trl";
    {
        ProgramaQt programa(false);
        ligacaoInstancias() = &ligacao;
        const char* argv[] = {"Tramelo", agua.c_str()};
        DefineLinhaComando(2, argv);
        PastaExecutavel() = pasta / "primeira";
        ASSERT_TRUE(programa.Inicia());
        // The second start: a separate process of the real program.
        QProcess segunda;
        QProcessEnvironment ambiente = QProcessEnvironment::systemEnvironment();
        ambiente.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        segunda.setProcessEnvironment(ambiente);
        QElapsedTimer relogio;
        relogio.start();
        segunda.start(QString::fromStdString(copia), {QString(TRAMELO_EXEMPLOS) + "/vapor.trl"});
        while (segunda.state() != QProcess::NotRunning && relogio.elapsed() < 20000)
            QApplication::processEvents(QEventLoop::AllEvents, 20);
        EXPECT_EQ(segunda.exitCode(), 0);
        for (int i = 0; i < 50 && Calculos().size() < 2; ++i)
            QApplication::processEvents(QEventLoop::AllEvents, 20);
        ASSERT_EQ(Calculos().size(), 2u);
        EXPECT_EQ(Calculos()[1]->Caption, "vapor.trl");
        const char* vazio[] = {"Tramelo"};
        DefineLinhaComando(1, vazio);
    }
    ligacaoInstancias() = nullptr;
}

TEST(Instancia, OutroNomeNaoAtendeESoqueteAbandonadoNaoImpede) {
    LigacaoQt outra, ligacao, cliente;
    {
        LigacaoQt velha; // a socket file left by a crashed first instance answers nobody
        velha.Atende("Tramelo|Teste", [](const std::string&) {});
    }
    EXPECT_FALSE(ligacao.Conecta("Tramelo|Teste"));
    outra.Atende("Tramelo|Outra", [](const std::string&) { ADD_FAILURE(); });
    std::string recebido;
    ligacao.Atende("Tramelo|Teste", [&](const std::string& c) { recebido = c; });
    ASSERT_TRUE(cliente.Conecta("Tramelo|Teste"));
    cliente.Envia("/P x", 1);
    QElapsedTimer t;
    t.start();
    while (recebido.empty() && t.elapsed() < 3000)
        QApplication::processEvents(QEventLoop::AllEvents, 10);
    EXPECT_EQ(recebido, "/P x");
    EXPECT_FALSE(LigacaoQt().Conecta("Tramelo|Nenhuma"));
}

} // namespace
} // namespace tramelo::teste
