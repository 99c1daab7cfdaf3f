#pragma once

#include <cstdint>
#include <utility>

namespace kinesta {

/// The handle of something that an owner keeps under a number: delayed work, an installed monitor. Destroying or
/// replacing the handle cancels it. Main thread only; must not outlive the owner.
template <typename Owner>
class Registration {
  public:
    Registration() = default;
    Registration(Owner* owner, std::uint64_t id) : m_owner(owner), m_id(id) {}
    Registration(Registration&& other) noexcept : m_owner(std::exchange(other.m_owner, nullptr)), m_id(other.m_id) {}
    Registration& operator=(Registration&& other) noexcept {
        if (this != &other) {
            cancel();
            m_owner = std::exchange(other.m_owner, nullptr);
            m_id = other.m_id;
        }
        return *this;
    }
    ~Registration() { cancel(); }

    /// Does nothing if there is nothing left to cancel.
    void cancel() {
        if (Owner* owner = std::exchange(m_owner, nullptr))
            owner->cancel(m_id);
    }

  private:
    Owner* m_owner = nullptr;
    std::uint64_t m_id = 0;
};

}  // namespace kinesta
