#include "rules/RuleStore.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <tuple>

#include "RuleMaking.h"
#include "rules/GestureRuleCoding.h"
#include "support/FakeUserDefaults.h"

namespace kinesta {
namespace {

using Result = RuleEnablementResult;

constexpr std::string_view kKey = "gestureRules.v1";

/// A store with a stored list, and the number of its notifications.
struct Fixture {
    explicit Fixture(const std::vector<GestureRule>& rules) : Fixture(std::optional(encodeRules(rules))) {}
    explicit Fixture(std::optional<std::string> bytes) {
        if (bytes)
            defaults.setData(kKey, *bytes);
        defaults.writes = 0;
        start();
    }

    void start() {
        store.emplace(defaults);
        subscription = store->rules().observe([this](const auto&) { ++published; });
    }

    const std::vector<GestureRule>& rules() const { return store->rules().value(); }

    /// "published/written" since the last call. Checks that the stored list equals the one in memory.
    std::string changes() {
        EXPECT_TRUE(defaults.writes == 0 || defaults.data(kKey) == encodeRules(rules()));
        std::string text = std::to_string(std::exchange(published, 0)) + "/";
        return text + std::to_string(std::exchange(defaults.writes, 0));
    }

    /// One digit per rule: 1 if it is enabled.
    std::string states() const {
        std::string text;
        for (const GestureRule& rule : rules())
            text += rule.isEnabled ? '1' : '0';
        return text;
    }

