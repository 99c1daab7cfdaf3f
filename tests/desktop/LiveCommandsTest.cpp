#include <gtest/gtest.h>

#include <array>
#include <csignal>
#include <cstdlib>
#include <iostream>
#include <nlohmann/json.hpp>

#include "cli/CommandRunner.h"
#include "desktop/harness/BusServices.h"
#include "desktop/harness/EventWindow.h"
#include "desktop/harness/TestDesktop.h"
#include "desktop/harness/WindowWatch.h"
#include "platform/linux/settings/FileUserDefaults.h"

namespace kinesta::testing {
namespace {

using Events = std::vector<std::string>;

constexpr const char* kMiddleClick = R"({"kind":"middleClick","modifiers":0,"value":""})";
constexpr const char* kCloseWindow = R"({"kind":"closeWindow","modifiers":0,"value":""})";

std::string shortcut(int keyCode, int modifiers) {
    return R"({"kind":"keyboardShortcut","keyCode":)" + std::to_string(keyCode) + R"(,"modifiers":)" +
           std::to_string(modifiers) + R"(,"value":""})";
}

std::string shellCommand(const std::string& command) {
    return R"({"kind":"shellCommand","modifiers":0,"value":")" + command + R"(","shellCommandAcknowledged":true})";
}

std::string idOf(int number) { return "00000000-0000-4000-8000-00000000000" + std::to_string(number); }

/// A rule for a tap with so many fingers.
std::string rule(int fingers, const std::string& name, const std::string& action) {
    return R"({"id":")" + idOf(fingers) + R"(","name":")" + name + R"(","isEnabled":true,"fingerCount":)" +
           std::to_string(fingers) + R"(,"gesture":"singleTap","action":)" + action + "}";
}

/// The subcommands that meet the desktop and the pad, on a desktop of their own. A pad that the settings name and that
/// is not there stands for a machine without one.
struct LiveCommands : ::testing::Test {
    LiveCommands() {
        set([](UserDefaults& settings) { settings.setString("linux.touchpad.v1", "/dev/none"); });
    }

    void set(const std::function<void(UserDefaults&)>& change) const {
        FileUserDefaults settings(kinesta.folder.path() / "settings" / "defaults.json", [](const std::string&) {});
        change(settings);
    }
    void import(const std::string& rules) const {
        ASSERT_EQ(kinesta.run({"rules", "import", "-"}, "[" + rules + "]").status, 0);
    }

