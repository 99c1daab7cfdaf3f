#include <gtest/gtest.h>

#include <array>
#include <regex>
#include <string>

#include "RuleMaking.h"
#include "rules/GestureRuleCoding.h"
#include "support/TableRows.h"

namespace kinesta {
namespace {

const std::string kId = "11111111-2222-4333-8444-AAAAAAAAAAAA";

// A rule that decodes, on lines 2 to 8 of a list.
const std::string kRule = R"({
"id": "11111111-2222-4333-8444-AAAAAAAAAAAA", "isEnabled": true,
"gesture": "singleTap", "fingerCount": 3,
"action": {"kind": "launchApplication",
 "modifiers": 0, "value": "", "keyCode": 5,
 "applicationArguments": ["-a", "b"]},
"name": "Close tab"})";

std::string replaced(std::string text, std::string_view from, std::string_view to) {
    const std::size_t place = text.find(from);
    EXPECT_NE(place, std::string::npos) << from;
    return text.replace(place, from.size(), to);
}

std::string listOf(std::string_view rule) { return "[\n" + std::string(rule) + "\n]"; }

std::string messageOf(std::string_view json) {
    const auto decoded = decodeRules(json);
    return decoded ? "decoded" : decoded.error().message;
}

TEST(RuleCoding, WritesTheKeysInOrderAndNoAbsentOnes) {
    GestureRule rule = makeRule(GestureKind::tipTapLeft);
    rule.id = *Uuid::parse(kId);
    EXPECT_EQ(encodeRules({}), "[]");
    EXPECT_EQ(encodeRules({}, RuleListLayout::indented), "[]\n");
    EXPECT_EQ(
        encodeRules(std::span(&rule, 1)),
        R"([{"id":")" + kId +
            R"(","name":"","isEnabled":true,"gesture":"tipTapLeft","action":{"kind":"middleClick","modifiers":0,)" +
            R"("value":""}}])");
    rule.name = "a\"\n/ü";
    rule.isEnabled = false;
    rule.fingerCount = INT64_MIN;
    rule.gesture = GestureKind::anchorDraw;
    rule.edgeSlideSide = EdgeSlideSide::both;
    rule.anchorCorner = AnchorCorner::bottomRight;
    rule.drawPattern = DrawPattern::circleCounterclockwise;
    rule.showsActionCue = false;
    rule.action = {ActionKind::shellCommand, 65535, {31}, "ls", std::vector<std::string>{}, "", true};
    EXPECT_EQ(encodeRules(std::span(&rule, 1)),
              R"([{"id":")" + kId +
                  R"(","name":"a\"\n/ü","isEnabled":false,"fingerCount":-9223372036854775808,"gesture":"anchorDraw",)" +
                  R"("edgeSlideSide":"both","anchorCorner":"bottomRight","drawPattern":"circleCounterclockwise",)" +
                  R"("action":{"kind":"shellCommand","keyCode":65535,"modifiers":31,"value":"ls",)" +
                  R"("applicationArguments":[],"customCueLabel":"","shellCommandAcknowledged":true},)" +
                  R"("showsActionCue":false}])");
}

TEST(RuleCoding, AnyRulesComeBackEqual) {
    RandomRules random(1);
    for (std::size_t length = 0; length < 40; ++length) {
        const auto rules = random.list(length);
        for (const RuleListLayout layout : {RuleListLayout::compact, RuleListLayout::indented}) {
            const auto decoded = decodeRules(encodeRules(rules, layout));
            ASSERT_TRUE(decoded) << decoded.error().message;
            ASSERT_EQ(*decoded, rules);
        }
    }
}

