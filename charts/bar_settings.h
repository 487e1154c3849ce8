#pragma once

// What a bar chart object remembers between charts. Plain values with their defaults; the object writes them,
// the chart functions read them.

#include <cstdint>
#include <string>

#include "amortix2/automation/public.h"
#include "amortix2/charts/graph_size.h"

namespace AMORTIX2_PUBLIC amortix2 {

/// Which of the eleven values of the axis are labelled. The ends and zero always are.
enum class ValueLabels : std::int16_t {
  Ends = 1,
  EndsAndMiddle = 2,
  All = 3,
};

struct BarChartSettings {
  std::int16_t totalFrameWidth = 462;    ///< pixels, with the 3 pixel frame on either side
  GraphSize graph;                       ///< the plot's size
  std::int16_t minimumColumnWidth = 3;   ///< pixels
  std::int16_t maximumColumnWidth = 80;  ///< pixels
  std::int16_t minimumOverlapSpace = 2;  ///< pixels by which an overlapped bar stands out from its neighbour
  double minimumOverlapCount = 3.0;      ///< how many such spaces wide an overlapped bar is
  std::string axisImage = "./images/spacer_black.gif";  ///< URL of the image that draws the axes
  std::string spaceImage = "./images/space.gif";  ///< URL of the image that fills frame and empty labels
  bool useStyleSheets = false;                    ///< style classes in the place of fonts and colours
  ValueLabels valueLabels = ValueLabels::Ends;
  bool negativeBars = false;  ///< plain and overlapped charts keep values below zero
  bool showLegend = true;
  std::string altFormat = "$#,#####################";     ///< number format of a bar's tooltip
  std::string valueLabelFormat = "#,#################0";  ///< number format of the axis values
  bool altLabelWithLegend = false;                        ///< tooltips start with the series' legend
};

}  // namespace amortix2
