#pragma once

#include <unistd.h>

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "actions/WindowCloseExecutor.h"
#include "actions/WindowTilingExecutor.h"
#include "platform/linux/windows/WindowAccessibility.h"
#include "platform/linux/windows/WindowOwnMenus.h"
#include "platform/linux/windows/WindowOwnWindows.h"
#include "support/FakeActionDesktop.h"
#include "support/SteadyClock.h"

namespace kinesta::testing {

/// The ports of the window actions: real windows, everything else a fake.
class WindowPorts {
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
    X11Connection connection;
    EwmhDesktop desktop{connection};
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
        const ActionPorts fake = m_fake.ports();
        return {m_clock,      fake.defaults,       fake.systemVersion, fake.homeFolders, fake.permission,
                fake.events,  fake.keyboardLayout, m_workspace,        fake.processes,   m_accessibility,
                m_ownWindows, m_ownMenus,          fake.notifications, fake.cue};
    }

    SteadyClock m_clock;
    FakeActionDesktop m_fake;
    FrontmostApplication m_workspace{desktop};
    MessageBus m_bus;
    AccessibilityBus m_programs{m_bus};
    WindowAccessibility m_accessibility{desktop, tiler, m_programs};
    WindowOwnWindows m_ownWindows{desktop};
    WindowOwnMenus m_ownMenus{tiler};
};

}  // namespace kinesta::testing
