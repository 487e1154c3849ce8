#include "amortix2/charts/svg_drawing.h"

#include <algorithm>
#include <cstdint>

#include "amortix2/automation/number_format.h"
#include "amortix2/charts/chart_words.h"
#include "amortix2/charts/escaped_markup.h"
#include "amortix2/charts/svg_axes.h"
#include "amortix2/charts/svg_legend.h"
#include "amortix2/charts/svg_marks.h"
#include "amortix2/charts/text_width.h"

namespace amortix2 {
namespace {

constexpr double kMargin = 14;
constexpr double kGap = 8;  // between the parts of a picture
constexpr double kFrameTitleSize = 17;
constexpr double kTitleSize = 15;
constexpr double kTextSize = 12;
constexpr double kLineFactor = 1.3;
constexpr double kBoldFactor = 1.2;
constexpr std::size_t kMostLines = 3;

double PlotHeight(const SvgInput& input) {
  constexpr double kLeast = 40;
  constexpr double kLeastRow = 17;
  constexpr double kLeastBar = 7;
  constexpr double kMostGrown = 4000;  // beyond, rows share their pixels
  const double height = std::max<double>(input.settings.graph.height, kLeast);
  if (!input.IsHorizontal()) return height;
  const double needed = input.table.Rows() * std::max(kLeastRow, kLeastBar * input.table.Series());
  return std::max(height, std::min(needed, kMostGrown));
}

double PlotWidth(const SvgInput& input) {
  constexpr double kLeast = 60;
  return std::max<double>(input.settings.graph.width, kLeast);
}

// The room to the right that value labels need beside the plot.
double PointLabelRoom(const SvgInput& input) {
  if (input.settings.pointLabels == PointLabelMode::Off || !(input.isLine || input.IsHorizontal())) return 0;
  constexpr double kSize = 11;
  constexpr double kBesideMark = 9;
  const NumberPattern format(input.settings.altFormat);
  double room = 0;
  for (std::int32_t row = 1; row <= input.table.Rows(); ++row) {
    if (input.isLine && row != input.table.Rows()) continue;
    for (std::int32_t series = 1; series <= input.table.Series(); ++series) {
      room = std::max(room, TextWidth(format.Format(input.table.values.At(row, series)), kSize));
    }
  }
  constexpr double kMost = 150;
  return std::min(room + kBesideMark, kMost);
}

class Picture {
 public:
  explicit Picture(const SvgInput& input)
      : input_(input), plot_(input, PlotWidth(input), PlotHeight(input)), axes_(input, plot_) {
    const double right = std::max({axes_.RightRoom(), PointLabelRoom(input), kGap / 2});
    width_ = 2 * kMargin + axes_.LeftRoom() + plot_.Width() + right;
    if (HasFrame()) width_ = std::max<double>(width_, input.settings.totalFrameWidth);
  }

  void Draw() {
    const SvgLegend legend(input_, width_ - 2 * kMargin);
    const double middle = width_ / 2;
    y_ = kMargin;
    Lines("chart-frame-title", input_.frameTitle, kFrameTitleSize, kBoldFactor, middle);
    Lines("chart-title", input_.title, kTitleSize, kBoldFactor, middle);
    if (y_ > kMargin) y_ += kGap;
    const bool above = input_.settings.legend == LegendPlace::Above;
    if (above && legend.Height() > 0) {
      legend.Draw(body_, middle, y_);
      y_ += legend.Height() + kGap;
    }
    DrawPlot();
    Lines("chart-axis-title", input_.xTitle, kTextSize, kBoldFactor, plot_.Left() + plot_.Width() / 2);
    if (!above && legend.Height() > 0) {
      legend.Draw(body_, middle, y_ + kGap);
      y_ += legend.Height() + kGap;
    }
    y_ += input_.settings.caption.empty() ? 0 : kGap;
    Lines("chart-muted", input_.settings.caption, kTextSize, 1, middle);
    y_ += kMargin;
  }

