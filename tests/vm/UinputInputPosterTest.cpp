#include "platform/linux/keyboard/UinputInputPoster.h"

#include <gtest/gtest.h>
#include <linux/input-event-codes.h>

#include "platform/linux/keyboard/PostingEventSynthesizer.h"
#include "support/InMemoryUserDefaults.h"
#include "vm/AsNobody.h"
#include "vm/DeviceListener.h"

namespace kinesta::vm {
namespace {

TEST(UinputInputPoster, PostsActionsAsAnyProgramSeesThem) {
    Lines log;
    UinputInputPoster poster([&](const std::string& line) { log.push_back(line); });
    InMemoryUserDefaults defaults;
    PostingEventSynthesizer synthesizer(poster, defaults, [&](const std::string& line) { log.push_back(line); });
    DeviceListener listener(UinputDevice::kName);
    for (const auto& [code, flags] : {std::pair<std::uint16_t, std::uint64_t>{8, 0x120000}, {123, 0xA00000}})
        for (const auto transition : {KeyTransition::down, KeyTransition::up}) {
            const auto event = synthesizer.makeKeyEvent(nullptr, code, transition);
            event->setFlags(flags);
            event->post();
        }
    ASSERT_TRUE(synthesizer.probePointerLocation(nullptr));
    for (const auto transition : {KeyTransition::down, KeyTransition::up})
        synthesizer.makeCenterButtonEvent(nullptr, transition, {})->post();
    for (const std::int64_t data1 : {0x10A00, 0x10B00})
        synthesizer.makeSystemDefinedEvent({0, 8, data1, -1})->post();
    EXPECT_EQ(listener.take(12),
              (Lines{"KEY_LEFTSHIFT down", "KEY_LEFTCTRL down", "KEY_C down", "KEY_C up", "KEY_LEFTCTRL up",
                     "KEY_LEFTSHIFT up", "KEY_HOME down", "KEY_HOME up", "BTN_MIDDLE down", "BTN_MIDDLE up",
                     "KEY_VOLUMEDOWN down", "KEY_VOLUMEDOWN up"}));
    EXPECT_EQ(log, Lines{});
    EXPECT_FALSE(poster.modifiersFor(BTN_LEFT));
    EXPECT_FALSE(poster.modifiersFor(256));
}

TEST(UinputInputPoster, SaysOnceThatItMayNotAndTriesAgain) {
    Lines log;
    std::optional<UinputInputPoster> poster;
    {
        const AsNobody nobody;
        poster.emplace([&](const std::string& line) { log.push_back(line); });
        EXPECT_FALSE(poster->isAvailable());
        EXPECT_FALSE(poster->modifiersFor(KEY_A));
        EXPECT_EQ(poster->pointerLocation(), std::nullopt);
    }
    ASSERT_EQ(log.size(), 1U);
    EXPECT_TRUE(log.front().starts_with("Keys cannot be posted, for /dev/uinput may not be opened; to")) << log.front();
    EXPECT_TRUE(poster->isAvailable()) << "the person has allowed it";
}

}  // namespace
}  // namespace kinesta::vm
