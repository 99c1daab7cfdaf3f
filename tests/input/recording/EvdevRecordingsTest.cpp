#include <gtest/gtest.h>

#include "RecordingText.h"

namespace kinesta {
namespace {

const std::string kSlots =
    "N: Pad  7 \nI: 0011 0002 0011 0001\nP: 0c 00\nB: 00 0b\nA: 35 0 1000 0 0 16\nA: 36 0 500 0\nA: 2f 0 1 0 0\n";
const std::string kTouch =
    "E: 0.5 0003 0039 0007\t# EV_ABS\nE: 0.5 0003 0035 0250\nE: 0.5 0003 0036 0125 # 5\n\n#\nE: 0.5 0000 0000 0000\n";
const std::string kHint =
    "the recording does not tell the axis ranges of its device: give the file that describes the device with --device "
    "FILE.desc";

Reading readWithDevice(const std::string& text, const std::string& description) {
    std::istringstream stream(text);
    std::istringstream device(description);
    return read(stream, &device);
}

TEST(EvemuRecording, ReadsEventsOfAnyAge) {
    for (const std::string& text : {"# EVEMU 1.3\n" + kSlots + kTouch, kSlots + "L: 00 0\nS: 00 0\n" + kTouch}) {
        const Reading reading = read(text);
        EXPECT_EQ(reading.header.device, "Pad  7");
        EXPECT_EQ(reading.texts(), Texts{"0.5 7@0.25,0.75"}) << reading.error;
    }
    // The description of its own wins; that in a file apart is for a recording without.
    EXPECT_EQ(readWithDevice(kSlots + kTouch, "A: 35 0 1\nA: 36 0 1\n").texts(), Texts{"0.5 7@0.25,0.75"});
    const Reading apart = readWithDevice("\r\n" + kTouch, "# EVEMU 1.0\r\n" + kSlots);
    EXPECT_EQ(apart.header.device, "Pad  7");
    EXPECT_EQ(apart.texts(), Texts{"0.5 7@0.25,0.75"}) << apart.error;
    const Reading single = read(
        "A: 00 0 4\nA: 01 0 4\nE: 1e0 1 14a 1\nE: 1 3 0 1\nE: 1 3 1 -1\nE: 1 1 111 1\nE: 1 0 0 0\nE: 2 1 14a 0\nE: 2 0 "
        "0 0");
    EXPECT_EQ(single.texts(), (Texts{"1 1@0.25,1", "1 down", "2 no finger"})) << single.error;
    const Reading vast = read("A: 35 0 4\nA: 36 0 4\nA: 2f 0 2147483647\nE: 1 3 2f 255\nE: 1 3 39 5\nE: 1 0 0 0\n");
    EXPECT_EQ(vast.texts(), Texts{"1 5@0.5,0.5"}) << vast.error;
}

TEST(EvemuRecording, RefusesWhatIsNot) {
    const std::string badEvent = "this is not an event of the form \"E: time type code value\"";
    const std::string badAxis = "this is not an axis of the form \"A: code minimum maximum …\"";
    for (const auto& [error, inputs] :
         Refusals{{"1: " + kHint, {kTouch}},
                  {"4: " + kHint, {"# EVEMU 1.2\nN: old\n\nE: 0 0 0 0\n"}},
                  {"3: " + kHint, {"# EVEMU 1.2\nA: 35 0 9\nA: 00 0 9\n"}},
                  {"2: this is not a line of an evemu recording", {"N: mouse\nQ: 1\n"}},
                  {"1: " + badAxis, {"A: 35 0\n", "A: 35 0 2147483648\n", "A: 10000 0 1\n", "A: 35 0x0 9\n"}},
                  {"8: " + badEvent, {kSlots + "E: 1 3\n"}},
                  {"8: the time inf is not within 9.2e9 seconds", {kSlots + "E: inf 0 0 0\n"}}})
        for (const std::string& input : inputs) {
            const Reading reading = read(input);
            EXPECT_EQ(reading.error, "x:" + error) << input;
            EXPECT_TRUE(reading.events.empty()) << input;
        }
    for (const auto& [error, inputs] :
         Refusals{{badEvent, {"E: nil 0 0 0", "E: 1 10000 0 0", "E: 1 0 0 2147483648", "E: 1 0 0 0 0", "A: 35 0 1"}},
                  {"the time nan is not within 9.2e9 seconds", {"E: nan 0 0 0"}},
                  {"the time 9200000001 is not within 9.2e9 seconds", {"E: 9200000001 0 0 0"}},
                  {"the time 0.25 is before 0.5, that of the event before", {"E: 0.25 0 0 0"}}})
        for (const std::string& input : inputs) {
            const Reading reading = read(kSlots + kTouch + input + "\n");
            EXPECT_EQ(reading.error, "x:14: " + error) << input;
            EXPECT_EQ(reading.events.size(), 1U) << input;
        }
    for (const auto& [description, error] : std::vector<std::pair<std::string, std::string>>{
             {"", "0: the file does not tell the ranges of both axes of a trackpad"},
             {"N: mouse\nB: 02\n", "2: the file does not tell the ranges of both axes of a trackpad"},
             {"N: pad\nA: x\n", "2: " + badAxis}})
        EXPECT_EQ(readWithDevice(kTouch, description).error, "the device description:" + error) << description;
}

std::string device(const std::string& description, const std::string& events) {
    return "- evdev:\n    name: D\n    " + description + "\n  events:" + events + "\n";
}
const std::string kRanges = "absinfo: {0: [0, 10], 1: [0, 10, 0, 0, 1]}";
const std::string kTap = "\n  - evdev:\n    - [1, 500000, 1, 330, 1]\n    - [1, 500000, 0, 0, 0]";

std::string yaml(const std::string& devices) { return "# libinput record\nversion: 1\ndevices:\n" + devices; }

TEST(LibinputRecording, TakesTheFirstTrackpad) {
    const std::string pad = device(kRanges, kTap);
    const auto other = [](const std::string& facts) { return device(facts + "\n    " + kRanges, kTap + kTap); };
    for (const auto& [text, devices] : std::vector<std::pair<std::string, Texts>>{
             {"1.5 1@0.5,0.5",
              {pad, device("codes: {1: [325]}\n    " + kRanges, kTap),
               device("codes: {1: [272], 2: [0, 1]}", kTap + kTap) + pad, other("properties: [1]") + pad,
               other("codes: {1: [320, 330]}") + pad, other("codes: {1: [288]}") + pad, pad + pad + "- [",
               device(kRanges, "\n  - libinput:\n    - {time: 1.0, x: [[]]}\n  - hid: {a: b}" + kTap)}},
             {"", {device(kRanges, "") + pad}},
             {"1.000001 9@0.5,1",
              {device("absinfo: {47: [0, 1, 0], 53: [0, 10], 54: [-10, 10]}",
                      "\n  - evdev: [[1, 1, 3, 57, 9], [1, 1, 3, 53, 5], [1, 1, 3, 54, -10], [1, 1, 0, 0, 0]]")}}})
        for (const std::string& all : devices) {
            const Reading reading = read(yaml(all));
            EXPECT_EQ(reading.texts(), text.empty() ? Texts{} : Texts{text}) << all << reading.error;
            EXPECT_EQ(reading.header.device, "D");
        }
    std::string longList = kTap;
    for (int i = 0; i < 20'000; ++i)
        longList += "\n    - [1, 500000, 3, 0, 5]\n    - [1, 500000, 0, 0, 0]";
    const Reading reading = read(yaml(device(kRanges, longList)));
    EXPECT_EQ(reading.error, "") << "the limit is for a value, not for the recording";
    EXPECT_EQ(reading.events.size(), 20'001U);
}

TEST(LibinputRecording, RefusesWhatIsNot) {
    const std::string none = "the recording holds no events of a trackpad";
    const std::string badEvent = "this is not an event of the form [seconds, microseconds, type, code, value]";
    const std::string badAxis = "an axis is not of the form \"code: [minimum, maximum, …]\"";
    const std::string notNumbers = "a list holds something else than whole numbers";
    const std::string noKeys = " is not described by keys and values";
    const auto event = [](const std::string& numbers) { return yaml(device(kRanges, kTap + "\n    - " + numbers)); };
    for (const auto& [error, inputs] : Refusals{
             {"2: a recording of libinput record begins with keys and values", {"---\n- a\n"}},
             {"1: only version 1 of the format of libinput record is known", {"version: 2\n"}},
             {"2: " + none, {"version: 1\nndevices: 1\n"}},
             {"4: \"devices\" is not a list", {yaml("  a: b\n")}},
             {"4: a device" + noKeys, {yaml("- a\n"), yaml("- {[1]: 2}\n")}},
             {"4: \"evdev\"" + noKeys, {yaml("- {evdev: 1}\n"), yaml("- {evdev: &a b, events: *a}\n")}},
             {"4: a value refers to another one", {yaml("- {a: &a b, events: *a}\n")}},
             {"6: \"codes\"" + noKeys, {yaml(device("codes: [1]", kTap))}},
             {"6: " + notNumbers, {yaml(device("codes: {1: [x]}", kTap))}},
             {"6: " + badAxis,
              {yaml(device("absinfo: {0: [0]}", kTap)), yaml(device("absinfo: {0: [0, 2147483648]}", kTap)),
               yaml(device("absinfo: {x: [0, 1]}", kTap))}},
             {"6: a list of numbers is missing", {yaml(device("absinfo: {0: 5}", kTap))}},
             {"10: " + none, {yaml(device("codes: {1: [272]}", kTap))}},
             {"7: \"events\" is not a list", {yaml(device(kRanges, " x"))}},
             {"8: an event" + noKeys, {yaml(device(kRanges, "\n  - x"))}},
             {"8: \"evdev\" is not a list", {yaml(device(kRanges, "\n  - evdev: x"))}},
             {"11: " + badEvent,
              {event("[2, 0, 0, 0]"), event("[2, 0, 0, 0, 0, 0]"), event("[-1, 0, 0, 0, 0]"),
               event("[2, 1000000, 0, 0, 0]"), event("[2, 0, 65536, 0, 0]"), event("[2, 0, 0, -1, 0]"),
               event("[2, 0, 0, 0, -2147483649]")}},
             {"11: " + notNumbers, {event("[2, 0, 0, 0, a]"), event("[2, 0, 0, 0, 9223372036854775808]")}},
             {"11: the time 1.499999 is before 1.5, that of the event before", {event("[1, 499999, 0, 0, 0]")}},
             {"11: the time 9200000001 is not within 9.2e9 seconds", {event("[9200000001, 0, 0, 0, 0]")}},
             {"11: the time 9223372036853 is not within 9.2e9 seconds", {event("[9223372036854775807, 0, 0, 0, 0]")}},
             {"11: this is not valid YAML: invalid leading UTF-8 octet", {event("[2, 0, 0, 0, \"\xFF\"]")}},
             {"12: this is not valid YAML: did not find expected ',' or ']'", {event("[2, 0")}}})
        for (const std::string& input : inputs)
            EXPECT_EQ(read(input).error, "x:" + error) << input;
    std::string far = yaml("- a: 1\n");
    for (int line = 5; line < 20'000; ++line)
        far += "  b: 1\n";
    EXPECT_EQ(read(far + "  c: \xFF\n").error, "x:20000: this is not valid YAML: invalid leading UTF-8 octet");
}

/// The identifiers of the fingers and the buttons in their order, without repetition.
std::string story(const Reading& reading) {
    std::string story;
    std::string last;
    for (const RecordingEvent& event : reading.events) {
        std::string word;
        if (const auto* frame = std::get_if<RecordedFrame>(&event.content))
            for (const TouchSample& sample : frame->samples)
                word += (word.empty() ? "" : ",") + std::to_string(sample.id);
        else
            word = contentText(event);
        if (word != last)
            story += (word.empty() ? "0" : word) + " ";
        last = word;
    }
    return story;
}

TEST(RealRecordings, TellWhatThePersonDid) {
    const Reading two = read(exampleText("CyPS2-Cypress-Trackpad.two_finger_tap.events"));
    EXPECT_EQ(story(two), "391,392 0 ");
    EXPECT_EQ(contentText(two.events.front()), "391@0.421875,0.6711111111111111 392@0.54125,0.7077777777777778");

    // The pad gave the third finger no slot and never placed the second: both lie where the first is.
    const Reading three = read(exampleText("CyPS2-Cypress-Trackpad.three_finger_tap.events"));
    EXPECT_EQ(story(three), "393,394,-2 0 ");
    EXPECT_EQ(eventText(three.events.front()), "1382570952.534113 393@0.40125,0.72 394@0.40125,0.72 -2@0.40125,0.72");
    EXPECT_EQ(eventText(three.events.back()), "1382570952.639684 no finger");

    // Every finger has one identifier from its touch to its lift: one, two and three of them.
    const Reading clicks = read(exampleText("bcm5974.three-finger-click.events"));
    EXPECT_EQ(story(clicks), "1 down 1 up 1 0 2 3,2 down 3,2 up 3,2 3 0 4 5,6,4 down 5,6,4 up 5,6,4 6,4 4 0 ");

    const Reading made = read(exampleText("tap-and-click.yml"));
    EXPECT_EQ(made.header.device, "Example Touchpad");
    EXPECT_EQ(story(made), "10,11 11 0 12,13,14 down 12,13,14 up 0 ");
    for (const Reading& reading : {two, three, clicks, made})
        EXPECT_EQ(reading.error, "");
}

}  // namespace
}  // namespace kinesta
