#include "platform/linux/windows/WindowAccessibility.h"

#include <algorithm>
#include <memory>
#include <string>

#include "support/EnumTable.h"

namespace kinesta {
namespace {

constexpr std::string_view kPress = "AXPress";

const char* roleOf(const EwmhWindow& window) {
    if (window.isModal)
        return "AXSheet";
    return window.type == EwmhWindowType::other ? "AXUnknown" : "AXWindow";
}

/// The common part of all elements: they have a timeout, and fail for every attribute and action that they lack.
class WindowAccessibilityElement : public AccessibilityElement {
  public:
    explicit WindowAccessibilityElement(Seconds timeout) : m_timeout(timeout) {}

    bool setMessagingTimeout(Seconds timeout) override {
        if (!(timeout > 0))
            return false;
        m_timeout = timeout;
        return true;
    }
    AccessibilityValue copyAttribute(std::string_view) override { return AccessibilityFailure{}; }
    bool performAction(std::string_view) override { return false; }

  protected:
    Seconds timeout() const { return m_timeout; }

  private:
    Seconds m_timeout;
};

class CloseButtonElement : public WindowAccessibilityElement {
  public:
    CloseButtonElement(EwmhDesktop& desktop, EwmhWindowId window, Seconds timeout)
        : WindowAccessibilityElement(timeout), m_desktop(desktop), m_window(window) {}

    AccessibilityValue copyAttribute(std::string_view name) override {
        if (name != "AXEnabled")
            return AccessibilityFailure{};
        const auto window = m_desktop.window(m_window, timeout());
        return window ? AccessibilityValue(window->mayClose) : AccessibilityFailure{};
    }

    bool performAction(std::string_view name) override {
        if (name != kPress)
            return false;
        const auto active = m_desktop.activeWindow(timeout());
        return active && active->id == m_window && active->mayClose && m_desktop.close(m_window, timeout());
    }

  private:
    EwmhDesktop& m_desktop;
    EwmhWindowId m_window;
};

/// A dialog that a program draws inside its window.
class SheetElement : public WindowAccessibilityElement {
  public:
    using WindowAccessibilityElement::WindowAccessibilityElement;

    AccessibilityValue copyAttribute(std::string_view name) override {
        return name == "AXRole" ? AccessibilityValue(std::string("AXSheet")) : AccessibilityFailure{};
    }
};

class WindowElement : public WindowAccessibilityElement {
  public:
    WindowElement(EwmhDesktop& desktop, AccessibilityBus& programs, EwmhWindowId window, Seconds timeout)
        : WindowAccessibilityElement(timeout), m_desktop(desktop), m_programs(programs), m_window(window) {}

    AccessibilityValue copyAttribute(std::string_view name) override {
        if (name == "AXChildren")
            return children();
        const auto window = m_desktop.window(m_window, timeout());
        if (!window)
            return AccessibilityFailure{};
        if (name == "AXRole")
            return std::string(roleOf(*window));
        if (name == "AXMinimized")
            return window->isHidden;
        if (name == "AXCloseButton")
            return std::make_unique<CloseButtonElement>(m_desktop, m_window, timeout());
        return AccessibilityFailure{};
    }

  private:
    AccessibilityValue children() {
        const auto snapshot = m_desktop.snapshot(timeout());
        const EwmhWindow* window = snapshot ? snapshot->window(m_window) : nullptr;
        // Not a failure, which would mean that there is no dialog: there may be one.
        if (window == nullptr)
            return OtherAccessibilityValue{};
        AccessibilityList dialogs;
        for (const EwmhWindowId dialog : snapshot->modalDialogsOf(*window))
            dialogs.items.push_back(std::make_unique<WindowElement>(m_desktop, m_programs, dialog, timeout()));
        if (dialogs.items.empty() && m_window == snapshot->activeWindow &&
            m_programs.hasDialogInside(window->process, std::min(timeout(), AccessibilityBus::kTimeout)))
            dialogs.items.push_back(std::make_unique<SheetElement>(timeout()));
        return dialogs;
    }

