#pragma once

// COM and automation, after <windows.h>.

#include "windows_system/win32.h"

// They need <windows.h> before them.
#include <objbase.h>
#include <ocidl.h>
#include <oleauto.h>
#include <olectl.h>
