#include <gtest/gtest.h>
#include <sys/stat.h>

#include <nlohmann/json.hpp>

#include "desktop/harness/ApplicationProcess.h"
#include "desktop/harness/BusPeer.h"
#include "desktop/harness/ProcessFigures.h"
#include "desktop/harness/TestWindow.h"
#include "support/TemporaryFolder.h"

namespace kinesta::testing {
namespace {

using nlohmann::json;
using Clock = std::chrono::steady_clock;

double millisecondsSince(Clock::time_point begin) {
    return std::chrono::duration<double, std::milli>(Clock::now() - begin).count();
}

/// The part of a panel that icons register with.
class Panel : public BusPeer {
  public:
    Panel() {
        EXPECT_GE(sd_bus_request_name(m_bus, "org.kde.StatusNotifierWatcher", 0), 0);
        serve(&Panel::answer, this);
    }
    ~Panel() { hang(); }

    /// Waits for the next icon.
    std::string takeIcon() {
        std::string icon;
        EXPECT_TRUE(eventually([&] {
            const std::lock_guard lock(m_mutex);
            icon = std::exchange(m_icon, {});
            return !icon.empty();
        }));
        return icon;
    }

  private:
    static int answer(sd_bus_message* call, void* self, sd_bus_error*) {
        const char* icon = nullptr;
        if (std::string_view(sd_bus_message_get_member(call)) != "RegisterStatusNotifierItem")
            return 0;
        sd_bus_message_read(call, "s", &icon);
        auto& panel = *static_cast<Panel*>(self);
        const std::lock_guard lock(panel.m_mutex);
        panel.m_icon = icon;
        return sd_bus_reply_method_return(call, "");
    }

    std::mutex m_mutex;
    std::string m_icon;
};

struct ApplicationOnADesktop : Application {
    ApplicationOnADesktop() : Application(TestDesktop::openbox) { mkfifo("pad", 0600); }

    void startWithIcon(const std::string& arguments) {
        application = start(arguments);
        icon = panel.takeIcon();
    }
    void quit() {
        EXPECT_EQ(run("ctl quit"), "0|");
        EXPECT_EQ(rest(*application), "0|");
    }
    json ask(const std::string& call) const {
        const auto line = ChildProcess("busctl --user --json=short -- call " + icon + " " + call).readLine();
        return json::parse(line.value_or("{}"))["data"];
    }
    json exportedItems() const { return ask("/MenuBar com.canonical.dbusmenu GetLayout iias 0 -1 0")[1][2]; }
    /// Each line with "+" if it is checked, "-" if it is unchecked and "(" if it is disabled before it.
    std::string menu() const {
        std::string text;
        for (const json& item : exportedItems()) {
            const json& properties = item["data"][1];
            if (properties.contains("toggle-state"))
                text += properties["toggle-state"]["data"] == 1 ? "+" : "-";
            if (properties.contains("label"))
                text += (properties["enabled"]["data"] ? "" : "(") + properties["label"]["data"].get<std::string>();
            text += "|";
        }
        return text;
    }
    /// Waits until these are the lines of the menu up to the updates.
    ::testing::AssertionResult showsMenu(const std::string& lines) const {
        std::string shown;
        const bool does = eventually([&] { return (shown = menu()) == lines + "|(Check for Updates…||Quit|"; });
        return does ? ::testing::AssertionSuccess() : ::testing::AssertionFailure() << shown;
    }
    void choose(std::size_t line) const {
        const json id = exportedItems().at(line)["data"][0];
        ask("/MenuBar com.canonical.dbusmenu Event isvu " + id.dump() + " clicked i 0 0");
    }
    json iconProperty(const std::string& name) const {
        return ask("/StatusNotifierItem org.freedesktop.DBus.Properties Get ss org.kde.StatusNotifierItem " + name);
    }
    void click() const { ask("/StatusNotifierItem org.kde.StatusNotifierItem Activate ii 1 1"); }

