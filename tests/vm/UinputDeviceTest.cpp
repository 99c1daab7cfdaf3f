#include "platform/linux/keyboard/UinputDevice.h"

#include <gtest/gtest.h>
#include <linux/input-event-codes.h>

#include "vm/AsNobody.h"
#include "vm/DeviceListener.h"

namespace kinesta::vm {
namespace {

TEST(UinputDevice, PlaysKeysAndButtonsInOrder) {
    auto device = UinputDevice::create();
    ASSERT_TRUE(device) << device.error().message;
    DeviceListener listener(UinputDevice::kName);
    for (const bool isDown : {true, false}) {
        UinputDevice& keys = *device.value();
        keys.post(KEY_LEFTCTRL, isDown);
        EXPECT_TRUE(keys.sync());
        keys.post(KEY_C, isDown);
        keys.post(KEY_C, isDown);  // not told again
        EXPECT_TRUE(keys.sync());
        keys.post(BTN_MIDDLE, isDown);
        keys.post(KEY_VOLUMEUP, isDown);
        EXPECT_TRUE(keys.sync());
        EXPECT_TRUE(keys.sync());  // nothing to send
    }
    EXPECT_EQ(listener.take(8), (Lines{"KEY_LEFTCTRL down", "KEY_C down", "BTN_MIDDLE down", "KEY_VOLUMEUP down",
                                       "KEY_LEFTCTRL up", "KEY_C up", "BTN_MIDDLE up", "KEY_VOLUMEUP up"}));
    device.value()->post(KEY_LEFTSHIFT, true);
    EXPECT_TRUE(device.value()->sync());
    EXPECT_EQ(listener.take(1), (Lines{"KEY_LEFTSHIFT down"}));
    device.value().reset();
    const Lines last = listener.take(2);
    ASSERT_FALSE(last.empty());
    EXPECT_EQ(last.back(), "gone");
}

TEST(UinputDevice, SaysWhatIsMissing) {
    const AsNobody nobody;
    const auto device = UinputDevice::create();
    ASSERT_FALSE(device);
    EXPECT_TRUE(device.error().message.starts_with("Keys cannot be posted, for /dev/uinput may not be opened; to"));
}

}  // namespace
}  // namespace kinesta::vm
