#pragma once

#include <csignal>
#include <functional>
#include <thread>
#include <vector>

#include "platform/posix/FileDescriptor.h"
#include "support/MainThread.h"

namespace kinesta {

/// Turns signals into tasks on the main thread. Create it before any other thread, because threads inherit the mask of
/// blocked signals; at most one at a time. The destructor restores the mask.
class SignalListener {
  public:
    /// Calls `onSignal` with the number of each of `signals` that arrives, on the main thread.
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
