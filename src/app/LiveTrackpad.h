#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "app/DesktopFindings.h"
#include "input/PadEvent.h"
#include "input/PointerEventMonitoring.h"
#include "input/TrackpadContactProviding.h"
#include "support/Clock.h"

namespace kinesta {

/// The port to the trackpad that is read: its contacts and clicks. Follows the pad as it is connected and disconnected.
/// Main thread only, except for the frame handler of contacts().
class LiveTrackpad {
  public:
    struct Identity {
        std::string name;
        std::string path;
        bool canTellPressure = false;
        /// Width to height; 0 if that is not known.
        double proportions = 0;
    };

    virtual ~LiveTrackpad() = default;

    virtual TrackpadContactProviding& contacts() = 0;
    virtual PointerEventMonitoring& pointerEvents() = 0;
    /// The time for recognition: during the delivery of an event, when that arrived.
    virtual const Clock& clock() const = 0;

    /// The pad that is read, while contacts() is listening.
    virtual Identity identity() const = 0;

    /// Reads the pad with this path or name; if empty, the one that the settings name now, else a built-in one, else
    /// any.
    virtual void choose(const std::string& wanted) = 0;

    /// Calls `handler` when the status of contacts() has changed by itself. It may start and stop contacts().
    virtual void onStatusChange(std::function<void()> handler) = 0;

    /// Calls `watcher` on the main thread with every event of the pad from now on, in their order, in place of the
    /// watcher before it. An empty one ends the watching. At any time; without a watcher there is no cost.
    virtual void watch(std::function<void(const PadEvent&)> watcher) = 0;
};

/// A trackpad of this machine, described for the user.
struct ConnectedTrackpad {
    struct Axes {
        std::array<int, 2> x;
        std::array<int, 2> y;
        /// How many contacts the driver's protocol can distinguish.
        int slotCount = 0;
    };

    std::string name;
    std::string path;
    bool isBuiltIn = false;
    /// Whether it is the one that is read.
    bool isChosen = false;
    /// First and last value of each axis; absent if the pad may not be read.
    std::optional<Axes> axes;
    bool canTellPressure = false;
    /// Whether the desktop may have switched it off without a way for us to find out.
    bool mayBeOff = false;
    /// How many fingers it reports at once; 0 if that is not known.
    int fingers = 0;
    /// Why it cannot be read, as a sentence; empty if it can.
    std::string problem;
    /// The command line that lets this person read it, if that is what is missing.
    std::string command;
};

struct ConnectedTrackpads {
    std::vector<ConnectedTrackpad> all;
    /// Why none of them is chosen, if none is.
    Obstacle whenNoneIsChosen;

    /// The one that is read, or null.
    const ConnectedTrackpad* chosen() const {
        for (const ConnectedTrackpad& trackpad : all)
            if (trackpad.isChosen)
                return &trackpad;
        return nullptr;
    }
};

}  // namespace kinesta
