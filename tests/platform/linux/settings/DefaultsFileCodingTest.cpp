#include "platform/linux/settings/DefaultsFileCoding.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace kinesta;

TEST(DefaultsFileCoding, everyValueReadsBackAsItWasWritten) {
    using Limits = std::numeric_limits<double>;
    using Integers = std::numeric_limits<std::int64_t>;
    std::vector<StoredValue> values{true, false, StoredData{}, std::string()};
    for (const std::int64_t integer : {std::int64_t{0}, Integers::min(), Integers::max()})
        values.emplace_back(integer);
    for (const double real : {0.1, 1.0, 1e22, Limits::max(), Limits::denorm_min()})
        values.emplace_back(real);
    for (const char* text : {"a\"\\\n\x7F\u2028\U0001F600", "{\"data\":\"x\"}", "{\"k\":[1]}"}) {
        values.emplace_back(std::string(text));
        values.emplace_back(StoredData{text});
    }
    values.emplace_back(std::string("a\0b", 3));
    values.emplace_back(StoredData{std::string("\0", 1)});
    values.emplace_back(-0.0);
    StoredValues all;
    for (const auto& value : values)
        all.emplace("key \"" + std::to_string(all.size()) + "\"\n", value);
    const auto decoded = decodeDefaults(encodeDefaults(all));
    ASSERT_TRUE(decoded) << decoded.error().message;
    EXPECT_EQ(*decoded, all);
    EXPECT_TRUE(std::signbit(std::get<double>(decoded->at("key \"" + std::to_string(values.size() - 1) + "\"\n"))));
}

TEST(DefaultsFileCoding, writesAFileThatAPersonCanRead) {
    EXPECT_EQ(encodeDefaults({}), "{\n}\n");
    EXPECT_EQ(encodeDefaults({{"b", StoredData{"[1]"}}, {"a", 2.0}, {"c", StoredData{"\xFF"}}, {"d", std::nan("")}}),
              "{\n  \"a\": 2.0,\n  \"b\": {\"data\":\"[1]\"},\n  \"c\": {\"data\":\"\uFFFD\"},\n  \"d\": null\n}\n");
}

TEST(DefaultsFileCoding, keepsForeignValues) {
    const std::string foreign[] = {
        "null", "[1,{\"a\":null}]", "{}", "{\"data\":\"x\",\"more\":1}", "{\"other\":1.5}", "18446744073709551615"};
    for (const auto& text : foreign) {
        const auto decoded = decodeDefaults("\xEF\xBB\xBF {\"k\" : " + text + "}");
        ASSERT_TRUE(decoded) << text << decoded.error().message;
        EXPECT_EQ(decoded->at("k"), StoredValue(ForeignValue{text}));
        EXPECT_EQ(encodeDefaults(*decoded), "{\n  \"k\": " + text + "\n}\n");
    }
    EXPECT_TRUE(decodeDefaults("{\"k\":" + std::string(99, '[') + std::string(99, ']') + "}"));
}

TEST(DefaultsFileCoding, tellsWhatIsDamaged) {
    const std::string deep(20'000, '[');
    const std::pair<std::string, std::string> cases[] = {
        {"", "line 1 is not JSON"},
        {"{\n\"a\":1", "line 2 is not JSON"},
        {"{} x", "line 1 is not JSON"},
        {"{\n\n\"a\":\"\xFF\"}", "line 3 is not JSON"},
        {"{\"a\":\"\\ud800\"}", "line 1 is not JSON"},
        {std::string("{\"a\":1}\0x", 9), "it holds zero bytes"},
        {deep, "line 1 is not JSON"},
        {"{\"a\":" + deep + std::string(deep.size(), ']') + "}", "it is nested too deep"},
        {"[1]", "it is not a JSON object"},
        {"1e400", "it holds a number that is too large"},
        {"{\"k\":{\"data\":5}}", "the value of \"k\" has no known form"},
    };
    for (const auto& [text, expected] : cases) {
        const auto decoded = decodeDefaults(text);
        EXPECT_EQ(decoded ? "decoded" : decoded.error().message, expected) << text.substr(0, 40);
    }
}
