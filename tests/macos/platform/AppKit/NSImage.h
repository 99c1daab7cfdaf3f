#pragma once

#include <CoreGraphics/CGContext.h>
#include <Foundation/Foundation.h>

#pragma clang assume_nonnull begin

@interface NSColor : NSObject <NSCopying>
@property(class, readonly, strong) NSColor* clearColor;
@property(class, readonly, strong) NSColor* labelColor;
@property(readonly) CGColorRef CGColor;
- (void)set;
@end

@interface NSGraphicsContext : NSObject
@property(class, nullable, readonly, strong) NSGraphicsContext* currentContext;
@property(readonly) CGContextRef CGContext;
@end

@interface NSImage : NSObject
+ (instancetype)imageWithSize:(NSSize)size
                      flipped:(BOOL)drawingHandlerShouldBeCalledWithFlippedContext
               drawingHandler:(BOOL (^)(NSRect dstRect))drawingHandler;
@property NSSize size;
@end

#pragma clang assume_nonnull end
