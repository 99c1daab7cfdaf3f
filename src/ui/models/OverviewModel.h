#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "feedback/GestureTestSession.h"
#include "recognition/MultitouchService.h"
#include "rules/RuleSelection.h"
#include "rules/RuleStore.h"
#include "support/Published.h"

namespace kinesta {

/// The last recognized gesture and what became of it.
struct LastGesture {
    DetectedGesture gesture;
    /// "Detected 3-finger single tap"
    std::string text;
    /// "Ran “Middle click”", or why no rule ran.
    std::string outcome;
    /// The rule that ran, or that would have run if it were on or complete; none to make one for the gesture.
    std::optional<Uuid> rule;
    bool hasRun = false;
    /// Until it disappears.
    int secondsLeft = 0;

    friend bool operator==(const LastGesture&, const LastGesture&) = default;
};

/// A sentence about something that needs attention or is good to know.
struct OverviewNotice {
    enum class Kind { problem, remark };

    Kind kind = Kind::remark;
    std::string text;

    friend bool operator==(const OverviewNotice&, const OverviewNotice&) = default;
};

/// All that the overview says of recognition.
struct OverviewContent {
    enum class State { listening, listeningWithoutRules, off, stopped, unavailable, firstLaunch };

    State state = State::stopped;
    std::string headline;
    std::string statusLine;
    /// How the first gesture is done; empty unless this is the first launch.
    std::string welcome;
    bool isGestureEnabled = false;
    std::size_t enabledCount = 0;
    bool isPermissionMissing = false;
    /// Whether the trackpad is being read.
    bool isListening = false;
    std::vector<OverviewNotice> notices;
    std::optional<LastGesture> lastGesture;
    /// Stands where the last gesture would: how to make one, or why none will come and what helps.
    std::string invitation;

    friend bool operator==(const OverviewContent&, const OverviewContent&) = default;
};

/// The overview: whether gestures are recognized, and the last one. Main thread only.
class OverviewModel {
  public:
    /// The referents must outlive the model.
    struct Parts {
        const RuleStore& store;
        const MultitouchService& service;
        const GestureTestSession& testSession;
        std::function<bool()> isPermissionMissing;
        /// The welcome stays until the second rule is made.
        bool isFirstLaunch = false;
    };

    explicit OverviewModel(Parts parts);

    /// Set only when something differs.
    const Published<OverviewContent>& content() const { return m_content; }

    /// Takes what GestureDispatcher passes to its observer.
    void gestureDispatched(const DetectedGesture& gesture, const GestureRule* rule);
    void setNotices(std::vector<OverviewNotice> notices);
    /// Reads everything again. To be called when the window comes to the front: the permission cannot be observed.
    void refresh();

  private:
    using Change = std::function<void(OverviewContent&)>;

    void update(const Change& change);
    void describeState(OverviewContent& content) const;

    Parts m_parts;
    bool m_isWelcome;
    Published<OverviewContent> m_content;
    std::vector<Subscription> m_observers;
};

}  // namespace kinesta
