#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "desktop/harness/ApplicationProcess.h"
#include "desktop/harness/BusPeer.h"
#include "desktop/harness/PadStream.h"
#include "desktop/harness/ProcessFigures.h"
#include "desktop/harness/TestWindow.h"
#include "support/Sanitized.h"
#include "support/TemporaryFolder.h"

namespace kinesta::testing {
namespace {

using nlohmann::json;
/// The part of a panel that icons register with.
struct Panel : BusPeer {
    Panel() {
        EXPECT_GE(sd_bus_request_name(m_bus, "org.kde.StatusNotifierWatcher", 0), 0);
        serve(
            [](sd_bus_message* call, void* self, sd_bus_error*) {
                static_cast<Panel*>(self)->hasIcon = true;
                return sd_bus_reply_method_return(call, "");
            },
            this);
    }
    ~Panel() { hang(); }
    std::atomic<bool> hasIcon = false;
};

struct ApplicationOnADesktop : Application, PadStream {
    ApplicationOnADesktop() : Application(TestDesktop::openbox) {}

    void startWithIcon(const std::string& arguments) {
        panel.hasIcon = false;
        application = start(arguments);
        ASSERT_TRUE(eventually([&] { return panel.hasIcon.load(); }));
    }
    void quit() {
        EXPECT_EQ(run("ctl quit"), "0|");
        EXPECT_EQ(exitStatus(*application), "0|");
    }
    static json ask(const std::string& call) {
        const std::string item = "org.kde.StatusNotifierItem-" + std::to_string(processOf()) + "-1 ";
        const auto line = ChildProcess("busctl --user --json=short -- call " + item + call).readLine();
        return json::parse(line.value_or("{}"))["data"];
    }
    static json exportedItems() { return ask("/MenuBar com.canonical.dbusmenu GetLayout iias 0 -1 0")[1][2]; }
    /// Each line with "+" if it is checked, "-" if it is unchecked and "(" if it is disabled before it.
    static std::string menu() {
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
    static ::testing::AssertionResult showsMenu(const std::string& lines) {
        std::string shown;
        const bool does = eventually([&] { return (shown = menu()) == lines + " Kinesta|(Check for Updates…||Quit|"; });
        return does ? ::testing::AssertionSuccess() : ::testing::AssertionFailure() << shown;
    }
    static void choose(std::size_t line) {
        const json id = exportedItems().at(line)["data"][0];
        ask("/MenuBar com.canonical.dbusmenu Event isvu " + id.dump() + " clicked i 0 0");
    }
    static json picture() {
        return ask("/StatusNotifierItem org.freedesktop.DBus.Properties Get ss org.kde.StatusNotifierItem IconPixmap");
    }
    static void click() { ask("/StatusNotifierItem org.kde.StatusNotifierItem Activate ii 1 1"); }

    bool shows(const std::string& title, bool isShown = true) const {
        return eventually([&] { return (desktop.visible(title) != XCB_WINDOW_NONE) == isShown; });
    }
    /// Also waits until the program has asked for it: a request that comes later brings back a minimized window.
    bool becomesActive() const {
        xcb_window_t window = XCB_WINDOW_NONE;
        const bool isActive = eventually([&] {
            window = desktop.visible("Kinesta");
            return window != XCB_WINDOW_NONE && desktop.active() == window;
        });
        if (isActive)
            desktop.letProgramCatchUp(window);
        return isActive;
    }

    static void importRules(const std::vector<std::pair<int, std::string>>& tripleTaps) {
        std::string rules;
        for (const auto& [fingers, action] : tripleTaps) {
            const std::string number = std::to_string(fingers);
            rules += std::string(rules.empty() ? "[" : ",") + R"({"id":"6513270E-269E-4D37-B2A7-4DE452E6B43)" + number +
                     R"(","name":"","isEnabled":true,"showsActionCue":true,"gesture":"tripleTap","fingerCount":)" +
                     number + R"(,"action":{"kind":")" + action + R"(","modifiers":0,"value":""}})";
        }
        writeText("rules.json", rules + "]");
        EXPECT_TRUE(run("rules import rules.json").ends_with("|0|"));
    }
    static std::string settingsFile() { return folderOf("XDG_CONFIG_HOME") / "kinesta/defaults.json"; }

