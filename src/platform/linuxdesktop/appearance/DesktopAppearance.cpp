#include "platform/linuxdesktop/appearance/DesktopAppearance.h"

#include <QApplication>

#include "platform/qt/ThemePalette.h"

namespace kinesta {

DesktopAppearance::DesktopAppearance(DesktopSettings& settings)
    : m_settings(settings), m_palette(QApplication::palette()), m_font(QApplication::font()) {
    applyColours();
    applyTextScale();
    m_changes = m_settings.observe([this] {
        applyColours();
        applyTextScale();
    });
}

void DesktopAppearance::force(std::optional<NamedAppearance> appearance) {
    m_forced = appearance;
    applyColours();
}

NamedAppearance DesktopAppearance::appearance() const {
    if (m_forced)
        return *m_forced;
    if (const auto wish = m_settings.appearance())
        return *wish;
    // A desktop without the portal may still have given Qt a dark palette.
    const bool isDark = m_palette.color(QPalette::Window).lightness() < m_palette.color(QPalette::Text).lightness();
    return isDark ? NamedAppearance::darkAqua : NamedAppearance::aqua;
}

void DesktopAppearance::applyColours() {
    const AppTheme theme = AppTheme::of(appearance(), m_settings.contrast());
    if (theme == m_theme.value())
        return;
    QApplication::setPalette(themePalette(theme));
    m_theme.set(theme);
}

void DesktopAppearance::applyTextScale() {
    // Where a settings daemon serves X programs, it puts the scale into their resolution, which Qt follows.
    const double scale = m_settings.textScale() == 1 || m_xSettings.isOwned() ? 1 : m_settings.textScale();
    if (scale == m_textScale)
        return;
    m_textScale = scale;
    QFont font = m_font;
    if (font.pointSizeF() > 0)
        font.setPointSizeF(font.pointSizeF() * scale);
    else
        font.setPixelSize(qRound(font.pixelSize() * scale));
    QApplication::setFont(font);
}

}  // namespace kinesta
