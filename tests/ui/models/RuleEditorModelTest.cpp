#include "ui/models/RuleEditorModel.h"

#include <gtest/gtest.h>

#include "rules/RuleMaking.h"
#include "support/FakeUserDefaults.h"
#include "support/VirtualClock.h"
#include "support/VirtualMainThread.h"
#include "ui/models/RuleEditorNotice.h"
#include "ui/models/RuleWords.h"

namespace kinesta::testing {
using namespace std::chrono_literals;

namespace {

struct Fixture {
    explicit Fixture(GestureRule edited) {
        store.setRules({makeRule(GestureKind::singleClick, 2), std::move(edited)});
        history.emplace(store, clock);
        model.emplace(RuleEditorModel::Parts{store, *history, session, mainThread, GestureSystem::macOS},
                      store.rules().value()[1].id);
        model->onGone = [this] { ++timesGone; };
    }

    const GestureRule& rule() const { return store.rules().value().back(); }
    const RuleEditorContent& content() const { return model->content().value(); }

    FakeUserDefaults defaults;
    RuleStore store{defaults};
    VirtualMainThread mainThread;
    VirtualClock clock{mainThread};
    GestureTestSession session;
    int timesGone = 0;
    std::optional<RuleHistory> history;
    std::optional<RuleEditorModel> model;
};

TEST(RuleEditorModel, ChangesWhatDependsOnTheTypeOfGesture) {
    GestureRule original = makeRule(GestureKind::doubleTap, 3, ActionKind::closeWindow);
    original.action.customCueLabel = "Bye";
    Fixture f(original);
    f.model->setActionKind(ActionKind::adjustVolume);  // for slides only
    EXPECT_EQ(f.rule(), original);
    f.model->setType(GestureTypeChoice::tipTapRight);
    EXPECT_EQ(f.rule().gesture, GestureKind::doubleTipTapRight);
    EXPECT_TRUE(f.rule().isEnabled && !f.rule().fingerCount);
    f.model->setType(GestureTypeChoice::edgeSlide);
    EXPECT_TRUE(f.content().wasSwitchedOffByEdit && !f.content().canTurnOn);
    EXPECT_EQ(f.content().missing, "Choose how many fingers to switch this rule on.");
    f.model->setActionKind(ActionKind::middleClick);
    EXPECT_EQ(f.rule().action.kind, ActionKind::adjustVolume);
    EXPECT_EQ(f.rule().edgeSlideSide, EdgeSlideSide::both);
    f.model->pick(GesturePicker::fingers, 2);
    EXPECT_EQ(f.content().systemWarning->title, "May also scroll onscreen content");
    EXPECT_TRUE(f.content().canTurnOn);
    f.model->setType(GestureTypeChoice::forceClick);
    std::string titles;
    for (const RuleEditorNotice& notice : noticesOf(f.content(), false))
        titles += notice.title + "\n";
    EXPECT_EQ(titles,
              "This rule was switched off.\nMay conflict with Secondary Click\n"
              "This touchpad cannot tell how hard it is pressed, so no Force Click will come.\n");
    f.model->setType(GestureTypeChoice::anchorDraw);
    EXPECT_EQ(f.rule().action, GestureAction());
    f.model->pick(GesturePicker::corner, static_cast<int>(AnchorCorner::topLeft));
    f.model->setType(GestureTypeChoice::tap);
    EXPECT_TRUE(!f.rule().anchorCorner && !f.rule().edgeSlideSide);
    while (f.history->possibilities().value().undo)
        f.history->undo();
    EXPECT_EQ(f.rule(), original);
}

TEST(RuleEditorModel, FollowsTheStoreAndTakesAGesture) {
    Fixture f(makeShellCommand(true));
    f.model->setActionValue("rm");
    EXPECT_TRUE(f.content().wasSwitchedOffByEdit && !f.rule().isEnabled);
    EXPECT_TRUE(f.content().mustConfirmAgain);
    f.history->undo();
    EXPECT_FALSE(f.content().mustConfirmAgain) << "the old text is confirmed";
    f.model->setActionValue("rm");
    f.model->setShellCommandAcknowledged(true);
    EXPECT_FALSE(f.content().mustConfirmAgain);
    EXPECT_TRUE(f.content().canTurnOn);
    f.store.enableAllRules();  // elsewhere
    EXPECT_FALSE(f.content().wasSwitchedOffByEdit);

    f.model->setWaitsForGesture(true);
    EXPECT_TRUE(f.session.isActive().value());
    f.model->gestureRecognized(DetectedTap{2, GestureKind::singleForceClick});
    f.model->gestureRecognized(DetectedTap{5, GestureKind::tripleTap});  // too late
    EXPECT_EQ(f.rule().fingerCount, 2);
    EXPECT_FALSE(f.content().waitsForGesture);
    EXPECT_FALSE(f.content().comesFirst);
    EXPECT_EQ(f.content().rivals, (std::vector<RuleReference>{{f.store.rules().value()[0].id, "Untitled gesture"}}));
    f.model->setWaitsForGesture(true);
    f.model->gestureRecognized(DetectedEdgeSlide{3, EdgeSlideSide::right, -2});
    // The fingers go on: their slide must not run the rule.
    f.mainThread.advanceTo(f.mainThread.now() + 900ms);
    f.model->gestureRecognized(DetectedEdgeSlide{3, EdgeSlideSide::right, -1});
    f.mainThread.advanceTo(f.mainThread.now() + 900ms);
    EXPECT_TRUE(f.session.isActive().value());
    f.mainThread.advanceTo(f.mainThread.now() + 200ms);
    EXPECT_FALSE(f.session.isActive().value());
    EXPECT_EQ(shortGesture(f.rule()) + ", " + f.rule().action.summary(),
              "3-finger slide, right, Slide up/down to adjust volume");
    EXPECT_TRUE(f.content().rivals.empty());

    f.session.begin();
    f.model->setWaitsForGesture(true);
    f.store.deleteRules({f.rule().id});
    EXPECT_TRUE(f.session.isActive().value());  // not the editor's session
    f.model->setName("gone");
    f.store.addRule();
    EXPECT_EQ(f.timesGone, 1);
}

}  // namespace
}  // namespace kinesta::testing
