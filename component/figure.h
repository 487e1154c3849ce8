#pragma once

// How descriptions name a figure of a member's results ("vResPayment", "vGrid(4,3)", "vGrid(2)",
// "vGrid(3,3):size"), and how sentences hold them ("The loan costs {vResPayment} a month."). Used when a
// description is compiled, to check it, and by what fills in the figures.

#include <cstdint>
#include <string_view>

namespace amortix2 {

struct Figure {
  std::string_view parameter;
  int indices = 0;  ///< 0: the value itself; 1: an element of a list; 2: a cell of a table
  std::int32_t row = 0;
  std::int32_t column = 0;  ///< -1: the last
  bool size = false;        ///< without its minus sign
};

namespace describing {

constexpr std::int32_t ParseIndex(std::string_view text) {
  const bool negative = text.starts_with('-');
  if (negative) text.remove_prefix(1);
  if (text.empty()) throw "a figure has an empty index";
  std::int32_t value = 0;
  for (const char c : text) {
    if (c < '0' || c > '9') throw "a figure's index is no number";
    value = value * 10 + (c - '0');
  }
  return negative ? -value : value;
}

}  // namespace describing

/// Reads a figure. Throws a text when it is written in any other way, which no compiled description is.
constexpr Figure ParseFigure(std::string_view text) {
  constexpr std::string_view kSize = ":size";
  Figure figure;
  figure.size = text.ends_with(kSize);
  if (figure.size) text.remove_suffix(kSize.size());
  const std::size_t open = text.find('(');
  figure.parameter = text.substr(0, open);
  if (figure.parameter.empty()) throw "a figure has no name";
  if (open == std::string_view::npos) return figure;
  if (!text.ends_with(')')) throw "a figure's indices are not closed";
  const std::string_view indices = text.substr(open + 1, text.size() - open - 2);
  const std::size_t comma = indices.find(',');
  figure.indices = comma == std::string_view::npos ? 1 : 2;
  figure.row = describing::ParseIndex(indices.substr(0, comma));
  if (figure.indices == 2) figure.column = describing::ParseIndex(indices.substr(comma + 1));
  return figure;
}

/// Calls `text` with each part of a sentence between its places, and `place` with each place's figure.
template <class Text, class Place>
constexpr void ForEachPart(std::string_view sentence, const Text& text, const Place& place) {
  for (;;) {
    const std::size_t open = sentence.find('{');
    text(sentence.substr(0, open));
    if (open == std::string_view::npos) return;
    const std::size_t close = sentence.find('}', open);
    if (close == std::string_view::npos) throw "a sentence's place is not closed";
    place(ParseFigure(sentence.substr(open + 1, close - open - 1)));
    sentence.remove_prefix(close + 1);
  }
}

}  // namespace amortix2
