#pragma once

#include <string>
#include <vector>

#include "app/PlatformSettings.h"
#include "app/SoftwareUpdateController.h"
#include "support/StoredValue.h"
#include "support/UserDefaults.h"

namespace kinesta {

/// Puts the settings back as they were at first, and can undo that. Rules stay; so does the start at login, which
/// belongs to the system. Changes only what is stored: afterwards the parts must read it again. Main thread only; the
/// referents must outlive this.
class SettingsReset {
  public:
    /// The settings that differed from the first state.
    struct Backup {
        StoredValues values;
        bool checksForUpdates = false;
    };

    SettingsReset(UserDefaults& defaults, SoftwareUpdateController& updates, const PlatformSettings& platform);

    /// Returns what there was before.
    Backup reset();
    void restore(const Backup& backup);

  private:
    UserDefaults& m_defaults;
    SoftwareUpdateController& m_updates;
    std::vector<std::string> m_keys;
};

}  // namespace kinesta
