#pragma once

#include <span>

#include "input/ContactIdSet.h"
#include "input/CornerPalmRejectionSettings.h"

namespace kinesta {

/// Removes palms from contact frames. A contact that starts in a corner is a palm until it lifts; a contact that starts
/// elsewhere never is. Not thread-safe.
class CornerPalmRejectionFilter {
  public:
    CornerPalmRejectionFilter() = default;
    explicit CornerPalmRejectionFilter(const CornerPalmRejectionSettings& settings) : m_settings(settings) {}

    const CornerPalmRejectionSettings& settings() const { return m_settings; }

    /// Contacts on the pad stay what they are; the settings count for new ones.
    void setSettings(const CornerPalmRejectionSettings& settings) { m_settings = settings; }

    /// The samples that are no palms, in their order: `samples` itself, or a view that is valid until the next call.
    std::span<const TouchSample> process(std::span<const TouchSample> samples);

    /// Forgets all contacts; those on the pad are new in the next frame.
    void reset();

  private:
    std::span<const TouchSample> withoutPalms(std::span<const TouchSample> samples);
    void takeChangedContacts(std::span<const TouchSample> samples);

    CornerPalmRejectionSettings m_settings;
    ContactIdSet m_trackedIDs;   // in the frame before
    ContactIdSet m_rejectedIDs;  // the palms among them
    TouchSamples m_kept;
};

}  // namespace kinesta
