# Cross build for 32-bit Windows with mingw-w64. Doubles are computed by SSE2: the older floating-point unit keeps
# more digits in between, and its cents would differ.
set(AMORTIX2_MINGW i686-w64-mingw32)
set(CMAKE_SYSTEM_PROCESSOR X86)
set(CMAKE_CXX_FLAGS_INIT "-msse2 -mfpmath=sse")
include(${CMAKE_CURRENT_LIST_DIR}/mingw-w64.cmake)
