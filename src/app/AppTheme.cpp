#include "app/AppTheme.h"

#include <cmath>

namespace kinesta {
namespace {

constexpr Rgb rgb(std::uint32_t hex) {
    return {static_cast<std::uint8_t>(hex >> 16U), static_cast<std::uint8_t>(hex >> 8U),
            static_cast<std::uint8_t>(hex)};
}

/// `colour` at `opacity` over `ground`.
Rgb mix(Rgb colour, Rgb ground, double opacity) {
    const auto channel = [opacity](std::uint8_t above, std::uint8_t below) {
        return static_cast<std::uint8_t>(std::lround(below + (above - below) * opacity));
    };
    return {channel(colour.red, ground.red), channel(colour.green, ground.green), channel(colour.blue, ground.blue)};
}

AppTheme lightTheme() {
    AppTheme theme;
    theme.accent = rgb(0x4A4FCB);
    theme.canvas = rgb(0xF5F5F8);
    theme.surface = rgb(0xFFFFFF);
    theme.border = rgb(0xDDDEE6);
    theme.text = rgb(0x1B1C22);
    theme.text2 = rgb(0x5A5D6A);
    theme.line = rgb(0x767988);
    theme.onAccent = rgb(0xFFFFFF);
    theme.sidebar = mix(theme.text, theme.canvas, 0.035);
    theme.selected = mix(theme.accent, theme.sidebar, 0.10);
    theme.accentSoft = mix(theme.accent, theme.surface, 0.11);
    theme.control = mix(theme.line, theme.surface, 0.14);
    theme.pressed = mix(theme.line, theme.surface, 0.26);
    theme.pressSoft = mix(theme.accent, theme.surface, 0.30);
    theme.lip = mix(theme.line, theme.surface, 0.42);
    theme.caution = rgb(0x8A5300);
    theme.cautionSoft = rgb(0xFDF3DF);
    theme.danger = rgb(0xB3261E);
    theme.dangerSoft = rgb(0xFCEBEA);
    theme.positive = rgb(0x1D7544);
    return theme;
}

AppTheme darkTheme() {
    AppTheme theme;
    theme.accent = rgb(0xA3A8FF);
    theme.canvas = rgb(0x1B1C21);
    theme.surface = rgb(0x26272E);
    theme.border = rgb(0x393B45);
    theme.text = rgb(0xECEDF2);
    theme.text2 = rgb(0xADB0BE);
    theme.line = rgb(0x8C8F9E);
    theme.onAccent = rgb(0x15162F);
    theme.sidebar = mix(rgb(0x000000), theme.canvas, 0.20);
    theme.selected = mix(theme.accent, theme.sidebar, 0.18);
    theme.accentSoft = mix(theme.accent, theme.surface, 0.16);
    theme.control = mix(theme.line, theme.surface, 0.20);
    theme.pressed = mix(theme.line, theme.surface, 0.32);
    theme.pressSoft = mix(theme.accent, theme.surface, 0.34);
    theme.lip = mix(theme.line, theme.surface, 0.42);
    theme.caution = rgb(0xF2BC5C);
    theme.cautionSoft = rgb(0x352F27);
    theme.danger = rgb(0xFF8A80);
    theme.dangerSoft = rgb(0x3D2A2D);
    theme.positive = rgb(0x6BCB92);
    return theme;
}

}  // namespace

AppTheme AppTheme::of(NamedAppearance appearance, ThemeContrast contrast) {
    AppTheme theme = appearance == NamedAppearance::darkAqua ? darkTheme() : lightTheme();
    if (contrast == ThemeContrast::more) {
        // The grounds mixed from the old values stay, so that words gain on them.
        theme.border = theme.line;
        theme.line = theme.text2;
        theme.text2 = theme.text;
        theme.focusRing = 3;
    }
    return theme;
}

}  // namespace kinesta
