#pragma once

// The only file that includes <windows.h>, without the macros that would rename functions of ours.

#define WIN32_LEAN_AND_MEAN
#ifndef NOMINMAX  // The C++ library may have defined it.
#define NOMINMAX
#endif
#include <windows.h>

#undef GetTempPath
