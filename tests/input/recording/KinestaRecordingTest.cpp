#include <gtest/gtest.h>

#include <streambuf>

#include "RecordingText.h"

namespace kinesta {
namespace {

/// An input without a buffer that never says how much it has, like that of a pipe shared with C. After its text it
/// ends, or breaks, as a folder or a failing disk does.
struct UnbufferedInput final : std::streambuf {
    UnbufferedInput(std::string content, bool doesBreak) : text(std::move(content)), breaks(doesBreak) {}
    int_type underflow() override {
        if (at < text.size())
            return traits_type::to_int_type(text[at]);
        return breaks ? throw 5 : traits_type::eof();
    }
    int_type uflow() override { return at < text.size() ? traits_type::to_int_type(text[at++]) : underflow(); }

    std::string text;
    bool breaks;
    std::size_t at = 0;
};

constexpr std::size_t kLimit = std::size_t{1} << 20;
const std::string kHeader = R"({"kinesta":"recording","version":1})";

std::string firstError(const std::string& lines) { return read(kHeader + "\n" + lines).error; }

const std::string kEveryLine =
    "\xEF\xBB\xBF\r\n \t\n"
    R"( {"later":{"x":[1,{"y":null}]},"version":1.0,"kinesta":"recording","device":"Pad \"7\" \u00e9\ud83d\ude00é",)"
    R"("settings":{"gesturesEnabled":false,"tapWaitingInterval.v1":250.0,"cornerPalmRejectionEnabled.v1":true,)"
    "\"cornerPalmRejectionSensitivity.v1\":1,\"later\":\"x\"}}\r\n\n"
    "{\"t\":-1.5,\"touches\":[[-2147483648,0,1e0],[2147483647,0.25,-0.5],[3.0,1E-2,2e+1]]}\r\n"
    R"({"touches":[],"received":-2,"\u0074":-1.5,"more":"\b\f\n\r\t\/\\"}

{"t":0,"pointer":"down","received":"any"}
{ "t" : 0 , "pressure" : -9223372036854775808 }
{"t":9.2e9,"settings":{}}
{"t":9200000000,"pointer":"up"})";

TEST(KinestaRecording, GivesItsEventsInOrder) {
    const Reading reading = read(kEveryLine);
    EXPECT_EQ(reading.header, (RecordingHeader{"Pad \"7\" \u00e9\U0001F600\u00e9", {false, 250, true, 1}}));
    EXPECT_EQ(reading.text(), reading.header.device +
                                  ": -1.5 -2147483648@0,1 2147483647@0.25,-0.5 3@0.01,20; -1.5 no finger received -2; "
                                  "0 down; 0 pressure -9223372036854775808; 9.2e+09 settings; 9.2e+09 up");
    for (const int milliseconds : {150, 200, 250, 300, 400}) {
        const Reading own = read(R"({"kinesta":"recording","version":1,"settings":{"tapWaitingInterval.v1":)" +
                                 std::to_string(milliseconds) + "}}");
        EXPECT_EQ(own.header.settings.tapWaitingMilliseconds, milliseconds) << own.error;
    }
}

TEST(KinestaRecording, RefusesOtherHeaders) {
    const std::string unknown =
        ": this is no recording of a known format: Kinesta's own, evemu-record or libinput record";
    for (const auto& [error, input] : std::vector<std::pair<std::string, std::string>>{
             {"1: the input holds no recording", ""},
             {"3: the input holds no recording", "\n \n"},
             {"1" + unknown, "hello"},
             {"2" + unknown, "# note\n[1]"},
             {"2: this is not valid JSON: the line ends too early", "\n{\"kinesta\""},
             {"1: this is not valid JSON: something follows the object", kHeader + kHeader}})
        EXPECT_EQ(read(input).error, "x:" + error) << input;
    expectErrors("{", "}", "1: ", R"(
a recording begins with a header that says "kinesta":"recording" => "a":1 | "kinesta":["recording"],"version":1
the header has no whole number "version" => "kinesta":"recording" | "kinesta":"recording","version":1.5
the header has no whole number "version" => "kinesta":"recording","version":"1"
version 2 of the format is not known, only version 1 => "device":7,"kinesta":"recording","version":2
"device" is not a text => "kinesta":"recording","version":1,"device":7
"settings" is not an object => "kinesta":"recording","version":1,"settings":[]
)");
}

