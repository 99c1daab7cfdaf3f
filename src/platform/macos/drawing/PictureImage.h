#pragma once

#include <AppKit/AppKit.h>

#include "support/Picture.h"

namespace kinesta {

/// The picture at its own size in points, in the colour of labels. It is drawn anew for every scale and appearance, on
/// whatever thread draws. For Objective-C++ files only.
NSImage* imageOfPicture(Picture picture);

}  // namespace kinesta
