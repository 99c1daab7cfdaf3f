#include "input/CornerPalmRejectionFilter.h"

namespace kinesta {

std::span<const TouchSample> CornerPalmRejectionFilter::process(std::span<const TouchSample> samples) {
    if (!m_settings.isEnabled) {
        reset();
        return samples;
    }
    if (!m_trackedIDs.isSetOf(samples))
        takeChangedContacts(samples);
    return m_rejectedIDs.empty() ? samples : withoutPalms(samples);
}

std::span<const TouchSample> CornerPalmRejectionFilter::withoutPalms(std::span<const TouchSample> samples) {
    m_kept.clear();
    for (const TouchSample& sample : samples)
        if (!m_rejectedIDs.contains(sample.id))
            m_kept.push_back(sample);
    return m_kept;
}

void CornerPalmRejectionFilter::reset() {
    m_trackedIDs.clear();
    m_rejectedIDs.clear();
}

void CornerPalmRejectionFilter::takeChangedContacts(std::span<const TouchSample> samples) {
    if (samples.empty()) {
        reset();
        return;
    }
    if (!m_rejectedIDs.empty())
        m_rejectedIDs.intersect(ContactIdSet(samples));
    for (const TouchSample& sample : samples)
        if (!m_trackedIDs.contains(sample.id) && m_settings.contains(sample.position))
            m_rejectedIDs.insert(sample.id);
    m_trackedIDs.assign(samples);
}

}  // namespace kinesta
