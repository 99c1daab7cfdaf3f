#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "actions/ActionPorts.h"
#include "actions/InProcessNotifications.h"
#include "rules/ActionKind.h"
#include "support/CallLog.h"
#include "support/FakeAccessibility.h"
#include "support/FakeOwnMenus.h"
#include "support/InMemoryUserDefaults.h"
#include "support/ManualClock.h"
#include "support/RecordingEventSynthesizer.h"

namespace kinesta::testing {

/// Everything an action can touch, telling one log what was done to it. Unless told otherwise the permission is there,
/// application 7 is in front (we are 1), the system offers tiling, the keyboard layout is unknown, and shell commands
/// are off.
class FakeActionDesktop {
    struct Permission final : AccessibilityPermission {
        explicit Permission(CallLog& calls) : log(calls) {}
        bool isTrusted() override { return log.add("? trusted"), isGranted; }
        bool prompt() override { return log.add("prompt"), isGranted; }
        CallLog& log;
        bool isGranted = true;
    };

    struct Layout final : KeyboardLayout {
        std::optional<KeyboardLayoutCharacters> charactersWithoutModifiers() override { return characters; }
        std::optional<KeyboardLayoutCharacters> characters;
    };

    struct Desktop final : Workspace, ProcessLauncher {
        explicit Desktop(CallLog& calls) : log(calls) {}
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
        static std::string listed(const std::vector<std::string>& arguments) {
            std::string text;
            for (const std::string& argument : arguments)
                text += " [" + argument + "]";
            return text;
        }
        CallLog& log;
        /// The answers to come; the last one stays.
        std::vector<std::optional<ProcessIdentifier>> frontmost{7};
    };

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

    struct Windows final : OwnWindows {
        explicit Windows(CallLog& calls) : log(calls) {}
        std::unique_ptr<OwnWindow> window(const std::optional<std::string>& words) {
            return words ? std::make_unique<Window>(log, *words) : nullptr;
        }
        std::unique_ptr<OwnWindow> keyWindow() override { return window(key); }
        std::unique_ptr<OwnWindow> mainWindow() override { return window(main); }
        CallLog& log;
        /// Words of what is true: "panel", "miniaturized", "sheet", and "button" for a close button that is enabled.
        std::optional<std::string> key, main;
    };

    struct Version final : SystemVersion {
        int majorVersion() const override { return major; }
        int major = 15;
    };

    struct Homes final : HomeFolders {
        std::optional<std::string> homeFolder(const std::string& userName) const override {
            if (userName.empty() || userName == "nobody")
                return userName.empty() ? std::optional("/home/ada") : std::nullopt;
            return userName == "root" ? "/" : "/srv/" + userName;
        }
    };

    struct Cue final : ActionCuePresenting {
        explicit Cue(CallLog& calls) : log(calls) {}
        void show(const GestureAction& action, std::int64_t steps, const std::optional<std::string>& message) override {
            log.add("cue " + std::string(rawValue(action.kind)) + ' ' + std::to_string(steps) + ' ' +
                    message.value_or("-"));
        }
        CallLog& log;
    };

  public:
    CallLog log;
    ManualClock clock;
    InMemoryUserDefaults defaults;
    Version version;
    Homes homes;
    Permission permission{log};
    RecordingEventSynthesizer events{log, clock};
    Layout layout;
    Desktop workspace{log};
    FakeAccessibility accessibility{log, clock};
    Windows windows{log};
    FakeOwnMenus menus{log};
    InProcessNotifications notifications;
    Cue cue{log};

    ActionPorts ports() {
        return {clock,     defaults,  version,       homes,   permission, events,        layout,
                workspace, workspace, accessibility, windows, menus,      notifications, cue};
    }
};

}  // namespace kinesta::testing
