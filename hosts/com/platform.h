#pragma once

// The platform's own headers, of which <windows.h> must come first.

// clang-format off
#include <windows.h>
#include <oleauto.h>
#include <olectl.h>
// clang-format on
