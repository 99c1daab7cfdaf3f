#include "platform/linux/keyboard/PostingEventSynthesizer.h"

#include <gtest/gtest.h>
#include <linux/input-event-codes.h>

#include <string>
#include <vector>

#include "support/InMemoryUserDefaults.h"

namespace kinesta {
namespace {

using Calls = std::vector<std::string>;

/// A way of posting that writes down what it is given.
class RecordingPoster final : public InputPoster {
  public:
    bool isAvailable() override { return works; }
    std::optional<ModifierSituation> modifiersFor(std::uint16_t code) override {
        return works && code != missingKey ? std::optional(situation) : std::nullopt;
    }
    std::optional<DesktopLocation> pointerLocation() override {
        return works ? std::optional(DesktopLocation{3, 4}) : std::nullopt;
    }
    bool post(std::span<const InputTransition> transitions) override {
        if (!works)
            return false;
        std::string call;
        for (const auto& step : transitions)
            call.append(step.transition == KeyTransition::down ? "+" : "-").append(std::to_string(step.code) + " ");
        calls.push_back(call.substr(0, call.size() - 1));
        return true;
    }

    bool works = true;
    std::uint16_t missingKey = 0;
    ModifierSituation situation{{{KEY_LEFTSHIFT, kShiftModifier}, {KEY_LEFTCTRL, kControlModifier}}, {}};
    Calls calls;
};

struct PostingEventSynthesizerTest : ::testing::Test {
    void key(std::uint16_t code, KeyTransition transition, std::optional<std::uint64_t> flags) {
        const auto event = synthesizer.makeKeyEvent(nullptr, code, transition);
        if (flags)
            event->setFlags(*flags);
        event->post();
    }
    void stroke(std::uint16_t code, std::optional<std::uint64_t> flags) {
        key(code, KeyTransition::down, flags);
        key(code, KeyTransition::up, flags);
    }

    RecordingPoster poster;
    InMemoryUserDefaults defaults;
    Calls log;
    PostingEventSynthesizer synthesizer{poster, defaults, [this](const std::string& line) { log.push_back(line); }};
};

TEST_F(PostingEventSynthesizerTest, KeepsTheOrderOfAStrokeBetweenFnKeys) {
    key(63, KeyTransition::down, {});
    stroke(123, 0xB00000);
    key(63, KeyTransition::up, {});
    EXPECT_EQ(poster.calls, (Calls{"+29 +102", "-102 -29"}));
    EXPECT_EQ(log, Calls{});
}

TEST_F(PostingEventSynthesizerTest, LeavesHeldModifiersToAKeyWhoseFlagsWereNeverSet) {
    poster.situation.held = {{KEY_LEFTSHIFT, kShiftModifier}};
    stroke(0, {});
    stroke(0, 0);
    EXPECT_EQ(poster.calls, (Calls{"+30", "-30", "-42 +30", "-30 +42"}));
}

TEST_F(PostingEventSynthesizerTest, PutsModifiersBackEvenIfAKeyNeverComesUp) {
    poster.situation.held = {{KEY_LEFTSHIFT, kShiftModifier}};
    key(8, KeyTransition::down, 0x100000);
    key(9, KeyTransition::down, 0x100000);
    key(8, KeyTransition::up, 0x100000);  // has been let go already
    key(9, KeyTransition::up, 0x100000);
    EXPECT_EQ(poster.calls, (Calls{"-42 +29 +46", "-46 -29 +42", "-42 +29 +47", "-46", "-47 -29 +42"}));
    poster.calls.clear();
    {
        PostingEventSynthesizer another(poster, defaults, [](const auto&) {});
        const auto event = another.makeKeyEvent(nullptr, 8, KeyTransition::down);
        event->setFlags(0x100000);
        event->post();
    }
    EXPECT_EQ(poster.calls, (Calls{"-42 +29 +46", "-46 -29 +42"}));
}

TEST_F(PostingEventSynthesizerTest, SkipsKeysThatAreNotThereAndSaysSoOnce) {
    poster.missingKey = KEY_102ND;
    for (const std::uint16_t code : std::initializer_list<std::uint16_t>{10, 52, 14, 123})
        stroke(code, code == 14 ? 0x800000 : code == 123 ? 0xA60000 : 0);
    EXPECT_EQ(poster.calls, Calls{});
    EXPECT_EQ(log, (Calls{"The key with code 10 is not on this keyboard. Choose another key.",
                          "The key with code 52 is not on keyboards here. Choose another key.",
                          "The key with code 14 has no meaning together with fn on this desktop. Choose another "
                          "shortcut.",
                          "The shortcut tiles windows, and that was not possible. See: kinesta doctor"}));
}

TEST_F(PostingEventSynthesizerTest, PressesVolumeKeysWithoutModifiers) {
    poster.situation.held = {{KEY_LEFTSHIFT, kShiftModifier}};
    for (const std::int64_t data1 : {0x00A00, 0x00B00, 0x10A00, 0x10B00, 0x20A00, 0x00C00, 0x00000})
        if (const auto event = synthesizer.makeSystemDefinedEvent({0, 8, data1, -1}))
            event->post();
    EXPECT_EQ(poster.calls, (Calls{"-42 +115", "-115 +42", "-42 +114", "-114 +42"}));
    EXPECT_EQ(synthesizer.makeSystemDefinedEvent({0, 7, 0xA00, -1}), nullptr) << "of another subtype";
}

TEST_F(PostingEventSynthesizerTest, RefusesPolitelyWhileNothingCanBePosted) {
    poster.works = false;
    EXPECT_EQ(synthesizer.probePointerLocation(nullptr), std::nullopt);
    key(8, KeyTransition::down, 0x100000);
    poster.works = true;
    key(8, KeyTransition::up, 0x100000);
    EXPECT_EQ(poster.calls, (Calls{"-46"})) << "no modifier was pressed, so none is let go";
}

}  // namespace
}  // namespace kinesta
