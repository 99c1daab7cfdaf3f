#pragma once

#include <unistd.h>

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "actions/ActionPorts.h"
#include "actions/InProcessNotifications.h"
#include "actions/WindowCloseExecutor.h"
#include "actions/WindowTilingExecutor.h"
#include "platform/linux/WindowAccessibility.h"
#include "platform/linux/WindowOwnMenus.h"
#include "platform/linux/WindowOwnWindows.h"
#include "platform/null/NullActionPorts.h"
#include "support/InMemoryUserDefaults.h"
#include "support/SteadyClock.h"

namespace kinesta::testing {

/// What the executors of window actions need: real windows, and nothing else that works.
class WindowPorts {
    struct Permission final : AccessibilityPermission {
        bool isTrusted() override { return true; }
        bool prompt() override { return true; }
    };
    struct Version final : SystemVersion {
        int majorVersion() const override { return 15; }
    };
    struct FrontmostApplication final : Workspace {
        explicit FrontmostApplication(EwmhDesktop& ewmh) : desktop(ewmh) {}
        void openURL(const std::string&) override {}
        void openFile(const std::string&) override {}
        void launchApplication(const std::string&, const std::vector<std::string>&) override {}
        ProcessIdentifier ownProcessIdentifier() override { return getpid(); }
        std::optional<ProcessIdentifier> frontmostApplication() override {
            ++questions;
            if (questions == 2 && beforeSecondQuestion)
                beforeSecondQuestion();
            return desktop.frontmostApplication();
        }
        EwmhDesktop& desktop;
        int questions = 0;
        std::function<void()> beforeSecondQuestion;
    };

  public:
    EwmhDesktop desktop;
    WindowTiler tiler{desktop};

    bool closes(std::function<void()> meanwhile = nullptr) {
        begin(std::move(meanwhile));
        return WindowCloseExecutor(ports()).execute();
    }

    bool tiles(WindowTilingMenuCommand command, std::function<void()> meanwhile = nullptr) {
        begin(std::move(meanwhile));
        return WindowTilingExecutor(ports()).execute(command);
    }

  private:
    /// Lets something happen between the finding and the pressing.
    void begin(std::function<void()> meanwhile) {
        m_workspace.questions = 0;
        m_workspace.beforeSecondQuestion = std::move(meanwhile);
    }

    ActionPorts ports() {
        const ActionPorts none = m_null.ports(m_clock, m_defaults, m_notifications);
        return {m_clock,      m_defaults,          m_version,       none.homeFolders, m_permission,
                none.events,  none.keyboardLayout, m_workspace,     none.processes,   m_accessibility,
                m_ownWindows, m_ownMenus,          m_notifications, none.cue};
    }

    SteadyClock m_clock;
    InMemoryUserDefaults m_defaults;
    InProcessNotifications m_notifications;
    NullActionPorts m_null;
    Permission m_permission;
    Version m_version;
    FrontmostApplication m_workspace{desktop};
    MessageBus m_bus;
    AccessibilityBus m_programs{m_bus};
    WindowAccessibility m_accessibility{desktop, tiler, m_programs};
    WindowOwnWindows m_ownWindows{desktop};
    WindowOwnMenus m_ownMenus{tiler};
};

}  // namespace kinesta::testing
