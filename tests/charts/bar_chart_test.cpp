#include "amortix2/charts/bar_chart.h"

#include <gtest/gtest.h>

#include <array>
#include <cctype>
#include <string>

#include "amortix2/charts/tag_balance.h"
#include "charts/bar_page.h"
#include "property.h"
#include "support.h"

namespace amortix2 {
namespace {

constexpr std::string_view kStyles[] = {"", "LINE", "OV", "OR", "OL", "ST", "SR", "HZ", "HR"};

/// The first of `fragments` (one a line) that does not follow the one before it; "" when all do.
std::string FirstMissing(const std::string& text, const std::string& fragments) {
  std::size_t from = 0;
  for (std::size_t start = 0; start < fragments.size();) {
    const std::size_t end = std::min(fragments.find('\n', start), fragments.size());
    std::string fragment = fragments.substr(start, end - start);
    const std::size_t found = text.find(fragment, from);
    if (found == std::string::npos) return fragment;
    from = found + fragment.size();
    start = end + 1;
  }
  return "";
}

int Count(const std::string& text, std::string_view part) {
  int count = 0;
  for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++count;
  return count;
}

/// True when tables, rows and cells, in whatever case, close in the order in which they opened.
bool IsBalanced(std::string text) {
  for (char& c : text) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  TagBalance tags;
  return tags.Follow(text) == 0 && tags.OpenElements().empty();
}

// Worked out by hand; docs/images/bars.html has whole charts.
TEST(BarChart, EachStyleHasItsOwnBars) {
  const struct {
    std::string_view style;
    double top;  // drawn nowhere, in row 0, for the axis
    std::string present, absent;
  } cases[] = {
      // 300 pixels for 100, so 10 and 40 are 30 and 120 high; 90 wide, limited to 80.
      {"", 100, R"(alt="$10" height ="30" src="red" width="80"
alt="$40" height ="120"
>A&B</FONT>)",
       "CLASS"},
      {"LINE", 100, R"(<TD>
<TABLE BORDER="0" CELLSPACING="0"
alt="$10")",
       "background"},
      {"ST", 50, R"(height="1" src="blank" width ="40"
alt="$10" height ="60"
alt="$40" height ="240")",
       "$50"},
      // The order is turned round, and the legend once more.
      {"SR", 50, R"(alt="$40" height ="240"
alt="$10" height ="60"
<TD width="10"
alt="R"
alt="G")",
       "CLASS"},
      {"HZ", 50, R"(alt="" height ="75" src="blank" width="380"
alt="$10" height ="75" src="red" width="76"
alt="$40" height ="75" src="green" width="304"
<TABLE width ="381"
<TD ALIGN="left" width="190"><FONT SIZE="1">0
<TD ALIGN="right" width ="191")",
       "width=33"},
      // Three slices a bar: one in front, and what the other shows beside and above it.
      {"OV", 100, R"(alt="$10" height ="30"
alt="$40"
alt="$40"
alt="$40")",
       "blank\" width =\"26"},
  };
  for (const auto& c : cases) {
    BarPage page;
    page.table = Table({{"", c.top, 0}, {"A&B", 10, 40}});
    page.images = List({"back", "red", "green"});
    const std::string text = page.Draw(c.style);
    EXPECT_EQ(FirstMissing(text, c.present), "") << c.style << "\n" << text;
    EXPECT_EQ(Count(text, c.absent), 0) << c.style;
    EXPECT_EQ(page.result.GetArray().At(0), Variant());
  }
}