    FakeUserDefaults defaults;
    std::optional<RuleStore> store;
    Subscription subscription;
    int published = 0;
};

TEST(RuleStore, StartsWithTheDefaultRuleAndLeavesTheStoredBytes) {
    const std::string spoilt =
        R"([{"id":"11111111-2222-4333-8444-AAAAAAAAAAAA","name":"","isEnabled":true,)"
        R"("gesture":"singleTipTapLeft","action":{"kind":"middleClick","modifiers":0,"value":""}}])";
    for (const std::optional<std::string>& bytes :
         {std::optional<std::string>(), std::optional<std::string>(""), std::optional(spoilt)}) {
        Fixture fixture(bytes);
        EXPECT_EQ(fixture.rules(), std::vector{GestureRule::recommendedDefault()});
        EXPECT_EQ(fixture.defaults.writes, 0);
        EXPECT_EQ(fixture.defaults.data(kKey), bytes);
        fixture.store->deleteRules({Uuid::random()});
        fixture.store->moveRules({}, 0);
        fixture.store->moveRules({1}, 0);
        EXPECT_EQ(fixture.changes(), "0/0") << "nothing came of it, so nothing is overwritten";
        fixture.store->addRule();
        EXPECT_EQ(fixture.changes(), bytes ? "1/2" : "1/1");
        EXPECT_EQ(fixture.defaults.data(std::string(kKey) + ".unreadable-1"), bytes) << "set aside";
        fixture.start();
        EXPECT_EQ(fixture.rules().size(), 2U);
    }
    EXPECT_TRUE(Fixture(std::vector<GestureRule>{}).rules().empty()) << "an empty list is a list";
}

TEST(RuleStore, ReadsWhatIsWrittenByHandAndOverwritesNoneOfIt) {
    const std::vector<GestureRule> rules{makeRule(GestureKind::tipTapLeft)};
    Fixture fixture(std::nullopt);
    const auto startWith = [&](StoredValue value) {
        fixture.defaults.replaceValues({{std::string(kKey), std::move(value)}});
        fixture.start();
        return fixture.store->problem();
    };
    for (const StoredValue& plain : {StoredValue(ForeignValue{encodeRules(rules)}), StoredValue(encodeRules(rules))}) {
        EXPECT_EQ(startWith(plain), "");
        EXPECT_EQ(fixture.rules(), rules);
    }
    int number = 0;
    for (const auto& [value, text] : std::vector<std::pair<StoredValue, std::string>>{
             {std::int64_t{5}, "5"}, {2.5, "2.5"}, {true, "true"}, {ForeignValue{"[7]"}, "[7]"}}) {
        EXPECT_NE(startWith(value), "");
        fixture.store->disableAllRules();
        EXPECT_EQ(fixture.defaults.data(std::string(kKey) + ".unreadable-1"), text);
        EXPECT_EQ(fixture.defaults.data(kKey), encodeRules(fixture.rules()));
        fixture.defaults.setInteger(kKey, ++number);
        fixture.store->reload();
        fixture.store->addRule();
        EXPECT_EQ(fixture.defaults.data(std::string(kKey) + ".unreadable-2"), std::to_string(number));
    }
}

TEST(RuleStore, UnacknowledgedShellRulesComeBackSwitchedOffAndAreSavedSo) {
    const std::vector<GestureRule> others{makeShellCommand(true), disabled(makeShellCommand(std::nullopt)),
                                          makeRule(GestureKind::singleTap), makeRule(GestureKind::unconfigured)};
    Fixture quiet(others);
    EXPECT_EQ(quiet.rules(), others);
    EXPECT_EQ(quiet.changes(), "0/0");
    for (const std::optional<bool> acknowledged : {std::optional<bool>(), {false}}) {
        const GestureRule shell = makeShellCommand(acknowledged);
        Fixture fixture(std::vector{others[0], shell, others[2]});
        EXPECT_EQ(fixture.rules(), (std::vector{others[0], disabled(shell), others[2]}));
        EXPECT_EQ(fixture.changes(), "0/1");
    }
}

TEST(RuleStore, AddsABlankRuleAtTheEndAndDeletesById) {
    std::vector<GestureRule> rules(5);
    std::ranges::generate(rules, [] { return makeRule(GestureKind::tipTapLeft); });
    rules[3].id = rules[1].id;
    Fixture fixture(rules);
    GestureRule blank;
    blank.id = fixture.store->addRule();
    EXPECT_EQ(fixture.rules().back(), blank);
    EXPECT_EQ(fixture.changes(), "1/1");
    fixture.store->deleteRules({blank.id, rules[1].id, Uuid::random()});
    EXPECT_EQ(fixture.rules(), (std::vector{rules[0], rules[2], rules[4]}));
    EXPECT_EQ(fixture.changes(), "1/1");
}

TEST(RuleStore, MovesAnySelectionAnywhere) {
    std::vector<GestureRule> rules;
    for (const char letter : std::string("abcde")) {
        rules.push_back(makeRule(GestureKind::tipTapLeft));
        rules.back().name = letter;
    }
    Fixture fixture(rules);
    const std::vector<std::tuple<std::set<std::size_t>, std::size_t, std::string>> rows{
        {{0}, 1, "abcde"},    {{0}, 2, "bacde"},    {{4}, 0, "eabcd"},    {{2}, 7, "abdec"},
        {{1, 3}, 2, "abdce"}, {{1, 3}, 5, "acebd"}, {{0, 4}, 2, "baecd"}, {{0, 1, 2, 3, 4}, 3, "abcde"},
    };
    for (const auto& [from, to, expected] : rows) {
        fixture.store->replaceRules(rules);
        fixture.changes();
        auto withStray = from;
        withStray.insert({5, 9});
        fixture.store->moveRules(withStray, to);
        std::string names;
        for (const GestureRule& rule : fixture.rules())
            names += rule.name;
        EXPECT_EQ(names, expected) << ::testing::PrintToString(from) << " to " << to;
        EXPECT_EQ(fixture.changes(), "1/1");
    }
}

TEST(RuleStore, EnablesOneRuleOnlyWhenReady) {
    const std::vector<GestureRule> rules{makeRule(GestureKind::singleTap, 3),
                                         disabled(makeRule(GestureKind::singleTap)),
                                         disabled(makeRule(GestureKind::tipTapLeft))};
    Fixture fixture(rules);
    const auto set = [&](const Uuid& id, bool enabled) { return fixture.store->setRuleEnabled(id, enabled); };
    EXPECT_EQ(set(Uuid::random(), true), Result::unchanged);
    EXPECT_EQ(set(rules[0].id, true), Result::unchanged);
    EXPECT_EQ(set(rules[1].id, false), Result::unchanged);
    EXPECT_EQ(set(rules[1].id, true), Result::ruleNotReady);
    EXPECT_EQ(fixture.changes(), "0/0");
    EXPECT_EQ(set(rules[2].id, true), Result::changed);
    EXPECT_EQ(set(rules[0].id, false), Result::changed);
    EXPECT_EQ(fixture.changes(), "2/2");
    EXPECT_EQ(fixture.states(), "001");
}

TEST(RuleStore, EnablesAllReadyRulesAndDisablesAll) {
    const GestureRule ready = makeRule(GestureKind::tipTapLeft);
    const GestureRule unready = makeRule(GestureKind::singleTap);
    Fixture fixture(std::vector{disabled(ready), disabled(unready), disabled(ready), unready});
    EXPECT_TRUE(fixture.store->canEnableAllRules());
    EXPECT_EQ(fixture.store->enableAllRules(), Result::changed);
    EXPECT_EQ(fixture.states() + " " + fixture.changes(), "1011 1/1");
    EXPECT_FALSE(fixture.store->canEnableAllRules());
    EXPECT_EQ(fixture.store->enableAllRules(), Result::unchanged);
    fixture.store->disableAllRules();
    fixture.store->disableAllRules();
    EXPECT_EQ(fixture.states() + " " + fixture.changes(), "0000 1/1");
}

TEST(RuleStoreBinding, FollowsItsRule) {
    const std::vector<GestureRule> rules{makeRule(GestureKind::tipTapLeft), makeRule(GestureKind::tipTapRight)};
    Fixture fixture(rules);
    EXPECT_FALSE(fixture.store->binding(Uuid::random()));
    const auto binding = fixture.store->binding(rules[1].id);
    ASSERT_TRUE(binding);
    fixture.store->moveRules({1}, 0);
    EXPECT_EQ(binding->get(), rules[1]);
    GestureRule edited = rules[1];
    edited.name = "Edited";
    fixture.changes();
    binding->set(edited);
    EXPECT_EQ(fixture.rules(), (std::vector{edited, rules[0]}));
    EXPECT_EQ(fixture.changes(), "1/1");
    edited.action = {};
    binding->set(edited);
    EXPECT_EQ(binding->get(), disabled(edited));
    fixture.store->deleteRules({edited.id});
    fixture.changes();
    EXPECT_EQ(binding->get(), GestureRule::recommendedDefault());
    binding->set(rules[1]);
    EXPECT_EQ(fixture.rules(), std::vector{rules[0]});
    EXPECT_EQ(fixture.changes(), "0/0");
}

TEST(RuleStore, DisablesUnreadyRulesOfAReplacement) {
    const GestureRule ready = makeRule(GestureKind::tipTapLeft);
    const GestureRule unready = makeRule(GestureKind::singleTap);
    const GestureRule shell = makeShellCommand(std::nullopt);
    const GestureRule acknowledged = makeShellCommand(true);
    Fixture fixture(std::vector{ready});
    fixture.store->replaceRules({shell, acknowledged, unready, disabled(ready)});
    EXPECT_EQ(fixture.changes(), "1/1");
    EXPECT_EQ(fixture.rules(), (std::vector{disabled(shell), acknowledged, disabled(unready), disabled(ready)}));
}

TEST(RuleStore, PublishesOnlyDifferencesOnReload) {
    const GestureRule rule = makeRule(GestureKind::tipTapLeft);
    const GestureRule shell = makeShellCommand(std::nullopt);
    Fixture fixture(std::vector{rule});
    const auto reload = [&](const std::string& bytes) {
        fixture.defaults.setData(kKey, bytes);
        fixture.defaults.writes = 0;
        fixture.store->reload();
        return std::to_string(std::exchange(fixture.published, 0)) + "/" + std::to_string(fixture.defaults.writes);
    };
    EXPECT_EQ(reload(encodeRules(std::vector{rule}, RuleListLayout::indented)), "0/0");
    EXPECT_EQ(reload("[{]"), "0/0");
    EXPECT_EQ(fixture.rules(), std::vector{rule});
    EXPECT_EQ(reload(encodeRules(std::vector{shell, rule})), "1/1");
    EXPECT_EQ(fixture.rules(), (std::vector{disabled(shell), rule}));
    EXPECT_EQ(reload(encodeRules(std::vector{shell, rule})), "0/1");
    fixture.defaults.remove(kKey);
    fixture.store->reload();
    fixture.store->reload();
    EXPECT_EQ(fixture.rules(), std::vector{GestureRule::recommendedDefault()});
    EXPECT_EQ(fixture.published, 1);
    EXPECT_FALSE(fixture.defaults.contains(kKey));
}

TEST(RuleStore, LetsAnObserverChangeTheList) {
    const std::vector<GestureRule> rules{disabled(makeRule(GestureKind::tipTapLeft))};
    Fixture fixture(rules);
    const auto again = fixture.store->rules().observe([&](const auto& list) {
        if (list.size() < 4)
            fixture.store->addRule();
    });
    EXPECT_EQ(fixture.store->setRuleEnabled(rules[0].id, true), Result::changed);
    EXPECT_EQ(fixture.rules().size(), 4U);
    EXPECT_EQ(fixture.defaults.data(kKey), encodeRules(fixture.rules()));
}

}  // namespace
}  // namespace kinesta
