// Signals that reach the event loop through a pipe.
#include <fcntl.h>
#include <unistd.h>

#include <QSocketNotifier>
#include <array>
#include <cerrno>
#include <csignal>
#include <utility>

#include "ui/services/TerminationSignals.h"

namespace tarvelin {

namespace {

constexpr std::array<int, 3> kSignale{SIGTERM, SIGHUP, SIGINT};

/// The ends for reading and writing. A handler gets nothing but its signal, so this can't be a
/// member.
std::array<int, 2> pipeEnden{-1, -1};

void Melde(int /*signal*/) {
    const int fehler = errno;
    // A pipe that is full has told it already.
    [[maybe_unused]] const ssize_t geschrieben = ::write(pipeEnden[1], "", 1);
    errno = fehler;
}

void Behandle(int signal) {
    struct sigaction bisher {};
    if (signal == SIGHUP && ::sigaction(signal, nullptr, &bisher) == 0 &&
        bisher.sa_handler == SIG_IGN) {
        return;
    }
    struct sigaction neu {};
    neu.sa_handler = Melde;
    neu.sa_flags = SA_RESTART;
    ::sigaction(signal, &neu, nullptr);
}

}  // namespace

Endesignale::Endesignale(std::function<void()> beende) : m_beende(std::move(beende)) {
    if (::pipe2(pipeEnden.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
        return;
    }
    auto* const waechter = new QSocketNotifier(pipeEnden[0], QSocketNotifier::Read, this);
    connect(waechter, &QSocketNotifier::activated, this, [this] {
        std::array<char, 16> bytes{};
        while (::read(pipeEnden[0], bytes.data(), bytes.size()) > 0) {
        }
        m_beende();
    });
    for (const int signal : kSignale) {
        Behandle(signal);
    }
}

Endesignale::~Endesignale() {
    for (const int signal : kSignale) {
        std::signal(signal, SIG_IGN);
    }
    for (int& ende : pipeEnden) {
        ::close(std::exchange(ende, -1));
    }
}

}  // namespace tarvelin
