#include "support/Json.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <utility>

namespace kinesta {

namespace {

using Value = nlohmann::ordered_json;

std::string written(const Value& value) { return value.dump(-1, ' ', false, Value::error_handler_t::replace); }

bool isPlain(char c) { return c >= ' ' && c <= '~' && c != '"' && c != '\\'; }

std::string quoted(std::string_view text) {
    // Most texts, without the library: a list of a thousand rules is written at each keystroke.
    if (!std::ranges::all_of(text, isPlain))
        return written(Value(text));
    std::string quoted;
    quoted.reserve(text.size() + 2);
    return quoted.append(1, '"').append(text).append(1, '"');
}

void append(std::string& list, std::string_view element) {
    const char end = list.back();
    list.pop_back();
    if (list.size() > 1)
        list += ',';
    list.append(element).append(1, end);
}

}  // namespace

/// Kept as it is written on one line.
struct Json::Tree {
    std::string text;
};

Json::Json(std::nullptr_t) : m_tree(new Tree{"null"}) {}
Json::Json(bool value) : m_tree(new Tree{value ? "true" : "false"}) {}
Json::Json(Integer number) : m_tree(new Tree{std::to_string(number.value)}) {}
Json::Json(double value) : m_tree(new Tree{written(value)}) {}
Json::Json(std::string_view text) : m_tree(new Tree{quoted(text)}) {}

Json::Json(std::initializer_list<Member> members) : m_tree(new Tree{"{}"}) {
    for (const Member& member : members)
        set(member.key, member.value);
}

Json Json::array(std::initializer_list<Json> elements) {
    Json array;
    array.m_tree->text = "[]";
    for (const Json& element : elements)
        array.push_back(element);
    return array;
}

Json::Json(const Json& other) : m_tree(new Tree(*other.m_tree)) {}
Json::Json(Json&& other) noexcept = default;
Json& Json::operator=(Json other) noexcept {
    m_tree = std::move(other.m_tree);
    return *this;
}
Json::~Json() = default;

void Json::set(const char* key, Json value) {
    if (m_tree->text == "null")
        m_tree->text = "{}";
    append(m_tree->text, quoted(key) + ':' + value.m_tree->text);
}

void Json::push_back(Json element) { append(m_tree->text, element.m_tree->text); }

std::string Json::text(int indent) const { return indent < 0 ? m_tree->text : Value::parse(m_tree->text).dump(indent); }

}  // namespace kinesta
