#include <gtest/gtest.h>

#include "RecordingText.h"

namespace kinesta {
namespace {

const std::string kSlots =
    "N: Pad  7 \nI: 0011 0002 0011 0001\nP: 0c 00\nB: 00 0b\nA: 35 0 1000 0 0 16\nA: 36 0 500 0\nA: 2f 0 1 0 0\n";
const std::string kTouch =
    "E: 0.5 0003 0039 0007\t# EV_ABS\nE: 0.5 0003 0035 0250\nE: 0.5 0003 0036 0125 # 5\n\n#\nE: 0.5 0000 0000 0000\n";

std::string readWithDevice(const std::string& text, const std::string& description) {
    std::istringstream stream(text);
    std::istringstream device(description);
    return read(stream, &device).text();
}

TEST(EvemuRecording, ReadsEveryAgeOfTheFormat) {
    const std::string other = "A: 35 0 1\nA: 36 0 1\n", touch = "Pad  7: 0.5 7@0.25,0.75";
    const std::tuple<std::string, std::string, std::string> rows[] = {
        {"# EVEMU 1.3\n" + kSlots + kTouch, other, touch},
        {kSlots + "L: 00 0\nS: 00 0\n" + kTouch, other, touch},
        {"\r\n" + kTouch, "# EVEMU 1.0\r\n" + kSlots, touch},
        {"A: 00 0 4\nA: 01 0 4\nE: 1e0 1 14a 1\nE: 1 3 0 1\nE: 1 3 1 -1\nE: 1 0 0 0", other, ": 1 1@0.25,1"},
        {"A: 35 0 4\nA: 36 0 4\nA: 2f 0 2147483647\nE: 1 3 2f 255\nE: 1 3 39 5\nE: 1 0 0 0\n", "", ": 1 5@0.5,0.5"}};
    for (const auto& [text, device, expected] : rows)
        EXPECT_EQ(readWithDevice(text, device), expected) << text;
}

TEST(EvemuRecording, RefusesMalformedLines) {
    const std::string hint =
        "the recording does not contain the axis ranges of its device: give the file that describes the device with "
        "--device FILE.desc";
    expectErrors("", "", "", "1: " + hint + " => " + "E: 0.5 0003 0039 0007");
    expectErrors("# EVEMU 1.2\nN: old\n\n", "\n", "4: ", hint + " => E: 0 0 0 0");
    expectErrors("# EVEMU 1.2\nA: 35 0 9\n", "\n", "3: ", hint + " => A: 00 0 9");
    expectErrors("N: mouse\n", "\n", "2: ", R"(
this is not a line of an evemu recording => Q: 1
this is not an axis of the form "A: code minimum maximum …" => A: 35 0 | A: 35 0 2147483648 | A: 10000 0 1 | A: 35 0x0 9
)");
    expectErrors(kSlots, "\n", "8: ", R"(
this is not an event of the form "E: time type code value" => E: 1 3
the time 1e+300 is not within 9.2e9 seconds => E: 1e+300 0 0 0
)");
    expectErrors(kSlots + kTouch, "\n", "14: ", R"(
this is not an event of the form "E: time type code value" => E: nil 0 0 0 | E: 1 10000 0 0 | E: 1 0 0 2147483648
this is not an event of the form "E: time type code value" => E: 1 0 0 0 0 | A: 35 0 1 | E: nan 0 0 0
the time 9200000001 is not within 9.2e9 seconds => E: 9200000001 0 0 0
the time 0.25 is before 0.5, that of the event before => E: 0.25 0 0 0
)");
    EXPECT_EQ(read(kSlots + kTouch + "E: nan 0 0 0").events.size(), 1U);
    const std::string noRanges = ": the file does not contain the ranges of both axes of a trackpad";
    EXPECT_EQ(readWithDevice(kTouch, ""), ": the device description:0" + noRanges);
    EXPECT_EQ(readWithDevice(kTouch, "N: mouse\nB: 02\n"), ": the device description:2" + noRanges);
    EXPECT_EQ(readWithDevice(kTouch, "N: pad\nA: x\n"),
              ": the device description:2: this is not an axis of the form \"A: code minimum maximum …\"");
}

std::string yaml(const std::string& devices) { return "# libinput record\nversion: 1\ndevices:\n" + devices; }

std::string device(const std::string& description, const std::string& events) {
    return "- evdev:\n    name: D\n    " + description + "\n  events:" + events + "\n";
}
const std::string kRanges = "absinfo: {0: [0, 10], 1: [0, 10, 0, 0, 1]}";
const std::string kTap = "\n  - evdev:\n    - [1, 500000, 1, 330, 1]\n    - [1, 500000, 0, 0, 0]";

TEST(LibinputRecording, ReadsTheFirstTrackpad) {
    const std::string pad = device(kRanges, kTap);
    const auto other = [&](const std::string& facts) { return device(facts + "\n    " + kRanges, kTap + kTap) + pad; };
    const std::string slots = "absinfo: {47: [0, 1, 0], 53: [0, 10], 54: [-10, 10]}";
    const std::string slotTap =
        "\n  - evdev: [[1, 1, 3, 57, 9], [1, 1, 3, 53, 5], [1, 1, 3, 54, -10], [1, 1, 0, 0, 0]]";
    for (const std::string& devices :
         {pad, device("codes: {1: [325]}\n    " + kRanges, kTap), device("codes: {1: [272], 2: [0, 1]}", kTap) + pad,
          other("properties: [1]"), other("codes: {1: [320, 330]}"), other("codes: {1: [288]}"), pad + pad + "- [",
          device(kRanges, "\n  - libinput:\n    - {time: 1.0, x: [[]]}\n  - hid: {a: b}" + kTap)})
        EXPECT_EQ(read(yaml(devices)).text(), "D: 1.5 1@0.5,0.5") << devices;
    EXPECT_EQ(read(yaml(device(kRanges, "") + pad)).text(), "D: ") << "the first one has no events";
    EXPECT_EQ(read(yaml(device(slots, slotTap))).text(), "D: 1.000001 9@0.5,1");
    std::string longList = kTap;
    for (int i = 0; i < 20'000; ++i)
        longList += "\n    - [1, 500000, 3, 0, 5]\n    - [1, 500000, 0, 0, 0]";
    const Reading reading = read(yaml(device(kRanges, longList)));
    EXPECT_EQ(reading.error, "") << "the limit is for a value, not for the recording";
    EXPECT_EQ(reading.events.size(), 20'001U);
}

TEST(LibinputRecording, RefusesMalformedParts) {
    expectErrors("---\n", "", "2: ", R"(
a recording of libinput record begins with keys and values => [a]
only version 1 of the format of libinput record is known => version: 2
the recording holds no events of a trackpad => ndevices: 1
the recording holds no events of a trackpad => devices: [{evdev: {absinfo: {0: [0, 1], 1: [0, 1]}, codes: {1: [272]}}}]
"devices" is not a list => devices: {a: b}
a device is not described by keys and values => devices: [a] | devices: [{[1]: 2}]
"evdev" is not described by keys and values => devices: [{evdev: 1}]
a value refers to another one => devices: [{a: &a b, events: *a}]
"codes" is not described by keys and values => devices: [{evdev: {codes: [1]}}]
a list holds something other than whole numbers => devices: [{evdev: {codes: {1: [x]}}}]
an axis is not of the form "code: [minimum, maximum, …]" => devices: [{evdev: {absinfo: {0: [0]}}}]
an axis is not of the form "code: [minimum, maximum, …]" => devices: [{evdev: {absinfo: {0: [0, 2147483648]}}}]
an axis is not of the form "code: [minimum, maximum, …]" => devices: [{evdev: {absinfo: {x: [0, 1]}}}]
a list of numbers is missing => devices: [{evdev: {absinfo: {0: 5}}}]
"events" is not a list => devices: [{evdev: {absinfo: {0: [0, 1], 1: [0, 1]}}, events: x}]
an event is not described by keys and values => devices: [{evdev: {absinfo: {0: [0, 1], 1: [0, 1]}}, events: [x]}]
"evdev" is not a list => devices: [{evdev: {absinfo: {0: [0, 1], 1: [0, 1]}}, events: [{evdev: x}]}]
)");
    std::string open = yaml(device(kRanges, kTap + "\n    - "));
    open.pop_back();
    expectErrors(open, "\n", "11: ", R"(
this is not an event of the form [seconds, microseconds, type, code, value] => [2, 0, 0, 0] | [2, 0, 0, 0, 0, 0]
this is not an event of the form [seconds, microseconds, type, code, value] => [-1, 0, 0, 0, 0] | [2, 1000000, 0, 0, 0]
this is not an event of the form [seconds, microseconds, type, code, value] => [2, 0, 65536, 0, 0] | [2, 0, 0, -1, 0]
this is not an event of the form [seconds, microseconds, type, code, value] => [2, 0, 0, 0, -2147483649]
a list holds something other than whole numbers => [2, 0, 0, 0, a] | [2, 0, 0, 0, 9223372036854775808]
the time 1.499999 is before 1.5, that of the event before => [1, 499999, 0, 0, 0]
the time 9200000001 is not within 9.2e9 seconds => [9200000001, 0, 0, 0, 0]
the time 9223372036853 is not within 9.2e9 seconds => [9223372036854775807, 0, 0, 0, 0]
)");
    EXPECT_EQ(read(yaml(device(kRanges, kTap + "\n    - [2, 0"))).error,
              "x:12: this is not valid YAML: did not find expected ',' or ']'");
    for (const std::size_t lines : {6U, 20'000U}) {
        std::string text = yaml("- a: 1\n");
        for (std::size_t line = 5; line < lines; ++line)
            text += "  b: 1\n";
        EXPECT_EQ(read(text + "  c: \xFF\n" + text).error,
                  "x:" + std::to_string(lines) + ": this is not valid YAML: invalid leading UTF-8 octet");
    }
}

}  // namespace
}  // namespace kinesta
