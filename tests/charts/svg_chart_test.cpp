#include "amortix2/charts/svg_chart.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>

#include "amortix2/automation/conversion.h"
#include "amortix2/charts/gif_chart.h"
#include "amortix2/charts/svg_palette.h"
#include "charts/bar_page.h"
#include "charts/svg_page.h"
#include "support.h"

namespace amortix2 {
namespace {

const std::string_view kStyles[] = {"plain", "OV", "OL", "OR", "ST", "SR", "LINE", "HZ", "HR"};

std::string Bars(const SvgChart& chart, const Variant& table, const Variant& style) {
  Variant svg;
  chart.MakeChart(table, "", "", "", List({"", "", "Chart"}), "X", "Y", svg, style);
  return std::string(svg.GetString());
}

std::string Lines(const SvgChart& chart, const Variant& table) {
  Variant svg;
  chart.LineChart(table, "", "", svg);
  return std::string(svg.GetString());
}

Array Numbers(std::int32_t rows, std::int32_t series, double (*cell)(int, int)) {
  Array table({0, rows}, {0, series});
  table.At(0, 0) = "";
  for (std::int32_t row = 1; row <= rows; ++row) {
    table.At(row, 0) = std::string_view("r" + std::to_string(row));
    for (std::int32_t column = 1; column <= series; ++column) table.At(row, column) = cell(row, column);
  }
  return table;
}

// Each bar is as long as its value on the axis that the HTML chart of the same request has, and stands on
// zero or, in stacks, on the bar below.
TEST(SvgChart, BarsStandForTheirValues) {
  double (*const cells[])(int, int) = {
      [](int row, int series) { return 3.0 * row + 7 * series; },
      [](int row, int series) { return std::round(50 * std::sin(1.7 * row + series)) + 0.25; },
      [](int row, int series) { return -1e6 * row / series; },
  };
  for (const auto& cell : cells) {
    for (const std::string_view style : kStyles) {
      for (const int negativeBars : {0, 1}) {
        SCOPED_TRACE(testing::Message() << style << " " << (&cell - cells) << " " << negativeBars);
        const Array table = Numbers(6, 3, cell);
        SvgChart chart;
        chart.SetGraphDimensions(200, 400);
        chart.AltFormatStr("0.00");
        chart.NegativeBars(negativeBars);
        Variant top, bottom, step;
        chart.AxisRange(table, top, bottom, step, style);
        BarChart html;
        html.NegativeBars(negativeBars);
        const bool htmlDrawsAll =
            cell == cells[0] || negativeBars == 0 || (style[0] != 'S' && style[0] != 'H');
        if (htmlDrawsAll) {
          Variant htmlTop, htmlBottom, htmlStep;
          html.AxisRange(table, htmlTop, htmlBottom, htmlStep, style);
          EXPECT_EQ(top, htmlTop);
          EXPECT_EQ(bottom, htmlBottom);
          EXPECT_EQ(step, htmlStep);
        }

        const std::string svg = Bars(chart, table, style);
        EXPECT_EQ(Malformed(svg), "");
        const auto bars = BarsOf(svg);
        ASSERT_EQ(bars.size(), 18u);
        const bool across = style[0] == 'H';
        const bool stacked = style[0] == 'S';
        const double scale = (across ? 400 : 200) / (ToDouble(top) - ToDouble(bottom));
        std::map<std::string, std::vector<std::pair<double, double>>> piles;  // ends, as values from zero
        const double zero = [&] {
          const std::regex line("class=\"chart-zero\"[^>]*x1=\"([^\"]*)\" x2=\"[^\"]*\" y1=\"([^\"]*)\"");
          std::smatch found;
          std::regex_search(svg, found, line);
          return std::stod(found[across ? 1 : 2]);
        }();
        for (const SvgBar& bar : bars) {
          const double length = (across ? bar.width : bar.height) / scale;
          const double value = bar.Value();
          const double tolerance = 0.03 / scale;
          EXPECT_NEAR(length, std::abs(value), tolerance) << bar.title;
          const double start = across ? (bar.x - zero) / scale : (zero - bar.y - bar.height) / scale;
          EXPECT_TRUE(stacked || std::abs(start - std::min(value, 0.0)) < tolerance) << bar.title;
          if (value != 0)
            piles[bar.title.substr(0, 2) + (value < 0 ? "-" : "+")].emplace_back(start, start + length);
        }
        for (auto& [name, pile] : piles) {
          if (!stacked) continue;
          std::ranges::sort(pile);
          const bool below = name.back() == '-';
          EXPECT_NEAR(below ? pile.back().second : pile.front().first, 0, 0.05 / scale) << name;
          for (std::size_t i = 1; i < pile.size(); ++i)
            EXPECT_NEAR(pile[i].first, pile[i - 1].second, 0.05 / scale);
        }
      }
    }
  }
}

TEST(SvgChart, ReversedStacksTurnTheSeriesAndNotTheArguments) {
  const Array table = Table({{"", 0, 0}, {"A", 1, 2}});
  SvgChart chart;
  EXPECT_LT(BarsOf(Bars(chart, table, "ST"))[0].y, BarsOf(Bars(chart, table, "ST"))[1].y);
  EXPECT_GT(BarsOf(Bars(chart, table, "SR"))[0].y, BarsOf(Bars(chart, table, "SR"))[1].y);
  EXPECT_EQ(BarsOf(Bars(chart, Numbers(3, 1, [](int row, int) { return 1.0 * row; }), "HR"))[0].title,
            "r3: $3");
}

TEST(SvgChart, WhatIsNoNumberIsAGap) {
  const Array table =
      Table({{"", "Rent"}, {"a", 1}, {"b", "n/a"}, {"c", Variant()}, {"d", 0}, {"e", kNull}, {"f", 4}});
  const auto bars = BarsOf(Bars(SvgChart(), table, kMissing));
  ASSERT_EQ(bars.size(), 3u);
  EXPECT_EQ(bars[1].title, "d: $0");
  const std::string svg = Lines(SvgChart(), table);
  const std::string path = svg.substr(svg.find(" d=\""), 200);
  EXPECT_EQ(std::ranges::count(path.substr(0, path.find("\" ")), 'M'), 3);
}

// Whatever stands in a text, the picture has the elements of its harmless twin.
TEST(SvgChart, TextsAreEscapedEverywhere) {
  const std::string evil = "</title><script>\"'&\x01\xFF\xED\xA0\x80%";
  const auto draw = [](std::string_view text) {
    SvgChart chart;
    chart.Caption(text);
    chart.AltFormatStr(std::string_view("0" + std::string(text)));
    chart.YLableFormatStr(std::string_view("0\"" + std::string(text.substr(0, 6)) + "\""));
    chart.ValueLabelMode("on");
    Variant svg;
    const Variant table = Table({{text, 0, 0}, {text, 1, 2}});
    chart.MakeChart(table, text, List({text, text}), List({"", text, text}), List({"", text, text}), text,
                    text, svg);
    Variant html, words;
    chart.DataTable(table, List({"", text, text}), text, html);
    chart.AlternativeText(table, List({"", text, text}), text, words);
    EXPECT_EQ(Malformed(std::string(svg.GetString()) + std::string(html.GetString())), "");
    EXPECT_EQ(words.GetString().find_first_of("<>\"'"), std::string::npos);
    return std::string(svg.GetString()) + std::string(html.GetString());
  };
  const std::string drawn = draw(evil);
  EXPECT_EQ(drawn.find("<script"), std::string::npos);
  EXPECT_EQ(drawn.find("script>\""), std::string::npos);
  EXPECT_NE(drawn.find("\xEF\xBF\xBD"), std::string::npos);
  EXPECT_EQ(std::ranges::count(drawn, '<'), std::ranges::count(draw(std::string(evil.size(), 'x')), '<'));
}

using Point = std::pair<double, double>;

/// The points of the first line.
std::vector<Point> PointsOf(const std::string& svg) {
  const std::size_t start = svg.find(" d=\"M") + 4;
  const std::string path = svg.substr(start, svg.find('"', start) - start);
  const std::regex point("[ML]([^,]*),([^MLh]*)");
  std::vector<Point> points;
  for (std::sregex_iterator at(path.begin(), path.end(), point), none; at != none; ++at) {
    points.emplace_back(std::stod((*at)[1]), std::stod((*at)[2]));
  }
  return points;
}

TEST(SvgChart, RowsStandAtTheirNumbersAndDates) {
  const std::pair<const char*, Array> cases[] = {
      {"number", Table({{"", ""}, {0, 1}, {10, 2}, {40, 4}, {20, 3}})},
      {"date",
       Table({{"", ""}, {"2001-01-01", 1}, {"2001-01-11", 2}, {"2001-02-10", 4}, {"2001-01-21", 3}})}};
  for (const auto& [kind, table] : cases) {
    SvgChart chart;
    chart.RowAxisKind(kind);
    const auto points = PointsOf(Lines(chart, table));
    ASSERT_EQ(points.size(), 4U) << kind;
    const auto [start, end] = std::pair(points.front(), points.back());
    EXPECT_NEAR((points[1].first - start.first) / (end.first - start.first), 0.25, 1e-3);
    EXPECT_NEAR((points[2].first - start.first) / (end.first - start.first), 0.5, 1e-3);
    EXPECT_NEAR((points[2].second - start.second) / (end.second - start.second), 2.0 / 3, 1e-3);
    const auto single = PointsOf(Lines(chart, Table({{"", ""}, {table.At(1, 0), 1}})));
    EXPECT_NEAR(single.front().first, (start.first + end.first) / 2, 10);  // beside narrower labels
    Variant words;
    chart.AlternativeText(table, "", "", words);  // as the page has them
    EXPECT_NE(words.GetString().find(", last $3 ("), std::string::npos) << words.GetString();
  }
}

Point PlaceOf(const std::string& text, const std::string& svg) {
  const std::regex element("<text[^>]* x=\"([^\"]*)\" y=\"([^\"]*)\"[^>]*>" + text + "</text>");
  std::smatch found;
  return std::regex_search(svg, found, element) ? Point{std::stod(found[1]), std::stod(found[2])} : Point{};
}

// In the middle of its bar, a value just above it or below one below zero.
TEST(SvgChart, LabelsStandByTheirBars) {
  SvgChart chart;
  chart.AltFormatStr("0!");
  chart.ValueLabelMode("on");
  chart.NegativeBars(1);
  const std::string svg =
      Bars(chart, Table({{"", "s"}, {"a", 30}, {"b", -20}, {"c", 5}, {"d", -90}}), kMissing);
  for (const SvgBar& bar : BarsOf(svg)) {
    const Point row = PlaceOf(bar.title.substr(0, 1), svg);
    EXPECT_NEAR(row.first, bar.x + bar.width / 2, 0.02) << bar.title;
    if (row == PlaceOf("d", svg)) continue;  // it reaches the end of the axis, with no room below
    const Point value = PlaceOf(bar.title.substr(3), svg);
    EXPECT_NEAR(value.first, bar.x + bar.width / 2, 0.02) << bar.title;
    const bool isBelow = bar.Value() < 0;
    const double away = isBelow ? value.second - bar.y - bar.height : bar.y - value.second;
    EXPECT_TRUE(away > (isBelow ? 9 : 2) && away < (isBelow ? 16 : 9)) << bar.title << " " << away;
  }
}

// A name is a legend's, a setting's, a head's or a number; a colour is the page's where it is one.
TEST(SvgChart, SeriesHaveTheirNamesAndColours) {
  SvgChart chart;
  chart.SeriesNames(List({"", "", "", "Given"}));
  const Array table = Table({{"", "Head", 3, 4, 5}, {"a", 1, 2, 3, 4}});
  Variant html, bars, lines;
  chart.DataTable(table, List({"", "", "Legend"}), "", html);
  chart.MakeChart(table, "", List({"", "red", "no colour", "#1a2b3c", "#ABC"}), "", "", "", "", bars);
  Variant plot;
  chart.MakeChart(table, "", List({"teal", "", "", "", "", "lime"}), "", "", "", "", plot);
  EXPECT_EQ(plot.GetString().find("lime"), std::string::npos);  // of no series
  chart.LineChart(table, Table({{0, 0, 0}, {1, 2.9, 300}, {255, 16, -5}, {0, 0, 0}, {9, 10, 11}}), "", lines);
  const std::pair<const Variant*, const char*> cases[] = {
      {&html,
       "Head</th><th scope=\"col\">Legend</th><th scope=\"col\">Given</th><th scope=\"col\">Series 4</th>"},
      {&bars, ".chart-series1{color:red}"},
      {&bars, ".chart-series3{color:#1a2b3c}"},
      {&bars, ".chart-series4{color:#ABC}"},
      {&plot, ".chart-plot{fill:teal}"},
      {&lines, ".chart-series1{color:#0102ff}"},
      {&lines, ".chart-series2{color:#ff1000}"},
      {&lines, ".chart-series4{color:#090a0b}"}};
  for (const auto& [made, part] : cases) EXPECT_NE(made->GetString().find(part), std::string::npos) << part;
  EXPECT_EQ(SeriesColour(8), (Rgb{0x08, 0x52, 0x9E}));  // the first one's again
}

TEST(SvgChart, WordsNameSeriesWhereThereAreSeveral) {
  const auto words = [](int series) {
    Variant text;
    SvgChart().AlternativeText(Numbers(1, series, [](int, int j) { return 1.0 * j; }), "", "", text);
    return std::string(text.GetString());
  };
  EXPECT_EQ(words(8).find("more series"), std::string::npos);
  EXPECT_TRUE(words(9).ends_with(" And 1 more series.")) << words(9);
  EXPECT_NE(Bars(SvgChart(), Table({{"", "R"}, {"a", 3}}), "").find("Data: a: $3."), std::string::npos);
  EXPECT_NE(Bars(SvgChart(), Table({{"", "R", "S"}, {"a", 3, 4}}), "").find("Data: a: R $3, S $4."),
            std::string::npos);
}

// Of two series: a bar is a column wide, 80 pixels at most, of which one part of `count` stands free.
TEST(SvgChart, BarsOverlapByTheirCountAndAreThinnedToFiftyBands) {
  const Array pair = Table({{"", 0, 0}, {"A", 10, 20}});
  for (const double count : {1, 2, 3}) {
    SvgChart chart;
    chart.MinimumOverlapCount(count);
    const auto bars = BarsOf(Bars(chart, pair, "OV"));
    EXPECT_NEAR(bars.at(0).width, 80, 0.02);
    EXPECT_NEAR(bars.at(1).x - bars.at(0).x, 80 / count, 0.02);
  }
  SvgChart narrow;
  narrow.SetGraphDimensions(100, 60);
  EXPECT_EQ(BarsOf(Bars(narrow, Numbers(60, 3, [](int row, int) { return 1.0 * row; }), "")).size(), 180U);
  SvgChart stacks;
  stacks.ValueLabelMode("on");
  stacks.NegativeBars(1);
  stacks.AltFormatStr("0.00");
  const std::string svg = Bars(
      stacks, Table({{"", 0, 0}, {"A", 10, 20}, {"B", -4, -5}, {"C", -40, 0}, {"D", 0.5, 0.25}, {"E", 0, 0}}),
      "ST");
  for (const char* total : {"30.00", "-9.00", "0.75"}) EXPECT_NE(PlaceOf(total, svg), Point()) << total;
  EXPECT_EQ(PlaceOf("0.00", svg), Point());
}

TEST(SvgChart, LinesHaveMarkersOfFourShapesAndDotsForSinglePoints) {
  const std::string svg =
      Lines(SvgChart(), Table({{"", 1, 1, 1, 1, 1}, {"a", 1, 2, 3, 4, 5}, {"b", 5, kNull, 3, 2, 1}}));
  const auto count = [&](const char* part) {
    const std::regex pattern(part);
    return std::distance(std::sregex_iterator(svg.begin(), svg.end(), pattern), std::sregex_iterator());
  };
  EXPECT_EQ(count("<circle[^>]*/><title>"), 4);  // of two points each, the second series' one
  EXPECT_EQ(count("<rect[^>]*/><title>"), 1);
  EXPECT_EQ(count(" d=\"M[^LZ\"]*L[^LZ\"]*L[^LZ\"]*Z\"/><title>"), 2);
  EXPECT_EQ(count(" d=\"M[^LZ\"]*L[^LZ\"]*L[^LZ\"]*L[^LZ\"]*Z\"/><title>"), 2);
  EXPECT_EQ(count("h0\""), 1);
}

// A spike among ten thousand points is drawn at its full height, in a picture of bounded size.
TEST(SvgChart, ThinningKeepsExtremes) {
  Array table = Numbers(10000, 1, [](int row, int) { return std::round(100 * std::sin(row * 0.1)) + 200; });
  table.At(4321, 1) = 900;
  table.At(8765, 1) = -100;
  SvgChart chart;
  chart.NegativeBars(1);
  chart.AltFormatStr("0");
  Variant top, bottom, step;
  chart.AxisRange(table, top, bottom, step);
  for (const std::string& svg :
       {Lines(chart, table), Bars(chart, table, kMissing), Bars(chart, table, "ST")}) {
    EXPECT_LT(svg.size(), 150000u);
  }
  EXPECT_EQ(BarsOf(Bars(SvgChart(), Numbers(500, 1, [](int, int) { return 1.0; }), "")).size(), 380U);
  const auto bars = BarsOf(Bars(chart, table, kMissing));
  const auto value = [](const SvgBar& bar) { return bar.Value(); };
  EXPECT_EQ(std::ranges::max(bars, {}, value).title, "r4321: 900");
  EXPECT_EQ(std::ranges::min(bars, {}, value).title, "r8765: -100");

  const auto points = PointsOf(Lines(chart, table));
  const auto [highest, lowest] = std::ranges::minmax(points, {}, &Point::second);
  EXPECT_NEAR(lowest.second - highest.second, 1000 / (ToDouble(top) - ToDouble(bottom)) * 300, 0.02);
}

TEST(SvgChart, TableAndWordsSayWhatThePictureShows) {
  const Array table =
      Table({{"Year", "Principal", 0}, {"2001", 120.4, -40}, {"2002", 90, "none"}, {"2003", 95, 7}});
  SvgChart chart;
  Variant result;
  chart.DataTable(table, List({"", "", "A<B"}), "Loan", result);
  EXPECT_EQ(result.GetString(),
            "<table><caption>Loan</caption>\n"
            "<thead><tr><th scope=\"col\">Year</th><th scope=\"col\">Principal</th><th "
            "scope=\"col\">A&lt;B</th></tr></thead>\n"
            "<tbody><tr><th scope=\"row\">2001</th><td>$120</td><td>-$40</td></tr>\n"
            "<tr><th scope=\"row\">2002</th><td>$90</td><td></td></tr>\n"
            "<tr><th scope=\"row\">2003</th><td>$95</td><td>$7</td></tr>\n</tbody></table>");
  chart.AlternativeText(table, List({"", "", "A<B"}), List({"", "", "Loan"}), result);
  EXPECT_EQ(result.GetString(),
            "Loan. Principal: first $120 (2001), last $95 (2003), least $90 (2002), largest $120 (2001). "
            "A&lt;B: first -$40 (2001), last $7 (2003), least -$40 (2001), largest $7 (2003).");
}

TEST(SvgChart, BadTablesRaiseAndLeaveTheResult) {
  using enum ErrorNumber;
  const struct {
    Variant table;
    ErrorNumber error;
  } cases[] = {
      {5, SubscriptOutOfRange},
      {List({1, 2}), SubscriptOutOfRange},
      {Array({1, 2}, {0, 2}), SubscriptOutOfRange},
      {Array({0, 2}, {0, 0}), DivisionByZero},
      {Array({0, 0}, {0, 2}), DivisionByZero},
      {Table({{"", 0}, {"A", 1.7e308}, {"B", -1.7e308}}), Overflow},
      {Table({{"", 0}, {List({1}), 1}}), TypeMismatch},
  };
  SvgChart chart;
  chart.NegativeBars(1);
  for (const auto& c : cases) {
    Variant svg = "before";
    EXPECT_EQ(ErrorOf([&] { chart.MakeChart(c.table, "", "", "", "", "", "", svg); }), c.error) << &c - cases;
    EXPECT_EQ(ErrorOf([&] { chart.LineChart(c.table, "", "", svg); }), c.error) << &c - cases;
    EXPECT_EQ(svg, Variant("before"));
  }
  Variant top;
  EXPECT_EQ(ErrorOf([&] {
              GifChart().AxisRange(Array({0, 1}, {0, -1}), top, top, top);
            }),
            SubscriptOutOfRange);
}

// Worked out on paper: sums of stacks, row 0, and a GIF's values below zero.
TEST(ChartAxis, IsAnsweredForEachKindOfChart) {
  const Array table = Table({{"", 0, 290}, {"A", 100, 150}, {"B", -50, 10}});
  Variant top, bottom, step;
  BarChart bars;
  const auto axis = [&] { return std::vector{ToDouble(top), ToDouble(bottom), ToDouble(step)}; };
  bars.AxisRange(table, top, bottom, step);
  EXPECT_EQ(axis(), (std::vector{300.0, 0.0, 30.0}));
  bars.AxisRange(Table({{"", 0, 0}, {"A", 100, 150}}), top, bottom, step, "ST");
  EXPECT_EQ(axis(), (std::vector{250.0 + 50, 0.0, 30.0}));
  GifChart().AxisRange(Table({{"", 0}, {"A", 100}, {"B", -50}}), top, bottom, step);
  EXPECT_EQ(axis(), (std::vector{100.0, -50.0, 15.0}));
}

TEST(SvgChart, SettingsAndTheirLimits) {
  const auto labels = [](const SvgChart& chart, const Array& table, bool isLine) {
    const std::string svg = isLine ? Lines(chart, table) : Bars(chart, table, kMissing);
    static const std::regex kLabel(">([0-9]+!)</text>");
    std::string found;
    for (std::sregex_iterator at(svg.begin(), svg.end(), kLabel), none; at != none; ++at) found += (*at)[1];
    return found;
  };
  const Array bars = Numbers(3, 1, [](int row, int) { return 10.0 * row; });
  const Array line = Numbers(2000, 1, [](int row, int) { return 1.0 * row; });
  const struct {
    std::string_view mode;
    std::string ofBars, ofLine;
  } rows[] = {{"off", "", ""}, {"on", "30!20!10!", ""}, {"ENDS", "30!10!", "1!2000!"}};
  for (const auto& row : rows) {
    SvgChart chart;
    chart.AltFormatStr("0!");
    chart.ValueLabelMode(row.mode);
    EXPECT_EQ(labels(chart, bars, false), row.ofBars) << row.mode;
    const bool isCrowded = row.mode == "on";
    EXPECT_EQ(isCrowded ? "" : labels(chart, line, true), row.ofLine) << row.mode;
  }
  const auto axis = [](int mode) {
    SvgChart chart;
    chart.YLabelMode(mode);
    const std::string svg = Bars(chart, Table({{"", "s"}, {"a", 10}}), kMissing);
    static const std::regex kValue(">([0-9]+)</text>");
    std::string found;
    for (std::sregex_iterator at(svg.begin(), svg.end(), kValue), none; at != none; ++at)
      found += at->str(1) + " ";
    return found;
  };
  EXPECT_EQ(axis(2), "10 0 ");
  EXPECT_EQ(axis(3), "10 5 0 ");
  EXPECT_EQ(axis(11), "10 9 8 7 6 5 4 3 2 1 0 ");
  SvgChart small;
  small.SetGraphDimensions(1, 1);
  const Array one = Table({{"", 0}, {"A", 1}});
  const SvgBar bar = BarsOf(Bars(small, one, kMissing)).front();
  EXPECT_EQ(bar.height, 40);
  EXPECT_EQ(BarsOf(Bars(small, one, "HZ")).front().width, 60);
  const auto grown = BarsOf(Bars(small, Numbers(1000, 1, [](int, int) { return 1.0; }), "HZ"));
  EXPECT_NEAR(grown.back().y - grown.front().y, 4000 * 0.999, 0.01);  // a row less than they may take
  const auto names = [](int count) {
    return Bars(SvgChart(), Numbers(1, count, [](int, int) { return 1.0; }), "");
  };
  EXPECT_NE(names(41).find(">and 2 more<"), std::string::npos);
  EXPECT_EQ(names(40).find(" more<"), std::string::npos);
  const auto isColour = [](const std::string& text) { return ReadColour(text).has_value(); };
  for (const char* text : {"red", "#1aF", "#09afAF", "abcdefghijklmnopqrstuvwx"})
    EXPECT_TRUE(isColour(text)) << text;
  for (const char* text : {"", "#12", "#12345", "#12g", "a1", "red;", "abcdefghijklmnopqrstuvwxy"})
    EXPECT_FALSE(isColour(text)) << text;
}

// 1 to 6, or ten, a hundred, ... times that.
TEST(SvgChart, RowsAreLabelledAtFamiliarIntervals) {
  static const std::regex kLabel("<text x=\"[^\"]*\" y=\"[^\"]*\" text-anchor=\"middle\">([0-9]+)</text>");
  for (const std::int32_t rows : {9, 40, 90, 300, 900, 3000}) {
    Array table = Numbers(rows, 1, [](int row, int) { return 1.0 * row; });
    for (std::int32_t row = 1; row <= rows; ++row) table.At(row, 0) = row;
    const std::string svg = Bars(SvgChart(), table, "");
    const std::sregex_iterator first(svg.begin(), svg.end(), kLabel);
    ASSERT_NE(first, std::sregex_iterator()) << rows;
    int apart = std::stoi((*std::next(first))[1]) - std::stoi((*first)[1]);
    while (apart % 10 == 0 && apart != 0) apart /= 10;
    EXPECT_TRUE(apart >= 1 && apart <= 6) << rows << " " << apart;
  }
}

}  // namespace
}  // namespace amortix2
