#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kinesta {

/// A number as JSON text has it.
struct JsonNumber {
    double value = 0;
    /// The same, if it is whole (250, also 250.0) and fits.
    std::optional<std::int64_t> integer;
};

/// Reads one JSON text from front to end without building anything from it. A recording has one such text for every
/// frame: the tokenizer of the JSON library used elsewhere takes three times as long as all of the reading here.
///
/// Every verb answers nothing, or false, if the text is not as the verb expects; problem() then says why, and every
/// later verb fails too.
class JsonScanner {
  public:
    enum class Kind { object, array, string, number, boolean, null, none };

    /// Objects and arrays within each other at most.
    static constexpr int kMaximumDepth = 100;

    explicit JsonScanner(std::string_view text) : m_text(text) {}

    /// What kind of value comes next; none if what comes begins no value.
    Kind kind();

    bool beginObject();
    /// The key of the object's next member, before its value. Nothing after the last one: the object is then done.
    /// Valid until the next verb.
    std::optional<std::string_view> nextKey();

    bool beginArray();
    /// Whether the array has another element. If not, the array is done.
    bool nextElement();

    std::optional<JsonNumber> number();
    /// Valid until the next verb.
    std::optional<std::string_view> string();
    std::optional<bool> boolean();
    bool skipValue() { return skipValue(0); }

    /// Whether nothing but white space is left.
    bool end();

    /// What is wrong with the text; empty as long as nothing is.
    std::string_view problem() const { return m_problem; }

  private:
    bool skipValue(int depth);
    void skipSpace();
    bool take(char expected);
    bool takeWord(std::string_view word);
    bool fail(std::string_view problem);
    bool unescape();
    std::optional<std::uint32_t> hexDigits();

    char next() const { return m_at < m_text.size() ? m_text[m_at] : '\0'; }

    std::string_view m_text;
    std::size_t m_at = 0;
    bool m_isFirst = false;  // nothing read yet of the innermost object or array
    std::string_view m_problem;
    std::string m_unescaped;
};

}  // namespace kinesta
