#pragma once

#include <span>

#include "input/ContactIdSet.h"
#include "input/CornerPalmRejectionSettings.h"

namespace kinesta {

/// Takes the palms out of contact frames: a contact that starts in a corner is one for its whole life, wherever it
/// goes; a contact that starts elsewhere never is. Not thread-safe.
class CornerPalmRejectionFilter {
  public:
    CornerPalmRejectionFilter() = default;
    explicit CornerPalmRejectionFilter(const CornerPalmRejectionSettings& settings) : m_settings(settings) {}

    const CornerPalmRejectionSettings& settings() const { return m_settings; }

    /// Contacts on the pad are judged by where they started, whatever the settings become meanwhile.
    void setSettings(const CornerPalmRejectionSettings& settings) { m_settings = settings; }

    /// The samples that are no palms, in their order: `samples` itself if none is, else a view of storage of the
    /// filter that holds until the next call.
    std::span<const TouchSample> process(std::span<const TouchSample> samples);

    /// Forgets all contacts; those on the pad count as new in the next frame.
    void reset();

  private:
    void takeChangedContacts(std::span<const TouchSample> samples);

    CornerPalmRejectionSettings m_settings;
    ContactIdSet m_trackedIDs;   // the contacts of the frame before
    ContactIdSet m_rejectedIDs;  // those of them that are palms
    TouchSamples m_kept;
};

}  // namespace kinesta
