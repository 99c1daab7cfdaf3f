#include "platform/qt/ThemePalette.h"

namespace kinesta {

QPalette themePalette(const AppTheme& theme) {
    // Qt derives from these two the roles that are not named below.
    QPalette palette(asQColor(theme.control), asQColor(theme.canvas));
    const auto set = [&palette](QPalette::ColorRole role, Rgb colour) { palette.setColor(role, asQColor(colour)); };
    set(QPalette::Window, theme.canvas);
    set(QPalette::Base, theme.surface);
    set(QPalette::AlternateBase, theme.canvas);
    set(QPalette::Button, theme.control);
    set(QPalette::ToolTipBase, theme.surface);
    for (const auto role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::BrightText, QPalette::ToolTipText})
        set(role, theme.text);
    set(QPalette::PlaceholderText, theme.text2);
    set(QPalette::Highlight, theme.accent);
    set(QPalette::HighlightedText, theme.onAccent);
    set(QPalette::Link, theme.accent);
    set(QPalette::LinkVisited, theme.accent);
    set(QPalette::Mid, theme.border);
    set(QPalette::Dark, theme.line);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::PlaceholderText})
        palette.setColor(QPalette::Disabled, role, asQColor(theme.line));
    return palette;
}

}  // namespace kinesta
