#pragma once

#include <Foundation/NSValues.h>

#pragma clang assume_nonnull begin

typedef struct {
    unsigned long state;
    id __unsafe_unretained _Nullable* _Nullable itemsPtr;
    unsigned long* _Nullable mutationsPtr;
    unsigned long extra[5];
} NSFastEnumerationState;

@protocol NSFastEnumeration
- (NSUInteger)countByEnumeratingWithState:(NSFastEnumerationState*)state
                                  objects:(id __unsafe_unretained _Nullable[_Nonnull])buffer
                                    count:(NSUInteger)count;
@end

@interface NSArray<__covariant T> : NSObject <NSCopying, NSFastEnumeration>
@property(readonly) NSUInteger count;
- (T)objectAtIndexedSubscript:(NSUInteger)index;
+ (instancetype)arrayWithObjects:(const T _Nonnull[_Nonnull])objects count:(NSUInteger)count;
@end

@interface NSDictionary<K, V> : NSObject
@property(readonly) NSUInteger count;
- (nullable V)objectForKeyedSubscript:(K)key;
+ (instancetype)dictionaryWithObjects:(const V _Nonnull[_Nullable])objects
                              forKeys:(const K<NSCopying> _Nonnull[_Nullable])keys
                                count:(NSUInteger)count;
@end

#pragma clang assume_nonnull end
