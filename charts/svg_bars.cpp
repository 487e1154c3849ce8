#include <algorithm>
#include <cmath>
#include <utility>

#include "amortix2/automation/number_format.h"
#include "amortix2/charts/svg_marks.h"
#include "amortix2/charts/table_axis.h"

namespace amortix2 {
namespace {

// A strip of the rows' axis with the rows that share it: one, unless there are more rows than pixels.
struct Band {
  double start;
  double width;
  std::int32_t first;
  std::int32_t last;
};

struct Bar {
  std::int32_t row;
  SvgBox box;
  bool faint;  // the largest value of several rows, behind the least
};

class BarPainter {
 public:
  BarPainter(const SvgInput& input, const SvgPlot& plot)
      : input_(input),
        plot_(plot),
        series_(input.table.Series()),
        order_(StackOrder(input.style, series_)),
        bars_(static_cast<std::size_t>(series_)) {
    const double count = std::clamp(input.settings.minimumOverlapCount, 1.0, 10.0);
    overlap_ = input.style.mode == BarMode::Overlapped && series_ > 1 ? count : 1;
    slots_ = IsStacked() ? 1 : series_ + overlap_ - 1;
  }

  void Arrange() {
    for (const Band& band : Bands()) IsStacked() ? AddStacks(band) : AddGroup(band);
  }

  void Draw(EscapedMarkup& out) const {
    for (std::int32_t series = 1; series <= series_; ++series) DrawSeries(out, series);
  }

  std::vector<SvgMark> ReleaseMarks() { return std::move(marks_); }

 private:
  bool IsStacked() const { return input_.style.mode == BarMode::Stacked; }

  std::vector<Band> Bands() const {
    constexpr double kFewestBands = 50;
    const std::int32_t rows = input_.table.Rows();
    const double room = std::max(std::floor(plot_.RowLength() / slots_), kFewestBands);
    const auto count = static_cast<std::int32_t>(std::min<double>(rows, room));
    const double width = plot_.RowLength() / count;
    std::vector<Band> bands;
    for (std::int64_t i = 0; i < count; ++i) {
      bands.push_back({plot_.RowStart() + static_cast<double>(i) * width, width,
                       static_cast<std::int32_t>(i * rows / count) + 1,
                       static_cast<std::int32_t>((i + 1) * rows / count)});
    }
    return bands;
  }

  // The place of a slot in its band, along the rows' axis.
  std::pair<double, double> Slot(const Band& band, std::int32_t index) const {
    constexpr double kFilled = 0.8;
    constexpr double kNoGapBelow = 4;
    const double widest = std::max<double>(input_.settings.maximumColumnWidth, 1) * slots_ / overlap_;
    const double inner = std::min(band.width < kNoGapBelow ? band.width : kFilled * band.width, widest);
    const double step = inner / slots_;
    const double start = band.start + (band.width - inner) / 2 + index * step;
    return {start, start + overlap_ * step};
  }

  SvgBox Box(std::pair<double, double> slot, double from, double to) const {
    const double a = plot_.ValueAt(from);
    const double b = plot_.ValueAt(to);
    const auto [low, high] = std::minmax(a, b);
    return plot_.IsHorizontal() ? SvgBox{low, slot.first, high, slot.second}
                                : SvgBox{slot.first, low, slot.second, high};
  }

  // The rows of a band to draw, the one of the largest value first, and the one of the least when it differs.
  template <class Value>
  std::vector<std::int32_t> Extremes(const Band& band, Value value) const {
    std::int32_t largest = band.first;
    std::int32_t least = band.first;
    for (std::int32_t row = band.first + 1; row <= band.last; ++row) {
      if (value(row) > value(largest)) largest = row;
      if (value(row) < value(least)) least = row;
    }
    return largest == least ? std::vector{largest} : std::vector{largest, least};
  }

