#include "support/InMemoryUserDefaults.h"

#include <utility>
#include <variant>

#include "support/Text.h"

namespace kinesta {
namespace {

template <typename T>
const T* find(const StoredValues& values, std::string_view key) {
    const auto found = values.find(key);
    return found == values.end() ? nullptr : std::get_if<T>(&found->second);
}

template <typename T>
std::optional<T> read(const StoredValues& values, std::string_view key) {
    const T* value = find<T>(values, key);
    return value ? std::optional(*value) : std::nullopt;
}

struct AsText {
    std::string operator()(bool value) const { return value ? "true" : "false"; }
    std::string operator()(std::int64_t value) const { return std::to_string(value); }
    std::string operator()(double value) const { return numberText(value); }
    std::string operator()(const std::string& value) const { return value; }
    std::string operator()(const StoredData& value) const { return value.bytes; }
    std::string operator()(const ForeignValue& value) const { return value.text; }
};

}  // namespace

bool InMemoryUserDefaults::contains(std::string_view key) const { return m_values.contains(key); }

std::optional<bool> InMemoryUserDefaults::boolean(std::string_view key) const { return read<bool>(m_values, key); }

std::optional<std::int64_t> InMemoryUserDefaults::integer(std::string_view key) const {
    return read<std::int64_t>(m_values, key);
}

std::optional<double> InMemoryUserDefaults::real(std::string_view key) const {
    if (const auto* integer = find<std::int64_t>(m_values, key))
        return static_cast<double>(*integer);
    return read<double>(m_values, key);
}

std::optional<std::string> InMemoryUserDefaults::string(std::string_view key) const {
    return read<std::string>(m_values, key);
}

std::optional<std::string> InMemoryUserDefaults::data(std::string_view key) const {
    const auto* data = find<StoredData>(m_values, key);
    return data ? std::optional(data->bytes) : std::nullopt;
}

std::optional<std::string> InMemoryUserDefaults::anyAsText(std::string_view key) const {
    const auto found = m_values.find(key);
    return found == m_values.end() ? std::nullopt : std::optional(std::visit(AsText(), found->second));
}

void InMemoryUserDefaults::setBoolean(std::string_view key, bool value) { set(key, value); }

void InMemoryUserDefaults::setInteger(std::string_view key, std::int64_t value) { set(key, value); }

void InMemoryUserDefaults::setReal(std::string_view key, double value) { set(key, value); }

void InMemoryUserDefaults::setString(std::string_view key, std::string value) { set(key, std::move(value)); }

void InMemoryUserDefaults::setData(std::string_view key, std::string bytes) { set(key, StoredData{std::move(bytes)}); }

void InMemoryUserDefaults::remove(std::string_view key) {
    if (const auto found = m_values.find(key); found != m_values.end())
        m_values.erase(found);
    didChange(key);
}

void InMemoryUserDefaults::didChange(std::string_view) {}

void InMemoryUserDefaults::set(std::string_view key, StoredValue value) {
    m_values.insert_or_assign(std::string(key), std::move(value));
    didChange(key);
}

}  // namespace kinesta