    static xcb_window_t visible(const std::string& title) {
        const auto window = ChildProcess("xdotool search --onlyvisible --name '^" + title + "$'").readLine();
        return window ? static_cast<xcb_window_t>(std::stoul(*window)) : xcb_window_t{XCB_WINDOW_NONE};
    }
    static bool appears(const std::string& title) {
        return eventually([&] { return visible(title) != XCB_WINDOW_NONE; });
    }
    static bool disappears(const std::string& title) {
        return eventually([&] { return visible(title) == XCB_WINDOW_NONE; });
    }

    /// Opens the pad for writing. The application has opened it before.
    void openPad() {
        pad.open("pad");
        pad << "{\"kinesta\":\"recording\",\"version\":1}" << std::endl;
    }
    void touch(double time, int fingers) {
        json touches = json::array();
        for (int id = 1; id <= fingers; ++id)
            touches.push_back({id, 0.3 + 0.1 * id, 0.5});
        pad << json{{"t", time}, {"touches", touches}}.dump() << std::endl;
    }
    /// Returns when the line with the last lift, which is then due, has been written.
    Clock::time_point tapThreeTimes(int fingers) {
        const auto begin = Clock::now();
        const double time = std::chrono::duration<double>(begin.time_since_epoch()).count();
        for (const double lift : {0.1, 0.2, 0.3}) {
            touch(time + lift - 0.05, fingers);
            if (lift == 0.3)
                eventually([&] { return millisecondsSince(begin) > 300; });
            touch(time + lift, 0);
        }
        return Clock::now();
    }
    static void importRules(const std::vector<std::pair<int, std::string>>& tripleTaps) {
        json rules = json::array();
        for (const auto& [fingers, action] : tripleTaps)
            rules.push_back({{"id", "6513270E-269E-4D37-B2A7-4DE452E6B43" + std::to_string(fingers)},
                             {"name", ""},
                             {"isEnabled", true},
                             {"fingerCount", fingers},
                             {"gesture", "tripleTap"},
                             {"action", {{"kind", action}, {"modifiers", 0}, {"value", ""}}},
                             {"showsActionCue", true}});
        writeText("rules.json", rules.dump());
        const std::string said = run("rules import rules.json");
        EXPECT_TRUE(said.ends_with("|0|")) << said;
    }
    static std::string settingsFile() { return folderOf("XDG_CONFIG_HOME") / "kinesta/defaults.json"; }

