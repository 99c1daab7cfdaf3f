#pragma once

#include <string>
#include <vector>

#include "app/Desktop.h"
#include "app/SystemReport.h"
#include "rules/RuleStore.h"

namespace kinesta {

/// Asks in this process, for a desktop where nothing holds the answer up.
class DirectReport final : public SystemReport {
  public:
    /// The referents must outlive this.
    DirectReport(Desktop& desktop, const RuleStore& store, std::string version)
        : m_desktop(desktop), m_store(store), m_version(std::move(version)) {}

    void request(Receive receive) override;

  private:
    void answer();

    Desktop& m_desktop;
    const RuleStore& m_store;
    std::string m_version;
    std::vector<Receive> m_waiting;
    DelayedTask m_answer;
};

}  // namespace kinesta
