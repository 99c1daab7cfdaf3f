#include "ui/models/RuleListModel.h"

#include <gtest/gtest.h>

#include "rules/RuleMaking.h"
#include "support/FakeUserDefaults.h"
#include "support/TableRows.h"
#include "support/VirtualClock.h"
#include "support/VirtualMainThread.h"
#include "ui/models/RuleWords.h"

namespace kinesta::testing {
namespace {

constexpr const char* kAdd = "Add a new gesture rule";
constexpr const char* kComplete = "Complete the current gesture and action before adding another rule.";
constexpr const char* kResolve = "Resolve the current gesture clash before adding another rule.";

GestureRule named(std::string name, GestureRule rule) {
    rule.name = std::move(name);
    return rule;
}

struct Fixture {
    explicit Fixture(std::vector<GestureRule> rules) {
        store.setRules(std::move(rules));
        history.emplace(store, clock);
        model.emplace(store, *history);
    }

    Uuid id(std::size_t index) const { return store.rules().value().at(index).id; }
    void select(std::size_t index) { model->select(WindowSelection::rule(id(index))); }
    std::string help() const { return model->commands().value().addGestureHelp; }
    /// "a [b]- c!": the selected row in brackets, "-" if it is off, "!" for a clash, "?" for an unfinished rule.
    std::string text() const {
        std::string text;
        for (const RuleRow& row : model->rows().value()) {
            const bool isSelected = model->selection().value() == WindowSelection::rule(row.id);
            text += (text.empty() ? "" : " ") + (isSelected ? "[" + row.name + "]" : row.name);
            text += row.isEnabled ? "" : "-";
            text += row.mark == RuleMark::none ? "" : row.mark == RuleMark::clash ? "!" : "?";
        }
        return text;
    }

