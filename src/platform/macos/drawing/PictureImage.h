#pragma once

#include <AppKit/AppKit.h>

#include "support/Picture.h"

namespace kinesta {

/// The picture, `scale` points for each of its units, in the colour of labels. It is drawn anew for every scale and
/// appearance, on whatever thread draws. For Objective-C++ files only.
NSImage* imageOfPicture(Picture picture, double scale = 1);

}  // namespace kinesta
