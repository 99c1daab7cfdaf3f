#pragma once

#include <xcb/xcb.h>

// The header names structure members with a word that C++ has taken.
#define explicit explicit_  // NOLINT(bugprone-macro-parentheses,clang-diagnostic-keyword-macro)
#include <xcb/xkb.h>
#undef explicit
