#pragma once

#include <optional>
#include <string>
#include <vector>

#include "feedback/GestureTestSession.h"
#include "recognition/MultitouchService.h"
#include "rules/RuleSelection.h"
#include "rules/RuleStore.h"
#include "support/Published.h"

namespace kinesta {

/// All that the test sheet says.
struct TestSheetContent {
    enum class State { waiting, detected, off };

    State state = State::waiting;
    /// What was detected, or that nothing was or can be.
    std::string result;
    /// How to turn recognition on; empty while it works.
    std::string hint;
    /// Why the trackpad cannot be read; often empty.
    std::string problem;

    // Of a detected gesture:
    std::optional<DetectedGesture> gesture;
    /// How often in a row.
    std::string repetition;
    bool isContinuous = false;
    std::string confirmation;
    /// The name of the rule that would run, or why none would.
    std::string consequence;
    /// What that rule does.
    std::optional<ActionKind> action;

    friend bool operator==(const TestSheetContent&, const TestSheetContent&) = default;
};

/// What was detected while gestures are tried, and what it would do. Main thread only.
class TestSheetModel {
  public:
    /// The referents must outlive the model.
    struct Parts {
        const RuleStore& store;
        const UserDefaults& defaults;
        const MultitouchService& service;
        const GestureTestSession& session;
    };

    explicit TestSheetModel(const Parts& parts);

    /// Set only when something differs.
    const Published<TestSheetContent>& content() const { return m_content; }

    /// Takes a gesture that the session has taken.
    void gestureRecognized(const DetectedGesture& gesture);
    void refresh();

  private:
    void describeDetection(TestSheetContent& content) const;

    Parts m_parts;
    std::optional<DetectedGesture> m_gesture;
    Published<TestSheetContent> m_content;
    std::vector<Subscription> m_observers;
};

}  // namespace kinesta
