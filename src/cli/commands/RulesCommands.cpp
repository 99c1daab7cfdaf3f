#include "cli/commands/Commands.h"

#include <set>

#include "cli/StoredSettings.h"
#include "cli/terminal/TextTable.h"
#include "rules/GestureConflictChecker.h"
#include "rules/GestureDescription.h"
#include "support/Json.h"

namespace kinesta {
namespace {

std::string state(const GestureRule& rule, bool conflicts) {
    if (!rule.isReady())
        return "incomplete";
    if (conflicts)
        return "clash";
    return rule.isEnabled ? "on" : "off";
}

Json report(const GestureRule& rule, bool conflicts, GestureSystem system) {
    Json warning = nullptr;
    if (const auto found = SystemGestureWarningChecker::warning(rule, system))
        warning = Json{{"title", found->title}, {"detail", found->detail}};
    const auto cue = rule.resolvedVisualCueMessage();
    return {{"id", rule.id.toString()},
            {"name", rule.name},
            {"enabled", rule.isEnabled},
            {"ready", rule.isReady()},
            {"conflict", conflicts},
            {"warning", warning},
            {"summary", rule.action.summary()},
            {"cue", cue ? Json(*cue) : Json(nullptr)}};
}

void printForPeople(const Console& console, const std::vector<GestureRule>& rules, const std::set<Uuid>& conflicts,
                    GestureSystem system) {
    if (rules.empty()) {
        console.out << "There are no rules.\n";
        return;
    }
    TextTable table({"#", "STATE", "GESTURE", "NAME", "ACTION"});
    for (std::size_t i = 0; i < rules.size(); ++i)
        table.add({std::to_string(i + 1), state(rules[i], conflicts.contains(rules[i].id)), describeTrigger(rules[i]),
                   rules[i].name.empty() ? "Untitled gesture" : rules[i].name, rules[i].action.summary()});
    table.print(console);
    if (!conflicts.empty())
        console.out << '\n'
                    << console.warning("clash") << "  Another enabled rule uses this gesture. "
                    << "Only the first matching rule will run.\n";
    std::set<std::string> shown;
    for (const GestureRule& rule : rules)
        if (const auto warning = SystemGestureWarningChecker::warning(rule, system);
            warning && rule.isEnabled && shown.insert(warning->title + warning->detail).second)
            console.out << '\n' << console.warning(warning->title) << '\n' << "  " << warning->detail << '\n';
}

void print(const Console& console, const std::vector<GestureRule>& rules, GestureSystem system, OutputForm form) {
    const std::set<Uuid> conflicts = GestureConflictChecker::conflictingRuleIDs(rules);
    if (form == OutputForm::forPeople) {
        printForPeople(console, rules, conflicts, system);
        return;
    }
    for (const GestureRule& rule : rules)
        console.out << report(rule, conflicts.contains(rule.id), system).text() << '\n';
}

std::string counted(std::size_t count, std::string_view noun) {
    return std::to_string(count) + " " + std::string(noun) + (count == 1 ? "" : "s");
}

}  // namespace

ExitStatus checkRules(const Console& console, const std::string& file, GestureSystem system, OutputForm form) {
    const auto rules = readRuleFile(file, console.in);
    if (!rules)
        return console.fail(rules.error().message);
    print(console, *rules, system, form);
    return ExitStatus::success;
}

ExitStatus listRules(const Console& console, Desktop& desktop, GestureSystem system, OutputForm form) {
    StoredSettings settings(console, desktop);
    const RuleStore store(settings.defaults());
    settings.check(store);
    if (settings.status() == ExitStatus::success)
        print(console, store.rules().value(), system, form);
    return settings.status();
}

ExitStatus exportRules(const Console& console, Desktop& desktop, const std::string& file) {
    StoredSettings settings(console, desktop);
    const RuleStore store(settings.defaults());
    settings.check(store);
    // If the stored rules are unreadable, the store holds the default rules. Do not export those instead.
    if (settings.status() != ExitStatus::success)
        return settings.status();
    if (file == "-") {
        console.out << ruleFileText(store);
        return settings.status();
    }
    if (const Outcome written = exportRules(store, file); !written)
        return console.fail(written.error().message);
    console.err << "Wrote " << counted(store.rules().value().size(), "rule") << " to " << file << ".\n";
    return settings.status();
}

ExitStatus importRules(const Console& console, Desktop& desktop, const std::string& file) {
    const auto fail = [&](const Error& error) { return console.fail(error.message + "\nNothing was changed."); };
    auto rules = readRuleFile(file, console.in);
    if (!rules)
        return fail(rules.error());
    StoredSettings settings(console, desktop);
    RuleStore store(settings.defaults());
    if (settings.status() != ExitStatus::success)
        return settings.status();
    const auto imported = importRules(desktop, store, std::move(*rules));
    if (!imported)
        return fail(imported.error());
    console.out << "Imported " << counted(imported->count, "rule") << ", " << imported->enabled << " of them on.\n";
    if (imported->leftOff > 0)
        console.out << counted(imported->leftOff, "rule")
                    << " came enabled but incomplete or not acknowledged, and stays off until that is corrected.\n";
    console.out << "The list that was there before is kept in " << imported->copy.string() << '\n'
                << "To undo: kinesta rules import " << imported->copy.string() << '\n';
    return ExitStatus::success;
}

}  // namespace kinesta
