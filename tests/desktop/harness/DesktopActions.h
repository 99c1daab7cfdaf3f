#pragma once

#include <functional>
#include <mutex>
#include <optional>
#include <string>
#include <utility>

#include "actions/ActionExecutor.h"
#include "actions/WindowCloseExecutor.h"
#include "actions/WindowTilingExecutor.h"
#include "desktop/harness/TestWindow.h"
#include "feedback/NoActionCue.h"
#include "platform/linux/LinuxActions.h"
#include "support/InMemoryUserDefaults.h"
#include "support/SteadyClock.h"

namespace kinesta::testing {

/// Everything between the decision to run an action and the desktop.
class DesktopActions {
    /// Runs `meanwhile` between the look at the desktop and the action that follows from it.
    struct InterruptedWorkspace final : Workspace {
        explicit InterruptedWorkspace(Workspace& workspace) : real(workspace) {}
        void openURL(const std::string& url) override { real.openURL(url); }
        void openFile(const std::string& path) override { real.openFile(path); }
        void launchApplication(const std::string& path, const std::vector<std::string>& arguments) override {
            real.launchApplication(path, arguments);
        }
        ProcessIdentifier ownProcessIdentifier() override { return real.ownProcessIdentifier(); }
        std::optional<ProcessIdentifier> frontmostApplication() override {
            if (++questions == 2 && meanwhile)
                meanwhile();
            return real.frontmostApplication();
        }
        Workspace& real;
        int questions = 0;
        std::function<void()> meanwhile;
    };

    /// The real one may deny permission when the server of a busy machine answers late.
    struct GrantedPermission final : AccessibilityPermission {
        bool isTrusted() override { return true; }
        bool prompt() override { return true; }
    };

  public:
    DesktopActions() { m_actions.prepareToPost(); }

    std::optional<ProcessIdentifier> frontmost() { return ports().workspace.frontmostApplication(); }

    /// Whether the action was carried out; `meanwhile` happens before the window manager is asked.
    bool closes(std::function<void()> meanwhile = nullptr) {
        return WindowCloseExecutor(interruptedPorts(std::move(meanwhile))).execute();
    }
    bool tiles(WindowTilingMenuCommand command, std::function<void()> meanwhile = nullptr) {
        return WindowTilingExecutor(interruptedPorts(std::move(meanwhile))).execute(command);
    }

    void run(ActionKind kind, std::int64_t steps = 0) {
        GestureAction action;
        action.kind = kind;
        action.keyCode = 8;  // with ⌘: Copy
        action.modifiers = ShortcutModifiers::command;
        action.value = "/bin/true";
        ActionExecutor(ports()).execute(action, steps, false, std::nullopt);
    }

    /// Posts a key with these flags and returns once the server has taken it.
    void stroke(std::uint16_t code, std::uint64_t flags) {
        auto& events = ports().events;
        for (const auto transition : {KeyTransition::down, KeyTransition::up}) {
            const auto event = events.makeKeyEvent(nullptr, code, transition);
            event->setFlags(flags);
            event->post();
        }
        events.probePointerLocation(nullptr);
    }

    ActionPorts ports() { return m_actions.ports(m_defaults, m_cue); }
    unsigned roundTrips() const { return m_actions.roundTrips(); }
    DesktopSession session() { return m_actions.session(); }
    std::string lastMessage() {
        const std::lock_guard lock(m_mutex);
        return m_lastMessage;
    }
    InMemoryUserDefaults& defaults() { return m_defaults; }

  private:
    ActionPorts interruptedPorts(std::function<void()> meanwhile) {
        m_workspace.questions = 0;
        m_workspace.meanwhile = std::move(meanwhile);
        const ActionPorts p = ports();
        return {p.clock,      p.defaults,       p.systemVersion, p.homeFolders, m_permission,
                p.events,     p.keyboardLayout, m_workspace,     p.processes,   p.accessibility,
                p.ownWindows, p.ownMenus,       p.notifications, p.cue};
    }

    SteadyClock m_clock;
    InMemoryUserDefaults m_defaults;
    std::mutex m_mutex;
    std::string m_lastMessage;
    LinuxActions m_actions{m_clock, m_defaults, [this](const std::string& line) {
                               const std::lock_guard lock(m_mutex);
                               m_lastMessage = line;
                           }};
    NoActionCue m_cue;
    GrantedPermission m_permission;
    InterruptedWorkspace m_workspace{ports().workspace};
};

/// A desktop with a window manager on which actions run.
struct DesktopActionsTest : ::testing::Test {
    TestDesktop desktop{TestDesktop::openbox};
    DesktopActions actions;
};

}  // namespace kinesta::testing