TEST(RuleCoding, ReadsWhatOthersMayWrite) {
    const auto plain = decodeRules(listOf(kRule));
    ASSERT_TRUE(plain) << plain.error().message;
    // Each of these is the same list in other words.
    std::vector<std::string> same{"\xEF\xBB\xBF" + listOf(kRule), " \t\r\n" + listOf(kRule) + "\r\n "};
    for (const auto& row : tableRows(R"(
11111111-2222-4333-8444-AAAAAAAAAAAA => 11111111-2222-4333-8444-aaaaaaaaaaaa
3, => 3.0,
3, => 0.3e1,
"modifiers": 0 => "modifiers": -0.0
Close => \u0043lose
"isEnabled" => "name": "earlier", "isEnabled"
"action" => "action": {"kind": "openURL", "modifiers": 9, "value": "x", "customCueLabel": "x"}, "action"
"isEnabled" => "id2": {"id": 7, "x": [{"kind": {}}]}, "kind": null, "isEnabled"
"modifiers" => "name": 5, "action": {"kind": 1}, "modifiers"
"isEnabled" => "edgeSlideSide": null, "anchorCorner": null, "drawPattern": null, "showsActionCue": null, "isEnabled"
"modifiers" => "customCueLabel": null, "shellCommandAcknowledged": null, "modifiers"
)"))
        same.push_back(listOf(replaced(kRule, row[0], row[1])));
    for (const std::string& json : same) {
        const auto decoded = decodeRules(json);
        ASSERT_TRUE(decoded) << decoded.error().message << "\n" << json;
        EXPECT_EQ(*decoded, *plain) << json;
    }
    const auto emptied = decodeRules(listOf(
        replaced(replaced(replaced(kRule, "[\"-a\", \"b\"]", "null"), "\"fingerCount\": 3", "\"fingerCount\": null"),
                 "\"keyCode\": 5", "\"keyCode\": null")));
    ASSERT_TRUE(emptied) << emptied.error().message;
    EXPECT_EQ(emptied->front().fingerCount, std::nullopt);
    EXPECT_EQ(emptied->front().action.keyCode, std::nullopt);
    EXPECT_EQ(emptied->front().action.applicationArguments, std::nullopt);
    EXPECT_TRUE(emptied->front().shouldShowActionCue());
}

TEST(RuleCoding, IntegersAreTakenUpToTheirBounds) {
    const auto fingers = [](std::string_view number) {
        const auto decoded = decodeRules(listOf(replaced(kRule, "3,", std::string(number) + ",")));
        return decoded ? decoded->front().fingerCount : std::nullopt;
    };
    EXPECT_EQ(fingers("9223372036854775807"), INT64_MAX);
    EXPECT_EQ(fingers("-9223372036854775808"), INT64_MIN);
    EXPECT_EQ(fingers("-9223372036854775808.0"), INT64_MIN);
    EXPECT_EQ(fingers("1e18"), 1'000'000'000'000'000'000);
    for (const std::string_view wrong :
         {"9223372036854775808", "-9223372036854775809", "9223372036854775808.0", "18446744073709551615",
          "18446744073709551616", "3.5", "1e-1", "1e300", "true", "\"3\"", "[]", "{}"})
        EXPECT_EQ(fingers(wrong), std::nullopt) << wrong;
    const auto isKeyCode = [](const std::string& number) {
        return decodeRules(listOf(replaced(kRule, "\"keyCode\": 5", "\"keyCode\": " + number))).isValue();
    };
    EXPECT_TRUE(isKeyCode("0") && isKeyCode("65535") && isKeyCode("65535.0"));
    EXPECT_FALSE(isKeyCode("-1") || isKeyCode("65536") || isKeyCode("65535.5"));
}

TEST(RuleCoding, SaysWhereAndWhy) {
    const auto spoilt = [](const std::string& from, const std::string& to) {
        return messageOf("[\n" + kRule + ",\n\n" + replaced(kRule, from, to) + "]");
    };
    // What is replaced by what, where "¶" is a line break; the line and the message.
    for (const auto& row : tableRows(R"(
11111111-2222-4333-8444-AAAAAAAAAAAA => 123 => 11: "id" is "123", which is not a UUID
true => 1 => 11: "isEnabled" is 1, which is not true or false
"isEnabled": true, =>  => 10: "isEnabled" is missing; expected true or false
"isEnabled": true, => "x": [{"isEnabled": true}], => 10: "isEnabled" is missing; expected true or false
singleTap => singleTapp => 12: "gesture" is "singleTapp", which is not a gesture
3, => ¶99999999999999999999¶, => 13: "fingerCount" is 99999999999999999999, which is not a whole number of 64 bits
3, => 3, "edgeSlideSide": "up", => 12: "edgeSlideSide" is "up", which is not left, right or both
3, => 3, "anchorCorner": 0, => 12: "anchorCorner" is 0, which is not topLeft, topRight, bottomLeft or bottomRight
3, => 3, "drawPattern": [], => 12: "drawPattern" is a list, which is not a pattern to draw
3, => 3, "showsActionCue": 0, => 12: "showsActionCue" is 0, which is not true or false
"action": { => "action": null, "x": { => 13: "action" is null, which is not an object
"action" => "Action" => 10: "action" is missing; expected an object
launchApplication => launch => 13: "action.kind" is "launch", which is not a kind of action
"kind": "launchApplication", =>  => 13: "action.kind" is missing; expected a kind of action
"kind": "launchApplication", => "x": {"kind": "openURL"}, => 13: "action.kind" is missing; expected a kind of action
"modifiers": 0 => "modifiers": "0" => 14: "action.modifiers" is "0", which is not a whole number of 64 bits
"modifiers": 0, =>  => 13: "action.modifiers" is missing; expected a whole number of 64 bits
"value": "" => "value": {} => 14: "action.value" is an object, which is not text
"keyCode": 5 => "keyCode": -1 => 14: "action.keyCode" is -1, which is not a whole number from 0 to 65535
["-a", "b"] => "-a" => 15: "action.applicationArguments" is "-a", which is not a list of texts
"b"] => ¶[1]] => 16: entry 2 of "action.applicationArguments" is a list, which is not text
"value" => "customCueLabel": 4, "value" => 14: "action.customCueLabel" is 4, which is not text
"value" => "shellCommandAcknowledged": 1, "value" => 14: "action.shellCommandAcknowledged" is 1, which is not true or false
)",
                                     3)) {
        const std::size_t colon = row[2].find(": ");
        EXPECT_EQ(spoilt(row[0], std::regex_replace(row[1], std::regex("¶"), "\n")),
                  "line " + row[2].substr(0, colon) + ": rule 2 \"Close tab\"" + row[2].substr(colon))
            << row[1];
    }
    for (const auto& [from, to, message] : std::initializer_list<std::array<std::string, 3>>{
             {"\"Close tab\"", "[[{}]]", R"(line 16: rule 2: "name" is a list, which is not text)"},
             {",\n\"name\": \"Close tab\"", "", R"(line 10: rule 2: "name" is missing; expected text)"},
             {"3,", "1e400,", "line 12: not valid JSON at column 44: a number that is too large"},
             {"\"name\": \"Close tab\"}", "\"name\": \"Close tab\",}",
              "line 16: not valid JSON at column 21: unexpected '}'; expected string literal"},
             {"Close tab\"", "Close\n tab\"",
              "line 16: not valid JSON at column 15: invalid string: control character U+000A (LF) must be escaped to "
              "\\u000A or \\n"},
             {"Close tab", "\\ud800",
              "line 16: not valid JSON at column 16: invalid string: surrogate U+D800..U+DBFF "
              "must be followed by U+DC00..U+DFFF"},
             {"Close tab", "ä\xC3(", "line 16: not valid JSON at column 12: invalid string: ill-formed UTF-8 byte"},
             {"Close tab", std::string("a\0b", 3), "line 16: a NUL byte, which JSON text cannot hold"},
         })
        EXPECT_EQ(spoilt(from, to), message) << to;
    EXPECT_EQ(messageOf(""),
              "line 1: not valid JSON at column 1: unexpected end of input; expected '[', '{', or a literal");
    EXPECT_EQ(messageOf("{\"a\":[]}"), "line 1: the text is an object, which is not a list of rules");
    EXPECT_EQ(messageOf("\nnull"), "line 2: the text is null, which is not a list of rules");
    EXPECT_EQ(messageOf("[\n5]"), "line 2: rule 1 is 5, which is not an object");
    EXPECT_EQ(messageOf("[" + kRule + ",[]]"), "line 7: rule 2 is a list, which is not an object");
    EXPECT_EQ(messageOf("[]\n[]"), "line 2: not valid JSON at column 1: unexpected '['; expected end of input");
    EXPECT_EQ(messageOf(std::string("[]\0", 3)), "line 1: a NUL byte, which JSON text cannot hold");
}

