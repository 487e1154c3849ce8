#pragma once

// The site: a page for every calculator, made of the description. One pure function from a request to a page;
// whatever carries requests and pages (a server, files, another program) asks it. Nothing here reads or
// writes anything but its arguments, and the same request gives the same bytes wherever and whenever it is
// asked (but for the clock's day, where an input means today). Any number of threads may ask at once.

#include <span>
#include <string>
#include <string_view>

#include "amortix2/automation/date.h"

namespace amortix2::pages {

/// As it came, nothing decoded.
struct Request {
  std::string_view method;   ///< "GET", "HEAD", "POST"
  std::string_view path;     ///< "/loan"
  std::string_view query{};  ///< without "?"
  std::string_view body{};
};

struct Page {
  int status = 200;
  std::string_view contentType = "text/html; charset=utf-8";
  std::string bytes;
  std::string_view fileName{};  ///< under which a browser should keep it; empty: it is shown
  std::string_view allow{};     ///< of a 405: the methods that there are
};

/// A header that belongs to every page, also to those that a transport makes by itself.
struct Header {
  std::string_view name;
  std::string_view value;
};
std::span<const Header> Headers() noexcept;

/// Answers a request, whatever is in it. HEAD is answered as GET: the transport leaves the bytes out. What
/// strangers must not do (files, answers without bounds) does not exist here.
Page Answer(const Request& request, const Clock& clock) noexcept;

/// The page that says what went wrong, for a status of 400 or above.
Page ErrorPage(int status);

}  // namespace amortix2::pages
