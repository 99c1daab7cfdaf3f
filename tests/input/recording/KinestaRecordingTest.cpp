#include <gtest/gtest.h>

#include <tuple>

#include "RecordingText.h"
#include "StreamFakes.h"
#include "support/TableRows.h"

namespace kinesta {
namespace {

const std::string kHeader = R"({"kinesta":"recording","version":1})";

std::string firstError(const std::string& lines) { return read(kHeader + "\n" + lines).error; }

TEST(KinestaRecording, GivesItsEventsInOrder) {
    const Reading reading = read(
        "\xEF\xBB\xBF\r\n \t\n"
        R"( {"later":{"x":[1,{"y":null}]},"version":1.0,"kinesta":"recording","device":"Pad \"7\" \u00e9\ud83d\ude00é",)"
        R"("settings":{"gesturesEnabled":false,"tapWaitingInterval.v1":250.0,"cornerPalmRejectionEnabled.v1":true,)"
        R"("cornerPalmRejectionSensitivity.v1":1,"later":"x"}})"
        "\r\n\n"
        R"({"t":-1.5,"touches":[[-2147483648,0,1e0],[2147483647,0.25,-0.5],[3.0,1E-2,2e+1]]})"
        "\r\n"
        R"({"touches":[],"received":-2,"\u0074":-1.5,"more":"\b\f\n\r\t\/\\"})"
        "\n   \r\n"
        R"({"t":0,"pointer":"down","received":"whatever"})"
        "\n"
        R"({ "t" : 0 , "pressure" : -9223372036854775808 } )"
        "\n"
        R"({"t":9.2e9,"settings":{}})"
        "\n"
        R"({"t":9200000000,"pointer":"up"})");
    EXPECT_EQ(reading.error, "");
    EXPECT_EQ(reading.header.device, "Pad \"7\" \u00e9\U0001F600\u00e9");
    const RecordedSettings expected{.gesturesEnabled = false,
                                    .tapWaitingMilliseconds = 250,
                                    .cornerPalmRejectionEnabled = true,
                                    .cornerPalmRejectionSensitivity = 1};
    EXPECT_EQ(reading.header.settings, expected);
    EXPECT_EQ(reading.texts(), (std::vector<std::string>{
                                   "-1.5 -2147483648@0,1 2147483647@0.25,-0.5 3@0.01,20", "-1.5 no finger received -2",
                                   "0 down", "0 pressure -9223372036854775808", "9.2e+09 settings", "9.2e+09 up"}));
    for (const int milliseconds : {150, 200, 250, 300, 400}) {
        const std::string line = R"({"t":0,"settings":{"tapWaitingInterval.v1":)" + std::to_string(milliseconds) + "}}";
        const Reading own = read(kHeader + "\n" + line);
        ASSERT_EQ(own.events.size(), 1U) << own.error;
        EXPECT_EQ(std::get<RecordedSettings>(own.events[0].content).tapWaitingMilliseconds, milliseconds);
    }
}

TEST(KinestaRecording, RefusesOtherHeaders) {
    const std::string unknown =
        "this is no recording of a known format: Kinesta's own, evemu-record or libinput record";
    for (const auto& [error, inputs] :
         Refusals{{"1: the input holds no recording", {""}},
                  {"3: the input holds no recording", {"\n \n"}},
                  {"1: " + unknown, {"hello"}},
                  {"2: " + unknown, {"# note\n[1]"}},
                  {"2: this is not valid JSON: the line ends too early", {"\n{\"kinesta\""}},
                  {"1: a recording begins with a header that says \"kinesta\":\"recording\"",
                   {"{}", R"({"kinesta":["recording"],"version":1})"}},
                  {"1: the header has no whole number \"version\"",
                   {R"({"kinesta":"recording"})", R"({"kinesta":"recording","version":"1"})",
                    R"({"kinesta":"recording","version":1.5})"}},
                  {"1: version 2 of the format is not known, only version 1",
                   {R"({"device":7,"kinesta":"recording","version":2})"}},
                  {"1: \"device\" is not a text", {R"({"kinesta":"recording","version":1,"device":7})"}},
                  {"1: \"settings\" is not an object", {R"({"kinesta":"recording","version":1,"settings":[]})"}},
                  {"1: this is not valid JSON: something follows the object", {kHeader + kHeader}}})
        for (const std::string& input : inputs)
            EXPECT_EQ(read(input).error, "x:" + error) << input;
}

TEST(KinestaRecording, RefusesWhatIsNoEvent) {
    for (const auto& row : tableRows(R"(
the line is not a JSON object => [1]
none of "touches", "pointer", "pressure" and "settings" is given => {"t":1}
more than one of "touches", "pointer", "pressure" and "settings" is given => {"t":1,"pointer":"up","pressure":1}
more than one of "touches", "pointer", "pressure" and "settings" is given => {"t":1,"pressure":1,"pressure":1}
"t" is missing => {"kinesta":"recording","version":1} | {"pointer":"up"}
"t" is not a number => {"t":"1","pointer":"up"} | {"t":null,"pointer":"up"}
"t" is not within 9.2e9 seconds => {"t":9200000001,"pointer":"up"} | {"t":-9.3e9,"pointer":"up"}
the time 0.25 is before 0.5, that of the event before => {"t":0.25,"pointer":"up"}
this is not valid JSON: a value is missing => {"t":NaN,"pointer":"up"}
this is not valid JSON: a number is out of range => {"t":1e999,"pointer":"up"} | {"t":1,"touches":[[1,2,1e999]]}
"received" is not a number => {"t":1,"touches":[],"received":"1"}
"received" is not within 9.2e9 seconds => {"received":1e10,"t":1,"touches":[]}
)"))
        for (const std::string& input : split(row[1], " | "))
            EXPECT_EQ(firstError("{\"t\":0.5,\"pointer\":\"down\"}\n\n" + input), "x:4: " + row[0]) << input;
    for (const auto& row : tableRows(R"(
"touches" is not an array => "touches":{}
"touches" holds an id twice => "touches":[[1,2,3],[2,2,3],[1,4,5]]
"pointer" is neither "down" nor "up" => "pointer":"left" | "pointer":true
"pressure" is not a whole number => "pressure":1.5 | "pressure":"1" | "pressure":9223372036854775808
"settings" is not an object => "settings":null
"gesturesEnabled" is neither true nor false => "settings":{"gesturesEnabled":1}
"cornerPalmRejectionEnabled.v1" is neither true nor false => "settings":{"cornerPalmRejectionEnabled.v1":"true"}
"cornerPalmRejectionSensitivity.v1" is not a number => "settings":{"cornerPalmRejectionSensitivity.v1":true}
)"))
        for (const std::string& input : split(row[1], " | "))
            EXPECT_EQ(firstError("{\"t\":1," + input + "}"), "x:2: " + row[0]) << input;
    for (const std::string touch : {"1,2,3", "[1,2]", "[1,2,3,4]", "[\"1\",2,3]", "[1.5,2,3]", "[2147483648,2,3]",
                                    "[-2147483649,2,3]", "[1,2,null]"})
        EXPECT_EQ(firstError("{\"t\":1,\"touches\":[" + touch + "]}"),
                  "x:2: a touch is not of the form [id, x, y] with a 32-bit whole id and two numbers");
    for (const std::string interval : {"251", "250.5", "\"250\"", "4294967546"})
        EXPECT_EQ(firstError(R"({"t":1,"settings":{"tapWaitingInterval.v1":)" + interval + "}}"),
                  "x:2: \"tapWaitingInterval.v1\" is none of 150, 200, 250, 300 and 400");
}

TEST(KinestaRecording, RefusesWhatIsNotJson) {
    for (const auto& [error, inputs] : Refusals{
             {"the line ends too early", {R"({"t":1,"pointer":"up")", R"({"t":1,"pointer":"u)", R"({"t":1,)"}},
             {"a text is missing", {R"({"t":1,"pointer":"up",})", std::string("{\"t\":1,\0\"pointer\":\"up\"}", 23)}},
             {"a comma or a closing bracket is missing",
              {R"({"t":1 "pointer":"up"})", R"({"t":1,"touches":[[1,2 3]]})"}},
             {"a colon is missing", {R"({"t" 1})"}},
             {"a value is missing",
              {R"({"t":1,"touches":[[1,2,3],]})", R"({"t":+1,"pointer":"up"})", R"({"t":1,"a":})"}},
             {"a number begins with a zero", {R"({"t":01,"pointer":"up"})"}},
             {"a number is malformed", {R"({"t":1.,"a":1})", R"({"t":-,"a":1})", R"({"t":1e+,"a":1})"}},
             {"a value is malformed", {R"({"t":1,"a":tru})", R"({"t":1,"a":nil})"}},
             {"a text holds an unknown escape", {R"({"t":1,"a":"\x"})", R"({"t":1,"a":"\u12g4"})"}},
             {"a text holds half a surrogate pair",
              {R"({"t":1,"a":"\ud800"})", R"({"t":1,"a":"\ud800\u0041"})", R"({"t":1,"a":"\udc00"})"}},
             {"a text holds a control character", {"{\"t\":1,\"a\":\"\t\"}"}},
             {"a text is not UTF-8",
              {"{\"a\":\"\xC0\x80\"}", "{\"a\":\"\xED\xA0\x80\"}", "{\"a\":\"\xF4\x90\x80\x80\"}",
               "{\"a\":\"\xE2\x82\"}"}},
             {"something follows the object", {R"({"t":1,"pointer":"up"}x)"}},
             {"values are nested too deeply",
              {"{\"t\":1,\"a\":" + std::string(500'000, '[') + "}", "{\"t\":1,\"a\":" + std::string(101, '[')}}})
        for (const std::string& input : inputs)
            EXPECT_EQ(firstError(input), "x:2: this is not valid JSON: " + error) << input.substr(0, 80);
    const std::string deep = std::string(99, '[') + "0" + std::string(99, ']');
    EXPECT_EQ(firstError("{\"t\":1,\"pointer\":\"up\",\"a\":" + deep + "}"), "");
}

TEST(KinestaRecording, HoldsNoMoreThanALine) {
    const std::string event = R"({"t":1,"pointer":"up"})";
    constexpr std::size_t kLimit = std::size_t{1} << 20;
    const std::string longest = event + std::string(kLimit - event.size(), ' ');
    EXPECT_EQ(read(kHeader + "\n" + longest + "\n" + longest).events.size(), 2U);
    EXPECT_EQ(firstError(longest + " \n" + event), "x:2: the line is longer than 1 MiB");
    EXPECT_EQ(firstError(event + "\n" + longest + " "), "x:3: the line is longer than 1 MiB");

    const auto crowd = [](int count, int last) {
        std::string touches;
        for (int id = 1; id <= count; ++id)
            touches += "[" + std::to_string(id == count ? last : id) + ",0.123456789012345678,0.123456789012345678],";
        touches.pop_back();
        return kHeader + "\n{\"t\":1,\"touches\":[" + touches + "]}";
    };
    ASSERT_EQ(read(crowd(1000, 1000)).events.size(), 1U);
    EXPECT_EQ(std::get<RecordedFrame>(read(crowd(1000, 1000)).events[0].content).samples.size(), 1000U);
    for (const int count : {16, 17, 1000})
        EXPECT_EQ(read(crowd(count, 3)).error, "x:2: \"touches\" holds an id twice") << count;

    for (const auto& [beginning, rest, error] : std::vector<std::tuple<std::string, char, std::string>>{
             {"{", 'a', "x:1: the line is longer than 1 MiB"},
             {"", '\n', "x:1048578: the input holds no recording"},
             {"", ' ', "x:1: the input holds no recording"},
             {kHeader + "\n{\"t\":1,\"a\":\"", 'a', "x:2: the line is longer than 1 MiB"},
             {"# EVEMU 1.2\nN: ", 'a', "x:2: the line is longer than 1 MiB"},
             {"version: 1\nname: ", 'a', "x:2: a value is longer than 1 MiB"},
             {"version: 1\nname: \"", '\n', "x:2: a value is longer than 1 MiB"},
             {"version: 1\nname: ", '[', "x:2: values are nested too deeply"}}) {
        ContinuedInput input(beginning, rest);
        std::istream stream(&input);
        EXPECT_EQ(read(stream).error, error) << beginning;
        EXPECT_LT(input.given, 2 * kLimit) << beginning;
    }
}

TEST(KinestaRecording, ReadsAnyKindOfStream) {
    for (const std::string name :
         {"tip-tap-right.jsonl", "CyPS2-Cypress-Trackpad.two_finger_tap.events", "tap-and-click.yml"}) {
        const Reading expected = read(exampleText(name));
        EXPECT_FALSE(expected.events.empty());
        UnbufferedInput input(exampleText(name));
        std::istream stream(&input);
        const Reading reading = read(stream);
        EXPECT_EQ(reading.error, expected.error);
        EXPECT_EQ(reading.events, expected.events) << name;
    }
    for (const auto& [text, line] :
         std::vector<std::pair<std::string, int>>{{"", 1},
                                                  {kHeader + "\n{\"t\":1,\"pointer\":\"up\"}", 2},
                                                  {"# EVEMU 1.2\nA: 00 0 9\nA: 01 0 9\n", 4},
                                                  {"version: 1\n", 1}}) {
        ContinuedInput input(text);
        std::istream stream(&input);
        EXPECT_EQ(read(stream).error, "x:" + std::to_string(line) + ": the input cannot be read") << text;
    }
}

// What a crash, a full disk or a broken copy leaves of a file must still be usable up to there.
TEST(Recordings, GiveABeginningOfTheirEventsWhenCutAnywhere) {
    std::string own;
    for (const char* line :
         {R"({"kinesta":"recording","version":1,"device":"é"})", R"({"t":0.5,"touches":[[1,0.25,0.5],[2,0.5,1e-1]]})",
          R"({"t":0.5,"pointer":"down"})", R"({"t":1.25,"touches":[],"received":1.5})",
          R"({"t":12.5,"settings":{"tapWaitingInterval.v1":150}})", R"({"t":20,"pressure":2})"})
        own += std::string(line) + "\n";
    for (const std::string& text :
         {own, exampleText("CyPS2-Cypress-Trackpad.three_finger_tap.events"), exampleText("tap-and-click.yml")}) {
        const Reading whole = read(text);
        EXPECT_EQ(whole.error, "");
        std::size_t most = 0;
        for (std::size_t length = 0; length < text.size(); ++length) {
            const Reading part = read(text.substr(0, length));
            ASSERT_LE(part.events.size(), whole.events.size()) << length;
            ASSERT_TRUE(std::equal(part.events.begin(), part.events.end(), whole.events.begin())) << length;
            ASSERT_GE(part.events.size(), most) << "more of the file gave less, at " << length;
            most = part.events.size();
            if (!part.error.empty()) {
                // What is missing at the end may count as missing on the line after it.
                const auto end = text.begin() + static_cast<std::ptrdiff_t>(length);
                const auto lines = static_cast<std::size_t>(std::count(text.begin(), end, '\n')) + 2;
                const auto line = std::stoul(part.error.substr(2));
                ASSERT_TRUE(part.error.starts_with("x:") && line >= 1 && line <= lines)
                    << part.error << " at " << length;
            }
        }
        EXPECT_GE(most + 1, whole.events.size());
    }
}

}  // namespace
}  // namespace kinesta
