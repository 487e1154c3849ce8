#include "amortix2/charts/markup.h"

#include <gtest/gtest.h>

#include <string>

namespace amortix2 {
namespace {

template <class... Parts>
std::string Written(const Parts&... parts) {
  MarkupWriter out(false);
  out.Line(parts...);
  return std::string(out.Finish().At(1).GetString());
}

std::string Text(std::string_view text) { return std::string(text); }

TEST(Markup, PlaceholdersAndTexts) {
  const struct {
    std::string written, expected;
  } cases[] = {
      // The program's literals.
      {Written("height=%"_m, 300, "% "_m), R"(height="300" )"},
      {Written("100%% sure"_m), "100% sure"},
      {Written("%%%0%%%"_m), R"(%"0%")"},
      {Written("odd % end %"_m), R"(odd " end ")"},
      // The page's texts never become quotes.
      {Written("alt=%"_m, Text(""), "%"_m), R"(alt="")"},
      {Written("src=%"_m, Text("a%20b.gif"), "%"_m), R"(src="a%20b.gif")"},
      {Written(Text("100%"), Text("100%%"), Text("%%%")), "100%100%%%"},
      {Written(Text("<b>\"&</b>")), "<b>\"&</b>"},
      // Numbers.
      {Written(-7, SignedNumber{300}, SignedNumber{0}, SignedNumber{-5}), "-7 300 0-5"},
  };
  for (const auto& c : cases) EXPECT_EQ(c.written, c.expected);
}

TEST(Markup, LinesAreAnArray) {
  for (const int count : {0, 1, 99, 100, 101, 350}) {
    MarkupWriter out(false);
    for (int i = 1; i <= count; ++i) {
      out.Append("<"_m, i);
      out.Line(">"_m);
    }
    const Array lines = out.Finish();
    ASSERT_EQ(lines.Dimension(1), (Bounds{0, count + 1})) << count;
    EXPECT_EQ(lines.At(0), Variant());
    for (int i = 1; i <= count; ++i) EXPECT_EQ(lines.At(i), Variant("<" + std::to_string(i) + ">"));
    EXPECT_EQ(lines.At(count + 1), Variant());
  }
  MarkupWriter unfinished(false);
  unfinished.Append("rest"_m);
  EXPECT_EQ(unfinished.Finish().At(1), Variant("rest"));
}

TEST(Markup, BrokenNestingIsMarkedWhenChecked) {
  const std::string mark(kSyncError);
  const struct {
    std::string_view fragment, open;  // what is open after it, behind the mark
    bool broken;
  } steps[] = {
      {"<TABLE BORDER=%0%>", "T", false},
      {"<TD>", "TD", true},  // a cell outside a row
      {"</TD><TR><TD>", "TRD", false},
      {"<IMG alt=%<TR>%></td>", "TRD", false},  // in quotes, and in lower case
      {"</TR>", "TRD", true},
      {"<TABLE><TR>", "TRDTR", false},
      {"</TR></TABLE></TD></TR></TABLE>", "", false},
      {"</TABLE>", "", true},
      {"<TD>", "D", false},  // the outermost stands alone
  };
  TagBalance tags;
  for (const auto& step : steps) {
    std::string quoted(step.fragment);
    for (char& c : quoted) c = c == '%' ? '"' : c;
    EXPECT_EQ(tags.Follow(quoted) > 0, step.broken) << step.fragment;
    EXPECT_EQ(tags.OpenElements(), step.open.empty() ? "" : mark + std::string(step.open)) << step.fragment;
  }
  MarkupWriter out(true);
  out.Append("<TABLE>"_m);
  out.Line("<TD>"_m);
  EXPECT_EQ(out.Finish().At(1).GetString(), "<TABLE>" + mark + "<TD>");
}

}  // namespace
}  // namespace amortix2
