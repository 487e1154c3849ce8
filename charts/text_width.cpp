#include "amortix2/charts/text_width.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace amortix2 {
namespace {

constexpr std::uint8_t kForeign = 77;  // letters beyond ASCII
constexpr std::uint8_t kWidest = 111;

// Of the characters of ASCII.
constexpr auto kWidths = [] {
  struct Class {
    std::string_view characters;
    std::uint8_t width;
  };
  constexpr Class kClasses[] = {{" .,-/:;ijl'|", 34},    {"IJft()[]!", 41},       {"r\"`*\\", 50},
                                {"ABCEFKLPRSTVXYZ", 77}, {"DGHNOQUw&+=<>~#", 88}, {"mMW%@", kWidest}};
  std::array<std::uint8_t, 128> widths{};
  widths.fill(64);  // digits and most small letters
  for (const Class& one : kClasses) {
    for (const char c : one.characters) widths[static_cast<unsigned char>(c)] = one.width;
  }
  return widths;
}();

constexpr std::string_view kEllipsis = "\xE2\x80\xA6";
constexpr double kEllipsisWidth = 1.0;
constexpr double kBold = 1.2;

}  // namespace

int CharacterWidth(char32_t c) {
  constexpr char32_t kFirstWide = 0x1000;  // from here on letters may be as wide as they are high
  if (c < kWidths.size()) return kWidths[c];
  return c < kFirstWide ? kForeign : kWidest;
}

CodePoint FirstCodePoint(std::string_view text) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const unsigned char lead = byte(0);
  if (lead < 0x80) return {lead, 1, true};
  const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
  constexpr CodePoint kInvalid{0xFFFD, 1, false};
  if (lead < 0xC2 || lead > 0xF4 || text.size() < length) return kInvalid;
  char32_t value = lead & (0xFFu >> (length + 1));
  for (std::size_t i = 1; i < length; ++i) {
    if ((byte(i) & 0xC0) != 0x80) return kInvalid;
    value = value << 6 | (byte(i) & 0x3Fu);
  }
  const bool overlong = (length == 3 && value < 0x800) || (length == 4 && value < 0x10000);
  const bool surrogate = value >= 0xD800 && value < 0xE000;
  return overlong || surrogate || value > 0x10FFFF ? kInvalid : CodePoint{value, length, true};
}

double TextWidth(std::string_view text, double size) {
  std::int64_t hundredths = 0;
  while (!text.empty()) {
    const CodePoint point = FirstCodePoint(text);
    hundredths += CharacterWidth(point.value);
    text.remove_prefix(point.length);
  }
  return static_cast<double>(hundredths) * size / 100;
}

double BoldTextWidth(std::string_view text, double size) { return kBold * TextWidth(text, size); }

std::string Shorten(std::string_view text, double width, double size) {
  if (TextWidth(text, size) <= width) return std::string(text);
  double left = width / size - kEllipsisWidth;
  std::size_t kept = 0;
  while (kept < text.size()) {
    const CodePoint point = FirstCodePoint(text.substr(kept));
    left -= CharacterWidth(point.value) / 100.0;
    if (left < 0) break;
    kept += point.length;
  }
  while (kept > 0 && text[kept - 1] == ' ') --kept;
  return std::string(text.substr(0, kept)).append(kEllipsis);
}

std::vector<std::string> Wrap(std::string_view text, double width, double size, std::size_t lines) {
  std::vector<std::string> wrapped;
  while (!text.empty() && wrapped.size() < lines) {
    const bool isLast = wrapped.size() + 1 == lines;
    std::size_t end = text.size();
    while (!isLast && TextWidth(text.substr(0, end), size) > width) {
      const std::size_t blank = text.rfind(' ', end - 1);
      if (blank == std::string_view::npos || blank == 0) {
        end = std::min(text.find(' '), text.size());
        break;
      }
      end = blank;
    }
    wrapped.push_back(Shorten(text.substr(0, end), width, size));
    text.remove_prefix(std::min(text.size(), end + 1));
  }
  return wrapped;
}

}  // namespace amortix2
