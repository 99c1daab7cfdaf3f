#include "cli/commands/RulesCommands.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <ctime>
#include <set>

#include "cli/OutputFile.h"
#include "cli/RuleFile.h"
#include "cli/StoredSettings.h"
#include "cli/terminal/TextTable.h"
#include "platform/linux/process/SystemError.h"
#include "rules/GestureConflictChecker.h"
#include "rules/GestureDescription.h"
#include "rules/GestureRuleCoding.h"
#include "rules/RuleStore.h"
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
    std::set<std::string> told;
    for (const GestureRule& rule : rules)
        if (const auto warning = SystemGestureWarningChecker::warning(rule, system);
            warning && rule.isEnabled && told.insert(warning->title + warning->detail).second)
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

// A copy must never overwrite an earlier one, which may be the only one of a list that someone wants back.
std::filesystem::path freshCopyPath(const std::filesystem::path& folder) {
    const auto now = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
    std::tm local{};
    localtime_r(&now, &local);
    std::array<char, 32> stamp{};
    std::strftime(stamp.data(), stamp.size(), "%Y-%m-%d-%H%M%S", &local);
    std::filesystem::path path = folder / ("rules-before-import-" + std::string(stamp.data()) + ".json");
    for (int n = 2; std::filesystem::exists(path); ++n)
        path = folder / ("rules-before-import-" + std::string(stamp.data()) + "-" + std::to_string(n) + ".json");
    return path;
}

}  // namespace

ExitStatus checkRules(const Console& console, const std::string& file, GestureSystem system, OutputForm form) {
    const auto rules = readRuleFile(file, console.in);
    if (!rules)
        return console.fail(rules.error().message);
    print(console, *rules, system, form);
    return ExitStatus::success;
}

ExitStatus listRules(const Console& console, const std::filesystem::path& defaults, GestureSystem system,
                     OutputForm form) {
    StoredSettings settings(console, defaults);
    const RuleStore store(settings.defaults());
    settings.check(store);
    if (settings.status() == ExitStatus::success)
        print(console, store.rules().value(), system, form);
    return settings.status();
}

ExitStatus exportRules(const Console& console, const std::filesystem::path& defaults, const std::string& file) {
    StoredSettings settings(console, defaults);
    const RuleStore store(settings.defaults());
    settings.check(store);
    // What stands in for rules that cannot be read is not the person's: it must not pass for a copy of them.
    if (settings.status() != ExitStatus::success)
        return settings.status();
    const std::string text = encodeRules(store.rules().value(), RuleListLayout::indented);
    if (file == "-") {
        console.out << text;
        return settings.status();
    }
    if (const Outcome written = writeOutputFile(file, text); !written)
        return console.fail(written.error().message);
    console.err << "Wrote " << counted(store.rules().value().size(), "rule") << " to " << file << ".\n";
    return settings.status();
}

ExitStatus importRules(const Console& console, const std::filesystem::path& defaults, const std::string& file) {
    auto rules = readRuleFile(file, console.in);
    if (!rules)
        return console.fail(rules.error().message + "\nNothing was changed.");

    StoredSettings settings(console, defaults);
    RuleStore store(settings.defaults());
    if (settings.status() != ExitStatus::success)
        return settings.status();
    // What cannot be decoded any more is kept as it is: it may be all that is left of someone's rules.
    const std::string before = store.problem().empty()
                                   ? encodeRules(store.rules().value(), RuleListLayout::indented)
                                   : settings.defaults().anyAsText(RuleStore::storageKey).value_or("");
    std::error_code problem;
    if (std::filesystem::create_directories(defaults.parent_path(), problem))
        std::filesystem::permissions(defaults.parent_path(), std::filesystem::perms::owner_all, problem);
    if (problem)
        return console.fail(defaults.parent_path().string() + ": " + systemErrorText(problem.value()) +
                            "\nNothing was changed.");
    const std::filesystem::path copy = freshCopyPath(defaults.parent_path());
    if (const Outcome written = writeOutputFile(copy.string(), before); !written)
        return console.fail(written.error().message + "\nNothing was changed.");

    const auto enabledInFile =
        static_cast<std::size_t>(std::ranges::count_if(*rules, [](const auto& rule) { return rule.isEnabled; }));
    store.replaceRules(std::move(*rules));
    if (settings.status() != ExitStatus::success)
        return settings.status();
    const auto& imported = store.rules().value();
    const auto enabled =
        static_cast<std::size_t>(std::ranges::count_if(imported, [](const auto& rule) { return rule.isEnabled; }));
    console.out << "Imported " << counted(imported.size(), "rule") << ", " << enabled << " of them on.\n";
    if (enabled != enabledInFile)
        console.out << counted(enabledInFile - enabled, "rule")
                    << " came enabled but incomplete or not acknowledged, and stays off until that is mended.\n";
    console.out << "The list that was there before is kept in " << copy.string() << '\n'
                << "To undo: kinesta rules import " << copy.string() << '\n';
    return ExitStatus::success;
}

}  // namespace kinesta
