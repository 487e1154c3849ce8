# Cross build for 64-bit Windows with mingw-w64.
set(AMORTIX2_MINGW x86_64-w64-mingw32)
set(CMAKE_SYSTEM_PROCESSOR AMD64)
include(${CMAKE_CURRENT_LIST_DIR}/mingw-w64.cmake)
