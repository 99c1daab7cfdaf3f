#include "platform/macos/drawing/PictureImage.h"

namespace kinesta {
namespace {

using Kind = Path::Segment::Kind;

void addPath(CGContextRef context, const Path& path) {
    CGContextBeginPath(context);
    for (const auto& [kind, points] : path.segments) {
        switch (kind) {
            case Kind::move:
                CGContextMoveToPoint(context, points[0].x, points[0].y);
                break;
            case Kind::line:
                CGContextAddLineToPoint(context, points[0].x, points[0].y);
                break;
            case Kind::curve:
                CGContextAddCurveToPoint(context, points[0].x, points[0].y, points[1].x, points[1].y, points[2].x,
                                         points[2].y);
                break;
            case Kind::close:
                CGContextClosePath(context);
                break;
        }
    }
}

void draw(CGContextRef context, const Picture& picture, double scale) {
    CGContextSaveGState(context);
    // In a layer of its own: erasing must not reach what lies under the picture.
    CGContextBeginTransparencyLayer(context, nullptr);
    CGContextScaleCTM(context, scale, scale);
    [NSColor.labelColor set];
    CGContextSetLineCap(context, kCGLineCapRound);
    CGContextSetLineJoin(context, kCGLineJoinRound);
    for (const auto& [path, stroke, ink] : picture.shapes) {
        CGContextSetBlendMode(context, ink == Shape::Ink::erase ? kCGBlendModeClear : kCGBlendModeNormal);
        addPath(context, path);
        if (stroke == 0) {
            CGContextEOFillPath(context);  // as the other painter fills
        } else {
            CGContextSetLineWidth(context, stroke);
            CGContextStrokePath(context);
        }
    }
    CGContextEndTransparencyLayer(context);
    CGContextRestoreGState(context);
}

}  // namespace

NSImage* imageOfPicture(Picture picture, double scale) {
    return [NSImage imageWithSize:CGSize{picture.width * scale, picture.height * scale}
                          flipped:YES  // y runs downward in pictures
                   drawingHandler:^BOOL(NSRect) {
                     NSGraphicsContext* const context = NSGraphicsContext.currentContext;
                     if (!context)
                         return NO;
                     draw(context.CGContext, picture, scale);
                     return YES;
                   }];
}

}  // namespace kinesta
