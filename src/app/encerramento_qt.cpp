#include "app/encerramento_qt.h"

#include <QApplication>
#include <QSessionManager>
#include <QSocketNotifier>
#include <QTimer>

#include <csignal>
#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>
#include <utility>

namespace tramelo {
namespace {

// The self-pipe: the handler only writes one byte, which is all a signal
// handler may safely do; the event loop reads it and takes the exit road.
int canal[2] = {-1, -1};

extern "C" void AoSinal(int) {
    const char c = 1;
    [[maybe_unused]] ssize_t n = ::write(canal[1], &c, 1);
}

} // namespace

EncerramentoQt::EncerramentoQt(std::function<bool()> fecha, std::function<void()> guarda)
    : fecha_(std::move(fecha)), guarda_(std::move(guarda)) {
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, canal) == 0) {
        ::fcntl(canal[1], F_SETFL, O_NONBLOCK);
        // Owned by this object, as its Qt child.
        auto* notificador = new QSocketNotifier(canal[0], QSocketNotifier::Read, this);
        connect(notificador, &QSocketNotifier::activated, this, [this] {
            char c;
            while (::recv(canal[0], &c, 1, MSG_DONTWAIT) > 0) {
            }
            Sinal();
        });
        struct sigaction acao = {};
        acao.sa_handler = AoSinal;
        sigemptyset(&acao.sa_mask);
        acao.sa_flags = SA_RESTART;
        for (int sinal : {SIGTERM, SIGHUP, SIGINT}) {
            Anterior antes{sinal, {}};
            ::sigaction(sinal, nullptr, &antes.acao);
            // Started under nohup, the hang-up was meant to pass unheard.
            // An ignored SIGINT is only the shell's doing for a job started
            // in the background, and Ctrl+C is then still meant to end it.
            if (sinal == SIGHUP && antes.acao.sa_handler == SIG_IGN) continue;
            ::sigaction(sinal, &acao, nullptr);
            anteriores_.push_back(antes);
        }
    }
    // Connected directly: the session waits for the answer inside the call.
    connect(qApp, &QGuiApplication::commitDataRequest, this, &EncerramentoQt::FimDaSessao,
            Qt::DirectConnection);
}

EncerramentoQt::~EncerramentoQt() {
    for (const Anterior& a : anteriores_)
        ::sigaction(a.sinal, &a.acao, nullptr);
    for (int& fd : canal)
        if (fd >= 0) {
            ::close(fd);
            fd = -1;
        }
}

void EncerramentoQt::Sinal() {
    // A box or dialog that is open keeps its answer: the exit waits until it
    // is closed, as the user's own exit would have to.
    if (QApplication::activeModalWidget()) {
        QTimer::singleShot(250, this, &EncerramentoQt::Sinal);
        return;
    }
    fecha_();
}

void EncerramentoQt::FimDaSessao(QSessionManager& sessao) {
    if (sessao.allowsInteraction()) {
        const bool fechou = fecha_();
        sessao.release();
        // A cancel at a calculation's question keeps the session going too.
        if (!fechou) sessao.cancel();
    } else {
        guarda_();
    }
}

} // namespace tramelo
