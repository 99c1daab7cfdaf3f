#include "platform/linux/windows/AccessibilityBus.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include "desktop/harness/BusPeer.h"
#include "desktop/harness/DesktopActions.h"

namespace kinesta::testing {
namespace {

using Tree = std::map<std::string, PretendedProgram::Element>;

constexpr std::uint64_t kActive = 1U << 1U;
constexpr std::uint64_t kModal = 1U << 16U;
constexpr std::uint64_t kShowing = 1U << 25U;

/// A window with `levels` nested boxes and an element with this state in the innermost.
Tree windowWith(std::uint64_t state, int levels = 2, std::uint64_t stateOfWindow = kActive | kShowing) {
    Tree tree{{"root", {0, {"other", "window"}}},
              {"other", {kShowing, {"elsewhere"}}},
              {"elsewhere", {kShowing | kModal, {}}},
              {"window", {stateOfWindow, {"toolbar", "box1"}}},
              {"toolbar", {kShowing, {}}}};
    for (int i = 1; i < levels; ++i)
        tree["box" + std::to_string(i)] = {kShowing, {"box" + std::to_string(i + 1)}};
    tree["box" + std::to_string(levels)] = {state, {}};
    return tree;
}

TEST(AccessibilityBus, FindsAModalDialogInsideTheActiveWindow) {
    TestDesktop desktop;
    MessageBus session;
    AccessibilityBus bus(session);
    const auto isQuick = [&] {
        const auto began = std::chrono::steady_clock::now();
        EXPECT_FALSE(bus.hasDialogInside(getpid()));
        return std::chrono::steady_clock::now() - began < std::chrono::milliseconds(500);
    };
    EXPECT_TRUE(isQuick()) << "starts no bus to look at";
    const auto check = [&](const char* what, const Tree& tree, bool isThere) {
        const PretendedProgram program(tree);
        EXPECT_EQ(bus.hasDialogInside(getpid(), 5), isThere) << what;
        EXPECT_FALSE(bus.hasDialogInside(getppid(), 5)) << what << ": of another program";
    };
    check("a dialog", windowWith(kShowing | kModal), true);
    check("as deep as it looks", windowWith(kShowing | kModal, AccessibilityBus::kMostLevels), true);
    check("deeper", windowWith(kShowing | kModal, AccessibilityBus::kMostLevels + 1), false);
    check("not modal", windowWith(kShowing), false);
    check("not shown", windowWith(kModal), false);
    check("in a window behind", windowWith(kShowing | kModal, 2, kShowing), false);
    Tree endless = windowWith(kShowing);
    endless["box2"].children = {"box1", "box1"};
    check("a tree that goes round", endless, false);
    check("a program without elements", {}, false);

    PretendedProgram program(windowWith(kShowing | kModal));
    program.hang();
    EXPECT_TRUE(isQuick());
    desktop.sessionBus.reset();
    EXPECT_TRUE(isQuick());
}

TEST(AccessibilityBus, KeepsAWindowWithADialogOpen) {
    TestDesktop desktop(TestDesktop::openbox);
    TestWindow window(desktop, {100, 100, 300, 200});
    window.setProcess(getpid()).show();
    DesktopActions actions;
    const auto sheets = [&] {
        const auto program = actions.ports().accessibility.applicationElement(getpid());
        const auto focused = program->copyAttribute("AXFocusedWindow");
        const auto children = std::get<AccessibilityElementHandle>(focused)->copyAttribute("AXChildren");
        return std::get<AccessibilityList>(children).items.size();
    };
    EXPECT_EQ(sheets(), 0U);
    const PretendedProgram program(windowWith(kShowing | kModal));
    EXPECT_TRUE(eventually([&] { return sheets() == 1; }));
}

}  // namespace
}  // namespace kinesta::testing
