#pragma once

// What an SVG chart object remembers between charts. Names and defaults are those of the HTML charts
// (charts/bar_settings.h) where both have a setting; the rest is what a picture can do beyond them.

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "amortix2/automation/public.h"
#include "amortix2/charts/bar_settings.h"
#include "amortix2/charts/graph_size.h"

namespace AMORTIX2_PUBLIC amortix2 {

enum class LegendPlace : std::uint8_t { Below, Above, None };
enum class PointLabelMode : std::uint8_t { Off, On, Ends };  ///< Ends: of the first and the last row
enum class RowAxis : std::uint8_t { Text, Number, Date };

struct SvgSettings {
  std::int16_t totalFrameWidth = 462;  ///< least width of a picture with a frame, pixels
  GraphSize graph;                     ///< the plot's size
  std::int16_t maximumColumnWidth = 80;
  double minimumOverlapCount = 3.0;
  bool useStyleSheets = false;                  ///< class names alone, without colours of their own
  std::optional<ValueLabels> valueLabels;       ///< nothing: round numbers, as many as fit
  bool negativeBars = false;                    ///< every style draws values below zero
  std::string altFormat = "$#,##0";             ///< number format of marks, value labels and tables
  std::optional<std::string> valueLabelFormat;  ///< of the axis; nothing: the decimals that its steps need
  bool altLabelWithLegend = false;              ///< a mark names its series even when there is only one
  LegendPlace legend = LegendPlace::Below;
  PointLabelMode pointLabels = PointLabelMode::Off;
  RowAxis rowAxis = RowAxis::Text;
  bool axisFromData = false;  ///< lines may leave out zero
  bool markers = false;
  bool dashes = false;
  std::string title;  ///< these four where a request has none of its own
  std::string caption;
  std::string xTitle;
  std::string yTitle;
  std::vector<std::string> seriesNames;
};

}  // namespace amortix2
