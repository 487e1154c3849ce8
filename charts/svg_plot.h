#pragma once

// The plot of an SVG chart as geometry: where values and rows lie in it. Upright plots have their rows from
// left to right and their values upwards, horizontal ones their rows downwards and their values to the right.

#include <cstdint>

#include "amortix2/charts/axis_range.h"
#include "amortix2/charts/chart_style.h"
#include "amortix2/charts/svg_palette.h"
#include "amortix2/charts/svg_scale.h"
#include "amortix2/charts/svg_settings.h"
#include "amortix2/charts/svg_table.h"

namespace amortix2 {

/// All that one picture is drawn from.
struct SvgInput {
  const SvgSettings& settings;
  SvgTable table;
  ChartStyle style;
  bool isLine;  ///< lines through points; else bars
  AxisRange axis;
  GivenColours colours;
  std::string frameTitle;  ///< empty: no frame
  std::string title;
  std::string xTitle;
  std::string yTitle;

  bool IsHorizontal() const { return !isLine && style.mode == BarMode::Horizontal; }
  bool HasLegend() const { return settings.legend != LegendPlace::None && table.Series() > 1; }
};

class SvgPlot {
 public:
  SvgPlot(const SvgInput& input, double width, double height);

  void MoveTo(double left, double top) {
    left_ = left;
    top_ = top;
  }

  double Left() const { return left_; }
  double Top() const { return top_; }
  double Right() const { return left_ + width_; }
  double Bottom() const { return top_ + height_; }
  double Width() const { return width_; }
  double Height() const { return height_; }
  bool IsHorizontal() const { return horizontal_; }

  double RowLength() const { return horizontal_ ? height_ : width_; }    ///< of the axis of the rows
  double ValueLength() const { return horizontal_ ? width_ : height_; }  ///< of the axis of the values
  double RowStart() const { return horizontal_ ? top_ : left_; }

  /// The distance between neighbouring rows; on an axis of numbers or dates were they spread evenly.
  double Pitch() const;

  /// A value's x in horizontal plots, its y in others.
  double ValueAt(double value) const;

  /// The middle of a row, from 1: the y in horizontal plots, the x in others.
  double RowAt(std::int32_t row) const;

  /// The same for a number or a day of the rows' axis, between the first and the last.
  double PlaceAt(double place) const;

  const AxisRange& Axis() const { return axis_; }

 private:
  const SvgTable& table_;
  AxisRange axis_;
  bool horizontal_;
  bool edgeToEdge_;  // points stand from edge to edge, bars have their bands
  double width_;
  double height_;
  double left_ = 0;
  double top_ = 0;
};

}  // namespace amortix2
