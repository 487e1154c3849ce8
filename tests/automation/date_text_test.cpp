#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <string>
#include <vector>

#include "amortix2/automation/conversion.h"
#include "support.h"

namespace amortix2 {
namespace {

struct TextOfDay {
  std::string_view text;
  CivilDate day;
};

// clang-format off
const std::vector<TextOfDay> kDateTexts{
    // month first, then whatever order makes a day
    {"1/31/2001", {2001, 1, 31}}, {"2/3/2001", {2001, 2, 3}}, {"31/1/2001", {2001, 1, 31}},
    {"2001-01-31", {2001, 1, 31}}, {"2001/31/1", {2001, 1, 31}}, {"1 31 2001", {2001, 1, 31}},
    {"1, 31, 2001", {2001, 1, 31}}, {"20/1/15", {2020, 1, 15}},
    // a month's name
    {"31 January 2001", {2001, 1, 31}}, {"January 31, 2001", {2001, 1, 31}}, {"31-Jan-2001", {2001, 1, 31}},
    {"jan 31 2001", {2001, 1, 31}}, {"2001 MAY 2", {2001, 5, 2}}, {"2001 2 May", {2001, 5, 2}},
    {"31Jan2001", {2001, 1, 31}}, {"2-Jan-01", {2001, 1, 2}}, {"Wed, 31 January 2001", {2001, 1, 31}},
    {"Wednesday January 31 2001", {2001, 1, 31}},
    // years of two digits
    {"1/31/0", {2000, 1, 31}}, {"1/31/29", {2029, 1, 31}}, {"1/31/30", {1930, 1, 31}},
    {"1/31/99", {1999, 1, 31}}, {"1/31/100", {100, 1, 31}},
    // a month and a year
    {"January 2001", {2001, 1, 1}}, {"1/2001", {2001, 1, 1}}, {"2001-01", {2001, 1, 1}},
    {"Jan 45", {1945, 1, 1}},
    // the ends of months and of the calendar
    {"2/29/2000", {2000, 2, 29}}, {"1/1/100", {100, 1, 1}}, {"12/31/9999", {9999, 12, 31}},
    // a time of day
    {"1/31/2001 10:30", {2001, 1, 31}}, {"1/31/2001 23:59:59", {2001, 1, 31}},
    {"1/31/2001 10:30:15 pm", {2001, 1, 31}}, {"1/31/2001 10PM", {2001, 1, 31}},
    {"10:30 1/31/2001", {2001, 1, 31}}, {" 1 / 31 / 2001 ", {2001, 1, 31}},
};
// clang-format on

TEST(DateText, IsReadByItsRules) {
  for (const TextOfDay& c : kDateTexts) {
    const auto date = ParseDate(c.text);
    ASSERT_TRUE(date) << c.text;
    EXPECT_EQ(ToCivil(*date), c.day) << c.text;
  }
}

// The form of schedules is read by a way of its own.
TEST(DateText, HasTheSameDaysWithAnySign) {
  for (const int year : {1, 29, 30, 99, 100, 999, 1000, 1900, 2000, 2024, 2026, 9999}) {
    for (int monthAndDay = 0; monthAndDay < 10000; monthAndDay += monthAndDay % 100 == 39 ? 61 : 1) {
      std::array<char, 32> text{};
      std::snprintf(text.data(), text.size(), "%02d-%02d-%04d", monthAndDay / 100, monthAndDay % 100, year);
      std::string other = text.data();
      std::ranges::replace(other, '-', '/');
      ASSERT_EQ(ParseDate(text.data()), ParseDate(other)) << other;
    }
  }
}

TEST(DateText, IsNothingElse) {
  for (const std::string_view text :
       {"", " ", "garbage", "36922", "20010131", "1.5", "1.31.2001", "January", "Mon", "10:30", "10 PM",
        // no such day; 257 and 65537 must not wrap round
        "2/29/2001", "2/30/2001", "4/31/2001", "0/1/2001", "1/0/2001", "13/14/15", "1/257/2001", "1/32/2001",
        "65537/1/2001", "1/31/10000", "1/31/4294967297",
        // a day whose year only the clock knows
        "1/31", "Jan 31", "31 Jan", "2/29",
        // marks out of place
        "/1/31/2001", "1//31/2001", "1/31/2001/", "1/31/2001-", "1/31/-2001", "1/31/2001,", "1/31/2001 1",
        "Sept 1 2001", "Jan. 31, 2001", "Jan Feb 2001", "1/31/2001 x", "2001-01-31T10:00",
        // no such time
        "1/31/2001 24:00", "1/31/2001 10:60", "1/31/2001 10:30:60", "1/31/2001 10:30:15:1",
        "1/31/2001 10:", "1/31/2001 10:30 11:30", "1/31/2001 10:30 p", "1/31/2001 PM"}) {
    EXPECT_FALSE(ParseDate(text)) << text;
  }
}

}  // namespace
}  // namespace amortix2
