#pragma once

#include <stdint.h>
#include <sys/types.h>

typedef unsigned char Boolean;
typedef uint8_t UInt8;
typedef uint16_t UInt16;
typedef uint32_t UInt32;
typedef int32_t SInt32;
typedef SInt32 OSStatus;
typedef UInt32 OptionBits;
typedef uint16_t UniChar;
typedef unsigned long UniCharCount;
