#include "amortix2/strategy/investment_strategy.h"

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "amortix2/automation/array.h"
#include "amortix2/automation/error.h"
#include "amortix2/strategy/ansi_code.h"
#include "amortix2/strategy/asset_allocation.h"

namespace amortix2 {
namespace {

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

std::vector<double> ReadAnswers(const Array& survey) {
  std::vector<double> answers;
  for (std::int32_t i = 1; i <= survey.Dimension(1).upper; ++i) answers.push_back(ReadAnswer(survey.At(i)));
  return answers;
}

}  // namespace

void InvestmentStrategy::AssetAllocation(Number vInvAmount, const Variant& vSurvey, Variant& vStratNumber,
                                         Variant& vStratTitle, Variant& vStratDesc, Variant& vResult) const {
  const AllocationAnswer answer = AllocateAssets(vInvAmount, ReadAnswers(vSurvey.GetArray()));
  Array split({0, static_cast<std::int32_t>(answer.shares.size())}, {0, 1});
  std::int32_t row = 0;
  for (const AssetShare& share : answer.shares) {
    ++row;
    split.At(row, 0) = share.assetClass;
    split.At(row, 1) = share.amount;
  }
  Variant title = answer.title;
  Variant description = answer.description;

  vStratNumber = static_cast<double>(answer.profile);
  vStratTitle = std::move(title);
  vStratDesc = std::move(description);
  vResult = std::move(split);
}

}  // namespace amortix2
