#include <gtest/gtest.h>
#include <sys/stat.h>

#include <csignal>
#include <iostream>
#include <nlohmann/json.hpp>

#include "cli/CommandRunner.h"
#include "desktop/harness/BusPeer.h"
#include "desktop/harness/ProcessFigures.h"
#include "desktop/harness/TestWindow.h"
#include "platform/linux/settings/FileUserDefaults.h"
#include "support/Sanitized.h"

namespace kinesta::testing {
namespace {

using Json = nlohmann::json;
using Clock = std::chrono::steady_clock;

std::string action(const std::string& kind, const std::string& value = {}) {
    return R"("kind":")" + kind + R"(","value":")" + value + R"(","shellCommandAcknowledged":true)";
}

std::string shortcut(int keyCode, int modifiers) {
    return action("keyboardShortcut") + R"(,"keyCode":)" + std::to_string(keyCode) + R"(,"modifiers":)" +
           std::to_string(modifiers);
}

const std::string kCopy = shortcut(8, 1);
const std::string kTileLeft = shortcut(123, 20);
const std::string kMiddleClick = action("middleClick");
const std::string kShowWindow = action("toggleConfigurationWindow");

/// The subcommands that use the desktop and the pad. The settings name a pad that does not exist, as on a machine
/// without one.
struct LiveCommands : ::testing::Test {
    using NamedActions = std::vector<std::pair<std::string, std::string>>;

    explicit LiveCommands(TestDesktop::Manager manager = TestDesktop::noManager) : desktop(manager) {
        settings().setString("linux.touchpad.v1", "/dev/none");
    }

    FileUserDefaults settings() const {
        return {kinesta.folder / "settings/defaults.json", [](const auto&) {}};
    }
    /// One rule for each, bound to a three-finger tap.
    static std::string rules(const NamedActions& actions) {
        std::string list;
        for (int last = 10; const auto& [name, action] : actions) {
            const std::string trigger = R"("fingerCount":3,"gesture":"singleTap","name":")" + name + '"';
            list += (last > 10 ? "," : "") + rule(std::to_string(last), trigger, action);
            ++last;
        }
        return "[" + list + "]";
    }
    void import(const NamedActions& actions) const {
        const Ran ran = kinesta.run({"rules", "import", "-"}, rules(actions));
        ASSERT_EQ(ran.status, 0) << ran.err;
    }
    /// What the command says, or "refused: " and why.
    std::string perform(const std::string& rule) const {
        const Ran ran = kinesta.run({"perform", rule});
        return ran.out + (ran.status == 0 ? "" : "refused: " + ran.err);
    }

