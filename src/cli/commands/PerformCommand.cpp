#include "cli/commands/Commands.h"

#include "app/RulePerformer.h"
#include "cli/GestureReport.h"
#include "cli/StoredSettings.h"

namespace kinesta {
namespace {

/// The rule with this id or, failing that, the first with this name.
const GestureRule* findRule(const std::vector<GestureRule>& rules, const std::string& wanted) {
    const auto id = Uuid::parse(wanted);
    for (const GestureRule& rule : rules)
        if (id && rule.id == *id)
            return &rule;
    for (const GestureRule& rule : rules)
        if (!wanted.empty() && rule.name == wanted)
            return &rule;
    return nullptr;
}

}  // namespace

ExitStatus perform(const Console& console, Desktop& desktop, const std::string& rule) {
    StoredSettings settings(console, desktop);
    const RuleStore store(settings.defaults());
    settings.check(store);
    const GestureRule* found = findRule(store.rules().value(), rule);
    if (found == nullptr)
        return console.fail("No stored rule has the id or the name \"" + rule + "\". See: kinesta rules list");
    RulePerformer performer(desktop, settings.defaults(), [&] { return settings.disableAllRules(); });
    const auto report = performer.perform(*found, 1);
    // Another thread starts programs, so a failure to start one is known only after finish().
    const std::string problem = performer.finish();
    if (report.outcome == RulePerformer::Outcome::failed)
        return console.fail(report.why);
    if (!problem.empty())
        return console.fail(problem);
    console.out << (report.outcome == RulePerformer::Outcome::done ? "Done: " : "Asked for: ") << ruleInWords(*found)
                << '\n'
                << report.why << (report.why.empty() ? "" : "\n");
    return settings.status();
}

}  // namespace kinesta
