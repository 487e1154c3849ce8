// Preloaded into the program, makes its n-th allocation fail, where FAIL_AT is n; tells how many there were
// in the file that FAIL_COUNT names. With FAIL_ON all after the n-th fail too.

#include <cstddef>
#include <cstdio>
#include <cstdlib>

extern "C" {

// What the C library calls its own. NOLINTBEGIN(bugprone-reserved-identifier,readability-identifier-naming)
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* place, std::size_t size);
// NOLINTEND(bugprone-reserved-identifier,readability-identifier-naming)

static long count = 0;

static bool Fails() {
  static const char* const at = std::getenv("FAIL_AT");
  static const bool goesOn = std::getenv("FAIL_ON") != nullptr;
  static const long first = at ? std::atol(at) : 0;
  ++count;
  return first > 0 && (goesOn ? count >= first : count == first);
}

void* malloc(std::size_t size) { return Fails() ? nullptr : __libc_malloc(size); }
void* calloc(std::size_t nmemb, std::size_t size) { return Fails() ? nullptr : __libc_calloc(nmemb, size); }
void* realloc(void* ptr, std::size_t size) { return Fails() ? nullptr : __libc_realloc(ptr, size); }

[[gnu::destructor]] static void Tell() {
  const char* const name = std::getenv("FAIL_COUNT");
  std::FILE* const file = name ? std::fopen(name, "w") : nullptr;
  if (!file) return;
  std::fprintf(file, "%ld\n", count);
  std::fclose(file);
}

}  // extern "C"
