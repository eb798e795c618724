// The link between two instances on a local socket, reachable by this user
// only: the socket's name is made of the service, the topic and the user.
#pragma once

#include "shell/entrada.h"

#include <QObject>

#include <memory>

class QLocalServer;
class QLocalSocket;

namespace tramelo {

class LigacaoQt : public QObject, public LigacaoInstancias {
    Q_OBJECT
  public:
    LigacaoQt();
    ~LigacaoQt() override;

    bool OutraInstancia() override;
    bool Conecta(const std::string& servicoTopico) override;
    bool Envia(const std::string& comando, int tempoLimite) override;
    void Atende(const std::string& servicoTopico,
                std::function<void(const std::string&)> recebe) override;

    // The socket's name for a "service|topic": one per user and session, in
    // $XDG_RUNTIME_DIR when the session has one.
    static QString NomeSocket(const std::string& servicoTopico);

  private:
    // The lock file that makes the look for an instance and the claim of the
    // name one step.
    static QString ArquivoTrava(const QString& nomeSocket);
    // Takes the name, replacing a socket file nobody answers on.
    void Escuta(const QString& nome);

    std::unique_ptr<QLocalSocket> cliente_;
    QLocalServer* servidor_ = nullptr; // a child of this object
};

} // namespace tramelo
