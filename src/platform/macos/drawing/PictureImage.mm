#include "platform/macos/drawing/PictureImage.h"

namespace kinesta {

NSImage* imageOfPicture(Picture) { return [NSImage new]; }

}  // namespace kinesta
