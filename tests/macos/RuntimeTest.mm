// What the runtime promises to the tests that stand on it: the language works, and faults are seen.
#include <AppKit/AppKit.h>

#include <memory>
#include <string>
#include <vector>

#include "MacTest.h"

extern "C" void CFRelease(const void* object);

@protocol Greeter <NSObject>
- (int)greet;
@optional
- (int)wave;
@end

@interface Base : NSView
@property(nonatomic, copy) int (^block)(int);
@property(nonatomic, weak) id watched;
@property NSRect area;
@end
@implementation Base {
    double _own;
}
- (NSRect)grown {
    return NSRect{{1, 2}, {3 + _own, 4}};
}
@end

@interface Derived : Base <Greeter> {
  @public
    std::vector<std::shared_ptr<int>> numbers;
    int marker;
}
- (NSRect)grown;
@end
@implementation Derived
- (NSRect)grown {
    NSRect rect = [super grown];
    rect.size.width *= 2;
    return rect;
}
- (int)greet {
    return 1;
}
@end
@interface Derived (More)
- (int)twice:(int)value;
@end
@implementation Derived (More)
- (int)twice:(int)value {
    return 2 * value + marker;
}
@end

@interface Cyclic : NSObject
@property(nonatomic, copy) void (^block)(void);
@end
@implementation Cyclic
@end

@interface WeakInDealloc : NSObject
@end
@implementation WeakInDealloc
- (void)dealloc {
    __weak id weakSelf = self;
    (void)weakSelf;
}
@end

@interface NSView (Undefined)
- (void)neverWritten;
@end

namespace kinesta {
namespace {

class ObjectiveCRuntime : public MacTest {};

TEST_F(ObjectiveCRuntime, RunsTheLanguage) {
    @autoreleasepool {
        Derived* const object = [Derived new];
        object->numbers.push_back(std::make_shared<int>(7));
        object->marker = 1;
        object.area = NSRect{{1, 2}, {3, 4}};
        object.frame = NSRect{{5, 6}, {7, 8}};
        EXPECT_EQ(object.area.size.height, 4);
        EXPECT_EQ(object.frame.origin.y, 6);
        EXPECT_EQ([object grown].size.width, 6);
        EXPECT_EQ([object twice:4], 9);
        EXPECT_EQ(*object->numbers[0], 7);
        EXPECT_TRUE([object isKindOfClass:[NSResponder class]] && [object conformsToProtocol:@protocol(Greeter)]);
        EXPECT_TRUE([object respondsToSelector:@selector(greet)] && ![object respondsToSelector:@selector(wave)]);

        __block int sum = 0;
        __block NSString* last = nil;
        const auto keep = std::make_shared<int>(10);
        {
            object.block = ^(int x) {
              sum += x;
              last = @"ünï😀";
              return sum + *keep;
            };
        }
        EXPECT_EQ(object.block(1) + object.block(2), 11 + 13);
        EXPECT_EQ(keep.use_count(), 2);
        object.block = nil;
        EXPECT_EQ(keep.use_count(), 1);
        EXPECT_EQ(last.length, 5U);
        EXPECT_STREQ(last.UTF8String, "ünï😀");

        double total = 0;
        for (NSNumber* number in @[ @1, @2.5, @(sum) ])
            total += number.doubleValue;
        EXPECT_EQ(total, 6.5);
        NSDictionary* const dictionary = @{@"a" : @YES, @"b" : @[]};
        EXPECT_EQ([dictionary[[NSString stringWithUTF8String:"a"]] boolValue], YES);
        EXPECT_EQ(dictionary[@"c"], nil);
        @synchronized(object) {
            object.watched = dictionary;
        }
        Derived* const none = nil;
        EXPECT_EQ([none twice:3], 0);
    }
    EXPECT_EQ(objc::liveObjects(), before());
}

TEST_F(ObjectiveCRuntime, ShowsWhatIsLeftOfACycle) {
    __weak Cyclic* left = nil;
    @autoreleasepool {
        Cyclic* const object = [Cyclic new];
        left = object;
        id const hidden = object;  // or the compiler itself would see it
        object.block = ^{
          (void)hidden;
        };
    }
    EXPECT_EQ(objc::liveObjects(), "Cyclic 1, " + before() + ", block 1");
    left.block = nil;
    EXPECT_EQ(objc::liveObjects(), before());
}

TEST_F(ObjectiveCRuntime, StopsAtFaults) {
    using ::testing::ExitedWithCode;
    EXPECT_DEATH(CFRelease((__bridge void*)[NSView new]), "release of a NSView that is gone");
    EXPECT_DEATH(
        {
            __unsafe_unretained NSView* gone = nil;
            @autoreleasepool {
                NSView* const view = [NSView new];
                gone = view;
            }
            gone.hidden = YES;
        },
        "message setHidden: of a NSView that is gone");
    EXPECT_DEATH([WeakInDealloc new], "weak reference to a WeakInDealloc in its dealloc");
    EXPECT_DEATH([[NSView new] neverWritten], "NSView#1 does not understand neverWritten");
    EXPECT_DEATH([NSEvent removeMonitor:@"none"], "no monitor");
}

TEST_F(ObjectiveCRuntime, CountsCObjects) {
    void* const event = objc::makeCObject("CGEvent");
    EXPECT_EQ(objc::liveObjects(), "CGEvent 1, " + before());
    EXPECT_EQ(objc::describe(event), "CGEvent#1");
    CFRelease(event);
    EXPECT_EQ(objc::liveObjects(), before());
    EXPECT_DEATH(CFRelease(event), "release of a CGEvent that is gone");
}

}  // namespace
}  // namespace kinesta
