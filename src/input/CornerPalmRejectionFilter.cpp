#include "input/CornerPalmRejectionFilter.h"

namespace kinesta {

std::span<const TouchSample> CornerPalmRejectionFilter::process(std::span<const TouchSample> samples) {
    if (!m_settings.isEnabled) {
        reset();
        return samples;
    }
    if (!m_tracked.isSetOf(samples))
        takeChangedContacts(samples);
    if (m_rejected.empty())
        return samples;
    m_kept.clear();
    for (const TouchSample& sample : samples)
        if (!m_rejected.contains(sample.id))
            m_kept.push_back(sample);
    return m_kept;
}

void CornerPalmRejectionFilter::reset() {
    m_tracked.clear();
    m_rejected.clear();
}

void CornerPalmRejectionFilter::takeChangedContacts(std::span<const TouchSample> samples) {
    if (samples.empty()) {
        reset();
        return;
    }
    const ContactIdSet current(samples);
    if (!m_rejected.empty())
        m_rejected.intersect(current);
    for (const TouchSample& sample : samples)
        if (!m_tracked.contains(sample.id) && m_settings.contains(sample.position))
            m_rejected.insert(sample.id);
    m_tracked = current;
}

}  // namespace kinesta
