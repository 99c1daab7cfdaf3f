#include "cli/commands/Commands.h"

#include "app/App.h"
#include "cli/GestureReport.h"
#include "cli/terminal/LogLines.h"
#include "cli/terminal/TextTable.h"
#include "rules/GestureDescription.h"

namespace kinesta {
namespace {

constexpr const char* kChanged = "The settings file was changed";

/// The application with a log as its user interface.
class Daemon {
  public:
    Daemon(const Console& console, Desktop& desktop, LogLevel level)
        : m_log(console),
          m_level(level),
          m_desktop(desktop),
          m_app(desktop, [this](const std::string& problem) { m_log.write(problem); }) {
        m_app.dispatcher().setObserver([this](const DetectedGesture& gesture, const GestureRule* rule) {
            m_log.write(describe(gesture) + "  →  " +
                        (rule ? ruleInWords(*rule) : "nothing: " + whyNoRule(m_app.store().rules().value(), gesture)));
        });
        m_app.onAllRulesDisabled = [this] { tellRules(); };
        m_app.onToggleConfigurationWindow = [this] {
            m_log.write("There is no configuration window to show: this is the daemon.");
        };
    }

    void run(SingleInstanceClaim claim) {
        const bool isWatching = m_desktop.watchDefaults([this] { reload(kChanged); });
        if (claim == SingleInstanceClaim::uncertain)
            m_log.write(
                "No folder takes a lock file. See to it that no other Kinesta runs: each action would run twice.");
        const Subscription status = service().status().observe([this](const auto&) { tellStatus(); });
        m_app.start();
        tellRules();
        if (const Outcome possible = m_desktop.checkSaving(); !possible)
            m_log.write("Nothing can be saved; what changes lasts only until Kinesta quits: " +
                        possible.error().message);
        if (!isWatching)
            m_log.write("The settings file cannot be watched: after a change send SIGHUP.");
        reload(kChanged);  // for changes between the first reading and the start of watching
        m_desktop.mainLoop().run();
        m_log.write("Stopped.");
    }

    void receive(ProgramSignal signal) {
        if (signal == ProgramSignal::yield)
            m_log.write("The Kinesta application has started and takes over.");
        if (signal == ProgramSignal::end || signal == ProgramSignal::yield)
            m_desktop.mainLoop().quit();
        else if (!reload("Asked to reload"))
            m_log.write("Asked to reload: there is nothing new to be read.");
    }

  private:
    /// Returns whether there was anything new.
    bool reload(std::string_view reason) {
        // Our own saves trigger the watcher too, and change nothing.
        if (!m_desktop.reloadDefaults())
            return false;
        m_log.write(std::string(reason) + ": rules and settings are read again.");
        const std::string padBefore = pad().path;
        m_app.reload();
        if (!padBefore.empty() && !pad().path.empty() && padBefore != pad().path)
            tellStatus();  // the status stays the same from one pad to another
        tellRules();
        return true;
    }

    void tellRules() {
        const auto& rules = m_app.store().rules().value();
        std::size_t enabled = 0;
        for (const GestureRule& rule : rules) {
            enabled += rule.isEnabled ? 1 : 0;
            if (m_level == LogLevel::everything && rule.isEnabled)
                m_log.write("  rule: " + describeTrigger(rule) + "  →  " + ruleInWords(rule));
        }
        m_log.write(std::to_string(enabled) + " of " + std::to_string(rules.size()) + " rules are on.");
    }

    void tellStatus() {
        const auto& status = service().status().value();
        switch (status.kind) {
            case TrackpadContactProviderStatus::Kind::listening:
                m_log.write("Trackpad listening: " + printable(pad().name) + " (" + pad().path + ")" +
                            (pad().canTellPressure ? "" : ", which cannot tell a Force Click"));
                break;
            case TrackpadContactProviderStatus::Kind::stopped:
                m_log.write(service().isGestureEnabled().value() ? "Trackpad stopped" : "Gesture recognition is off");
                break;
            case TrackpadContactProviderStatus::Kind::unavailable:
                m_log.write(printable(status.message));
                break;
        }
    }

    MultitouchService& service() { return m_app.recognition().service(); }
    LiveTrackpad::Identity pad() { return m_app.recognition().identity(); }

    LogLines m_log;
    LogLevel m_level;
    Desktop& m_desktop;
    App m_app;
};

}  // namespace

ExitStatus runDaemon(const Console& console, Desktop& desktop, LogLevel level) {
    desktop.surviveClosedPipes();  // the reader of the log may end first
    Daemon* running = nullptr;
    // Before the claim: once that is made, the application may ask this to end.
    desktop.catchSignals({ProgramSignal::end, ProgramSignal::reload, ProgramSignal::yield},
                         [&running](ProgramSignal signal) { running->receive(signal); });
    const auto claim = desktop.claimSingleInstance();
    if (!claim)
        return console.fail(claim.error().message);
    Daemon daemon(console, desktop, level);
    running = &daemon;
    daemon.run(*claim);
    return ExitStatus::success;
}

}  // namespace kinesta
