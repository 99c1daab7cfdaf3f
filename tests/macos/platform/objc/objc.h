#pragma once

#include <stdbool.h>

// Intel Macs have a signed char; the checks for them define the macro.
#ifdef KINESTA_BOOL_IS_CHAR
typedef signed char BOOL;
#else
typedef bool BOOL;
#endif
#define YES __objc_yes
#define NO __objc_no
#define nil nullptr
typedef long NSInteger;
typedef unsigned long NSUInteger;
typedef struct objc_class* Class;
typedef struct objc_object* id;
typedef struct objc_selector* SEL;
