#include <algorithm>
#include <cmath>

#include "amortix2/automation/number_format.h"
#include "amortix2/charts/svg_marks.h"
#include "amortix2/charts/text_width.h"

namespace amortix2 {
namespace {

constexpr double kSize = 11;
constexpr double kHeight = 13;
constexpr double kDistance = 3;
constexpr std::size_t kMostLabels = 400;

struct PointLabel {
  const SvgMark* mark;
  std::string text;
  SvgBox box;
};

// Above the mark, below it for a value below zero; at its end in horizontal charts.
SvgBox Beside(const SvgMark& mark, double width, bool horizontal, double leftmost) {
  const SvgBox& at = mark.box;
  const double middle = (at.top + at.bottom) / 2;
  if (horizontal) {
    const double left = mark.value < 0 ? at.left - kDistance - width : at.right + kDistance;
    return {left, middle - kHeight / 2, left + width, middle + kHeight / 2};
  }
  const double left = std::max((at.left + at.right - width) / 2, leftmost);
  const double top = mark.value < 0 ? at.bottom + kDistance : at.top - kDistance - kHeight;
  return {left, top, left + width, top + kHeight};
}

SvgBox RightOf(const SvgMark& mark, double width) {
  const double middle = (mark.box.top + mark.box.bottom) / 2;
  const double left = mark.box.right + kDistance;
  return {left, middle - kHeight / 2, left + width, middle + kHeight / 2};
}

void Write(EscapedMarkup& out, const PointLabel& label) {
  out.TextElement("text",
                  {{"class", "chart-value chart-halo"},
                   {"x", (label.box.left + label.box.right) / 2},
                   {"y", label.box.bottom - kDistance},
                   {"text-anchor", "middle"}},
                  label.text);
}

// The last values of lines stand in the margin, where they only have to keep apart from one another.
void WriteLineEnds(EscapedMarkup& out, std::vector<PointLabel> labels, double bottom) {
  std::ranges::sort(labels, {}, [](const PointLabel& label) { return label.box.top; });
  for (std::size_t i = 1; i < labels.size(); ++i) {
    const double down = std::max(0.0, labels[i - 1].box.bottom - labels[i].box.top);
    labels[i].box.top += down;
    labels[i].box.bottom += down;
  }
  const double up = labels.empty() ? 0 : std::max(0.0, labels.back().box.bottom - bottom - kHeight);
  for (PointLabel& label : labels) {
    label.box.top -= up;
    label.box.bottom -= up;
    Write(out, label);
  }
}

}  // namespace

void DrawPointLabels(EscapedMarkup& out, const SvgInput& input, const SvgPlot& plot,
                     const std::vector<SvgMark>& marks) {
  if (input.settings.pointLabels == PointLabelMode::Off) return;
  const bool endsOnly = input.settings.pointLabels == PointLabelMode::Ends;
  const NumberPattern format(input.settings.altFormat);
  std::vector<PointLabel> labels;
  std::vector<PointLabel> lineEnds;
  for (const SvgMark& mark : marks) {
    const bool isLast = mark.row == input.table.Rows();
    if (endsOnly && mark.row != 1 && !isLast) continue;
    std::string text = format.Format(mark.value);
    const double width = TextWidth(text, kSize);
    const bool atEnd = endsOnly && input.isLine && isLast;
    const SvgBox box =
        atEnd ? RightOf(mark, width) : Beside(mark, width, plot.IsHorizontal(), plot.Left() - kDistance);
    (atEnd ? lineEnds : labels).push_back({&mark, std::move(text), box});
  }
  std::ranges::stable_sort(labels, std::greater<>(),
                           [](const PointLabel& label) { return std::abs(label.mark->value); });
  if (labels.size() > kMostLabels) labels.resize(kMostLabels);

  const SvgBox room{plot.IsHorizontal() ? plot.Left() : plot.Left() - kHeight,
                    plot.Top() - kHeight - 2 * kDistance, plot.Right() + 1000, plot.Bottom()};
  out.Open("g", {{"font-size", kSize}, {"stroke-width", 3}, {"paint-order", "stroke"}});
  std::vector<SvgBox> taken;
  for (const PointLabel& label : labels) {
    const auto meets = [&](const SvgBox& box) { return box.Meets(label.box); };
    const bool meetsMark = std::ranges::any_of(
        marks, [&](const SvgMark& mark) { return &mark != label.mark && meets(mark.box); });
    const bool isInside =
        label.box.left >= room.left && label.box.top >= room.top && label.box.bottom <= room.bottom;
    if (meetsMark || !isInside || std::ranges::any_of(taken, meets)) continue;
    taken.push_back(label.box);
    Write(out, label);
  }
  WriteLineEnds(out, std::move(lineEnds), plot.Bottom());
  out.Close();
  out.Break();
}

}  // namespace amortix2