    EwmhDesktop& m_desktop;
    AccessibilityBus& m_programs;
    EwmhWindowId m_window;
};

class TilingItemElement : public WindowAccessibilityElement {
  public:
    TilingItemElement(WindowTiler& tiler, ProcessIdentifier application, WindowTilingMenuCommand command,
                      Seconds timeout)
        : WindowAccessibilityElement(timeout), m_tiler(tiler), m_application(application), m_command(command) {}

    AccessibilityValue copyAttribute(std::string_view name) override {
        if (name == "AXIdentifier")
            return std::string(rawValue(m_command));
        if (name == "AXEnabled")
            return m_tiler.canPerform(m_command, m_application, timeout());
        return AccessibilityFailure{};
    }

    bool performAction(std::string_view name) override {
        return name == kPress && m_tiler.perform(m_command, m_application, timeout());
    }

  private:
    WindowTiler& m_tiler;
    ProcessIdentifier m_application;
    WindowTilingMenuCommand m_command;
};

class MenuBarElement : public WindowAccessibilityElement {
  public:
    MenuBarElement(WindowTiler& tiler, ProcessIdentifier application, Seconds timeout)
        : WindowAccessibilityElement(timeout), m_tiler(tiler), m_application(application) {}

    AccessibilityValue copyAttribute(std::string_view name) override {
        if (name != "AXChildren")
            return AccessibilityFailure{};
        AccessibilityList items;
        for (const auto& row : enumTable<WindowTilingMenuCommand>())
            items.items.push_back(std::make_unique<TilingItemElement>(m_tiler, m_application, row.value, timeout()));
        return items;
    }

  private:
    WindowTiler& m_tiler;
    ProcessIdentifier m_application;
};

class ApplicationElement : public WindowAccessibilityElement {
  public:
    ApplicationElement(EwmhDesktop& desktop, WindowTiler& tiler, AccessibilityBus& programs,
                       ProcessIdentifier application, Seconds timeout)
        : WindowAccessibilityElement(timeout),
          m_desktop(desktop),
          m_tiler(tiler),
          m_programs(programs),
          m_application(application) {}

    AccessibilityValue copyAttribute(std::string_view name) override {
        if (name == "AXMenuBar")
            return std::make_unique<MenuBarElement>(m_tiler, m_application, timeout());
        if (name == "AXFocusedWindow") {
            const auto active = m_desktop.activeWindow(timeout());
            return active && active->process == m_application ? windowElement(active->id) : AccessibilityFailure{};
        }
        return name == "AXMainWindow" ? mainWindow() : AccessibilityFailure{};
    }

  private:
    AccessibilityValue mainWindow() {
        const auto snapshot = m_desktop.snapshot(timeout());
        if (!snapshot)
            return AccessibilityFailure{};
        const auto isMain = [this](const EwmhWindow& window) {
            return window.process == m_application && window.type == EwmhWindowType::normal;
        };
        const auto top = std::find_if(snapshot->windows.rbegin(), snapshot->windows.rend(), isMain);
        return top == snapshot->windows.rend() ? AccessibilityFailure{} : windowElement(top->id);
    }

    AccessibilityValue windowElement(EwmhWindowId window) {
        return std::make_unique<WindowElement>(m_desktop, m_programs, window, timeout());
    }

    EwmhDesktop& m_desktop;
    WindowTiler& m_tiler;
    AccessibilityBus& m_programs;
    ProcessIdentifier m_application;
};

}  // namespace

AccessibilityElementHandle WindowAccessibility::applicationElement(ProcessIdentifier application) {
    return std::make_unique<ApplicationElement>(m_desktop, m_tiler, m_programs, application, kDefaultTimeout);
}

}  // namespace kinesta
