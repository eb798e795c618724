#include "app/ligacao_qt.h"

#include "plataforma/caixas.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLockFile>
#include <QLocalServer>
#include <QLocalSocket>

#include <unistd.h>

namespace tramelo {

LigacaoQt::LigacaoQt() = default;
LigacaoQt::~LigacaoQt() = default;

QString LigacaoQt::NomeSocket(const std::string& servicoTopico) {
    QString nome = QString::fromStdString(servicoTopico);
    nome.replace(QLatin1Char('|'), QLatin1Char('.'));
    nome += QStringLiteral(".%1").arg(getuid());
    // The session's runtime folder is private to the user and to the login,
    // so two sessions of one user (or a test run beside the user's own copy)
    // never meet; without one, Qt puts the socket in the temporary folder.
    const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
    if (!runtime.isEmpty() && QFileInfo(runtime).isDir()) return runtime + QLatin1Char('/') + nome;
    return nome;
}

QString LigacaoQt::ArquivoTrava(const QString& nomeSocket) {
    // Beside the socket: a relative name lies in the temporary folder.
    const QString caminho = QDir::isAbsolutePath(nomeSocket)
                                ? nomeSocket
                                : QDir(QDir::tempPath()).filePath(nomeSocket);
    return caminho + QStringLiteral(".trava");
}

bool LigacaoQt::OutraInstancia() {
    // Two starts at the same instant: the look for a running instance and the
    // claim of the name are one step under a lock file, so exactly one start
    // becomes the first instance and the other finds it and hands over.
    const QString nome = NomeSocket(std::string(TituloPrograma) + "|" + TopicoMenu);
    QLockFile trava(ArquivoTrava(nome));
    trava.tryLock(5000); // past that, go on unlocked rather than not start
    // A socket file left by a crashed first instance answers nobody: that
    // isn't another instance.
    QLocalSocket s;
    s.connectToServer(nome);
    if (s.waitForConnected(300)) return true;
    // The name is ours from now on; starts that come before Atende wait in
    // the server's queue.
    Escuta(nome);
    return false;
}

void LigacaoQt::Escuta(const QString& nome) {
    delete servidor_;
    QLocalServer::removeServer(nome);
    servidor_ = new QLocalServer(this);
    servidor_->setSocketOptions(QLocalServer::UserAccessOption);
    if (!servidor_->listen(nome)) {
        delete servidor_;
        servidor_ = nullptr;
    }
}

bool LigacaoQt::Conecta(const std::string& servicoTopico) {
    cliente_ = std::make_unique<QLocalSocket>();
    cliente_->connectToServer(NomeSocket(servicoTopico));
    return cliente_->waitForConnected(1000);
}

bool LigacaoQt::Envia(const std::string& comando, int tempoLimite) {
    if (!cliente_ || cliente_->state() != QLocalSocket::ConnectedState) return false;
    const int ms = tempoLimite * 100;
    cliente_->write(QByteArray::fromStdString(comando) + '\n');
    if (!cliente_->waitForBytesWritten(ms)) return false;
    // Taken when the running instance answers.
    return cliente_->waitForReadyRead(ms) && cliente_->readAll().startsWith("ok");
}

void LigacaoQt::Atende(const std::string& servicoTopico,
                       std::function<void(const std::string&)> recebe) {
    const QString nome = NomeSocket(servicoTopico);
    if (!servidor_ || servidor_->serverName() != nome) Escuta(nome);
    if (!servidor_) return;
    auto aceita = [this, recebe] {
        while (QLocalSocket* s = servidor_->nextPendingConnection()) {
            connect(s, &QLocalSocket::disconnected, s, &QObject::deleteLater);
            auto le = [s, recebe] {
                while (s->canReadLine()) {
                    QByteArray linha = s->readLine();
                    linha.chop(1);
                    s->write("ok\n");
                    s->flush();
                    const std::string comando = linha.toStdString();
                    // Served on the main loop, after this event.
                    QMetaObject::invokeMethod(
                        QCoreApplication::instance(), [recebe, comando] { recebe(comando); },
                        Qt::QueuedConnection);
                }
            };
            connect(s, &QLocalSocket::readyRead, this, le);
            // A start that came while this one was coming up may have sent already.
            le();
        }
    };
    connect(servidor_, &QLocalServer::newConnection, this, aceita);
    aceita();
}

} // namespace tramelo
