#include "ui/models/LivePadModel.h"

#include <gtest/gtest.h>

#include <sstream>

#include "support/PadScript.h"
#include "support/Text.h"

namespace kinesta::testing {
namespace {

struct LivePad : ::testing::Test {
    void take(const PadScript& script) {
        for (const RecordingEvent& event : script.events())
            model.take(std::get<PadEvent>(event));
    }
    /// Each as "id form", with the points of its trail and its opacity: "7 still", "8 moving 3", "8 lifted 2 at 0.5".
    std::string shown(Uptime now) const {
        constexpr std::array kForms{"moving", "still", "palm", "lifted"};
        std::ostringstream text;
        for (const LiveTouch& touch : model.touches(now)) {
            text << (text.tellp() == 0 ? "" : ", ") << touch.id << ' '
                 << kForms.at(static_cast<std::size_t>(touch.form));
            if (touch.trail.size() > 1)
                text << ' ' << touch.trail.size();
            if (touch.opacity < 1)
                text << " at " << numberText(std::round(touch.opacity * 100) / 100);
        }
        return text.str();
    }
    /// In how many seconds the picture changes by itself; -1 for never.
    double change(Uptime now) const {
        const auto next = model.nextChange(now);
        return next ? std::round((*next - now) * 1000) / 1000 : -1;
    }

    LivePadModel model;
};

TEST_F(LivePad, LetsATrailAgeRestAndFade) {
    take(PadScript().at(1).down(7, {.5, .5}).at(1.05).move(7, {.5, .45}).at(1.1).move(7, {.5, .4}));
    struct Row {
        Uptime now;
        std::string shown;
        double change;
    };
    const std::vector<Row> whileDown{
        {1.1, "7 moving 3", 0}, {1.29, "7 still 3", 0}, {2.22, "7 still 2", 0}, {2.4, "7 still", -1}};
    const std::vector<Row> afterwards{
        {1.3, "7 lifted 3", .9}, {2.1, "7 lifted 3", .1}, {2.3, "7 lifted 3 at 0.5", 0}, {2.41, "", -1}};
    for (const auto& [now, text, change] : whileDown) {
        EXPECT_EQ(shown(now), text) << now;
        EXPECT_EQ(this->change(now), change) << now;
    }
    take(PadScript().at(1.2).down(1, {}).upAll());
    for (const auto& [now, text, change] : afterwards) {
        EXPECT_EQ(shown(now), text) << now;
        EXPECT_EQ(this->change(now), change) << now;
    }
    model.setReducesMotion(true);
    EXPECT_EQ(shown(2.19), "7 lifted 3");
    EXPECT_EQ(shown(2.2), "");
    // A resting finger waits for its ring, and the slight movements of a hand change nothing.
    take(PadScript().at(3).down(8, {.2, .2}));
    EXPECT_EQ(change(3), .18);
    take(PadScript().at(3.1).down(8, {.23, .2}));
    EXPECT_EQ(shown(3.2), "8 still 2");
}

TEST_F(LivePad, TellsTouchesOfTheSameIdApart) {
    // Down, up and down again between two refreshes; the driver gives the id a second time.
    take(PadScript().at(1).down(3, {.2, .2}).at(1.01).upAll().at(1.02).down(3, {.8, .8}));
    const auto touches = model.touches(1.02);
    ASSERT_EQ(shown(1.02), "3 lifted, 3 moving");
    EXPECT_NE(touches[0].number, touches[1].number);
    EXPECT_EQ(touches[1].trail.size(), 1U) << "no line from where the first one was";
    model.clear();
    EXPECT_EQ(shown(1.03), "");
    EXPECT_EQ(change(1.03), -1);
}

TEST_F(LivePad, MarksAPalmUntilItLifts) {
    model.setPalmRejection({.isEnabled = true, .sensitivity = 1});
    take(PadScript().at(1).down(9, {.17, .17}).down(4, {.5, .17}).at(1.1).move(9, {.5, .5}).move(4, {.1, .1}));
    EXPECT_EQ(shown(1.1), "9 palm, 4 moving 2");
    model.setPalmRejection({.isEnabled = true, .sensitivity = 0});
    take(PadScript().at(1.2).down(9, {.5, .6}));
    EXPECT_EQ(shown(1.2), "9 palm, 4 lifted 2");
    take(PadScript().at(1.3).down(9, {.5, .6}).upAll());
    EXPECT_EQ(shown(1.3), "4 lifted 2") << "a palm leaves nothing behind";
}

TEST_F(LivePad, ShowsTheGestureForAWhile) {
    model.tell(DetectedTap{3, GestureKind::singleTap}, "3-finger single tap", 5);
    EXPECT_EQ(model.gesture(5.9)->text, "3-finger single tap");
    EXPECT_EQ(change(5), 1);
    EXPECT_NEAR(model.gesture(6.1)->opacity, .5, 1e-9);
    EXPECT_FALSE(model.gesture(6.21));
    EXPECT_EQ(change(6.21), -1);
}

}  // namespace
}  // namespace kinesta::testing
