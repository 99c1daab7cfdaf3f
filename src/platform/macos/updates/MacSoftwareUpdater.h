#pragma once

#include <memory>

#include "app/SoftwareUpdater.h"

namespace kinesta {

/// The update framework inside the application's bundle. It is loaded at run time, so that a build without it starts as
/// well. Main thread only.
class MacSoftwareUpdater final : public SoftwareUpdater {
  public:
    /// Null if the bundle has no such framework, or one without something that we need.
    static std::unique_ptr<SoftwareUpdater> make();

    MacSoftwareUpdater(const MacSoftwareUpdater&) = delete;
    MacSoftwareUpdater& operator=(const MacSoftwareUpdater&) = delete;
    ~MacSoftwareUpdater() override;

    void start() override;
    void checkForUpdates() override;
    const Published<bool>& canCheckForUpdates() const override { return m_canCheckForUpdates; }
    const Published<bool>& automaticallyChecksForUpdates() const override { return m_automaticallyChecksForUpdates; }
    void setAutomaticallyChecksForUpdates(bool isAutomatic) override;

  private:
    struct Impl;

    explicit MacSoftwareUpdater(std::unique_ptr<Impl> impl);

    Published<bool> m_canCheckForUpdates{false};
    Published<bool> m_automaticallyChecksForUpdates{false};
    std::unique_ptr<Impl> m_impl;
};

}  // namespace kinesta
