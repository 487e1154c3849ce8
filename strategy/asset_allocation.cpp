#include "amortix2/strategy/asset_allocation.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "amortix2/automation/array.h"
#include "amortix2/automation/checked.h"
#include "amortix2/automation/conversion.h"
#include "amortix2/automation/error.h"
#include "amortix2/strategy/ansi_code.h"

namespace amortix2 {
namespace {

constexpr std::size_t kClassCount = 3;

constexpr std::array<std::string_view, kClassCount> kClassNames{"Short Term", "Stocks", "Bonds"};

struct Profile {
  std::string_view title;
  std::string_view description;
  std::array<int, kClassCount> percentages;  // of the amount, by asset class; they sum to 100
};

// From the most cautious to the most aggressive. Doubled and trailing blanks belong to the texts.
constexpr std::array<Profile, 5> kProfiles{{
    {"Current Income",
     "The Current Income profile offers stability and safety.  "
     "However, it provides little protection against inflation.  ",
     {84, 8, 8}},
    {"Capital Preservation",
     "The Capital Preservation profile includes many short term "
     "investments for liquidity. Investing in some growth "
     "products, it also offers limited inflation protection.",
     {50, 20, 30}},
    {"Moderate Growth",
     "The Moderate Growth profile features stock funds that "
     "provide inflation protection.  Its balance limits the "
     "amount of short run fluctuations that are common in "
     "more aggressive profiles.",
     {20, 40, 40}},
    {"Wealth Building",
     "The Wealth Building profile is centered in growth and "
     "equity investments.  For investors with the time and "
     "tolerance, this profile should outpace inflation while "
     "demonstrating wide value fluctuation in the short run.",
     {10, 65, 25}},
    {"Aggressive Growth",
     "The Aggressive Growth profile will provide maximum asset "
     "growth.  With reward comes investment risk.  This profile "
     "is for investors prepared to face potential loss.  It is "
     "ideal if you have many years before you need access to "
     "your funds.",
     {8, 84, 8}},
}};

constexpr double kFirstBoldAnswer = 4;  // answers below it are cautious and weigh double

double ReadAnswer(const Variant& answer) {
  const double number = NumericOrZero(answer);
  if (number != 0) return number;
  if (answer.Type() == VariantType::Null || answer.Type() == VariantType::Missing) {
    Raise(ErrorNumber::InvalidProcedureCall);
  }
  const std::string text = ToText(answer);
  if (text.empty()) Raise(ErrorNumber::InvalidProcedureCall);
  return FirstAnsiCode(text) + 1 - 'A';
}

// The number of the profile, from 1. Without answers the average is 0/0, which overflows.
double ChooseProfile(const Array& answers) {
  double total = 0;
  double weight = 0;
  for (std::int32_t i = 1; i <= answers.Dimension(1).upper; ++i) {
    const double answer = ReadAnswer(answers.At(i));
    weight += answer < kFirstBoldAnswer ? 2 : 1;
    total += answer;
  }
  return std::clamp(std::floor(Finite(total / weight) + 0.5), 1.0, double{kProfiles.size()});
}

Array Split(double amount, const Profile& profile) {
  Array split({0, static_cast<std::int32_t>(kClassCount)}, {0, 1});
  for (std::size_t i = 0; i < kClassCount; ++i) {
    const auto row = static_cast<std::int64_t>(i) + 1;
    split.At(row, 0) = kClassNames[i];
    split.At(row, 1) = Finite(profile.percentages[i] * amount) / 100;
  }
  return split;
}

}  // namespace

void AllocateAssets(const Variant& amount, const Variant& survey, Variant& number, Variant& title,
                    Variant& description, Variant& result) {
  const double chosen = ChooseProfile(survey.GetArray());
  const Profile& profile = kProfiles[static_cast<std::size_t>(chosen) - 1];
  Variant split = Split(NumericOrZero(amount), profile);
  Variant profileTitle = profile.title;
  Variant profileDescription = profile.description;

  number = chosen;
  title = std::move(profileTitle);
  description = std::move(profileDescription);
  result = std::move(split);
}

}  // namespace amortix2
