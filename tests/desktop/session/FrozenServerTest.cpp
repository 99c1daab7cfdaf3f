#include <gtest/gtest.h>

#include <chrono>
#include <csignal>

#include "cli/CommandRunner.h"
#include "desktop/harness/DesktopActions.h"
#include "desktop/harness/TestWindow.h"

namespace kinesta::testing {
namespace {

TEST(FrozenServer, HoldsUpNoCommandForLong) {
    TestDesktop desktop({.hasWindowManager = true, .hasSessionBus = true});
    const CommandRunner kinesta;
    const std::string tap = R"("fingerCount":3,"gesture":"singleTap","name":)";
    const std::string rules = "[" +
                              rule("11", tap + "\"key\"", R"("kind":"keyboardShortcut","keyCode":8,"modifiers":1)") +
                              "," + rule("12", tap + "\"close\"", R"("kind":"closeWindow")") + "," +
                              rule("13", tap + "\"launch\"", R"("kind":"launchApplication","value":"/bin/true")") + "]";
    ASSERT_EQ(kinesta.run({"rules", "import", "-"}, rules).status, 0);
    desktop.server().signal(SIGSTOP);
    const auto takes = [&](const std::vector<std::string>& command, int status) {
        const auto began = std::chrono::steady_clock::now();
        EXPECT_EQ(kinesta.run(command).status, status) << command.back();
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - began).count();
    };
    EXPECT_LT(takes({"doctor"}, 1), 2);
    EXPECT_LT(takes({"perform", "key"}, 1), 2);
    EXPECT_LT(takes({"perform", "close"}, 1), 2);
    EXPECT_LT(takes({"perform", "launch"}, 0), 0.5) << "needs no X server";
    desktop.server().signal(SIGCONT);
}

TEST(RoundTrips, AreFewForEachAction) {
    TestDesktop desktop({.hasWindowManager = true, .hasSessionBus = true});
    TestWindow window(desktop, {100, 100, 200, 100});
    window.show();
    DesktopActions actions;
    const auto trips = [&](const std::function<void()>& work) {
        work();  // the first call also reads the keymap
        const unsigned before = actions.roundTrips();
        work();
        return actions.roundTrips() - before;
    };
    EXPECT_LE(trips([&] { EXPECT_TRUE(actions.tiles(WindowTilingMenuCommand::left)); }), 6U);
    EXPECT_LE(trips([&] { EXPECT_TRUE(actions.closes()); }), 11U);
    for (const ActionKind kind : {ActionKind::keyboardShortcut, ActionKind::middleClick}) {
        const unsigned count = trips([&] { actions.run(kind); });
        EXPECT_GE(count, 1U) << "the server was asked";
        EXPECT_LE(count, 2U);
    }
}

}  // namespace
}  // namespace kinesta::testing
