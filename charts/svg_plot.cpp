#include "amortix2/charts/svg_plot.h"

#include <algorithm>

namespace amortix2 {

SvgPlot::SvgPlot(const SvgInput& input, double width, double height)
    : table_(input.table),
      axis_(input.axis),
      horizontal_(input.IsHorizontal()),
      edgeToEdge_(input.isLine),
      width_(width),
      height_(height) {}

double SvgPlot::Pitch() const {
  const std::int32_t rows = table_.Rows();
  return RowLength() / (edgeToEdge_ ? std::max(rows - 1, 1) : rows);
}

double SvgPlot::ValueAt(double value) const {
  const SvgScale scale = horizontal_ ? SvgScale{axis_.bottom, axis_.top, left_, Right()}
                                     : SvgScale{axis_.bottom, axis_.top, Bottom(), top_};
  return scale.At(value);
}

double SvgPlot::RowAt(std::int32_t row) const {
  if (!edgeToEdge_) return RowStart() + (row - 0.5) * Pitch();
  if (!table_.places.empty()) return PlaceAt(table_.places[static_cast<std::size_t>(row) - 1]);
  return table_.Rows() == 1 ? RowStart() + RowLength() / 2 : RowStart() + (row - 1) * Pitch();
}

double SvgPlot::PlaceAt(double place) const {
  if (edgeToEdge_) {
    const double low = table_.places.front();
    const double high = table_.places.back();
    if (low == high) return RowStart() + RowLength() / 2;
    return SvgScale{low, high, RowStart(), RowStart() + RowLength()}.At(place);
  }
  const auto row = std::ranges::lower_bound(table_.places, place) - table_.places.begin();
  return RowAt(static_cast<std::int32_t>(std::min<std::ptrdiff_t>(row, table_.Rows() - 1)) + 1);
}

}  // namespace amortix2
