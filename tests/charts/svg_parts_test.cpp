// What SVG pictures are made of: scales, widths of texts, and markup.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "amortix2/automation/date.h"
#include "amortix2/charts/escaped_markup.h"
#include "amortix2/charts/svg_scale.h"
#include "amortix2/charts/text_width.h"

namespace amortix2 {
namespace {

// Steps of 1, 2 or 5, of which eight reach across; worked out on paper.
TEST(SvgScale, AxisCloseAroundValues) {
  const double rows[][4] = {{203, 297, 200, 300}, {-3, 17, -5, 20},         {5, 5, 4.4, 5.6},
                            {0, 0, -1, 1},        {-290, -210, -290, -210}, {1, 8, 1, 8}};
  for (const auto& [low, high, bottom, top] : rows) {
    const AxisRange axis = FitAxis(low, high);
    EXPECT_DOUBLE_EQ(axis.bottom, bottom) << low;
    EXPECT_DOUBLE_EQ(axis.top, top) << low;
    EXPECT_DOUBLE_EQ(axis.step, (top - bottom) / 10) << low;
  }
}

TEST(SvgScale, RoundValuesAndDays) {
  const struct {
    double low, high;
    int most;
    std::vector<double> values;
  } cases[] = {
      {0, 300, 8, {0, 50, 100, 150, 200, 250, 300}},
      {0, 1, 5, {0, 0.2, 0.4, 0.6, 0.8, 1}},
      {-47, 140, 8, {0, 50, 100}},
      {0.1, 0.3, 2, {0.1, 0.2, 0.3}},
      {1e300, 3e300, 2, {1e300, 2e300, 3e300}},
      {7, 7, 3, {7}},
  };
  for (const auto& c : cases) {
    int decimals = 0;
    EXPECT_EQ(RoundValues(c.low, c.high, c.most, decimals), c.values) << c.low;
  }
  EXPECT_EQ(AxisNumber(1e15, 0), "1E+15");
  EXPECT_EQ(AxisNumber(-999999999999999, 0) + " " + AxisNumber(1234.5, 2), "-999,999,999,999,999 1,234.50");
  EXPECT_EQ(AxisNumber(0.5, 12) + " " + AxisNumber(0.5, 13), "0.500000000000 0.5");
  const auto names = [](const Date& from, const Date& to, int most = 6) {
    std::string text;
    for (const AxisTick& tick : DateTicks(from.serial, to.serial, most)) text += tick.text + " ";
    return text;
  };
  EXPECT_EQ(names(MakeDate(2001, 1, 30), MakeDate(2001, 2, 3)),
            "2001-01-30 2001-01-31 2001-02-01 2001-02-02 2001-02-03 ");
  EXPECT_EQ(names(MakeDate(2001, 2, 2), MakeDate(2002, 1, 1)),
            "Mar 2001 May 2001 Jul 2001 Sep 2001 Nov 2001 Jan 2002 ");
  EXPECT_EQ(names(MakeDate(2001, 1, 1), MakeDate(2001, 7, 4)), "Jan 2001 Mar 2001 May 2001 Jul 2001 ");
  EXPECT_EQ(names(MakeDate(1999, 6, 1), MakeDate(2021, 1, 1)), "2000 2005 2010 2015 2020 ");
  for (const int years : {1, 2, 5, 10, 20, 50, 100, 200, 500, 1000, 2000}) {
    std::string expected;
    for (int i = 0; i < 4; ++i) expected += std::to_string(2000 + i * years) + " ";
    EXPECT_EQ(names(MakeDate(2000, 1, 1), MakeDate(2000 + 3 * years, 1, 1), 4), expected);
  }
}

TEST(TextWidth, WhatIsNoCharacterCountsByItsBytes) {
  using namespace std::literals;
  for (const auto text : {"\xE2\x82\xAC"sv.substr(0, 2), "\x80"sv, "\xC1\x80"sv, "\xF5\x80\x80\x80"sv,
                          "\xE0\x80\x80"sv, "\xED\xA0\x80"sv, "\xF4\x90\x80\x80"sv, "\xC3z"sv})
    EXPECT_TRUE(FirstCodePoint(text).length == 1 && !FirstCodePoint(text).isValid) << text;
  EXPECT_EQ(FirstCodePoint("\xE2\x82\xAC").value, U'\u20AC');
}

TEST(EscapedMarkup, WhatMayNotStandInXmlIsReplaced) {
  const std::string replaced = "\xEF\xBF\xBD";
  std::string text;
  AppendEscaped(text, "\t\x01\x7F\xC2\x80\xC2\x9F\xC2\xA0\xEF\xBF\xBE<");
  EXPECT_EQ(text, "\t" + replaced + replaced + replaced + replaced + "\xC2\xA0" + replaced + "&lt;");
}

TEST(EscapedMarkup, NumbersHaveTwoDecimals) {
  std::string text;
  for (const double number : {0.0, -0.001, 0.005, 1.5, -2.25, 100.0, 1e300})
    AppendNumber(text += ' ', number);
  EXPECT_EQ(text, " 0 0 0.01 1.5 -2.25 100 1000000000000");
  EXPECT_EQ(Wrap("one two three four", 46, 10, 2),
            (std::vector<std::string>{"one two", "three f\xE2\x80\xA6"}));
}

}  // namespace
}  // namespace amortix2
