#pragma once

#include <set>

#include "actions/ActionPorts.h"
#include "actions/InProcessNotifications.h"
#include "support/FakeWorld.h"
#include "support/InMemoryUserDefaults.h"

namespace kinesta::testing {

/// Logs "+ key 8 down" when an event is made and "post 100000 key 8 down" when it is posted: the flags in hexadecimal,
/// or "-" if they were never set. Making anything named in `failing` fails ("source", "probe", "key 8 down",
/// "center up at 1 2", "system 8 a00 -1").
class RecordingEventSynthesizer final : public EventSynthesizer {
  public:
    explicit RecordingEventSynthesizer(FakeWorld& world) : m_world(world) {}

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
                                                            DesktopLocation at) override {
        return event("center" + name(transition) + " at " + numberText(at.x) + " " + numberText(at.y), source);
    }
    std::unique_ptr<SynthesizedEvent> makeSystemDefinedEvent(const SystemDefinedEvent& made) override {
        const std::string what = "system " + std::to_string(made.subtype) + " " + hex(made.data1) + " " +
                                 std::to_string(made.data2) +
                                 (made.timestamp == m_world.clock.uptime() ? "" : " stale");
        m_world.advance(0.0625);
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
        m_world.log.add("+ " + what + (hasSource ? "" : " without source"));
        return !failing.contains(what);
    }
    std::unique_ptr<SynthesizedEvent> event(const std::string& what, bool hasSource) {
        return isMade(what, hasSource) ? std::make_unique<Event>(m_world.log, what) : nullptr;
    }

    FakeWorld& m_world;
};

/// Everything an action can touch, with one log of what was done to it. By default the permission is granted,
/// application 7 is in front (this process is 1), the system offers tiling, the keyboard layout is unknown, and shell
/// commands are off.
class FakeActionDesktop final : public FakeWorld,
                                public KeyboardLayout,
                                AccessibilityPermission,
                                AccessibilityElements,
                                Workspace,
                                ProcessLauncher,
                                OwnWindows,
                                OwnMenus,
                                SystemVersion,
                                HomeFolders,
                                ActionCuePresenting {
  public:
    InMemoryUserDefaults defaults;
    RecordingEventSynthesizer events{*this};
    InProcessNotifications notifications;
    bool isGranted = true;
    int version = 15;
    std::optional<KeyboardLayoutCharacters> characters;
    /// The next answers; the last one stays.
    std::vector<std::optional<ProcessIdentifier>> frontmost{7};
    /// The interface of application 7, below the application's own element.
    struct {
        std::shared_ptr<FakeNode> root;
        void describe(const std::string& lines, const std::string& application = "") {
            root = FakeNode::parse(lines, application);
        }
    } accessibility;
    /// The menu bar of this process; its children are the items. No menu bar if it is null.
    struct {
        std::shared_ptr<FakeNode> bar;
    } menus;
    std::optional<std::string> ownKeyWindow, ownMainWindow;

    ActionPorts ports() {
        return {clock, defaults, *this, *this, *this, events,        *this,
                *this, *this,    *this, *this, *this, notifications, *this};
    }

  private:
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
    AccessibilityElementHandle applicationElement(ProcessIdentifier application) override {
        log.add("? application " + std::to_string(application));
        return element(application == 7 ? accessibility.root : nullptr);
    }
    std::unique_ptr<OwnMenu> mainMenu() override { return areMenusUpdated = false, element(menus.bar); }
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

    std::unique_ptr<FakeElement> element(const std::shared_ptr<FakeNode>& node) {
        return node ? std::make_unique<FakeElement>(*this, node) : nullptr;
    }
    std::unique_ptr<FakeElement> window(const std::optional<std::string>& words) {
        const auto node = std::make_shared<FakeNode>("");
        node->name = words.value_or("");
        return element(words ? node : nullptr);
    }
    static std::string listed(const std::vector<std::string>& arguments) {
        std::string text;
        for (const std::string& argument : arguments)
            text += " [" + argument + "]";
        return text;
    }
};

}  // namespace kinesta::testing
