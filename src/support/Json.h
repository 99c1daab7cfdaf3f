#pragma once

#include <concepts>
#include <cstdint>
#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>

namespace kinesta {

/// A JSON value for writing. Members keep their order; bytes that are not UTF-8 become U+FFFD. Quick to compile, unlike
/// the header of the library behind it.
class Json {
  public:
    struct Member;

    Json(std::nullptr_t = nullptr);
    Json(bool value);
    template <std::integral Number>
    requires(!std::same_as<Number, bool>) Json(Number value) : Json(Integer{static_cast<std::int64_t>(value)}) {}
    Json(double value);
    Json(std::string_view text);
    Json(const std::string& text) : Json(std::string_view(text)) {}
    Json(const char* text) : Json(std::string_view(text)) {}
    /// An object: {{"key", value}, …}.
    Json(std::initializer_list<Member> members);
    static Json array(std::initializer_list<Json> elements = {});

    Json(const Json& other);
    Json(Json&& other) noexcept;
    Json& operator=(Json other) noexcept;
    ~Json();

    /// Adds a member to an object, which does not have it yet. Null becomes an object.
    void set(const char* key, Json value);
    /// Appends to an array.
    void push_back(Json element);

    /// On one line, or with each level indented by `indent` spaces.
    std::string text(int indent = -1) const;

  private:
    struct Integer {
        std::int64_t value;
    };
    struct Tree;

    explicit Json(Integer number);

    std::unique_ptr<Tree> m_tree;
};

struct Json::Member {
    const char* key;
    Json value;
};

}  // namespace kinesta
