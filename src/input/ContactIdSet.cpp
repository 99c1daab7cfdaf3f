#include "input/ContactIdSet.h"

#include <cstdint>

namespace kinesta {

bool ContactIdSet::isSetOfReordered(std::span<const TouchSample> samples) const {
    if (samples.size() < m_ids.size())
        return false;
    if (m_ids.size() > kInlineContacts)
        return *this == ContactIdSet(samples);
    // Every sample must be an element, and every element must have been met: the same id may come twice.
    std::uint32_t met = 0;
    for (const TouchSample& sample : samples) {
        const ContactId* found = std::find(m_ids.begin(), m_ids.end(), sample.id);
        if (found == m_ids.end())
            return false;
        met |= 1U << (found - m_ids.begin());
    }
    return met == (1U << m_ids.size()) - 1;
}

void ContactIdSet::assign(std::span<const TouchSample> samples) {
    m_ids.clear();
    for (const TouchSample& sample : samples)
        if (samples.size() > kInlineContacts || !contains(sample.id))
            m_ids.push_back(sample.id);
    if (m_ids.size() <= kInlineContacts)
        return;
    std::sort(m_ids.begin(), m_ids.end());
    m_ids.truncate(static_cast<std::size_t>(std::unique(m_ids.begin(), m_ids.end()) - m_ids.begin()));
}

void ContactIdSet::insert(ContactId id) {
    if (contains(id))
        return;
    m_ids.push_back(id);
    if (m_ids.size() == kInlineContacts + 1)
        std::sort(m_ids.begin(), m_ids.end());
    else if (m_ids.size() > kInlineContacts)
        std::rotate(std::upper_bound(m_ids.begin(), m_ids.end() - 1, id), m_ids.end() - 1, m_ids.end());
}

void ContactIdSet::intersect(const ContactIdSet& other) {
    ContactId* end = std::remove_if(m_ids.begin(), m_ids.end(), [&](ContactId id) { return !other.contains(id); });
    m_ids.truncate(static_cast<std::size_t>(end - m_ids.begin()));
}

}  // namespace kinesta
