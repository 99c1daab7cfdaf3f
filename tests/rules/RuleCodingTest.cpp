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

// A valid rule, on lines 2 to 8 of a list.
const std::string kRule = R"({
"id": "11111111-2222-4333-8444-AAAAAAAAAAAA", "isEnabled": true,
"gesture": "singleTap", "fingerCount": 3,
"action": {"kind": "launchApplication",
 "modifiers": 0, "value": "", "keyCode": 5,
 "applicationArguments": ["-a", "b"]},
"name": "Close tab"})";

std::string listOf(std::string_view rule) { return "[\n" + std::string(rule) + "\n]"; }

std::string messageOf(std::string_view json) {
    const auto decoded = decodeRules(json);
    return decoded ? "decoded" : decoded.error().message;
}

TEST(RuleCoding, WritesTheKeysInOrderWithoutAbsentOnes) {
    const auto encoded = [](GestureRule rule, std::string name) {
        rule.id = *Uuid::parse(kId);
        rule.name = std::move(name);
        return encodeRules({&rule, 1});
    };
    EXPECT_EQ(encodeRules({}), "[]");
    EXPECT_EQ(encodeRules({}, RuleListLayout::indented), "[]\n");
    EXPECT_EQ(encoded(makeRule(GestureKind::tipTapLeft), ""),
              R"([{"id":"11111111-2222-4333-8444-AAAAAAAAAAAA","name":"","isEnabled":true,"gesture":"tipTapLeft",)"
              R"("action":{"kind":"middleClick","modifiers":0,"value":""}}])");
    EXPECT_EQ(encoded(makeFullRule(), "a\"\n/ü"),
              R"([{"id":"11111111-2222-4333-8444-AAAAAAAAAAAA","name":"a\"\n/ü","isEnabled":false,)"
              R"("fingerCount":-9223372036854775808,"gesture":"anchorDraw","edgeSlideSide":"both",)"
              R"("anchorCorner":"bottomRight","drawPattern":"circleCounterclockwise",)"
              R"("action":{"kind":"shellCommand","keyCode":65535,"modifiers":9223372036854775807,"value":"ls",)"
              R"("applicationArguments":["","-a"],"customCueLabel":"","shellCommandAcknowledged":false},)"
              R"("showsActionCue":false}])");
}

TEST(RuleCoding, ReadsBackWhatItWrote) {
    GestureRule withoutArguments = makeFullRule();
    withoutArguments.action.applicationArguments.emplace();
    const std::vector<GestureRule> rules{{}, makeFullRule(), makeSlide(3, EdgeSlideSide::left), withoutArguments};
    for (const RuleListLayout layout : {RuleListLayout::compact, RuleListLayout::indented}) {
        const auto decoded = decodeRules(encodeRules(rules, layout));
        ASSERT_TRUE(decoded) << decoded.error().message;
        EXPECT_EQ(*decoded, rules);
    }
}

