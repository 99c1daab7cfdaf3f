#pragma once

#include <xcb/xcb.h>

// The header names structure members with a word that C++ has taken.
#ifdef __clang__
#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Wkeyword-macro"  // that is the point
#endif
#define explicit explicit_  // NOLINT(bugprone-macro-parentheses,clang-diagnostic-keyword-macro)
#include <xcb/xkb.h>
#undef explicit
#ifdef __clang__
#pragma clang diagnostic pop
#endif
