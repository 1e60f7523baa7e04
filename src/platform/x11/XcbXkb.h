#pragma once

// A word of C++ is the name of a field there.
#define explicit explicit_
#include <xcb/xkb.h>
#undef explicit
