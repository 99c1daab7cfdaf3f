#include "platform/linuxdesktop/appearance/DesktopAppearance.h"

#include <QDBusMessage>
#include <QDBusVirtualObject>

#include "shell/QtTest.h"

namespace kinesta::testing {
namespace {

/// A settings portal. It returns what the test sets, wrapped once more than in its signal, as real ones do.
class Portal final : public QDBusVirtualObject {
  public:
    explicit Portal(const QDBusConnection& bus) : m_bus(bus) {
        m_bus.registerVirtualObject("/org/freedesktop/portal/desktop", this);
    }
    void start() { EXPECT_TRUE(m_bus.registerService("org.freedesktop.portal.Desktop")); }

    void set(const QString& group, const QString& key, const QVariant& value) {
        m_values[group + key] = value;
        auto signal = QDBusMessage::createSignal("/org/freedesktop/portal/desktop", "org.freedesktop.portal.Settings",
                                                 "SettingChanged");
        signal << group << key << QVariant::fromValue(QDBusVariant(value));
        m_bus.send(signal);
    }
    QString introspect(const QString& /*path*/) const override { return {}; }
    bool handleMessage(const QDBusMessage& call, const QDBusConnection& bus) override {
        const QVariant value = m_values.value(call.arguments()[0].toString() + call.arguments()[1].toString());
        const auto wrapped = QVariant::fromValue(QDBusVariant(QVariant::fromValue(QDBusVariant(value))));
        return bus.send(value.isValid() ? call.createReply(wrapped)
                                        : call.createErrorReply("org.freedesktop.portal.Error.NotFound", "unknown"));
    }

  private:
    QDBusConnection m_bus;
    QMap<QString, QVariant> m_values;
};

struct Appearance : QtTest {
    static bool isDark() { return QApplication::palette().color(QPalette::Window) == QColor(0x1B, 0x1C, 0x21); }

    Portal portal{connectToBus()};
    DesktopSettings settings{connectToBus()};
    DesktopAppearance appearance{settings};
};

TEST_F(Appearance, FollowsThePortalUnlessForced) {
    EXPECT_FALSE(isDark());
    portal.set("org.freedesktop.appearance", "color-scheme", 1U);
    portal.start();
    EXPECT_TRUE(eventually(isDark));
    appearance.force(NamedAppearance::aqua);
    EXPECT_FALSE(isDark());
    portal.set("org.freedesktop.appearance", "contrast", 1U);
    EXPECT_TRUE(eventually([&] { return appearance.theme().value().focusRing == 3; }));
    EXPECT_TRUE(settings.reducesTransparency());
    EXPECT_FALSE(isDark());
    appearance.force(std::nullopt);
    EXPECT_TRUE(isDark());
    portal.set("org.freedesktop.appearance", "color-scheme", 2U);
    EXPECT_TRUE(eventually([] { return !isDark(); }));
}

TEST_F(Appearance, TakesMotionAndTextSizeFromAnyDesktop) {
    const double before = QApplication::font().pointSizeF();
    portal.start();
    portal.set("org.kde.kdeglobals.KDE", "AnimationDurationFactor", "0.5");
    portal.set("org.gnome.desktop.interface", "text-scaling-factor", 1.5);
    EXPECT_TRUE(eventually([&] { return QApplication::font().pointSizeF() == before * 1.5; }));
    EXPECT_FALSE(settings.reducesMotion());
    portal.set("org.kde.kdeglobals.KDE", "AnimationDurationFactor", "0");
    EXPECT_TRUE(eventually([&] { return settings.reducesMotion(); }));
    portal.set("org.kde.kdeglobals.KDE", "AnimationDurationFactor", "1");
    EXPECT_TRUE(eventually([&] { return !settings.reducesMotion(); }));
    portal.set("org.gnome.desktop.interface", "enable-animations", false);
    EXPECT_TRUE(eventually([&] { return settings.reducesMotion(); }));
}

}  // namespace
}  // namespace kinesta::testing
