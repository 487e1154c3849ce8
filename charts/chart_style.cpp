#include "amortix2/charts/chart_style.h"

#include <algorithm>
#include <iterator>

namespace amortix2 {
namespace {

constexpr ChartStyle kStyles[] = {
    {"OL", BarMode::Overlapped}, {"OV", BarMode::Overlapped},       {"OR", BarMode::Overlapped},
    {"ST", BarMode::Stacked},    {"SR", BarMode::Stacked, true},    {"LINE", BarMode::Plain, false, true},
    {"HZ", BarMode::Horizontal}, {"HR", BarMode::Horizontal, true},
};

}  // namespace

ChartStyle FindStyle(const Variant& typ) {
  if (typ.Type() != VariantType::String) return {};
  const auto style = std::ranges::find(kStyles, typ.GetString(), &ChartStyle::keyword);
  return style == std::end(kStyles) ? ChartStyle{} : *style;
}

bool KeepsNegatives(const ChartStyle& style, bool negativeBars) {
  const bool canHang = style.mode == BarMode::Plain || style.mode == BarMode::Overlapped;
  return style.line || (canHang && negativeBars);
}

}  // namespace amortix2
