#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <nlohmann/json.hpp>
#include <string>

#include "desktop/harness/TestDesktop.h"

namespace kinesta::testing {

/// The application and `kinesta ctl` as processes.
struct Application : ::testing::Test {
    explicit Application(TestDesktop::Manager manager = TestDesktop::noManager) : desktop(manager) {}
    /// Runs it in a shell, which afterwards says its exit status.
    static std::unique_ptr<ChildProcess> start(const std::string& arguments) {
        return std::make_unique<ChildProcess>("sh -c \"'" KINESTA_PROGRAM "' " + arguments + " 2>&1; echo \\$?\"");
    }
    static std::string rest(ChildProcess& process) {
        std::string text;
        while (const auto line = process.readLine())
            text += *line + "|";
        return text;
    }
    /// Waits for its end. It may have written problems before, such as that this machine has no trackpad.
    static std::string exitStatus(ChildProcess& process) {
        const std::string text = "|" + rest(process);
        return text.substr(text.rfind('|', text.size() - 2) + 1);
    }
    static std::string run(const std::string& arguments) { return rest(*start(arguments)); }
    /// What it says once it runs.
    static nlohmann::ordered_json status() {
        nlohmann::ordered_json json;
        EXPECT_TRUE(eventually([&] {
            json = nlohmann::ordered_json::parse(start("ctl status --json")->readLine().value_or(""), nullptr, false);
            return json.is_object();
        }));
        return json;
    }
    static pid_t processOf() { return status().value("pid", 0); }

    TestDesktop desktop;
};

}  // namespace kinesta::testing
