#include <gtest/gtest.h>
#include <sys/stat.h>

#include <csignal>
#include <iostream>
#include <nlohmann/json.hpp>

#include "cli/CommandRunner.h"
#include "desktop/harness/TestWindow.h"
#include "platform/linux/settings/FileUserDefaults.h"

namespace kinesta::testing {
namespace {

using Events = std::vector<std::string>;
using Json = nlohmann::json;

Json action(const std::string& kind, const std::string& value = {}) {
    return {{"kind", kind}, {"modifiers", 0}, {"value", value}, {"shellCommandAcknowledged", true}};
}

Json shortcut(int keyCode, int modifiers) {
    Json json = action("keyboardShortcut");
    json["keyCode"] = keyCode;
    json["modifiers"] = modifiers;
    return json;
}

const Json kCopy = shortcut(8, 1);
const Json kTileLeft = shortcut(123, 20);
const Json kMiddleClick = action("middleClick");

/// The subcommands that use the desktop and the pad. The settings name a pad that does not exist, as on a machine
/// without one.
struct LiveCommands : ::testing::Test {
    explicit LiveCommands(bool hasWindowManager = false)
        : desktop({.hasWindowManager = hasWindowManager, .hasSessionBus = true}) {
        set([](UserDefaults& settings) { settings.setString("linux.touchpad.v1", "/dev/none"); });
    }

    void set(const std::function<void(UserDefaults&)>& change) const {
        FileUserDefaults settings(kinesta.folder.path() / "settings" / "defaults.json", [](const std::string&) {});
        change(settings);
    }
    /// One rule for each name, bound to a three-finger tap.
    static std::string rules(const std::vector<std::pair<std::string, Json>>& actions) {
        Json rules = Json::array();
        for (const auto& [name, action] : actions)
            rules.push_back({{"id", "00000000-0000-4000-8000-00000000001" + std::to_string(rules.size())},
                             {"name", name},
                             {"isEnabled", true},
                             {"fingerCount", 3},
                             {"gesture", "singleTap"},
                             {"action", action}});
        return rules.dump();
    }
    void import(const std::vector<std::pair<std::string, Json>>& actions) const {
        const Ran ran = kinesta.run({"rules", "import", "-"}, rules(actions));
        ASSERT_EQ(ran.status, 0) << ran.err;
    }
    std::string performed(const std::string& rule) const {
        const Ran ran = kinesta.run({"perform", rule});
        EXPECT_EQ(ran.status, 0) << rule << ": " << ran.err;
        return ran.out;
    }
    std::string refused(const std::string& rule) const {
        const Ran ran = kinesta.run({"perform", rule});
        EXPECT_EQ(ran.status, 1) << rule;
        EXPECT_EQ(ran.out, "") << rule;
        return ran.err;
    }