    FakeUserDefaults defaults;
    RuleStore store{defaults};
    VirtualMainThread mainThread;
    VirtualClock clock{mainThread};
    std::optional<RuleHistory> history;
    std::optional<RuleListModel> model;
};

std::vector<GestureRule> fourRules() {
    return {named("a", makeRule(GestureKind::singleTap, 3)), named("b", makeRule(GestureKind::singleTap, 4)),
            named("c", makeRule(GestureKind::tipTapLeft)), named("", makeRule(GestureKind::tipTapRight))};
}

TEST(RuleListModel, AddsOnlyBesideAFinishedRuleWithoutClash) {
    Fixture f(fourRules());
    EXPECT_EQ(f.help(), kAdd);
    EXPECT_TRUE(f.model->addRule());
    EXPECT_EQ(f.text(), "a b c Untitled gesture [Untitled gesture]-?");
    EXPECT_EQ(f.help(), kComplete);
    EXPECT_FALSE(f.model->addRule());
    EXPECT_EQ(f.model->setEnabled(f.id(4), true), RuleEnablementResult::ruleNotReady);
    EXPECT_EQ(f.model->rows().value()[4].reason, "Choose a gesture and an action to switch this rule on.");
    f.select(1);
    f.model->duplicateRule(f.id(0));
    EXPECT_EQ(f.text(), "a [a]- b c Untitled gesture Untitled gesture-?");
    EXPECT_EQ(f.help(), kAdd);
    f.model->setEnabled(f.id(1), true);
    EXPECT_EQ(f.text(), "a! [a]! b c Untitled gesture Untitled gesture-?");
    EXPECT_EQ(f.help(), kResolve);
    f.model->setEnabled(f.id(0), false);
    EXPECT_EQ(f.help(), kAdd);
}

TEST(RuleListModel, SelectsTheNeighbourOfWhatItDeletes) {
    Fixture f(fourRules());
    f.model->deleteSelectedRule();
    EXPECT_FALSE(f.model->pendingDeletion().value());  // the overview is selected
    f.model->selectRules({f.id(0), f.id(2)}, f.id(1));
    f.model->deleteSelectedRule();
    EXPECT_EQ(f.model->pendingDeletion().value()->title(), "Delete 3 gestures?");
    f.store.deleteRules({f.id(2), f.id(0)});  // elsewhere, while the question is open
    EXPECT_EQ(f.model->pendingDeletion().value()->title(), "Delete “b”?");
    f.model->cancelDeletion();
    EXPECT_EQ(f.text(), "[b] Untitled gesture");
    f.model->deleteSelectedRule();
    // Passed as the window has it, and never with the selection on a rule that is gone.
    Subscription observer = f.store.rules().observe([&](const auto&) { EXPECT_TRUE(f.model->selectedRule()); });
    f.model->confirmDeletion(*f.model->pendingDeletion().value());
    observer.end();
    EXPECT_EQ(f.text(), "[Untitled gesture]");
    f.store.setRules(fourRules());
    EXPECT_EQ(f.model->selection().value(), WindowSelection::overview());  // no neighbour: it went elsewhere
    f.select(3);
    f.model->deleteSelectedRule();
    EXPECT_EQ(f.model->pendingDeletion().value()->title(), "Delete “Untitled gesture”?");
    f.model->confirmDeletion(*f.model->pendingDeletion().value());
    EXPECT_EQ(f.text(), "a b [c]");
}

TEST(RuleListModel, MovesAndSwitchesRulesAsStepsOfTheHistory) {
    Fixture f(fourRules());
    f.defaults.writes = 0;
    f.model->moveUp(f.id(0));
    f.model->moveDown(f.id(3));
    f.model->move({f.id(1), f.id(2)}, 2);  // dropped where they were
    EXPECT_EQ(f.defaults.writes, 0);
    f.model->moveDown(f.id(0));
    f.model->move({f.id(0), f.id(3)}, 2);
    EXPECT_EQ(f.text(), "a b Untitled gesture c");
    f.model->disableAll();
    EXPECT_TRUE(f.model->commands().value().canEnableAll && !f.model->commands().value().canDisableAll);
    f.history->undo();
    f.history->undo();
    f.history->undo();
    EXPECT_EQ(f.text(), "a b c Untitled gesture");
}

TEST(RuleListModel, FiltersLongLists) {
    std::vector<GestureRule> rules = fourRules();
    for (const char* name : {"Über Fenster", "Next TAB", "tap", "back"})
        rules.push_back(disabled(named(name, makeRule(GestureKind::doubleForceClick, 2, ActionKind::closeWindow))));
    Fixture f(rules);
    f.model->setFilter("tab");
    EXPECT_EQ(f.model->rows().value().size(), 8);  // not offered yet
    f.model->addRule();
    for (const auto& row : tableRows("window ü => \nÜBER => Über Fenster-\n close  TAB => Next TAB-\n"
                                     "3-FINGER => a\nforce back => back-\nno action => [Untitled gesture]-?\n")) {
        f.model->setFilter(row[0]);
        EXPECT_EQ(f.text(), row[1]) << row[0];
    }
    EXPECT_FALSE(f.model->canMoveUp(f.id(8)));
    f.model->deleteSelectedRule();
    f.model->confirmDeletion(*f.model->pendingDeletion().value());
    EXPECT_EQ(f.model->rows().value().size(), 8);  // nothing stays hidden by a filter that is no longer offered
}

TEST(RuleWords, PutsARuleIntoOneLine) {
    GestureRule rule = makeRule(GestureKind::doubleTipTapLeft, 7, ActionKind::openURL);
    const auto line = [&] { return shortGesture(rule) + " · " + shortAction(rule.action); };
    rule.action.value = "https://kinesta.example@evil.example:80/a/b?c";
    EXPECT_EQ(line(), "Double tip-tap left · evil.example");
    rule = makeSlide(std::nullopt, std::nullopt);
    EXPECT_EQ(line(), "…-finger slide, both sides · Slide up/down to adjust volume");
    rule = makeDrawing(AnchorCorner::bottomLeft, DrawPattern::lShape);
    rule.action.kind = ActionKind::openFileOrFolder;
    rule.action.value = "/home/a\nb//";
    EXPECT_EQ(line(), "Bottom left, L · a b");
    rule = makeShellCommand({});
    EXPECT_EQ(line(), "3-finger tap · ls");
    EXPECT_EQ(whatIsMissing(rule), "Confirm the command to switch this rule on.");
}

}  // namespace
}  // namespace kinesta::testing
