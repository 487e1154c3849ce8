#include <algorithm>
#include <array>
#include <cmath>

#include "amortix2/charts/svg_marks.h"

namespace amortix2 {
namespace {

constexpr double kMarkerRadius = 3.5;

struct LinePoint {
  double x;
  double y;
};

// The points of one line without a gap, thinned: of the points in one column of pixels the first, the least,
// the largest and the last remain, in their order, which draws the same picture.
class Run {
 public:
  void Add(LinePoint point) {
    if (!column_.empty() && std::floor(column_.front().x) != std::floor(point.x)) Flush();
    column_.push_back(point);
  }

  // The path of the points so far, which are then forgotten.
  void AppendTo(std::string& path) {
    Flush();
    if (points_.empty()) return;
    char command = 'M';
    for (const LinePoint& point : points_) {
      path += command;
      AppendNumber(path, point.x);
      path += ',';
      AppendNumber(path, point.y);
      command = 'L';
    }
    if (points_.size() == 1) path += "h0";  // a dot, by its round ends
    points_.clear();
  }

 private:
  void Flush() {
    if (column_.empty()) return;
    const auto [least, largest] = std::ranges::minmax_element(column_, {}, &LinePoint::y);
    const auto end = column_.end() - 1;
    std::array kept{column_.begin(), std::min(least, largest), std::max(least, largest), end};
    for (std::size_t i = 0; i < kept.size(); ++i) {
      if (i == 0 || kept[i] != kept[i - 1]) points_.push_back(*kept[i]);
    }
    column_.clear();
  }

  std::vector<LinePoint> column_;
  std::vector<LinePoint> points_;
};

class LinePainter {
 public:
  LinePainter(const SvgInput& input, const SvgPlot& plot) : input_(input), plot_(plot) {
    constexpr double kLeastPitch = 4;
    hasPoints_ = plot.Pitch() >= kLeastPitch;
  }

  void DrawSeries(EscapedMarkup& out, std::int32_t series) {
    const auto index = static_cast<std::size_t>(series) - 1;
    out.Open("g", {{"class", SeriesClass(index)}, {"fill", "currentColor"}});
    const std::string_view dashes = DashPattern(input_.settings, index);
    out.Open("path", {{"d", Path(series)},
                      {"fill", "none"},
                      {"stroke", "currentColor"},
                      {"stroke-width", 2},
                      {"stroke-linejoin", "round"},
                      {"stroke-linecap", dashes.empty() ? "round" : "butt"},
                      Attribute::If(!dashes.empty(), {"stroke-dasharray", dashes})});
    out.TextElement("title", {}, input_.table.Name(series));
    out.Close();
    DrawPoints(out, series);
    out.Close();
    out.Break();
  }

  std::vector<SvgMark> ReleaseMarks() { return std::move(marks_); }

 private:
  LinePoint At(std::int32_t row, std::int32_t series) const {
    return {plot_.RowAt(row), plot_.ValueAt(input_.table.values.At(row, series))};
  }

  std::string Path(std::int32_t series) const {
    std::string path;
    Run run;
    for (std::int32_t row = 1; row <= input_.table.Rows(); ++row) {
      if (input_.table.IsGap(row, series)) {
        run.AppendTo(path);
      } else {
        run.Add(At(row, series));
      }
    }
    run.AppendTo(path);
    return path;
  }

  // Every point has its title for a reader's pointer, whether its marker shows or not.
  void DrawPoints(EscapedMarkup& out, std::int32_t series) {
    const std::int32_t rows = input_.table.Rows();
    for (std::int32_t row = 1; row <= rows; ++row) {
      const bool isEnd = row == 1 || row == rows;
      if (!(hasPoints_ || isEnd) || input_.table.IsGap(row, series)) continue;
      const LinePoint point = At(row, series);
      marks_.push_back({row,
                        input_.table.values.At(row, series),
                        {point.x - kMarkerRadius, point.y - kMarkerRadius, point.x + kMarkerRadius,
                         point.y + kMarkerRadius}});
      if (!hasPoints_) continue;
      out.Open("g", {{"class", "chart-point"}, Attribute::If(!input_.settings.markers, {"fill-opacity", 0})});
      DrawMarker(out, static_cast<std::size_t>(series) - 1, point.x, point.y, kMarkerRadius);
      out.TextElement("title", {}, MarkTitle(input_, row, series));
      out.Close();
    }
  }

  const SvgInput& input_;
  const SvgPlot& plot_;
  bool hasPoints_;
  std::vector<SvgMark> marks_;
};

}  // namespace

void DrawMarker(EscapedMarkup& out, std::size_t series, double x, double y, double radius) {
  constexpr double kSameArea = 1.2;
  const double r = radius * kSameArea;
  std::string path;
  const auto to = [&](char command, double dx, double dy) {
    path += command;
    AppendNumber(path, x + dx);
    path += ',';
    AppendNumber(path, y + dy);
  };
  switch (series % 4) {
    case 0:
      return out.Leaf("circle", {{"cx", x}, {"cy", y}, {"r", radius}});
    case 1:
      return out.Leaf("rect",
                      {{"x", x - radius}, {"y", y - radius}, {"width", 2 * radius}, {"height", 2 * radius}});
    case 2:
      to('M', 0, -r), to('L', r, r), to('L', -r, r);
      break;
    default:
      to('M', 0, -r), to('L', r, 0), to('L', 0, r), to('L', -r, 0);
  }
  out.Leaf("path", {{"d", path + "Z"}});
}

std::string_view DashPattern(const SvgSettings& settings, std::size_t series) {
  constexpr std::array<std::string_view, 4> kPatterns{"", "7 4", "2 3", "9 3 2 3"};
  return settings.dashes ? kPatterns[series % kPatterns.size()] : std::string_view();
}

std::vector<SvgMark> DrawLines(EscapedMarkup& out, const SvgInput& input, const SvgPlot& plot) {
  LinePainter painter(input, plot);
  for (std::int32_t series = 1; series <= input.table.Series(); ++series) painter.DrawSeries(out, series);
  return painter.ReleaseMarks();
}

}  // namespace amortix2
