#include "platform/macos/application/MacConfigurationWindow.h"

#include <AppKit/AppKit.h>

namespace kinesta {
namespace {

/// Panels such as the one about the application may have the same title, but cannot become main.
NSWindow* configurationWindow() {
    for (NSWindow* window in NSApplication.sharedApplication.windows)
        if (window.canBecomeMainWindow && [window.title isEqualToString:@"Kinesta"])
            return window;
    return nil;
}

}  // namespace

// Not visible either while the whole application is hidden, which the maker does not know (from memory).
bool MacConfigurationWindow::isVisible() const { return configurationWindow().isVisible; }

bool MacConfigurationWindow::isKey() const {
    NSWindow* const window = configurationWindow();
    return window.isKeyWindow || window.attachedSheet.isKeyWindow;
}

void MacConfigurationWindow::makeKeyAndOrderFront() {
    m_maker.makeKeyAndOrderFront();  // makes the platform's window, too, at the first time
    NSWindow* const window = configurationWindow();
    if (!window.attachedSheet)  // a sheet takes the keyboard for its window
        [window makeKeyAndOrderFront:nil];
}

}  // namespace kinesta