TEST(RuleCoding, MessagesStayShortAndOnOneLine) {
    std::string name = "x";  // so that a cut at an even place would split a character
    for (int i = 0; i < 100'000; ++i)
        name += "ü";
    const std::string json =
        listOf(replaced(replaced(kRule, "Close tab", name), "singleTap", "\\u001b[31m\\n" + std::string(1000, 'x')));
    const std::string message = messageOf(json);
    EXPECT_LT(message.size(), 250U);
    EXPECT_EQ(message.find_first_of("\x1b\n"), std::string::npos);
    EXPECT_NE(message.find("üü…\""), std::string::npos) << message;
    EXPECT_LT(messageOf("[\"" + std::string(1'000'000, 'x')).size(), 250U);
    EXPECT_LT(messageOf(listOf(replaced(kRule, "3,", std::string(1'000'000, '9') + ","))).size(), 250U);
}

// Every damage of one byte is noticed where it breaks the text, and never a crash.
TEST(RuleCoding, ACutOrSpoiltTextFailsCleanly) {
    RandomRules random(2);
    std::string json = encodeRules(random.list(3), RuleListLayout::indented);
    json.pop_back();
    ASSERT_TRUE(decodeRules(json));
    for (std::size_t length = 0; length < json.size(); ++length)
        ASSERT_TRUE(messageOf(json.substr(0, length)).starts_with("line ")) << length;
    for (std::size_t place = 0; place < json.size(); ++place) {
        for (const char spoilt : {'\0', '\xFF', '\x01'}) {
            std::string broken = json;
            broken[place] = spoilt;
            ASSERT_TRUE(messageOf(broken).starts_with("line ")) << place;
        }
    }
}

TEST(RuleCoding, DepthAndLengthAreNoDanger) {
    constexpr std::size_t kDepth = 100'000;
    const std::string open(kDepth, '[');
    EXPECT_TRUE(messageOf(open).starts_with("line 1: ")) << "lists";
    std::string objects;
    for (std::size_t i = 0; i < kDepth; ++i)
        objects += "{\"action\":";
    EXPECT_TRUE(messageOf("[" + objects).starts_with("line 1: ")) << "objects";
    // As the value of an unknown key it is merely passed over.
    const std::string deep = "\"x\": " + open + std::string(kDepth, ']') + ", \"isEnabled\"";
    EXPECT_EQ(messageOf(listOf(replaced(kRule, "\"isEnabled\"", deep))), "decoded");
    std::string many = "[" + kRule;
    for (int i = 1; i < 5000; ++i)
        many += "," + kRule;
    const auto decoded = decodeRules(many + "]");
    ASSERT_TRUE(decoded);
    EXPECT_EQ(decoded->size(), 5000U);
    EXPECT_TRUE(messageOf(many + ",{}]").starts_with("line 30001: rule 5001: \"id\" is missing"));
}

TEST(RuleCoding, BytesThatAreNotTextAreReplaced) {
    GestureRule rule = makeRule(GestureKind::singleTap, 2, ActionKind::launchApplication);
    rule.name = "a\xFFz";
    rule.action.applicationArguments = {"\xC3"};
    for (const RuleListLayout layout : {RuleListLayout::compact, RuleListLayout::indented}) {
        const auto decoded = decodeRules(encodeRules(std::span(&rule, 1), layout));
        ASSERT_TRUE(decoded) << decoded.error().message;
        EXPECT_EQ(decoded->front().name, "a\uFFFDz");
        EXPECT_EQ(decoded->front().action.applicationArguments, (std::vector<std::string>{"\uFFFD"}));
    }
}

}  // namespace
}  // namespace kinesta
