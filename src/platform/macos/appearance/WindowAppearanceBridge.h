#pragma once

#include <memory>
#include <optional>

#include "app/AppAppearance.h"

namespace kinesta {

/// Gives the window around a view an appearance, also a window into which the view comes later. Main thread only.
class WindowAppearanceBridge {
  public:
    /// `view` is an NSView, as the toolkit of the window knows it.
    explicit WindowAppearanceBridge(void* view);
    WindowAppearanceBridge(const WindowAppearanceBridge&) = delete;
    WindowAppearanceBridge& operator=(const WindowAppearanceBridge&) = delete;
    ~WindowAppearanceBridge();

    /// Nothing to follow the system.
    void setAppearance(std::optional<NamedAppearance> appearance);

  private:
    struct Impl;
    std::unique_ptr<Impl> m_impl;
};

}  // namespace kinesta
