#include "ui/models/TestSheetModel.h"

#include <gtest/gtest.h>

#include "rules/RuleMaking.h"
#include "rules/ShellCommandSettings.h"
#include "support/GestureRig.h"

namespace kinesta::testing {
namespace {

struct TestSheet : ::testing::Test {
    TestSheet() { session.begin(); }

    /// Says what the sheet says.
    std::string detect(const DetectedGesture& gesture) {
        session.intercept(gesture);
        model.gestureRecognized(gesture);
        return said();
    }
    std::string said() const {
        const TestSheetContent& content = model.content().value();
        std::string text = content.result;
        for (const std::string& more : {content.repetition, content.hint, content.problem, content.consequence})
            text += more.empty() ? "" : " | " + more;
        return text;
    }

    GestureRig rig;
    RuleStore store{rig.defaults};
    GestureTestSession session;
    MultitouchService& service = rig.launch();
    TestSheetModel model{{.store = store, .defaults = rig.defaults, .service = service, .session = session}};
};

TEST_F(TestSheet, SaysWhatWasDetectedAndWhatItWouldRun) {
    const DetectedTap tap{3, GestureKind::singleTap};
    EXPECT_EQ(said(), "Waiting for a gesture…");
    EXPECT_EQ(detect(tap), "3-finger single tap | Detected once | Middle click");
    EXPECT_EQ(model.content().value().confirmation, "Detected successfully. No configured action was run.");
    EXPECT_EQ(detect(tap), "3-finger single tap | 2 times in a row | Middle click");
    EXPECT_EQ(detect(DetectedEdgeSlide{2, EdgeSlideSide::left, -2}),
              "2-finger left edge slide down | Continuous gesture | No rule uses it");
    EXPECT_EQ(detect(tap), "3-finger single tap | Detected once | Middle click");
    // The rules may change behind the sheet.
    store.disableAllRules();
    EXPECT_EQ(said(), "3-finger single tap | Detected once | The rule “Middle click” is off");
    EXPECT_FALSE(model.content().value().action);
    store.replaceRules({makeShellCommand(true)});
    EXPECT_NE(said().find("shell command, and those are switched off"), std::string::npos);
    rig.defaults.setBoolean(ShellCommandSettings::enabledKey, true);
    model.refresh();
    EXPECT_EQ(said(), "3-finger single tap | Detected once | Untitled gesture");
    session.end();
    EXPECT_EQ(said(), "Waiting for a gesture…");
    EXPECT_EQ(detect(tap), "Waiting for a gesture…") << "the session is over";
}

TEST_F(TestSheet, SaysAtOnceThatRecognitionStoppedAndThatItIsBack) {
    detect(DetectedTap{3, GestureKind::singleTap});
    const std::string off = "Gesture recognition is turned off | Close this window and ";
    const std::string help = "“What works here” on the overview says what is missing and what helps.";
    service.setGestureEnabled(false);
    EXPECT_EQ(said(), off + "turn gesture recognition on in Settings.");
    rig.provider.statusAfterStart = TrackpadContactProviderStatus::unavailable("No trackpad.");
    service.setGestureEnabled(true);
    EXPECT_EQ(said(), off + "start gesture recognition in Settings. | No trackpad. " + help);
    rig.provider.becomes(TrackpadContactProviderStatus::listening());
    service.contactProviderDidChangeStatus();
    EXPECT_EQ(said(), "3-finger single tap | Detected once | Middle click");
    service.stop();
    EXPECT_EQ(said(), off + "start gesture recognition in Settings. | " + help);
}

}  // namespace
}  // namespace kinesta::testing
