#pragma once

// What a page hands to a bar chart, with usable defaults.

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "amortix2/automation/array.h"
#include "amortix2/charts/bar_chart.h"

namespace amortix2 {

inline Array List(std::initializer_list<Variant> elements) {
  Array list(Bounds{0, static_cast<std::int32_t>(elements.size()) - 1});
  std::copy(elements.begin(), elements.end(), list.Cells().begin());
  return list;
}

inline Array Table(std::initializer_list<std::initializer_list<Variant>> rows) {
  Array table({0, static_cast<std::int32_t>(rows.size()) - 1},
              {0, static_cast<std::int32_t>(rows.begin()->size()) - 1});
  auto cell = table.Cells().begin();
  for (const auto& row : rows) cell = std::copy(row.begin(), row.end(), cell);
  return table;
}

struct BarPage {
  Variant table;
  Variant blank = "blank";
  Variant images = List({"back", "red", "green", "blue"});
  Variant legends = List({"", "R", "G", "B"});
  Variant titles = List({"", "", "Chart"});
  Variant xCaption = "X";
  Variant yCaption = "Y";
  Variant result = {};

  /// The chart's lines joined by line feeds, without the empty first and last element.
  std::string Draw(BarChart& chart, const Variant& style = kMissing) {
    chart.MakeChart(table, blank, images, legends, titles, xCaption, yCaption, result, style);
    std::string text;
    const Array& lines = result.GetArray();
    for (std::int32_t i = 1; i < lines.Dimension(1).upper; ++i) {
      text.append(lines.At(i).GetString()).append("\n");
    }
    return text;
  }
  std::string Draw(const Variant& style = kMissing) {
    BarChart chart;
    return Draw(chart, style);
  }
};

}  // namespace amortix2
