#include "amortix2/pages/site.h"

#include <array>

#include "amortix2/charts/escaped_markup.h"
#include "amortix2/pages/api.h"
#include "amortix2/pages/query.h"

namespace amortix2::pages {
namespace {

// No script, nothing of another host; pictures bring a style sheet of their own along.
constexpr auto kHeaders = std::to_array<Header>({
    {"Content-Security-Policy",
     "default-src 'none'; style-src 'self' 'unsafe-inline'; img-src 'self'; form-action 'self'; base-uri "
     "'none'; "
     "frame-ancestors 'none'"},
    {"X-Content-Type-Options", "nosniff"},
    {"Referrer-Policy", "no-referrer"},
});

Page Find(const Request& request, const Clock& clock) {
  if (auto page = ApiPage(request, clock)) return std::move(*page);
  if (request.method != "GET" && request.method != "HEAD") {
    Page page = ErrorPage(405);
    page.allow = "GET, HEAD";
    return page;
  }
  const auto query = Query::Read(request.query);
  if (!query) return ErrorPage(400);
  return ErrorPage(404);
}

}  // namespace

std::span<const Header> Headers() noexcept { return kHeaders; }

Page Answer(const Request& request, const Clock& clock) noexcept {
  try {
    return Find(request, clock);
  } catch (...) {
    return {.status = 503, .contentType = "text/plain", .bytes = {}};
  }
}

Page ErrorPage(int status) {
  EscapedMarkup out;
  out.TextElement("p", {}, std::to_string(status));
  return {.status = status, .bytes = out.Finish()};
}

}  // namespace amortix2::pages
