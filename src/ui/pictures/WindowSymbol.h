#pragma once

#include "support/Picture.h"

namespace kinesta {

/// The symbols of the window besides those of the actions.
enum class WindowSymbol {
    caution,
    clash,
    tick,
    works,
    fails,
    information,
    overview,
    settings,
    add,
    more,
    search,
    play,
    run,
    copy,
    clear,
    grip,
    chevronDown,
    chevronLeft,
    chevronRight,
    chevrons,
    repeat,
    wave,
};

/// 16 × 16.
const Picture& windowSymbol(WindowSymbol symbol);

}  // namespace kinesta
