// Any bytes as a request: the first line is method, path and query, the rest the body. Whatever comes, the
// answer is no fault of the server's, says the same a second time, and lets no markup of the request through.
//
//     clang++ build:  fuzz_requests tests/pages/seeds

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "amortix2/json/tree.h"
#include "amortix2/pages/site.h"

namespace {

using amortix2::pages::Page;

void Need(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "%s\n", what);
  std::abort();
}

/// The text up to a character, which is taken too.
std::string_view Take(std::string_view& text, char end) {
  const std::size_t place = text.find(end);
  const std::string_view taken = text.substr(0, place);
  text.remove_prefix(place == std::string_view::npos ? text.size() : place + 1);
  return taken;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  const amortix2::FixedClock clock(amortix2::MakeDate(2026, 11, 21));
  std::string_view text(reinterpret_cast<const char*>(bytes), size);
  std::string_view line = Take(text, '\n');
  const std::string_view method = Take(line, ' ');
  const std::string_view path = Take(line, '?');
  const amortix2::pages::Request request{.method = method, .path = path, .query = line, .body = text};
  const Page page = amortix2::pages::Answer(request, clock);
  Need(page.status >= 200 && page.status < 500, "a fault of the server's");
  Need(page.bytes == amortix2::pages::Answer(request, clock).bytes, "another answer the second time");
  if (page.contentType.starts_with("text/html")) {
    Need(page.bytes.find("<script") == std::string::npos, "markup came through");
    Need(amortix2::json::IsUtf8(page.bytes), "a page is no text");
  } else if (page.contentType == "application/json") {
    Need(amortix2::json::ParseTree(page.bytes).tree.has_value(), "a reply is no JSON");
  }
  return 0;
}
