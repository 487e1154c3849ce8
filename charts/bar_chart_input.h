#pragma once

// Everything that one bar chart is drawn from, as plain data.

#include <string>
#include <vector>

#include "amortix2/automation/number_format.h"
#include "amortix2/charts/axis_range.h"
#include "amortix2/charts/bar_settings.h"
#include "amortix2/charts/chart_table.h"

namespace amortix2 {

/// The texts and URLs that a page hands over, in which markup passes through as it is.
struct BarChartTexts {
  std::string blank;                ///< URL of the image that keeps places free
  std::string background;           ///< URL of the plot's background, unless the plot has none
  std::vector<std::string> images;  ///< URL of the image of each series; element 0 is not used
  std::vector<std::string>
      legends;             ///< name of each series, likewise; empty when no legend is written anywhere
  std::string frameTitle;  ///< empty for a chart without a frame
  std::string chartTitle;
  std::string xCaption;
  std::string yCaption;
};

struct BarChartInput {
  const BarChartSettings& settings;
  const BarChartTexts& texts;
  const ChartTable& values;        ///< what each bar stands for
  const ChartTable& drawn;         ///< where each bar ends; running totals in stacked charts, else `values`
  AxisRange axis;                  ///< of `drawn`
  NumberPattern tooltipFormat;     ///< the settings' altFormat
  NumberPattern valueLabelFormat;  ///< the settings' format of that name
  bool hasBackground;
  bool hasLegend;
  bool reversedLegend;  ///< the legend goes from the last series to the first
};

}  // namespace amortix2
