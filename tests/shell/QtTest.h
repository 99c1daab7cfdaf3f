#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QDBusConnection>
#include <QTest>
#include <functional>

#include "desktop/harness/TestDesktop.h"

namespace kinesta::testing {

/// A test with a desktop of its own and the QApplication on it.
class QtTest : public ::testing::Test {
  protected:
    /// Runs the event loop until `condition` holds. Returns whether it does.
    static bool eventually(const std::function<bool()>& condition) {
        return QTest::qWaitFor(condition, static_cast<int>(kPatience.count()));
    }

    /// A new connection to the session bus, as of another program.
    static QDBusConnection connectToBus() {
        static int count = 0;
        return QDBusConnection::connectToBus(qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS"),
                                             QString::number(++count));
    }

    TestDesktop desktop{TestDesktop::openbox};

  private:
    int m_argumentCount = 1;
    char m_program[13] = "kinesta-test";
    char* m_arguments[2] = {m_program, nullptr};

  protected:
    QApplication application{m_argumentCount, m_arguments};
};

}  // namespace kinesta::testing
