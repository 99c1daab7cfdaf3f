#include "platform/posix/SignalListener.h"

#include <utility>

namespace kinesta {

SignalListener::SignalListener(MainThread& mainThread, const std::vector<int>& signals,
                               std::function<void(int)> onSignal)
    : m_signals(signals) {
    sigset_t set;
    ::sigemptyset(&set);
    for (const int signal : signals)
        ::sigaddset(&set, signal);
    ::pthread_sigmask(SIG_BLOCK, &set, &m_before);
    if (signals.empty())
        return;
    m_thread = std::thread([this, set, &mainThread, onSignal = std::move(onSignal)] {
        for (int signal = 0; ::sigwait(&set, &signal) == 0 && !m_isEnding;)
            mainThread.post([onSignal, signal] { onSignal(signal); });
    });
}

SignalListener::~SignalListener() {
    m_isEnding = true;
    if (m_thread.joinable()) {
        // Only this thread gets it, and only to wake up.
        ::pthread_kill(m_thread.native_handle(), m_signals.front());
        m_thread.join();
    }
    ::pthread_sigmask(SIG_SETMASK, &m_before, nullptr);
}

}  // namespace kinesta