  std::string Document() const {
    EscapedMarkup out;
    const std::string id = Identifier();
    const std::string words = ChartInWords(input_);
    std::string box = "0 0 ";
    AppendNumber(box, width_);
    box += ' ';
    AppendNumber(box, y_);
    out.Open("svg", {{"xmlns", "http://www.w3.org/2000/svg"},
                     {"id", id},
                     {"viewBox", box},
                     {"width", width_},
                     {"height", y_},
                     {"role", "img"},
                     {"aria-labelledby", id + "-title"},
                     {"aria-describedby", id + "-desc"},
                     {"direction", "ltr"},
                     {"font-family", "system-ui,-apple-system,'Segoe UI',Roboto,Helvetica,Arial,sans-serif"},
                     {"font-size", kTextSize},
                     {"style", "max-width:100%;height:auto"}});
    out.TextElement("title", {{"id", id + "-title"}}, Name());
    out.TextElement("desc", {{"id", id + "-desc"}}, words);
    out.Break();
    if (!input_.settings.useStyleSheets) {
      out.TextElement("style", {}, StyleSheet(id, input_.colours, input_.table.names.size()));
      out.Break();
      out.Leaf("rect", {{"class", "chart-paper"}, {"width", width_}, {"height", y_}});
    }
    if (HasFrame()) {
      out.Leaf("rect", {{"class", "chart-frame chart-grid"},
                        {"x", 1},
                        {"y", 1},
                        {"width", width_ - 2},
                        {"height", y_ - 2},
                        {"fill", "none"},
                        {"stroke", "currentColor"},
                        {"stroke-width", 2}});
    }
    out.Append(body_);
    return out.Finish();
  }

 private:
  bool HasFrame() const { return !input_.frameTitle.empty(); }

  std::string Name() const {
    if (!input_.title.empty()) return input_.title;
    if (!input_.frameTitle.empty()) return input_.frameTitle;
    return "Chart of " + input_.table.names.front();
  }

  // A fingerprint of the drawing and its words.
  std::string Identifier() const {
    std::uint64_t hash = 0xcbf29ce484222325u;
    for (const std::string& text : {body_.Written(), Name()}) {
      for (const char c : text) hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001b3u;
    }
    std::string id = "c";
    for (int shift = 60; shift >= 0; shift -= 4) id += "0123456789abcdef"[hash >> shift & 15];
    return id;
  }

  void Lines(std::string_view style, std::string_view text, double size, double factor, double middle) {
    const double room = width_ - 2 * kMargin;
    for (const std::string& line : Wrap(text, room / factor, size, kMostLines)) {
      y_ += size;
      const double half = factor * TextWidth(line, size) / 2;
      const double x = std::max(kMargin + half, std::min(middle, width_ - kMargin - half));
      body_.TextElement("text",
                        {{"class", style},
                         {"x", x},
                         {"y", y_},
                         {"font-size", size},
                         Attribute::If(factor > 1, {"font-weight", "bold"}),
                         {"text-anchor", "middle"}},
                        line);
      y_ += (kLineFactor - 1) * size;
    }
  }

  void DrawPlot() {
    const double left =
        std::max(kMargin + axes_.LeftRoom(), (width_ - plot_.Width()) / 2 * (HasFrame() ? 1 : 0));
    if (!input_.yTitle.empty()) {
      y_ += kTextSize;
      const double room = width_ - 2 * kMargin;
      body_.TextElement("text",
                        {{"class", "chart-axis-title"},
                         {"x", kMargin},
                         {"y", y_},
                         {"font-size", kTextSize},
                         {"font-weight", "bold"}},
                        Shorten(input_.yTitle, room / kBoldFactor, kTextSize));
      y_ += kGap;
    }
    constexpr double kHeadroom = 16;
    const bool labelled = input_.settings.pointLabels != PointLabelMode::Off && !plot_.IsHorizontal();
    y_ += labelled ? kHeadroom : kTextSize / 2;
    plot_.MoveTo(left, y_);
    if (!input_.colours.plot.empty() && !input_.style.line) {
      body_.Leaf("rect", {{"class", "chart-plot"},
                          {"x", plot_.Left()},
                          {"y", plot_.Top()},
                          {"width", plot_.Width()},
                          {"height", plot_.Height()}});
    }
    axes_.DrawGrid(body_);
    const auto marks = input_.isLine ? DrawLines(body_, input_, plot_) : DrawBars(body_, input_, plot_);
    axes_.DrawLabels(body_);
    DrawPointLabels(body_, input_, plot_, marks);
    y_ = plot_.Bottom() + axes_.BottomRoom() + kGap;
  }

  const SvgInput& input_;
  SvgPlot plot_;
  SvgAxes axes_;
  EscapedMarkup body_;
  double width_ = 0;
  double y_ = 0;  // how far down the picture is laid out
};

}  // namespace

std::string DrawSvg(const SvgInput& input) {
  Picture picture(input);
  picture.Draw();
  return picture.Document();
}

}  // namespace amortix2
