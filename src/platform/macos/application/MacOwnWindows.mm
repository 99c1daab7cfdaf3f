#include "platform/macos/application/MacOwnWindows.h"

#include <AppKit/AppKit.h>

namespace kinesta {
namespace {

class MacOwnWindow final : public OwnWindow {
  public:
    explicit MacOwnWindow(NSWindow* window) : m_window(window) {}

    bool isPanel() override { return [m_window isKindOfClass:[NSPanel class]]; }
    bool isMiniaturized() override { return m_window.isMiniaturized; }
    bool hasAttachedSheet() override { return m_window.attachedSheet != nil; }
    bool isCloseButtonEnabled() override { return [m_window standardWindowButton:NSWindowCloseButton].isEnabled; }
    void performClose() override { [m_window performClose:nil]; }

  private:
    NSWindow* m_window;
};

std::unique_ptr<OwnWindow> ownWindow(NSWindow* window) {
    return window ? std::make_unique<MacOwnWindow>(window) : nullptr;
}

}  // namespace

std::unique_ptr<OwnWindow> MacOwnWindows::keyWindow() { return ownWindow(NSApp.keyWindow); }

std::unique_ptr<OwnWindow> MacOwnWindows::mainWindow() { return ownWindow(NSApp.mainWindow); }

}  // namespace kinesta