  void AddGroup(const Band& band) {
    for (std::int32_t series = 1; series <= series_; ++series) {
      const auto value = [&](std::int32_t row) { return input_.table.values.At(row, series); };
      const auto rows = Extremes(band, value);
      for (const std::int32_t row : rows) {
        if (input_.table.IsGap(row, series)) continue;
        const SvgBox box = Box(Slot(band, series - 1), 0, value(row));
        Add(series, row, box, row != rows.back());
        if (band.first == band.last) marks_.push_back({row, value(row), box});
      }
    }
  }

  void AddStacks(const Band& band) {
    const auto total = [&](std::int32_t row) {
      double sum = 0;
      for (const std::int32_t series : order_) sum += input_.table.values.At(row, series);
      return sum;
    };
    const auto rows = Extremes(band, total);
    for (const std::int32_t row : rows) AddStack(band, row, row != rows.back());
  }

  void AddStack(const Band& band, std::int32_t row, bool faint) {
    const auto slot = Slot(band, 0);
    double above = 0;
    double below = 0;
    for (const std::int32_t series : order_) {
      if (input_.table.IsGap(row, series)) continue;
      const double value = input_.table.values.At(row, series);
      double& end = value < 0 ? below : above;
      const double start = std::exchange(end, end + value);
      Add(series, row, Box(slot, start, end), faint);
    }
    if (band.first != band.last) return;
    if (above > 0) marks_.push_back({row, above, Box(slot, 0, above)});
    if (below < 0) marks_.push_back({row, below, Box(slot, 0, below)});
  }

  void Add(std::int32_t series, std::int32_t row, const SvgBox& box, bool faint) {
    bars_[static_cast<std::size_t>(series) - 1].push_back({row, box, faint});
  }

  void DrawSeries(EscapedMarkup& out, std::int32_t series) const {
    constexpr double kSeparatedFrom = 6;
    const auto index = static_cast<std::size_t>(series) - 1;
    const auto& bars = bars_[index];
    const bool touching = IsStacked() || overlap_ > 1;
    const Band band{0, plot_.RowLength() / std::max<double>(1, input_.table.Rows()), 1, 1};
    const auto slot = Slot(band, 0);
    const bool separated = touching && slot.second - slot.first >= kSeparatedFrom;
    out.Open("g", {{"class", SeriesClass(index) + (separated ? " chart-halo" : "")},
                   {"fill", "currentColor"},
                   Attribute::If(separated, {"stroke-width", 1})});
    for (const Bar& bar : bars) {
      out.Open("rect", {{"x", bar.box.left},
                        {"y", bar.box.top},
                        {"width", bar.box.right - bar.box.left},
                        {"height", bar.box.bottom - bar.box.top},
                        Attribute::If(bar.faint, {"fill-opacity", 0.5})});
      out.TextElement("title", {}, MarkTitle(input_, bar.row, series));
      out.Close();
    }
    out.Close();
    out.Break();
  }

  const SvgInput& input_;
  const SvgPlot& plot_;
  std::int32_t series_;
  std::vector<std::int32_t> order_;
  std::vector<std::vector<Bar>> bars_;
  std::vector<SvgMark> marks_;
  double overlap_ = 1;  // slots that a bar takes
  double slots_ = 1;
};

}  // namespace

std::string MarkTitle(const SvgInput& input, std::int32_t row, std::int32_t series) {
  std::string title = input.table.Label(row);
  if (input.table.Series() > 1 || input.settings.altLabelWithLegend) {
    (title += title.empty() ? "" : ", ") += input.table.Name(series);
  }
  if (!title.empty()) title += ": ";
  NumberPattern(input.settings.altFormat).AppendTo(title, input.table.values.At(row, series));
  return title;
}

std::vector<SvgMark> DrawBars(EscapedMarkup& out, const SvgInput& input, const SvgPlot& plot) {
  BarPainter painter(input, plot);
  painter.Arrange();
  painter.Draw(out);
  return painter.ReleaseMarks();
}

}  // namespace amortix2
