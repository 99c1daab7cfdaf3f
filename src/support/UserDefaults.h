#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kinesta {

/// The port to the user's stored settings: typed values under string keys. Main thread only.
///
/// A reader returns nothing if the key is absent or holds another type; `contains` distinguishes the two. `real` also
/// reads integers. Writers store at once. If storing fails, the implementation reports it and this process still reads
/// the new value.
class UserDefaults {
  public:
    virtual ~UserDefaults() = default;

    virtual bool contains(std::string_view key) const = 0;
    virtual std::optional<bool> boolean(std::string_view key) const = 0;
    virtual std::optional<std::int64_t> integer(std::string_view key) const = 0;
    virtual std::optional<double> real(std::string_view key) const = 0;
    virtual std::optional<std::string> string(std::string_view key) const = 0;
    /// Arbitrary bytes.
    virtual std::optional<std::string> data(std::string_view key) const = 0;
    /// The value as text, of any type: data and strings as they are, all others as JSON.
    virtual std::optional<std::string> anyAsText(std::string_view key) const = 0;

    virtual void setBoolean(std::string_view key, bool value) = 0;
    virtual void setInteger(std::string_view key, std::int64_t value) = 0;
    virtual void setReal(std::string_view key, double value) = 0;
    virtual void setString(std::string_view key, std::string value) = 0;
    virtual void setData(std::string_view key, std::string bytes) = 0;
    virtual void remove(std::string_view key) = 0;
};

}  // namespace kinesta
