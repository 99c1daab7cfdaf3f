#include <algorithm>

#include "desktop/window/OpenWindow.h"

namespace kinesta::testing {
namespace {

struct KeyboardAlone : OpenWindow {
    /// The controls on one way around; each must come once and have a name.
    std::vector<std::string> walk(const std::string& key) {
        const Program::Node start = program->focus().value_or(Program::Node{});
        std::vector<std::string> stops{start.role + " " + start.name};
        std::vector<std::string> paths{start.path};
        for (auto at = program->moveFocus(start, key); at.path != start.path; at = program->moveFocus(at, key)) {
            EXPECT_FALSE(at.name.empty()) << at.role << " after " << stops.back();
            stops.push_back(at.role + " " + at.name);

            if (std::ranges::find(paths, at.path) != paths.end())
                throw std::runtime_error(stops.back() + " comes twice");
            paths.push_back(at.path);
        }
        return paths;
    }
    void expectEveryControlOnce(const std::string& role, const std::string& name) {
        const auto stops = program->tabStops(program->await(role, name));
        if (stops.size() == 1) {
            EXPECT_EQ(program->focus().value_or(Program::Node{}).path, stops[0].path);
            return;
        }
        auto forth = walk("Tab");
        auto back = walk("shift+Tab");
        std::ranges::reverse(back.begin() + 1, back.end());
        EXPECT_EQ(forth, back);
        // In the order in which they stand, but for the sentences of a question: the mouse can select those.
        std::vector<std::string> order;
        for (const auto& stop : stops)
            if (role != "alert message" || stop.role != "label")
                order.push_back(stop.path);
        const auto first = std::ranges::find(order, forth.front());
        std::rotate(order.begin(), first, order.end());
        EXPECT_EQ(forth, order);
    }
};

TEST_F(KeyboardAlone, ReachesEveryControlOnce) {
    auto rules = everyKind();
    rules[2]["gesture"] = rules[8]["gesture"];
    for (const std::size_t clash : {2U, 8U})
        rules[clash]["isEnabled"] = true;
    open(rules);
    program->listen();
    for (const json& rule : rules) {
        const std::string name = rule["name"];
        SCOPED_TRACE(name);
        program->click("list item", name);
        EXPECT_TRUE(eventually([&] { return program->text(program->await("text", "Name")) == name; }));
        expectEveryControlOnce("frame", "Kinesta");
    }
    struct Row {
        const char* role;
        const char* name;
        const char* sign;  // a button in it
        std::function<void()> open;
    };
    const Row rows[]{
        {"frame", "Kinesta", "Copy report", [] { Program::press("ctrl+1"); }},
        {"frame", "Kinesta", "Import…",
         [&] {
             Program::press("ctrl+comma");
             program->click("check box", "Ignore touches that start in a corner");
         }},
        {"alert message", "Kinesta", "Reset", [&] { program->click("push button", "Reset…"); }},
        {"dialog", "Try a gesture", "Done", [] { Program::press("ctrl+t"); }},
        {"dialog", "About Kinesta", "Copy report", [] { Program::press("F1"); }},
        {"dialog", "Licences", "Done",
         [&] {
             Program::press("F1");
             program->click("push button", "Licences");
         }},
        {"alert message", "Kinesta", "Delete",
         [&] {
             Program::press("Escape");
             program->click("list item", "launchApplication");
             Program::press("Delete");
         }},
        {"dialog", "Choose an application", "Choose", [&] { program->click("push button", "Choose…"); }},
    };
    for (const auto& [role, name, sign, open] : rows) {
        SCOPED_TRACE(sign);
        open();
        program->await("push button", sign);
        if (role == std::string("frame")) {
            expectEveryControlOnce(role, name);
            continue;
        }
        EXPECT_TRUE(program->becomes(program->await(role, name), Program::active));
        expectEveryControlOnce(role, name);
        Program::press("Escape");
        EXPECT_TRUE(program->awaitGone(role, name));
    }
}

}  // namespace
}  // namespace kinesta::testing
