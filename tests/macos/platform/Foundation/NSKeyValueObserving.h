#pragma once

#include <Foundation/NSCollections.h>

#pragma clang assume_nonnull begin

typedef NSString* NSKeyValueChangeKey;
typedef CF_OPTIONS(NSUInteger, NSKeyValueObservingOptions) { NSKeyValueObservingOptionInitial = 4 };

@interface NSObject (NSKeyValueObserving)
- (void)observeValueForKeyPath:(nullable NSString*)keyPath
                      ofObject:(nullable id)object
                        change:(nullable NSDictionary<NSKeyValueChangeKey, id>*)change
                       context:(nullable void*)context;
- (void)addObserver:(NSObject*)observer
         forKeyPath:(NSString*)keyPath
            options:(NSKeyValueObservingOptions)options
            context:(nullable void*)context;
- (void)removeObserver:(NSObject*)observer forKeyPath:(NSString*)keyPath context:(nullable void*)context;
@end

@interface NSThread : NSObject
@property(class, readonly) BOOL isMainThread;
@end

#pragma clang assume_nonnull end
