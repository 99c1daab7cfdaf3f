// block implicitly retains 'self'
#include <AppKit/AppKit.h>

@interface Counter : NSObject {
    int _count;
}
@end

@implementation Counter
- (void (^)(void))counting {
    return ^{
      ++_count;
    };
}
@end
