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
        std::vector<GestureRule> rules(3, makeRule(GestureKind::tipTapLeft));
        for (char name = 'A'; GestureRule & rule : rules) {
            rule.id = Uuid::random();
            rule.name = name++;
        }
        store.setRules(rules);
        a = rules[0].id;
        b = rules[1].id;
    }

    void set(const Uuid& id, const std::function<void(GestureRule&)>& change) {
        GestureRule rule = store.binding(id)->get();
        change(rule);
        store.binding(id)->set(rule);
    }
    void type(const Uuid& id, const std::string& name, int after = 100 /* ms */) {
        mainThread.advanceTo(mainThread.now() + std::chrono::milliseconds(after));
        history.record([&] { set(id, [&](GestureRule& rule) { rule.name = name; }); }, id, TypedField::name);
    }
    void disable(const Uuid& id) {
        history.record([&] { store.setRuleEnabled(id, false); });
    }
    void move(std::size_t from, std::size_t to) {
        history.record([&] { store.moveRules({from}, to); });
    }
    std::string undo(std::size_t times = 1) {
        while (times-- > 0)
            history.undo();
        return text();
    }
    /// "A B- C <": a "-" after a rule that is off, "<" if undo is possible, ">" if redo is.
    std::string text() {
        EXPECT_EQ(RuleStore(defaults).rules().value(), store.rules().value());
        std::string names;
        for (const GestureRule& rule : store.rules().value())
            names += rule.name + (rule.isEnabled ? " " : "- ");
        const auto& possible = history.possibilities().value();
        return names + (possible.undo ? "<" : "") + (possible.redo ? ">" : "");
    }

    FakeUserDefaults defaults;
    RuleStore store{defaults};
    VirtualMainThread mainThread;
    VirtualClock clock{mainThread};
    RuleHistory history{store, clock};
    Uuid a, b;
};

TEST(RuleHistory, TakesStepsBackAndForthAndSavesEach) {
    Fixture f;
    f.type(f.a, "x");
    f.type(f.a, "xy", 499);
    f.type(f.a, "xyz", 500);  // after a pause
    f.type(f.b, "b");
    f.disable(f.b);
    f.disable(f.b);
    f.move(2, 0);
    EXPECT_EQ(f.undo(2), "xyz b C <>");
    EXPECT_EQ(f.undo(2), "xy B C <>");
    EXPECT_EQ(f.undo(2), "A B C >");
    f.history.redo();
    f.type(f.a, "q");  // goes on after a step, so it is another
    EXPECT_EQ(f.undo(), "xy B C <>");
    f.type(f.b, "b");
    f.type(f.b, "B");  // as before: no step
    EXPECT_EQ(f.undo(), "A B C >");
    f.disable(f.a);
    f.type(f.a, "A");  // changes nothing, and does not join the step before
    f.type(f.a, "n");
    EXPECT_EQ(f.undo(), "A- B C <>");
    // An edit that makes a rule unready and so switches it off is undone with the switch.
    f.history.record([&] { f.set(f.b, [](GestureRule& rule) { rule.action = {}; }); });
    EXPECT_EQ(f.text(), "A- B- C <");
    EXPECT_EQ(f.undo(), "A- B C <>");
}

TEST(RuleHistory, ForgetsWhatOthersMadeMeaningless) {
    Fixture f;
    f.move(0, 3);
    f.type(f.a, "x");
    f.disable(f.b);
    f.set(f.store.addRule(), [](GestureRule& rule) { rule.name = "N"; });
    f.set(f.b, [](GestureRule& rule) { rule.name = "other"; });
    EXPECT_EQ(f.undo(3), "A other C N- >");
    f.history.redo();
    f.store.disableAllRules();  // ends the step of the switch alone
    f.history.redo();
    EXPECT_EQ(f.text(), "other- C- x- N- <");
    f.store.deleteRules({f.a});  // and with it its name and its move
    EXPECT_EQ(f.text(), "other- C- N- ");
    f.move(0, 2);
    f.store.moveRules({2}, 0);
    EXPECT_EQ(f.undo(), "N- C- other- ");
}

TEST(RuleHistory, CancelsTypingThatAFieldHasTakenBack) {
    Fixture f;
    f.disable(f.b);
    f.type(f.a, "Ab");
    f.type(f.a, "A", 5000);  // the field's own undo
    EXPECT_EQ(f.undo(), "A B C >");
}

TEST(RuleHistory, TakesAReplacedListBackWithTheStepsAroundIt) {
    Fixture f;
    const auto import = [&] { f.store.replaceRules({f.store.rules().value().back()}); };
    f.type(f.a, "x");
    f.history.recordReplacement(import);
    f.disable(f.store.rules().value().front().id);
    EXPECT_EQ(f.text(), "C- <");
    EXPECT_EQ(f.undo(2), "x B C <>");
    EXPECT_EQ(f.undo(), "A B C >");
    f.history.redo();
    f.history.redo();
    EXPECT_EQ(f.text(), "C <>");
    f.store.addRule();  // the former list has no place for it
    EXPECT_EQ(f.undo(), "C - >");
    int settings = 1;
    f.history.recordOther([&] { settings = 0; }, [&] { settings = 1; });
    f.undo();
    EXPECT_EQ(settings, 0);
    f.history.redo();
    EXPECT_EQ(settings, 1);
}

TEST(RuleHistory, ForgetsWhatAFieldTakesBackAtOnce) {
    Fixture rules;
    rules.type(rules.a, "A1");
    rules.type(rules.a, "A12", 600);
    rules.type(rules.a, "A", 600);
    EXPECT_EQ(rules.text(), "A B C ") << "nothing to bring back by undo";
    rules.type(rules.a, "A1", 600);
    rules.type(rules.b, "B1", 600);
    rules.type(rules.a, "A", 600);
    EXPECT_EQ(rules.undo(2), "A1 B C <>") << "the step of another rule stays";
}

}  // namespace
}  // namespace kinesta::testing
