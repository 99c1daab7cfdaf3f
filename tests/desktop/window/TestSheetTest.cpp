#include "desktop/window/OpenWindow.h"

namespace kinesta::testing {
namespace {

struct TestSheet : OpenWindow {
    TestSheet() {
        rules = {rule("All off", "tripleTap")};
        rules[0]["action"]["kind"] = "disableAllRules";
        open(rules);
        openPad();
    }
    void openSheet() {
        Program::press("ctrl+t");
        program->await("dialog", "Try a gesture");
        // Between two windows none is active.
        EXPECT_TRUE(eventually([&] { return (sheet = desktop.active()) != window && sheet != XCB_WINDOW_NONE; }));
        EXPECT_EQ(status()["testActive"], true);
    }
    static bool hasOn(std::size_t count) {
        return eventually([&] { return status()["enabledRules"] == count; });
    }

    std::vector<json> rules;
    xcb_window_t sheet = XCB_WINDOW_NONE;
};

TEST_F(TestSheet, ShowsWhatIsDetectedAndRunsNothing) {
    program->listen();
    openSheet();
    program->await("label", "Waiting for a gesture…");
    tapThreeTimes(3);
    EXPECT_TRUE(program->says("3-finger triple tap\nDetected once"));
    program->await("label", "3-finger triple tap");
    program->await("label", "All off");
    tapThreeTimes(3);
    program->await("label", "2 times in a row");
    tapThreeTimes(2);
    program->await("label", "2-finger triple tap");
    program->await("label", "Detected once");
    program->await("label", "No rule uses it");
    EXPECT_TRUE(hasOn(1));
}

TEST_F(TestSheet, LetsRulesRunAgainHoweverItCloses) {
    const std::vector<std::pair<std::string, std::function<void()>>> ways{
        {"Done", [&] { program->click("push button", "Done"); }},
        {"Escape", [] { Program::press("Escape"); }},
        {"close",
         [&] {
             desktop.request(sheet, "_NET_CLOSE_WINDOW", {0, 2});
         }},
        {"toggle", [] { run("ctl toggle"); }},
        {"hide", [] { run("ctl hide"); }},
    };
    for (const auto& [name, close] : ways) {
        SCOPED_TRACE(name);
        openSheet();
        close();
        EXPECT_TRUE(eventually([] { return status()["testActive"] == false; }));
        EXPECT_TRUE(program->awaitGone("dialog", "Try a gesture"));
        tapThreeTimes(3);
        EXPECT_TRUE(hasOn(0));
        import(rules);
        EXPECT_TRUE(hasOn(1));
        EXPECT_EQ(run("ctl show"), "0|");
        EXPECT_TRUE(desktop.becomesActive(window));
    }
    openSheet();
    EXPECT_EQ(run("ctl quit"), "0|");
    EXPECT_EQ(exitStatus(*application), "0|");
}

}  // namespace
}  // namespace kinesta::testing
