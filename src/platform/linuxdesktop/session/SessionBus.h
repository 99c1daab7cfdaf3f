#pragma once

#include <QByteArray>
#include <optional>

namespace kinesta {

/// Lives while the QApplication is made. If no session bus answers, Qt and the libraries that it loads find none: Qt
/// itself would wait half a minute for a bus that hangs, GTK for ever, and they may start a bus that no other program
/// of the session knows.
class SessionBusCheck {
  public:
    SessionBusCheck();
    /// Programs that Kinesta starts get the true address.
    ~SessionBusCheck();
    SessionBusCheck(const SessionBusCheck&) = delete;
    SessionBusCheck& operator=(const SessionBusCheck&) = delete;

  private:
    bool m_hidesBus;
    std::optional<QByteArray> m_address;
};

}  // namespace kinesta