    Panel panel;
    std::string icon;
    std::unique_ptr<ChildProcess> application;
    std::ofstream pad;
};

TEST_F(ApplicationOnADesktop, ShowsItsStateInTheMenuAndDoesWhatIsChosen) {
    startWithIcon("--background --trackpad pad");
    openPad();
    ASSERT_TRUE(showsMenu("+Gestures enabled|-Launch at Login|(Trackpad listening||Show Kinesta"));
    const json picture = iconProperty("IconPixmap");
    choose(0);
    EXPECT_TRUE(showsMenu("-Gestures enabled|-Launch at Login|(Gesture recognition is off||Show Kinesta"));
    EXPECT_EQ(json::parse(readText(settingsFile()))["gesturesEnabled"], false);
    EXPECT_NE(iconProperty("IconPixmap"), picture);
    choose(0);
    EXPECT_TRUE(showsMenu("+Gestures enabled|-Launch at Login|(Trackpad listening||Show Kinesta"));
    EXPECT_EQ(iconProperty("IconPixmap"), picture);

    const auto autostart = folderOf("XDG_CONFIG_HOME") / "autostart/com.orvane.kinesta.desktop";
    choose(1);
    EXPECT_TRUE(showsMenu("+Gestures enabled|+Launch at Login|(Trackpad listening||Show Kinesta"));
    EXPECT_NE(readText(autostart).find("--background\n"), std::string::npos);
    choose(4);
    EXPECT_TRUE(showsMenu("+Gestures enabled|+Launch at Login|(Trackpad listening||Hide Kinesta"));
    EXPECT_TRUE(appears("Kinesta"));
    choose(4);
    choose(1);
    EXPECT_TRUE(showsMenu("+Gestures enabled|-Launch at Login|(Trackpad listening||Show Kinesta"));
    EXPECT_TRUE(disappears("Kinesta"));
    EXPECT_FALSE(std::filesystem::exists(autostart));
    pad.close();
    EXPECT_TRUE(showsMenu("+Gestures enabled|-Launch at Login|(The trackpad recording pad has ended.||Show Kinesta"));
    choose(5);
    choose(2);
    choose(7);
    EXPECT_EQ(rest(*application), "0|");
}

TEST_F(ApplicationOnADesktop, ShowsItsWindowWhenThePersonWantsIt) {
    for (const auto& [arguments, isShown] :
         {std::pair{"--background", false}, {"", true}, {"", false}, {"--background", false}}) {
        startWithIcon(arguments);
        EXPECT_EQ(status()["windowVisible"], isShown) << arguments;
        if (!isShown)
            EXPECT_EQ(visible("Kinesta"), xcb_window_t{XCB_WINDOW_NONE}) << arguments;
        else
            EXPECT_TRUE(appears("Kinesta"));
        quit();
    }
    startWithIcon("");
    click();
    ASSERT_TRUE(appears("Kinesta"));
    EXPECT_TRUE(desktop.becomesActive(visible("Kinesta")));
    click();
    EXPECT_TRUE(disappears("Kinesta"));
    click();
    ASSERT_TRUE(appears("Kinesta"));
    ASSERT_TRUE(desktop.becomesActive(visible("Kinesta")));
    ASSERT_TRUE(eventually([&] {
        desktop.minimize(visible("Kinesta"));  // again, because showing it takes several attempts
        return !status()["windowVisible"];
    }));
    click();
    EXPECT_TRUE(desktop.becomesActive(visible("Kinesta")));
    desktop.request(visible("Kinesta"), "_NET_CLOSE_WINDOW", {0, 2});
    EXPECT_TRUE(disappears("Kinesta"));
    EXPECT_TRUE(eventually([] { return !status()["windowVisible"]; }));
    EXPECT_EQ(run(""), "0|");
    EXPECT_TRUE(appears("Kinesta"));
    quit();
}

TEST_F(ApplicationOnADesktop, ActsOnGesturesAndShowsTheCue) {
    importRules({{2, "toggleConfigurationWindow"}, {3, "middleClick"}, {4, "disableAllRules"}});
    TestWindow client(desktop, {100, 100, 400, 300});
    client.show();
    EXPECT_TRUE(testing::run("xdotool mousemove 200 200"));
    startWithIcon("--background --trackpad pad");
    openPad();
    tapThreeTimes(3);
    ASSERT_TRUE(appears("Kinesta Cue"));
    EXPECT_EQ(desktop.client(visible("Kinesta Cue")), (WindowRectangle{1280 - 28 - 220, 28, 220, 44}));
    EXPECT_EQ(client.next(), "BTN2 down");
    EXPECT_EQ(client.next(), "BTN2 up");
    EXPECT_EQ(desktop.active(), client.id());
    EXPECT_TRUE(disappears("Kinesta Cue"));
    tapThreeTimes(2);
    EXPECT_TRUE(appears("Kinesta"));
    tapThreeTimes(2);
    EXPECT_TRUE(disappears("Kinesta"));
    tapThreeTimes(4);
    EXPECT_TRUE(eventually([] { return status()["enabledRules"] == 0; }));
    tapThreeTimes(3);
    pad << "no event" << std::endl;
    EXPECT_TRUE(eventually([] { return status()["status"] == "unavailable"; }));
    EXPECT_NE(status()["statusText"].get<std::string>().find("cannot be read: pad:"), std::string::npos);
    EXPECT_EQ(client.events(), "");
    quit();
}

TEST_F(ApplicationOnADesktop, FollowsTheSettingsFile) {
    startWithIcon("--background --trackpad pad");
    const auto follows = [](const char* key, const json& value) {
        const auto begin = Clock::now();
        return eventually([&] { return json(status()[key]) == value; }) && millisecondsSince(begin) < 1000;
    };
    importRules({{2, "middleClick"}, {3, "middleClick"}, {4, "middleClick"}});
    EXPECT_TRUE(follows("enabledRules", 3));
    json settings = json::parse(readText(settingsFile()));
    settings["gesturesEnabled"] = false;
    writeText(settingsFile(), settings.dump());
    EXPECT_TRUE(follows("gesturesEnabled", false));
    writeText(settingsFile(), "{\"gesturesEnabled\": tr");
    const std::string problem = "The settings were changed elsewhere but could not be read: " + settingsFile();
    EXPECT_TRUE(application->says(problem));
    EXPECT_EQ(status()["enabledRules"], 3) << "keeps what it had";
    settings["gesturesEnabled"] = true;
    writeText(settingsFile(), settings.dump());
    EXPECT_TRUE(follows("gesturesEnabled", true));
    writeText(settingsFile(), "damaged");
    EXPECT_TRUE(application->says(problem));
    EXPECT_EQ(run("ctl disable"), "0|");
    EXPECT_TRUE(application->says("The settings file is damaged and was set aside"));
    settings["gesturesEnabled"] = false;
    EXPECT_EQ(json::parse(readText(settingsFile())), settings) << "nothing is lost";
    quit();
}

/// Medians, so that one interruption by another program on the machine does not count.
TEST_F(ApplicationOnADesktop, StartsAtOnceAndRests) {
    importRules({{3, "middleClick"}});
    const int watching = xcb_get_file_descriptor(desktop.connection());
    const std::uint32_t events = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(desktop.connection(), desktop.root(), XCB_CW_EVENT_MASK, &events);
    desktop.letWindowManagerCatchUp();
    const auto awaitMap = [&] {
        for (;;) {
            while (const XcbPointer<xcb_generic_event_t> event{xcb_poll_for_event(desktop.connection())})
                if ((event->response_type & 0x7F) == XCB_MAP_NOTIFY)
                    return;
            ASSERT_TRUE(waitForInput(watching));
        }
    };
    std::map<std::string, std::vector<double>> figures;
    for (int i = 0; i < 3; ++i) {
        auto begin = Clock::now();
        startWithIcon("--background --trackpad pad");
        figures["start"].push_back(millisecondsSince(begin));
        const pid_t process = processOf();
        openPad();
        eventually([] { return false; }, std::chrono::milliseconds(2500));  // it looks for a tray once more
        const ProcessFigures before(process);
        eventually([] { return false; }, std::chrono::milliseconds(1500));
        const ProcessFigures after(process);
        figures["sleeps"].push_back(static_cast<double>(after.sleeps - before.sleeps));
        figures["resident"].push_back(static_cast<double>(after.residentKilobytes) / 1024);
        begin = tapThreeTimes(3);
        awaitMap();
        figures["cue"].push_back(millisecondsSince(begin));
        EXPECT_TRUE(disappears("Kinesta Cue"));
        while (XcbPointer<xcb_generic_event_t>(xcb_poll_for_event(desktop.connection()))) {
        }
        begin = Clock::now();
        const auto control = start("ctl show");
        awaitMap();
        figures["window"].push_back(millisecondsSince(begin));
        rest(*control);
        quit();
        pad.close();
    }
    for (const auto& [name, bound] : {std::pair<const char*, double>{"start", 150},
                                      {"sleeps", 1},
                                      {"resident", 30},
                                      {"cue", 30},
                                      {"window", 200}}) {
        auto& values = figures[name];
        std::ranges::nth_element(values, values.begin() + 1);
        std::cout << name << " " << values[1] << "\n";
#if !defined(__SANITIZE_ADDRESS__)
        EXPECT_LT(values[1], bound) << name;
#endif
    }
}

}  // namespace
}  // namespace kinesta::testing
