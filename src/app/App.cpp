#include "app/App.h"

#include <utility>

#include "app/RuleTransfer.h"

namespace kinesta {
namespace {

/// Makes `tell` receive the problems of settings and actions, then returns the settings.
UserDefaults& defaultsThatTell(Desktop& desktop, const Desktop::Tell& tell) {
    desktop.onSettingsProblem(tell);
    // Actions may fail on other threads.
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
      m_dispatcher(m_store, desktop.defaults(), m_executor, m_testSession),
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