    TestDesktop desktop;
    CommandRunner kinesta;
};

struct LiveCommandsOnWindows : LiveCommands {
    LiveCommandsOnWindows() : LiveCommands(true) {}
};

TEST_F(LiveCommands, PerformsTheActionOfOneRule) {
    TestWindow window(desktop, TestWindow::kWholeScreen);
    window.show();
    const std::string file = kinesta.folder / "shell";
    import({{"Paste", kMiddleClick},
            {"Copy", kCopy},
            {"Letter", shortcut(14, 16)},
            {"Shell", action("shellCommand", "echo > " + file)},
            {"Window", action("toggleConfigurationWindow")},
            { "Off",
              action("disableAllRules") }});
    EXPECT_EQ(performed("Paste"), "Asked for: Middle click  (Paste)\n");
    EXPECT_EQ(window.events(), (Events{"press Button2", "release Button2"}));
    performed("00000000-0000-4000-8000-000000000011");
    EXPECT_EQ(window.events(),
              (Events{"press Control_L", "press Control+c", "release Control+c", "release Control+Control_L"}));
    for (const auto& [name, why] :
         {std::pair{"paste", "No stored rule has the id or the name \"paste\"."},
          {"Letter", "no meaning together with fn"},
          {"Shell", "Shell commands are switched off"},
          {"Window", "No application runs here whose configuration window could be shown or hidden."}})
        EXPECT_NE(refused(name).find(why), std::string::npos) << name;
    set([](UserDefaults& settings) { settings.setBoolean("shellCommandActionsEnabled.v1", true); });
    set([](UserDefaults& settings) { settings.setString("linux.inputRoute.v1", "uinput"); });
    performed("Shell");  // needs no keys
    EXPECT_TRUE(eventually([&] { return std::filesystem::exists(file); }));
    EXPECT_EQ(performed("Off"), "Done: Disable every rule  (Off)\n");
    EXPECT_NE(kinesta.run({"rules", "list"}).out.find("6  off "), std::string::npos);
    EXPECT_EQ(window.events(), Events{});
    if (!std::filesystem::exists("/dev/uinput")) {
        EXPECT_NE(refused("Paste").find("See: kinesta doctor"), std::string::npos);
    }
}

TEST_F(LiveCommands, ReplaysAndPerformsWhatItRecognizesIfAsked) {
    TestWindow window(desktop, TestWindow::kWholeScreen);
    window.show();
    Events command{"replay", recording("CyPS2-Cypress-Trackpad.three_finger_tap.events"), "--rules",
                   kinesta.folder.write("rules.json", rules({{"", kMiddleClick}})), "--json"};
    const Ran shown = kinesta.run(command);
    EXPECT_EQ(window.events(), Events{});
    command.push_back("--perform");
    const Ran performed = kinesta.run(command);
    EXPECT_EQ(performed.out, shown.out);
    EXPECT_EQ(performed.status, 0) << performed.err;
    EXPECT_EQ(window.events(), (Events{"press Button2", "release Button2"}));
    writeText(command[3], rules({{"", action("toggleConfigurationWindow")}}));
    const Ran refused = kinesta.run(command);
    EXPECT_EQ(refused.status, 1);
    EXPECT_NE(refused.err.find("No application runs here whose"), std::string::npos) << refused.err;
}

TEST_F(LiveCommandsOnWindows, LoseNothingOfTwoHundredPerforms) {
    import({{"left", kTileLeft}, { "right", shortcut(124, 20) }});
    TestWindow window(desktop, {200, 150, 400, 300});
    window.show();
    for (int i = 0; i < 100; ++i) {
        ASSERT_EQ(performed("left"), "Done: fn ⌃Left  (left)\n") << i;
        ASSERT_EQ(desktop.frame(window.id()), (WindowRectangle{0, 0, 640, 800})) << i;
        ASSERT_EQ(performed("right"), "Done: fn ⌃Right  (right)\n") << i;
        ASSERT_EQ(desktop.frame(window.id()), (WindowRectangle{640, 0, 640, 800})) << i;
    }
}

TEST_F(LiveCommandsOnWindows, SayWhatBecameOfTheWindow) {
    import({{"left", kTileLeft}, {"untile", shortcut(15, 20)}, { "close", action("closeWindow") }});
    for (const char* name : {"left", "untile", "close"})
        EXPECT_EQ(refused(name), "No window is active.\n");
    const auto connection = TestWindow::connect(desktop);
    TestWindow window(desktop, {200, 150, 400, 300}, connection);
    window.show();
    const auto isActive = [&] { return desktop.active() == window.id(); };
    EXPECT_EQ(refused("untile"), "The window has no previous size: it was not tiled.\n");
    EXPECT_EQ(performed("close"),
              "Asked for: Close window  (close)\nThe window is still open; it may be asking you something.\n");
    {
        TestWindow dialog(desktop, {250, 200, 100, 50}, connection);
        dialog.setWindow("WM_TRANSIENT_FOR", window.id()).setModal().show();
        EXPECT_EQ(refused("close"), "A dialog waits for your answer.\n");
        EXPECT_EQ(dialog.eventsAfterWindowManager(), Events{});
    }
    ASSERT_TRUE(eventually(isActive));
    {
        const auto program = desktop.start({"mousepad", "--disable-server"});
        ASSERT_NE(desktop.awaitWindowOf(program->pid()), 0U);
        EXPECT_EQ(performed("close"), "Done: Close window  (close)\n");
    }
    ASSERT_TRUE(eventually(isActive));
    desktop.windowManager().signal(SIGSTOP);
    EXPECT_EQ(refused("left"), "The window manager was asked, and left the window as it was.\n");
    desktop.windowManager().signal(SIGCONT);
    desktop.stopWindowManager();
    EXPECT_EQ(refused("left"), "No window manager runs here that moves windows for others. See: kinesta doctor\n");
    EXPECT_EQ(refused("close"), "No window manager runs here that closes windows for others. See: kinesta doctor\n");
}

TEST_F(LiveCommands, DoctorSaysWhatTheRulesMissAndWhatToDo) {
    const auto examined = [&](const std::string& what) {
        const Ran ran = kinesta.run({"doctor", "--json"});
        bool isMissing = false;
        Json found;
        for (const Json& finding : Json::parse(ran.out)) {
            isMissing = isMissing || (finding["needed"] && !finding["works"]);
            EXPECT_TRUE(finding["works"] || !finding["why"].get<std::string>().empty()) << finding;
            if (found.is_null() && finding["what"].get<std::string>().find(what) != std::string::npos)
                found = finding;
        }
        EXPECT_EQ(ran.status, isMissing ? 1 : 0) << ran.out;
        EXPECT_FALSE(found.is_null()) << "says nothing about: " << what;
        return found;
    };
    const auto hasRemedy = [](const Json& finding, const char* remedy) {
        return finding["remedy"].get<std::string>().find(remedy) != std::string::npos;
    };
    import({});
    EXPECT_EQ(kinesta.run({"doctor"}).status, 0) << "nothing is needed";
    EXPECT_EQ(examined("Sending keys")["works"], true);
    EXPECT_EQ(examined("Touchpad")["why"], "There is no trackpad at /dev/none.");
    EXPECT_EQ(examined("Force Click")["why"], "Not known while no touchpad can be read.");

    const std::string missing = kinesta.folder / "missing";
    const std::string application =
        kinesta.folder.write("gone.desktop", "[Desktop Entry]\nType=Application\nName=Gone\nExec=no-such-program %U\n");
    constexpr const char* kRule = "Rule “3-finger single tap";
    const struct {
        Json action;
        const char *what, *remedy;
    } rows[] = {
        {action("closeWindow"), "Closing and tiling windows", "Start a window manager"},
        {kTileLeft, "Closing and tiling windows", "Start a window manager"},
        {action("shellCommand", "true"), "Shell commands", "set \"shellCommandActionsEnabled.v1\" to true in "},
        {shortcut(14, 16), kRule, "Choose another shortcut."},
        {action("launchApplication", missing), kRule, "Choose the application again."},
        {action("launchApplication", application), kRule, "Install that program"},
        {action("toggleConfigurationWindow"), kRule, "Choose another action."},
        {action("openFileOrFolder", "~/../" + missing), kRule, "Choose the file or folder again."},
        {action("openURL", "ftp://kinesta.test/"), kRule, "Write the whole address"},
    };
    for (const auto& row : rows) {
        import({{ "", row.action }});
        const Json finding = examined(row.what);
        EXPECT_EQ(finding["works"], false) << finding;
        EXPECT_EQ(finding["needed"], true) << finding;
        EXPECT_TRUE(hasRemedy(finding, row.remedy)) << finding;
    }
    const std::string text = kinesta.run({"doctor"}).out;
    for (const char* part : {"✗", "Something that your rules need is missing"})
        EXPECT_NE(text.find(part), std::string::npos) << text;
    import({{ "", kCopy }});
    for (const char* layout : {"ru", "gr", "ara", "il"}) {
        desktop.setLayout(layout);
        EXPECT_TRUE(hasRemedy(examined(kRule), "Latin letters")) << layout;
    }
    for (const char* layout : {"ru,us", "fr"}) {
        desktop.setLayout(layout);
        EXPECT_EQ(kinesta.run({"doctor"}).out.find(kRule), std::string::npos) << layout;
    }
    import({{ "", kMiddleClick }});
    desktop.stopServer();
    const Json gone = examined("Closing and tiling windows");
    EXPECT_EQ(gone["needed"], false);
    EXPECT_TRUE(hasRemedy(gone, "from within your desktop session")) << gone;
}

TEST_F(LiveCommands, RecordsNothingWithoutATrackpadAndKeepsTheOldRecording) {
    const std::string old = kinesta.folder.write("old.jsonl", "old");
    const Ran ran = kinesta.run({"record", "-o", old});
    EXPECT_EQ(ran.status, 1);
    EXPECT_EQ(ran.err, "There is no trackpad at /dev/none.\n");
    EXPECT_EQ(readText(old), "old");
}

/// `kinesta daemon` as a process, with the settings of the commands above.
struct DaemonOnADesktop : LiveCommands {
    DaemonOnADesktop() {
        std::filesystem::create_directory_symlink(kinesta.folder.path() / "settings",
                                                  folderOf("XDG_CONFIG_HOME") / "kinesta");
    }
    std::unique_ptr<ChildProcess> start() const { return desktop.start({KINESTA_PROGRAM, "daemon", "--verbose"}); }