TEST(RuleCoding, ReadsOtherSpellings) {
    const auto plain = decodeRules(listOf(kRule));
    ASSERT_TRUE(plain) << plain.error().message;
    // Each of these is the same list, written differently.
    std::vector<std::string> same{"\xEF\xBB\xBF" + listOf(kRule), " \t\r\n" + listOf(kRule) + "\r\n "};
    for (const auto& row : tableRows(R"(
11111111-2222-4333-8444-AAAAAAAAAAAA => 11111111-2222-4333-8444-aaaaaaaaaaaa
3, => 3.0,
3, => 0.3e1,
"modifiers": 0 => "modifiers": -0.0
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
    const auto emptied = decodeRules(
        listOf(replaced(replaced(kRule, "[\"-a\", \"b\"]", "null"), "\"fingerCount\": 3", "\"fingerCount\": null")));
    ASSERT_TRUE(emptied) << emptied.error().message;
    EXPECT_EQ(emptied->front().fingerCount, std::nullopt);
    EXPECT_EQ(emptied->front().action.applicationArguments, std::nullopt);
    EXPECT_TRUE(emptied->front().shouldShowActionCue());
}

TEST(RuleCoding, TakesIntegersUpToTheirBounds) {
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
    // What is replaced by what ("¶" is a line break), the line and the message.
    for (const auto& row : tableRows(R"(
11111111-2222-4333-8444-AAAAAAAAAAAA => 123 => 11: "id" is "123", which is not a UUID
true => 1 => 11: "isEnabled" is 1, which is not true or false
"isEnabled": true, =>  => 10: "isEnabled" is missing; expected true or false
"isEnabled": true, => "x": [{"isEnabled": true}], => 10: "isEnabled" is missing; expected true or false
singleTap => singleTapp => 12: "gesture" is "singleTapp", which is not a gesture
3, => ¶99999999999999999999¶, => 13: "fingerCount" is 99999999999999999999, which is not a whole number of 64 bits
3, => 3, "drawPattern": [], => 12: "drawPattern" is a list, which is not a pattern to draw
"action": { => "action": null, "x": { => 13: "action" is null, which is not an object
"kind": "launchApplication", => "x": {"kind": "openURL"}, => 13: "action.kind" is missing; expected a kind of action
"modifiers": 0, =>  => 13: "action.modifiers" is missing; expected a whole number of 64 bits
"value": "" => "value": {} => 14: "action.value" is an object, which is not text
["-a", "b"] => "-a" => 15: "action.applicationArguments" is "-a", which is not a list of texts
"b"] => ¶[1]] => 16: entry 2 of "action.applicationArguments" is a list, which is not text
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
             {"3,", "1e400,", "line 12: column 44 has a number that is too large"},
             {"Close tab", "ä\xC3(", "line 16: not valid JSON from column 12 on"},
             {"Close tab", std::string("a\0b", 3), "line 16: a NUL byte, which JSON text cannot hold"},
         })
        EXPECT_EQ(spoilt(from, to), message) << to;
    EXPECT_EQ(messageOf(""), "line 1: the JSON text ends too early, at column 1");
    EXPECT_EQ(messageOf("\nnull"), "line 2: the text is null, which is not a list of rules");
    EXPECT_EQ(messageOf("[" + kRule + ",[]]"), "line 7: rule 2 is a list, which is not an object");
    EXPECT_EQ(messageOf("[]\n[]"), "line 2: not valid JSON from column 1 on");
    const std::string whole = encodeRules(std::vector{makeFullRule()});
    for (std::size_t length = 0; length < whole.size(); ++length)
        EXPECT_TRUE(messageOf(whole.substr(0, length)).starts_with("line 1: ")) << length;
}

TEST(RuleCoding, KeepsMessagesShortAndOnOneLine) {
    std::string name = "x";  // so that a cut at an even place would split a character
    for (int i = 0; i < 100'000; ++i)
        name += "ü";
    const std::string message = messageOf(
        listOf(replaced(replaced(kRule, "Close tab", name), "singleTap", "\\u001b[31m\\n" + std::string(1000, 'x'))));
    EXPECT_LT(message.size(), 250U);
    EXPECT_EQ(message.find_first_of("\x1b\n"), std::string::npos);
    EXPECT_NE(message.find("üü…\""), std::string::npos) << message;
    EXPECT_LT(messageOf("[\"" + std::string(1'000'000, 'x')).size(), 250U);
    EXPECT_LT(messageOf(listOf(replaced(kRule, "3,", std::string(1'000'000, '9') + ","))).size(), 250U);
}

TEST(RuleCoding, SurvivesAnyDepth) {
    constexpr std::size_t kDepth = 100'000;
    const std::string open(kDepth, '[');
    EXPECT_TRUE(messageOf(open).starts_with("line 1: "));
    const std::string deep = "\"x\": " + open + std::string(kDepth, ']') + ", \"isEnabled\"";
    EXPECT_EQ(messageOf(listOf(replaced(kRule, "\"isEnabled\"", deep))), "decoded") << "an unknown key";
}

TEST(RuleCoding, ReplacesBytesThatAreNotUtf8) {
    GestureRule rule = makeRule(GestureKind::singleTap, 2, ActionKind::launchApplication);
    rule.name = "a\xFFz";
    rule.action.applicationArguments = {"\xC3"};
    for (const RuleListLayout layout : {RuleListLayout::compact, RuleListLayout::indented}) {
        const auto decoded = decodeRules(encodeRules(std::span(&rule, 1), layout));
        ASSERT_TRUE(decoded) << decoded.error().message;
        EXPECT_EQ(decoded->front().name + decoded->front().action.applicationArguments->at(0), "a\uFFFDz\uFFFD");
    }
}

}  // namespace
}  // namespace kinesta
