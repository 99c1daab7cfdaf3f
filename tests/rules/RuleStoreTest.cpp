#include "rules/RuleStore.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <tuple>

#include "RuleMaking.h"
#include "rules/GestureRuleCoding.h"
#include "support/FakeUserDefaults.h"

namespace kinesta {
namespace {

using Result = RuleEnablementResult;
using Rules = std::vector<GestureRule>;

constexpr std::string_view kKey = "gestureRules.v1";

/// A rule that is ready for a small letter, and lacks its finger count for a capital one.
GestureRule ruleOf(char name) {
    GestureRule rule = makeRule(name >= 'a' ? GestureKind::tipTapLeft : GestureKind::singleTap);
    rule.name = name;
    return rule;
}

GestureRule shellRule(char name, std::optional<bool> acknowledged) {
    GestureRule rule = makeShellCommand(acknowledged);
    rule.name = name;
    return rule;
}

/// The rules of a text like "ab-C": a "-" disables the one before.
Rules rulesOf(std::string_view text) {
    Rules rules;
    for (const char name : text)
        name == '-' ? void(rules.back().isEnabled = false) : rules.push_back(ruleOf(name));
    return rules;
}

/// A store with a stored list, and the number of its notifications.
struct Fixture {
    explicit Fixture(const Rules& rules) : Fixture(std::optional(encodeRules(rules))) {}
    explicit Fixture(std::optional<std::string> bytes) {
        if (bytes)
            defaults.setData(kKey, *bytes);
        start();
    }

    void start() {
        defaults.writes = 0;
        store.emplace(defaults);
        subscription = store->rules().observe([this](const auto&) { ++published; });
    }

    const Rules& rules() const { return store->rules().value(); }
    const Uuid& id(std::size_t index) const { return rules().at(index).id; }

    /// The rules as in rulesOf(), and "published/written" since the last call. Checks that the stored list equals
    /// the one in memory.
    std::string changes() {
        EXPECT_TRUE(defaults.writes == 0 || defaults.data(kKey) == encodeRules(rules()));
        std::string text;
        for (const GestureRule& rule : rules())
            text += rule.name + (rule.isEnabled ? "" : "-");
        text += " " + std::to_string(std::exchange(published, 0)) + "/";
        return text + std::to_string(std::exchange(defaults.writes, 0));
    }

