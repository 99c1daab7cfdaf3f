#pragma once

#include <QIcon>

#include "support/Picture.h"

namespace kinesta {

/// Icons for stock controls, in the colours of the theme at the moment when they are painted.
class SymbolIcon {
  public:
    /// In the colour of words; in their colour on accent where the icon is selected. A mask: a style may paint it in
    /// the colour of the words beside it.
    static QIcon of(const Picture& picture);
};

}  // namespace kinesta