TEST(KinestaRecording, RefusesWrongEvents) {
    expectErrors(kHeader + "\n{\"t\":0.5,\"pointer\":\"down\"}\n\n", "", "4: ", R"(
the line is not a JSON object => [1]
none of "touches", "pointer", "pressure" and "settings" is given => {"t":1}
more than one of "touches", "pointer", "pressure" and "settings" is given => {"t":1,"pointer":"up","pressure":1}
more than one of "touches", "pointer", "pressure" and "settings" is given => {"t":1,"settings":{},"settings":{}}
"t" is missing => {"kinesta":"recording","version":1} | {"pointer":"up"}
"t" is not a number => {"t":"1","pointer":"up"}
"t" is not within 9.2e9 seconds => {"t":9200000001,"pointer":"up"} | {"t":-9.3e9,"pointer":"up"}
the time 0.25 is before 0.5, that of the event before => {"t":0.25,"pointer":"up"} | {"t":0.25,"settings":{}}
"received" is not a number => {"t":1,"touches":[],"received":"1"}
"received" is not within 9.2e9 seconds => {"received":1e10,"t":1,"touches":[]}
)");
    expectErrors(kHeader + "\n{\"t\":1,\"touches\":[", "]}", "2: ", R"(
a touch is not of the form [id, x, y] with a 32-bit whole id and two numbers => 1,2,3 | [1,2] | [1,2,3,4] | [1,2,null]
a touch is not of the form [id, x, y] with a 32-bit whole id and two numbers => ["1",2,3] | [1.5,2,3]
a touch is not of the form [id, x, y] with a 32-bit whole id and two numbers => [2147483648,2,3] | [-2147483649,2,3]
"touches" holds an id twice => [1,2,3],[2,2,3],[1,4,5]
)");
    expectErrors(kHeader + "\n{\"t\":1,\"settings\":{", "}}", "2: ", R"(
"gesturesEnabled" is neither true nor false => "gesturesEnabled":1
"cornerPalmRejectionEnabled.v1" is neither true nor false => "cornerPalmRejectionEnabled.v1":"true"
"cornerPalmRejectionSensitivity.v1" is not a number => "cornerPalmRejectionSensitivity.v1":true
"tapWaitingInterval.v1" is none of 150, 200, 250, 300 and 400 => "tapWaitingInterval.v1":251 | "tapWaitingInterval.v1":"250"
"tapWaitingInterval.v1" is none of 150, 200, 250, 300 and 400 => "tapWaitingInterval.v1":250.5 | "tapWaitingInterval.v1":4294967546
)");
    expectErrors(kHeader + "\n{\"t\":1,", "}", "2: ", R"(
"touches" is not an array => "touches":{}
"pointer" is neither "down" nor "up" => "pointer":"left" | "pointer":true
"pressure" is not a whole number => "pressure":1.5 | "pressure":"1" | "pressure":9223372036854775808
"settings" is not an object => "settings":null
)");
}

