#include "rules/RuleStore.h"

#include <gtest/gtest.h>

#include <functional>
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

/// The rule with a name of one letter, and an id of its own for each letter.
GestureRule named(char name, GestureRule rule) {
    rule.name = name;
    rule.id.bytes = {static_cast<std::uint8_t>(name)};
    return rule;
}

/// A rule that is ready for a small letter, and lacks its finger count for a capital one.
GestureRule ruleOf(char name) {
    return named(name, makeRule(name >= 'a' ? GestureKind::tipTapLeft : GestureKind::singleTap));
}

GestureRule shellRule(char name, std::optional<bool> acknowledged) {
    return named(name, makeShellCommand(acknowledged));
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

TEST(RuleStore, SavesAndPublishesEachChangeOnce) {
    using Change = std::function<void(Fixture&)>;
    const auto add = [](Fixture& f) {
        GestureRule blank;
        blank.id = f.store->addRule();
        EXPECT_EQ(f.rules().back(), blank);
    };
    const auto remove = [](Fixture& f) { f.store->deleteRules({ruleOf('b').id, ruleOf('x').id}); };
    const auto move = [](std::set<std::size_t> from, std::size_t to) {
        from.insert({5, 9});  // beyond the list
        return [=](Fixture& f) { f.store->moveRules(from, to); };
    };
    const auto set = [](char name, bool enabled, Result result) {
        return [=](Fixture& f) { EXPECT_EQ(f.store->setRuleEnabled(ruleOf(name).id, enabled), result); };
    };
    const auto enableAll = [](Result result) {
        return [=](Fixture& f) {
            EXPECT_EQ(f.store->canEnableAllRules(), result == Result::changed);
            EXPECT_EQ(f.store->enableAllRules(), result);
        };
    };
    const auto disableAll = [](Fixture& f) { f.store->disableAllRules(); };
    const auto replace = [](Fixture& f) {
        f.store->replaceRules({shellRule('s', {}), shellRule('t', true), ruleOf('U'), disabled(ruleOf('v'))});
    };
    const std::vector<std::tuple<const char*, Change, const char*>> rows{
        {"abcde", add, "abcde- 1/1"},
        {"abcbe", remove, "ace 1/1"},
        {"abcde", move({0}, 1), "abcde 1/1"},
        {"abcde", move({4}, 0), "eabcd 1/1"},
        {"abcde", move({2}, 7), "abdec 1/1"},
        {"abcde", move({1, 3}, 2), "abdce 1/1"},
        {"abcde", move({1, 3}, 5), "acebd 1/1"},
        {"abcde", move({0, 4}, 2), "baecd 1/1"},
        {"aB-c-", set('x', true, Result::unchanged), "aB-c- 0/0"},
        {"aB-c-", set('a', true, Result::unchanged), "aB-c- 0/0"},
        {"aB-c-", set('B', false, Result::unchanged), "aB-c- 0/0"},
        {"aB-c-", set('B', true, Result::ruleNotReady), "aB-c- 0/0"},
        {"aB-c-", set('c', true, Result::changed), "aB-c 1/1"},
        {"aB-c-", set('a', false, Result::changed), "a-B-c- 1/1"},
        {"a-B-c-D", enableAll(Result::changed), "aB-cD 1/1"},
        {"aB-cD", enableAll(Result::unchanged), "aB-cD 0/0"},
        {"aB-cD", disableAll, "a-B-c-D- 1/1"},
        {"a-B-", disableAll, "a-B- 0/0"},
        {"z", replace, "s-tU-v- 1/1"},
    };
    for (const auto& [before, change, after] : rows) {
        Fixture fixture(rulesOf(before));
        change(fixture);
        EXPECT_EQ(fixture.changes(), after) << "from " << before;
    }
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
