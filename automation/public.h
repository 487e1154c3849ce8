#pragma once

// Marks what C++ programs may use of the library: namespace AMORTIX2_PUBLIC amortix2 { ... } in a header that
// is installed. Everything else stays hidden in the shared library.

#ifdef _WIN32
#define AMORTIX2_PUBLIC
#else
#define AMORTIX2_PUBLIC [[gnu::visibility("default")]]
#endif
