#include "amortix2/charts/text_width.h"

#include <algorithm>
#include <cstdint>
#include <iterator>

namespace amortix2 {
namespace {

// Thousandths of the font size, from the blank on.
constexpr std::uint16_t kWidths[] = {
    317, 400, 459, 837, 636, 950, 779, 274, 390, 390, 500, 837, 317, 360,  317, 336, 636, 636, 636,
    636, 636, 636, 636, 636, 636, 636, 336, 336, 837, 837, 837, 530, 1000, 684, 686, 698, 770, 631,
    575, 774, 751, 294, 294, 655, 557, 862, 748, 787, 603, 787, 694, 634,  610, 731, 684, 988, 685,
    610, 685, 390, 336, 390, 837, 500, 500, 612, 634, 549, 634, 615, 352,  634, 633, 277, 277, 579,
    277, 974, 633, 611, 634, 634, 411, 520, 392, 633, 591, 817, 591, 591,  524, 636, 336, 636, 837};

constexpr std::string_view kEllipsis = "\xE2\x80\xA6";
constexpr double kEllipsisWidth = 1.0;
constexpr double kBold = 1.2;

double Width(char32_t c) {
  constexpr char32_t kFirstWide = 0x1100;  // from here on scripts of square characters
  if (c >= U' ' && c < U' ' + std::size(kWidths)) return kWidths[c - U' '] / 1000.0;
  if (c < U' ') return 0;
  return c < kFirstWide ? 0.8 : 1.05;
}

}  // namespace

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
  double width = 0;
  while (!text.empty()) {
    const CodePoint point = FirstCodePoint(text);
    width += Width(point.value);
    text.remove_prefix(point.length);
  }
  return width * size;
}

double BoldTextWidth(std::string_view text, double size) { return kBold * TextWidth(text, size); }

std::string Shorten(std::string_view text, double width, double size) {
  if (TextWidth(text, size) <= width) return std::string(text);
  double left = width / size - kEllipsisWidth;
  std::size_t kept = 0;
  while (kept < text.size()) {
    const CodePoint point = FirstCodePoint(text.substr(kept));
    left -= Width(point.value);
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
