#pragma once

#include <cstdint>
#include <memory>
#include <utility>

namespace kinesta {

/// Observations by number; subscriptions end them.
class Observations {
  public:
    virtual ~Observations() = default;
    virtual void end(std::uint64_t number) = 0;
};

/// Ends an observation when it is destroyed. May outlive what it observes.
class Subscription {
  public:
    Subscription() = default;
    Subscription(std::weak_ptr<Observations> observations, std::uint64_t number)
        : m_observations(std::move(observations)), m_number(number) {}
    Subscription(Subscription&&) noexcept = default;
    Subscription& operator=(Subscription other) noexcept {
        std::swap(m_observations, other.m_observations);
        std::swap(m_number, other.m_number);
        return *this;
    }
    ~Subscription() { end(); }

    void end() {
        if (const auto observations = std::exchange(m_observations, {}).lock())
            observations->end(m_number);
    }

  private:
    std::weak_ptr<Observations> m_observations;
    std::uint64_t m_number = 0;
};

}  // namespace kinesta
