#pragma once

// The colours of SVG charts. The chart's own come in two sets, one for white paper and one for dark: every
// colour of a series stands out from its paper by a contrast of at least 3:1, texts by 4.5:1, and
// neighbouring series differ in lightness, so that they stay apart in grey. A reader's preference chooses
// between the sets. Colours that a page gives are used in both.

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "amortix2/automation/variant.h"

namespace amortix2 {

inline constexpr std::size_t kSeriesColours = 8;

/// Colours that a page gave, as CSS writes them; empty where it gave none.
struct GivenColours {
  std::string plot;
  std::vector<std::string> series;  ///< from series 1 on

  bool Any() const;
};

/// A colour as CSS has it: "#" with 3 or 6 hexadecimal digits, or the letters of a colour's name. Nothing for
/// any other text, such as the URL of an image.
std::optional<std::string> ReadColour(std::string_view text);

/// From a list of colours: 0 the plot's, 1 and up the series'. Whatever is no colour leaves the chart's own.
GivenColours ReadColours(const Variant& list);

/// From a palette of rows of red, green and blue: row j the colour of series j. What is no such palette, or
/// has no row for a series, leaves the chart's own.
GivenColours ReadPaletteColours(const Variant& palette, std::size_t series);

/// The style sheet of one chart, whose rules reach only the element `id`.
std::string StyleSheet(std::string_view id, const GivenColours& given, std::size_t series);

using Rgb = std::array<std::uint8_t, 3>;  ///< red, green, blue

/// A series' own colour, from 0, on white paper.
Rgb SeriesColour(std::size_t series);

/// The class of a series, from 0, in that style sheet ("chart-series1").
std::string SeriesClass(std::size_t series);

}  // namespace amortix2
