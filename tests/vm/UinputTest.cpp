#include <gtest/gtest.h>
#include <linux/input-event-codes.h>

#include <array>

#include "platform/linux/keyboard/UinputInputPoster.h"
#include "vm/DeviceListener.h"
#include "vm/Processes.h"

namespace kinesta::vm {
namespace {

TEST(Uinput, SaysOnceThatItIsNotAllowedAndTriesAgain) {
    Lines log;
    std::optional<UinputInputPoster> poster;
    asOrdinaryUser([&] {
        poster.emplace([&](const std::string& line) { log.push_back(line); });
        EXPECT_FALSE(poster->isAvailable());
        EXPECT_FALSE(poster->modifiersFor(KEY_A));
        EXPECT_EQ(poster->pointerLocation(), std::nullopt);
    });
    ASSERT_EQ(log.size(), 1U);
    EXPECT_TRUE(log.front().starts_with("Keys cannot be posted, for /dev/uinput may not be opened; to")) << log.front();
    ASSERT_TRUE(poster->isAvailable()) << "now it is allowed";
    EXPECT_FALSE(poster->modifiersFor(BTN_LEFT) || poster->modifiersFor(256));
    const DeviceListener listener;
    const std::array presses{InputTransition{KEY_LEFTSHIFT, KeyTransition::down},
                             InputTransition{KEY_VOLUMEDOWN, KeyTransition::down}};
    EXPECT_TRUE(poster->post(presses));
    EXPECT_EQ(listener.take(2), (Lines{"KEY_LEFTSHIFT down", "KEY_VOLUMEDOWN down"}));
    poster.reset();
    const Lines last = listener.take(3);
    EXPECT_TRUE(!last.empty() && last.back() == "gone");
}

}  // namespace
}  // namespace kinesta::vm
