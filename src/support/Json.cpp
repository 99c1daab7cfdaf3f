#include "support/Json.h"

#include <nlohmann/json.hpp>
#include <utility>

namespace kinesta {

struct Json::Tree {
    nlohmann::ordered_json json;
};

Json::Json(std::nullptr_t) : m_tree(new Tree{nullptr}) {}
Json::Json(bool value) : m_tree(new Tree{value}) {}
Json::Json(Integer number) : m_tree(new Tree{number.value}) {}
Json::Json(double value) : m_tree(new Tree{value}) {}
Json::Json(std::string_view text) : m_tree(new Tree{text}) {}

Json::Json(std::initializer_list<Member> members) : m_tree(new Tree{nlohmann::ordered_json::object()}) {
    for (const Member& member : members)
        set(member.key, member.value);
}

Json Json::array(std::initializer_list<Json> elements) {
    Json array;
    array.m_tree->json = nlohmann::ordered_json::array();
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

void Json::set(const char* key, Json value) { m_tree->json[key] = std::move(value.m_tree->json); }

void Json::push_back(Json element) { m_tree->json.push_back(std::move(element.m_tree->json)); }

std::string Json::text(int indent) const {
    return m_tree->json.dump(indent, ' ', false, nlohmann::ordered_json::error_handler_t::replace);
}

}  // namespace kinesta
