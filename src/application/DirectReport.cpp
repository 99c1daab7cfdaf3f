#include "application/DirectReport.h"

#include <utility>

#include "platform/qt/ReportText.h"

namespace kinesta {

void DirectReport::request(Receive receive) {
    m_waiting.push_back(std::move(receive));
    m_answer = m_desktop.mainLoop().after({}, [this] { answer(); });
}

void DirectReport::answer() {
    Result result;
    result.findings = checkSystem(m_desktop, m_store.rules().value());
    result.text = reportText(result, m_version);
    for (const Receive& receive : std::exchange(m_waiting, {}))
        receive(result);
}

}  // namespace kinesta
