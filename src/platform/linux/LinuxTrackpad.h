#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include "app/LiveTrackpad.h"
#include "input/PadEventRelay.h"
#include "input/PointerEventBroadcaster.h"
#include "platform/linux/touchpad/EvdevContactProvider.h"
#include "support/Clock.h"
#include "support/UserDefaults.h"

namespace kinesta {

/// The touchpad among the kernel's input devices, with its own clicks as pointer events. Main thread only. The
/// constructor's arguments must outlive this.
class LinuxTrackpad final : public LiveTrackpad {
  public:
    /// The setting that names the touchpad to read, by path or name. If it is absent or empty, a built-in touchpad is
    /// used, else any.
    static constexpr std::string_view kSettingKey = "linux.touchpad.v1";

    LinuxTrackpad(MainThread& mainThread, const Clock& clock, const UserDefaults& defaults);

    TrackpadContactProviding& contacts() override { return m_provider; }
    PointerEventMonitoring& pointerEvents() override { return m_pointer; }
    const Clock& clock() const override { return m_clock; }
    Identity identity() const override;
    void choose(const std::string& wanted) override;
    void onStatusChange(std::function<void()> handler) override { m_provider.setStatusHandler(std::move(handler)); }
    void watch(std::function<void(const PadEvent&)> watcher) override { m_relay.setWatcher(std::move(watcher)); }

    /// All touchpads, each opened for a moment. `howToChoose` says how a person chooses another one.
    static ConnectedTrackpads connected(const UserDefaults& defaults, const std::string& howToChoose);

  private:
    const Clock& m_clock;
    const UserDefaults& m_defaults;
    PointerEventBroadcaster m_pointer;
    PadEventRelay m_relay;  // before the provider, whose thread uses it
    EvdevContactProvider m_provider;
};

}  // namespace kinesta
