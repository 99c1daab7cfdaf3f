#include <gtest/gtest.h>

#include "cli/CommandRunner.h"
#include "input/recording/RecordingWriter.h"
#include "support/PadScript.h"

namespace kinesta::testing {
namespace {

std::string recorded(const PadScript& script, const RecordedSettings& settings = {}) {
    std::ostringstream text;
    RecordingWriter writer(text);
    EXPECT_TRUE(writer.writeHeader({.device = "", .settings = settings}));
    for (const RecordingEvent& event : script.events())
        EXPECT_TRUE(writer.write(event));
    return text.str();
}

std::string line(const std::string& t, const std::string& gesture, const std::string& fields) {
    return "{\"t\":" + t + R"(,"gesture":")" + gesture + "\"," + fields + ",\"rule\":null,\"action\":null}\n";
}
std::string line(const std::string& t, const std::string& gesture, int fingers) {
    return line(t, gesture, "\"fingers\":" + std::to_string(fingers));
}

struct Replay : ::testing::Test {
    CommandRunner kinesta;
    const std::string noRules = kinesta.folder.write("none.json", "[]");

    Ran replayed(const std::string& content) const {
        return kinesta.run({"replay", "-", "--rules", noRules, "--json"}, content);
    }
};

TEST_F(Replay, PlaysFramesClicksAndSettings) {
    // A lift exactly at the end of the wait counts; a nanosecond later it does not.
    PadScript gestures = PadScript().tap(1).tap(1.25).tap(2).tap(2.250000001);
    gestures.at(4).land(2).at(4.1).press().stage(2).at(4.15).stage(1).at(4.2).release().at(5).upAll();
    gestures.at(6).land(2, {0.1, 0.5}).glide({1, 2}, {0, -0.06}, 0.008).at(7).upAll();
    gestures.at(8).down(1, {0.1, 0.9}).at(8.2).down(2, {0.5, 0.3}).glide({2}, {0, 0.3}, 0.2).up(2);
    // By their arrival, the fingers of the first click lifted too long ago, those of the second recently.
    PadScript late = PadScript().at(0.9).land(2).at(0.95).upAll().click(1.1, 1.2);
    late.at(1.9).land(2).receivedAt(2).at(1.95).upAll().click(2.1, 2.2);
    const auto palmTap = [](PadScript pad, Seconds down) {
        return pad.at(down).land(2).down(9, {0.02, 0.02}).after(0.05).upAll();
    };
    // Switching recognition off or the palm filter on drops a waiting tap.
    PadScript settings = PadScript().tap(1.1).at(1.2).setGestures(false).tap(2.1).at(3).setGestures(true);
    settings = palmTap(palmTap(palmTap(settings, 4), 5).at(5.2).setPalmRejection(true), 6);
    const std::string beforeZero = "{\"t\":-5.1,\"touches\":[[1,0.4,0.5],[2,0.5,0.5]]}\n{\"t\":-5,\"touches\":[]}\n";
    for (const auto& [content, lines] : std::vector<std::pair<std::string, std::string>>{
             {recorded(gestures), line("1.5", "doubleTap", 2) + line("2.25", "singleTap", 2) +
                                      line("2.500000001", "singleTap", 2) + line("4.45", "singleForceClick", 2) +
                                      line("6.008", "edgeSlide", R"("fingers":2,"side":"left","steps":-2)") +
                                      line("8.4", "anchorDraw", R"("corner":"topLeft","pattern":"lineUp")")},
             {recorded(late),
              line("1.2", "singleTap", 2) + line("2.2", "singleTap", 2) + line("2.45", "singleSoftClick", 2)},
             {recorded(settings), line("4.3", "singleTap", 3) + line("6.3", "singleTap", 2)},
             {recorded(PadScript().tap(1), {.tapWaitingMilliseconds = 400}), line("1.4", "singleTap", 2)},
             {recorded(PadScript().tap(1), {.gesturesEnabled = false}), ""},
             {recorded({}) + beforeZero, line("-4.75", "singleTap", 2)}}) {
        const Ran ran = replayed(content);
        EXPECT_EQ(ran.out, lines);
        EXPECT_EQ(std::pair(ran.status, ran.err), std::pair(0, std::string()));
    }
}

TEST_F(Replay, SelectsTheFirstRuleThatMayRun) {
    const std::string threeTaps = R"("name":"","fingerCount":3,"gesture":"singleTap")";
    const std::string shell = R"("kind":"shellCommand","value":"ls","shellCommandAcknowledged":true)";
    const std::string list = rule("01", threeTaps, shell) + "," + rule("0a", threeTaps, R"("kind":"middleClick")");
    const std::string rules = kinesta.folder.write("rules.json", "[" + list + "]");
    const std::string tap = kinesta.folder.write("tap.jsonl", recorded(PadScript().tap(1.1, 3)));

    const auto chosen = [&](std::vector<std::string> options) {
        options.insert(options.begin(), {"replay", tap, "--json"});
        const std::string out = kinesta.run(options).out;
        return out.substr(out.find(R"("rule":)"));
    };
    EXPECT_EQ(chosen({"--rules", rules}), R"("rule":"00000000-0000-4000-8000-00000000000A","action":"middleClick"})"
                                          "\n");
    EXPECT_EQ(chosen({"--rules", rules, "--allow-shell-commands"}),
              R"("rule":"00000000-0000-4000-8000-000000000001","action":"shellCommand"})"
              "\n");
    // Without a rule file the stored rules count: at first the default rule of a new installation.
    EXPECT_NE(chosen({}).find(R"("action":"middleClick")"), std::string::npos);
    EXPECT_FALSE(std::filesystem::exists(kinesta.folder.path() / "settings" / "defaults.json"));
}

TEST_F(Replay, StopsAtABadLine) {
    const std::string taps = recorded(PadScript().tap(1.1, 3).tap(2.1, 3));
    const Ran ran = replayed(taps + "{\"t\":3,\"touches\":[[1,0.5\n");
    EXPECT_EQ(ran.status, 1);
    EXPECT_EQ(ran.out, line("1.35", "singleTap", 3));
    EXPECT_TRUE(ran.err.starts_with("standard input:6: ")) << ran.err;

    const std::string file = kinesta.folder.write("cut.jsonl", recorded({}) + "{\"t\":1,");
    EXPECT_EQ(kinesta.run({"replay", file}).err.rfind(file + ":2: ", 0), 0U);

    const std::string rules = kinesta.folder.write("rules.json", "[\n{\"id\":1}]");
    const Ran refused = kinesta.run({"replay", "-", "--rules", rules, "--json"}, taps);
    EXPECT_EQ(refused.status, 1);
    EXPECT_EQ(refused.out, "") << "replayed with a bad rule file";
    EXPECT_EQ(refused.err.rfind(rules + ":2: ", 0), 0U) << refused.err;
}

TEST_F(Replay, RecognizesTheSameInRealTime) {
    const std::string tap = kinesta.folder.write("tap.jsonl", recorded(PadScript().tap(1.05, 3).tap(1.15, 3)));
    const Ran atOnce = kinesta.run({"replay", tap, "--json"});
    const auto began = std::chrono::steady_clock::now();
    EXPECT_EQ(kinesta.run({"replay", tap, "--json", "--realtime"}).out, atOnce.out);
    // 0.15 s of input and 0.25 s of waiting for a third tap.
    EXPECT_GE(std::chrono::steady_clock::now() - began, std::chrono::milliseconds(400));
}

TEST_F(Replay, RecognizesRealRecordingsAlsoAfterConversion) {
    for (const auto& [name, gestures] : std::initializer_list<std::pair<const char*, const char*>>{
             {"CyPS2-Cypress-Trackpad.two_finger_tap.events", "1382570926.697 s  2-finger single tap  →  no rule\n"},
             {"CyPS2-Cypress-Trackpad.three_finger_tap.events", "1382570952.890 s  3-finger single tap  →  no rule\n"},
             {"bcm5974.three-finger-click.events",
              "1332478502.597 s  2-finger single soft click (stage 1)  →  no rule\n"
              "1332478503.568 s  3-finger single soft click (stage 1)  →  no rule\n"},
             {"corner-circle.jsonl", "     1.650 s  top left clockwise circle  →  no rule\n"}}) {
        const std::string converted = kinesta.folder / "converted.jsonl";
        ASSERT_EQ(kinesta.run({"convert", recording(name), "-o", converted}).status, 0) << name;
        for (const std::string& file : {recording(name), converted}) {
            EXPECT_EQ(kinesta.run({"replay", file, "--rules", noRules}).out, gestures) << file;
            EXPECT_EQ(kinesta.run({"convert", file}).out, readText(converted)) << file;
        }
    }
}

TEST_F(Replay, WritesAConversionWholeOrNotAtAll) {
    const std::string cut = kinesta.folder.write("cut.jsonl", recorded(PadScript().tap(1)) + "{\"t\":0");
    const std::string target = kinesta.folder.write("kept.jsonl", "precious");
    const Ran ran = kinesta.run({"convert", cut, "-o", target});
    EXPECT_EQ(ran.status, 1);
    EXPECT_EQ(readText(target), "precious");
    std::filesystem::remove(noRules);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(kinesta.folder.path()), {}), 2) << "a file is left";
}

}  // namespace
}  // namespace kinesta::testing
