#include "input/evdev/EvdevFrameAssembler.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <sstream>

#include "../recording/RecordingText.h"
#include "input/evdev/PressureStageTracker.h"

namespace kinesta {
namespace {

constexpr int kLeast = std::numeric_limits<int>::min();
constexpr int kMost = std::numeric_limits<int>::max();

EvdevTouchpad pad(int slots, EvdevAxisRange range = {0, 1000}) {
    return {.name = "pad", .x = range, .y = range, .slotCount = slots};
}

/// Plays "word value word value / word value /", in which "/" ends a report at the time of its number, and joins the
/// resulting events by "; ".
std::string play(const EvdevTouchpad& touchpad, const std::string& script) {
    // In hexadecimal, as in the kernel's headers.
    static const std::string words =
        " slot 3 2f id 3 39 x 3 35 y 3 36 major 3 30 pressure 3 18 onlyX 3 0 onlyY 3 1 touch 1 14a one 1 145 two 1 14d "
        "three 1 14e four 1 14f five 1 148 left 1 110 right 1 111 mt 0 2 drop 0 3 / 0 0 ";
    std::string result;
    EvdevFrameAssembler assembler(touchpad);
    const auto sink = [&](const PadEvent& event) { result += (result.empty() ? "" : "; ") + eventText(event); };
    EvdevEvent event{.time = 1};
    std::istringstream input(script);
    for (std::string word; input >> word; event.value = 0) {
        std::istringstream(words.substr(words.find(" " + word + " ") + word.size() + 2)) >> std::hex >> event.type >>
            event.code;
        if (event.type != 0)
            input >> event.value;
        event.time += word == "/" ? 1 : 0;
        assembler.process(event, sink);
    }
    return result.empty() ? "nothing" : result;
}

/// Checks rows "what is special: script => events".
void check(int slots, const std::string& table) {
    for (const auto& row : tableRows(table))
        EXPECT_EQ(play(pad(slots), row[0].substr(row[0].find(": ") + 2)), row[1]) << row[0];
}

TEST(EvdevFrameAssembler, FollowsSlots) {
    check(2, R"(
a finger comes, moves and lifts once: id 5 x 100 y 200 / x 300 / id -1 / / => 2 5@0.1,0.8; 3 5@0.3,0.8; 4 no finger
the kernel repeats no equal value: id 5 x 100 y 200 / id -1 / id 6 y 300 / => 2 5@0.1,0.8; 3 no finger; 4 6@0.1,0.7
an identifier moves to another slot: id 5 x 0 y 0 / slot 1 id 5 x 500 y 0 / => 2 5@0,1; 3 5@0.5,1
any negative identifier is a lift: id 5 x 0 y 0 / id -2147483648 / => 2 5@0,1; 3 no finger
no such slots: slot 2147483647 id 1 slot -1 id 2 slot 2 id 3 x 9 y 9 / slot 0 id 4 x 0 y 0 / => 3 4@0,1
places outside the pad: id 5 x 5000 y -5 / x -2147483648 y 2147483647 / => 2 5@1,1; 3 5@0,0
slot order, not that of arrival: slot 1 id 9 x 0 y 0 / slot 0 id 3 x 500 y 0 / => 2 9@0,1; 3 3@0.5,1 9@0,1
)");
}

TEST(EvdevFrameAssembler, CountsFingersBeyondTheSlots) {
    check(2, R"(
at the first: slot 1 id 8 x 100 y 0 / slot 0 id 7 x 500 y 0 four 1 / => 2 8@0.1,1; 3 7@0.5,1 8@0.1,1 -2@0.1,1 -3@0.1,1
three after four: id 7 x 0 y 0 four 1 / four 0 three 1 / => 2 7@0,1 -2@0,1 -3@0,1 -4@0,1; 3 7@0,1 -2@0,1 -3@0,1
left: id 7 x 0 y 0 slot 1 id 8 x 1000 y 0 three 1 / slot 0 id -1 / => 2 7@0,1 8@1,1 -2@0,1; 3 8@1,1 -2@1,1 -3@1,1
five, and the highest number counts: id 1 x 0 y 0 five 1 two 1 / => 2 1@0,1 -2@0,1 -3@0,1 -4@0,1 -5@0,1
fewer than there are: id 1 x 0 y 0 slot 1 id 2 x 500 y 0 one 1 / => 2 1@0,1 2@0.5,1
fingers that only hover: three 1 / three 0 / => nothing
a place that never came is the first's, half of one too: id 7 x 500 y 250 slot 1 id 8 y 1000 / => 2 7@0.5,0.75 8@0.5,0
the first's own place never came: id 7 slot 1 id 8 x 0 y 0 three 1 / => 2 7@0.5,0.5 8@0,1 -2@0.5,0.5
)");
}

TEST(EvdevFrameAssembler, SendsButtonsAfterTheFrame) {
    check(2, R"(
with a finger: left 1 id 5 x 0 y 0 / / left 0 / => 2 5@0,1; 2 down; 3 5@0,1; 4 5@0,1; 4 up
both, in their order: right 1 left 1 right 0 / left 0 / => 2 down; 2 down; 2 up; 3 up
repeats: left 0 / left 1 / left 2 / left 1 / left 0 / left 0 / => 3 down; 6 up
)");
    std::string storm, expected;
    for (int i = 0; i < 101; ++i) {
        storm += i % 2 == 0 ? "left 1 " : "left 0 ";
        if (i < 32)
            expected += i % 2 == 0 ? "2 down; " : "2 up; ";
    }
    EXPECT_EQ(play(pad(2), storm + "/ left 0 / left 1 / left 0 /"), expected + "4 down; 5 up");
}

TEST(EvdevFrameAssembler, IgnoresTheRestOfADroppedReport) {
    check(2, R"(
to the end of the report: id 5 x 100 y 0 / drop id -1 x 9 left 1 three 1 / x 200 / => 2 5@0.1,1; 4 5@0.2,1
events before it count: id 5 x 100 y 0 left 1 drop x 900 / / => 3 5@0.1,1; 3 down
the real state: id 5 x 100 y 0 left 1 / drop / id -1 left 0 one 0 / left 0 / => 2 5@0.1,1; 2 down; 4 no finger; 4 up
)");
    check(0, R"(
half a report: x 100 y 0 mt x 300 y 0 drop y 0 mt / x 100 y 0 mt / drop mt / left 1 / => 3 1@0.1,1; 5 1@0.1,1; 5 down
)");
}

TEST(EvdevFrameAssembler, MatchesNamelessContacts) {
    check(0, R"(
by place: x 100 y 0 mt x 800 y 0 mt / x 790 y 0 mt x 110 y 0 mt / => 2 1@0.1,1 2@0.8,1; 3 2@0.79,1 1@0.11,1
the nearest pair first: x 0 y 0 mt x 500 y 0 mt / x 400 y 0 mt / => 2 1@0,1 2@0.5,1; 3 2@0.4,1
a finger where another has just left: x 800 y 0 mt / x 800 y 0 major 0 mt x 805 y 0 mt / => 2 1@0.8,1; 3 2@0.805,1
an empty contact is a lift: x 100 y 0 mt / mt / => 2 1@0.1,1; 3 no finger
the key says lifted: x 100 y 0 mt touch 1 / touch 0 / => 2 1@0.1,1; 3 no finger
the pressure says lifted: x 100 y 0 mt / pressure 0 / => 2 1@0.1,1; 3 no finger
a button alone is no lift: x 100 y 0 mt touch 1 / left 1 / => 2 1@0.1,1; 3 1@0.1,1; 3 down
contacts count before keys: x 100 y 0 mt touch 1 three 1 / x 100 y 0 mt touch 0 / left 1 / => 2 1@0.1,1; 3 1@0.1,1; 4 1@0.1,1; 4 down
a contact without a place is none: x 100 y 0 mt x 5 mt y 5 major 3 mt / => 2 1@0.1,1
own ids: x 100 y 0 id 7 mt x 200 y 0 id 1 mt / x 190 y 0 id 7 mt x 500 y 0 mt / => 2 7@0.1,1 1@0.2,1; 3 7@0.19,1 1@0.5,1
one id twice: x 100 y 0 id 2 mt x 200 y 0 id 2 mt x 300 y 0 id -4 mt / => 2 2@0.1,1 1@0.2,1 3@0.3,1
beside a lifted one: x 8 y 0 mt / x 8 y 0 major 0 mt / x 8 y 0 major 0 mt x 9 y 0 mt / => 2 1@0.008,1; 3 no finger; 4 2@0.009,1
listed after its lift: x 8 y 0 mt / x 8 y 0 major 0 mt / x 8 y 0 major 0 mt / => 2 1@0.008,1; 3 no finger
a finger where one had lifted before: x 8 y 0 mt / x 8 y 0 major 0 mt / x 9 y 0 mt / => 2 1@0.008,1; 3 no finger; 4 2@0.009,1
)");
    std::string crowd;
    for (int i = 0; i < 200; ++i)
        crowd += "x " + std::to_string(i) + " y 0 mt ";
    EXPECT_EQ(std::ranges::count(play(pad(0), crowd + "/"), '@'), 64);
}

TEST(EvdevFrameAssembler, FollowsPadsWithoutMultitouch) {
    check(0, R"(
one: touch 1 one 1 onlyX 100 onlyY 200 / onlyX 300 / touch 0 one 0 / => 2 1@0.1,0.8; 3 1@0.3,0.8; 4 no finger
next: touch 1 onlyX 0 onlyY 0 / touch 0 / touch 1 / touch 0 touch 1 / => 2 1@0,1; 3 no finger; 4 2@0,1; 5 3@0,1
by keys: touch 1 two 1 onlyX 0 onlyY 0 / two 0 three 1 / touch 0 / => 2 1@0,1 -2@0,1; 3 1@0,1 -2@0,1 -3@0,1; 4 no finger
a finger that hovers, and one without a place: two 1 onlyX 5 / touch 1 onlyX 250 / => 3 1@0.25,0.5 -2@0.25,0.5
)");
}

TEST(EvdevFrameAssembler, NormalizesAnyRange) {
    const auto normalized = [](EvdevAxisRange range, int place) {
        const auto value = std::to_string(place);
        return play(pad(1, range), "id 1 x " + value + " y " + value + " /");
    };
    EXPECT_EQ(normalized({-4620, 5140}, 260), "2 1@0.5,0.5");
    EXPECT_EQ(normalized({5, 5}, 9), "2 1@0.5,0.5");
    EXPECT_EQ(normalized({10, -10}, 0), "2 1@0.5,0.5");
    EXPECT_EQ(normalized({kLeast, kMost}, kLeast), "2 1@0,1");
    EXPECT_EQ(normalized({kLeast, kMost}, kMost), "2 1@1,0");
    EXPECT_EQ(normalized({kMost - 1, kMost}, kLeast), "2 1@0,1");
    EXPECT_EQ(normalized({0, 1}, kMost), "2 1@1,0");
    EXPECT_EQ(play(pad(kMost), "slot 255 id 1 slot 256 id 2 slot 2147483646 id 3 /"), "2 1@0.5,0.5");
    EXPECT_EQ(play(pad(kLeast), "touch 1 /"), "2 1@0.5,0.5");
}

TEST(PressureStageTracker, ChangesAtItsLimitsWhileTheButtonIsHeld) {
    PressureStageTracker tracker({.forcedFrom = 0.6, .softBelow = 0.4});
    const auto stages = [&](bool isButtonDown, std::initializer_list<double> pressures) {
        std::string text;  // 0 for no change
        for (const double pressure : pressures)
            text += std::to_string(tracker.process(isButtonDown, pressure).value_or(0));
        return text;
    };
    EXPECT_EQ(stages(false, {1.0}), "0");
    EXPECT_EQ(stages(true, {0.5999, 0.6, 1.0, 0.4, 0.3999, 0.5, 0.6}), "0200102");
    EXPECT_EQ(stages(false, {0.9}), "0");
    EXPECT_EQ(stages(true, {0.5, 0.9, std::numeric_limits<double>::quiet_NaN(), 0.0}), "0201");
}

}  // namespace
}  // namespace kinesta
