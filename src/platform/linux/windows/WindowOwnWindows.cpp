#include "platform/linux/windows/WindowOwnWindows.h"

#include <unistd.h>

#include <algorithm>
#include <utility>

namespace kinesta {
namespace {

class DesktopOwnWindow : public OwnWindow {
  public:
    DesktopOwnWindow(EwmhDesktop& desktop, EwmhSnapshot snapshot, EwmhWindow window)
        : m_desktop(desktop), m_snapshot(std::move(snapshot)), m_window(std::move(window)) {}

    bool isPanel() override { return m_window.isModal || m_window.type == EwmhWindowType::other; }
    bool isMiniaturized() override { return m_window.isHidden; }
    bool hasAttachedSheet() override { return !m_snapshot.modalDialogsOf(m_window).empty(); }
    bool isCloseButtonEnabled() override { return m_window.mayClose; }
    void performClose() override { m_desktop.close(m_window.id); }

  private:
    EwmhDesktop& m_desktop;
    EwmhSnapshot m_snapshot;
    EwmhWindow m_window;
};

template <typename Predicate>
std::unique_ptr<OwnWindow> topmostOwn(EwmhDesktop& desktop, Predicate isWanted) {
    auto snapshot = desktop.snapshot();
    if (!snapshot)
        return nullptr;
    const auto found = std::find_if(snapshot->windows.rbegin(), snapshot->windows.rend(), [&](const auto& window) {
        return window.process == getpid() && isWanted(*snapshot, window);
    });
    if (found == snapshot->windows.rend())
        return nullptr;
    EwmhWindow window = *found;
    return std::make_unique<DesktopOwnWindow>(desktop, *std::move(snapshot), window);
}

}  // namespace

std::unique_ptr<OwnWindow> WindowOwnWindows::keyWindow() {
    return topmostOwn(m_desktop, [](const EwmhSnapshot& desktop, const EwmhWindow& window) {
        return window.id == desktop.activeWindow;
    });
}

std::unique_ptr<OwnWindow> WindowOwnWindows::mainWindow() {
    return topmostOwn(m_desktop, [](const EwmhSnapshot&, const EwmhWindow& window) {
        return window.type == EwmhWindowType::normal && !window.isHidden;
    });
}

}  // namespace kinesta