// Every label mode, in a chart whose zero line lies at a grid line of its own.
TEST(BarChart, Settings) {
  BarPage page;
  page.table = Table({{0, 1, 2}, {0, 100, -50}});  // generated labels; axis 100 to -50
  const auto labels = [&](const Variant& mode) {
    BarChart chart;
    chart.NegativeBars(1);
    chart.YLabelMode(mode);
    chart.YLableFormatStr("0.0!");
    return Count(page.Draw(chart), "!</FONT>");
  };
  EXPECT_EQ(labels(11), 11);
  EXPECT_EQ(labels(3), 3);  // 25 in the middle, the ends; zero is not at a grid line
  EXPECT_EQ(labels(2), 2);
  EXPECT_EQ(labels("x"), 2);
  EXPECT_NE(page.Draw().find("<FONT SIZE=\"1\"> 1</FONT>"), std::string::npos);

  BarChart chart;
  chart.SetGraphDimensions(0, 500);
  chart.SetAxisGif(5);
  chart.SetSpaceGif("dot%20.gif");
  chart.SupressLegend(true);
  const std::string text = page.Draw(chart);
  EXPECT_NE(text.find("height=\" 300\" src=\"./images/spacer_black.gif\""), std::string::npos);
  EXPECT_NE(text.find("src=\"dot%20.gif\""), std::string::npos);
  EXPECT_EQ(Count(text, "height=15"), 0);
  chart.SupressLegend(0);
  EXPECT_EQ(Count(page.Draw(chart), "height=15"), 2);
  EXPECT_EQ(ErrorOf([&] { chart.TotalGraphFrameWidth(40000); }), ErrorNumber::Overflow);
}

TEST(BarChart, OnlyReversedHorizontalBarsReverseTheRows) {
  for (const std::string_view style : kStyles) {
    BarPage page;
    page.table = Table({{"", 0, 0, 0}, {"first", 1, 2, 3}, {"last", 4, 5, 6}});
    const std::string text = page.Draw(style);
    EXPECT_EQ(text.find("first") < text.find("last"), style != "HR") << style;
  }
}

// Labels stand 10 pixels apart at least, and lines lower than 20 do not grow with their text: a row takes two
// bars of 42, 5 and 3 pixels.
TEST(BarChart, LabelsOfHorizontalBarsKeepApart) {
  const struct {
    std::int32_t rows;
    int labels;
  } cases[] = {{3, 3}, {29, 29}, {100, 50}};
  for (const auto& [rows, labels] : cases) {
    Array table({0, rows}, {0, 1});
    for (Variant& cell : table.Cells()) cell = 1;
    for (std::int32_t row = 0; row <= rows; ++row) table.At(row, 0) = "L";
    BarPage page;
    page.table = table;
    const std::string text = page.Draw("HZ");
    EXPECT_EQ(Count(text, "&nbsp;L&nbsp;"), labels) << rows;
    EXPECT_EQ(Count(text, "line-height:1px") > 0, rows != 3) << rows;
  }
}

