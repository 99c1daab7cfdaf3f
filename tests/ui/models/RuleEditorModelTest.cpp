#include "ui/models/RuleEditorModel.h"

#include <gtest/gtest.h>

#include "rules/RuleMaking.h"
#include "support/FakeUserDefaults.h"
#include "support/VirtualClock.h"
#include "support/VirtualMainThread.h"

namespace kinesta::testing {
namespace {

struct Fixture {
    explicit Fixture(GestureRule edited) {
        store.setRules({makeRule(GestureKind::singleClick, 2), std::move(edited)});
        history.emplace(store, clock);
        model.emplace(RuleEditorModel::Parts{store, *history, session, GestureSystem::macOS},
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
    GestureRule labelled = makeRule(GestureKind::doubleTap, 3, ActionKind::closeWindow);
    labelled.action.customCueLabel = "Bye";
    Fixture f(labelled);
    f.model->setActionKind(ActionKind::adjustVolume);  // for slides only
    EXPECT_EQ(f.rule(), labelled);
    f.model->setType(GestureTypeChoice::forceClick);
    EXPECT_EQ(f.rule().gesture, GestureKind::doubleForceClick);
    f.model->setType(GestureTypeChoice::tipTapRight);
    EXPECT_EQ(f.rule().gesture, GestureKind::doubleTipTapRight);
    EXPECT_FALSE(f.rule().fingerCount);
    EXPECT_TRUE(f.rule().isEnabled);
    f.model->setType(GestureTypeChoice::edgeSlide);
    EXPECT_TRUE(f.content().wasSwitchedOffByEdit && !f.content().canTurnOn);
    EXPECT_EQ(f.content().missing, "Choose how many fingers to switch this rule on.");
    f.model->setActionKind(ActionKind::middleClick);
    EXPECT_EQ(f.rule().action.kind, ActionKind::adjustVolume);
    EXPECT_EQ(f.rule().edgeSlideSide, EdgeSlideSide::both);
    f.model->setFingerCount(2);
    EXPECT_EQ(f.content().systemWarning->title, "May also scroll onscreen content");
    EXPECT_TRUE(f.content().canTurnOn);
    EXPECT_EQ(f.model->setEnabled(true), RuleEnablementResult::changed);
    EXPECT_FALSE(f.content().wasSwitchedOffByEdit);
    f.model->setType(GestureTypeChoice::anchorDraw);
    EXPECT_EQ(f.rule().action, GestureAction());
    f.model->setCorner(AnchorCorner::topLeft);
    f.model->setType(GestureTypeChoice::tap);
    EXPECT_EQ(f.rule().gesture, GestureKind::singleTap);
    EXPECT_TRUE(!f.rule().anchorCorner && !f.rule().edgeSlideSide);
    for (int steps = 8; steps > 0; --steps)
        f.history->undo();
    EXPECT_EQ(f.rule(), labelled);
}

TEST(RuleEditorModel, FollowsTheStoreAndNamesRivals) {
    Fixture f(makeShellCommand(true));
    f.model->setActionValue("rm");
    EXPECT_TRUE(f.content().wasSwitchedOffByEdit && !f.rule().isEnabled);
    EXPECT_EQ(f.content().missing, "Confirm the command to switch this rule on.");
    f.model->setShellCommandAcknowledged(true);
    EXPECT_TRUE(f.content().canTurnOn);
    f.store.enableAllRules();  // elsewhere
    EXPECT_FALSE(f.content().wasSwitchedOffByEdit);
    f.model->setActionKind(ActionKind::closeWindow);
    EXPECT_EQ(f.content().cuePlaceholder, "Close window");
    f.model->setName("Last");
    EXPECT_EQ(f.content().cuePlaceholder, "Last");

    f.model->setWaitsForGesture(true);
    EXPECT_TRUE(f.session.isActive().value());
    f.model->gestureRecognized(DetectedTap{2, GestureKind::singleForceClick});
    f.model->gestureRecognized(DetectedTap{5, GestureKind::tripleTap});  // too late
    EXPECT_FALSE(f.session.isActive().value() || f.content().waitsForGesture);
    f.model->setEnabled(true);
    const GestureRule& first = f.store.rules().value()[0];
    EXPECT_EQ(f.content().rivals, (std::vector<RuleReference>{{first.id, "Untitled gesture"}}));
    f.model->setWaitsForGesture(true);
    f.model->gestureRecognized(DetectedEdgeSlide{3, EdgeSlideSide::right, -2});
    GestureRule expected = makeSlide(3, EdgeSlideSide::right);
    expected.id = f.rule().id;
    expected.name = "Last";
    EXPECT_EQ(f.rule(), expected);
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
