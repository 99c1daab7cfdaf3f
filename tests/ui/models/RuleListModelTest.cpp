#include "ui/models/RuleListModel.h"

#include <gtest/gtest.h>

#include "rules/RuleMaking.h"
#include "support/FakeUserDefaults.h"
#include "support/TableRows.h"
#include "support/VirtualClock.h"
#include "support/VirtualMainThread.h"

namespace kinesta::testing {
namespace {

GestureRule named(std::string name, GestureRule rule) {
    rule.name = std::move(name);
    return rule;
}

std::vector<GestureRule> fourRules() {
    return {named("a", makeRule(GestureKind::singleTap, 3)), named("b", makeRule(GestureKind::singleTap, 4)),
            named("c", makeRule(GestureKind::tipTapLeft)), named("", makeRule(GestureKind::tipTapRight))};
}

struct Fixture {
    explicit Fixture(std::vector<GestureRule> rules = fourRules()) { store.setRules(std::move(rules)); }

    Uuid id(std::size_t index) const { return store.rules().value().at(index).id; }
    std::string help() const { return model.commands().value().addGestureHelp; }
    std::string askToDelete() {
        model.deleteSelectedRule();
        return model.pendingDeletion().value()->title();
    }
    void confirm() { model.confirmDeletion(*model.pendingDeletion().value()); }
    /// "a [b]- c!": the selected row in brackets, "-" if it is off, "!" for a clash, "?" for an unfinished rule.
    std::string text() const {
        std::string text;
        for (const RuleRow& row : model.rows().value()) {
            const bool isSelected = model.selection().value() == WindowSelection::rule(row.id);
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
    RuleHistory history{store, clock};
    RuleListModel model{store, history};
};

TEST(RuleListModel, AddsOnlyBesideAFinishedRuleWithoutClash) {
    Fixture f;
    EXPECT_TRUE(f.model.addRule());
    EXPECT_EQ(f.text(), "a b c Untitled gesture [Untitled gesture]-?");
    EXPECT_EQ(f.help(), "Complete the current gesture and action before adding another rule.");
    EXPECT_FALSE(f.model.addRule());
    EXPECT_EQ(f.model.rows().value()[4].reason, "Choose a gesture and an action to switch this rule on.");
    f.model.duplicateRule(f.id(0));
    EXPECT_EQ(f.text(), "a [a]- b c Untitled gesture Untitled gesture-?");
    EXPECT_EQ(f.help(), "Add a new gesture rule");
    f.model.setEnabled(f.id(1), true);
    EXPECT_EQ(f.text(), "a! [a]! b c Untitled gesture Untitled gesture-?");
    EXPECT_EQ(f.help(), "Resolve the current gesture clash before adding another rule.");
    f.model.setEnabled(f.id(0), false);
    EXPECT_EQ(f.help(), "Add a new gesture rule");
}

TEST(RuleListModel, SelectsTheNeighbourOfWhatItDeletes) {
    Fixture f;
    f.model.selectRules({f.id(0), f.id(2)}, f.id(1));
    EXPECT_EQ(f.askToDelete(), "Delete 3 gestures?");
    f.store.deleteRules({f.id(2), f.id(0)});  // elsewhere, while the question is open
    EXPECT_EQ(f.model.pendingDeletion().value()->title(), "Delete “b”?");
    Subscription observer = f.store.rules().observe([&](const auto&) { EXPECT_TRUE(f.model.selectedRule()); });
    f.confirm();
    observer.end();
    EXPECT_EQ(f.text(), "[Untitled gesture]");
    f.store.setRules(fourRules());
    EXPECT_EQ(f.model.selection().value(), WindowSelection::overview());  // no neighbour: it went elsewhere
    f.model.select(WindowSelection::rule(f.id(3)));
    EXPECT_EQ(f.askToDelete(), "Delete “Untitled gesture”?");
    f.confirm();
    EXPECT_EQ(f.text(), "a b [c]");
}

TEST(RuleListModel, MovesRulesAndWritesOnlyChanges) {
    Fixture f;
    f.defaults.writes = 0;
    f.model.moveUp(f.id(0));
    f.model.moveDown(f.id(3));
    f.model.move({f.id(1), f.id(2)}, 2);  // dropped where they were
    EXPECT_EQ(f.defaults.writes, 0);
    f.model.moveDown(f.id(0));
    f.model.move({f.id(0), f.id(3)}, 2);
    EXPECT_EQ(f.text(), "a b Untitled gesture c");
}

TEST(RuleListModel, FiltersLongLists) {
    std::vector<GestureRule> rules = fourRules();
    for (const char* name : {"Über Fenster", "Next TAB", "tap", "back"})
        rules.push_back(disabled(named(name, makeRule(GestureKind::doubleForceClick, 2, ActionKind::closeWindow))));
    Fixture f(rules);
    f.model.setFilter("tab");
    EXPECT_EQ(f.model.rows().value().size(), 8);  // not offered yet
    f.model.addRule();
    for (const auto& row : tableRows("window ü => Über Fenster-\nÜBER => Über Fenster-\n close  TAB => Next TAB-\n"
                                     "3-FINGER => a\nforce back => back-\nno action => [Untitled gesture]-?\n")) {
        f.model.setFilter(row[0]);
        EXPECT_EQ(f.text(), row[1]) << row[0];
    }
    f.askToDelete();
    f.confirm();
    EXPECT_EQ(f.model.rows().value().size(), 8);  // nothing stays hidden by a filter that is no longer offered
}

TEST(RuleListModel, ShowsNamesOnOneLineAsTheyRead) {
    Fixture list({named("a\r\n\tb \u2028 c\u202Ed", makeRule(GestureKind::tipTapLeft)),
                  named("\u200B\uFEFF \n", makeRule(GestureKind::tipTapRight)),
                  named("\u00A0é👩\u200D🔬 ", makeRule(GestureKind::singleTap, 3))});
    EXPECT_EQ(list.text(), "a b cd Untitled gesture \u00A0é👩\u200D🔬");
}

}  // namespace
}  // namespace kinesta::testing
