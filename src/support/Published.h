#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace kinesta {

/// Ends an observation when it is destroyed. May outlive what it observes.
class Subscription {
  public:
    Subscription() = default;
    explicit Subscription(std::shared_ptr<bool> isActive) : m_isActive(std::move(isActive)) {}
    Subscription(Subscription&&) noexcept = default;
    Subscription& operator=(Subscription&& other) noexcept {
        if (this != &other) {
            end();
            m_isActive = std::move(other.m_isActive);
        }
        return *this;
    }
    ~Subscription() { end(); }

    void end() {
        if (m_isActive)
            *m_isActive = false;
        m_isActive.reset();
    }

  private:
    std::shared_ptr<bool> m_isActive;
};

/// A value with observers. Main thread only. Observers may subscribe, unsubscribe and set the
/// value again from within their callback.
template <typename T>
class Published {
  public:
    using Observer = std::function<void(const T&)>;

    Published() = default;
    explicit Published(T value) : m_value(std::move(value)) {}
    Published(const Published&) = delete;
    Published& operator=(const Published&) = delete;

    const T& value() const { return m_value; }

    /// Stores `value` and calls every observer, even if the value is unchanged.
    void set(T value) {
        m_value = std::move(value);
        const std::uint64_t change = ++m_changes;
        // By index and up to the present size: a callback may subscribe, which may move the list; the newcomer
        // has seen this value already. A nested set() has told everyone the newer value: nothing is left to say.
        const std::size_t present = m_observers.size();
        ++m_depth;
        for (std::size_t i = 0; i < present && change == m_changes; ++i) {
            const auto entry = m_observers[i];
            if (*entry->isActive)
                entry->observer(m_value);
        }
        if (--m_depth == 0)
            std::erase_if(m_observers, [](const auto& entry) { return !*entry->isActive; });
    }

    /// Calls `observer` after every later set(), until the subscription ends.
    [[nodiscard]] Subscription observe(Observer observer) const {
        auto isActive = std::make_shared<bool>(true);
        m_observers.push_back(std::make_shared<Entry>(Entry{isActive, std::move(observer)}));
        return Subscription(std::move(isActive));
    }

  private:
    struct Entry {
        std::shared_ptr<bool> isActive;
        Observer observer;
    };

    T m_value{};
    std::uint64_t m_changes = 0;
    int m_depth = 0;
    mutable std::vector<std::shared_ptr<Entry>> m_observers;  // who may read may follow
};

}  // namespace kinesta
