#include "app/RuleHistory.h"

#include <gtest/gtest.h>

#include "rules/RuleMaking.h"
#include "support/FakeUserDefaults.h"
#include "support/VirtualClock.h"
#include "support/VirtualMainThread.h"

namespace kinesta::testing {
namespace {

/// Rules "A", "B", "C", which are on, and their history.
struct Fixture {
    Fixture() {
        std::vector<GestureRule> rules;
        for (const char* name : {"A", "B", "C"})
            rules.emplace_back(makeRule(GestureKind::tipTapLeft)).name = name;
        store.setRules(rules);
        a = rules[0].id;
        b = rules[1].id;
        history.emplace(store, clock);
    }

    void set(const Uuid& id, const std::function<void(GestureRule&)>& change) {
        GestureRule rule = store.binding(id)->get();
        change(rule);
        store.binding(id)->set(rule);
    }
    void type(const Uuid& id, const std::string& name, int after = 100 /* ms */) {
        mainThread.advanceTo(mainThread.now() + std::chrono::milliseconds(after));
        history->record([&] { set(id, [&](GestureRule& rule) { rule.name = name; }); }, id, TypedField::name);
    }
    void enable(const Uuid& id, bool on) {
        history->record([&] { store.setRuleEnabled(id, on); });
    }
    void move(std::size_t from, std::size_t to) {
        history->record([&] { store.moveRules({from}, to); });
    }
    std::string undo(int times = 1) {
        while (times-- > 0)
            history->undo();
        return text();
    }
    std::string redo() {
        history->redo();
        return text();
    }
    /// "A B- C <": a "-" after a rule that is off, "<" if undo is possible, ">" if redo is.
    std::string text() {
        EXPECT_EQ(RuleStore(defaults).rules().value(), store.rules().value());
        std::string names;
        for (const GestureRule& rule : store.rules().value())
            names += rule.name + (rule.isEnabled ? " " : "- ");
        const auto& possible = history->possibilities().value();
        return names + (possible.undo ? "<" : "") + (possible.redo ? ">" : "");
    }

    FakeUserDefaults defaults;
    RuleStore store{defaults};
    VirtualMainThread mainThread;
    VirtualClock clock{mainThread};
    std::optional<RuleHistory> history;
    Uuid a, b;
};

TEST(RuleHistory, TakesStepsBackAndForthAndSavesEach) {
    Fixture f;
    f.type(f.a, "x");
    f.type(f.a, "xy", 499);
    f.type(f.a, "xyz", 500);  // after a pause
    f.type(f.b, "b");
    f.enable(f.b, false);
    f.enable(f.b, false);
    f.move(2, 0);
    EXPECT_EQ(f.text(), "C xyz b- <");
    EXPECT_EQ(f.undo(), "xyz b- C <>");
    EXPECT_EQ(f.undo(2), "xyz B C <>");
    EXPECT_EQ(f.undo(), "xy B C <>");
    EXPECT_EQ(f.undo(2), "A B C >");
    EXPECT_EQ(f.redo(), "xy B C <>");
    f.type(f.a, "q");  // goes on after a step, so it is another
    EXPECT_EQ(f.undo(), "xy B C <>");
    f.type(f.b, "b");
    f.type(f.b, "B");  // as before: no step
    EXPECT_EQ(f.undo(), "A B C >");
    // A keystroke that changes nothing does not join the step before it.
    f.enable(f.a, false);
    f.type(f.a, "A");
    f.type(f.a, "n");
    EXPECT_EQ(f.undo(), "A- B C <>");
    // An edit that makes a rule unready and so switches it off is undone with the switch.
    f.history->record([&] { f.set(f.b, [](GestureRule& rule) { rule.action = {}; }); });
    EXPECT_EQ(f.text(), "A- B- C <");
    EXPECT_EQ(f.undo(), "A- B C <>");
}

TEST(RuleHistory, ForgetsWhatOthersMadeMeaningless) {
    Fixture f;
    f.move(0, 3);
    f.type(f.a, "x");
    f.enable(f.b, false);
    EXPECT_EQ(f.text(), "B- C x <");
    f.set(f.store.addRule(), [](GestureRule& rule) { rule.name = "N"; });
    f.set(f.b, [](GestureRule& rule) { rule.name = "other"; });
    // The name that another gave stays; the new rule stays in its place.
    EXPECT_EQ(f.undo(3), "A other C N- >");
    EXPECT_EQ(f.redo(), "other C A N- <>");
    f.store.disableAllRules();  // ends the step of the switch alone
    f.history->redo();
    EXPECT_EQ(f.redo(), "other- C- x- N- <");
    f.store.deleteRules({f.a});  // and with it its name and its move
    EXPECT_EQ(f.text(), "other- C- N- ");
    f.move(0, 2);
    f.store.moveRules({2}, 0);
    EXPECT_EQ(f.undo(), "N- C- other- ");
    f.type(f.b, "y");
    f.store.replaceRules({makeRule(GestureKind::tipTapLeft)});
    EXPECT_EQ(f.undo(), " ");
    for (std::size_t i = 0; i <= RuleHistory::maximumSteps; ++i)
        f.type(f.store.rules().value()[0].id, std::to_string(i), 1000);
    EXPECT_EQ(f.undo(static_cast<int>(RuleHistory::maximumSteps) + 1), "0 >");
}

}  // namespace
}  // namespace kinesta::testing
