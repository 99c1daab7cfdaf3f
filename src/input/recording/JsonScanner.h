#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kinesta {

/// A number in JSON.
struct JsonNumber {
    double value = 0;
    /// The same, if it is whole (250, also 250.0) and fits.
    std::optional<std::int64_t> integer;
};

/// Reads one JSON text from front to end and builds nothing. A recording has one text for every frame, and the
/// tokenizer of the JSON library takes three times as long as this.
///
/// Every function returns nothing, or false, if the text is not as expected; problem() then says why, and every later
/// call fails too.
class JsonScanner {
  public:
    enum class Kind { object, array, string, number, boolean, null, none };

    /// Levels of nested objects and arrays at most.
    static constexpr int kMaximumDepth = 100;

    explicit JsonScanner(std::string_view text) : m_text(text) {}

    /// The kind of the next value; none if no value follows.
    Kind kind();

    bool beginObject();
    /// The key of the object's next member, valid until the next call; its value follows. Nothing after the last one.
    std::optional<std::string_view> nextKey();

    bool beginArray();
    /// Whether the array has another element.
    bool nextElement();

    std::optional<JsonNumber> number();
    /// Valid until the next call.
    std::optional<std::string_view> string();
    std::optional<bool> boolean();
    bool skipValue() { return skipValue(0); }

    /// Whether nothing but white space is left.
    bool end();

    /// What is wrong with the text, or empty.
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
    bool m_isFirst = false;  // at the start of the innermost object or array
    std::string_view m_problem;
    std::string m_unescaped;
};

}  // namespace kinesta
