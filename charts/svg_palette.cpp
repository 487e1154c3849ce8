#include "amortix2/charts/svg_palette.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "amortix2/automation/array.h"
#include "amortix2/automation/conversion.h"
#include "amortix2/automation/text_scanner.h"
#include "amortix2/charts/page_text.h"

namespace amortix2 {
namespace {

using Colour = std::string_view;

struct Scheme {
  Colour paper;
  Colour ink;
  Colour muted;  // axis labels and captions
  Colour grid;
  Colour zero;
  std::array<Colour, kSeriesColours> series;
};

constexpr Scheme kLight{
    "#fff",    "#1f2328",
    "#57606a", "#d8dee4",
    "#57606a", {"#08529e", "#d7773c", "#07402d", "#a3559e", "#851c1e", "#059095", "#31156d", "#646404"}};
constexpr Scheme kDark{
    "#16191d", "#e6e9ed",
    "#a8b1bb", "#353b43",
    "#a8b1bb", {"#60a3f6", "#fecdb3", "#0b9169", "#feabf6", "#dd6e68", "#a1fafe", "#7260bd", "#b7b941"}};

bool IsHexDigit(char c) { return IsDigit(c) || (ToLower(c) >= 'a' && ToLower(c) <= 'f'); }

std::string HexByte(int value) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  return {kDigits[static_cast<std::size_t>(value / 16)], kDigits[static_cast<std::size_t>(value % 16)]};
}

class Rules {
 public:
  explicit Rules(std::string_view id) : id_(id) {}

  void Add(std::string_view selector, std::string_view property, std::string_view value) {
    (((((((text_ += '#') += id_) += selector) += '{') += property) += ':') += value) += '}';
  }
  void AddScheme(const Scheme& scheme, const GivenColours& given, std::size_t series) {
    Add(" .chart-paper", "fill", scheme.paper);
    Add(" .chart-halo", "stroke", scheme.paper);
    Add(" text", "fill", scheme.ink);
    Add(" .chart-muted", "fill", scheme.muted);
    Add(" .chart-grid", "stroke", scheme.grid);
    Add(" .chart-zero", "stroke", scheme.zero);
    for (std::size_t i = 0; i < series; ++i) {
      if (i < given.series.size() && !given.series[i].empty()) continue;
      Add(" ." + SeriesClass(i), "color", scheme.series[i % kSeriesColours]);
    }
  }
  void Append(std::string_view text) { text_ += text; }
  std::string Release() { return std::move(text_); }

 private:
  std::string_view id_;
  std::string text_;
};

}  // namespace

bool GivenColours::Any() const {
  return !plot.empty() || std::ranges::any_of(series, [](const auto& colour) { return !colour.empty(); });
}

std::optional<std::string> ReadColour(std::string_view text) {
  constexpr std::size_t kLongestName = 24;
  const bool isHex = (text.size() == 4 || text.size() == 7) && text.front() == '#' &&
                     std::ranges::all_of(text.substr(1), IsHexDigit);
  const bool isName = !text.empty() && text.size() <= kLongestName && std::ranges::all_of(text, IsLetter);
  return isHex || isName ? std::optional(std::string(text)) : std::nullopt;
}

GivenColours ReadColours(const Variant& list) {
  GivenColours colours;
  if (list.Type() != VariantType::Array || list.GetArray().Rank() != 1) return colours;
  const Array& array = list.GetArray();
  const auto at = [&](std::int64_t i) {
    const Variant& cell = array.At(i);
    return cell.Type() == VariantType::String ? ReadColour(cell.GetString()).value_or("") : std::string();
  };
  const Bounds bounds = array.Dimension(1);
  if (bounds.Contains(0)) colours.plot = at(0);
  for (std::int32_t i = 1; bounds.Contains(i); ++i) colours.series.push_back(at(i));
  return colours;
}

GivenColours ReadPaletteColours(const Variant& palette, std::size_t series) {
  GivenColours colours;
  if (palette.Type() != VariantType::Array || palette.GetArray().Rank() != 2) return colours;
  const Array& array = palette.GetArray();
  const Bounds parts = array.Dimension(2);
  if (!parts.Contains(0) || !parts.Contains(2)) return colours;
  for (std::size_t i = 1; i <= series && array.Dimension(1).Contains(static_cast<std::int64_t>(i)); ++i) {
    std::string colour = "#";
    for (std::int32_t part = 0; part < 3; ++part) {
      const double value = NumericOrZero(array.At(static_cast<std::int64_t>(i), part));
      colour += HexByte(static_cast<int>(std::clamp(std::floor(value), 0.0, 255.0)));
    }
    colours.series.push_back(std::move(colour));
  }
  return colours;
}

std::string StyleSheet(std::string_view id, const GivenColours& given, std::size_t series) {
  Rules rules(id);
  rules.Add(" text", "letter-spacing", "normal;word-spacing:normal");  // else inherited from the page
  rules.AddScheme(kLight, given, series);
  if (!given.plot.empty()) rules.Add(" .chart-plot", "fill", given.plot);
  for (std::size_t i = 0; i < given.series.size() && i < series; ++i) {
    if (!given.series[i].empty()) rules.Add(" ." + SeriesClass(i), "color", given.series[i]);
  }
  if (!given.Any()) {
    rules.Append("@media screen and (prefers-color-scheme:dark){");
    rules.AddScheme(kDark, given, series);
    rules.Append("}");
  }
  return rules.Release();
}

Rgb SeriesColour(std::size_t series) {
  const Colour colour = kLight.series[series % kSeriesColours];  // "#08529e"
  Rgb parts{};
  for (std::size_t i = 0; i < parts.size(); ++i) {
    const char* const digits = colour.data() + 1 + 2 * i;
    std::from_chars(digits, digits + 2, parts[i], 16);
  }
  return parts;
}

std::string SeriesClass(std::size_t series) { return "chart-series" + std::to_string(series + 1); }

}  // namespace amortix2
