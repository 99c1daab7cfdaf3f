#pragma once

#include <QAbstractNativeEventFilter>
#include <functional>

#include "platform/linuxdesktop/ScreenSelection.h"

namespace kinesta {

/// Whether a compositor shows what lies behind translucent windows on X11. Qt has no call for it. Main thread only.
class CompositorWatch final : public QAbstractNativeEventFilter {
  public:
    /// Needs the QGuiApplication. `onChange` is called when a compositor starts or ends.
    explicit CompositorWatch(std::function<void()> onChange);
    ~CompositorWatch() override;

    bool isActive() const { return m_isActive; }
    /// Whether there is one at this moment, or a system that needs none.
    static bool blendsWindows();

    bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) override;

  private:
    static constexpr const char* kSelection = "_NET_WM_CM_S";

    ScreenSelection m_selection{kSelection};
    std::function<void()> m_onChange;
    bool m_isActive = false;
    /// The number of the event for a new owner; 0 if the server has no such event.
    int m_ownerChanged = 0;
};

}  // namespace kinesta
