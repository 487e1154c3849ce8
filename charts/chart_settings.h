#pragma once

// The settings that HTML and SVG bar charts share, and the write-only properties that set them.

#include <cstdint>
#include <string>

#include "amortix2/automation/public.h"
#include "amortix2/automation/variant.h"
#include "amortix2/charts/graph_size.h"

namespace AMORTIX2_PUBLIC amortix2 {

/// Which of the eleven values of the axis are labelled. The ends and zero always are.
enum class ValueLabels : std::int16_t {
  Ends = 1,
  EndsAndMiddle = 2,
  All = 3,
};

struct ChartSettings {
  std::int16_t totalFrameWidth = 462;    ///< pixels, with the frame on either side; pictures may be wider
  GraphSize graph;                       ///< the plot's size
  std::int16_t maximumColumnWidth = 80;  ///< pixels
  double minimumOverlapCount = 3.0;      ///< how many steps wide an overlapped bar is
  bool useStyleSheets = false;           ///< style classes in the place of fonts and colours
  bool negativeBars = false;             ///< values below zero are drawn
  std::string altFormat;                 ///< number format of tooltips
  bool altLabelWithLegend = false;       ///< tooltips start with the series' name
};

/// What sets them, and the two of which each kind of chart has its own default, `valueLabels` and
/// `valueLabelFormat`. Numbers in the place of a flag: not 0 is true. Whole numbers are rounded half to even.
/// Each raises Overflow for a number outside 16 bits where it keeps a whole number, and TypeMismatch for a
/// value without text where it keeps a text; the setting is then as it was.
template <class Settings>
class ChartProperties {
 public:
  /// Height and width of the plot in pixels; 0 keeps the old value.
  void SetGraphDimensions(const Variant& height, const Variant& width);

  void MaximumColumnWidth(const Variant& value);
  void MinimumOverlapCount(const Variant& value);
  void TotalGraphFrameWidth(const Variant& value);
  void UseStyleSheets(const Variant& value);
  void YLabelMode(const Variant& value);
  void NegativeBars(const Variant& value);
  void AltFormatStr(const Variant& value);
  void YLableFormatStr(const Variant& value);
  void AltLabelWithLegend(const Variant& value);

 protected:
  Settings settings;
};

}  // namespace amortix2
