#pragma once

#include <xcb/xcb.h>

// The header uses a C++ keyword as the name of structure members.
#ifdef __clang__
#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Wkeyword-macro"  // the keyword is renamed on purpose
#endif
#define explicit explicit_  // NOLINT(bugprone-macro-parentheses,clang-diagnostic-keyword-macro)
#include <xcb/xkb.h>
#undef explicit
#ifdef __clang__
#pragma clang diagnostic pop
#endif
