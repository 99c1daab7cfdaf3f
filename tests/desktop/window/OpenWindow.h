#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <vector>

#include "desktop/harness/AccessibleProgram.h"
#include "desktop/harness/ApplicationProcess.h"
#include "desktop/harness/PadStream.h"
#include "support/TemporaryFolder.h"

namespace kinesta::testing {

/// The window of the application as a person uses it. The application reads the trackpad from the FIFO "pad".
struct OpenWindow : Application, PadStream {
    using json = nlohmann::json;
    using Program = AccessibleProgram;

    OpenWindow() : Application(TestDesktop::openbox) { setenv("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1", 1); }
    ~OpenWindow() override {
        if (program)
            run("ctl quit");
    }

    /// A rule as in a file, with one of three-finger taps.
    static json rule(const std::string& name, const std::string& gesture = "singleTap", int fingers = 3) {
        static int count = 0;
        std::string number = std::to_string(100000 + count++);
        return {{"id", "6513270E-269E-4D37-B2A7-4DE452" + number},
                {"name", name},
                {"isEnabled", true},
                {"gesture", gesture},
                {"action", {{"kind", "middleClick"}, {"modifiers", 0}, {"value", ""}}},
                {"fingerCount", fingers}};
    }
    static json ruleWith(const std::string& name, const json& action) {
        json made = rule(name);
        made["action"] = {{"modifiers", 0}, {"value", ""}};
        made["action"].update(action);
        return made;
    }
    /// A rule of every type of gesture and of every kind of action, named by its action.
    static std::vector<json> everyKind() {
        std::vector<json> rules{
            rule("unconfigured", "unconfigured"),
            rule("keyboardShortcut"),
            rule("middleClick", "doubleClick"),
            rule("closeWindow", "singleSoftClick"),
            rule("openURL", "singleForceClick"),
            rule("openFileOrFolder", "tipTapLeft"),
            rule("launchApplication", "doubleTipTapRight"),
            rule("shellCommand", "anchorDraw"),
            rule("toggleConfigurationWindow", "tripleTap"),
            rule("disableAllRules", "singleTap", 4),
            rule("adjustVolume", "edgeSlide"),
        };
        for (json& each : rules) {
            each["isEnabled"] = false;
            each["action"]["kind"] = each["name"];
        }
        rules[1]["action"].update({{"keyCode", 17}, {"modifiers", 9}});
        rules[6]["action"]["applicationArguments"] = {"--one", "two"};
        rules[7]["action"]["value"] = "true";
        return rules;
    }
    /// Has the application show its window with these rules, the first of them selected if there are any.
    void open(const std::vector<json>& rules = {}) {
        import(rules);
        launch();
        if (!rules.empty()) {
            program->click("list item", rules.front()["name"]);
            program->await("text", "Name");
        }
    }
    static void import(const std::vector<json>& rules) {
        writeText("before.json", json(rules).dump());
        ASSERT_EQ(exitStatus(*start("rules import before.json")), "0|");
    }
    void launch() {
        application = start("--trackpad pad");
        const auto process = static_cast<std::uint32_t>(processOf());
        EXPECT_EQ(run("ctl show"), "0|");
        program.emplace("Kinesta");
        program->await("frame", "Kinesta");
        EXPECT_TRUE(eventually([&] { return desktop.has(window = desktop.active(), "_NET_WM_PID", process); }));
        desktop.addState(window, "_NET_WM_STATE_MAXIMIZED_VERT", "_NET_WM_STATE_MAXIMIZED_HORZ");
        // It says where its parts are on the screen, which it knows a moment later.
        EXPECT_TRUE(eventually([&] {
            const WindowRectangle place = desktop.client(window);
            const std::tuple middle{place.x + place.width / 2, place.y + place.height / 2};
            return program->middle(program->await("frame", "Kinesta")) == middle;
        }));
    }

    /// The stored rules without their ids.
    static json stored() {
        std::filesystem::remove("after.json");
        EXPECT_TRUE(run("rules export after.json").ends_with("0|"));
        json rules = json::parse(readText("after.json"));
        for (json& each : rules)
            each.erase("id");
        return rules;
    }
    static ::testing::AssertionResult becomesStored(const json& rule) {
        json now;
        if (eventually([&] { return (now = stored()) == json::array({rule}); }))
            return ::testing::AssertionSuccess();
        return ::testing::AssertionFailure() << now.dump(1) << "\ninstead of " << rule.dump(1);
    }
    static std::string names() {
        std::string all;
        for (const json& each : stored())
            all += each["name"].get<std::string>() + (each["isEnabled"] ? " " : "- ");
        return all;
    }
    static ::testing::AssertionResult becomesNamed(const std::string& wanted) {
        std::string now;
        if (eventually([&] { return (now = names()) == wanted; }))
            return ::testing::AssertionSuccess();
        return ::testing::AssertionFailure() << now << "instead of " << wanted;
    }

    std::unique_ptr<ChildProcess> application;
    std::optional<Program> program;
    xcb_window_t window = XCB_WINDOW_NONE;
};

}  // namespace kinesta::testing
