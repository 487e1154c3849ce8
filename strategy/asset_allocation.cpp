#include "amortix2/strategy/asset_allocation.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <string_view>

#include "amortix2/automation/checked.h"

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

// The number of the profile, from 1. Without answers the average is 0/0, which overflows.
int ChooseProfile(std::span<const double> answers) {
  double total = 0;
  double weight = 0;
  for (const double answer : answers) {
    weight += answer < kFirstBoldAnswer ? 2 : 1;
    total += answer;
  }
  return static_cast<int>(
      std::clamp(std::floor(Finite(total / weight) + 0.5), 1.0, double{kProfiles.size()}));
}

}  // namespace

AllocationAnswer AllocateAssets(double amount, std::span<const double> answers) {
  const int chosen = ChooseProfile(answers);
  const Profile& profile = kProfiles[static_cast<std::size_t>(chosen) - 1];
  AllocationAnswer answer{chosen, profile.title, profile.description, {}};
  for (std::size_t i = 0; i < kClassCount; ++i) {
    const int percent = profile.percentages[i];
    answer.shares[i] = {kClassNames[i], percent, Finite(percent * amount) / 100};
  }
  return answer;
}

}  // namespace amortix2
