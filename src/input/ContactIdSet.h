#pragma once

#include <algorithm>
#include <span>

#include "input/TouchSample.h"

namespace kinesta {

/// A set of contact identifiers: a small array in the order of arrival, so that comparing frames in the same order is
/// fast; a sorted one if there are many.
class ContactIdSet {
  public:
    ContactIdSet() = default;
    explicit ContactIdSet(std::span<const TouchSample> samples) { assign(samples); }

    bool empty() const { return m_ids.empty(); }
    std::size_t size() const { return m_ids.size(); }
    void clear() { m_ids.clear(); }

    bool contains(ContactId id) const {
        return m_ids.size() <= kInlineContacts ? std::find(m_ids.begin(), m_ids.end(), id) != m_ids.end()
                                               : std::binary_search(m_ids.begin(), m_ids.end(), id);
    }

    /// Whether it is the set of the samples' identifiers, in any order.
    bool isSetOf(std::span<const TouchSample> samples) const { return isListOf(samples) || isSetOfReordered(samples); }

    /// Becomes the set of the samples' identifiers.
    void assign(std::span<const TouchSample> samples);

    void insert(ContactId id);

    /// Removes what `other` does not hold.
    void intersect(const ContactIdSet& other);

    friend bool operator==(const ContactIdSet& a, const ContactIdSet& b) {
        return a.size() == b.size() &&
               std::all_of(a.m_ids.begin(), a.m_ids.end(), [&](ContactId id) { return b.contains(id); });
    }

  private:
    bool isListOf(std::span<const TouchSample> samples) const {
        return m_ids.size() == samples.size() &&
               std::equal(m_ids.begin(), m_ids.end(), samples.begin(),
                          [](ContactId id, const TouchSample& sample) { return id == sample.id; });
    }
    bool isSetOfReordered(std::span<const TouchSample> samples) const;

    InlineVector<ContactId, kInlineContacts> m_ids;
};

}  // namespace kinesta
