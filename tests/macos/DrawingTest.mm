#include "MacTest.h"
#include "platform/macos/drawing/PictureImage.h"

namespace kinesta {
namespace {

using PictureImage = MacTest;

TEST_F(PictureImage, StrokesFillsAndErasesWithinALayerOfItsOwn) {
    @autoreleasepool {
        NSImage* image = nil;
        {
            Path curve = Path::parse("M1 2 C3 4 5 6 7 8 L9 1 Z");
            const Picture picture{23,
                                  18,
                                  {{Path::line({1, 2}, {3, 4}), 1.5},
                                   {Path::line({5, 6}, {7, 8}), 5, Shape::Ink::erase},
                                   {std::move(curve)}}};
            image = imageOfPicture(picture, 2);
        }
        EXPECT_EQ(objc::takeCalls(), Calls{"NSImage imageWithSize:{46 36} flipped:YES drawingHandler:block"});
        const Calls once{"save",     "layer",        "scale 2 2", "labelColor",        "cap 1",     "join 1",
                         "blend 0",  "path",         "move 1 2",  "line 3 4",          "width 1.5", "stroke",
                         "blend 16", "path",         "move 5 6",  "line 7 8",          "width 5",   "stroke",
                         "blend 0",  "path",         "move 1 2",  "curve 3 4 5 6 7 8", "line 9 1",  "close",
                         "fill",     "end of layer", "restore"};
        EXPECT_EQ(fakes::drawn(image), once);
        EXPECT_EQ(fakes::drawn(image), once);  // for the next scale
        EXPECT_EQ(fakes::drawn(image, false), Calls{"nothing"});
    }
}

}  // namespace
}  // namespace kinesta
