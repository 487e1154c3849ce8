#include "amortix2/charts/svg_legend.h"

#include <algorithm>
#include <utility>

#include "amortix2/charts/svg_marks.h"
#include "amortix2/charts/text_width.h"

namespace amortix2 {
namespace {

constexpr double kSize = 12;
constexpr double kRowHeight = 20;
constexpr double kSwatch = 12;
constexpr double kLineSample = 26;
constexpr double kBesideSample = 6;
constexpr double kBetween = 18;
constexpr std::size_t kMostEntries = 40;
constexpr std::size_t kNoSeries = static_cast<std::size_t>(-1);

}  // namespace

SvgLegend::SvgLegend(const SvgInput& input, double width) : input_(input), width_(width) {
  if (!input.HasLegend()) return;
  const auto& names = input.table.names;
  const std::size_t shown = names.size() <= kMostEntries ? names.size() : kMostEntries - 1;
  for (std::size_t i = 0; i < shown; ++i) Add(i, names[i]);
  if (shown < names.size()) Add(kNoSeries, "and " + std::to_string(names.size() - shown) + " more");
}

void SvgLegend::Add(std::size_t series, std::string text) {
  const double sample = series == kNoSeries ? 0 : (input_.isLine ? kLineSample : kSwatch) + kBesideSample;
  text = Shorten(text, width_ - sample, kSize);
  const double width = sample + TextWidth(text, kSize);
  if (rows_.empty() || rows_.back().width + kBetween + width > width_) rows_.emplace_back();
  Row& row = rows_.back();
  row.width += (row.entries.empty() ? 0 : kBetween) + width;
  row.entries.push_back({series, std::move(text), width});
}

double SvgLegend::Height() const { return static_cast<double>(rows_.size()) * kRowHeight; }

void SvgLegend::DrawSample(EscapedMarkup& out, const Entry& entry, double x, double y) const {
  out.Open("g", {{"class", SeriesClass(entry.series)}, {"fill", "currentColor"}});
  if (!input_.isLine) {
    out.Leaf("rect", {{"x", x}, {"y", y - kSwatch / 2}, {"width", kSwatch}, {"height", kSwatch}});
  } else {
    const std::string_view dashes = DashPattern(input_.settings, entry.series);
    out.Leaf("line", {{"x1", x},
                      {"x2", x + kLineSample},
                      {"y1", y},
                      {"y2", y},
                      {"stroke", "currentColor"},
                      {"stroke-width", 2.5},
                      Attribute::If(!dashes.empty(), {"stroke-dasharray", dashes})});
    constexpr double kRadius = 3.5;
    if (input_.settings.markers) DrawMarker(out, entry.series, x + kLineSample / 2, y, kRadius);
  }
  out.Close();
}

void SvgLegend::Draw(EscapedMarkup& out, double x, double top) const {
  if (rows_.empty()) return;
  out.Open("g", {{"class", "chart-legend"}, {"font-size", kSize}});
  double y = top + kRowHeight / 2;
  for (const Row& row : rows_) {
    double left = x - row.width / 2;
    for (const Entry& entry : row.entries) {
      if (entry.series != kNoSeries) DrawSample(out, entry, left, y);
      constexpr double kDown = 0.35 * kSize;
      out.TextElement("text", {{"x", left + entry.width - TextWidth(entry.text, kSize)}, {"y", y + kDown}},
                      entry.text);
      left += entry.width + kBetween;
    }
    y += kRowHeight;
  }
  out.Close();
  out.Break();
}

}  // namespace amortix2
