#pragma once

// The legend of an SVG chart: a sample of every series with its name, in rows as wide as the picture allows,
// each row centred.

#include <cstddef>
#include <string>
#include <vector>

#include "amortix2/charts/escaped_markup.h"
#include "amortix2/charts/svg_plot.h"

namespace amortix2 {

class SvgLegend {
 public:
  /// Lays the entries out in `width` pixels. Keeps a reference to the input.
  SvgLegend(const SvgInput& input, double width);

  double Height() const;

  /// Draws it around the middle `x`, from `top` down.
  void Draw(EscapedMarkup& out, double x, double top) const;

 private:
  struct Entry {
    std::size_t series;  // kNoSeries for a text that says how many are left out
    std::string text;
    double width;
  };
  struct Row {
    std::vector<Entry> entries;
    double width = 0;
  };

  void Add(std::size_t series, std::string text);
  void DrawSample(EscapedMarkup& out, const Entry& entry, double x, double y) const;

  const SvgInput& input_;
  double width_;
  std::vector<Row> rows_;
};

}  // namespace amortix2
