#include "amortix2/automation/number_format.h"

#include <gtest/gtest.h>

#include <vector>

#include "support.h"

namespace amortix2 {
namespace {

struct FormatCase {
  double value;
  std::string pattern;
  std::string expected;
};

const std::string kAmount = "$#,#####################";
const std::string kLabel = "#,#################0";

// clang-format off
const std::vector<FormatCase> kFormats{
    // halves away from zero, on fifteen digits
    {0.5, "0", "1"}, {1.5, "0", "2"}, {2.5, "0", "3"}, {-0.5, "0", "-1"}, {-2.5, "0", "-3"},
    {0.49999999999999994, "0", "1"}, {0.4999999999999, "0", "0"}, {1.005, "0.00", "1.01"},
    {2.675, "0.00", "2.68"}, {-2.675, "0.00", "-2.68"}, {999.995, "0.00", "1000.00"}, {0.05, "0.0", "0.1"},
    {0.04, "0.0", "0.0"},
    // amounts and labels
    {1234.25, kAmount, "$1,234"}, {-1234, kAmount, "-$1,234"}, {0, kAmount, "$"}, {0, kLabel, "0"},
    {1e6, kLabel, "1,000,000"}, {-999999.5, kLabel, "-1,000,000"}, {100, kLabel, "100"},
    {-0.3, kLabel, "-0"},
    // places
    {5, "000", "005"}, {1234, "0", "1234"}, {0.5, "#.##", ".5"}, {5, "0.##", "5."}, {0, "#.##", "."},
    {12.5, ".00", "12.50"}, {0.25, "0.0##", "0.25"}, {5, "#0#", "05"}, {12, "#,##0000000", "0,000,012"},
    {12345, "00-00", "123-45"}, {5551234, "(###) ###-####", "() 555-1234"}, {1, "0.0.0", "1.0.0"},
    // scaling
    {0.1255, "0.0%", "12.6%"}, {0.5, "#,##0%%", "5,000%%"}, {1234567, "#,##0,", "1,235"},
    {1234567, "0.0,", "1234567.0,"}, {1500000, "0,,.0", "1.5"}, {12345, "0.00E+00", "1.23E+04"},
    {-0.00123, "0.0e-0", "-1.2e-3"}, {99999, "0.0E+0", "1.0E+5"}, {0, "0.0E+00", "0.0E+00"},
    {12345, "##0.0E+0", "123.5E+2"}, {5, "0E", "5E"},
    // sections
    {5, "0;(0);zero", "5"}, {-5, "0;(0);zero", "(5)"}, {0, "0;(0);zero", "zero"}, {0, "0;(0)", "0"},
    {-5, "0;;zero", "-5"}, {-5, "0;", "-5"}, {5, "0;1;2;3;4", "5"}, {2.5, ";(0)", "2.5"},
    {-2.5, "", "-2.5"},
    // text
    {5, "\"a;0\"0", "a;05"}, {5, "\\#0", "#5"}, {5, "0 \"x", "5 x"}, {5, "0\\", "5"},
    {5, "about 0 \xE2\x82\xAC", "about 5 \xE2\x82\xAC"}, {-5, "-", "--"},
    // more places, text and exponent digits than any number has
    {-1234, std::string(600, '#') + ".0", "-1234.0"}, {7, std::string(300, '0'), std::string(299, '0') + "7"},
    {5, "0" + std::string(600, 'x'), "5" + std::string(600, 'x')},
    {50, "0E+" + std::string(300, '0'), "5E+" + std::string(299, '0') + "1"},
    // magnitudes
    {1e20, "#,##0", "100,000,000,000,000,000,000"}, {1.23456789012345678e17, "0", "123456789012346000"},
    {1e308, "0", "1" + std::string(308, '0')}, {1e-308, "0.00", "0.00"},
    {1e-308, "0." + std::string(308, '0'), "0." + std::string(307, '0') + "1"},
};
// clang-format on

TEST(NumberFormat, FollowsItsPattern) {
  for (const FormatCase& c : kFormats)
    EXPECT_EQ(NumberPattern(c.pattern).Format(c.value), c.expected) << c.value << " by " << c.pattern;
  const NumberPattern figure("#,##0.##");
  for (const auto& [value, expected] :
       {std::pair(-0.001, "0"), {-0.01, "-0.01"}, {-1200.0, "-1,200"}, {2.5, "2.5"}})
    EXPECT_EQ(figure.FormatFigure(value), expected);
}

// Every short pattern of the special characters, on numbers of every size: the text has at most 309 digits,
// 102 commas and the little that the pattern adds, and a long pattern costs no more than its length.
TEST(NumberFormat, EveryPatternIsSafe) {
  constexpr std::string_view kCharacters = "#0.,%E+;\"\\x";
  constexpr std::size_t kPatterns = std::size_t{11} * 11 * 11 * 11;
  std::string pattern;
  std::size_t longest = 0;
  for (std::size_t code = 0; code < kPatterns; ++code) {
    pattern.clear();
    for (std::size_t rest = code; rest > 0; rest /= kCharacters.size()) {
      pattern += kCharacters[rest % kCharacters.size()];
    }
    for (const double value : {0.0, -0.5, 1234567.891, -1e308, 5e-324}) {
      longest = std::max(longest, NumberPattern(pattern).Format(value).size());
    }
  }
  EXPECT_LE(longest, 309U + 102U + 8U);
  for (const char c : kCharacters) {
    EXPECT_LE(NumberPattern(std::string(100'000, c)).Format(1e308).size(), 1'000'000U) << c;
  }
  EXPECT_EQ(ErrorOf([] { NumberPattern("0").Format(1e308 * 10); }), ErrorNumber::Overflow);
}

}  // namespace
}  // namespace amortix2
