#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "app/SystemReport.h"
#include "recognition/MultitouchService.h"
#include "rules/RuleStore.h"
#include "support/Clock.h"
#include "support/Published.h"

namespace kinesta {

/// One finding as the window shows it.
struct FindingRow {
    /// `missing`: a rule needs it. `absent`: no rule does.
    enum class Mark { works, missing, absent };
    enum class Button { none, allow, openSettings, showRule };

    FindingSubject subject = FindingSubject::rule;
    Mark mark = Mark::works;
    std::string what;
    std::string why;
    std::string remedy;
    /// To be run in a terminal; may be empty.
    std::string command;
    /// "1 rule needs this", or nothing.
    std::string tag;
    Button button = Button::none;
    std::optional<Uuid> rule;

    friend bool operator==(const FindingRow&, const FindingRow&) = default;
};

struct WorksHereContent {
    /// `looking`: nothing is known yet. `failed`: there is no report.
    enum class State { looking, failed, fine, missing };

    State state = State::looking;
    std::string problem;
    /// What is missing first.
    std::vector<FindingRow> rows;
    /// All rows are shown although everything is fine.
    bool isDetailed = false;

    friend bool operator==(const WorksHereContent&, const WorksHereContent&) = default;
};

/// What works on this machine, and what to do about the rest. Asks for it only while it is shown: at first, after a
/// change that matters, and when the window comes back to the front. Main thread only.
class WorksHereModel {
  public:
    /// The window may have been left to follow a remedy if it was away for this long.
    static constexpr Seconds moment = 2;

    /// The referents must outlive the model.
    struct Parts {
        const RuleStore& store;
        const MultitouchService& service;
        SystemReport& report;
        const Clock& clock;
        std::function<bool()> isPermissionMissing;
    };

    explicit WorksHereModel(Parts parts);

    /// Set only when something differs.
    const Published<WorksHereContent>& content() const { return m_content; }

    void setShown(bool isShown);
    void cameToFront();
    void showDetails();

  private:
    void followRules();
    void request();
    void receive(const SystemReport::Result& result);
    std::optional<FindingRow> rowOf(const SystemFinding& finding) const;

    Parts m_parts;
    bool m_isShown = false;
    Uptime m_askedAt = 0;
    /// The rules as they are without what no finding depends on.
    std::vector<GestureRule> m_known;
    Published<WorksHereContent> m_content;
    std::vector<Subscription> m_observers;
    /// Requests hold it weakly: an answer may come after the window is gone.
    std::shared_ptr<WorksHereModel*> m_self = std::make_shared<WorksHereModel*>(this);
};

}  // namespace kinesta