TEST(KinestaRecording, RefusesMalformedJson) {
    expectErrors(kHeader + "\n", "", "2: this is not valid JSON: ", R"(
the line ends too early => {"t":1,"pointer":"up" | {"t":1,"pointer":"u | {"t":1,
a text is missing => {"t":1,"pointer":"up",}
a comma or a closing bracket is missing => {"t":1 "pointer":"up"} | {"t":1,"touches":[[1,2 3]]}
a colon is missing => {"t" 1}
a value is missing => {"t":1,"touches":[[1,2,3],]} | {"t":+1,"pointer":"up"} | {"t":1,"a":} | {"t":NaN}
a number begins with a zero => {"t":01,"pointer":"up"}
a number is malformed => {"t":1.,"a":1} | {"t":-,"a":1} | {"t":1e+,"a":1}
a number is out of range => {"t":1e999,"pointer":"up"} | {"t":1,"touches":[[1,2,1e999]]}
a value is malformed => {"t":1,"a":tru} | {"t":1,"a":nil}
a text holds an unknown escape => {"t":1,"a":"\x"} | {"t":1,"a":"\u12g4"}
a text holds half a surrogate pair => {"t":1,"a":"\ud800"} | {"t":1,"a":"\ud800\u0041"} | {"t":1,"a":"\udc00"}
something follows the object => {"t":1,"pointer":"up"}x
)");
    const std::string deep(500'000, '[');
    const std::string closed = std::string(99, '[') + "0" + std::string(99, ']');
    EXPECT_EQ(firstError("{\"t\":1,\"pointer\":\"up\",\"a\":" + closed + "}"), "");
    const auto expectError = [](const std::string& value, const std::string& error) {
        EXPECT_EQ(firstError("{\"t\":1,\"a\":" + value + "}"), "x:2: this is not valid JSON: " + error);
    };
    expectError("\"\t\"", "a text holds a control character");
    expectError("\"\xED\xA0\x80\"", "a text is not UTF-8");
    expectError(std::string("\0", 1), "a value is missing");
    expectError(deep, "values are nested too deeply");
    expectError(deep.substr(0, 101), "values are nested too deeply");
}

TEST(KinestaRecording, KeepsOneLineInMemory) {
    const std::string event = R"({"t":1,"pointer":"up"})";
    const std::string longest = event + std::string(kLimit - event.size(), ' ');
    EXPECT_EQ(read(kHeader + "\n" + longest + "\n" + longest).events.size(), 2U);
    EXPECT_EQ(firstError(longest + " \n" + event), "x:2: the line is longer than 1 MiB");
    EXPECT_EQ(firstError(event + "\n" + longest + " "), "x:3: the line is longer than 1 MiB");

    for (const auto& [count, last] : {std::pair(1000, 1000), {16, 3}, {17, 3}, {1000, 3}}) {
        std::string touches = "[" + std::to_string(last) + ",0,0]";
        for (int id = 1; id < count; ++id)
            touches += ",[" + std::to_string(id) + ",0.123456789012345678,0.123456789012345678]";
        EXPECT_EQ(firstError("{\"t\":1,\"touches\":[" + touches + "]}"),
                  last == count ? "" : "x:2: \"touches\" holds an id twice")
            << count;
    }
}

TEST(Recordings, EndWithTheirStreamAndAtWhatIsTooLong) {
    const std::string broken = ": the input cannot be read", tooLong = ": the line is longer than 1 MiB";
    for (const auto& [text, error] : {std::pair(exampleText("tip-tap-right.jsonl"), ""),
                                      {exampleText("CyPS2-Cypress-Trackpad.two_finger_tap.events"), ""},
                                      {exampleText("tap-and-click.yml"), ""},
                                      {"", "x:1"},
                                      {kHeader + "\n{\"t\":1,\"pointer\":\"up\"}", "x:2"},
                                      {"# EVEMU 1.2\nA: 00 0 9\nA: 01 0 9\n", "x:4"},
                                      {"version: 1\n", "x:1"}}) {
        const bool breaks = *error != 0;
        UnbufferedInput input(text, breaks);
        std::istream stream(&input);
        const Reading reading = read(stream);
        EXPECT_EQ(reading.error, breaks ? error + broken : "") << text;
        EXPECT_TRUE(breaks || (reading.events == read(text).events && !reading.events.empty())) << text;
    }
    for (const auto& [text, rest, error] : {std::tuple("{" + std::string(), 'a', "1" + tooLong),
                                            {"", '\n', "1048578: the input holds no recording"},
                                            {"", ' ', "1: the input holds no recording"},
                                            {kHeader + "\n{\"t\":1,\"a\":\"", 'a', "2" + tooLong},
                                            {"# EVEMU 1.2\nN: ", 'a', "2" + tooLong},
                                            {"version: 1\nname: \"", '\n', "2: a value is longer than 1 MiB"},
                                            {"version: 1\nname: ", '[', "2: values are nested too deeply"}}) {
        std::istringstream stream(text + std::string(3 * kLimit, rest));
        EXPECT_EQ(read(stream).error, "x:" + error) << text;
        EXPECT_TRUE(stream && std::streamoff{stream.tellg()} - std::ssize(text) <= std::streamoff{2 * kLimit}) << text;
    }
}

// A crash, a full disk or a broken copy can cut a file anywhere.
TEST(Recordings, GiveTheEventsBeforeACut) {
    for (const std::string& text : {kEveryLine, exampleText("CyPS2-Cypress-Trackpad.three_finger_tap.events"),
                                    exampleText("tap-and-click.yml")}) {
        const Reading whole = read(text);
        EXPECT_EQ(whole.error, "");
        std::size_t most = 0;
        for (std::size_t length = 0; length < text.size(); ++length) {
            const Reading part = read(text.substr(0, length));
            ASSERT_LE(part.events.size(), whole.events.size()) << length;
            ASSERT_TRUE(std::equal(part.events.begin(), part.events.end(), whole.events.begin())) << length;
            ASSERT_GE(part.events.size(), most) << "more of the file gave less, at " << length;
            most = part.events.size();
            // The error may name the line after the cut.
            const auto lines = split(text.substr(0, length), "\n").size() + 1;
            ASSERT_TRUE(part.error.empty() || std::stoul(part.error.substr(2)) - 1 < lines)
                << part.error << " at " << length;
        }
        EXPECT_GE(most + 1, whole.events.size());
    }
}

}  // namespace
}  // namespace kinesta