    TestDesktop desktop{{.hasSessionBus = true}};
    CommandRunner kinesta;
};

TEST_F(LiveCommands, PerformRunsTheActionOfOneRule) {
    EventWindow window(desktop);
    const std::string file = kinesta.folder / "shell";
    import(rule(2, "Paste", kMiddleClick) + "," + rule(3, "Copy", shortcut(8, 1)) + "," +
           rule(4, "Shell", shellCommand("echo > " + file)) + "," + rule(5, "Letter", shortcut(14, 16)));
    const Ran byName = kinesta.run({"perform", "Paste"});
    EXPECT_EQ(byName.status, 0) << byName.err;
    EXPECT_EQ(byName.out, "Asked for: Middle click  (Paste)\n");
    EXPECT_EQ(window.all(), (Events{"press Button2", "release Button2"}));
    EXPECT_EQ(kinesta.run({"perform", idOf(3)}).status, 0);
    EXPECT_EQ(window.all(),
              (Events{"press Control_L", "press Control+c", "release Control+c", "release Control+Control_L"}));

    const auto refused = [&](const std::string& wanted) {
        const Ran ran = kinesta.run({"perform", wanted});
        EXPECT_EQ(ran.status, 1) << wanted;
        EXPECT_EQ(ran.out, "") << wanted;
        return ran.err;
    };
    EXPECT_NE(refused("paste").find("No stored rule has the id or the name \"paste\"."), std::string::npos);
    EXPECT_NE(refused("Letter").find("no meaning together with fn"), std::string::npos);
    EXPECT_NE(refused("Shell").find("Shell commands are switched off"), std::string::npos);
    set([](UserDefaults& settings) { settings.setString("linux.inputRoute.v1", "uinput"); });
    set([](UserDefaults& settings) { settings.setBoolean("shellCommandActionsEnabled.v1", true); });
    EXPECT_EQ(kinesta.run({"perform", "Shell"}).status, 0) << "it needs no keys, which may not go that way";
    EXPECT_TRUE(eventually([&] { return std::filesystem::exists(file); }));
    EXPECT_EQ(window.all(), Events{});
    if (!std::filesystem::exists("/dev/uinput")) {
        EXPECT_NE(refused("Paste").find("See: kinesta doctor"), std::string::npos);
    }
}

TEST_F(LiveCommands, ReplayPerformsWhatItRecognizesWhenAskedTo) {
    EventWindow window(desktop);
    const std::string tap = recording("CyPS2-Cypress-Trackpad.three_finger_tap.events");
    const std::string rules =
        kinesta.folder.write("rules.json", std::string("[").append(rule(3, "", kMiddleClick) + "]"));
    const Ran told = kinesta.run({"replay", tap, "--rules", rules, "--json"});
    EXPECT_EQ(window.all(), Events{});
    const Ran performed = kinesta.run({"replay", tap, "--rules", rules, "--json", "--perform"});
    EXPECT_EQ(performed.out, told.out);
    EXPECT_EQ(performed.status, 0) << performed.err;
    EXPECT_EQ(window.all(), (Events{"press Button2", "release Button2"}));
}

TEST_F(LiveCommands, DoctorSaysWhatTheRulesMissAndWhatToDo) {
    using Json = nlohmann::json;
    const auto examine = [&] {
        const Ran ran = kinesta.run({"doctor", "--json"});
        const Json findings = Json::parse(ran.out);
        bool isMissing = false;
        for (const Json& finding : findings) {
            isMissing = isMissing || (finding["needed"] && !finding["works"]);
            EXPECT_TRUE(finding["works"] || !finding["why"].get<std::string>().empty()) << finding;
        }
        EXPECT_EQ(ran.status, isMissing ? 1 : 0) << ran.out;
        return findings;
    };
    const auto find = [](const Json& findings, const std::string& what) {
        for (const Json& finding : findings)
            if (finding["what"].get<std::string>().find(what) != std::string::npos)
                return finding;
        ADD_FAILURE() << "says nothing of: " << what;
        return Json{};
    };
    import("");
    const Json withoutRules = examine();
    EXPECT_EQ(kinesta.run({"doctor"}).status, 0) << "nothing is needed";
    EXPECT_EQ(find(withoutRules, "Sending keys")["works"], true);
    EXPECT_EQ(find(withoutRules, "Touchpad")["why"], "There is no trackpad at /dev/none.");
    EXPECT_EQ(find(withoutRules, "Force Click")["why"], "Not known while no touchpad can be read.");

    const std::string missing = kinesta.folder / "missing";
    constexpr const char* kRule = "Rule “3-finger single tap";
    struct Row {
        std::string action, what, remedy;
    };
    const std::string application =
        kinesta.folder.write("gone.desktop", "[Desktop Entry]\nType=Application\nName=Gone\nExec=no-such-program %U\n");
    const std::array<Row, 9> rows{{
        {kCloseWindow, "Closing and tiling windows", "Start a window manager"},
        {shortcut(123, 20), "Closing and tiling windows", "Start a window manager"},  // tile on the left
        {shellCommand("true"), "Shell commands", "set \"shellCommandActionsEnabled.v1\" to true in "},
        {shortcut(14, 16), kRule, "Choose another shortcut."},
        {R"({"kind":"launchApplication","modifiers":0,"value":")" + missing + "\"}", kRule,
         "Choose the application again."},
        {R"({"kind":"launchApplication","modifiers":0,"value":")" + application + "\"}", kRule, "Install that program"},
        {R"({"kind":"toggleConfigurationWindow","modifiers":0,"value":""})", kRule, "Choose another action."},
        {R"({"kind":"openFileOrFolder","modifiers":0,"value":"~/../)" + missing + "\"}", kRule,
         "Choose the file or folder again."},
        {R"({"kind":"openURL","modifiers":0,"value":"ftp://kinesta.test/"})", kRule, "Write the whole address"},
    }};
    for (const Row& row : rows) {
        import(rule(3, "", row.action));
        const Json finding = find(examine(), row.what);
        EXPECT_EQ(finding["works"], false) << finding;
        EXPECT_EQ(finding["needed"], true) << finding;
        EXPECT_NE(finding["remedy"].get<std::string>().find(row.remedy), std::string::npos) << finding;
        const Ran forPeople = kinesta.run({"doctor"});
        EXPECT_NE(forPeople.out.find("✗"), std::string::npos);
        EXPECT_NE(forPeople.out.find("Something that your rules need is missing"), std::string::npos);
    }
    import(rule(3, "", shortcut(8, 1)));  // Copy
    const auto speaksOfRules = [&] { return kinesta.run({"doctor"}).out.find(kRule) != std::string::npos; };
    for (const char* layout : {"ru", "gr", "ara", "il"}) {
        desktop.setLayout(layout);
        EXPECT_NE(find(examine(), kRule)["remedy"].get<std::string>().find("Latin letters"), std::string::npos);
    }
    for (const char* layout : {"ru,us", "fr"}) {
        desktop.setLayout(layout);
        EXPECT_FALSE(speaksOfRules()) << layout;
    }
    import(rule(3, "", kMiddleClick));
    desktop.stopServer();
    const Json gone = find(examine(), "Closing and tiling windows");
    EXPECT_EQ(gone["needed"], false);
    EXPECT_NE(gone["remedy"].get<std::string>().find("from within your desktop session"), std::string::npos);
}

