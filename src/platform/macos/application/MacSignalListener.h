#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "support/MainThread.h"

namespace kinesta {

/// Turns signals into tasks on the main thread, which a MacMainLoop or a window's event loop runs. Programs that are
/// started meanwhile get the default actions. A handler that someone else installs for one of the signals later acts as
/// well. Main thread only; at most one at a time. The destructor restores the earlier actions.
class MacSignalListener {
  public:
    /// Calls `onSignal` with the number of each of `signals` that arrives. `mainThread` must outlive this.
    MacSignalListener(MainThread& mainThread, const std::vector<int>& signals, std::function<void(int)> onSignal);
    ~MacSignalListener();
    MacSignalListener(const MacSignalListener&) = delete;
    MacSignalListener& operator=(const MacSignalListener&) = delete;

    /// Stops the program as Ctrl-Z does, and returns when it continues.
    void stopUntilContinued();

  private:
    struct Source;
    struct Receiver;

    void open(Source& source);
    static void close(Source& source);

    std::shared_ptr<Receiver> m_receiver;
    std::vector<std::unique_ptr<Source>> m_sources;
};

}  // namespace kinesta
