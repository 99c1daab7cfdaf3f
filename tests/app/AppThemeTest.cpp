#include "app/AppTheme.h"

#include <gtest/gtest.h>

#include <cmath>
#include <utility>

namespace kinesta {
namespace {

double luminance(Rgb colour) {
    const auto linear = [](std::uint8_t channel) {
        const double part = channel / 255.0;
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.red) + 0.7152 * linear(colour.green) + 0.0722 * linear(colour.blue);
}

double contrast(Rgb a, Rgb b) {
    const double lighter = std::max(luminance(a), luminance(b));
    return (lighter + 0.05) / (std::min(luminance(a), luminance(b)) + 0.05);
}

TEST(AppTheme, KeepsWordsAndControlsLegible) {
    for (const auto appearance : {NamedAppearance::aqua, NamedAppearance::darkAqua})
        for (const auto wish : {ThemeContrast::standard, ThemeContrast::more}) {
            const AppTheme t = AppTheme::of(appearance, wish);
            const std::pair<Rgb, Rgb> words[] = {
                {t.onAccent, t.accent},     {t.text, t.cautionSoft}, {t.text2, t.cautionSoft},
                {t.caution, t.cautionSoft}, {t.danger, t.surface},   {t.danger, t.dangerSoft},
                {t.positive, t.surface},    {t.caution, t.surface},  {t.caution, t.accentSoft},
                {t.caution, t.selected},
            };
            for (const auto& [ink, ground] : words)
                EXPECT_GE(contrast(ink, ground), 4.5);
            for (const Rgb ground : {t.surface, t.canvas, t.sidebar, t.selected, t.accentSoft, t.control}) {
                for (const Rgb word : {t.text, t.text2, t.accent})
                    EXPECT_GE(contrast(word, ground), 4.5);
                EXPECT_GE(contrast(t.line, ground), wish == ThemeContrast::more ? 4.5 : 3.0);
            }
            EXPECT_GE(contrast(t.accent, t.pressSoft), 3.0);
        }
    // The mixing, at both ends of the range: a mistake in it could keep the contrasts.
    EXPECT_EQ(AppTheme::of(NamedAppearance::aqua, ThemeContrast::standard).sidebar, (Rgb{0xED, 0xED, 0xF1}));
    EXPECT_EQ(AppTheme::of(NamedAppearance::darkAqua, ThemeContrast::standard).lip, (Rgb{0x51, 0x53, 0x5D}));
}

}  // namespace
}  // namespace kinesta
