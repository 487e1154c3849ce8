#pragma once

// What an SVG chart object remembers between charts. Beside what it shares with HTML charts, what a
// picture can do beyond them.

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "amortix2/automation/public.h"
#include "amortix2/charts/chart_settings.h"

namespace AMORTIX2_PUBLIC amortix2 {

enum class LegendPlace : std::uint8_t { Below, Above, None };
enum class PointLabelMode : std::uint8_t { Off, On, Ends };  ///< Ends: of the first and the last row
enum class RowAxis : std::uint8_t { Text, Number, Date };

struct SvgSettings : ChartSettings {
  SvgSettings() { altFormat = "$#,##0"; }

  std::optional<ValueLabels> valueLabels;       ///< nothing: round numbers, as many as fit
  std::optional<std::string> valueLabelFormat;  ///< of the axis; nothing: the decimals that its steps need
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
