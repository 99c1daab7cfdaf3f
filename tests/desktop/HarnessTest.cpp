#include <gtest/gtest.h>

#include "desktop/EventWindow.h"
#include "desktop/PhysicalKeyboard.h"
#include "desktop/TestDesktop.h"

namespace kinesta::testing {
namespace {

using Events = std::vector<std::string>;

TEST(Harness, SeesWhatAPersonTypesInTheLayoutInForce) {
    TestDesktop desktop({.hasWindowManager = true, .hasSessionBus = true});
    EventWindow window(desktop);
    PhysicalKeyboard keyboard(desktop);
    constexpr std::uint16_t kLeftCtrl = 29;
    constexpr std::uint16_t kQ = 16;
    keyboard.press(kLeftCtrl);
    keyboard.press(kQ);
    EXPECT_TRUE(keyboard.isDown(kQ));
    keyboard.release(kQ);
    keyboard.release(kLeftCtrl);
    EXPECT_EQ(window.all(),
              (Events{"press Control_L", "press Control+q", "release Control+q", "release Control+Control_L"}));
    desktop.setLayout("fr");
    keyboard.press(kQ);
    keyboard.release(kQ);
    EXPECT_EQ(window.all(), (Events{"press a", "release a"}));
}

}  // namespace
}  // namespace kinesta::testing
