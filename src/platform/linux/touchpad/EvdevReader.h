#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "input/TrackpadContactProviding.h"
#include "platform/linux/touchpad/EvdevDevice.h"
#include "platform/linux/touchpad/EvdevDeviceWatch.h"
#include "platform/linux/touchpad/TouchpadScanner.h"
#include "platform/linux/touchpad/TouchpadSwitch.h"

namespace kinesta {

/// Reads the current touchpad and follows as it is connected and disconnected, on the provider's thread. Sleeps while
/// nothing happens.
class EvdevReader {
  public:
    struct Settings {
        /// Path or name of the touchpad to read; empty for the built-in one, or any if there is none.
        std::string device;
        PressureStageTracker::Limits pressure;
    };

    struct State {
        TrackpadContactProviderStatus status;
        /// Of the touchpad that is being read, if any.
        std::string path;
        std::string name;
        bool canTellPressure = false;
        /// Width to height; 0 if that is not known.
        double proportions = 0;

        friend bool operator==(const State&, const State&) = default;
    };

    /// `sink` receives every event of the touchpad, `onChange` every new state; both on the thread of run().
    EvdevReader(Settings settings, EvdevDevice::Sink sink, std::function<void(const State&)> onChange);

    /// Looks for the touchpad and opens it. Before run(), on any thread; `onChange` is not called.
    const State& open();

    /// Reads until the descriptor `ending` becomes readable.
    void run(int ending);

    /// Reports that no finger is on the touchpad any more. After run().
    void liftAll();

  private:
    void lookAgain();
    State look();
    void leaveDevice();

    Settings m_settings;
    EvdevDevice::Sink m_sink;
    std::function<void(const State&)> m_onChange;
    EvdevDeviceWatch m_watch;
    TouchpadScanner m_scanner;
    TouchpadSwitch m_switch;
    std::unique_ptr<EvdevDevice> m_device;
    std::string m_inputName;  // of m_device
    State m_state;
};

}  // namespace kinesta
