#pragma once

#include <memory>
#include <optional>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "actions/ActionPorts.h"
#include "actions/EventSynthesizer.h"
#include "actions/InProcessNotifications.h"
#include "support/CallLog.h"
#include "support/FakeInterface.h"
#include "support/InMemoryUserDefaults.h"
#include "support/ManualClock.h"
#include "support/Text.h"

namespace kinesta::testing {

/// Logs "+ key 8 down" when an event is made and "post 100000 key 8 down" when it is posted: the flags in hexadecimal,
/// or "-" if they were never set. Making anything named in `failing` fails ("source", "probe", "key 8 down",
/// "center up at 1 2", "system 8 a00 -1").
class RecordingEventSynthesizer final : public EventSynthesizer {
  public:
    RecordingEventSynthesizer(CallLog& log, ManualClock& clock) : m_log(log), m_clock(clock) {}

    std::set<std::string> failing;
    DesktopLocation pointer{640, 400.5};

    std::unique_ptr<EventSource> makeSource() override {
        return isMade("source", true) ? std::make_unique<EventSource>() : nullptr;
    }
    std::optional<DesktopLocation> probePointerLocation(EventSource* source) override {
        return isMade("probe", source) ? std::optional(pointer) : std::nullopt;
    }
    std::unique_ptr<SynthesizedEvent> makeKeyEvent(EventSource* source, std::uint16_t keyCode,
                                                   KeyTransition transition) override {
        return event("key " + std::to_string(keyCode) + name(transition), source);
    }
    std::unique_ptr<SynthesizedEvent> makeCenterButtonEvent(EventSource* source, KeyTransition transition,
                                                            DesktopLocation location) override {
        return event("center" + name(transition) + " at " + numberText(location.x) + " " + numberText(location.y),
                     source);
    }
    std::unique_ptr<SynthesizedEvent> makeSystemDefinedEvent(const SystemDefinedEvent& made) override {
        const std::string what = "system " + std::to_string(made.subtype) + " " + hex(made.data1) + " " +
                                 std::to_string(made.data2) + (made.timestamp == m_clock.uptime() ? "" : " stale");
        m_clock.advance(0.0625);
        return event(what, true);
    }

  private:
    struct Event final : SynthesizedEvent {
        Event(CallLog& calls, std::string text) : log(calls), what(std::move(text)) {}
        void setFlags(std::uint64_t value) override { flags = hex(value) + ' '; }
        void setClickState(std::int64_t clickCount) override { flags = "click " + std::to_string(clickCount) + ' '; }
        void post() override { log.add("post " + flags + what); }
        CallLog& log;
        std::string what;
        std::string flags = "- ";
    };

    template <typename T>
    static std::string hex(T value) {
        std::ostringstream text;
        text << std::hex << value;
        return text.str();
    }
    static std::string name(KeyTransition transition) { return transition == KeyTransition::down ? " down" : " up"; }
    bool isMade(const std::string& what, bool hasSource) {
        m_log.add("+ " + what + (hasSource ? "" : " without source"));
        return !failing.contains(what);
    }
    std::unique_ptr<SynthesizedEvent> event(const std::string& what, bool hasSource) {
        return isMade(what, hasSource) ? std::make_unique<Event>(m_log, what) : nullptr;
    }

    CallLog& m_log;
    ManualClock& m_clock;
};

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
