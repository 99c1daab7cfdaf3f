#include "app/App.h"

#include <utility>

#include "app/RuleTransfer.h"

namespace kinesta {
namespace {

/// The settings, once their problems and those of actions reach `tell`.
UserDefaults& defaultsThatTell(Desktop& desktop, const Desktop::Tell& tell) {
    desktop.onSettingsProblem(tell);
    // Actions fail on other threads too.
    desktop.onActionProblem(
        [&desktop, tell](const std::string& problem) { desktop.mainLoop().post([tell, problem] { tell(problem); }); },
        ProgramOutput::log);
    return desktop.defaults();
}

}  // namespace

App::App(Desktop& desktop, Desktop::Tell tell)
    : m_desktop(desktop),
      m_tell(std::move(tell)),
      m_store(defaultsThatTell(desktop, m_tell)),
      m_executor(desktop.actionPorts(desktop.defaults())),
      m_dispatcher(m_store, desktop.defaults(), m_executor),
      m_recognition(desktop) {
    tellUnreadableRules();
    m_dispatcher.bind(m_recognition.service());
    m_requests = desktop.notifications().observe(kAppActionRequested, [this](ActionKind kind) {
        if (kind == ActionKind::disableAllRules) {
            m_store.disableAllRules();
            if (onAllRulesDisabled)
                onAllRulesDisabled();
        } else if (onToggleConfigurationWindow) {
            onToggleConfigurationWindow();
        }
    });
}

void App::start() {
    m_desktop.prepareToPost();
    m_recognition.start();
}

void App::reload() {
    m_store.reload();
    tellUnreadableRules();
    m_recognition.reloadSettings();
}

void App::tellUnreadableRules() const {
    if (const auto problem = problemOfStoredRules(m_store))
        m_tell(*problem);
}

}  // namespace kinesta
