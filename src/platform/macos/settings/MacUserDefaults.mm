#include "platform/macos/settings/MacUserDefaults.h"

#include <Foundation/Foundation.h>

#include <algorithm>
#include <map>
#include <utility>

#include "platform/macos/foundation/KeyValueObservation.h"
#include "platform/macos/foundation/NotificationObservation.h"
#include "platform/macos/foundation/NsText.h"
#include "support/Text.h"
#include "support/Translation.h"

namespace kinesta {
namespace {

/// Changes with every write. Other processes hear of changes only by key-value observing (from
/// memory), and the dots in all our other keys would make paths of them.
NSString* const kRevisionKey = @"settingsRevision";

/// By the C type of its value: a boolean is kept as a character, which no other stored number is.
char typeOf(NSNumber* number) {
    const char type = number.objCType[0];
    return type == 'c' ? 'B' : type;
}

std::optional<bool> asBoolean(id object) {
    if (![object isKindOfClass:[NSNumber class]] || typeOf(object) != 'B')
        return std::nullopt;
    return [object boolValue];
}

std::optional<std::int64_t> asInteger(id object) {
    if (![object isKindOfClass:[NSNumber class]])
        return std::nullopt;
    const char type = typeOf(object);
    const bool isTooLarge = type == 'Q' && [object longLongValue] < 0;
    return type == 'B' || type == 'd' || type == 'f' || isTooLarge ? std::nullopt
                                                                   : std::optional([object longLongValue]);
}

std::optional<double> asReal(id object) {
    if (![object isKindOfClass:[NSNumber class]] || typeOf(object) == 'B')
        return std::nullopt;
    return [object doubleValue];
}

std::optional<std::string> asString(id object) {
    return [object isKindOfClass:[NSString class]] ? std::optional(textOf(object)) : std::nullopt;
}

std::optional<std::string> asData(id object) {
    if (![object isKindOfClass:[NSData class]])
        return std::nullopt;
    NSData* const data = object;
    return data.length == 0 ? "" : std::string(static_cast<const char*>(data.bytes), data.length);
}

std::string asText(id object) {
    if (const auto text = asData(object))
        return *text;
    if (const auto text = asString(object))
        return *text;
    if (const auto boolean = asBoolean(object))
        return *boolean ? "true" : "false";
    if (const auto integer = asInteger(object))
        return std::to_string(*integer);
    if (const auto real = asReal(object))
        return numberText(*real);
    // Dates have no form in JSON, and to ask for one would raise an exception.
    if ([NSJSONSerialization isValidJSONObject:object])
        return asData([NSJSONSerialization dataWithJSONObject:object options:0 error:nil]).value_or("");
    return textOf([object description]);
}

NSUserDefaults* defaultsOf(NSString* domain) {
    // The application's own domain is not accepted as a suite.
    if ([NSBundle.mainBundle.bundleIdentifier isEqualToString:domain])
        return NSUserDefaults.standardUserDefaults;
    NSUserDefaults* const suite = [[NSUserDefaults alloc] initWithSuiteName:domain];
    return suite ? suite : NSUserDefaults.standardUserDefaults;
}

}  // namespace

/// Shared with blocks of other threads, which hold it weakly.
struct MacUserDefaults::Impl {
    explicit Impl(NSString* domain) : defaults(defaultsOf(domain)) {}

    id object(std::string_view key) {
        id const found = [defaults objectForKey:nsText(key)];
        seen.try_emplace(std::string(key), found);
        return found;
    }

    void write(std::string_view key, id value) {
        [defaults setObject:value forKey:nsText(key)];
        seen.insert_or_assign(std::string(key), value);
        [defaults setObject:NSUUID.UUID.UUIDString forKey:kRevisionKey];
    }

    bool isChanged(const std::string& key, id before) const {
        id const now = [defaults objectForKey:nsText(key)];
        return now != before && ![now isEqual:before];
    }

    bool takeChanges() {
        bool isAnyChanged = false;
        for (auto& [key, before] : seen) {
            if (isChanged(key, before)) {
                before = [defaults objectForKey:nsText(key)];
                isAnyChanged = true;
            }
        }
        return isAnyChanged;
    }

    static void tellSoon(const std::weak_ptr<Impl>& weak) {
        const std::weak_ptr<Impl> own = weak;
        dispatch_async(dispatch_get_main_queue(), ^{
          if (const auto living = own.lock())
              living->tell();
        });
    }

    void tell() const {
        const auto call = onChange;
        if (std::ranges::any_of(seen, [this](const auto& each) { return isChanged(each.first, each.second); }))
            call();
    }

    NSUserDefaults* const defaults;
    /// Each value as it was at the first reading here, the last reload() or the last own change.
    std::map<std::string, id> seen;
    std::function<void()> onChange;
    std::unique_ptr<NotificationObservation> ownProcess;
    std::unique_ptr<KeyValueObservation> otherProcesses;
};

MacUserDefaults::MacUserDefaults(const std::string& domain) : m_impl(std::make_shared<Impl>(nsText(domain))) {}

MacUserDefaults::~MacUserDefaults() = default;

bool MacUserDefaults::contains(std::string_view key) const { return m_impl->object(key) != nil; }

std::optional<bool> MacUserDefaults::boolean(std::string_view key) const { return asBoolean(m_impl->object(key)); }

std::optional<std::int64_t> MacUserDefaults::integer(std::string_view key) const {
    return asInteger(m_impl->object(key));
}

std::optional<double> MacUserDefaults::real(std::string_view key) const { return asReal(m_impl->object(key)); }

std::optional<std::string> MacUserDefaults::string(std::string_view key) const { return asString(m_impl->object(key)); }

std::optional<std::string> MacUserDefaults::data(std::string_view key) const { return asData(m_impl->object(key)); }

std::optional<std::string> MacUserDefaults::anyAsText(std::string_view key) const {
    id const object = m_impl->object(key);
    return object ? std::optional(asText(object)) : std::nullopt;
}

void MacUserDefaults::setBoolean(std::string_view key, bool value) {
    m_impl->write(key, [NSNumber numberWithBool:value]);
}

void MacUserDefaults::setInteger(std::string_view key, std::int64_t value) {
    m_impl->write(key, [NSNumber numberWithLongLong:value]);
}

void MacUserDefaults::setReal(std::string_view key, double value) {
    m_impl->write(key, [NSNumber numberWithDouble:value]);
}

void MacUserDefaults::setString(std::string_view key, std::string value) { m_impl->write(key, nsText(value)); }

void MacUserDefaults::setData(std::string_view key, std::string bytes) {
    m_impl->write(key, [NSData dataWithBytes:bytes.data() length:bytes.size()]);
}

void MacUserDefaults::remove(std::string_view key) { m_impl->write(key, nil); }

bool MacUserDefaults::reload() { return m_impl->takeChanges(); }

void MacUserDefaults::watch(std::function<void()> onChange) {
    const std::weak_ptr<Impl> weak = m_impl;
    m_impl->onChange = std::move(onChange);
    // On the thread that made the change, and only for changes of this process (from memory).
    m_impl->ownProcess = std::make_unique<NotificationObservation>(
        NSNotificationCenter.defaultCenter, NSUserDefaultsDidChangeNotification, [weak] { Impl::tellSoon(weak); });
    m_impl->otherProcesses =
        std::make_unique<KeyValueObservation>(m_impl->defaults, kRevisionKey, [weak] { Impl::tellSoon(weak); });
}

Outcome MacUserDefaults::save() {
    if ([m_impl->defaults synchronize])
        return success();
    return Error{translated("macOS did not store the changed settings. Change them again.")};
}

}  // namespace kinesta
