#include "platform/linux/windows/AccessibilityBus.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include "desktop/harness/AccessibleProgram.h"
#include "desktop/harness/ClientWindow.h"
#include "desktop/harness/TestDesktop.h"
#include "desktop/harness/WindowPorts.h"
#include "desktop/harness/WindowWatch.h"

namespace kinesta::testing {
namespace {

using Tree = std::map<std::string, AccessibleProgram::Element>;

constexpr std::uint64_t kActive = 1U << 1U;
constexpr std::uint64_t kModal = 1U << 16U;
constexpr std::uint64_t kShowing = 1U << 25U;

struct AccessibilityBusTest : ::testing::Test {
    /// A window in which `levels` boxes lie in each other, with an element of this state in the innermost.
    static Tree window(std::uint64_t stateOfWindow, std::uint64_t state, int levels = 2) {
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

    static double timeOf(const std::function<void()>& work) {
        const auto began = std::chrono::steady_clock::now();
        work();
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - began).count();
    }

    TestDesktop desktop{{.hasWindowManager = true, .hasSessionBus = true}};
    MessageBus session;
    AccessibilityBus bus{session};
};

TEST_F(AccessibilityBusTest, FindsAModalDialogInsideTheActiveWindow) {
    EXPECT_LT(timeOf([&] { EXPECT_FALSE(bus.hasDialogInside(getpid())); }), 0.15) << "nothing is started to look";
    const auto check = [&](const char* what, const Tree& tree, bool isThere) {
        const AccessibleProgram program(tree);
        EXPECT_EQ(bus.hasDialogInside(getpid(), 5), isThere) << what;
        EXPECT_FALSE(bus.hasDialogInside(getppid(), 5)) << what << ": of another program";
    };
    check("a dialog", window(kActive | kShowing, kShowing | kModal), true);
    check("as deep as is looked", window(kActive | kShowing, kShowing | kModal, AccessibilityBus::kMostLevels), true);
    check("deeper", window(kActive | kShowing, kShowing | kModal, AccessibilityBus::kMostLevels + 1), false);
    check("not modal", window(kActive | kShowing, kShowing), false);
    check("not shown", window(kActive | kShowing, kModal), false);
    check("in a window behind", window(kShowing, kShowing | kModal), false);
    Tree endless = window(kActive | kShowing, kShowing);
    endless["box2"].children = {"box1", "box1"};
    check("a tree that goes round", endless, false);
    check("a program that says nothing", {}, false);
}

TEST_F(AccessibilityBusTest, IsNotHeldUpByAProgramThatHangs) {
    AccessibleProgram program(window(kActive | kShowing, kShowing | kModal));
    EXPECT_TRUE(bus.hasDialogInside(getpid(), 5));
    program.hang();
    EXPECT_LT(timeOf([&] { EXPECT_FALSE(bus.hasDialogInside(getpid())); }), 0.5);
    desktop.stopSessionBus();
    EXPECT_FALSE(bus.hasDialogInside(getpid()));
}

TEST_F(AccessibilityBusTest, MakesASheetOfItForWhoeverWouldCloseTheWindow) {
    WindowWatch watch(desktop);
    ClientWindow client(desktop, watch, {100, 100, 300, 200});
    client.set("_NET_WM_PID", XCB_ATOM_CARDINAL, {static_cast<std::uint32_t>(getpid())}).show();
    X11Connection connection;
    EwmhDesktop windows(connection);
    WindowTiler tiler(windows);
    WindowAccessibility accessibility(windows, tiler, bus);
    const auto sheets = [&] {
        const auto program = accessibility.applicationElement(getpid());
        const auto focused = program->copyAttribute("AXFocusedWindow");
        const auto children = std::get<AccessibilityElementHandle>(focused)->copyAttribute("AXChildren");
        return std::get<AccessibilityList>(children).items.size();
    };
    EXPECT_EQ(sheets(), 0U);
    const AccessibleProgram program(window(kActive | kShowing, kShowing | kModal));
    EXPECT_TRUE(eventually([&] { return sheets() == 1; }));
}

}  // namespace
}  // namespace kinesta::testing
