#pragma once

#include <AppKit/AppKit.h>

#include "support/Picture.h"

namespace kinesta {

/// The picture at its own size in points, in the colour of labels. For Objective-C++ files only.
NSImage* imageOfPicture(Picture picture);

}  // namespace kinesta
