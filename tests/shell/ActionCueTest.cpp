#include <xcb/xtest.h>

#include "desktop/harness/TestWindow.h"
#include "feedback/ActionCuePresenter.h"
#include "platform/linux/LinuxDesktop.h"
#include "platform/linux/x11/XcbPointer.h"
#include "platform/linuxdesktop/appearance/DesktopSettings.h"
#include "platform/linuxdesktop/cue/DesktopActionCue.h"
#include "platform/linuxdesktop/cue/DesktopScreens.h"
#include "platform/qt/QtMainThread.h"
#include "shell/QtTest.h"
#include "support/InMemoryUserDefaults.h"

namespace kinesta::testing {
namespace {

constexpr std::uint32_t kSolid = 0x24252B;

struct ActionCue : QtTest {
    std::vector<std::uint32_t> screenshot() const {
        const auto cookie =
            xcb_get_image(desktop.connection(), XCB_IMAGE_FORMAT_Z_PIXMAP, desktop.root(), 0, 0, kWidth, kHeight, ~0U);
        const XcbPointer<xcb_get_image_reply_t> image(xcb_get_image_reply(desktop.connection(), cookie, nullptr));
        std::vector<std::uint32_t> pixels(std::size_t{kWidth} * kHeight);
        std::memcpy(pixels.data(), xcb_get_image_data(image.get()), pixels.size() * 4);
        return pixels;
    }
    std::uint32_t pixel(int x, int y) const {
        return screenshot()[static_cast<std::size_t>(y * kWidth + x)] & 0xFFFFFFU;
    }

    /// The smallest rectangle with all pixels that the cue changes.
    WindowRectangle placeOfCue() {
        const auto before = screenshot();
        presenter.preview();
        WindowRectangle place;
        const auto visible = [&] {
            const auto after = screenshot();
            int left = kWidth, top = kHeight, right = 0, bottom = 0;
            for (int i = 0; i < kWidth * kHeight; ++i)
                if (before[static_cast<std::size_t>(i)] != after[static_cast<std::size_t>(i)]) {
                    left = std::min(left, i % kWidth), right = std::max(right, i % kWidth + 1);
                    top = std::min(top, i / kWidth), bottom = std::max(bottom, i / kWidth + 1);
                }
            place = {left, top, right - left, bottom - top};
            return !place.isEmpty() && pixel(left + 110, top + 4) == kSolid;
        };
        EXPECT_TRUE(eventually(visible));
        panel->orderOut();
        EXPECT_TRUE(eventually([&] { return screenshot() == before; }));
        return place;
    }
    void movePointer(int x, int y) const {
        xcb_test_fake_input(desktop.connection(), XCB_MOTION_NOTIFY, 0, XCB_CURRENT_TIME, desktop.root(),
                            static_cast<std::int16_t>(x), static_cast<std::int16_t>(y), 0);
        click(0);
    }
    /// Sends the requests so far; button 0 is none.
    void click(std::uint8_t button) const {
        for (const auto type : {XCB_BUTTON_PRESS, XCB_BUTTON_RELEASE})
            if (button != 0)
                xcb_test_fake_input(desktop.connection(), static_cast<std::uint8_t>(type), button, XCB_CURRENT_TIME,
                                    XCB_NONE, 0, 0, 0);
        const XcbPointer<xcb_get_input_focus_reply_t> done(
            xcb_get_input_focus_reply(desktop.connection(), xcb_get_input_focus(desktop.connection()), nullptr));
    }

    static constexpr int kWidth = 1280;
    static constexpr int kHeight = 800;
    QtMainThread mainLoop;
    LinuxDesktop machine{mainLoop, {folderOf("XDG_RUNTIME_DIR") / "settings", {}, {}}};
    InMemoryUserDefaults defaults;
    DesktopSettings settings{connectToBus()};
    DesktopScreens screens{[this] { return machine.monitors(); }};
    ActionCuePanel* panel = nullptr;
    ActionCuePresenter presenter{{defaults, mainLoop, screens, settings}, [this] {
                                     auto made = makeActionCuePanel();
                                     panel = made.get();
                                     return made;
                                 }};
};

TEST_F(ActionCue, StandsBesideTheDocksOfThePointersMonitor) {
    ASSERT_TRUE(run("xrandr --setmonitor L 640/170x800/210+0+0 screen"));
    ASSERT_TRUE(run("xrandr --setmonitor R 640/170x800/210+640+0 none"));
    ASSERT_TRUE(eventually([] { return QGuiApplication::screens().size() == 2; }));
    TestWindow dock(desktop, {0, 760, 640, 40});
    dock.setType("DOCK").set("_NET_WM_STRUT_PARTIAL", XCB_ATOM_CARDINAL, {0, 0, 0, 40, 0, 0, 0, 0, 0, 0, 0, 639});
    dock.show(false);
    const auto placeAt = [this](const char* position, int pointer) {
        defaults.setString("actionCuePosition.v1", position);
        movePointer(pointer, 400);
        return placeOfCue();
    };
    EXPECT_EQ(placeAt("center", 639), (WindowRectangle{210, 358, 220, 44}));
    EXPECT_EQ(placeAt("topRight", 100), (WindowRectangle{392, 28, 220, 44}));
    EXPECT_EQ(placeAt("bottomRight", 100), (WindowRectangle{392, 688, 220, 44}));
    EXPECT_EQ(placeAt("bottomRight", 640), (WindowRectangle{1032, 728, 220, 44}));
    EXPECT_EQ(placeAt("topRight", 1279), (WindowRectangle{1032, 28, 220, 44}));
}

TEST_F(ActionCue, LeavesFocusAndClicksToTheFullScreenWindowBelow) {
    defaults.setReal("actionCueDuration.v1", 5);
    TestWindow window(desktop, kWholeScreen);
    window.show();
    desktop.addState(window.id(), "_NET_WM_STATE_FULLSCREEN");
    window.events();
    presenter.preview();
    ASSERT_TRUE(eventually([&] { return pixel(1142, 32) == kSolid; }));
    movePointer(1142, 50);
    click(1);
    EXPECT_EQ(window.next(), "BTN1 down");
    EXPECT_EQ(desktop.active(), window.id());
    // With a compositor, the ground lets the window through as soon as that starts, and is solid again without it.
    std::optional<ChildProcess> picom(std::in_place, "picom --backend xrender --config /dev/null");
    const auto looksSolid = [&] {
        presenter.preview();
        return pixel(1142, 32) == kSolid;
    };
    EXPECT_TRUE(eventually([&] { return !looksSolid(); }));
    EXPECT_EQ(window.next(), "BTN1 up");
    click(1);
    EXPECT_EQ(window.next(), "BTN1 down");
    picom.reset();
    EXPECT_TRUE(eventually(looksSolid));
}

}  // namespace
}  // namespace kinesta::testing
