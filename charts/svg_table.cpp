#include "amortix2/charts/svg_table.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <optional>
#include <utility>

#include "amortix2/automation/array.h"
#include "amortix2/automation/conversion.h"
#include "amortix2/automation/error.h"
#include "amortix2/charts/page_text.h"

namespace amortix2 {
namespace {

bool HoldsNumber(const Variant& cell) {
  if (cell.Type() == VariantType::Double) return std::isfinite(cell.GetDouble());
  return cell.Type() != VariantType::Empty && IsNumeric(cell);
}

std::string SeriesName(const Array& data, const Variant& names, const SvgSettings& settings,
                       std::int32_t series) {
  std::string name;
  const bool isList = names.Type() == VariantType::Array && names.GetArray().Rank() == 1;
  if (isList && names.GetArray().Dimension(1).Contains(series)) name = PageText(names, series);
  const auto index = static_cast<std::size_t>(series) - 1;
  if (name.empty() && index < settings.seriesNames.size()) name = settings.seriesNames[index];
  const Variant& head = data.At(0, series);
  if (name.empty() && head.Type() == VariantType::String && !IsNumeric(head)) name = head.GetString();
  return name.empty() ? "Series " + std::to_string(series) : name;
}

std::optional<double> Place(const Variant& cell, RowAxis axis) {
  if (axis == RowAxis::Number) return HoldsNumber(cell) ? std::optional(NumericOrZero(cell)) : std::nullopt;
  return IsDate(cell) ? std::optional<double>(ToDate(cell).serial) : std::nullopt;
}

std::vector<double> ReadPlaces(const Array& data, RowAxis axis) {
  std::vector<double> places;
  for (std::int32_t row = 1; axis != RowAxis::Text && row <= data.Dimension(1).upper; ++row) {
    const auto place = Place(data.At(row, 0), axis);
    if (!place) return {};
    places.push_back(*place);
  }
  return places;
}

// Puts row `order[i]` in the place of row i, both counted from 0 for row 1; row 0 stays where it is.
void Permute(SvgTable& table, const std::vector<std::size_t>& order) {
  const SvgTable before = table;
  const auto series = static_cast<std::size_t>(table.Series());
  for (std::size_t i = 0; i < order.size(); ++i) {
    table.labels[i] = before.labels[order[i]];
    if (!table.places.empty()) table.places[i] = before.places[order[i]];
    for (std::size_t j = 0; j < series; ++j) {
      table.gaps[(i + 1) * series + j] = before.gaps[(order[i] + 1) * series + j];
      const auto from = static_cast<std::int32_t>(order[i]) + 1;
      const auto column = static_cast<std::int32_t>(j) + 1;
      table.values.At(static_cast<std::int32_t>(i) + 1, column) = before.values.At(from, column);
    }
  }
}

std::vector<std::size_t> RowOrder(const SvgTable& table) {
  std::vector<std::size_t> order(table.labels.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  return order;
}

void SortByPlaces(SvgTable& table) {
  auto order = RowOrder(table);
  std::ranges::stable_sort(order, {}, [&](std::size_t i) { return table.places[i]; });
  Permute(table, order);
}

}  // namespace

SvgTable ReadSvgTable(const Variant& vColDat, const Variant& names, const SvgSettings& settings,
                      bool keepNegatives, bool mayReorder) {
  const Array& data = PageArray(vColDat);
  SvgTable table{PrepareTable(data, keepNegatives), {}, {}, {}, RowAxis::Text, {}};
  if (table.Rows() < 1 || table.Series() < 1) Raise(ErrorNumber::DivisionByZero);
  const bool hasLabels = !IsNumeric(data.At(0, 0));
  for (std::int32_t row = 0; row <= table.Rows(); ++row) {
    for (std::int32_t series = 1; series <= table.Series(); ++series) {
      table.gaps.push_back(!HoldsNumber(data.At(row, series)));
    }
    if (row > 0) table.labels.push_back(hasLabels ? table.values.Label(row) : std::to_string(row));
  }
  for (std::int32_t series = 1; series <= table.Series(); ++series) {
    table.names.push_back(SeriesName(data, names, settings, series));
  }
  table.places = ReadPlaces(data, settings.rowAxis);
  if (mayReorder && !std::ranges::is_sorted(table.places)) SortByPlaces(table);
  const bool isAxis = !table.places.empty() && std::ranges::is_sorted(table.places) &&
                      std::isfinite(table.places.back() - table.places.front());
  if (!isAxis) table.places.clear();
  if (isAxis) table.rowAxis = settings.rowAxis;
  return table;
}

void ReverseRows(SvgTable& table) {
  auto order = RowOrder(table);
  std::ranges::reverse(order);
  table.places.clear();
  table.rowAxis = RowAxis::Text;
  Permute(table, order);
}

}  // namespace amortix2
