#include "platform/linuxdesktop/session/SessionEvents.h"

#include <gtest/gtest.h>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QGuiApplication>
#include <QProcess>
#include <QTest>

namespace kinesta::testing {
namespace {

TEST(SessionEvents, PostsThatTheMachineHasWoken) {
    QProcess bus;
    bus.start("dbus-daemon", {"--session", "--nofork", "--print-address=1"});
    ASSERT_TRUE(bus.waitForReadyRead());
    const QString address = QString::fromLatin1(bus.readLine().trimmed());
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", address.toLatin1());
    qputenv("QT_QPA_PLATFORM", "offscreen");
    int count = 0;
    QGuiApplication application(count, nullptr);
    const ApplicationEvents events;
    int wakes = 0;
    const Subscription observer = events.observe(ApplicationEvent::didWake, [&] { ++wakes; });
    const SessionEvents session(events);

    const auto tell = [](QDBusConnection sender, bool isGoingToSleep) {
        auto signal =
            QDBusMessage::createSignal("/org/freedesktop/login1", "org.freedesktop.login1.Manager", "PrepareForSleep");
        EXPECT_TRUE(sender.send(signal << isGoingToSleep));
    };
    const auto login = QDBusConnection::connectToBus(address, "login");
    const auto impostor = QDBusConnection::connectToBus(address, "impostor");
    ASSERT_TRUE(QDBusConnection(login).registerService("org.freedesktop.login1"));
    for (int attempt = 0; attempt < 100 && wakes == 0; ++attempt) {  // until it listens
        tell(login, false);
        static_cast<void>(QTest::qWaitFor([&] { return wakes > 0; }, 200));
    }
    ASSERT_EQ(wakes, 1);
    tell(impostor, false);
    tell(login, true);
    tell(login, false);
    EXPECT_TRUE(QTest::qWaitFor([&] { return wakes > 1; }));
    EXPECT_EQ(wakes, 2);
    bus.kill();
}

}  // namespace
}  // namespace kinesta::testing