    FakeUserDefaults defaults;
    std::optional<RuleStore> store;
    Subscription subscription;
    int published = 0;
};

TEST(RuleStore, StartsWithTheDefaultRuleAndLeavesTheStoredBytes) {
    const std::string spoilt = replaced(encodeRules(rulesOf("a")), "tipTapLeft", "singleTipTapLeft");
    for (const std::optional<std::string>& bytes :
         {std::optional<std::string>(), std::optional<std::string>(""), std::optional(spoilt)}) {
        Fixture fixture(bytes);
        EXPECT_EQ(fixture.rules(), Rules{GestureRule::recommendedDefault()});
        EXPECT_EQ(fixture.defaults.data(kKey), bytes);
        fixture.store->deleteRules({Uuid::random()});
        fixture.store->moveRules({}, 0);
        fixture.store->moveRules({1}, 0);
        EXPECT_EQ(fixture.changes(), "Middle click 0/0") << "nothing came of it, so nothing is overwritten";
        fixture.store->addRule();
        EXPECT_EQ(fixture.changes(), bytes ? "Middle click- 1/2" : "Middle click- 1/1");
        EXPECT_EQ(fixture.defaults.data(std::string(kKey) + ".unreadable-1"), bytes) << "set aside";
        fixture.start();
        EXPECT_EQ(fixture.rules().size(), 2U);
    }
    EXPECT_TRUE(Fixture(Rules{}).rules().empty()) << "an empty list is a list";
}

TEST(RuleStore, ReadsWhatIsWrittenByHandAndOverwritesNoneOfIt) {
    const Rules rules = rulesOf("a");
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

TEST(RuleStore, DisablesUnacknowledgedShellRulesOnLoadingAndSavesThat) {
    const Rules others{shellRule('a', true), disabled(shellRule('b', {})), ruleOf('C'),
                       makeRule(GestureKind::unconfigured)};
    EXPECT_EQ(Fixture(others).changes(), "ab-C 0/0");
    for (const std::optional<bool> acknowledged : {std::optional<bool>(), {false}})
        EXPECT_EQ(Fixture(Rules{others[0], shellRule('s', acknowledged), others[2]}).changes(), "as-C 0/1");
}

TEST(RuleStore, AddsABlankRuleAtTheEndAndDeletesById) {
    Rules rules = rulesOf("abcde");
    rules[3].id = rules[1].id;
    Fixture fixture(rules);
    GestureRule blank;
    blank.id = fixture.store->addRule();
    EXPECT_EQ(fixture.rules().back(), blank);
    EXPECT_EQ(fixture.changes(), "abcde- 1/1");
    fixture.store->deleteRules({blank.id, rules[1].id, Uuid::random()});
    EXPECT_EQ(fixture.changes(), "ace 1/1");
}

TEST(RuleStore, MovesAnySelectionAnywhere) {
    const Rules rules = rulesOf("abcde");
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
        EXPECT_EQ(fixture.changes(), expected + " 1/1") << ::testing::PrintToString(from) << " to " << to;
    }
}

TEST(RuleStore, EnablesOnlyReadyRules) {
    Fixture fixture(rulesOf("aB-c-"));
    const auto set = [&](const Uuid& id, bool enabled) { return fixture.store->setRuleEnabled(id, enabled); };
    EXPECT_EQ(set(Uuid::random(), true), Result::unchanged);
    EXPECT_EQ(set(fixture.id(0), true), Result::unchanged);
    EXPECT_EQ(set(fixture.id(1), false), Result::unchanged);
    EXPECT_EQ(set(fixture.id(1), true), Result::ruleNotReady);
    EXPECT_EQ(fixture.changes(), "aB-c- 0/0");
    EXPECT_EQ(set(fixture.id(2), true), Result::changed);
    EXPECT_EQ(set(fixture.id(0), false), Result::changed);
    EXPECT_EQ(fixture.changes(), "a-B-c 2/2");

    Fixture all(rulesOf("a-B-c-D"));
    EXPECT_TRUE(all.store->canEnableAllRules());
    EXPECT_EQ(all.store->enableAllRules(), Result::changed);
    EXPECT_EQ(all.changes(), "aB-cD 1/1");
    EXPECT_FALSE(all.store->canEnableAllRules());
    EXPECT_EQ(all.store->enableAllRules(), Result::unchanged);
    all.store->disableAllRules();
    all.store->disableAllRules();
    EXPECT_EQ(all.changes(), "a-B-c-D- 1/1");
}

TEST(RuleStoreBinding, FollowsItsRule) {
    Fixture fixture(rulesOf("ab"));
    GestureRule edited = fixture.rules()[1];
    EXPECT_FALSE(fixture.store->binding(Uuid::random()));
    const auto binding = fixture.store->binding(edited.id);
    ASSERT_TRUE(binding);
    fixture.store->moveRules({1}, 0);
    EXPECT_EQ(binding->get(), edited);
    EXPECT_EQ(fixture.changes(), "ba 1/1");
    edited.name = "e";
    binding->set(edited);
    EXPECT_EQ(fixture.changes(), "ea 1/1");
    edited.action = {};
    binding->set(edited);
    EXPECT_EQ(binding->get(), disabled(edited));
    fixture.store->deleteRules({edited.id});
    EXPECT_EQ(fixture.changes(), "a 2/2");
    EXPECT_EQ(binding->get(), GestureRule::recommendedDefault());
    binding->set(edited);
    EXPECT_EQ(fixture.changes(), "a 0/0");
}

TEST(RuleStore, DisablesUnreadyRulesOfAReplacement) {
    Fixture fixture(rulesOf("z"));
    fixture.store->replaceRules({shellRule('s', {}), shellRule('t', true), ruleOf('U'), disabled(ruleOf('v'))});
    EXPECT_EQ(fixture.changes(), "s-tU-v- 1/1");
}

TEST(RuleStore, PublishesOnlyDifferencesOnReload) {
    const Rules rules = rulesOf("a");
    const std::string withShell = encodeRules(Rules{shellRule('s', {}), rules[0]});
    Fixture fixture(rules);
    const auto reload = [&](const std::string& bytes) {
        fixture.defaults.setData(kKey, bytes);
        fixture.defaults.writes = 0;
        fixture.store->reload();
        return std::to_string(std::exchange(fixture.published, 0)) + "/" + std::to_string(fixture.defaults.writes);
    };
    EXPECT_EQ(reload(encodeRules(rules, RuleListLayout::indented)), "0/0");
    EXPECT_EQ(reload("[{]"), "0/0");
    EXPECT_EQ(fixture.rules(), rules);
    EXPECT_EQ(reload(withShell), "1/1");
    EXPECT_EQ(reload(withShell), "0/1");
    EXPECT_EQ(fixture.changes(), "s-a 0/1");
    fixture.defaults.remove(kKey);
    fixture.store->reload();
    fixture.store->reload();
    EXPECT_EQ(fixture.rules(), Rules{GestureRule::recommendedDefault()});
    EXPECT_EQ(fixture.published, 1);
    EXPECT_FALSE(fixture.defaults.contains(kKey));
}

TEST(RuleStore, LetsAnObserverChangeTheList) {
    Fixture fixture(rulesOf("a-"));
    const auto again = fixture.store->rules().observe([&](const auto& list) {
        if (list.size() < 4)
            fixture.store->addRule();
    });
    EXPECT_EQ(fixture.store->setRuleEnabled(fixture.id(0), true), Result::changed);
    EXPECT_EQ(fixture.changes(), "a--- 4/4");
}

}  // namespace
}  // namespace kinesta
