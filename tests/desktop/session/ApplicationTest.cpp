#include <gtest/gtest.h>
#include <systemd/sd-bus.h>

#include <csignal>

#include "desktop/harness/ApplicationProcess.h"
#include "support/Sanitized.h"

namespace kinesta::testing {
namespace {

TEST_F(Application, RunsOnceHoweverManyStartsRace) {
    constexpr int kPairs = kIsSanitized ? 10 : 50;
    for (int pair = 0; pair < kPairs; ++pair) {
        const auto background = start("--background");
        const auto shown = start("");
        const auto hasEnded = [](ChildProcess& process) { return process.waitForEnd(std::chrono::milliseconds(0)); };
        ASSERT_TRUE(eventually([&] { return hasEnded(*background) != hasEnded(*shown); })) << pair;
        if (hasEnded(*shown)) {
            ASSERT_EQ(status()["windowVisible"], true) << pair;
        }
        ASSERT_EQ(run("ctl quit"), "0|");
        ASSERT_EQ(exitStatus(*background) + exitStatus(*shown), "0|0|") << pair;
    }
}

TEST_F(Application, TakesOverFromTheDaemonAndSurvivesEveryEnd) {
    const auto daemon = start("daemon");
    while (daemon->readLine().value_or("rules are on").find("rules are on") == std::string::npos) {
    }
    auto application = start("--background");
    const std::string log = rest(*daemon);
    EXPECT_NE(log.find("The Kinesta application has started and takes over.|"), std::string::npos) << log;
    EXPECT_TRUE(log.ends_with("Stopped.|0|")) << log;
    ASSERT_NE(processOf(), 0);
    const std::string refusal = run("daemon");
    EXPECT_TRUE(refusal.starts_with("The Kinesta application is running already, as process ")) << refusal;

    for (const int moment : {0, 5, 20, 50, 100, 200}) {
        const pid_t process = processOf();
        kill(process, SIGKILL);
        EXPECT_EQ(exitStatus(*application), "137|");
        application = start("--background");
        eventually([] { return false; }, std::chrono::milliseconds(moment));
    }
    const pid_t process = processOf();
    kill(process, SIGSTOP);
    const std::string hangs = "Kinesta runs as process " + std::to_string(process) + " but does not answer; ";
    EXPECT_TRUE(run("ctl show").starts_with(hangs));
    EXPECT_TRUE(run("").starts_with(hangs));
    kill(process, SIGCONT);
    kill(process, SIGHUP);
    EXPECT_EQ(processOf(), process);
    desktop.sessionBus->end(SIGKILL);
    EXPECT_NE(run("").find("No session bus answers"), std::string::npos);
    EXPECT_NE(run("ctl quit").find("there is no session bus to reach it.|1|"), std::string::npos);
    kill(process, SIGTERM);
    const std::string said = rest(*application);
    EXPECT_NE(said.find("|The session bus has ended: "), std::string::npos) << said;
    EXPECT_TRUE(said.ends_with("|0|")) << said;
    desktop.stopServer();
    EXPECT_NE(run("").find("does not answer, so Kinesta cannot show its icon and window."), std::string::npos);
}

TEST_F(Application, IsControlledFromOutside) {
    EXPECT_EQ(run("ctl show"), "Kinesta is not running.|1|");
    EXPECT_NE(run("ctl").find("|2|"), std::string::npos);
    const auto application = start("--background");
    const auto state = status();
    std::string keys;
    for (const auto& [key, value] : state.items())
        keys += key + " ";
    EXPECT_EQ(keys, "pid gesturesEnabled status statusText windowVisible testActive enabledRules tray ");
    EXPECT_EQ(state["enabledRules"], 1);

    sd_bus* bus = nullptr;
    std::string changed;
    ASSERT_GE(sd_bus_open_user(&bus), 0);
    const auto note = [](sd_bus_message* signal, void* name, sd_bus_error*) {
        const char* first = nullptr;
        sd_bus_message_skip(signal, "s");
        sd_bus_message_enter_container(signal, 'a', "{sv}");
        sd_bus_message_enter_container(signal, 'e', "sv");
        sd_bus_message_read(signal, "s", &first);
        *static_cast<std::string*>(name) = first;
        return 0;
    };
    constexpr const char* kName = "com.orvane.kinesta";
    constexpr const char* kPath = "/com/orvane/kinesta";
    ASSERT_GE(sd_bus_match_signal(bus, nullptr, kName, kPath, nullptr, "PropertiesChanged", note, &changed), 0);
    const auto changeAfter = [&](const std::string& arguments) {
        EXPECT_EQ(run(arguments), "0|") << arguments;
        while (changed.empty() && (sd_bus_process(bus, nullptr) > 0 || sd_bus_wait(bus, 20'000'000) > 0)) {
        }
        return std::exchange(changed, {});
    };
    EXPECT_EQ(changeAfter("ctl show"), "WindowVisible");
    EXPECT_EQ(changeAfter("ctl toggle"), "WindowVisible");
    EXPECT_EQ(run("ctl disable"), "0|");
    EXPECT_EQ(status()["gesturesEnabled"], false);
    const auto asDesktopsDo = [&](const char* action) {
        return sd_bus_call_method(bus, kName, kPath, "org.freedesktop.Application", "ActivateAction", nullptr, nullptr,
                                  "sava{sv}", action, 0, 0);
    };
    EXPECT_LT(asDesktopsDo("no-such-action"), 0);
    EXPECT_GE(asDesktopsDo("enable"), 0);
    EXPECT_GE(asDesktopsDo("show"), 0);
    EXPECT_EQ(status()["gesturesEnabled"], true);
    EXPECT_EQ(status()["windowVisible"], true);
    sd_bus_flush_close_unref(bus);
    EXPECT_EQ(run("ctl quit"), "0|");
    EXPECT_EQ(exitStatus(*application), "0|");
}

}  // namespace
}  // namespace kinesta::testing
