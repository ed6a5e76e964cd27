#pragma once

#include <xcb/xcb.h>

// The keyboard extension's header calls a member by a word that C++ reserves.
#define explicit explicit_
#include <xcb/xkb.h>
#undef explicit
