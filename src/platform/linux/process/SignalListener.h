#pragma once

#include <csignal>
#include <functional>
#include <thread>
#include <vector>

#include "platform/linux/process/FileDescriptor.h"
#include "support/MainThread.h"

namespace kinesta {

/// Turns signals into tasks on the main thread. To be made before any other thread starts, as threads inherit which
/// signals they do not take; one at a time. Afterwards the signals are taken as before.
class SignalListener {
  public:
    /// `onSignal` gets the number of each of `signals` that arrives, on the main thread.
    SignalListener(MainThread& mainThread, const std::vector<int>& signals, std::function<void(int)> onSignal);
    ~SignalListener();
    SignalListener(const SignalListener&) = delete;
    SignalListener& operator=(const SignalListener&) = delete;

  private:
    sigset_t m_before;
    FileDescriptor m_signals;
    FileDescriptor m_stop;
    std::thread m_thread;
};

}  // namespace kinesta
