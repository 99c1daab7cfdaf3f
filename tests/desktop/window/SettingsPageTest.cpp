#include <gtest/gtest.h>

#include "desktop/harness/AccessibleProgram.h"
#include "desktop/harness/ApplicationProcess.h"
#include "platform/linux/settings/FileUserDefaults.h"

namespace kinesta::testing {
namespace {

/// The settings in the window of the application, as a person uses them.
struct SettingsPage : Application {
    SettingsPage() : Application(TestDesktop::openbox) {
        setenv("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1", 1);
        application = start("");
        processOf();
        EXPECT_EQ(run("ctl show"), "0|");
        program.emplace("Kinesta");
        program->await("frame", "Kinesta");
        EXPECT_TRUE(eventually([&] { return (window = desktop.active()) != XCB_WINDOW_NONE; }));
        AccessibleProgram::press("ctrl+comma");
        program->await("push button", "Import…");
    }
    ~SettingsPage() override { run("ctl quit"); }

    static FileUserDefaults file() { return {FileUserDefaults::defaultPath(), {}}; }
    /// The colour at the edge of the window, beside all cards.
    std::uint32_t ground() const {
        const WindowRectangle place = desktop.client(window);
        const auto x = static_cast<std::int16_t>(place.width - 20);
        const auto y = static_cast<std::int16_t>(place.height - 20);
        const auto cookie = xcb_get_image(desktop.connection(), XCB_IMAGE_FORMAT_Z_PIXMAP, window, x, y, 1, 1, ~0U);
        const XcbPointer<xcb_get_image_reply_t> image(xcb_get_image_reply(desktop.connection(), cookie, nullptr));
        return image ? *reinterpret_cast<const std::uint32_t*>(xcb_get_image_data(image.get())) & 0xFFFFFFU : 0;
    }

    std::unique_ptr<ChildProcess> application;
    xcb_window_t window = XCB_WINDOW_NONE;
    std::optional<AccessibleProgram> program;
};

TEST_F(SettingsPage, StoresWhatIsChosenAndFollowsOtherProcesses) {
    const auto corners = program->await("slider", "Size of the corners");
    EXPECT_FALSE(corners.has(AccessibleProgram::enabled));
    program->click("check box", "Ignore touches that start in a corner");
    EXPECT_TRUE(program->becomes(corners, AccessibleProgram::enabled));
    AccessibleProgram::press("Tab");
    EXPECT_TRUE(program->becomes(corners, AccessibleProgram::focused));
    AccessibleProgram::press("Right Right Right Page_Up");
    EXPECT_TRUE(eventually([&] { return program->description(corners) == "63 %"; }));
    EXPECT_TRUE(eventually([&] { return file().real("cornerPalmRejectionSensitivity.v1") == 0.63; }));

    // The wheel scrolls the page although the pointer is over a slider.
    const int y = std::get<1>(program->middle(corners));
    program->click(corners, 5);
    EXPECT_TRUE(eventually([&] { return std::get<1>(program->middle(corners)) < y; }));
    EXPECT_EQ(program->value(corners), 63);
    AccessibleProgram::hand("click --repeat 30 5");
    const auto import = program->await("push button", "Import…");
    EXPECT_TRUE(eventually([&] { return std::get<1>(program->middle(import)) < kWholeScreen.height; }));
    EXPECT_EQ(ground(), 0xF5F5F8U);
    program->click("radio button", "Dark");
    EXPECT_TRUE(eventually([&] { return ground() == 0x1B1C21U; })) << std::hex << ground();
    EXPECT_EQ(file().string("appAppearance.v1"), "dark");

    const auto duration = program->await("slider", "Duration");
    auto other = file();
    other.setReal("actionCueDuration.v1", 3.2);
    EXPECT_TRUE(eventually([&] { return program->value(duration) == 32; }));
    const auto recognition = program->await("check box", "Gesture recognition");
    EXPECT_EQ(run("ctl disable"), "0|");
    EXPECT_TRUE(program->becomes(recognition, AccessibleProgram::checked, false));

    // A slider that has just moved is stored before the application ends.
    AccessibleProgram::press("shift+Tab shift+Tab Right");
    EXPECT_EQ(run("ctl quit"), "0|");
    EXPECT_EQ(exitStatus(*application), "0|");
    EXPECT_EQ(file().real("actionCueOpacity.v1"), 0.63);
}

}  // namespace
}  // namespace kinesta::testing