    Panel panel;
    std::unique_ptr<ChildProcess> application;
};

TEST_F(ApplicationOnADesktop, ShowsItsStateInTheMenuAndDoesWhatIsChosen) {
    startWithIcon("--background --trackpad pad");
    openPad();
    ASSERT_TRUE(showsMenu("+Gestures enabled|-Launch at Login|(Trackpad listening||Show"));
    const json on = picture();
    choose(0);
    EXPECT_TRUE(showsMenu("-Gestures enabled|-Launch at Login|(Gesture recognition is off||Show"));
    EXPECT_TRUE(eventually([] {
        return std::filesystem::exists(settingsFile()) &&
               json::parse(readText(settingsFile()))["gesturesEnabled"] == false;
    }));
    EXPECT_NE(picture(), on);
    choose(0);
    EXPECT_TRUE(showsMenu("+Gestures enabled|-Launch at Login|(Trackpad listening||Show"));
    EXPECT_EQ(picture(), on);

    const auto autostart = folderOf("XDG_CONFIG_HOME") / "autostart/com.orvane.kinesta.desktop";
    choose(1);
    EXPECT_TRUE(showsMenu("+Gestures enabled|+Launch at Login|(Trackpad listening||Show"));
    EXPECT_NE(readText(autostart).find("--background\n"), std::string::npos);
    choose(4);
    EXPECT_TRUE(showsMenu("+Gestures enabled|+Launch at Login|(Trackpad listening||Hide"));
    EXPECT_TRUE(shows("Kinesta"));
    choose(4);
    choose(1);
    EXPECT_TRUE(showsMenu("+Gestures enabled|-Launch at Login|(Trackpad listening||Show"));
    EXPECT_TRUE(shows("Kinesta", false));
    EXPECT_FALSE(std::filesystem::exists(autostart));
    pad.close();
    EXPECT_TRUE(showsMenu("+Gestures enabled|-Launch at Login|(The trackpad recording pad has ended.||Show"));
    choose(5);
    choose(2);
    choose(7);
    EXPECT_EQ(exitStatus(*application), "0|");
}

TEST_F(ApplicationOnADesktop, ShowsItsWindowWhenThePersonWantsIt) {
    for (const auto& [arguments, isShown] :
         {std::pair{"--background", false}, {"", true}, {"", false}, {"--background", false}}) {
        startWithIcon(arguments);
        EXPECT_EQ(status()["windowVisible"], isShown) << arguments;
        EXPECT_TRUE(shows("Kinesta", isShown)) << arguments;
        quit();
    }
    startWithIcon("");
    click();
    EXPECT_TRUE(shows("Kinesta"));
    click();
    EXPECT_TRUE(shows("Kinesta", false));
    click();
    ASSERT_TRUE(shows("Kinesta"));
    ASSERT_TRUE(becomesActive());
    desktop.minimize(desktop.active());
    ASSERT_TRUE(eventually([] { return !status()["windowVisible"]; }));
    click();
    ASSERT_TRUE(becomesActive());
    desktop.request(desktop.active(), "_NET_CLOSE_WINDOW", {0, 2});
    EXPECT_TRUE(shows("Kinesta", false));
    EXPECT_TRUE(eventually([] { return !status()["windowVisible"]; }));
    EXPECT_EQ(run(""), "0|");
    EXPECT_TRUE(shows("Kinesta"));
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
    ASSERT_TRUE(shows("Kinesta Cue"));
    EXPECT_EQ(desktop.client(desktop.visible("Kinesta Cue")), (WindowRectangle{1280 - 28 - 220, 28, 220, 44}));
    EXPECT_EQ(client.next(), "BTN2 down");
    EXPECT_EQ(client.next(), "BTN2 up");
    EXPECT_EQ(desktop.active(), client.id());
    EXPECT_TRUE(shows("Kinesta Cue", false));
    tapThreeTimes(2);
    EXPECT_TRUE(shows("Kinesta"));
    EXPECT_EQ(run("perform 6513270E-269E-4D37-B2A7-4DE452E6B432"), "Done: Show or hide Kinesta|0|");
    EXPECT_TRUE(shows("Kinesta", false));
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
    EXPECT_TRUE(application->says("The settings were changed elsewhere but could not be read: " + settingsFile()));
    EXPECT_EQ(status()["enabledRules"], 3) << "keeps what it had";
    settings["gesturesEnabled"] = true;
    writeText(settingsFile(), settings.dump());
    EXPECT_TRUE(follows("gesturesEnabled", true));
    quit();
}

/// Medians, so that one interruption by another program on the machine does not count.
TEST_F(ApplicationOnADesktop, StartsAtOnceAndRests) {
    importRules({{3, "middleClick"}});
    const int watching = xcb_get_file_descriptor(desktop.connection());
    const std::uint32_t events = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(desktop.connection(), desktop.root(), XCB_CW_EVENT_MASK, &events);
    desktop.letWindowManagerCatchUp();
    const auto timeToNextWindowAfter = [&](const std::function<Clock::time_point()>& act) {
        while (XcbPointer<xcb_generic_event_t>(xcb_poll_for_event(desktop.connection()))) {
        }
        const auto begin = act();
        for (;;) {
            while (const XcbPointer<xcb_generic_event_t> event{xcb_poll_for_event(desktop.connection())})
                if ((event->response_type & 0x7F) == XCB_MAP_NOTIFY)
                    return millisecondsSince(begin);
            if (!waitForInput(watching))
                return 1e9;
        }
    };
    std::map<std::string, std::vector<double>> figures;
    for (int i = 0; i < 3; ++i) {
        const auto begin = Clock::now();
        startWithIcon("--background --trackpad pad");
        const double taken = millisecondsSince(begin);
        const pid_t process = processOf();
        figures["start"].push_back(taken - waitForProcessor(process));
        openPad();
        eventually([] { return false; }, std::chrono::milliseconds(2500));  // it looks for a tray once more
        const ProcessFigures before(process);
        eventually([] { return false; }, std::chrono::milliseconds(1500));
        const ProcessFigures after(process);
        figures["sleeps"].push_back(static_cast<double>(after.sleeps - before.sleeps));
        figures["resident"].push_back(static_cast<double>(after.residentKilobytes) / 1024);
        figures["cue"].push_back(timeToNextWindowAfter([&] { return tapThreeTimes(3); }));
        EXPECT_TRUE(shows("Kinesta Cue", false));
        std::unique_ptr<ChildProcess> control;
        figures["window"].push_back(timeToNextWindowAfter([&] {
            const auto now = Clock::now();
            control = start("ctl show");
            return now;
        }));
        rest(*control);
        quit();
        pad.close();
    }
#ifdef __OPTIMIZE__
    constexpr double kMegabytes = 30;
#else
    constexpr double kMegabytes = 32;  // the program's own code is twice as large
#endif
    for (const auto& [name, bound] : {std::pair<const char*, double>{"start", 150},
                                      {"sleeps", 1},
                                      {"resident", kMegabytes},
                                      {"cue", 30},
                                      {"window", 200}}) {
        auto& values = figures[name];
        std::ranges::nth_element(values, values.begin() + 1);
        std::cout << name << " " << values[1] << "\n";
        EXPECT_TRUE(kIsSanitized || values[1] < bound) << name << " " << values[1];
    }
}

}  // namespace
}  // namespace kinesta::testing
