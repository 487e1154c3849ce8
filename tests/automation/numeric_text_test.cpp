#include <gtest/gtest.h>

#include <vector>

#include "amortix2/automation/conversion.h"
#include "property.h"
#include "support.h"

namespace amortix2 {
namespace {

struct NumericText {
  std::string text;
  std::optional<double> value;
};

// clang-format off
const std::vector<NumericText> kNumericTexts{
    // digits, one point
    {"0", 0}, {"007", 7}, {"12.5", 12.5}, {".5", 0.5}, {"5.", 5}, {".", {}}, {"", {}}, {" ", {}},
    {"1.2.3", {}}, {"1 2", {}},
    // blanks around
    {" \t5\r\n", 5}, {"- 5", -5}, {"5 -", -5},
    // one sign of a kind, in front or behind
    {"-5", -5}, {"+5", 5}, {"5-", -5}, {"5+", 5}, {"--5", {}}, {"-5-", {}}, {"-", {}},
    // parentheses
    {"(5)", -5}, {"( 5 )", -5}, {"-(5)", -5}, {"(-5)", -5}, {"(5", {}}, {"5)", {}}, {"((5))", {}},
    {"()", {}},
    // the currency symbol
    {"$5", 5}, {"-$5", -5}, {"$-5", -5}, {"($5)", -5}, {"$(5)", -5}, {"5$", 5}, {"$$5", {}}, {"$", {}},
    {"5%", {}},
    // thousands separators
    {"1,234,567.5", 1234567.5}, {"1,2,3", 123}, {"1,,2", 12}, {"1,", 1}, {"1.5,2", 1.52}, {",1", {}},
    {",", {}},
    // exponents
    {"1e5", 1e5}, {"1E-5", 1e-5}, {"1.5d+2", 150}, {"2D3", 2000}, {"1e", {}}, {"1e+", {}}, {"e5", {}},
    {"1e5.5", {}}, {"1e 5", {}},
    // the range of doubles
    {"1.7976931348623157e308", 1.7976931348623157e308}, {"1e309", {}}, {"-1e309", {}}, {"0.1e310", {}},
    {"0.01e310", 1e308}, {"1e-400", 0}, {"1e-99999999999999999999", 0}, {"1e99999999999999999999", {}},
    {"0e99999999999999999999", 0}, {"1" + std::string(400, '0'), {}},
    {"1" + std::string(400, '0') + "e-400", 1}, {"." + std::string(400, '0') + "1e401", 1},
    // the bits of an Integer or a Long
    {"&HFF", 255}, {"&hff", 255}, {"&H7FFF", 32767}, {"&HFFFF", -1}, {"&H8000", -32768}, {"&H10000", 65536},
    {"&HFFFFFFFF", -1}, {"&H80000000", -2147483648.0}, {"&H100000000", {}}, {"&O17", 15}, {"&o177777", -1},
    {"-&H10", -16}, {"&H", {}}, {"&O8", {}}, {"&HG", {}}, {"&17", {}}, {"&H1.5", {}},
    // what other readers take
    {"inf", {}}, {"-infinity", {}}, {"nan", {}}, {"0x10", {}}, {"0x1p3", {}}, {"1f", {}}, {"True", {}},
    {"1/2", {}}, {"\xD9\xA1", {}}, {std::string("1\0", 2), {}},
};
// clang-format on

TEST(NumericText, IsReadByItsRules) {
  for (const NumericText& c : kNumericTexts) EXPECT_EQ(ParseNumber(c.text), c.value) << c.text;
}

TEST(NumericText, IsWrittenWithFifteenDigits) {
  // clang-format off
  const std::vector<std::pair<double, std::string>> cases{
      {0, "0"}, {-0.0, "0"}, {-3, "-3"}, {0.1, "0.1"}, {100, "100"}, {1.0 / 3, "0.333333333333333"},
      {-2.0 / 3, "-0.666666666666667"}, {999999999999999, "999999999999999"}, {1e15, "1E+15"},
      {0.0001, "0.0001"}, {0.00012, "0.00012"}, {0.00001, "1E-05"}, {1.5e-7, "1.5E-07"}, {1e20, "1E+20"},
      {-1.25e100, "-1.25E+100"}, {5e-324, "4.94065645841247E-324"},
      {1.7976931348623157e308, "1.79769313486232E+308"},
      // halves at the fifteenth digit
      {100000000000000.5, "100000000000001"}, {1000000000000005, "1.00000000000001E+15"},
      {1000000000000015, "1.00000000000002E+15"}, {999999999999999.5, "1E+15"},
  };
  // clang-format on
  for (const auto& [value, text] : cases) EXPECT_EQ(NumberText(value), text);
  EXPECT_EQ(ErrorOf([] { NumberText(1e308 * 10); }), ErrorNumber::Overflow);
}

TEST(NumericText, ReadsBackWhatItWrites) {
  ForAll(Cases(10000, 100000), [](Random& random) {
    const double written = static_cast<double>(random.Below(2'000'000'000) - 1'000'000'000) / 100;
    ASSERT_EQ(ParseNumber(NumberText(written)), written);
  });
}

}  // namespace
}  // namespace amortix2
