#include "platform/linux/settings/DefaultsFileCoding.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace kinesta;

TEST(DefaultsFileCoding, ReadsEveryValueBackAsItWasWritten) {
    using Real = std::numeric_limits<double>;
    using Integer = std::numeric_limits<std::int64_t>;
    std::vector<StoredValue> values{true, false, std::int64_t{0}, Integer::min(), Integer::max()};
    for (const double real : {0.1, 1.0, 1e22, Real::max(), Real::denorm_min()})
        values.emplace_back(real);
    for (const std::string& text : {std::string(), std::string("a\0b", 3), std::string("{\"data\":\"x\"}"),
                                    std::string("{\"k\":[1]}"), std::string("a\"\\\n\x7F\u2028\U0001F600")}) {
        values.emplace_back(text);
        values.emplace_back(StoredData{text});
    }
    StoredValues all{{"negative zero", -0.0}};
    for (const auto& value : values)
        all.emplace("key \"" + std::to_string(all.size()) + "\"\n", value);
    const auto decoded = decodeDefaults(encodeDefaults(all));
    ASSERT_TRUE(decoded) << decoded.error().message;
    EXPECT_EQ(*decoded, all);
    EXPECT_TRUE(std::signbit(std::get<double>(decoded->at("negative zero"))));
}

TEST(DefaultsFileCoding, WritesAFileThatAPersonCanRead) {
    EXPECT_EQ(encodeDefaults({}), "{\n}\n");
    EXPECT_EQ(encodeDefaults({{"b", StoredData{"[1]"}}, {"a", 2.0}, {"c", StoredData{"\xFF"}}, {"d", std::nan("")}}),
              "{\n  \"a\": 2.0,\n  \"b\": {\"data\":\"[1]\"},\n  \"c\": {\"data\":\"\uFFFD\"},\n  \"d\": null\n}\n");
}

TEST(DefaultsFileCoding, KeepsForeignValues) {
    for (const std::string text :
         {"null", "[1,{\"a\":null}]", "{}", "{\"data\":\"x\",\"more\":1}", "{\"other\":1.5}", "18446744073709551615"}) {
        const auto decoded = decodeDefaults("\xEF\xBB\xBF {\"k\" : " + text + "}");
        ASSERT_TRUE(decoded) << text << decoded.error().message;
        EXPECT_EQ(decoded->at("k"), StoredValue(ForeignValue{text}));
        EXPECT_EQ(encodeDefaults(*decoded), "{\n  \"k\": " + text + "\n}\n");
    }
}

TEST(DefaultsFileCoding, SaysWhatIsDamaged) {
    const std::string deep(20'000, '[');
    const std::string form = "the value of \"k\" has no known form";
    for (const auto& [text, expected] : std::initializer_list<std::pair<std::string, std::string>>{
             {"", "line 1 is not JSON"},
             {"{\n\n\"a\":\"\xFF\"}", "line 3 is not JSON"},
             {std::string("{\"a\":1}\0x", 9), "it holds zero bytes"},
             {deep, "line 1 is not JSON"},
             {"{\"a\":" + deep + std::string(deep.size(), ']') + "}", "it is nested too deep"},
             {"[1]", "it is not a JSON object"},
             {"1e400", "it holds a number that is too large"},
             {R"({"k":{"data":5}})", form}}) {
        const auto decoded = decodeDefaults(text);
        EXPECT_EQ(decoded ? "decoded" : decoded.error().message, expected) << text.substr(0, 40);
    }
}
