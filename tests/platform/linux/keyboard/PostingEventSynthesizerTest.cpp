#include "platform/linux/keyboard/PostingEventSynthesizer.h"

#include <gtest/gtest.h>
#include <linux/input-event-codes.h>

#include "support/InMemoryUserDefaults.h"

namespace kinesta {
namespace {

using Calls = std::vector<std::string>;

constexpr auto kDown = KeyTransition::down;
constexpr auto kUp = KeyTransition::up;

struct PostingEventSynthesizerTest : ::testing::Test, InputPoster {
    bool isAvailable() override { return works; }
    std::optional<ModifierSituation> modifiersFor(std::uint16_t code) override {
        if (!works || code == KEY_102ND)
            return std::nullopt;
        return ModifierSituation{{{KEY_LEFTSHIFT, kShiftModifier}, {KEY_LEFTCTRL, kControlModifier}},
                                 {{KEY_LEFTSHIFT, kShiftModifier}}};
    }
    std::optional<DesktopLocation> pointerLocation() override { return std::nullopt; }
    bool post(std::span<const InputTransition> transitions) override {
        if (!works)
            return false;
        calls.emplace_back();
        for (const auto& step : transitions)
            calls.back().append(step.transition == kDown ? "+" : "-").append(std::to_string(step.code) + " ");
        return true;
    }

    void key(std::uint16_t code, KeyTransition transition, std::optional<std::uint64_t> flags = {}) {
        const auto event = synthesizer->makeKeyEvent(nullptr, code, transition);
        if (flags)
            event->setFlags(*flags);
        event->post();
    }

    bool works = true;
    Calls calls, log;
    InMemoryUserDefaults defaults;
    std::unique_ptr<PostingEventSynthesizer> synthesizer = std::make_unique<PostingEventSynthesizer>(
        *this, defaults, [this](const std::string& line) { log.push_back(line); });
};

TEST_F(PostingEventSynthesizerTest, LeavesHeldModifiersToAKeyWithoutFlags) {
    for (const auto& flags : {std::optional<std::uint64_t>(), std::optional<std::uint64_t>(0xB00000)}) {
        key(63, kDown);  // fn
        key(123, kDown, flags);
        key(123, kUp, flags);
        key(63, kUp);
    }
    EXPECT_EQ(calls, (Calls{"+105 ", "-105 ", "-42 +29 +102 ", "-102 -29 +42 "}));
    EXPECT_EQ(log, Calls{});
}

TEST_F(PostingEventSynthesizerTest, PutsModifiersBackEvenIfAKeyNeverComesUp) {
    key(8, kDown, 0x100000);
    key(9, kDown, 0x100000);
    key(8, kUp, 0x100000);  // has been released before the next
    key(9, kUp, 0x100000);
    key(8, kDown, 0x100000);
    synthesizer.reset();
    EXPECT_EQ(calls, (Calls{"-42 +29 +46 ", "-46 -29 +42 ", "-42 +29 +47 ", "-46 ", "-47 -29 +42 ", "-42 +29 +46 ",
                            "-46 -29 +42 "}));
}

TEST_F(PostingEventSynthesizerTest, SkipsKeysThatAreNotThereAndSaysSoOnce) {
    for (const auto& [code, flags] : {std::pair<std::uint16_t, std::uint64_t>{10, 0}, {14, 0x800000}, {123, 0xA60000}})
        for (const auto transition : {kDown, kUp})
            key(code, transition, flags);
    EXPECT_EQ(calls, Calls{});
    EXPECT_EQ(log, (Calls{"The key with code 10 is not on this keyboard. Choose another key.",
                          "The key with code 14 has no meaning together with fn on this desktop. Choose another "
                          "shortcut.",
                          "The shortcut tiles windows, and that was not possible. See: kinesta doctor"}));
}

TEST_F(PostingEventSynthesizerTest, PressesVolumeKeysWithoutModifiers) {
    for (const std::int64_t data1 : {0x00A00, 0x00B00, 0x10A00, 0x10B00, 0x20A00, 0x00C00})
        if (const auto event = synthesizer->makeSystemDefinedEvent({0, 8, data1, -1}))
            event->post();
    EXPECT_EQ(calls, (Calls{"-42 +115 ", "-115 +42 ", "-42 +114 ", "-114 +42 "}));
    EXPECT_EQ(synthesizer->makeSystemDefinedEvent({0, 7, 0xA00, -1}), nullptr) << "of another subtype";
}

TEST_F(PostingEventSynthesizerTest, ReleasesOnlyWhatItPressed) {
    works = false;
    key(8, kDown, 0x100000);
    works = true;
    key(8, kUp, 0x100000);
    EXPECT_EQ(calls, Calls{"-46 "});
    EXPECT_EQ(log, Calls{}) << "the poster says itself that it does not work";
}

}  // namespace
}  // namespace kinesta
