#pragma once

#include <functional>

#include "app/GestureDispatcher.h"
#include "app/LiveRecognition.h"
#include "feedback/GestureTestSession.h"

namespace kinesta {

/// The application without a user interface: from the trackpad to the actions of the stored rules. The daemon adds a
/// log, the desktop application a window. Main thread only.
class App {
  public:
    /// `tell` receives every problem with settings, rules and actions, as one sentence. The desktop must outlive
    /// this.
    App(Desktop& desktop, Desktop::Tell tell);

    /// Called when an action asks to show or hide the configuration window.
    std::function<void()> onToggleConfigurationWindow;
    /// Called when an action has switched all rules off.
    std::function<void()> onAllRulesDisabled;

    RuleStore& store() { return m_store; }
    ActionExecutor& executor() { return m_executor; }
    /// While it is active, no rule runs.
    GestureTestSession& testSession() { return m_testSession; }
    GestureDispatcher& dispatcher() { return m_dispatcher; }
    LiveRecognition& recognition() { return m_recognition; }

    void start();

    /// Applies rules and settings again after another process has changed them.
    void reload();

  private:
    void tellUnreadableRules() const;

    Desktop& m_desktop;
    Desktop::Tell m_tell;
    RuleStore m_store;
    ActionExecutor m_executor;
    GestureTestSession m_testSession;
    GestureDispatcher m_dispatcher;
    LiveRecognition m_recognition;
    Subscription m_requests;
};

}  // namespace kinesta
