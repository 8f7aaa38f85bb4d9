// Takes signals to the event loop through a pipe.
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

constexpr std::array<int, 3> kSignals{SIGTERM, SIGHUP, SIGINT};

/// For reading and writing. Global, as a signal handler gets nothing but its signal.
std::array<int, 2> pipeEnds{-1, -1};

void Report(int /*signal*/) {
    const int error = errno;
    // If the pipe is full, an earlier signal is still unread.
    [[maybe_unused]] const ssize_t written = ::write(pipeEnds[1], "", 1);
    errno = error;
}

void Handle(int signal) {
    struct sigaction previous {};
    if (signal == SIGHUP && ::sigaction(signal, nullptr, &previous) == 0 &&
        previous.sa_handler == SIG_IGN) {
        return;
    }
    struct sigaction action {};
    action.sa_handler = Report;
    action.sa_flags = SA_RESTART;
    ::sigaction(signal, &action, nullptr);
}

}  // namespace

TerminationSignals::TerminationSignals(std::function<void()> finish) : m_finish(std::move(finish)) {
    if (::pipe2(pipeEnds.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
        return;
    }
    auto* const notifier = new QSocketNotifier(pipeEnds[0], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this] {
        std::array<char, 16> bytes{};
        while (::read(pipeEnds[0], bytes.data(), bytes.size()) > 0) {
        }
        m_finish();
    });
    for (const int signal : kSignals) {
        Handle(signal);
    }
}

TerminationSignals::~TerminationSignals() {
    for (const int signal : kSignals) {
        std::signal(signal, SIG_IGN);
    }
    for (int& end : pipeEnds) {
        ::close(std::exchange(end, -1));
    }
}

}  // namespace tarvelin
