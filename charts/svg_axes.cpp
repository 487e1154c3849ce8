#include "amortix2/charts/svg_axes.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

#include "amortix2/automation/conversion.h"
#include "amortix2/automation/number_format.h"
#include "amortix2/charts/bar_geometry.h"
#include "amortix2/charts/text_width.h"

namespace amortix2 {
namespace {

constexpr double kGap = 10;        // between neighbouring labels
constexpr double kBesidePlot = 8;  // between the plot and its labels
constexpr double kLongestLabel = 150;
constexpr double kAscent = 0.35;  // of the font size: from the middle of a line down to its baseline
constexpr double kSlantedLength = 110;
constexpr double kDiagonal = 0.70710678118654752;

double Longest(const std::vector<AxisTick>& ticks) {
  double longest = 0;
  for (const AxisTick& tick : ticks) longest = std::max(longest, TextWidth(tick.text, kLabelSize));
  return longest;
}

bool IsOrdinal(const SvgTable& table) {
  return std::ranges::all_of(table.labels, [](const std::string& label) {
    return ParseNumber(label).has_value() || ParseDate(label).has_value();
  });
}

// The least interval from a list of familiar ones at which labels of `extent` keep apart.
std::int32_t Interval(double extent, double pitch) {
  for (std::int32_t decade = 1; decade < 100000000; decade *= 10) {
    for (const std::int32_t step : {1, 2, 3, 4, 5, 6}) {
      if (decade * step * pitch >= extent) return decade * step;
    }
  }
  return 1000000000;
}

}  // namespace

SvgAxes::SvgAxes(const SvgInput& input, const SvgPlot& plot) : input_(input), plot_(plot) {
  ChooseValues();
  ChooseRows();
  const double longest = Longest(values_);
  if (plot_.IsHorizontal()) {
    bottomRoom_ = kBesidePlot + kLineHeight;
    rightRoom_ = longest / 2;
    leftRoom_ = std::max(leftRoom_, longest / 2);
  } else {
    leftRoom_ = std::max(leftRoom_, longest + kBesidePlot);
  }
}

double SvgAxes::Extent(std::string_view text) const {
  return plot_.IsHorizontal() ? kLineHeight : TextWidth(text, kLabelSize) + kGap;
}

std::string SvgAxes::ValueText(double value, int decimals) const {
  const auto& format = input_.settings.valueLabelFormat;
  return Shorten(format ? NumberPattern(*format).Format(value) : AxisNumber(value, decimals), kLongestLabel,
                 kLabelSize);
}

std::vector<AxisTick> SvgAxes::RoundTicks(int most) const {
  int decimals = 0;
  std::vector<AxisTick> ticks;
  for (const double value : RoundValues(input_.axis.bottom, input_.axis.top, most, decimals)) {
    ticks.push_back({value, ValueText(value, decimals)});
  }
  return ticks;
}

// As many as read well; more where a side of zero would have none, fewer where they would meet.
std::vector<AxisTick> SvgAxes::RoundTicks() const {
  constexpr double kPixelsPerValue = 36;
  constexpr int kMost = 10;
  const auto& axis = input_.axis;
  const auto hasBothSides = [&](const std::vector<AxisTick>& ticks) {
    return (ticks.front().value < 0 || axis.bottom >= 0) && (ticks.back().value > 0 || axis.top <= 0);
  };
  const auto fits = [&](const std::vector<AxisTick>& ticks) {
    const double extent = plot_.IsHorizontal() ? Longest(ticks) + kGap : kLineHeight;
    return extent * (static_cast<double>(ticks.size()) - 1) <= plot_.ValueLength();
  };
  int most = std::clamp(static_cast<int>(plot_.ValueLength() / kPixelsPerValue), 2, kMost);
  auto ticks = RoundTicks(most);
  for (int more = most + 1; more <= 2 * kMost && !hasBothSides(ticks); ++more) {
    auto finer = RoundTicks(more);
    if (!fits(finer)) break;
    ticks = std::move(finer);
  }
  while (most > 1 && !fits(ticks)) ticks = RoundTicks(--most);
  return ticks;
}

// The eleven values of the HTML charts, as many as their mode labels; one that would meet an end's is left
// out.
std::vector<AxisTick> SvgAxes::GridTicks() const {
  std::vector<AxisTick> ticks;
  int decimals = 0;
  RoundValues(0, input_.axis.step, 1, decimals);
  for (int line = 0; line <= kGridIntervals; ++line) {
    const auto value = GridLabel(input_.axis, line, *input_.settings.valueLabels);
    if (value) ticks.push_back({*value, ValueText(*value, decimals)});
  }
  const double room = plot_.IsHorizontal() ? Longest(ticks) + kGap : kLineHeight;
  const auto apart = [&](const AxisTick& a, const AxisTick& b) {
    return std::abs(plot_.ValueAt(a.value) - plot_.ValueAt(b.value)) >= room;
  };
  std::vector<AxisTick> kept{ticks.front()};
  for (std::size_t i = 1; i + 1 < ticks.size(); ++i) {
    if (apart(kept.back(), ticks[i]) && apart(ticks[i], ticks.back())) kept.push_back(ticks[i]);
  }
  kept.push_back(ticks.back());
  return kept;
}

void SvgAxes::ChooseValues() { values_ = input_.settings.valueLabels ? GridTicks() : RoundTicks(); }

void SvgAxes::AddRow(double at, std::string_view text, double room, std::size_t lines) {
  RowLabel label{at, Wrap(text, room, kLabelSize, lines), {}};
  std::string joined;
  for (const std::string& line : label.lines) joined += (joined.empty() ? "" : " ") + line;
  if (joined != text) label.whole = text;
  rows_.push_back(std::move(label));
}

void SvgAxes::ChooseRows() {
  if (!input_.table.places.empty()) {
    ChoosePlacedRows();
  } else {
    double longest = 0;
    for (const std::string& label : input_.table.labels) {
      longest = std::max(longest, TextWidth(label, kLabelSize));
    }
    ChooseEvenRows(plot_.Pitch() - kGap, longest);
  }
  MeasureRows();
}

void SvgAxes::ChooseEvenRows(double room, double longest) {
  constexpr double kNarrowestWrap = 36;
  constexpr double kLeastSlantedPitch = 16;
  const SvgTable& table = input_.table;
  const auto addAll = [&](std::int32_t interval, double width, std::size_t lines) {
    rows_.clear();
    for (std::int64_t row = 1; row <= table.Rows(); row += interval) {
      const auto at = static_cast<std::int32_t>(row);
      AddRow(plot_.RowAt(at), table.Label(at), width, lines);
    }
  };
  if (plot_.IsHorizontal()) return addAll(Interval(kLineHeight, plot_.Pitch()), kLongestLabel, 1);
  if (longest <= room) return addAll(1, longest, 1);
  if (room >= kNarrowestWrap) {
    addAll(1, room, 3);
    if (std::ranges::all_of(rows_, [](const RowLabel& row) { return row.whole.empty(); })) return;
  }
  slanted_ = plot_.Pitch() >= kLeastSlantedPitch && !IsOrdinal(table);
  if (slanted_) return addAll(1, kSlantedLength, 1);
  const double width = std::min(longest, kLongestLabel);
  addAll(Interval(width + kGap, plot_.Pitch()), width, 1);
}

std::vector<AxisTick> SvgAxes::PlaceTicks(int most) const {
  const double low = input_.table.places.front();
  const double high = input_.table.places.back();
  if (input_.table.rowAxis == RowAxis::Date) return DateTicks(low, high, most);
  int decimals = 0;
  std::vector<AxisTick> ticks;
  for (const double value : RoundValues(low, high, most, decimals)) {
    ticks.push_back({value, AxisNumber(value, decimals)});
  }
  return ticks;
}

void SvgAxes::ChoosePlacedRows() {
  for (int most = 10; most > 0; --most) {
    rows_.clear();
    bool fits = true;
    double end = -plot_.RowLength();
    for (const AxisTick& tick : PlaceTicks(most)) {
      const double at = plot_.PlaceAt(tick.value);
      const double half = Extent(tick.text) / 2;
      if (!rows_.empty() && rows_.back().at == at) continue;  // two steps that fall on one row of bars
      fits = fits && at - half >= end;
      end = at + half;
      rows_.push_back({at, {tick.text}, {}});
    }
    if (fits && !rows_.empty()) return;
  }
  rows_.clear();  // hardly a round value in it: the first row stands for all
  AddRow(plot_.RowAt(1), input_.table.Label(1), kLongestLabel, 1);
}

void SvgAxes::MeasureRows() {
  std::size_t lines = 1;
  double deepest = 0;
  for (const RowLabel& label : rows_) {
    lines = std::max(lines, label.lines.size());
    for (const std::string& line : label.lines) {
      const double width = TextWidth(line, kLabelSize);
      if (plot_.IsHorizontal()) {
        leftRoom_ = std::max(leftRoom_, width + kBesidePlot);
      } else if (slanted_) {
        leftRoom_ = std::max(leftRoom_, width * kDiagonal - label.at);
        deepest = std::max(deepest, width * kDiagonal);
      } else {
        leftRoom_ = std::max(leftRoom_, width / 2 - label.at);
        rightRoom_ = std::max(rightRoom_, label.at + width / 2 - plot_.RowLength());
      }
    }
  }
  bottomRoom_ = kBesidePlot + (slanted_ ? deepest + kLabelSize : static_cast<double>(lines) * kLineHeight);
}

void SvgAxes::DrawGrid(EscapedMarkup& out) const {
  out.Open("g", {{"class", "chart-grid"}, {"stroke", "currentColor"}, {"shape-rendering", "crispEdges"}});
  for (const AxisTick& tick : values_) {
    const double at = plot_.ValueAt(tick.value);
    if (plot_.IsHorizontal()) {
      out.Leaf("line", {{"x1", at}, {"x2", at}, {"y1", plot_.Top()}, {"y2", plot_.Bottom()}});
    } else {
      out.Leaf("line", {{"x1", plot_.Left()}, {"x2", plot_.Right()}, {"y1", at}, {"y2", at}});
    }
  }
  out.Close();
  out.Break();
}

void SvgAxes::DrawRowLabel(EscapedMarkup& out, const RowLabel& label) const {
  const double at = plot_.RowStart() + label.at;
  const double below = plot_.Bottom() + kBesidePlot;
  double x = plot_.IsHorizontal() ? plot_.Left() - kBesidePlot : at;
  double y = plot_.IsHorizontal() ? at + kAscent * kLabelSize : below + kLabelSize;
  const bool atEnd = plot_.IsHorizontal() || slanted_;
  for (const std::string& line : label.lines) {
    std::string turn;
    if (slanted_) {
      x = at + kLabelSize / 2;
      turn = "rotate(-45 ";
      AppendNumber(turn, x);
      turn += ' ';
      AppendNumber(turn, below + kLabelSize / 2);
      turn += ')';
      out.Open("text",
               {{"x", x}, {"y", below + kLabelSize / 2}, {"text-anchor", "end"}, {"transform", turn}});
    } else {
      out.Open("text", {{"x", x}, {"y", y}, {"text-anchor", atEnd ? "end" : "middle"}});
    }
    if (!label.whole.empty()) out.TextElement("title", {}, label.whole);
    out.Text(line);
    out.Close();
    y += kLineHeight;
  }
}

void SvgAxes::DrawLabels(EscapedMarkup& out) const {
  const auto& axis = input_.axis;
  const double zero = plot_.ValueAt(std::clamp(0.0, axis.bottom, axis.top));
  const bool across = plot_.IsHorizontal();
  out.Leaf("line", {{"class", "chart-zero"},
                    {"stroke", "currentColor"},
                    {"shape-rendering", "crispEdges"},
                    {"x1", across ? zero : plot_.Left()},
                    {"x2", across ? zero : plot_.Right()},
                    {"y1", across ? plot_.Top() : zero},
                    {"y2", across ? plot_.Bottom() : zero}});
  out.Break();
  out.Open("g", {{"class", "chart-labels"}, {"font-size", kLabelSize}});
  for (const AxisTick& tick : values_) {
    const double at = plot_.ValueAt(tick.value);
    const double x = across ? at : plot_.Left() - kBesidePlot;
    const double y = across ? plot_.Bottom() + kBesidePlot + kLabelSize : at + kAscent * kLabelSize;
    out.TextElement(
        "text", {{"class", "chart-muted"}, {"x", x}, {"y", y}, {"text-anchor", across ? "middle" : "end"}},
        tick.text);
  }
  out.Break();
  for (const RowLabel& label : rows_) DrawRowLabel(out, label);
  out.Close();
  out.Break();
}

}  // namespace amortix2
