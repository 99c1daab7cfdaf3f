#include "platform/linux/process/SignalListener.h"

#include <poll.h>
#include <sys/eventfd.h>
#include <sys/signalfd.h>

#include <array>
#include <csignal>
#include <cstdint>

namespace kinesta {

SignalListener::SignalListener(MainThread& mainThread, const std::vector<int>& signals,
                               std::function<void(int)> onSignal) {
    sigset_t set;
    ::sigemptyset(&set);
    for (const int signal : signals)
        ::sigaddset(&set, signal);
    ::pthread_sigmask(SIG_BLOCK, &set, &m_before);
    m_signals = FileDescriptor(::signalfd(-1, &set, SFD_CLOEXEC));
    m_stop = FileDescriptor(::eventfd(0, EFD_CLOEXEC));
    m_thread = std::thread([this, &mainThread, onSignal = std::move(onSignal)] {
        std::array<pollfd, 2> sources{pollfd{m_signals.number(), POLLIN, 0}, pollfd{m_stop.number(), POLLIN, 0}};
        for (;;) {
            if (::poll(sources.data(), sources.size(), -1) < 0)
                continue;  // interrupted
            if (sources[1].revents != 0)
                return;
            signalfd_siginfo info{};
            if (::read(m_signals.number(), &info, sizeof info) == sizeof info)
                mainThread.post([onSignal, number = static_cast<int>(info.ssi_signo)] { onSignal(number); });
        }
    });
}

SignalListener::~SignalListener() {
    const std::uint64_t one = 1;
    while (::write(m_stop.number(), &one, sizeof one) < 0) {
    }
    m_thread.join();
    ::pthread_sigmask(SIG_SETMASK, &m_before, nullptr);
}

}  // namespace kinesta
