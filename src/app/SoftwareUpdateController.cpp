#include "app/SoftwareUpdateController.h"

#include "actions/OpenTarget.h"
#include "support/Base64.h"
#include "support/Result.h"

namespace kinesta {
namespace {

constexpr std::size_t kPublicKeyLength = 32;

Result<UpdateConfiguration> configurationIn(const BundleInformation& bundle) {
    const auto feed = bundle.string(SoftwareUpdateController::feedKey);
    if (!feed || !isSecureWebAddress(*feed))
        return Error{"The update feed is not configured in this build."};
    const auto encoded = bundle.string(SoftwareUpdateController::publicKeyKey);
    const auto key = encoded ? fromBase64(*encoded) : std::nullopt;
    if (!key || key->size() != kPublicKeyLength)
        return Error{"Update signing is not configured in this development build."};
    return UpdateConfiguration{*feed, *key};
}

}  // namespace

SoftwareUpdateController::SoftwareUpdateController(const BundleInformation& bundle, const MakeUpdater& makeUpdater) {
    const auto configuration = configurationIn(bundle);
    if (!configuration) {
        m_configurationMessage.set(configuration.error().message);
        return;
    }
    m_updater = makeUpdater(*configuration);
    m_isAvailable.set(true);
}

void SoftwareUpdateController::start() {
    if (!m_updater || m_hasStarted)
        return;
    m_hasStarted = true;
    m_updater->start();
    const auto follow = [](const Published<bool>& source, Published<bool>& copy) {
        copy.set(source.value());
        return source.observe([&copy](bool value) { copy.set(value); });
    };
    m_canCheckObservation = follow(m_updater->canCheckForUpdates(), m_canCheckForUpdates);
    m_automaticCheckObservation = follow(m_updater->automaticallyChecksForUpdates(), m_automaticallyChecksForUpdates);
}

void SoftwareUpdateController::checkForUpdates() {
    if (m_updater)
        m_updater->checkForUpdates();
}

void SoftwareUpdateController::setAutomaticallyChecksForUpdates(bool isAutomatic) {
    if (m_updater)
        m_updater->setAutomaticallyChecksForUpdates(isAutomatic);
}

}  // namespace kinesta
