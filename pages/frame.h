#pragma once

// What all pages of the site share: head, navigation and foot around a page's own part.

#include <string>
#include <string_view>
#include <vector>

#include "amortix2/charts/escaped_markup.h"
#include "amortix2/pages/site.h"

namespace amortix2::pages {

/// The page of a path, with `main` as its part. `title` stands in the browser's bar; `main` brings its own
/// h1.
Page Framed(std::string_view title, std::string_view path, EscapedMarkup& main, int status = 200);

/// A link.
void AppendLink(EscapedMarkup& out, std::string_view address, std::string_view text);

/// Into an open figure: its caption, a picture and, on demand, the table of its numbers, both markup.
void AppendFigure(EscapedMarkup& out, std::string_view caption, std::string_view picture,
                  std::string_view table);

/// What was wrong with a form.
struct Problem {
  std::string field;       ///< its id; empty: the question as a whole
  std::string_view title;  ///< of the field
  std::string_view sentence;
};

/// The place of an answer where there is none: every problem with a link to its field. The page opens here.
void AppendProblems(EscapedMarkup& out, const std::vector<Problem>& problems);

}  // namespace amortix2::pages
