#pragma once

// How much room a text takes, without asking a browser: widths of wide sans-serif faces, so that a
// text is hardly ever wider than said here whatever face the reader has. Also cutting and wrapping texts to a
// width. Texts are UTF-8; bytes that are none count as one character each.

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace amortix2 {

/// A character's width in hundredths of the font size: a wide class, since no server knows the reader's face.
int CharacterWidth(char32_t c);

struct CodePoint {
  char32_t value;
  std::size_t length;  ///< bytes, at least 1
  bool isValid;
};

/// The first character of a text that is not empty.
CodePoint FirstCodePoint(std::string_view text);

/// The width of one line in pixels, at a font size in pixels.
double TextWidth(std::string_view text, double size);

/// The same for bold letters.
double BoldTextWidth(std::string_view text, double size);

/// The text, or as much of its start as fits into `width` together with an ellipsis; at least the ellipsis.
std::string Shorten(std::string_view text, double width, double size);

/// The text in at most `lines` lines, broken at blanks, none wider than `width`; what does not fit is cut as
/// Shorten does.
std::vector<std::string> Wrap(std::string_view text, double width, double size, std::size_t lines);

}  // namespace amortix2
