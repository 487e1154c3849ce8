#pragma once

// What a bar chart object remembers between charts. Plain values with their defaults; the object writes them,
// the chart functions read them.

#include <cstdint>
#include <string>

#include "amortix2/automation/public.h"
#include "amortix2/charts/chart_settings.h"

namespace AMORTIX2_PUBLIC amortix2 {

struct BarChartSettings : ChartSettings {
  BarChartSettings() { altFormat = "$#,#####################"; }

  std::int16_t minimumColumnWidth = 3;   ///< pixels
  std::int16_t minimumOverlapSpace = 2;  ///< pixels by which an overlapped bar stands out from its neighbour
  std::string axisImage = "./images/spacer_black.gif";  ///< URL of the image that draws the axes
  std::string spaceImage = "./images/space.gif";  ///< URL of the image that fills frame and empty labels
  ValueLabels valueLabels = ValueLabels::Ends;
  std::string valueLabelFormat = "#,#################0";  ///< number format of the axis values
  bool showLegend = true;
};

}  // namespace amortix2
