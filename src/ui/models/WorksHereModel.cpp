#include "ui/models/WorksHereModel.h"

#include <algorithm>
#include <utility>

#include "support/Translation.h"
#include "ui/models/PublishIfChanged.h"
#include "ui/models/RuleWords.h"

namespace kinesta {
namespace {

/// Enabled rules without names and cues.
std::vector<GestureRule> whatMatters(const std::vector<GestureRule>& rules) {
    std::vector<GestureRule> left;
    for (const GestureRule& rule : rules) {
        if (!rule.isEnabled)
            continue;
        GestureRule& kept = left.emplace_back(rule);
        kept.name.clear();
        kept.showsActionCue.reset();
        kept.action.customCueLabel.reset();
    }
    return left;
}

}  // namespace

WorksHereModel::WorksHereModel(Parts parts)
    : m_parts(std::move(parts)), m_known(whatMatters(m_parts.store.rules().value())) {
    const auto onChange = [this](const auto&) { request(); };
    m_observers.push_back(m_parts.store.rules().observe([this](const auto&) { followRules(); }));
    m_observers.push_back(m_parts.service.status().observe(onChange));
    m_observers.push_back(m_parts.service.isGestureEnabled().observe(onChange));
}

void WorksHereModel::setShown(bool isShown) {
    if (std::exchange(m_isShown, isShown) != isShown)
        request();
}

void WorksHereModel::cameToFront() {
    if (m_parts.clock.uptime() - m_askedAt > moment)
        request();
}

void WorksHereModel::showDetails() {
    WorksHereContent content = m_content.value();
    content.isDetailed = true;
    publishIfChanged(m_content, std::move(content));
}

void WorksHereModel::followRules() {
    std::vector<GestureRule> rules = whatMatters(m_parts.store.rules().value());
    if (rules == m_known)
        return;
    m_known = std::move(rules);
    request();
}

void WorksHereModel::request() {
    if (!m_isShown)
        return;
    m_askedAt = m_parts.clock.uptime();
    m_parts.report.request([self = std::weak_ptr(m_self)](const SystemReport::Result& result) {
        if (const auto model = self.lock())
            (*model)->receive(result);
    });
}

void WorksHereModel::receive(const SystemReport::Result& result) {
    using State = WorksHereContent::State;
    WorksHereContent content;
    content.isDetailed = m_content.value().isDetailed;
    content.problem = result.problem;
    for (const SystemFinding& finding : result.findings)
        if (auto row = rowOf(finding))
            content.rows.push_back(std::move(*row));
    const auto isMissing = [](const FindingRow& row) { return row.mark == FindingRow::Mark::missing; };
    std::stable_partition(content.rows.begin(), content.rows.end(), isMissing);
    if (!content.problem.empty())
        content.state = State::failed;
    else
        content.state = std::ranges::any_of(content.rows, isMissing) ? State::missing : State::fine;
    publishIfChanged(m_content, std::move(content));
}

std::optional<FindingRow> WorksHereModel::rowOf(const SystemFinding& finding) const {
    using Button = FindingRow::Button;
    using Mark = FindingRow::Mark;
    FindingRow row{.subject = finding.subject,
                   .mark = finding.works        ? Mark::works
                           : finding.isNeeded() ? Mark::missing
                                                : Mark::absent,
                   .what = finding.what,
                   .why = finding.why,
                   .remedy = finding.remedy,
                   .command = finding.command,
                   .tag = {},
                   .button = Button::none,
                   .rule = finding.rule};
    if (finding.rule) {
        const auto& rules = m_parts.store.rules().value();
        const auto rule = std::ranges::find(rules, *finding.rule, &GestureRule::id);
        // It may be gone since.
        if (rule == rules.end())
            return std::nullopt;
        row.what = translated("Rule “%1”", {displayName(*rule)});
        row.button = Button::showRule;
    } else if (row.mark == Mark::missing) {
        row.tag = finding.rulesInNeed == 1 ? translated("1 rule needs this")
                                           : translated("%1 rules need this", {std::to_string(finding.rulesInNeed)});
    }
    // The pad may have come meanwhile, or a recording takes its place.
    if (finding.subject == FindingSubject::touchpad && !finding.works &&
        m_parts.service.status().value().kind == TrackpadContactProviderStatus::Kind::listening) {
        row.mark = Mark::works;
        row.why = translated("It is being read.");
        row.remedy.clear();
        row.command.clear();
        row.tag.clear();
        return row;
    }
    // It may have gone since, or Kinesta reads something else than the report knows.
    if (finding.subject == FindingSubject::touchpad && finding.works &&
        m_parts.service.status().value().kind == TrackpadContactProviderStatus::Kind::unavailable) {
        row.mark = Mark::missing;
        row.why = m_parts.service.status().value().message;
        return row;
    }
    // The settings are in this window.
    if (finding.isSetting) {
        row.button = Button::openSettings;
        row.remedy.clear();
    } else if (finding.subject == FindingSubject::sendInput && !finding.works && m_parts.isPermissionMissing()) {
        row.button = Button::allow;
    }
    return row;
}

}  // namespace kinesta
