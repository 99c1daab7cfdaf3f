#pragma once

#include <AppKit/AppKit.h>

#include "support/Picture.h"

namespace kinesta {

/// The picture, `scale` points for each of its units, in the colour of labels. It is drawn again for every scale and
/// appearance, on any thread (from memory). For Objective-C++ files only.
NSImage* imageOfPicture(Picture picture, double scale = 1);

}  // namespace kinesta
