#include "charts/bar_chart.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "automation/raises.h"
#include "charts/bar_page.h"
#include "charts/tag_balance.h"

namespace amortix2 {
namespace {

constexpr std::string_view kStyles[] = {"", "LINE", "OV", "OR", "OL", "ST", "SR", "HZ", "HR"};

/// The first of `fragments` (one a line) that does not follow the one before it; "" when all do.
std::string FirstMissing(const std::string& text, const std::string& fragments) {
  std::size_t from = 0;
  for (std::size_t start = 0; start < fragments.size();) {
    const std::size_t end = std::min(fragments.find('\n', start), fragments.size());
    const std::string fragment = fragments.substr(start, end - start);
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

/// True when tables, rows and cells close in the order in which they opened, whatever their case.
bool IsBalanced(const std::string& text) {
  std::vector<std::string> open;
  for (std::size_t at = text.find('<'); at != std::string::npos; at = text.find('<', at + 1)) {
    const bool closing = text[at + 1] == '/';
    std::string name;
    for (std::size_t i = at + (closing ? 2 : 1); std::isalpha(static_cast<unsigned char>(text[i])) != 0;
         ++i) {
      name += static_cast<char>(std::toupper(text[i]));
    }
    if (name != "TABLE" && name != "TR" && name != "TD") continue;
    if (!closing) {
      open.push_back(name);
    } else if (open.empty() || open.back() != name) {
      return false;
    } else {
      open.pop_back();
    }
  }
  return open.empty();
}

// Two bars of one group, 50 up and 20 down on an axis from 54 to -20: 65 and 29 pixels high, 30 wide.
TEST(BarChart, WholeChart) {
  BarPage page;
  page.table = Table({{"", 0, 0}, {"A&B", 50, -20}});
  page.titles = List({"", "Frame", "Chart"});
  BarChart chart;
  chart.SetGraphDimensions(100, 61);
  chart.NegativeBars(true);
  chart.AltLabelWithLegend(1);
  const std::string text = page.Draw(chart);
  EXPECT_EQ(FirstMissing(text, R"(<!-- Generated Chart -->
<TABLE WIDTH="462" BORDER="0" CELLPADDING="0" CELLSPACING="0">
<TR>
<TD BGCOLOR="#666666" COLSPAN="3">
<FONT color="#ffffff">
<STRONG>&nbsp; Frame</STRONG>
</FONT>
</TD></TR>
<TR><TD HEIGHT="3" COLSPAN="3" BGCOLOR="silver"><IMG src="./images/space.gif" ></TD></TR>
<TR>
<TD WIDTH="3" BGCOLOR="silver"><IMG src="./images/space.gif" ></TD>
<TD WIDTH="456">
<TABLE BORDER="0" CELLSPACING="0" CELLPADDING="0">
<TR>
<TD COLSPAN="3" ALIGN="middle" ><FONT SIZE="3"><b>Chart</b></FONT></TD>
</TR>
<TR>
<TD VALIGN="center" ><FONT SIZE="3"><b>Y</b></FONT></TD>
<TD VALIGN="top">
<TABLE width=33 BORDER="0" height=" 100" CELLSPACING="0" CELLPADDING="0">
<TR>
<TD VALIGN="top" ALIGN="right" height="5" ><FONT SIZE="1">54</FONT></TD>
</TR>
<TD VALIGN="middle" ALIGN="right" height="10" ><FONT SIZE="1"><IMG src="./images/space.gif" ></FONT></TD>
<TD VALIGN="bottom" ALIGN="right" height="5" ><FONT SIZE="1">-20</FONT></TD>
</TR>
</TABLE>
</TD>
<TD>
<TABLE BORDER="0" background="back" CELLSPACING="0" CELLPADDING="0">
<TR>
<TD VALIGN="bottom"><IMG border=0 height=" 100" src="./images/spacer_black.gif" width ="1" ></TD>
<TD><TABLE BORDER="0" CELLSPACING="0" CELLPADDING="0">
<TR><TD><TABLE BORDER="0" CELLSPACING="0" CELLPADDING="0">
<TR height="70" >
<TD VALIGN="bottom">
<table border="0" cellspacing="0" cellpadding="0">
<tr><td valign="bottom"><IMG border=0 alt="R, $50" height ="65" src="red" width="30" ></td></tr>
</Table></TD>
<TD VALIGN="bottom"><IMG border=0 height="1" src="blank" width ="30" ></TD>
<TD VALIGN="bottom"><IMG border=0 height="1" src="blank" width ="1" ></TD>
</TR></TABLE></TD></TR>
<TR height="1" ><TD>
<IMG border=0 height=" 1" src="./images/spacer_black.gif" width ="61" ></TD>
</TR>
<TR height="29" >
<TD VALIGN="top"><TABLE BORDER="0" CELLSPACING="0" CELLPADDING="0">
<TR>
<TD VALIGN="bottom"><IMG border=0 height="1" src="blank" width ="30" ></TD>
<TD VALIGN="top">
<table border="0" cellspacing="0" cellpadding="0">
<tr><td valign="top"><IMG border=0 alt="G, -$20" height ="29" src="green" width="30" ></td></tr>
</Table></TD>
<TD VALIGN="bottom"><IMG border=0 height="1" src="blank" width ="1" ></TD>
</TR></TABLE></TD></TR>
</TABLE></TD>
</TR>
</TABLE>
<TABLE width ="62" BORDER="0" CELLPADDING="0"  CELLSPACING="0">
<TR><TD>
<IMG border=0 height=" 1" src="./images/spacer_black.gif" width ="62" ></TD>
</TR>
</TABLE>
<TABLE width ="62" BORDER="0" CELLPADDING="0"  CELLSPACING="0"><TR>
<TD ALIGN="middle" width="61"><FONT SIZE="1">A&B</FONT></TD>
</TR></TABLE>
</TD>
</TR>
<TR>
<TD COLSPAN="2"></TD>
<TD ALIGN="middle" ><b>X</b></TD>
</TR>
<TR>
<TD COLSPAN="2">&nbsp;</TD>
<TD VALIGN="middle" >
<TABLE  VALIGN="middle" BORDER="0" CELLPADDING="2" CELLSPACING="2">
<TR>
<TD width="10">&nbsp;</TD>
<TD VALIGN="bottom"><IMG border=0  height=15 alt="R" src="red" width="20" ></TD>
<TD ALIGN="left" width="30">R</TD>
<TD VALIGN="bottom"><IMG border=0  height=15 alt="G" src="green" width="20" ></TD>
<TD ALIGN="left" width="30">G</TD>
</TR>
</TABLE>
</TD>
</TR>
</TABLE>
</TD>
<TD WIDTH="3" bgcolor="silver"><IMG height="1" src="./images/space.gif" ></TD>
</TR>
<TR>
<TD HEIGHT="3" COLSPAN="3" bgcolor="silver"><IMG height="1" src="./images/space.gif" ></TD>
</TR>
</TABLE>
<!-- End Of Generated Chart -->
)"),
            "");
  EXPECT_EQ(page.result.GetArray().At(0), Variant());
}

TEST(BarChart, EachStyleHasItsOwnBars) {
  const struct {
    std::string_view style;
    bool sheets;
    std::string present, absent;
  } cases[] = {
      // 300 pixels for 100; 10 and 40 of it, 90 wide limited to 80.
      {"", false, "alt=\"$10\" height =\"30\" src=\"red\" width=\"80\"\nalt=\"$40\" height =\"120\"",
       "CLASS"},
      {"LINE", false, "<TD>\n<TABLE BORDER=\"0\" CELLSPACING=\"0\"\nalt=\"$10\"", "background"},
      {"ST", false,
       "height=\"1\" src=\"blank\" width =\"40\"\nalt=\"$10\" height =\"60\"\nalt=\"$40\" height =\"240\"",
       "alt=\"$50\""},
      // The order is turned round, and the legend once more.
      {"SR", false,
       "alt=\"$40\" height =\"240\"\nalt=\"$10\" height =\"60\"\n<TD width=\"10\"\nalt=\"R\"\nalt=\"G\"",
       "CLASS"},
      {"HZ", false,
       "alt=\"\" height =\"75\" src=\"blank\" width=\"380\"\nalt=\"$10\" height =\"75\" src=\"red\" "
       "width=\"76\"\nalt=\"$40\" height =\"75\" src=\"green\" width=\"304\"\n<TABLE width =\"381\"\n"
       "<TD ALIGN=\"left\" width=\"190\"><FONT SIZE=\"1\">0\n<TD ALIGN=\"right\" width =\"191\"",
       "width=33"},
      // Three slices a bar: the front bar whole, the other above it where it stands out.
      {"OV", false, "alt=\"$10\"\nalt=\"$40\"\nalt=\"$40\"\nalt=\"$40\"", "alt=\"$50\""},
      {"", true,
       "<TD CLASS=\"title\" COLSPAN=\"3\">&nbsp;F\nCLASS=\"frame\"><IMG src\nCLASS=\"chtitle\">Chart</TD>\n"
       "CLASS=\"xylabel\">Y</TD>\n "
       "CLASS=\"xyaxis\">0</TD>\nCLASS=\"xyaxis\">A</TD>\nCLASS=\"xylabel\">X</TD>\n"
       "CLASS=\"frame\"><IMG height=\"1\"",
       "FONT"},
  };
  for (const auto& c : cases) {
    BarPage page;
    page.table = Table({{"", 100, 0}, {"A", 10, 40}});
    if (c.style == "HZ") page.table = Table({{"", 50, 0}, {"A", 10, 40}});
    if (c.style == "ST" || c.style == "SR") page.table = Table({{"", 0, 0}, {"A", 10, 40}});
    page.images = List({"back", "red", "green"});
    page.titles = List({"", c.sheets ? "F" : "", "Chart"});
    BarChart chart;
    chart.UseStyleSheets(c.sheets);
    const std::string text = page.Draw(chart, c.style);
    EXPECT_EQ(FirstMissing(text, c.present), "") << c.style << "\n" << text;
    EXPECT_EQ(Count(text, c.absent), 0) << c.style;
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
  EXPECT_EQ(Count(text, "Interest"), 0);
  EXPECT_EQ(Count(text, "height=15"), 0);
  chart.SupressLegend(0);
  EXPECT_EQ(Count(page.Draw(chart), "height=15"), 2);
  EXPECT_EQ(ErrorOf([&] { chart.TotalGraphFrameWidth(40000); }), ErrorNumber::Overflow);
}

TEST(BarChart, ReversedStacksReverseTheCallersArrays) {
  BarPage page;
  page.table = Table({{"", 1, 2, 3}, {"A", 4, 5, 6}});
  page.Draw("SR");
  EXPECT_EQ(page.table, Variant(Table({{"", 3, 2, 1}, {"A", 6, 5, 4}})));
  EXPECT_EQ(page.images, Variant(List({"back", "blue", "green", "red"})));
  EXPECT_EQ(page.legends, Variant(List({"", "B", "G", "R"})));

  page.legends = List({"", "short"});
  const BarPage before = page;
  EXPECT_EQ(ErrorOf([&] { page.Draw("SR"); }), ErrorNumber::SubscriptOutOfRange);
  EXPECT_EQ(page.table, before.table);
  EXPECT_EQ(page.images, before.images);
}

TEST(BarChart, BadInputRaisesAndLeavesNothingBehind) {
  using Spoil = void (*)(BarPage&, BarChart&);
  const struct {
    Spoil spoil;
    std::optional<ErrorNumber> error;
  } cases[] = {
      {[](BarPage& p, BarChart&) { p.table = 5; }, ErrorNumber::SubscriptOutOfRange},
      {[](BarPage& p, BarChart&) {
         p.table = List({1, 2});
       },
       ErrorNumber::SubscriptOutOfRange},
      {[](BarPage& p, BarChart&) {
         p.table = Array({1, 2}, {0, 2});
       },
       ErrorNumber::SubscriptOutOfRange},
      {[](BarPage& p, BarChart&) {
         p.table = Array({0, 2}, {0, 0});
       },
       ErrorNumber::DivisionByZero},
      {[](BarPage& p, BarChart&) {
         p.table = Array({0, 0}, {0, 2});
       },
       ErrorNumber::DivisionByZero},
      {[](BarPage& p, BarChart&) {
         p.table = Table({{"", 0, 0}, {"A", 1e308, 1e308}});
       },
       ErrorNumber::Overflow},
      {[](BarPage& p, BarChart&) {
         p.table = Table({{"", 0}, {List({1}), 1}});
       },
       ErrorNumber::TypeMismatch},
      {[](BarPage& p, BarChart&) {
         p.images = List({"back", "red"});
       },
       ErrorNumber::SubscriptOutOfRange},
      {[](BarPage& p, BarChart&) {
         p.legends = List({"", "R"});
       },
       ErrorNumber::SubscriptOutOfRange},
      {[](BarPage& p, BarChart& c) {
         p.legends = List({"", "R"}), c.SupressLegend(1);
       },
       std::nullopt},
      {[](BarPage& p, BarChart&) {
         p.titles = List({"", ""});
       },
       ErrorNumber::SubscriptOutOfRange},
      {[](BarPage& p, BarChart&) {
         p.xCaption = kNull, p.table = Table({{"", 0}, {kNull, 1}});
       },
       std::nullopt},
  };
  for (const auto& c : cases) {
    BarPage page;
    page.table = Table({{"", 0, 0}, {"A", 1, 2}});
    BarChart chart;
    c.spoil(page, chart);
    page.result = "before";
    EXPECT_EQ(ErrorOf([&] { page.Draw(chart, "ST"); }), c.error) << &c - cases;
    EXPECT_EQ(page.result == Variant("before"), c.error.has_value());
  }
}

// Whatever the settings and the table, a chart is whole or an error is raised.
TEST(BarChart, AnyTableGivesBalancedMarkup) {
  std::mt19937 random(7);
  const auto pick = [&](auto... values) {
    const Variant all[] = {Variant(values)...};
    return all[random() % sizeof...(values)];
  };
  int drawn = 0;
  for (int i = 0; i < 3000; ++i) {
    const auto rows = static_cast<std::int32_t>(random() % 40);
    const auto columns = static_cast<std::int32_t>(random() % 5);
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
    const std::string_view style = kStyles[random() % std::size(kStyles)];
    SCOPED_TRACE(testing::Message() << "chart " << i << " " << style);
    std::string text;
    if (ErrorOf([&] { text = page.Draw(chart, style); })) continue;
    ++drawn;
    EXPECT_TRUE(IsBalanced(text));
    EXPECT_EQ(TagBalance().Follow(text), 0);
    EXPECT_EQ(Count(text, "nan") + Count(text, "inf"), 0);
    EXPECT_EQ(Count(text, "\"") % 2, 0);
  }
  EXPECT_GT(drawn, 1000);
}

}  // namespace
}  // namespace amortix2
