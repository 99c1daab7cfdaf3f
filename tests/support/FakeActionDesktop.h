#pragma once

#include <optional>
#include <string>
#include <vector>

#include "actions/ActionPorts.h"
#include "actions/InProcessNotifications.h"
#include "support/CallLog.h"
#include "support/FakeInterface.h"
#include "support/InMemoryUserDefaults.h"
#include "support/ManualClock.h"
#include "support/RecordingEventSynthesizer.h"

namespace kinesta::testing {

/// Everything an action can touch, with one log of what was done to it. By default the permission is granted,
/// application 7 is in front (this process is 1), the system offers tiling, the keyboard layout is unknown, and shell
/// commands are off.
class FakeActionDesktop final : AccessibilityPermission,
                                public KeyboardLayout,
                                Workspace,
                                ProcessLauncher,
                                OwnWindows,
                                SystemVersion,
                                HomeFolders,
                                ActionCuePresenting {
  public:
    CallLog log;
    ManualClock clock;
    InMemoryUserDefaults defaults;
    RecordingEventSynthesizer events{log, clock};
    FakeAccessibility accessibility{log, clock};
    FakeOwnMenus menus{log};
    InProcessNotifications notifications;
    bool isGranted = true;
    int version = 15;
    std::optional<KeyboardLayoutCharacters> characters;
    /// The next answers; the last one stays.
    std::vector<std::optional<ProcessIdentifier>> frontmost{7};
    /// What is true of a window: "panel", "miniaturized", "sheet", and "button" for an enabled close button.
    std::optional<std::string> ownKeyWindow, ownMainWindow;

    ActionPorts ports() {
        return {clock, defaults, *this,         *this, *this, events,        *this,
                *this, *this,    accessibility, *this, menus, notifications, *this};
    }

  private:
    struct Window final : OwnWindow {
        Window(CallLog& calls, std::string text) : log(calls), words(std::move(text)) {}
        bool has(const char* word) const { return words.find(word) != std::string::npos; }
        bool isPanel() override { return has("panel"); }
        bool isMiniaturized() override { return has("miniaturized"); }
        bool hasAttachedSheet() override { return has("sheet"); }
        bool isCloseButtonEnabled() override { return has("button"); }
        void performClose() override { log.add("close own " + words); }
        CallLog& log;
        std::string words;
    };

    bool isTrusted() override { return log.add("? trusted"), isGranted; }
    bool prompt() override { return log.add("prompt"), isGranted; }
    std::optional<KeyboardLayoutCharacters> charactersWithoutModifiers() override { return characters; }
    void openURL(const std::string& url) override { log.add("open URL " + url); }
    void openFile(const std::string& path) override { log.add("open file " + path); }
    void launchApplication(const std::string& path, const std::vector<std::string>& arguments) override {
        log.add("launch " + path + listed(arguments));
    }
    void launch(std::string executable, std::vector<std::string> arguments) override {
        log.add("run " + executable + listed(arguments));
    }
    std::optional<ProcessIdentifier> frontmostApplication() override {
        log.add("? frontmost");
        const auto answer = frontmost.front();
        if (frontmost.size() > 1)
            frontmost.erase(frontmost.begin());
        return answer;
    }
    ProcessIdentifier ownProcessIdentifier() override { return 1; }
    std::unique_ptr<OwnWindow> keyWindow() override { return window(ownKeyWindow); }
    std::unique_ptr<OwnWindow> mainWindow() override { return window(ownMainWindow); }
    int majorVersion() const override { return version; }
    std::optional<std::string> homeFolder(const std::string& userName) const override {
        if (userName.empty() || userName == "nobody")
            return userName.empty() ? std::optional("/home/ada") : std::nullopt;
        return userName == "root" ? "/" : "/srv/" + userName;
    }
    void show(const GestureAction& action, std::int64_t steps, const std::optional<std::string>& message) override {
        log.add("cue " + std::string(rawValue(action.kind)) + ' ' + std::to_string(steps) + ' ' +
                message.value_or("-"));
    }

    std::unique_ptr<OwnWindow> window(const std::optional<std::string>& words) {
        return words ? std::make_unique<Window>(log, *words) : nullptr;
    }
    static std::string listed(const std::vector<std::string>& arguments) {
        std::string text;
        for (const std::string& argument : arguments)
            text += " [" + argument + "]";
        return text;
    }
};

}  // namespace kinesta::testing
