#pragma once

// What all pages of the site share: head, navigation and foot around a page's own part.

#include <string_view>

#include "amortix2/charts/escaped_markup.h"
#include "amortix2/pages/site.h"

namespace amortix2::pages {

/// The page of a path, with `main` as its part. `title` stands in the browser's bar; `main` brings its own
/// h1.
Page Framed(std::string_view title, std::string_view path, EscapedMarkup& main, int status = 200);

/// A link.
void AppendLink(EscapedMarkup& out, std::string_view address, std::string_view text);

}  // namespace amortix2::pages
