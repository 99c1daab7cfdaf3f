#pragma once

#include <atomic>
#include <memory>
#include <mutex>
#include <vector>

#include "input/TrackpadContactProviding.h"
#include "input/multitouch/DynamicLibrary.h"

namespace kinesta {

/// Where the callbacks of all trackpad libraries arrive, and from where they reach the provider that was started last.
class MultitouchSupportCallbackTarget {
  public:
    /// Lives until the process ends: a callback may come late.
    static MultitouchSupportCallbackTarget& shared();

    MultitouchSupportCallbackTarget(const MultitouchSupportCallbackTarget&) = delete;
    MultitouchSupportCallbackTarget& operator=(const MultitouchSupportCallbackTarget&) = delete;

    /// The frames go to this handler from now on, as long as it exists.
    void setReceiver(const std::shared_ptr<const FrameHandlerSlot>& receiver);

    /// The frames go nowhere from now on, if they went to this handler.
    void removeReceiver(const std::shared_ptr<const FrameHandlerSlot>& receiver);

    /// A frame as a library reports it. Any thread.
    void receive(const void* touches, std::size_t count, Seconds timestamp);

    /// Closes a library whose device is stopped, so that no thread is in its code any more, unless in a callback. If
    /// one runs at this moment, the library stays loaded for good: it cannot be known when the thread has returned into
    /// it and left it.
    void close(std::unique_ptr<DynamicLibrary> library);

    /// Waits until no callback runs.
    void waitForCallbacks() const;

  private:
    MultitouchSupportCallbackTarget() = default;

    std::mutex m_lock;  // guards the next two; never held during a call to the receiver
    std::weak_ptr<const FrameHandlerSlot> m_receiver;
    std::vector<std::unique_ptr<DynamicLibrary>> m_keptLibraries;
    std::atomic<int> m_runningCallbacks = 0;
};

}  // namespace kinesta
