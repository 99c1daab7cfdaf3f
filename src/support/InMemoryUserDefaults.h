#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "support/StoredValue.h"
#include "support/UserDefaults.h"

namespace kinesta {

/// Settings kept in memory, and the base of implementations that also store them. Main thread only.
class InMemoryUserDefaults : public UserDefaults {
  public:
    const StoredValues& values() const { return m_values; }

    bool contains(std::string_view key) const override;
    std::optional<bool> boolean(std::string_view key) const override;
    std::optional<std::int64_t> integer(std::string_view key) const override;
    std::optional<double> real(std::string_view key) const override;
    std::optional<std::string> string(std::string_view key) const override;
    std::optional<std::string> data(std::string_view key) const override;
    std::optional<std::string> anyAsText(std::string_view key) const override;

    void setBoolean(std::string_view key, bool value) override;
    void setInteger(std::string_view key, std::int64_t value) override;
    void setReal(std::string_view key, double value) override;
    void setString(std::string_view key, std::string value) override;
    void setData(std::string_view key, std::string bytes) override;
    void remove(std::string_view key) override;

  protected:
    /// Called after the value of `key` was set or removed.
    virtual void didChange(std::string_view key);
    void replaceValues(StoredValues values) { m_values = std::move(values); }

  private:
    void set(std::string_view key, StoredValue value);

    StoredValues m_values;
};

}  // namespace kinesta
