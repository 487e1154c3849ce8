#pragma once

// The axes of an SVG chart: which labels stand where so that none meets its neighbour, the room they take,
// and their drawing with the grid. Labels of values stand at round values; labels of rows are written side by
// side where they fit, else in up to three lines, else slanted, else at intervals; numbers and dates go
// straight to intervals.

#include <string>
#include <vector>

#include "amortix2/charts/escaped_markup.h"
#include "amortix2/charts/svg_plot.h"

namespace amortix2 {

inline constexpr double kLabelSize = 12;  ///< font size of axis labels, pixels
inline constexpr double kLineHeight = 15;

class SvgAxes {
 public:
  /// Settles the labels for a plot of this size that still stands at 0, 0, wherever it is moved to later.
  /// Keeps references to both.
  SvgAxes(const SvgInput& input, const SvgPlot& plot);

  // The room that labels take around the plot.
  double LeftRoom() const { return leftRoom_; }
  double RightRoom() const { return rightRoom_; }
  double BottomRoom() const { return bottomRoom_; }

  /// The grid, behind everything else.
  void DrawGrid(EscapedMarkup& out) const;

  /// The zero line and all labels.
  void DrawLabels(EscapedMarkup& out) const;

 private:
  struct RowLabel {
    double at;  // from the start of the rows' axis
    std::vector<std::string> lines;
    std::string whole;  // what was cut; empty when nothing was
  };

  void ChooseValues();
  void ChooseRows();
  void ChooseEvenRows(double room, double longest);
  void ChoosePlacedRows();
  void AddRow(double at, std::string_view text, double room, std::size_t lines);
  void MeasureRows();
  std::vector<AxisTick> RoundTicks(int most) const;
  std::vector<AxisTick> RoundTicks() const;
  std::vector<AxisTick> GridTicks() const;
  std::vector<AxisTick> PlaceTicks(int most) const;
  std::string ValueText(double value, int decimals) const;
  double Extent(std::string_view text) const;  // along the rows' axis
  void DrawRowLabel(EscapedMarkup& out, const RowLabel& label) const;

  const SvgInput& input_;
  const SvgPlot& plot_;
  std::vector<AxisTick> values_;
  std::vector<RowLabel> rows_;
  bool slanted_ = false;
  double leftRoom_ = 0;
  double rightRoom_ = 0;
  double bottomRoom_ = 0;
};

}  // namespace amortix2