    CommandRunner kinesta;
    TestDesktop desktop;
};

struct LiveCommandsOnWindows : LiveCommands {
    LiveCommandsOnWindows() : LiveCommands(TestDesktop::openbox) {}
};

TEST_F(LiveCommands, PerformsTheActionOfOneRule) {
    TestWindow window(desktop, kWholeScreen);
    window.show();
    const std::string file = kinesta.folder / "shell";
    import({{"Paste", kMiddleClick},
            {"Copy", kCopy},
            {"Letter", shortcut(14, 16)},
            {"Shell", action("shellCommand", "echo > " + file)},
            {"Window", kShowWindow},
            { "Off",
              action("disableAllRules") }});
    EXPECT_EQ(perform("Paste"), "Asked for: Middle click  (Paste)\n");
    EXPECT_EQ(window.events(), "BTN2 down BTN2 up");
    EXPECT_TRUE(perform("00000000-0000-4000-8000-000000000011").starts_with("Asked for: "));
    EXPECT_EQ(window.events(), "KEY_LEFTCTRL down Control+KEY_C down Control+KEY_C up Control+KEY_LEFTCTRL up");
    const auto refuses = [&](const std::string& rule, const std::string& why) {
        const std::string said = perform(rule);
        return said.starts_with("refused: ") && said.find(why) != std::string::npos;
    };
    EXPECT_TRUE(refuses("paste", "No stored rule has the id or the name \"paste\"."));
    EXPECT_TRUE(refuses("Letter", "no meaning together with fn"));
    EXPECT_TRUE(refuses("Shell", "Shell commands are switched off"));
    EXPECT_TRUE(refuses("Window", "Only the application has a window. Kinesta is not running."));
    settings().setBoolean("shellCommandActionsEnabled.v1", true);
    settings().setString("linux.inputRoute.v1", "uinput");
    EXPECT_TRUE(perform("Shell").starts_with("Asked for: ")) << "needs no keys";
    EXPECT_TRUE(eventually([&] { return std::filesystem::exists(file); }));
    EXPECT_EQ(perform("Off"), "Done: Disable every rule  (Off)\n");
    EXPECT_NE(kinesta.run({"rules", "list"}).out.find("6  off "), std::string::npos);
    EXPECT_EQ(window.events(), "");
    if (!std::filesystem::exists("/dev/uinput")) {
        EXPECT_TRUE(refuses("Paste", "See: kinesta doctor"));
    }
}

TEST_F(LiveCommands, ReplaysAndPerformsWhatItRecognizesIfAsked) {
    TestWindow window(desktop, kWholeScreen);
    window.show();
    std::vector<std::string> command{"replay", recording("CyPS2-Cypress-Trackpad.three_finger_tap.events"), "--rules",
                                     kinesta.folder.write("rules.json", rules({{"", kMiddleClick}})), "--json"};
    const Ran shown = kinesta.run(command);
    EXPECT_EQ(window.events(), "");
    command.push_back("--perform");
    const Ran performed = kinesta.run(command);
    EXPECT_EQ(performed.out, shown.out);
    EXPECT_EQ(performed.status, 0) << performed.err;
    EXPECT_EQ(window.events(), "BTN2 down BTN2 up");
    writeText(command[3], rules({{"", kShowWindow}}));
    const Ran refused = kinesta.run(command);
    EXPECT_EQ(refused.status, 1);
    EXPECT_NE(refused.err.find("Only the application has a window."), std::string::npos) << refused.err;
}

TEST_F(LiveCommands, WaitForWhatThePortalSays) {
    import({{ "web", action("openURL", "http://kinesta.test/") }});
    setenv("PATH", kinesta.folder.path().c_str(), 1);  // no xdg-open
    EXPECT_EQ(perform("web"), "refused: Nothing here opens addresses; install xdg-utils.\n");
    const BusServices services(BusServices::Manner::refusing);
    EXPECT_EQ(perform("web"), "refused: The desktop's portal did not open http://kinesta.test/.\n");
}

TEST_F(LiveCommandsOnWindows, LoseNothingOfTwoHundredPerforms) {
    import({{"left", kTileLeft}, { "right", shortcut(124, 20) }});
    TestWindow window(desktop, {200, 150, 400, 300});
    window.show();
    for (int i = 0; i < 100; ++i) {
        ASSERT_EQ(perform("left"), "Done: fn ⌃Left  (left)\n") << i;
        ASSERT_EQ(desktop.frame(window.id()), (WindowRectangle{0, 0, 640, 800})) << i;
        ASSERT_EQ(perform("right"), "Done: fn ⌃Right  (right)\n") << i;
        ASSERT_EQ(desktop.frame(window.id()), (WindowRectangle{640, 0, 640, 800})) << i;
    }
}

TEST_F(LiveCommandsOnWindows, SayWhatBecameOfTheWindow) {
    import({{"left", kTileLeft}, {"untile", shortcut(15, 20)}, { "close", action("closeWindow") }});
    for (const char* name : {"left", "untile", "close"})
        EXPECT_EQ(perform(name), "refused: No window is active.\n");
    settings().setString("linux.inputRoute.v1", "x11");
    setenv("WAYLAND_DISPLAY", ("/tmp/.X11-unix/X" + desktop.display().substr(1)).c_str(), 1);  // any server will do
    EXPECT_EQ(perform("left"),
              "refused: No window of a program that uses XWayland is active; Wayland hides all others.\n");
    unsetenv("WAYLAND_DISPLAY");
    const auto connection = TestWindow::connect(desktop);
    TestWindow window(desktop, {200, 150, 400, 300}, connection);
    window.show();
    EXPECT_EQ(perform("untile"), "refused: The window has no previous size: it was not tiled.\n");
    EXPECT_EQ(perform("close"),
              "Asked for: Close window  (close)\nThe window is still open; it may be asking you something.\n");
    {
        TestWindow dialog(desktop, {250, 200, 100, 50}, connection);
        dialog.setOwner(window.id()).setModal().show();
        EXPECT_EQ(perform("close"), "refused: A dialog waits for your answer.\n");
        EXPECT_EQ(dialog.events(), "");
    }
    ASSERT_TRUE(desktop.becomesActive(window.id()));
    {
        const ChildProcess program("mousepad --disable-server");
        desktop.awaitWindowOf(program);
        EXPECT_EQ(perform("close"), "Done: Close window  (close)\n");
    }
    ASSERT_TRUE(desktop.becomesActive(window.id()));
    desktop.windowManager->signal(SIGSTOP);
    EXPECT_EQ(perform("left"), "refused: The window manager was asked, and left the window as it was.\n");
    desktop.windowManager->signal(SIGCONT);
    desktop.windowManager.reset();
    for (const auto& [name, does] : {std::pair{"left", "moves"}, {"close", "closes"}})
        EXPECT_EQ(perform(name), std::string("refused: No window manager runs here that ") + does +
                                     " windows for others. See: kinesta doctor\n");
}

TEST_F(LiveCommandsOnWindows, WaitNotLongForAServerThatHangs) {
    import({{"key", kCopy}, {"close", action("closeWindow")}, { "launch", action("launchApplication", "/bin/true") }});
    desktop.server->signal(SIGSTOP);
    const auto takes = [&](const std::vector<std::string>& command, int status) {
        const auto began = Clock::now();
        EXPECT_EQ(kinesta.run(command).status, status) << command.back();
        return std::chrono::duration<double>(Clock::now() - began).count();
    };
    EXPECT_LT(takes({"doctor"}, 1), 2);
    EXPECT_LT(takes({"perform", "key"}, 1), 2);
    EXPECT_LT(takes({"perform", "close"}, 1), 2);
    EXPECT_LT(takes({"perform", "launch"}, 0), 0.5) << "needs no X server";
    desktop.server->signal(SIGCONT);
}

TEST_F(LiveCommands, DoctorSaysWhatTheRulesMissAndWhatToDo) {
    /// What doctor finds out, as "works: WHY | REMEDY", "missing: …" if the rules need it, else "fails: …".
    const auto examined = [&](const std::string& what) {
        const Ran ran = kinesta.run({"doctor", "--json"});
        bool isMissing = false;
        std::string found;
        for (const Json& finding : Json::parse(ran.out)) {
            const std::string state = finding["works"] ? "works" : finding["needed"] ? "missing" : "fails";
            const std::string why = finding["why"];
            isMissing |= state == "missing";
            EXPECT_TRUE(state == "works" || !why.empty()) << finding;
            if (found.empty() && finding["what"].get<std::string>().find(what) != std::string::npos)
                found = state + ": " + why + " | " + finding["remedy"].get<std::string>();
        }
        EXPECT_EQ(ran.status, isMissing ? 1 : 0) << ran.out;
        return found;
    };
    const auto isRemedied = [&](const char* what, const std::string& state, const char* remedy) {
        const std::string found = examined(what);
        const bool isSo = found.starts_with(state) && found.find(remedy, found.find(" | ")) != std::string::npos;
        return isSo ? ::testing::AssertionSuccess() : ::testing::AssertionFailure() << found;
    };
    import({});
    EXPECT_EQ(kinesta.run({"doctor"}).status, 0) << "nothing is needed";
    EXPECT_TRUE(examined("Sending keys").starts_with("works"));
    EXPECT_EQ(examined("Touchpad"),
              "fails: There is no trackpad at /dev/none. | Connect one; recognition starts by itself.");
    EXPECT_EQ(examined("Force Click"), "fails: Not known while no touchpad can be read. | ");

    const std::string missing = kinesta.folder / "missing";
    const std::string application =
        kinesta.folder.write("gone.desktop", "[Desktop Entry]\nType=Application\nName=Gone\nExec=no-such-program %U\n");
    constexpr const char* kRule = "Rule “3-finger single tap";
    const struct {
        std::string action;
        const char *what, *remedy;
    } rows[] = {
        {action("closeWindow"), "Closing and tiling windows", "Start a window manager"},
        {kTileLeft, "Closing and tiling windows", "Start a window manager"},
        {action("shellCommand", "true"), "Shell commands", "set \"shellCommandActionsEnabled.v1\" to true in "},
        {shortcut(14, 16), kRule, "Choose another shortcut."},
        {action("launchApplication", missing), kRule, "Choose the application again."},
        {action("launchApplication", application), kRule, "Install that program"},
        {kShowWindow, kRule, "Start Kinesta without a subcommand."},
        {action("openFileOrFolder", "~/../" + missing), kRule, "Choose the file or folder again."},
        {action("openURL", "ftp://kinesta.test/"), kRule, "Write the whole address"},
    };
    for (const auto& row : rows) {
        import({{ "", row.action }});
        EXPECT_TRUE(isRemedied(row.what, "missing", row.remedy)) << row.action;
    }
    const std::string text = kinesta.run({"doctor"}).out;
    for (const char* part : {"✗", "Something that your rules need is missing"})
        EXPECT_NE(text.find(part), std::string::npos) << text;
    import({{ "", kCopy }});
    for (const char* layout : {"ru", "gr", "ara", "il"}) {
        desktop.setLayout(layout);
        EXPECT_TRUE(isRemedied(kRule, "missing", "Latin letters")) << layout;
    }
    for (const char* layout : {"ru,us", "fr"}) {
        desktop.setLayout(layout);
        EXPECT_EQ(kinesta.run({"doctor"}).out.find(kRule), std::string::npos) << layout;
    }
    import({{ "", kMiddleClick }});
    desktop.stopServer();
    EXPECT_TRUE(isRemedied("Closing and tiling windows", "fails", "from within your desktop session"));
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
        std::filesystem::create_directory_symlink(kinesta.folder / "settings", folderOf("XDG_CONFIG_HOME") / "kinesta");
    }
    static constexpr const char* kDaemon = "'" KINESTA_PROGRAM "' daemon --verbose";
};

