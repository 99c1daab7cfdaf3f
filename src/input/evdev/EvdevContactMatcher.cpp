#include "input/evdev/EvdevContactMatcher.h"

#include <algorithm>
#include <limits>

namespace kinesta {
namespace {

double squaredDistance(const EvdevContactMatcher::Contact& a, const EvdevContactMatcher::Contact& b) {
    const double dx = static_cast<double>(a.x) - static_cast<double>(b.x);
    const double dy = static_cast<double>(a.y) - static_cast<double>(b.y);
    return dx * dx + dy * dy;
}

bool holdsId(const std::vector<EvdevContactMatcher::Contact>& contacts, ContactId id) {
    return std::any_of(contacts.begin(), contacts.end(),
                       [id](const auto& contact) { return contact.isMatched && contact.id == id; });
}

}  // namespace

EvdevContactMatcher::EvdevContactMatcher() {
    m_reported.reserve(kMaximumContacts);
    m_present.reserve(kMaximumContacts);
}

void EvdevContactMatcher::finishContact() {
    const Pending pending = m_pending;
    m_pending = {};
    // A driver reports an empty group when no finger is left. A group without a place is no contact either.
    if (!pending.x || !pending.y || m_reported.size() == kMaximumContacts)
        return;
    Contact contact{.x = *pending.x, .y = *pending.y, .isLifted = pending.touchMajor == 0};
    // The few drivers that send identifiers are right.
    if (pending.trackingId && *pending.trackingId >= 0 && !holdsId(m_reported, *pending.trackingId)) {
        contact.id = *pending.trackingId;
        contact.isMatched = true;
    }
    m_reported.push_back(contact);
}

void EvdevContactMatcher::finishReport() {
    m_pending = {};
    for (Contact& old : m_present)
        old.isMatched = holdsId(m_reported, old.id);
    matchNearest();
    for (Contact& contact : m_reported) {
        if (!contact.isMatched) {
            contact.id = newId();
            contact.isMatched = true;
        }
    }
    m_present.swap(m_reported);
    m_reported.clear();
}

void EvdevContactMatcher::discardReport() {
    m_pending = {};
    m_reported.clear();
}

// Includes lifted contacts on both sides. A finger that lands where another has just lifted must get a new identifier,
// and a contact that the driver lists long after its lift must not take the identifier of a finger beside it.
void EvdevContactMatcher::matchNearest() {
    for (;;) {
        Contact* bestNew = nullptr;
        Contact* bestOld = nullptr;
        double best = std::numeric_limits<double>::infinity();
        for (Contact& contact : m_reported) {
            if (contact.isMatched)
                continue;
            for (Contact& old : m_present) {
                if (!old.isMatched && squaredDistance(contact, old) < best) {
                    best = squaredDistance(contact, old);
                    bestNew = &contact;
                    bestOld = &old;
                }
            }
        }
        if (!bestNew)
            return;
        bestOld->isMatched = true;
        bestNew->isMatched = true;
        bestNew->id = bestOld->isLifted && !bestNew->isLifted ? newId() : bestOld->id;
    }
}

ContactId EvdevContactMatcher::newId() {
    const auto isTaken = [this](ContactId id) {
        return holdsId(m_reported, id) || std::any_of(m_present.begin(), m_present.end(),
                                                      [id](const Contact& contact) { return contact.id == id; });
    };
    do {
        m_lastId = m_lastId == std::numeric_limits<ContactId>::max() ? 0 : m_lastId + 1;
    } while (isTaken(m_lastId));
    return m_lastId;
}

}  // namespace kinesta
