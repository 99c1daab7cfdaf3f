#include "cli/commands/Commands.h"

#include <algorithm>

#include "app/SystemCheck.h"
#include "cli/StoredSettings.h"
#include "cli/terminal/TextTable.h"
#include "support/Json.h"

namespace kinesta {
namespace {

void printJson(const Console& console, const std::vector<SystemFinding>& findings) {
    Json array = Json::array();
    for (const SystemFinding& finding : findings)
        array.push_back({{"subject", rawValue(finding.subject)},
                         {"what", printable(finding.what)},
                         {"works", finding.works},
                         {"needed", finding.isNeeded()},
                         {"rulesInNeed", finding.rulesInNeed},
                         {"rule", finding.rule ? Json(finding.rule->toString()) : Json(nullptr)},
                         {"why", finding.why},
                         {"remedy", finding.remedy},
                         {"command", finding.command},
                         {"setting", finding.isSetting},
                         {"chosenName", finding.chosenName}});
    console.out << array.text(2) << '\n';
}

void printForPeople(const Console& console, const std::vector<SystemFinding>& findings, bool isMissing) {
    for (const SystemFinding& finding : findings) {
        const std::string mark = finding.works        ? console.good("✓")
                                 : finding.isNeeded() ? console.warning("✗")
                                                      : console.dim("–");
        console.out << mark << ' ' << console.bold(printable(finding.what)) << ": " << printable(finding.why) << '\n';
        if (!finding.works && !finding.remedy.empty())
            console.out << "    " << finding.remedy << '\n';
        if (!finding.works && !finding.command.empty())
            console.out << "        " << finding.command << '\n';
    }
    console.out << '\n'
                << (isMissing ? "Something that your rules need is missing (✗)." : "All that your rules need is there.")
                << '\n';
}

}  // namespace

ExitStatus doctor(const Console& console, Desktop& desktop, OutputForm form) {
    StoredSettings settings(console, desktop);
    const RuleStore store(settings.defaults());
    settings.check(store);
    const auto findings = checkSystem(desktop, store.rules().value());
    const bool isMissing = std::ranges::any_of(findings, &SystemFinding::isMissing);
    if (form == OutputForm::json)
        printJson(console, findings);
    else
        printForPeople(console, findings, isMissing);
    return isMissing ? ExitStatus::badInput : settings.status();
}

}  // namespace kinesta
