#pragma once

#include <QSizeF>

#include "app/AppAppearance.h"
#include "feedback/ActionCuePosition.h"
#include "ui/widgets/Tile.h"

/// The small pictures in the tiles of the settings.
namespace kinesta::SettingsPictures {

inline constexpr QSizeF screenSize{56, 36};
inline constexpr QSizeF windowSize{72, 46};

/// A screen with the cue at this place.
Tile::Paint screen(ActionCuePosition position);
/// A window with this appearance; half light and half dark for the system's.
Tile::Paint window(AppAppearance appearance);

}  // namespace kinesta::SettingsPictures
