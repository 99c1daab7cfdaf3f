#include "platform/linuxdesktop/appearance/DesktopSettings.h"

#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <algorithm>
#include <cmath>
#include <utility>

namespace kinesta {
namespace {

const char* const kService = "org.freedesktop.portal.Desktop";
const char* const kPath = "/org/freedesktop/portal/desktop";
const char* const kInterface = "org.freedesktop.portal.Settings";

constexpr const char* kAppearance = "org.freedesktop.appearance";
constexpr const char* kGnome = "org.gnome.desktop.interface";
constexpr const char* kGnomeAccess = "org.gnome.desktop.a11y.interface";
constexpr const char* kKde = "org.kde.kdeglobals.KDE";

constexpr const char* kColorScheme = "color-scheme";
constexpr const char* kContrast = "contrast";
constexpr const char* kReducedMotion = "reduced-motion";
constexpr const char* kEnableAnimations = "enable-animations";
constexpr const char* kTextScale = "text-scaling-factor";
constexpr const char* kHighContrast = "high-contrast";
constexpr const char* kAnimationFactor = "AnimationDurationFactor";

constexpr double kLeastTextScale = 0.5;
constexpr double kMostTextScale = 3;

struct Key {
    const char* group;
    const char* name;
};

constexpr Key kKeys[] = {{kAppearance, kColorScheme}, {kAppearance, kContrast}, {kAppearance, kReducedMotion},
                         {kGnome, kEnableAnimations}, {kGnome, kTextScale},     {kGnomeAccess, kHighContrast},
                         {kKde, kAnimationFactor}};

QString asText(const char* text) { return QString::fromLatin1(text); }

QString joined(const QString& group, const QString& key) { return group + QLatin1Char(' ') + key; }

}  // namespace

DesktopSettings::DesktopSettings(QDBusConnection bus) : m_bus(std::move(bus)) {
    m_bus.connect(asText(kService), asText(kPath), asText(kInterface), QStringLiteral("SettingChanged"), this,
                  SLOT(takeChange(QDBusMessage)));
    // A portal that starts again, perhaps of another desktop, may have other values.
    auto* watcher = new QDBusServiceWatcher(asText(kService), m_bus, QDBusServiceWatcher::WatchForRegistration, this);
    connect(watcher, &QDBusServiceWatcher::serviceRegistered, this, [this] { askForAll(); });
    askForAll();
}

void DesktopSettings::askForAll() {
    for (const Key& key : kKeys)
        ask(asText(key.group), asText(key.name));
}

void DesktopSettings::ask(const QString& group, const QString& key) {
    auto call =
        QDBusMessage::createMethodCall(asText(kService), asText(kPath), asText(kInterface), QStringLiteral("Read"));
    call << group << key;
    auto* watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, group, key](QDBusPendingCallWatcher* finished) {
        const QDBusPendingReply<QDBusVariant> reply = *finished;
        if (reply.isValid())
            take(group, key, reply.value());
        finished->deleteLater();
    });
}

void DesktopSettings::takeChange(const QDBusMessage& signal) {
    const QVariantList arguments = signal.arguments();
    if (signal.signature() == QLatin1String("ssv"))
        take(arguments[0].toString(), arguments[1].toString(), qvariant_cast<QDBusVariant>(arguments[2]));
}

void DesktopSettings::take(const QString& group, const QString& key, const QDBusVariant& value) {
    const bool isWanted = std::ranges::any_of(
        kKeys, [&](const Key& each) { return group == asText(each.group) && key == asText(each.name); });
    if (!isWanted)
        return;
    // Portals wrap what they read once more than what has changed.
    QVariant inner = value.variant();
    while (inner.metaType() == QMetaType::fromType<QDBusVariant>())
        inner = qvariant_cast<QDBusVariant>(inner).variant();
    QVariant& stored = m_values[joined(group, key)];
    if (stored == inner)
        return;
    stored = inner;
    m_observers.notify([] { return true; });
}

QVariant DesktopSettings::value(const char* group, const char* key) const {
    return m_values.value(joined(asText(group), asText(key)));
}

std::optional<NamedAppearance> DesktopSettings::appearance() const {
    switch (value(kAppearance, kColorScheme).toUInt()) {
        case 1:
            return NamedAppearance::darkAqua;
        case 2:
            return NamedAppearance::aqua;
        default:
            return std::nullopt;
    }
}

ThemeContrast DesktopSettings::contrast() const {
    const bool isMore = value(kAppearance, kContrast).toUInt() == 1 || value(kGnomeAccess, kHighContrast).toBool();
    return isMore ? ThemeContrast::more : ThemeContrast::standard;
}

double DesktopSettings::textScale() const {
    const double scale = value(kGnome, kTextScale).toDouble();
    return std::isfinite(scale) && scale > 0 ? std::clamp(scale, kLeastTextScale, kMostTextScale) : 1;
}

bool DesktopSettings::reducesTransparency() const {
    // No desktop has a switch of its own for it. A person who asks for contrast wants no picture behind words.
    return contrast() == ThemeContrast::more;
}

bool DesktopSettings::reducesMotion() const {
    const QVariant animations = value(kGnome, kEnableAnimations);
    bool isNumber = false;
    const double factor = value(kKde, kAnimationFactor).toDouble(&isNumber);
    return value(kAppearance, kReducedMotion).toUInt() == 1 || (animations.isValid() && !animations.toBool()) ||
           (isNumber && factor == 0);
}

}  // namespace kinesta
