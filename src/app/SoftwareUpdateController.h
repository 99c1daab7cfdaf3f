#pragma once

#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "app/BundleInformation.h"
#include "app/SoftwareUpdater.h"
#include "support/Result.h"

namespace kinesta {

/// Where updates come from, as the build says.
struct UpdateConfiguration {
    /// An https address with a host.
    std::string feed;
    /// The Ed25519 public key, 32 bytes, that signs every release.
    std::string publicKey;
};

/// Whether updates can be checked for, and how. A build without a feed or a signing key gets no updater at all, so it
/// can never offer something unsigned. Main thread only.
class SoftwareUpdateController {
  public:
    /// The bundle's keys.
    static constexpr std::string_view feedKey = "SUFeedURL";
    static constexpr std::string_view publicKeyKey = "SUPublicEDKey";

    /// What `bundle` says, or why it is not enough.
    static Result<UpdateConfiguration> configuration(const BundleInformation& bundle);

    using MakeUpdater = std::function<std::unique_ptr<SoftwareUpdater>(const UpdateConfiguration&)>;

    /// Checks the configuration in `bundle`, and calls `makeUpdater` only if it is valid. It may give null if the build
    /// lacks an updater.
    SoftwareUpdateController(const BundleInformation& bundle, const MakeUpdater& makeUpdater);

    const Published<bool>& isAvailable() const { return m_isAvailable; }
    const Published<bool>& canCheckForUpdates() const { return m_canCheckForUpdates; }
    const Published<bool>& automaticallyChecksForUpdates() const { return m_automaticallyChecksForUpdates; }
    /// Why updating is unavailable; absent if it is available.
    const Published<std::optional<std::string>>& configurationMessage() const { return m_configurationMessage; }

    /// Starts the updater and follows it. Later calls do nothing.
    void start();
    void checkForUpdates();
    void setAutomaticallyChecksForUpdates(bool isAutomatic);

    /// What a check may tell the feed about this machine: nothing.
    static std::vector<std::string> allowedSystemProfileKeys() { return {}; }

  private:
    std::unique_ptr<SoftwareUpdater> m_updater;
    Published<bool> m_isAvailable{false};
    Published<bool> m_canCheckForUpdates{false};
    Published<bool> m_automaticallyChecksForUpdates{false};
    Published<std::optional<std::string>> m_configurationMessage;
    Subscription m_canCheckObservation;
    Subscription m_automaticCheckObservation;
    bool m_hasStarted = false;
};

}  // namespace kinesta