    /// Waits for a line that contains `text`.
    static ::testing::AssertionResult says(ChildProcess& daemon, const std::string& text) {
        std::string said;
        while (const auto line = daemon.readLine()) {
            if (line->find(text) != std::string::npos)
                return ::testing::AssertionSuccess();
            said += "\n" + *line;
        }
        return ::testing::AssertionFailure() << "did not say: " << text << "; but:" << said;
    }
};

TEST_F(DaemonOnADesktop, FollowsItsSettingsAndEndsCleanly) {
    import({{"", kMiddleClick}, { "", kCopy }});
    const auto daemon = start();
    EXPECT_TRUE(says(*daemon, "There is no trackpad at /dev/none."));
    EXPECT_TRUE(says(*daemon, "rule: 3-finger single tap  →  Middle click"));
    EXPECT_TRUE(says(*daemon, "2 of 2 rules are on."));
    import({{ "Off", action("disableAllRules") }});
    EXPECT_TRUE(says(*daemon, "The settings file was changed"));
    EXPECT_TRUE(says(*daemon, "1 of 1 rules are on."));
    performed("Off");
    EXPECT_TRUE(says(*daemon, "0 of 1 rules are on."));
    daemon->signal(SIGHUP);
    EXPECT_TRUE(says(*daemon, "Asked to reload: there is nothing new to be read."));
    set([](UserDefaults& settings) { settings.setString("linux.touchpad.v1", "No Such Pad"); });
    EXPECT_TRUE(says(*daemon, "No trackpad named \"No Such Pad\" was found."));
    set([](UserDefaults& settings) { settings.setBoolean("gesturesEnabled", false); });
    EXPECT_TRUE(says(*daemon, "Gesture recognition is off"));
    writeText(kinesta.folder.path() / "settings" / "defaults.json", "{ broken");
    EXPECT_TRUE(says(*daemon, "  The settings were changed elsewhere but could not be read")) << "in the log";
    daemon->signal(SIGHUP);
    daemon->signal(SIGTERM);
    EXPECT_TRUE(says(*daemon, "Stopped."));
    EXPECT_TRUE(daemon->waitForEnd());
}

TEST_F(DaemonOnADesktop, RunsOnceAtATimeAndWithoutAHome) {
    const auto first = start();
    ASSERT_TRUE(says(*first, "rules are on."));
    const auto second = desktop.start({"sh", "-c", "'" KINESTA_PROGRAM "' daemon 2>&1; echo status $?"});
    EXPECT_TRUE(says(*second, "running already, as process " + std::to_string(first->pid())));
    EXPECT_TRUE(says(*second, "status 1"));
    first->signal(SIGKILL);
    ASSERT_TRUE(first->waitForEnd());
    const auto third = start();
    EXPECT_TRUE(says(*third, "rules are on.")) << "the file of the first one is still there";
    const auto homeless = desktop.start({"env", "-u", "XDG_RUNTIME_DIR", "XDG_CONFIG_HOME=/proc/nowhere",
                                         "TMPDIR=" + kinesta.folder.path().string(), KINESTA_PROGRAM, "daemon"});
    EXPECT_TRUE(says(*homeless, "1 of 1 rules are on."));
    EXPECT_TRUE(says(*homeless, "  Nothing can be saved; what changes lasts only until Kinesta quits: /proc/nowhere"));
}

TEST_F(DaemonOnADesktop, ReadsAStreamInPlaceOfTheTrackpad) {
    const std::string pad = kinesta.folder / "pad";
    ASSERT_EQ(::mkfifo(pad.c_str(), 0600), 0);
    std::unique_ptr<ChildProcess> daemon;
    const auto restart = [&](const std::string& path, const std::string& status) {
        daemon.reset();
        daemon = desktop.start({KINESTA_PROGRAM, "daemon", "--trackpad", path});
        EXPECT_TRUE(says(*daemon, status));
    };
    const std::string header = "{\"kinesta\":\"recording\",\"version\":1}\n";
    const auto tap = [](const std::string& t) {
        return "{\"t\":" + t + ".1,\"touches\":[[1,0.4,0.5],[2,0.5,0.5]]}\n{\"t\":" + t + ".2,\"touches\":[]}\n";
    };
    restart(pad, "Trackpad listening: pad (" + pad + ")");
    {
        std::ofstream writer(pad);
        writer << header << "{\"t\"" << std::flush << tap("5").substr(4) << std::flush;
        EXPECT_TRUE(says(*daemon, "2-finger single tap")) << "while the stream is silent";
        set([](UserDefaults& settings) { settings.setBoolean("gesturesEnabled", false); });
        EXPECT_TRUE(says(*daemon, "Gesture recognition is off"));
        writer << tap("6") << std::string(200000, '\n') << std::flush;  // more than a pipe holds
        set([](UserDefaults& settings) { settings.setBoolean("gesturesEnabled", true); });
        EXPECT_TRUE(says(*daemon, "Trackpad listening: pad"));
        EXPECT_TRUE(says(*daemon, "rules are on."));
        writer << tap("7") << "no event\n" << std::flush;
        EXPECT_NE(daemon->readLine().value_or("").find("2-finger single tap"), std::string::npos);
        const std::string bad = "The trackpad recording cannot be read: " + pad + ":200008: ";
        EXPECT_NE(daemon->readLine().value_or("").find(bad), std::string::npos) << "no second tap before";
    }
    restart(pad, "listening");
    std::ofstream(pad) << header;
    EXPECT_TRUE(says(*daemon, "The trackpad recording " + pad + " has ended."));
    restart(pad, "listening");
    daemon->signal(SIGTERM);
    EXPECT_TRUE(daemon->waitForEnd()) << "while nobody has written";
    restart(pad + "?", "The trackpad recording " + pad + "? cannot be opened: No such file");
}

TEST_F(DaemonOnADesktop, StartsAtOnceAndStaysSmall) {
    import({{"", kMiddleClick}, {"", kCopy}, {"", kCopy}, { "", kCopy }});
    double best = 1e9;
    long resident = 0;
    for (int i = 0; i < 5; ++i) {
        const auto began = std::chrono::steady_clock::now();
        const auto daemon = start();
        ASSERT_TRUE(says(*daemon, "rules are on."));
        const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - began;
        best = std::min(best, time.count());
        std::ifstream status("/proc/" + std::to_string(daemon->pid()) + "/status");
        for (std::string word; status >> word;)
            if (word == "VmRSS:")
                status >> resident;
    }
    std::cout << "daemon: started in " << best << " ms, " << resident << " kB resident\n";
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
    EXPECT_LT(best, 50);
    EXPECT_LT(resident, 10240);
#endif
    EXPECT_GT(resident, 0);
}

}  // namespace
}  // namespace kinesta::testing
