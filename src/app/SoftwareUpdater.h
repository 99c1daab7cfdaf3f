#pragma once

#include "support/Published.h"

namespace kinesta {

/// The port to what checks the update feed. Main thread only.
class SoftwareUpdater {
  public:
    virtual ~SoftwareUpdater() = default;

    /// Begins the automatic checks, if they are on. Called once, before everything else.
    virtual void start() = 0;
    /// Checks now because the person asked, and shows what it finds.
    virtual void checkForUpdates() = 0;

    virtual const Published<bool>& canCheckForUpdates() const = 0;
    virtual const Published<bool>& automaticallyChecksForUpdates() const = 0;
    virtual void setAutomaticallyChecksForUpdates(bool isAutomatic) = 0;
};

}  // namespace kinesta
