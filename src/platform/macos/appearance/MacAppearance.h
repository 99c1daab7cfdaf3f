#pragma once

#include <memory>
#include <optional>

#include "app/AppTheme.h"
#include "app/AppearanceControl.h"
#include "platform/macos/appearance/MacDisplayPreferences.h"
#include "support/Published.h"

namespace kinesta {

class KeyValueObservation;
class WindowAppearanceBridge;

/// Gives the configuration window its colours, and follows the system with them. Main thread only.
class MacAppearance final : public AppearanceControl {
  public:
    /// `preferences` must outlive this.
    explicit MacAppearance(MacDisplayPreferences& preferences);
    MacAppearance(const MacAppearance&) = delete;
    MacAppearance& operator=(const MacAppearance&) = delete;
    ~MacAppearance() override;

    void force(std::optional<NamedAppearance> appearance) override;

    /// The window around this NSView has the forced appearance from now on, in place of an earlier one. Null to let go
    /// of the last one.
    void setWindowView(void* view);

    const Published<AppTheme>& theme() const { return m_theme; }

    /// The one in force.
    NamedAppearance appearance() const;

  private:
    void applyColours();

    MacDisplayPreferences& m_preferences;
    std::optional<NamedAppearance> m_forced;
    std::unique_ptr<WindowAppearanceBridge> m_window;
    Published<AppTheme> m_theme;
    Subscription m_contrast;
    std::unique_ptr<KeyValueObservation> m_system;
};

}  // namespace kinesta
