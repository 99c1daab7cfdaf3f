#pragma once

#include <cstdint>
#include <utility>

#include "support/Observers.h"

namespace kinesta {

/// A value with observers. Main thread only. Observers may subscribe, unsubscribe and set the value again from within
/// their callback.
template <typename T>
class Published {
  public:
    using Observer = typename Observers<const T&>::Observer;

    Published() = default;
    explicit Published(T value) : m_value(std::move(value)) {}
    Published(const Published&) = delete;
    Published& operator=(const Published&) = delete;

    const T& value() const { return m_value; }

    /// Stores `value` and calls every observer, even if the value is unchanged.
    void set(T value) {
        m_value = std::move(value);
        const std::uint64_t change = ++m_changes;
        // After a nested set() every observer has the newer value.
        m_observers.notify([&] { return change == m_changes; }, m_value);
    }

    /// Calls `observer` after every later set(), until the subscription ends.
    [[nodiscard]] Subscription observe(Observer observer) const { return m_observers.add(std::move(observer)); }

  private:
    T m_value{};
    std::uint64_t m_changes = 0;
    mutable Observers<const T&> m_observers;  // const readers may observe
};

}  // namespace kinesta
