#include "app/SettingsReset.h"

#include <optional>
#include <variant>

#include "app/AppAppearance.h"
#include "feedback/ActionCueSettings.h"
#include "input/SettingsKeys.h"
#include "rules/ShellCommandSettings.h"

namespace kinesta {
namespace {

/// Nothing for a value of a form that cannot be written again.
std::optional<StoredValue> read(const UserDefaults& defaults, const std::string& key) {
    if (const auto value = defaults.boolean(key))
        return *value;
    if (const auto value = defaults.integer(key))
        return *value;
    if (const auto value = defaults.real(key))
        return *value;
    if (auto value = defaults.string(key))
        return *std::move(value);
    if (auto value = defaults.data(key))
        return StoredData{*std::move(value)};
    return std::nullopt;
}

struct Writer {
    UserDefaults& defaults;
    const std::string& key;

    void operator()(bool value) const { defaults.setBoolean(key, value); }
    void operator()(std::int64_t value) const { defaults.setInteger(key, value); }
    void operator()(double value) const { defaults.setReal(key, value); }
    void operator()(const std::string& value) const { defaults.setString(key, value); }
    void operator()(const StoredData& value) const { defaults.setData(key, value.bytes); }
    void operator()(const ForeignValue& /*value*/) const {}
};

}  // namespace

SettingsReset::SettingsReset(UserDefaults& defaults, SoftwareUpdateController& updates,
                             const PlatformSettings& platform)
    : m_defaults(defaults), m_updates(updates) {
    for (const std::string_view key :
         {SettingsKeys::gesturesEnabled, SettingsKeys::tapWaitingInterval, SettingsKeys::cornerPalmRejectionEnabled,
          SettingsKeys::cornerPalmRejectionSensitivity, ActionCueSettings::enabledKey, ActionCueSettings::positionKey,
          ActionCueSettings::durationKey, ActionCueSettings::opacityKey, ShellCommandSettings::enabledKey,
          AppAppearances::storageKey, platform.trackpadKey})
        if (!key.empty())
            m_keys.emplace_back(key);
    for (const PlatformChoice& choice : platform.choices)
        m_keys.emplace_back(choice.key);
}

SettingsReset::Backup SettingsReset::reset() {
    Backup backup{{}, m_updates.automaticallyChecksForUpdates().value()};
    for (const std::string& key : m_keys) {
        if (auto value = read(m_defaults, key)) {
            backup.values.emplace(key, *std::move(value));
            m_defaults.remove(key);
        }
    }
    m_updates.setAutomaticallyChecksForUpdates(false);
    return backup;
}

void SettingsReset::restore(const Backup& backup) {
    for (const std::string& key : m_keys) {
        const auto found = backup.values.find(key);
        const auto now = read(m_defaults, key);
        if (found == backup.values.end()) {
            if (now)
                m_defaults.remove(key);
        } else if (now != found->second) {
            std::visit(Writer{m_defaults, key}, found->second);
        }
    }
    m_updates.setAutomaticallyChecksForUpdates(backup.checksForUpdates);
}

}  // namespace kinesta
