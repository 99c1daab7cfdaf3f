#pragma once

#include <cstdint>
#include <memory>

namespace kinesta {

/// The handle of something that an owner keeps under a number: delayed work, an installed monitor. Destroying or
/// replacing the handle cancels it. Main thread only; must not outlive the owner.
template <typename Owner>
class Registration {
  public:
    Registration() = default;
    Registration(Owner* owner, std::uint64_t id) : m_owner(owner, Cancel{id}) {}

    /// Does nothing if there is nothing left to cancel.
    void cancel() { m_owner.reset(); }

  private:
    struct Cancel {
        std::uint64_t id = 0;
        void operator()(Owner* owner) const { owner->cancel(id); }
    };

    std::unique_ptr<Owner, Cancel> m_owner;
};

}  // namespace kinesta
