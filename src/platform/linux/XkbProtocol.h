#pragma once

// A field of the XKB protocol is named as a keyword of C++.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wpragmas"
#pragma GCC diagnostic ignored "-Wunknown-warning-option"
#pragma GCC diagnostic ignored "-Wkeyword-macro"
#define explicit explicitly
#include <xcb/xkb.h>
#undef explicit
#pragma GCC diagnostic pop