TEST_F(LiveCommands, RecordRefusesWithoutATrackpadAndLeavesTheOldRecording) {
    const std::string old = kinesta.folder.write("old.jsonl", "old");
    const Ran ran = kinesta.run({"record", "-o", old});
    EXPECT_EQ(ran.status, 1);
    EXPECT_EQ(ran.err, "There is no trackpad at /dev/none.\n");
    EXPECT_EQ(readText(old), "old");
}

/// `kinesta daemon` as a process, with the settings of the commands above.
struct DaemonOnADesktop : LiveCommands {
    DaemonOnADesktop() {
        std::filesystem::create_directories(kinesta.folder.path() / "settings");
        std::filesystem::create_directory_symlink(kinesta.folder.path() / "settings",
                                                  folderOf("XDG_CONFIG_HOME") / "kinesta");
    }
    std::unique_ptr<ChildProcess> start() const { return desktop.run({KINESTA_PROGRAM, "daemon", "--verbose"}); }

    /// Whether it says so, now or soon.
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
    import(rule(2, "", kMiddleClick) + "," + rule(3, "", shortcut(8, 1)));
    const auto daemon = start();
    EXPECT_TRUE(says(*daemon, "There is no trackpad at /dev/none."));
    EXPECT_TRUE(says(*daemon, "rule: 2-finger single tap  →  Middle click"));
    EXPECT_TRUE(says(*daemon, "2 of 2 rules are on."));
    import(rule(4, "Off", R"({"kind":"disableAllRules","modifiers":0,"value":""})"));
    EXPECT_TRUE(says(*daemon, "The settings file was changed"));
    EXPECT_TRUE(says(*daemon, "1 of 1 rules are on."));
    EXPECT_EQ(kinesta.run({"perform", "Off"}).status, 0);
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

TEST_F(DaemonOnADesktop, IsTheOnlyOneThatActs) {
    const auto first = start();
    ASSERT_TRUE(says(*first, "rules are on."));
    const std::string said = kinesta.folder / "said";
    const int second = std::system(("'" KINESTA_PROGRAM "' daemon 2> " + said).c_str());
    EXPECT_EQ(WEXITSTATUS(second), 1);
    EXPECT_NE(readText(said).find("running already, as process " + std::to_string(first->pid())), std::string::npos);
    first->signal(SIGKILL);
    ASSERT_TRUE(first->waitForEnd());
    const auto third = start();
    EXPECT_TRUE(says(*third, "rules are on.")) << "what is left of one that was killed is in nobody's way";
}

TEST_F(DaemonOnADesktop, RunsWithoutAHomeAndSaysWhatThatMeans) {
    const auto daemon = desktop.run({"env", "-u", "XDG_RUNTIME_DIR", "XDG_CONFIG_HOME=/proc/nowhere",
                                     "TMPDIR=" + kinesta.folder.path().string(), KINESTA_PROGRAM, "daemon"});
    EXPECT_TRUE(says(*daemon, "1 of 1 rules are on."));
    EXPECT_TRUE(says(*daemon, "  Nothing can be saved; what changes lasts only until Kinesta quits: /proc/nowhere"));
}

TEST_F(DaemonOnADesktop, StartsAtOnceAndStaysSmall) {
    using Milliseconds = std::chrono::duration<double, std::milli>;
    std::string rules = rule(2, "", kMiddleClick);
    for (int i = 3; i <= 5; ++i)
        rules.append(",").append(rule(i, "", shortcut(8, 1)));
    import(rules);
    double best = 1e9;
    long resident = 0;
    for (int i = 0; i < 5; ++i) {
        const auto began = std::chrono::steady_clock::now();
        const auto daemon = start();
        ASSERT_TRUE(says(*daemon, "rules are on."));
        best = std::min(best, Milliseconds(std::chrono::steady_clock::now() - began).count());
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
