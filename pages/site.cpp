#include "amortix2/pages/site.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string>

#include "amortix2/charts/escaped_markup.h"
#include "amortix2/component/description.h"
#include "amortix2/pages/api.h"
#include "amortix2/pages/calculator_page.h"
#include "amortix2/pages/chart_page.h"
#include "amortix2/pages/frame.h"
#include "amortix2/pages/home.h"
#include "amortix2/pages/method_page.h"
#include "amortix2/pages/query.h"
#include "amortix2/pages/style_sheet.h"

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

using PageOf = Page (*)(const Query& query, const Clock& clock);

/// A place of its own; all others are calculators.
struct Route {
  std::string_view path;
  PageOf page;
};

Page Resource(std::string_view contentType, std::string_view bytes) {
  return {.contentType = contentType, .bytes = std::string(bytes)};
}

constexpr Route kRoutes[] = {
    {"/", [](const Query& query, const Clock&) { return HomePage(query); }},
    {"/chart", [](const Query& query, const Clock&) { return ChartPage(query); }},
    {"/method", [](const Query&, const Clock&) { return MethodPage(); }},
    {"/style.css",
     [](const Query&, const Clock&) { return Resource("text/css; charset=utf-8", StyleSheet()); }},
    {"/icon.svg", [](const Query&, const Clock&) { return Resource("image/svg+xml", Icon()); }},
};

const ClassMember* FindCalculator(std::string_view path) {
  const auto members = MembersInOrder();
  const auto member = std::ranges::find_if(members, [&](const ClassMember& candidate) {
    return HasPage(candidate) && path.starts_with('/') && candidate.member->address == path.substr(1);
  });
  return member == members.end() ? nullptr : &*member;
}

Page Find(const Request& request, const Clock& clock) {
  if (auto page = ApiPage(request, clock)) return std::move(*page);
  const Route* route = std::ranges::find(kRoutes, request.path, &Route::path);
  const ClassMember* calculator = route == std::end(kRoutes) ? FindCalculator(request.path) : nullptr;
  if (route == std::end(kRoutes) && !calculator) return ErrorPage(404);
  if (request.method != "GET" && request.method != "HEAD") {
    Page page = ErrorPage(405);
    page.allow = "GET, HEAD";
    return page;
  }
  const auto query = Query::Read(request.query);
  if (!query) return ErrorPage(400);
  return calculator ? CalculatorPage(*calculator, *query, clock) : route->page(*query, clock);
}

struct ErrorText {
  int status;
  std::string_view title;
  std::string_view text;
};
constexpr ErrorText kErrorTexts[] = {
    {400, "This address cannot be read", "It may have been cut off or changed on its way."},
    {404, "There is no such page", "The address may be mistyped, or old."},
    {405, "This page is not asked in this way", "It answers another kind of request."},
    {408, "The request took too long", "Please try again."},
    {413, "This is too much at once", "Please send less."},
    {414, "This address is too long", "Please leave something out."},
    {429, "Too many requests", "Please try again in a while."},
    {431, "The request is too large", "Please send less."},
    {503, "There are too many questions right now", "Please try again in a while."},
};

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
  const ErrorText* known = std::ranges::find(kErrorTexts, status, &ErrorText::status);
  const bool isKnown = known != std::end(kErrorTexts);
  const std::string_view title = isKnown ? known->title : "Something went wrong";
  EscapedMarkup out;
  out.Open("div", {{"class", "prose"}});
  out.TextElement("h1", {}, title);
  out.Open("p");
  if (isKnown) out.Text(std::string(known->text) + " ");
  AppendLink(out, "/", "All calculators");
  out.Text(".");
  out.Close();
  out.Close();
  return Framed(title, {}, out, status);
}

}  // namespace amortix2::pages
