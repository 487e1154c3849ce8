#pragma once

// A text with some structure, made once and written for different readers: a terminal, Markdown, a manual
// page. Knows nothing of what it says.

#include <string>
#include <variant>
#include <vector>

namespace amortix2::cli {

struct Heading {
  int level;  ///< from 1
  std::string text;
};
struct Paragraph {
  std::string text;
};
/// Lines that stand as they are.
struct Code {
  std::string text;
};
/// A term with what is to be known of it.
struct Item {
  std::string term;
  std::string title;
  std::vector<std::string> sentences;
  std::vector<std::string> points{};  ///< each on a line of its own
};
struct Items {
  std::vector<Item> items;
};
/// The first row is the header; cells but those of the first column stand to the right.
struct Grid {
  std::vector<std::vector<std::string>> rows;
};
using Document = std::vector<std::variant<Heading, Paragraph, Code, Items, Grid>>;

/// At most 100 columns wide but for code and grids; a heading of the first level stands at the left, all else
/// is indented below it.
std::string TerminalText(const Document& document);

std::string MarkdownText(const Document& document);

/// The body of a manual page, in the `man` macros of roff.
std::string RoffText(const Document& document);

}  // namespace amortix2::cli
