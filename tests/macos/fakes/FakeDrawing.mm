// Images and the functions of CoreGraphics that draw them.
#include <AppKit/NSImage.h>

#include <cstdio>
#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "Fakes.h"

namespace {

bool hasContext = false;

std::vector<std::string>& lines() {
    static auto& all = *new std::vector<std::string>;
    return all;
}

void draw(std::string name, std::initializer_list<double> numbers = {}) {
    for (const double number : numbers) {
        char text[32];
        std::snprintf(text, sizeof text, " %.4g", number);
        name += text;
    }
    lines().push_back(std::move(name));
}

}  // namespace

@implementation NSColor {
    const char* _name;
}
static NSColor* named(const char* name) {
    NSColor* const color = [NSColor new];
    color->_name = name;
    return color;
}
+ (NSColor*)clearColor {
    return named("clearColor");
}
+ (NSColor*)labelColor {
    return named("labelColor");
}
- (CGColorRef)CGColor {
    static void* color;
    void* const place = &color;
    return static_cast<CGColorRef>(place);
}
- (id)copyWithZone:(NSZone*)zone {
    return self;
}
- (const char*)recordedText {
    return _name;
}
- (void)set {
    draw(_name);
}
@end

@implementation NSGraphicsContext
+ (NSGraphicsContext*)currentContext {
    return hasContext ? [NSGraphicsContext new] : nil;
}
- (CGContextRef)CGContext {
    static void* context;
    void* const place = &context;
    return static_cast<CGContextRef>(place);
}
@end

@implementation NSImage {
  @public
    BOOL (^_handler)(NSRect);
}
+ (instancetype)imageWithSize:(NSSize)size flipped:(BOOL)flipped drawingHandler:(BOOL (^)(NSRect))handler {
    NSImage* const image = [self new];
    image.size = size;
    image->_handler = handler;
    return image;
}
@end

void CGContextSaveGState(CGContextRef) { draw("save"); }
void CGContextRestoreGState(CGContextRef) { draw("restore"); }
void CGContextBeginTransparencyLayer(CGContextRef, CFDictionaryRef) { draw("layer"); }
void CGContextEndTransparencyLayer(CGContextRef) { draw("end of layer"); }
void CGContextSetBlendMode(CGContextRef, CGBlendMode mode) { draw("blend", {double(mode)}); }
void CGContextSetLineWidth(CGContextRef, CGFloat width) { draw("width", {width}); }
void CGContextSetLineCap(CGContextRef, CGLineCap cap) { draw("cap", {double(cap)}); }
void CGContextSetLineJoin(CGContextRef, CGLineJoin join) { draw("join", {double(join)}); }
void CGContextScaleCTM(CGContextRef, CGFloat x, CGFloat y) { draw("scale", {x, y}); }
void CGContextBeginPath(CGContextRef) { draw("path"); }
void CGContextMoveToPoint(CGContextRef, CGFloat x, CGFloat y) { draw("move", {x, y}); }
void CGContextAddLineToPoint(CGContextRef, CGFloat x, CGFloat y) { draw("line", {x, y}); }
void CGContextAddCurveToPoint(CGContextRef, CGFloat x1, CGFloat y1, CGFloat x2, CGFloat y2, CGFloat x, CGFloat y) {
    draw("curve", {x1, y1, x2, y2, x, y});
}
void CGContextClosePath(CGContextRef) { draw("close"); }
void CGContextEOFillPath(CGContextRef) { draw("fill"); }
void CGContextStrokePath(CGContextRef) { draw("stroke"); }

namespace kinesta::fakes {

std::vector<std::string> drawn(NSImage* image, bool isInContext) {
    @autoreleasepool {
        lines().clear();
        hasContext = isInContext;
        if (!image->_handler(NSRect{{}, image.size}))
            lines().emplace_back("nothing");
        hasContext = false;
        return std::exchange(lines(), {});
    }
}

}  // namespace kinesta::fakes
