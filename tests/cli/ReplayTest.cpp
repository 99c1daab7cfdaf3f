#include <gtest/gtest.h>

#include "cli/CommandRunner.h"

namespace kinesta::testing {
namespace {

constexpr std::string_view kHeader = R"({"kinesta":"recording","version":1})"
                                     "\n";

/// A recording with a tap of `fingers` fingers for each pair of landing and lift.
std::string taps(int fingers, const std::vector<std::pair<std::string, std::string>>& times) {
    std::string touches;
    for (int i = 0; i < fingers; ++i)
        touches.append(i ? ",[" : "[").append(std::to_string(i + 1) + ",0." + std::to_string(3 + i) + ",0.5]");
    std::string lines;
    for (const auto& [down, up] : times)
        lines += "{\"t\":" + down + ",\"touches\":[" + touches + "]}\n{\"t\":" + up + ",\"touches\":[]}\n";
    return lines;
}

std::string recorded(const std::string& lines) { return std::string(kHeader) + lines; }

class Replay : public ::testing::Test {
  protected:
    CommandRunner kinesta;

    /// Gestures of a recording given as text, one JSON line each, with an empty rule list.
    Ran replayed(const std::string& content) {
        const std::string rules = kinesta.folder.write("none.json", "[]");
        return kinesta.run({"replay", "-", "--rules", rules, "--json"}, content);
    }
    /// The same with a header added, for a recording without errors.
    std::string gesturesOf(const std::string& lines) {
        const Ran ran = replayed(recorded(lines));
        EXPECT_EQ(ran.err, "");
        EXPECT_EQ(ran.status, 0);
        return ran.out;
    }
    static std::string line(const std::string& t, const std::string& fields) {
        return "{\"t\":" + t + "," + fields + ",\"rule\":null,\"action\":null}\n";
    }
    static std::string line(const std::string& t, const std::string& gesture, int fingers) {
        return line(t, R"("gesture":")" + gesture + R"(","fingers":)" + std::to_string(fingers));
    }
};

TEST_F(Replay, DeliversATapWhenItsWaitIsOver) {
    EXPECT_EQ(gesturesOf(taps(3, {{"1.0", "1.1"}})), line("1.35", "singleTap", 3));
    // A lift exactly at the end of the wait still counts; one nanosecond later it does not.
    EXPECT_EQ(gesturesOf(taps(2, {{"0.9", "1"}, {"1.2", "1.25"}})), line("1.5", "doubleTap", 2));
    EXPECT_EQ(gesturesOf(taps(2, {{"0.9", "1"}, {"1.2", "1.250000001"}})),
              line("1.25", "singleTap", 2) + line("1.500000001", "singleTap", 2));
    EXPECT_EQ(gesturesOf(taps(2, {{"-5.1", "-5"}})), line("-4.75", "singleTap", 2))
        << "time runs before zero as after it";
}

TEST_F(Replay, AppliesTheSettingsOfHeaderAndStream) {
    const std::string tap = taps(2, {{"1.0", "1.1"}});
    const auto withHeader = [&](const std::string& settings) {
        return replayed(R"({"kinesta":"recording","version":1,"settings":{)" + settings + "}}\n" + tap).out;
    };
    EXPECT_EQ(withHeader(R"("tapWaitingInterval.v1":400)"), line("1.5", "singleTap", 2));
    EXPECT_EQ(withHeader(R"("gesturesEnabled":false)"), "");

    // Switching recognition off drops a waiting tap; after switching it on again, the next tap counts.
    EXPECT_EQ(gesturesOf(tap + R"({"t":1.2,"settings":{"gesturesEnabled":false}})" + "\n" + taps(2, {{"2.0", "2.1"}}) +
                         R"({"t":3,"settings":{"gesturesEnabled":true}})" + "\n" + taps(2, {{"4.0", "4.1"}})),
              line("4.35", "singleTap", 2));

    // A palm in the corner is a third finger until the filter is on; switching it on drops waiting taps.
    const auto palmTap = [](const std::string& down) {
        return "{\"t\":" + down + ",\"touches\":[[1,0.4,0.5],[2,0.5,0.5],[3,0.02,0.02]]}\n{\"t\":" + down +
               "5,\"touches\":[]}\n";
    };
    EXPECT_EQ(gesturesOf(palmTap("1.0") + palmTap("2.0") +
                         R"({"t":2.2,"settings":{"cornerPalmRejectionEnabled.v1":true}})" + "\n" + palmTap("3.0")),
              line("1.3", "singleTap", 3) + line("3.3", "singleTap", 2));
}

TEST_F(Replay, JudgesClicksByPressureAndArrivalOfFrames) {
    const auto click = [](const std::string& frame, const std::string& pressure) {
        return frame + R"({"t":1.1,"pointer":"down"})" + "\n" + pressure + R"({"t":1.2,"pointer":"up"})" + "\n";
    };
    EXPECT_EQ(gesturesOf(click("{\"t\":1,\"touches\":[[1,0.4,0.5],[2,0.5,0.5]]}\n",
                               "{\"t\":1.1,\"pressure\":2}\n{\"t\":1.15,\"pressure\":1}\n")),
              line("1.45", "singleForceClick", 2));

    // Fingers that lifted before the button: 0.1 s by arrival is recent enough, 0.2 s is not, independent of the
    // frame's t.
    const auto lifted = [](const std::string& received) {
        return R"({"t":0.9,"touches":[[1,0.4,0.5],[2,0.5,0.5]],"received":)" + received + "}\n" +
               R"({"t":0.95,"touches":[]})" + "\n";
    };
    const std::string tap = line("1.2", "singleTap", 2);
    EXPECT_EQ(gesturesOf(click(lifted("1.0"), "")), tap + line("1.45", "singleSoftClick", 2));
    EXPECT_EQ(gesturesOf(click(lifted("0.9"), "")), tap);
}

TEST_F(Replay, RecognizesSlidesAndDrawings) {
    EXPECT_EQ(gesturesOf("{\"t\":1,\"touches\":[[1,0.1,0.5],[2,0.2,0.5]]}\n"
                         "{\"t\":1.01,\"touches\":[[1,0.1,0.44],[2,0.2,0.44]]}\n"),
              line("1.01", R"("gesture":"edgeSlide","fingers":2,"side":"left","steps":-2)"));
    EXPECT_EQ(gesturesOf("{\"t\":1,\"touches\":[[1,0.1,0.9]]}\n"
                         "{\"t\":1.2,\"touches\":[[1,0.1,0.9],[2,0.5,0.3]]}\n"
                         "{\"t\":1.3,\"touches\":[[1,0.1,0.9],[2,0.5,0.6]]}\n"
                         "{\"t\":1.4,\"touches\":[[1,0.1,0.9]]}\n"),
              line("1.4", R"("gesture":"anchorDraw","corner":"topLeft","pattern":"lineUp")"));
}

TEST_F(Replay, RecognizesTheGesturesOfRealRecordings) {
    const auto gestures = [&](const std::string& name) {
        const std::string none = kinesta.folder.write("none.json", "[]");
        const Ran ran = kinesta.run({"replay", recording(name), "--rules", none});
        EXPECT_EQ(ran.status, 0) << ran.err;
        std::string found;
        std::istringstream lines(ran.out);
        for (std::string text; std::getline(lines, text);)
            found += text.substr(text.find(" s  ") + 4) + ";";
        return found;
    };
    EXPECT_EQ(gestures("CyPS2-Cypress-Trackpad.two_finger_tap.events"), "2-finger single tap  →  no rule;");
    EXPECT_EQ(gestures("CyPS2-Cypress-Trackpad.three_finger_tap.events"), "3-finger single tap  →  no rule;");
    EXPECT_EQ(gestures("bcm5974.three-finger-click.events"),
              "2-finger single soft click (stage 1)  →  no rule;3-finger single soft click (stage 1)  →  no rule;");
}

TEST_F(Replay, SelectsTheFirstRuleThatMayRun) {
    const std::string threeTaps = R"("name":"","fingerCount":3,"gesture":"singleTap")";
    const std::string shell = R"("kind":"shellCommand","value":"ls","shellCommandAcknowledged":true)";
    const std::string list = rule("01", threeTaps, shell) + "," + rule("0a", threeTaps, R"("kind":"middleClick")");
    const std::string rules = kinesta.folder.write("rules.json", "[" + list + "]");
    const std::string tap = kinesta.folder.write("tap.jsonl", recorded(taps(3, {{"1.0", "1.1"}})));

    EXPECT_NE(kinesta.run({"replay", tap, "--rules", rules, "--json"})
                  .out.find(R"("rule":"00000000-0000-4000-8000-00000000000A","action":"middleClick")"),
              std::string::npos);
    EXPECT_NE(kinesta.run({"replay", tap, "--rules", rules, "--allow-shell-commands", "--json"})
                  .out.find(R"("rule":"00000000-0000-4000-8000-000000000001","action":"shellCommand")"),
              std::string::npos);
    // Without a rule file the stored rules count: at first the default rule of a new installation.
    EXPECT_NE(kinesta.run({"replay", tap, "--json"}).out.find(R"("action":"middleClick")"), std::string::npos);
    EXPECT_FALSE(std::filesystem::exists(kinesta.folder.path() / "settings" / "defaults.json"));
}

TEST_F(Replay, StopsAtABadLine) {
    const std::string tap = taps(3, {{"1.0", "1.1"}, {"2.0", "2.1"}});
    const Ran ran = replayed(recorded(tap + "{\"t\":3,\"touches\":[[1,0.5\n"));
    EXPECT_EQ(ran.status, 1);
    EXPECT_EQ(ran.out, line("1.35", "singleTap", 3));
    EXPECT_EQ(ran.err.substr(0, ran.err.find(' ')), "standard") << ran.err;
    EXPECT_NE(ran.err.find("standard input:6: "), std::string::npos) << ran.err;

    const std::string file = kinesta.folder.write("cut.jsonl", recorded("{\"t\":1,"));
    EXPECT_EQ(kinesta.run({"replay", file}).err.rfind(file + ":2: ", 0), 0U);

    const std::string rules = kinesta.folder.write("rules.json", "[\n{\"id\":1}]");
    const Ran refused = kinesta.run({"replay", "-", "--rules", rules, "--json"}, recorded(tap));
    EXPECT_EQ(refused.status, 1);
    EXPECT_EQ(refused.out, "") << "replayed with a bad rule file";
    EXPECT_EQ(refused.err.rfind(rules + ":2: ", 0), 0U) << refused.err;
}

TEST_F(Replay, RecognizesTheSameInRealTime) {
    const std::string tap = kinesta.folder.write("tap.jsonl", recorded(taps(3, {{"1.0", "1.05"}, {"1.1", "1.15"}})));
    const Ran atOnce = kinesta.run({"replay", tap, "--json"});
    const auto began = std::chrono::steady_clock::now();
    EXPECT_EQ(kinesta.run({"replay", tap, "--json", "--realtime"}).out, atOnce.out);
    // 0.15 s of input and 0.25 s of waiting for a third tap.
    EXPECT_GE(std::chrono::steady_clock::now() - began, std::chrono::milliseconds(400));
}

TEST_F(Replay, RecognizesTheSameAfterConversion) {
    for (const char* name : {"bcm5974.three-finger-click.events", "CyPS2-Cypress-Trackpad.two_finger_tap.events",
                             "CyPS2-Cypress-Trackpad.three_finger_tap.events", "corner-circle.jsonl"}) {
        const std::string target = (kinesta.folder.path() / "converted.jsonl").string();
        const Ran converted = kinesta.run({"convert", recording(name), "-o", target});
        ASSERT_EQ(converted.status, 0) << converted.err;
        EXPECT_EQ(kinesta.run({"convert", recording(name)}).out, readText(target));
        EXPECT_EQ(kinesta.run({"replay", target, "--json"}).out,
                  kinesta.run({"replay", recording(name), "--json"}).out);
        // Converting twice changes nothing more.
        EXPECT_EQ(kinesta.run({"convert", target}).out, readText(target));
    }
}

TEST_F(Replay, WritesAConversionWholeOrNotAtAll) {
    const std::string cut = kinesta.folder.write("cut.jsonl", recorded("{\"t\":1,\"touches\":[]}\n{\"t\":0"));
    const std::string target = kinesta.folder.write("kept.jsonl", "precious");
    const Ran ran = kinesta.run({"convert", cut, "-o", target});
    EXPECT_EQ(ran.status, 1);
    EXPECT_EQ(readText(target), "precious");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(kinesta.folder.path()), {}), 2);
}

}  // namespace
}  // namespace kinesta::testing
