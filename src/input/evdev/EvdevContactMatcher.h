#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "input/TouchSample.h"

namespace kinesta {

/// Follows contacts in the kernel's older multitouch protocol, whose reports list contacts without identifiers: each
/// takes the identifier of the nearest one in the report before.
class EvdevContactMatcher {
  public:
    /// Contacts in one report; those beyond are ignored. Matching takes cubic time.
    static constexpr std::size_t kMaximumContacts = 64;

    struct Contact {
        ContactId id = 0;
        std::int32_t x = 0;
        std::int32_t y = 0;
        /// Sent with a touch size of 0: the finger has left, although some drivers go on listing it.
        bool isLifted = false;
        bool isMatched = false;
    };

    EvdevContactMatcher();

    void setX(std::int32_t value) { m_pending.x = value; }
    void setY(std::int32_t value) { m_pending.y = value; }
    void setTouchMajor(std::int32_t value) { m_pending.touchMajor = value; }
    void setTrackingId(std::int32_t value) { m_pending.trackingId = value; }

    /// Ends one contact of the report.
    void finishContact();

    /// Ends the report: what it listed becomes the present contacts.
    void finishReport();

    /// Forgets the unfinished report; the present contacts stay.
    void discardReport();

    /// The contacts of the last finished report in the driver's order, lifted ones among them.
    const std::vector<Contact>& contacts() const { return m_present; }

  private:
    struct Pending {
        std::optional<std::int32_t> x;
        std::optional<std::int32_t> y;
        std::optional<std::int32_t> touchMajor;
        std::optional<std::int32_t> trackingId;
    };

    void matchNearest();
    ContactId newId();

    Pending m_pending;
    std::vector<Contact> m_reported;
    std::vector<Contact> m_present;
    ContactId m_lastId = 0;
};

}  // namespace kinesta
