#include "cli/commands/DaemonCommand.h"

#include <csignal>

#include "app/GestureDispatcher.h"
#include "cli/GestureReport.h"
#include "cli/LiveRecognition.h"
#include "cli/LogLines.h"
#include "cli/StoredSettings.h"
#include "cli/terminal/TextTable.h"
#include "platform/linux/LinuxActions.h"
#include "platform/linux/process/SignalListener.h"
#include "platform/linux/process/SingleInstance.h"
#include "platform/linux/settings/FileWatcher.h"
#include "rules/GestureDescription.h"
#include "rules/RuleStore.h"
#include "support/RunLoop.h"
#include "support/SteadyClock.h"

namespace kinesta {
namespace {

constexpr const char* kChanged = "The settings file was changed";

/// The daemon's parts, in the order in which they depend on each other.
class Daemon {
  public:
    Daemon(const Console& console, const std::filesystem::path& defaults, LogLevel level,
           const SingleInstance& instance)
        : m_log(console),
          m_level(level),
          m_signals(m_loop, {SIGTERM, SIGINT, SIGHUP}, [this](int signal) { receive(signal); }),
          m_settings([this](const std::string& problem) { m_log.write(problem); }, defaults),
          m_store(m_settings.defaults()),
          m_actions(
              m_clock, m_settings.defaults(),
              [this](const std::string& text) { m_loop.post([this, text] { m_log.write(text); }); },
              LinuxActions::Output::log),
          m_executor(m_actions.ports()),
          m_dispatcher(m_store, m_settings.defaults(), m_executor),
          m_recognition(m_loop, m_clock, m_settings.defaults()),
          m_watcher(m_loop, defaults.string(), [this] { reload(kChanged); }) {
        m_settings.check(m_store);
        if (!instance.isCertain())
            m_log.write(
                "No folder takes a lock file. See to it that no other Kinesta runs: each action would run twice.");
        m_dispatcher.setObserver([this](const DetectedGesture& gesture, const GestureRule* rule) {
            m_log.write(describe(gesture) + "  →  " + (rule ? ruleInWords(*rule) : whyNone(gesture)));
        });
        m_dispatcher.bind(m_recognition.service());
        m_disableAll = m_actions.notifications().observe(kAppActionRequested, [this](ActionKind kind) {
            if (kind == ActionKind::disableAllRules) {
                m_store.disableAllRules();
                tellRules();
            } else
                m_log.write("There is no configuration window to show: this is the daemon.");
        });
    }

    ExitStatus run() {
        m_actions.prepareToPost();
        m_statusSubscription = m_recognition.service().status().observe([this](const auto&) { tellStatus(); });
        m_recognition.start();
        tellRules();
        if (const Outcome possible = m_settings.defaults().checkSaving(); !possible)
            m_log.write("Nothing can be saved; what changes lasts only until Kinesta quits: " +
                        possible.error().message);
        if (!m_watcher.isWatching())
            m_log.write("The settings file cannot be watched: after a change send SIGHUP.");
        reload(kChanged);  // between the reading and the watching
        m_loop.run();
        m_log.write("Stopped.");
        return ExitStatus::success;
    }

  private:
    void receive(int signal) {
        if (signal != SIGHUP)
            m_loop.quit();
        else if (!reload("Asked to reload"))
            m_log.write("Asked to reload: there is nothing new to be read.");
    }

    /// Whether there was anything new.
    bool reload(std::string_view reason) {
        // Our own saves wake the watcher too: then nothing has changed.
        if (!m_settings.defaults().reload())
            return false;
        m_log.write(std::string(reason) + ": rules and settings are read again.");
        m_store.reload();
        m_settings.check(m_store);
        const std::string padBefore = m_recognition.pad().state().path;
        m_recognition.reloadSettings();
        if (!padBefore.empty() && !m_recognition.pad().state().path.empty() &&
            padBefore != m_recognition.pad().state().path)
            tellStatus();  // from one pad to another, the status stays what it is
        tellRules();
        return true;
    }

    void tellRules() {
        const auto& rules = m_store.rules().value();
        std::size_t enabled = 0;
        for (const GestureRule& rule : rules) {
            enabled += rule.isEnabled ? 1 : 0;
            if (m_level == LogLevel::everything && rule.isEnabled)
                m_log.write("  rule: " + describeTrigger(rule) + "  →  " + ruleInWords(rule));
        }
        m_log.write(std::to_string(enabled) + " of " + std::to_string(rules.size()) + " rules are on.");
    }

    void tellStatus() const {
        const auto& status = m_recognition.service().status().value();
        switch (status.kind) {
            case TrackpadContactProviderStatus::Kind::listening:
                m_log.write("Trackpad listening: " + printable(m_recognition.pad().state().name) + " (" +
                            m_recognition.pad().state().path + ")" +
                            (m_recognition.pad().state().canTellPressure ? "" : ", which cannot tell a Force Click"));
                break;
            case TrackpadContactProviderStatus::Kind::stopped:
                m_log.write(m_recognition.service().isGestureEnabled().value() ? "Trackpad stopped"
                                                                               : "Gesture recognition is off");
                break;
            case TrackpadContactProviderStatus::Kind::unavailable:
                m_log.write(printable(status.message));
                break;
        }
    }

    std::string whyNone(const DetectedGesture& gesture) const {
        return "nothing: " + whyNoRule(m_store.rules().value(), gesture);
    }

    LogLines m_log;
    LogLevel m_level;
    RunLoop m_loop;
    SignalListener m_signals;  // before all that starts a thread
    SteadyClock m_clock;
    StoredSettings m_settings;
    RuleStore m_store;
    LinuxActions m_actions;
    ActionExecutor m_executor;
    GestureDispatcher m_dispatcher;
    LiveRecognition m_recognition;
    FileWatcher m_watcher;
    Subscription m_statusSubscription;
    Subscription m_disableAll;
};

}  // namespace

ExitStatus runDaemon(const Console& console, const std::filesystem::path& defaults, LogLevel level) {
    // Whoever reads the log may go away; that is no reason to stop.
    static_cast<void>(std::signal(SIGPIPE, SIG_IGN));
    const auto instance = SingleInstance::claim(defaults);
    if (!instance)
        return console.fail(instance.error().message);
    return Daemon(console, defaults, level, *instance).run();
}

}  // namespace kinesta
