#include "ui/models/SettingsModel.h"

#include <cmath>
#include <utility>

#include "feedback/ActionCueSettings.h"
#include "rules/ShellCommandSettings.h"
#include "support/Translation.h"

namespace kinesta {
namespace {

constexpr double kPercent = 100;
constexpr double kTenths = 10;

int inSteps(double value, double steps) { return static_cast<int>(std::lround(value * steps)); }

std::string recognitionProblem(const MultitouchService& service) {
    using Kind = TrackpadContactProviderStatus::Kind;
    const auto& status = service.status().value();
    if (!service.isGestureEnabled().value() || status.kind == Kind::listening)
        return {};
    return status.kind == Kind::stopped ? translated("The trackpad is not being read.") : status.message;
}

std::size_t caseOf(const PlatformChoice& choice, const UserDefaults& defaults) {
    const auto stored = defaults.string(choice.key);
    for (std::size_t i = 0; stored && i < choice.cases.size(); ++i)
        if (choice.cases[i].rawValue == *stored)
            return i;
    return 0;
}

}  // namespace

SettingsModel::Range SettingsModel::durationRange() {
    return {inSteps(ActionCueSettings::minimumDuration, kTenths), inSteps(ActionCueSettings::maximumDuration, kTenths)};
}

SettingsModel::Range SettingsModel::opacityRange() {
    return {inSteps(ActionCueSettings::minimumOpacity, kPercent), inSteps(ActionCueSettings::maximumOpacity, kPercent)};
}

SettingsModel::SettingsModel(Parts parts) : m_parts(std::move(parts)) {
    const auto follow = [this](const auto& published) {
        m_observers.push_back(published.observe([this](const auto&) { refresh(); }));
    };
    follow(m_parts.service.isGestureEnabled());
    follow(m_parts.service.status());
    follow(m_parts.service.tapWaitingInterval());
    follow(m_parts.service.cornerPalmRejection());
    follow(m_parts.launchAtLogin.isEnabled());
    follow(m_parts.launchAtLogin.requiresApproval());
    follow(m_parts.launchAtLogin.errorMessage());
    follow(m_parts.updates.canCheckForUpdates());
    follow(m_parts.updates.automaticallyChecksForUpdates());
    refresh();
}

void SettingsModel::refresh() { m_content.set(read()); }

void SettingsModel::listTrackpads() {
    m_trackpads = m_parts.connectedTrackpads();
    refresh();
}

SettingsContent SettingsModel::read() const {
    const UserDefaults& defaults = m_parts.defaults;
    SettingsContent content;
    content.isGestureEnabled = m_parts.service.isGestureEnabled().value();
    content.recognitionProblem = recognitionProblem(m_parts.service);
    content.tapWaitingInterval = m_parts.service.tapWaitingInterval().value().rawValue();
    content.trackpads = TrackpadChoices::of(m_trackpads, wantedTrackpad());
    const CornerPalmRejectionSettings& palms = m_parts.service.cornerPalmRejection().value();
    content.ignoresPalms = palms.isEnabled;
    content.palmPercent = inSteps(palms.sensitivity, kPercent);
    content.showsCue = ActionCueSettings::isEnabled(defaults);
    content.cuePosition = ActionCueSettings::position(defaults);
    content.cueDuration = inSteps(ActionCueSettings::duration(defaults), kTenths);
    content.cuePercent = inSteps(ActionCueSettings::backgroundOpacity(defaults), kPercent);
    content.runsShellCommands = ShellCommandSettings::isEnabled(defaults);
    content.appearance = AppAppearances::stored(defaults);
    content.launchesAtLogin = m_parts.launchAtLogin.isEnabled().value();
    content.waitsForApproval = m_parts.launchAtLogin.requiresApproval().value();
    content.loginProblem = m_parts.launchAtLogin.errorMessage().value().value_or("");
    readUpdates(content);
    for (const PlatformChoice& choice : m_parts.platform.choices)
        content.platformCases.push_back(caseOf(choice, defaults));
    return content;
}

void SettingsModel::readUpdates(SettingsContent& content) const {
    const SoftwareUpdateController& updates = m_parts.updates;
    content.hasUpdates = updates.isAvailable().value();
    content.canCheckForUpdates = updates.canCheckForUpdates().value();
    content.checksForUpdates = updates.automaticallyChecksForUpdates().value();
    if (!content.hasUpdates)
        content.updateMessage = updates.configurationMessage().value().value_or("");
    else if (!content.canCheckForUpdates)
        content.updateMessage = translated("Looking for an update…");
    else
        content.updateMessage =
            translated("Checks use the signed Kinesta update feed and do not send a hardware profile.");
}

std::string SettingsModel::wantedTrackpad() const {
    return m_parts.platform.trackpadKey.empty() ? std::string()
                                                : m_parts.defaults.string(m_parts.platform.trackpadKey).value_or("");
}

void SettingsModel::setGestureEnabled(bool isEnabled) { m_parts.service.setGestureEnabled(isEnabled); }

void SettingsModel::startRecognition() { m_parts.service.start(); }

void SettingsModel::setTapWaitingInterval(std::int64_t milliseconds) {
    if (const auto interval = TapWaitingInterval::fromRawValue(milliseconds))
        m_parts.service.setTapWaitingInterval(*interval);
}

void SettingsModel::chooseTrackpad(std::size_t index) {
    const std::string wanted = m_content.value().trackpads.all.at(index).stored;
    if (wanted == wantedTrackpad())
        return;
    if (wanted.empty())
        m_parts.defaults.remove(m_parts.platform.trackpadKey);
    else
        m_parts.defaults.setString(m_parts.platform.trackpadKey, wanted);
    m_parts.applyTrackpad();
    listTrackpads();
}

void SettingsModel::setIgnoresPalms(bool isOn) { m_parts.service.setCornerPalmRejectionEnabled(isOn); }

void SettingsModel::setPalmPercent(int percent) {
    // A size between two steps stays until another step is chosen.
    if (percent != m_content.value().palmPercent)
        m_parts.service.setCornerPalmRejectionSensitivity(percent / kPercent);
}

void SettingsModel::setShowsCue(bool isOn) {
    if (isOn != m_content.value().showsCue)
        m_parts.defaults.setBoolean(ActionCueSettings::enabledKey, isOn);
    refresh();
}

void SettingsModel::setCuePosition(ActionCuePosition position) {
    if (position != m_content.value().cuePosition)
        m_parts.defaults.setString(ActionCueSettings::positionKey, std::string(rawValue(position)));
    refresh();
}

void SettingsModel::setCueDuration(int tenths) {
    if (tenths != m_content.value().cueDuration)
        m_parts.defaults.setReal(ActionCueSettings::durationKey, tenths / kTenths);
    refresh();
}

void SettingsModel::setCuePercent(int percent) {
    if (percent != m_content.value().cuePercent)
        m_parts.defaults.setReal(ActionCueSettings::opacityKey, percent / kPercent);
    refresh();
}

void SettingsModel::setRunsShellCommands(bool isOn) {
    if (isOn != m_content.value().runsShellCommands)
        m_parts.defaults.setBoolean(ShellCommandSettings::enabledKey, isOn);
    refresh();
}

void SettingsModel::setAppearance(AppAppearance appearance) {
    if (appearance != m_content.value().appearance) {
        m_parts.defaults.setString(AppAppearances::storageKey, std::string(rawValue(appearance)));
        m_parts.applyAppearance();
    }
    refresh();
}

void SettingsModel::setLaunchAtLogin(bool isOn) {
    if (isOn && m_content.value().waitsForApproval)
        m_parts.launchAtLogin.openLoginItemSettings();
    else
        m_parts.launchAtLogin.setEnabled(isOn);
}

void SettingsModel::openLoginItemSettings() { m_parts.launchAtLogin.openLoginItemSettings(); }

void SettingsModel::checkForUpdates() { m_parts.updates.checkForUpdates(); }

void SettingsModel::setChecksForUpdates(bool isOn) {
    m_parts.updates.setAutomaticallyChecksForUpdates(isOn);
    refresh();
}

void SettingsModel::choosePlatformCase(std::size_t choice, std::size_t index) {
    const PlatformChoice& chosen = m_parts.platform.choices.at(choice);
    if (index != m_content.value().platformCases.at(choice))
        m_parts.defaults.setString(chosen.key, chosen.cases.at(index).rawValue);
    refresh();
}

}  // namespace kinesta