TEST(BarChart, ReversedStacksReverseTheCallersArrays) {
  BarPage page;
  page.table = Table({{"", 1, 2, 3}, {"A", 4, 5, 6}});
  page.Draw("SR");
  EXPECT_EQ(page.table, Variant(Table({{"", 3, 2, 1}, {"A", 6, 5, 4}})));
  EXPECT_EQ(page.images, Variant(List({"back", "blue", "green", "red"})));
  EXPECT_EQ(page.legends, Variant(List({"", "B", "G", "R"})));

  for (Variant BarPage::*const list : {&BarPage::legends, &BarPage::images}) {
    BarPage tooShort;
    tooShort.table = page.table;
    tooShort.*list = List({"", "one", "two"});
    const BarPage before = tooShort;
    EXPECT_EQ(ErrorOf([&] { tooShort.Draw("SR"); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(tooShort.table, before.table);
    EXPECT_EQ(tooShort.images, before.images);
    EXPECT_EQ(tooShort.legends, before.legends);
  }
}

TEST(BarChart, BadInputRaisesAndLeavesNothingBehind) {
  using enum ErrorNumber;
  const struct {
    Variant BarPage::*argument;
    Variant value;
    std::optional<ErrorNumber> error;
  } cases[] = {
      {&BarPage::table, 5, SubscriptOutOfRange},
      {&BarPage::table, List({1, 2}), SubscriptOutOfRange},
      {&BarPage::table, Array({1, 2}, {0, 2}), SubscriptOutOfRange},
      {&BarPage::table, Array({0, 2}, {0, 0}), DivisionByZero},
      {&BarPage::table, Array({0, 0}, {0, 2}), DivisionByZero},
      {&BarPage::table, Table({{"", 0, 0}, {"A", 1e308, 1e308}}), Overflow},
      {&BarPage::table, Table({{"", 0}, {List({1}), 1}}), TypeMismatch},
      {&BarPage::table, Table({{"", 0}, {kNull, 1}}), std::nullopt},
      {&BarPage::images, List({"back", "red"}), SubscriptOutOfRange},
      {&BarPage::images, "red", SubscriptOutOfRange},
      {&BarPage::legends, List({"", "R"}), SubscriptOutOfRange},
      {&BarPage::titles, List({"", ""}), SubscriptOutOfRange},
      {&BarPage::xCaption, kNull, std::nullopt},
      {&BarPage::blank, List({}), TypeMismatch},
  };
  BarChart chart;
  for (const auto& c : cases) {
    BarPage page;
    page.table = Table({{"", 0, 0}, {"A", 1, 2}});
    page.*c.argument = c.value;
    page.result = "before";
    EXPECT_EQ(ErrorOf([&] { page.Draw(chart, "ST"); }), c.error) << &c - cases;
    EXPECT_EQ(page.result == Variant("before"), c.error.has_value());
  }
  BarPage huge;  // 2^26 characters are exceeded by cells alone, and by the texts in them
  huge.table = Array({0, 40}, {0, 2});
  chart.MinimumOverlapCount(32700);
  EXPECT_EQ(ErrorOf([&] { huge.Draw(chart, "OV"); }), OutOfMemory);
  huge.blank = std::string_view(std::string(1 << 20, 'b'));
  chart.MinimumOverlapCount(3);
  EXPECT_EQ(ErrorOf([&] { huge.Draw(chart, "OV"); }), OutOfMemory);
  BarPage page;  // names are read only where they are written
  page.table = Table({{"", 0, 0}, {"A", 1, 2}});
  page.legends = List({"", "R"});
  chart.SupressLegend(1);
  EXPECT_EQ(ErrorOf([&] { page.Draw(chart); }), std::nullopt);
}

// Whatever the settings and the table, a chart is whole or an error is raised.
TEST(BarChart, AnyTableGivesBalancedMarkup) {
  int drawn = 0;
  const int cases = Cases(500, 5000);
  ForAll(cases, [&](Random& random) {
    const auto pick = [&](auto... values) { return random.OneOf(std::array{Variant(values)...}); };
    const auto rows = static_cast<std::int32_t>(random.Below(40));
    const auto columns = static_cast<std::int32_t>(random.Below(5));
    BarPage page;
    Array table({0, rows}, {0, columns});
    for (Variant& cell : table.Cells())
      cell = pick(0, 1, -1, 250, -3000.5, 0.004, 1e6, "x", kNull, -1e-300, 1e300);
    page.table = table;
    page.images = List({"0", "1", "2", "3", "4"});
    page.legends = page.images;
    page.titles = List({"", pick("", "frame"), "title"});
    BarChart chart;
    chart.SetGraphDimensions(pick(0, 300, 1, 17, -9, 32767), pick(0, 380, 1, 5, -400, 32767));
    chart.MinimumColumnWidth(pick(3, 0, 1, -1, 90));
    chart.MaximumColumnWidth(pick(80, 0, 2, -5));
    chart.MinimumOverlapSpace(pick(2, 0, -3));
    chart.MinimumOverlapCount(pick(3, 0, 1.5, 2, 7.7, -1, -0.5, 1e-300, 1e300));
    chart.NegativeBars(pick(0, 1));
    chart.YLabelMode(pick(1, 3, 11));
    chart.UseStyleSheets(pick(0, 1));
    const std::string_view style = random.OneOf(kStyles);
    std::string text;
    if (ErrorOf([&] { text = page.Draw(chart, style); })) return;
    ++drawn;
    EXPECT_TRUE(IsBalanced(text));
    EXPECT_EQ(TagBalance().Follow(text), 0);  // the diagnostic sees the upper-case tags alone
    EXPECT_EQ(Count(text, "nan") + Count(text, "inf"), 0);
    EXPECT_EQ(Count(text, "\"") % 2, 0);
  });
  EXPECT_GT(drawn, cases / 3);
}

}  // namespace
}  // namespace amortix2
