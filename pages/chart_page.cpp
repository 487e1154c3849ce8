#include "amortix2/pages/chart_page.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "amortix2/automation/array.h"
#include "amortix2/charts/bar_chart.h"
#include "amortix2/charts/escaped_markup.h"
#include "amortix2/charts/svg_chart.h"
#include "amortix2/charts/svg_palette.h"
#include "amortix2/component/description.h"
#include "amortix2/json/json_text.h"
#include "amortix2/json/request_error.h"
#include "amortix2/pages/form_field.h"
#include "amortix2/pages/frame.h"
#include "amortix2/pages/pasted_table.h"

namespace amortix2::pages {
namespace {

constexpr std::string_view kExample =
    "Year\tPrincipal\tInterest\n2027\t2,235\t12,934\n2028\t2,385\t12,784\n2029\t2,545\t12,625\n";
constexpr std::string_view kLines = "LINE";
constexpr std::string_view kSecondNameOfOverlapped = "OR";
constexpr std::string_view kTooLarge = "These numbers are too large to draw.";
constexpr std::string_view kNoChoice = "This is none of the choices.";

/// The choices that the description has for the charts' style, and for the axis of their rows.
const ChoicesInfo& Styles() {
  return *FindParameter(*FindMember(*FindClass("SvgChart"), "MakeChart"), "typ")->choices;
}
const ChoicesInfo& Axes() {
  return *FindMember(*FindClass("SvgChart"), "RowAxisKind")->parameters.front().choices;
}

struct Wish {
  std::string table;
  std::string style;
  std::string axis;
  std::string title;
  std::string below;
  std::string left;
};

Wish WishOf(const Query& query) {
  const auto text = [&](std::string_view name) { return std::string(query.Get(name)); };
  Wish wish{text("table"), text("style"), text("axis"), text("title"), text("below"), text("left")};
  if (!query.Find("table"))
    wish = {std::string(kExample), "ST", "text", "Payments by year", "Year", "Dollars"};
  return wish;
}

struct Drawn {
  Variant data;
  std::string svg;
  std::string table;
  std::string html;
};

struct Errors {
  std::string table;
  std::string style;
  std::string axis;
  bool Any() const { return !table.empty() || !style.empty() || !axis.empty(); }
};

std::string Escaped(std::string_view text) {
  std::string escaped;
  AppendEscaped(escaped, text);
  return escaped;
}

void DrawPicture(const Wish& wish, Drawn& drawn) {
  SvgChart svg;
  svg.NegativeBars(true);
  svg.AltFormatStr("#,##0.##");
  svg.LineMarkers(true);
  svg.LineDashes(true);
  svg.RowAxisKind(std::string_view(wish.axis));
  svg.Title(std::string_view(wish.title));
  svg.XAxisTitle(std::string_view(wish.below));
  svg.YAxisTitle(std::string_view(wish.left));
  Variant picture;
  if (wish.style == kLines) {
    svg.LineChart(drawn.data, {}, {}, picture);
  } else {
    svg.MakeChart(drawn.data, {}, {}, {}, {}, {}, {}, picture, std::string_view(wish.style));
  }
  drawn.svg = picture.GetString();
  svg.DataTable(drawn.data, {}, std::string_view(wish.title.empty() ? "The chart's numbers" : wish.title),
                picture);
  drawn.table = picture.GetString();
}

/// An image of one pixel of a colour as an address, so that a chart needs no files; transparent without one.
std::string PixelAddress(std::optional<Rgb> colour) {
  std::string gif("GIF89a\1\0\1\0\x80\0\0", 13);
  const Rgb parts = colour.value_or(Rgb{});
  for (int i = 0; i < 2; ++i) gif.append(parts.begin(), parts.end());
  if (!colour) gif += std::string("\x21\xF9\4\1\0\0\0\0", 8);
  gif += std::string(",\0\0\0\0\1\0\1\0\0\2\2\x44\1\0;", 16);
  std::string quoted;
  json::AppendBase64(quoted, std::vector<std::uint8_t>(gif.begin(), gif.end()));
  return "data:image/gif;base64," + quoted.substr(1, quoted.size() - 2);
}

Variant Text(const std::string& text) { return std::string_view(text); }

/// The HTML chart takes texts as markup: what was pasted is escaped before.
void DrawHtml(const Wish& wish, Drawn& drawn) {
  Array data = drawn.data.GetArray();
  for (Variant& cell : data.Cells()) {
    if (cell.Type() == VariantType::String) cell = Text(Escaped(cell.GetString()));
  }
  std::vector<Variant> names{""};
  std::vector<Variant> images{Text(PixelAddress(Rgb{255, 255, 255}))};
  for (std::int32_t series = 1; series <= data.Dimension(2).upper; ++series) {
    const Variant& name = data.At(0, series);
    const bool isNamed = name.Type() == VariantType::String && !name.GetString().empty();
    names.push_back(isNamed ? name : Text("Series " + std::to_string(series)));
    images.push_back(Text(PixelAddress(SeriesColour(static_cast<std::size_t>(series) - 1))));
  }
  Variant table = std::move(data);
  Variant blank = Text(PixelAddress({}));
  Variant colours = Array(0, std::move(images));
  Variant legend = Array(0, std::move(names));
  Variant titles = Array(0, {"", "", Text(Escaped(wish.title))});
  Variant below = Text(Escaped(wish.below));
  Variant left = Text(Escaped(wish.left));
  Variant markup;
  BarChart chart;
  chart.NegativeBars(true);
  chart.SetAxisGif(Text(PixelAddress(Rgb{})));
  chart.SetSpaceGif(blank);
  chart.MakeChart(table, blank, colours, legend, titles, below, left, markup, Text(wish.style));
  for (const Variant& line : markup.GetArray().Cells()) {
    if (line.Type() == VariantType::String) (drawn.html += line.GetString()) += '\n';
  }
}

std::optional<Drawn> Draw(const Wish& wish, Errors& errors) {
  if (!FindChoice(Styles(), wish.style)) errors.style = kNoChoice;
  if (!FindChoice(Axes(), wish.axis)) errors.axis = kNoChoice;
  PastedTable table = ReadPastedTable(wish.table);
  errors.table = std::move(table.error);
  if (errors.Any()) return std::nullopt;
  Drawn drawn{.data = std::move(table.data), .svg = {}, .table = {}, .html = {}};
  const auto failure = json::Try([&] {
    DrawPicture(wish, drawn);
    DrawHtml(wish, drawn);
  });
  if (failure) errors.table = kTooLarge;
  return failure ? std::nullopt : std::optional(std::move(drawn));
}

void AppendForm(EscapedMarkup& out, const Wish& wish, const Errors& errors) {
  out.Open("form", {{"class", "card inputs"}, {"action", "/chart#answer"}, {"aria-label", "Inputs"}});
  const auto append = [&](FormField field, const auto& appendControl) {
    field.name = field.id;
    OpenField(out, field);
    appendControl(field);
    CloseField(out, field);
  };
  const auto area = [&](const FormField& field) { AppendArea(out, field); };
  const auto line = [&](const FormField& field) { AppendInput(out, field); };
  append({.id = "table",
          .label = "Table",
          .value = wish.table,
          .hint = "A line for each row, its label first; a first line may name the series. From a "
                  "spreadsheet, as CSV, or in columns.",
          .error = errors.table},
         area);
  append({.id = "style", .label = Styles().title, .value = wish.style, .error = errors.style},
         [&](const FormField& field) { AppendSelect(out, field, Styles(), kSecondNameOfOverlapped); });
  append({.id = "axis",
          .label = Axes().title,
          .value = wish.axis,
          .hint = "What the labels of the rows are",
          .error = errors.axis},
         [&](const FormField& field) { AppendSelect(out, field, Axes()); });
  append({.id = "title", .label = "Title", .value = wish.title}, line);
  append({.id = "below", .label = "Caption below", .value = wish.below}, line);
  append({.id = "left", .label = "Caption at the left", .value = wish.left}, line);
  out.Open("div", {{"class", "actions"}});
  out.TextElement("button", {{"type", "submit"}}, "Draw");
  out.Close();
  out.Close();
}

void AppendCopyField(EscapedMarkup& out, std::string_view id, std::string_view title, std::string_view hint,
                     std::string_view markup) {
  out.Open("div", {{"class", "field"}});
  out.TextElement("label", {{"for", id}}, title);
  out.TextElement("p", {{"class", "hint"}}, hint);
  out.Open("textarea", {{"id", id}, {"rows", 6}, {"readonly", ""}, {"spellcheck", "false"}});
  out.Text("\n");
  out.Text(markup);
  out.Close();
  out.Close();
}

void AppendChart(EscapedMarkup& out, const Drawn& drawn, const Query& query) {
  out.Open("section", {{"class", "card answer"}, {"id", "answer"}, {"aria-labelledby", "answer-title"}});
  out.TextElement("h2", {{"id", "answer-title"}}, "The chart");
  out.Open("figure", {{"class", "chart"}});
  AppendFigure(out, "As it will stand in a page", drawn.svg, drawn.table);
  out.Close();
  Query picture = query;
  picture.Set("format", "svg");
  out.Open("ul", {{"class", "along"}});
  out.Open("li");
  out.TextElement("a", {{"href", "?" + picture.Text()}, {"download", "chart.svg"}},
                  "The picture as a file (SVG)");
  for (int i = 0; i < 3; ++i) out.Close();
  out.Open("section", {{"class", "card inputs"}, {"aria-labelledby", "markup-title"}});
  out.TextElement("h2", {{"id", "markup-title"}}, "Markup to copy");
  AppendCopyField(out, "svg", "Picture (SVG)", "Put it into a page as it is.", drawn.svg);
  AppendCopyField(
      out, "html", "HTML bar chart",
      "Tables and stretched images, for pages that show no pictures of their own. It needs no files.",
      drawn.html);
  out.Close();
}

void AppendErrors(EscapedMarkup& out, const Errors& errors) {
  std::vector<Problem> problems;
  const auto add = [&](const char* field, std::string_view title, const std::string& error) {
    if (!error.empty()) problems.push_back({field, title, error});
  };
  add("table", "Table", errors.table);
  add("style", Styles().title, errors.style);
  add("axis", Axes().title, errors.axis);
  AppendProblems(out, problems);
}

}  // namespace

Page ChartPage(const Query& query) {
  const Wish wish = WishOf(query);
  Errors errors;
  const auto drawn = Draw(wish, errors);
  if (drawn && query.Get("format") == "svg") {
    return {.contentType = "image/svg+xml", .bytes = drawn->svg, .fileName = "chart.svg"};
  }
  EscapedMarkup out;
  out.Open("div", {{"class", "hero"}});
  out.TextElement("h1", {}, "Chart of a table");
  out.TextElement("p", {{"class", "lede"}}, "Paste numbers, and take the chart along.");
  out.Close();
  out.Open("div", {{"class", "columns"}});
  AppendForm(out, wish, errors);
  out.Open("div", {{"class", "result"}});
  drawn ? AppendChart(out, *drawn, query) : AppendErrors(out, errors);
  out.Close();
  out.Close();
  return Framed("Chart of a table", "/chart", out);
}

}  // namespace amortix2::pages
