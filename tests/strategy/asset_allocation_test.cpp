#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "amortix2/automation/array.h"
#include "amortix2/strategy/ansi_code.h"
#include "amortix2/strategy/investment_strategy.h"
#include "support.h"

namespace amortix2 {
namespace {

struct Advice {
  Variant number = "old", title = "old", description = "old", result = "old";

  void Ask(const Variant& amount, const Variant& survey) {
    InvestmentStrategy().AssetAllocation(amount, survey, number, title, description, result);
  }
};

// Answers from index 1 on; index 0 holds one that would change every outcome.
Variant Survey(const std::vector<Variant>& answers) {
  Array survey({0, static_cast<std::int32_t>(answers.size())});
  survey.At(0) = 1e6;
  for (std::size_t i = 0; i < answers.size(); ++i) survey.At(static_cast<std::int64_t>(i) + 1) = answers[i];
  return survey;
}

TEST(AssetAllocation, AnswersChooseTheProfile) {
  const struct {
    std::vector<Variant> answers;
    double profile;
  } rows[] = {
      // Answers below 4 count twice in the divisor.
      {{5, 5, 5}, 5},
      {{3, 3, 3}, 2},
      {{4, 4, 2}, 3},
      {{2, 2}, 1},
      {{5, 1}, 2},
      {{4}, 4},
      {{3.999}, 2},
      {{3.5, 3.4999}, 2},
      // Letters: the first character's code, capitals only.
      {{"E", "E", "E"}, 5},
      {{"Definitely", "D"}, 4},
      {{"a"}, 5},
      {{" E"}, 1},
      // What reads as 0 counts by its text: 0 is -16, False 6, a date its month's digit.
      {{0, 5, 5, 5, 5, 5, 5}, 2},
      {{"0", 5, 5, 5, 5, 5, 5}, 2},
      {{false, -1, 6, 6}, 3},
      {{Date{36526}, 20, 5}, 3},
      // Codes above 127 are those of code page 1252: the euro's 128 counts as 64; what it lacks is "?", -1.
      {{"€", -58, 4, 4}, 3},
      {{"Ω", 5, 5}, 2},
      // Any number goes into the average, only the outcome is clamped.
      {{-100}, 1},
      {{1e300, -1e300, 4}, 1},
  };
  for (const auto& row : rows) {
    Advice advice;
    advice.Ask(1000, Survey(row.answers));
    EXPECT_EQ(advice.number, Variant(row.profile)) << "row " << &row - rows;
  }
}

TEST(AssetAllocation, CodesOfTheCodePage) {
  const std::pair<const char*, int> rows[] = {{"€", 0x80}, {"Ÿ", 0x9F}, {"™x", 0x99}, {"\u00A0", 0xA0},
                                              {"ÿ", 0xFF}, {"Ā", '?'},  {"😀", '?'},   {"\xE2", '?'}};
  for (const auto& [text, code] : rows) EXPECT_EQ(FirstAnsiCode(text), code) << text;
}

TEST(AssetAllocation, ProfilesSplitTheAmount) {
  const struct {
    std::vector<Variant> answers;
    std::string title;
    std::size_t describedIn;  // characters
    double amounts[3];        // of 1000
  } rows[] = {
      {{1}, "Current Income", 116, {840, 80, 80}},
      {{3}, "Capital Preservation", 164, {500, 200, 300}},
      {{4, 4, 2}, "Moderate Growth", 185, {200, 400, 400}},
      {{4}, "Wealth Building", 216, {100, 650, 250}},
      {{5}, "Aggressive Growth", 238, {80, 840, 80}},
  };
  for (const auto& row : rows) {
    Advice advice;
    advice.Ask("$1,000", Survey(row.answers));
    EXPECT_EQ(advice.title, Variant(row.title));
    EXPECT_TRUE(advice.description.GetString().starts_with("The " + row.title + " profile "));
    EXPECT_EQ(advice.description.GetString().size(), row.describedIn);

    Array expected({0, 3}, {0, 1});
    for (int i = 1; i <= 3; ++i) expected.At(i, 1) = row.amounts[i - 1];
    expected.At(1, 0) = "Short Term";
    expected.At(2, 0) = "Stocks";
    expected.At(3, 0) = "Bonds";
    EXPECT_EQ(advice.result, Variant(expected)) << row.title;
    advice.Ask(kNull, Survey(row.answers));
    EXPECT_EQ(advice.result.GetArray().At(2, 1), Variant(0.0));
  }
}

TEST(AssetAllocation, ErrorsLeaveTheResults) {
  const Variant table = Array({0, 2}, {0, 2});
  const struct {
    Variant amount;
    Variant survey;
    ErrorNumber error;
  } rows[] = {
      {1000, 5, ErrorNumber::TypeMismatch},
      {1000, "ABC", ErrorNumber::TypeMismatch},
      {1000, Survey({}), ErrorNumber::Overflow},
      {1000, Array(Bounds{2, 3}), ErrorNumber::SubscriptOutOfRange},
      {1000, table, ErrorNumber::SubscriptOutOfRange},
      {1000, Survey({5, Variant()}), ErrorNumber::InvalidProcedureCall},
      {1000, Survey({5, ""}), ErrorNumber::InvalidProcedureCall},
      {1000, Survey({5, kNull}), ErrorNumber::InvalidProcedureCall},
      {1000, Survey({5, kMissing}), ErrorNumber::InvalidProcedureCall},
      {1000, Survey({5, table}), ErrorNumber::TypeMismatch},
      {1000, Survey({1e308, 1e308}), ErrorNumber::Overflow},
      {1e307, Survey({5}), ErrorNumber::Overflow},
  };
  for (const auto& row : rows) {
    Advice advice;
    EXPECT_EQ(ErrorOf([&] { advice.Ask(row.amount, row.survey); }), row.error) << "row " << &row - rows;
    for (const Variant& each : {advice.number, advice.title, advice.description, advice.result}) {
      EXPECT_EQ(each, Variant("old"));
    }
  }
}

}  // namespace
}  // namespace amortix2
