#pragma once

#include <cstdint>

#include "app/AppAppearance.h"

namespace kinesta {

/// An opaque colour in sRGB.
struct Rgb {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;

    friend bool operator==(const Rgb&, const Rgb&) = default;
};

enum class ThemeContrast { standard, more };

/// The colours of our windows. Words have a contrast of at least 4.5 on every ground, parts of controls 3.
struct AppTheme {
    Rgb accent;
    /// The window.
    Rgb canvas;
    /// Cards, fields, menus, the paper of the pad.
    Rgb surface;
    /// Hairlines of cards and rows: decoration, never the only edge of a control.
    Rgb border;

    Rgb text;
    /// Second lines and placeholders.
    Rgb text2;
    /// Edges of fields, switches that are off, grooves, the outline of the pad, disabled words.
    Rgb line;
    /// Words and knobs on accent.
    Rgb onAccent;
    Rgb sidebar;
    /// The selected row of the sidebar.
    Rgb selected;
    /// The stage behind the pad, chosen tiles, plain notices.
    Rgb accentSoft;
    /// Buttons and tiles, and the same while held down.
    Rgb control;
    Rgb pressed;
    /// A softly clicked pad.
    Rgb pressSoft;
    /// The lower edge of a large pad.
    Rgb lip;
    Rgb caution;
    Rgb cautionSoft;
    Rgb danger;
    Rgb dangerSoft;
    /// "This works".
    Rgb positive;
    /// Width of the ring around the widget with the focus, in logical pixels.
    int focusRing = 2;

    static AppTheme of(NamedAppearance appearance, ThemeContrast contrast);

    friend bool operator==(const AppTheme&, const AppTheme&) = default;
};

}  // namespace kinesta