TEST_F(DaemonOnADesktop, FollowsItsSettingsAndEndsCleanly) {
    import({{"", kMiddleClick}, { "", kCopy }});
    ChildProcess daemon(kDaemon);
    EXPECT_TRUE(daemon.says("There is no trackpad at /dev/none."));
    EXPECT_TRUE(daemon.says("rule: 3-finger single tap  →  Middle click"));
    EXPECT_TRUE(daemon.says("2 of 2 rules are on."));
    import({{ "Off", action("disableAllRules") }});
    EXPECT_TRUE(daemon.says("The settings file was changed"));
    EXPECT_TRUE(daemon.says("1 of 1 rules are on."));
    EXPECT_EQ(perform("Off").find("refused"), std::string::npos);
    EXPECT_TRUE(daemon.says("0 of 1 rules are on."));
    daemon.signal(SIGHUP);
    EXPECT_TRUE(daemon.says("Asked to reload: there is nothing new to be read."));
    settings().setString("linux.touchpad.v1", "No Such Pad");
    EXPECT_TRUE(daemon.says("No trackpad named \"No Such Pad\" was found."));
    settings().setBoolean("gesturesEnabled", false);
    EXPECT_TRUE(daemon.says("Gesture recognition is off"));
    writeText(kinesta.folder / "settings/defaults.json", "{ broken");
    EXPECT_TRUE(daemon.says("  The settings were changed elsewhere but could not be read")) << "in the log";
    daemon.signal(SIGHUP);
    daemon.signal(SIGTERM);
    EXPECT_TRUE(daemon.says("Stopped."));
    EXPECT_TRUE(daemon.waitForEnd());
}

