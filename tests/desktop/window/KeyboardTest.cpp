#include <algorithm>

#include "desktop/window/OpenWindow.h"

namespace kinesta::testing {
namespace {

struct KeyboardAlone : OpenWindow {
    /// The controls on one way through the page; each must come once and have a name.
    std::vector<std::string> walk(const std::string& key) {
        std::vector<std::string> paths;
        for (;;) {
            const Program::Node at = program->focus().value_or(Program::Node{});
            EXPECT_FALSE(at.name.empty()) << at.role << " after " << (stops.empty() ? "" : stops.back());
            if (std::ranges::find(paths, at.path) != paths.end()) {
                EXPECT_EQ(at.path, paths.front()) << at.role << " " << at.name << " comes twice";
                return paths;
            }
            paths.push_back(at.path);
            stops.push_back(at.role + " " + at.name);
            Program::press(key);
            if (!eventually([&] { return program->focus().value_or(at).path != at.path; }))
                throw std::runtime_error("the focus stays at " + at.name);
        }
    }
    std::vector<std::string> expectEveryControlOnce() {
        stops.clear();
        auto forth = walk("Tab");
        const auto seen = stops;
        auto back = walk("shift+Tab");
        std::ranges::reverse(back.begin() + 1, back.end());
        EXPECT_EQ(forth, back);
        for (const auto& node : program->tabStops())
            EXPECT_TRUE(std::ranges::count(forth, node.path) == 1) << node.role << " " << node.name;
        return seen;
    }

    std::vector<std::string> stops;
};

TEST_F(KeyboardAlone, ReachesEveryControlOfEveryPageOnce) {
    open({rule("Click"), ruleWith("Keys", {{"kind", "keyboardShortcut"}, {"keyCode", 17}, {"modifiers", 9}})});
    for (const std::string keys : {"ctrl+1", "ctrl+comma"}) {
        SCOPED_TRACE(keys);
        Program::press(keys);
        program->await("push button", keys == "ctrl+1" ? "Try a gesture" : "Import…");
        Program::press("F6");
        expectEveryControlOnce();
    }
    for (const std::string name : {"Click", "Keys"}) {
        SCOPED_TRACE(name);
        program->click("list item", name);
        EXPECT_TRUE(eventually([&] { return program->text(program->await("text", "Name")) == name; }));
        const auto seen = expectEveryControlOnce();
        if (name == "Keys") {
            const auto recorder = std::ranges::find(seen, "push button Record shortcut");
            const std::vector<std::string> wanted{"push button Record shortcut",  "push button Clear shortcut",
                                                  "button menu Common shortcuts", "button menu Other keys",
                                                  "check box Show a cue",         "text Cue text"};
            ASSERT_GE(seen.end() - recorder, 6);
            EXPECT_EQ(std::vector<std::string>(recorder, recorder + 6), wanted);
        }
    }
}

}  // namespace
}  // namespace kinesta::testing
