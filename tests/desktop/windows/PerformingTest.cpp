#include <gtest/gtest.h>

#include <csignal>
#include <memory>

#include "cli/CommandRunner.h"
#include "desktop/harness/ClientWindow.h"
#include "desktop/harness/TestDesktop.h"
#include "desktop/harness/WindowWatch.h"

namespace kinesta::testing {
namespace {

/// `kinesta perform` with rules named after what they do, on a desktop with a window manager.
struct Performing : ::testing::Test {
    Performing() {
        const auto shortcut = [](int key) {
            return R"("kind":"keyboardShortcut","keyCode":)" + std::to_string(key) + R"(,"modifiers":20)";
        };
        const std::pair<std::string, std::string> rows[] = {
            {"left", shortcut(123)},
            {"right", shortcut(124)},
            {"untile", shortcut(15)},
            {"close", R"("kind":"closeWindow")"},
            {"window", R"("kind":"toggleConfigurationWindow")"},
            {"off", R"("kind":"disableAllRules")"},
        };
        std::string rules;
        for (const auto& [name, action] : rows)
            rules += (rules.empty() ? "[" : ",") +
                     rule(std::to_string(10 + rules.size() % 89),
                          R"("fingerCount":3,"gesture":"singleTap","name":")" + name + '"', action);
        EXPECT_EQ(kinesta.run({"rules", "import", "-"}, rules + "]").status, 0);
    }

    void fails(const std::string& name, const std::string& why) const {
        const Ran ran = kinesta.run({"perform", name});
        EXPECT_EQ(ran.status, 1) << name;
        EXPECT_EQ(ran.err, why + "\n") << name;
        EXPECT_EQ(ran.out, "") << name;
    }
    std::string says(const std::string& name) const {
        Ran ran = kinesta.run({"perform", name});
        // Where the machine is that busy nothing is lost either: the program says that it asked for nothing.
        for (int i = 0; i < 10 && ran.err == "The desktop took too long to answer. Try again.\n"; ++i)
            ran = kinesta.run({"perform", name});
        EXPECT_EQ(ran.status, 0) << name << ": " << ran.err;
        return ran.out;
    }

    TestDesktop desktop{{.hasWindowManager = true, .hasSessionBus = true}};
    WindowWatch watch{desktop};
    CommandRunner kinesta;
};

TEST_F(Performing, LosesNothingOfWhatItAsksForBeforeItEnds) {
    ClientWindow window(desktop, watch, {200, 150, 400, 300});
    window.show();
    for (int i = 0; i < 100; ++i) {
        ASSERT_EQ(says("left"), "Done: fn ⌃Left  (left)\n") << i;
        ASSERT_EQ(watch.frame(window.window()), (WindowRectangle{0, 0, 640, 800})) << i;
        ASSERT_EQ(says("right"), "Done: fn ⌃Right  (right)\n") << i;
        ASSERT_EQ(watch.frame(window.window()), (WindowRectangle{640, 0, 640, 800})) << i;
    }
}

TEST_F(Performing, TellsWhatBecameOfWindows) {
    for (const char* name : {"left", "untile", "close"})
        fails(name, "No window is active.");
    const auto connection = ClientWindow::connect(desktop);
    auto window = std::make_unique<ClientWindow>(desktop, watch, WindowRectangle{200, 150, 400, 300}, connection);
    window->show();
    fails("untile", "The window has no previous size: it was not tiled.");
    // This client takes its time, as one does that asks whether to save.
    EXPECT_EQ(says("close"),
              "Asked for: Close window  (close)\nThe window is still open; it may be asking you something.\n");
    {
        ClientWindow dialog(desktop, watch, {250, 200, 100, 50}, connection);
        dialog.setTransientFor(window->window()).setAtoms("_NET_WM_STATE", {"_NET_WM_STATE_MODAL"});
        dialog.show();
        fails("close", "A dialog waits for your answer.");
        EXPECT_FALSE(dialog.wasAskedToClose());
    }
    ASSERT_TRUE(watch.awaitActive(window->window()));
    {
        const auto program = desktop.run({"mousepad", "--disable-server"});
        ASSERT_NE(watch.awaitWindowOf(program->pid()), 0U);
        EXPECT_EQ(says("close"), "Done: Close window  (close)\n");
    }
    ASSERT_TRUE(watch.awaitActive(window->window()));
    const auto manager = static_cast<pid_t>(desktop.property(desktop.root(), "_OPENBOX_PID").value_or(0));
    ASSERT_GT(manager, 1);
    ASSERT_EQ(kill(manager, SIGSTOP), 0);
    fails("left", "The window manager was asked, and left the window as it was.");
    ASSERT_EQ(kill(manager, SIGCONT), 0);
    desktop.stopWindowManager();
    fails("left", "No window manager runs here that moves windows for others. See: kinesta doctor");
    fails("close", "No window manager runs here that closes windows for others. See: kinesta doctor");
}

TEST_F(Performing, SwitchesAllRulesOffAndSaysWhatItCannot) {
    fails("window", "No application runs here whose configuration window could be shown or hidden.");
    const auto isAnyOn = [&] { return kinesta.run({"rules", "list"}).out.find("1  off ") == std::string::npos; };
    EXPECT_TRUE(isAnyOn()) << kinesta.run({"rules", "list"}).out;
    EXPECT_EQ(says("off"), "Done: Disable every rule  (off)\n");
    EXPECT_FALSE(isAnyOn());

    const std::string tap = recording("CyPS2-Cypress-Trackpad.three_finger_tap.events");
    const auto replays = [&](const std::string& action) {
        const std::string rules = "[" + rule("99", R"("name":"","fingerCount":3,"gesture":"singleTap")", action) + "]";
        const Ran imported = kinesta.run({"rules", "import", "-"}, rules);
        EXPECT_EQ(imported.status, 0) << imported.err;
        return kinesta.run({"replay", tap, "--perform"});
    };
    EXPECT_EQ(replays(R"("kind":"disableAllRules")").status, 0);
    EXPECT_FALSE(isAnyOn());
    const Ran refused = replays(R"("kind":"toggleConfigurationWindow")");
    EXPECT_EQ(refused.status, 1);
    EXPECT_NE(refused.err.find("No application runs here whose"), std::string::npos) << refused.err;
}

}  // namespace
}  // namespace kinesta::testing
