#pragma once

#include <QGuiApplication>

#include "app/ActivationPolicy.h"

namespace kinesta {

/// On desktops where an application has an entry among the others exactly while it has a window.
class QtActivationPolicy final : public ActivationPolicy {
  public:
    Kind kind() const override { return m_kind; }
    void set(Kind kind) override { m_kind = kind; }
    bool isActive() const override { return QGuiApplication::applicationState() == Qt::ApplicationActive; }
    /// The window activates the application with itself.
    void activateIgnoringOtherApplications() override {}
    /// Qt keeps the request until the window is mapped. A window manager that refuses it would refuse it again, and one
    /// that is slow would bring back a window that the person has minimized meanwhile.
    bool losesRequests() const override { return false; }

  private:
    Kind m_kind = Kind::regular;
};

}  // namespace kinesta
