#pragma once

#include <functional>

#include "platform/linux/touchpad/EvdevContactProvider.h"
#include "recognition/MultitouchService.h"
#include "recognition/PointerEventBroadcaster.h"

namespace kinesta {

/// Recognition on this machine's touchpad: the pad's frames and clicks go into the service, and the service follows
/// the pad as it comes and goes. Main thread only; what it is given must outlive it.
class LiveRecognition {
  public:
    LiveRecognition(MainThread& mainThread, const Clock& clock, UserDefaults& defaults);
    ~LiveRecognition();

    MultitouchService& service() { return m_service; }
    const MultitouchService& service() const { return m_service; }
    const EvdevContactProvider& pad() const { return m_provider; }

    /// Sees what happens on the pad, on the main thread, beside the service. To be set before start().
    void setWatcher(std::function<void(const PadEvent&)> watcher);

    void start() { m_service.startIfEnabled(); }

    /// Takes over what the stored settings say now.
    void reloadSettings();

  private:
    MainThread& m_mainThread;
    const UserDefaults& m_defaults;
    PointerEventBroadcaster m_pointer;
    EvdevContactProvider m_provider;
    MultitouchService m_service;
    std::function<void(const PadEvent&)> m_watcher;
};

/// The setting that names the touchpad to read, by path or name; absent or empty: a built-in one, else any.
inline constexpr std::string_view kTouchpadSettingKey = "linux.touchpad.v1";

}  // namespace kinesta
