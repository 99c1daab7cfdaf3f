#include "app/ApplicationControl.h"

#include <algorithm>
#include <utility>

namespace kinesta {

ApplicationControl::ApplicationControl(Parts parts) : m_parts(std::move(parts)), m_state(read()) {
    const auto onChange = [this](const auto&) { refresh(); };
    m_observers.push_back(m_parts.store.rules().observe(onChange));
    m_observers.push_back(m_parts.service.status().observe(onChange));
    m_observers.push_back(m_parts.service.isGestureEnabled().observe(onChange));
}

void ApplicationControl::perform(ApplicationRequest request) {
    switch (request) {
        case ApplicationRequest::show:
            m_parts.show();
            break;
        case ApplicationRequest::hide:
            m_parts.hide();
            break;
        case ApplicationRequest::toggle:
            m_parts.toggle();
            break;
        case ApplicationRequest::enable:
        case ApplicationRequest::disable:
            m_parts.service.setGestureEnabled(request == ApplicationRequest::enable);
            break;
        case ApplicationRequest::reload:
            m_parts.reload();
            break;
        case ApplicationRequest::quit:
            m_parts.quit();
            break;
    }
    refresh();
}

void ApplicationControl::refresh() {
    if (ApplicationState state = read(); state != m_state.value())
        m_state.set(std::move(state));
}

ApplicationState ApplicationControl::read() const {
    return {.isGestureEnabled = m_parts.service.isGestureEnabled().value(),
            .status = m_parts.service.status().value().kind,
            .statusText = m_parts.statusText(),
            .isWindowVisible = m_parts.isWindowVisible(),
            .isTestActive = m_parts.isTestActive(),
            .enabledRules =
                static_cast<std::size_t>(std::ranges::count_if(m_parts.store.rules().value(), &GestureRule::isEnabled)),
            .tray = m_parts.tray()};
}

}  // namespace kinesta
