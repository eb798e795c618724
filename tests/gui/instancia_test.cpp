// One window for all starts: a second start of the program hands its file to
// the first and ends.
#include "caixas_roteiro.h"
#include "dialogos_roteiro.h"
#include "pasta_temporaria.h"

#include "app/ligacao_qt.h"
#include "app/programa_qt.h"
#include "document/frm_calc_tramelo.h"
#include "document/janelas.h"
#include "plataforma/canal.h"
#include "shell/barras.h"
#include "shell/entrada.h"
#include "shell/registro.h"

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
    ligacaoInstancias() = &ligacao;
    const std::string agua = std::string(TRAMELO_EXEMPLOS) + "/agua.trl";
    const std::string vapor = std::string(TRAMELO_EXEMPLOS) + "/vapor.trl";
    {
        ProgramaQt programa(false);
        ligacaoInstancias() = &ligacao;
        const char* argv[] = {"Tramelo", agua.c_str()};
        DefineLinhaComando(2, argv);
        PastaExecutavel() = pasta / "primeira";
        ASSERT_TRUE(programa.Inicia());
        ASSERT_EQ(Calculos().size(), 1u);
        EXPECT_EQ(Calculos()[0]->Caption, "agua.trl");

        // The second start: a separate process of the real program.
        QProcess segunda;
        QProcessEnvironment ambienteProcesso = QProcessEnvironment::systemEnvironment();
        ambienteProcesso.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        segunda.setProcessEnvironment(ambienteProcesso);
        QElapsedTimer relogio;
        relogio.start();
        segunda.start(QString::fromStdString(copia), {QString::fromStdString(vapor)});
        while (segunda.state() != QProcess::NotRunning && relogio.elapsed() < 20000)
            QApplication::processEvents(QEventLoop::AllEvents, 20);
        EXPECT_EQ(segunda.exitCode(), 0);
        std::printf("segunda partida entregou o arquivo e terminou em %lld ms\n",
                    static_cast<long long>(relogio.elapsed()));
        for (int i = 0; i < 50 && Calculos().size() < 2; ++i)
            QApplication::processEvents(QEventLoop::AllEvents, 20);
        ASSERT_EQ(Calculos().size(), 2u);
        EXPECT_EQ(Calculos()[1]->Caption, "vapor.trl");
        const char* vazio[] = {"Tramelo"};
        DefineLinhaComando(1, vazio);
    }
    ligacaoInstancias() = nullptr;
}

TEST(Instancia, SoqueteAbandonadoNaoImpedeAPrimeira) {
    // A socket file left by a crashed first instance answers nobody.
    LigacaoQt ligacao;
    {
        LigacaoQt velha;
        velha.Atende("Tramelo|Teste", [](const std::string&) {});
    }
    EXPECT_FALSE(ligacao.Conecta("Tramelo|Teste"));
    std::string recebido;
    ligacao.Atende("Tramelo|Teste", [&](const std::string& c) { recebido = c; });
    LigacaoQt cliente;
    ASSERT_TRUE(cliente.Conecta("Tramelo|Teste"));
    QElapsedTimer t;
    t.start();
    bool enviado = false;
    // The server answers on the event loop, so the send waits in a thread-free
    // way: pump until the command arrives.
    cliente.Envia("/P x", 1);
    while (recebido.empty() && t.elapsed() < 3000)
        QApplication::processEvents(QEventLoop::AllEvents, 10);
    enviado = !recebido.empty();
    EXPECT_TRUE(enviado);
    EXPECT_EQ(recebido, "/P x");
}

} // namespace
} // namespace tramelo::teste
