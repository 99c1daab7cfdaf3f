#include "app/SoftwareUpdateController.h"

#include "actions/OpenTarget.h"
#include "support/Base64.h"
#include "support/Translation.h"

namespace kinesta {
namespace {

constexpr std::size_t kPublicKeyLength = 32;

}  // namespace

Result<UpdateConfiguration> SoftwareUpdateController::configuration(const BundleInformation& bundle) {
    const auto feed = bundle.string(feedKey);
    if (!feed || !isSecureWebAddress(*feed))
        return Error{translated("The update feed is not configured in this build.")};
    const auto encoded = bundle.string(publicKeyKey);
    const auto key = encoded ? fromBase64(*encoded) : std::nullopt;
    if (!key || key->size() != kPublicKeyLength)
        return Error{translated("Update signing is not configured in this development build.")};
    return UpdateConfiguration{*feed, *key};
}

SoftwareUpdateController::SoftwareUpdateController(const BundleInformation& bundle, const MakeUpdater& makeUpdater) {
    const auto valid = configuration(bundle);
    if (!valid) {
        m_configurationMessage.set(valid.error().message);
        return;
    }
    m_updater = makeUpdater(*valid);
    if (m_updater)
        m_isAvailable.set(true);
    else
        m_configurationMessage.set(translated("The part that updates Kinesta is missing. Install Kinesta again."));
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
