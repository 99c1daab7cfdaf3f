#pragma once

#include <string>
#include <utility>
#include <variant>

namespace kinesta {

/// What went wrong, as one plain sentence for the user: what, where, what to do.
struct Error {
    std::string message;
};

/// A value, or the error that prevented it.
template <typename T>
class [[nodiscard]] Result {
  public:
    Result(T value) : m_content(std::in_place_index<0>, std::move(value)) {}
    Result(Error error) : m_content(std::in_place_index<1>, std::move(error)) {}

    bool isValue() const { return m_content.index() == 0; }
    explicit operator bool() const { return isValue(); }

    /// The value. Only when isValue().
    T& value() { return *std::get_if<0>(&m_content); }
    const T& value() const { return *std::get_if<0>(&m_content); }
    T* operator->() { return &value(); }
    const T* operator->() const { return &value(); }
    T& operator*() { return value(); }
    const T& operator*() const { return value(); }

    /// The error. Only when not isValue().
    const Error& error() const { return *std::get_if<1>(&m_content); }

  private:
    std::variant<T, Error> m_content;
};

/// Success or an error.
using Outcome = Result<std::monostate>;

inline Outcome success() { return std::monostate{}; }

}  // namespace kinesta
