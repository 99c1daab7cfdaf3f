#pragma once

#include <QFont>
#include <QPalette>

#include "app/AppTheme.h"
#include "app/AppearanceControl.h"
#include "platform/linuxdesktop/ScreenSelection.h"
#include "platform/linuxdesktop/appearance/DesktopSettings.h"
#include "support/Published.h"

namespace kinesta {

/// Gives all windows of the application their colours and the size of their text, and follows the desktop with both.
class DesktopAppearance final : public AppearanceControl {
  public:
    /// Needs the QApplication. `settings` must outlive this.
    explicit DesktopAppearance(DesktopSettings& settings);

    void force(std::optional<NamedAppearance> appearance) override;

    const Published<AppTheme>& theme() const { return m_theme; }

    /// The one in force.
    NamedAppearance appearance() const;

  private:
    void applyColours();
    void applyTextScale();

    DesktopSettings& m_settings;
    /// As the desktop set them at the start.
    QPalette m_palette;
    QFont m_font;
    ScreenSelection m_xSettings{"_XSETTINGS_S"};
    std::optional<NamedAppearance> m_forced;
    Published<AppTheme> m_theme;
    double m_textScale = 1;
    Subscription m_changes;
};

}  // namespace kinesta
