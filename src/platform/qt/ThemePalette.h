#pragma once

#include <QPalette>

#include "app/AppTheme.h"

namespace kinesta {

inline QColor asQColor(Rgb colour) { return {colour.red, colour.green, colour.blue}; }

/// The palette that gives stock widgets the colours of the theme.
QPalette themePalette(const AppTheme& theme);

}  // namespace kinesta