TEST_F(DaemonOnADesktop, RunsOnceAtATimeAndWithoutAHome) {
    ChildProcess first(kDaemon);
    ASSERT_TRUE(first.says("rules are on."));
    ChildProcess second("sh -c \"" + std::string(kDaemon) + " 2>&1; echo status \\$?\"");
    EXPECT_TRUE(second.says("running already, as process " + std::to_string(first.pid())));
    EXPECT_TRUE(second.says("status 1"));
    first.end(SIGKILL);
    ChildProcess third(kDaemon);
    EXPECT_TRUE(third.says("rules are on.")) << "the file of the first one is still there";
    ChildProcess homeless("env -u XDG_RUNTIME_DIR XDG_CONFIG_HOME=/proc/nowhere TMPDIR=" +
                          kinesta.folder.path().string() + " " + kDaemon);
    EXPECT_TRUE(homeless.says("1 of 1 rules are on."));
    EXPECT_TRUE(homeless.says("  Nothing can be saved; what changes lasts only until Kinesta quits: /proc/nowhere"));
}

TEST_F(DaemonOnADesktop, ReadsAStreamInPlaceOfTheTrackpad) {
    const std::string pad = kinesta.folder / "pad";
    ASSERT_EQ(::mkfifo(pad.c_str(), 0600), 0);
    std::optional<ChildProcess> daemon;
    const auto restart = [&](const std::string& path, const std::string& status) {
        daemon.reset();
        daemon.emplace(kDaemon + std::string(" --trackpad '") + path + "'");
        EXPECT_TRUE(daemon->says(status));
    };
    const std::string header = "{\"kinesta\":\"recording\",\"version\":1}\n";
    const auto tap = [](const std::string& t) {
        return "{\"t\":" + t + ".1,\"touches\":[[1,0.4,0.5],[2,0.5,0.5]]}\n{\"t\":" + t + ".2,\"touches\":[]}\n";
    };
    restart(pad, "Trackpad listening: pad (" + pad + ")");
    {
        std::ofstream writer(pad);
        writer << header << "{\"t\"" << std::flush << tap("5").substr(4) << std::flush;
        EXPECT_TRUE(daemon->says("2-finger single tap")) << "while the stream is silent";
        settings().setBoolean("gesturesEnabled", false);
        EXPECT_TRUE(daemon->says("Gesture recognition is off"));
        writer << tap("6") << std::string(200000, '\n') << std::flush;  // more than a pipe holds
        settings().setBoolean("gesturesEnabled", true);
        EXPECT_TRUE(daemon->says("Trackpad listening: pad"));
        EXPECT_TRUE(daemon->says("rules are on."));
        writer << tap("7") << "no event\n" << std::flush;
        EXPECT_NE(daemon->readLine().value_or("").find("2-finger single tap"), std::string::npos);
        const std::string bad = "The trackpad recording cannot be read: " + pad + ":200008: ";
        EXPECT_NE(daemon->readLine().value_or("").find(bad), std::string::npos) << "no second tap before";
    }
    restart(pad, "listening");
    std::ofstream(pad) << header;
    EXPECT_TRUE(daemon->says("The trackpad recording " + pad + " has ended."));
    restart(pad, "listening");
    daemon->signal(SIGTERM);
    EXPECT_TRUE(daemon->waitForEnd()) << "while there is no writer";
    restart(pad + "?", "The trackpad recording " + pad + "? cannot be opened: No such file");
}

TEST_F(DaemonOnADesktop, StartsAtOnceAndStaysSmall) {
    import({{"", kMiddleClick}, {"", kCopy}, {"", kCopy}, { "", kCopy }});
    double best = 1e9;
    long resident = 0;
    for (int i = 0; i < 5; ++i) {
        const auto began = Clock::now();
        ChildProcess daemon(kDaemon);
        ASSERT_TRUE(daemon.says("rules are on."));
        best = std::min(best, std::chrono::duration<double, std::milli>(Clock::now() - began).count());
        resident = ProcessFigures(daemon.pid()).residentKilobytes;
    }
    std::cout << "daemon: started in " << best << " ms, " << resident << " kB resident\n";
    if (!kIsSanitized) {
        EXPECT_LT(best, 50);
        EXPECT_LT(resident, 10240);
    }
    EXPECT_GT(resident, 0);
}

}  // namespace
}  // namespace kinesta::testing
