// Instances under other names never answer; a socket left by a crashed first
// instance doesn't stop the next. (A second start handing its file over is a
// journey of the real program.)

#include "app/ligacao_qt.h"

#include <QApplication>
#include <QElapsedTimer>
#include <gtest/gtest.h>


namespace tramelo::teste {
namespace {

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
