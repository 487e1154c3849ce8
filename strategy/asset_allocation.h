#pragma once

// The asset allocation advisor: a short risk questionnaire becomes one of five investment profiles, from 1,
// the most cautious, to 5, the most aggressive, and the profile splits an amount over three asset classes.
// Keeps nothing between calls.

#include <array>
#include <span>
#include <string_view>

namespace amortix2 {

struct AssetShare {
  std::string_view assetClass;  ///< "Short Term", "Stocks", "Bonds"
  int percent = 0;              ///< of the amount; the three sum to 100
  double amount = 0;
};

struct AllocationAnswer {
  int profile = 0;  ///< 1 to 5
  std::string_view title;
  std::string_view description;
  std::array<AssetShare, 3> shares;
};

/// Chooses the profile by the average of the answers, usually 1 to 5 each, and splits `amount`. Answers below
/// 4 weigh double in the divisor of the average, which pulls towards the cautious profiles. Raises Overflow
/// when there is no answer at all and when a number becomes too large.
///
/// Example: the answers 3, 3, 3 average 9/6 and give profile 2, "Capital Preservation".
AllocationAnswer AllocateAssets(double amount, std::span<const double> answers);

}  // namespace amortix2
