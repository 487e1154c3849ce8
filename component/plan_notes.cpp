// The notes that are special to savings, retirement and the survey: a table of small rules at the end. Each
// looks at inputs and results only, so that it is true of the call whatever the call was.

#include <algorithm>
#include <cmath>
#include <string>

#include "amortix2/automation/array.h"
#include "amortix2/automation/conversion.h"
#include "amortix2/component/note_writer.h"
#include "amortix2/engine/frequency.h"

namespace amortix2 {
namespace {

/// A plan whose term is looked for: where it starts, where it is to end, and where one period brings it.
struct FirstPeriod {
  double start;
  double goal;
  double after;

  bool ComesCloser() const { return std::abs(goal - after) <= std::abs(goal - start) - 0.0001; }
  bool IsPast() const { return start < goal ? after > goal : after < goal; }
};

FirstPeriod Begin(const NoteWriter& notes, double goal, double change, enumFrequencyType frequency) {
  const double start = notes.Number("vCurrBal");
  const double growth = 1 + notes.Number("vIntRate") / (100 * PeriodsPerYear(frequency));
  return {start, goal, Cents(start * growth) + change};
}

enumFrequencyType Frequency(const NoteWriter& notes) {
  const double code = std::nearbyint(notes.Number("vFreq"));
  return IsFrequency(code) ? static_cast<enumFrequencyType>(code) : sameasother;
}

void Goal(NoteWriter& notes, double goal, enumFrequencyType frequency) {
  if (FoundInput(notes) != "vPeriod") return;
  const FirstPeriod first = Begin(notes, goal, notes.Number("vPayment"), frequency);
  if (first.start == goal) {
    notes.About("goal-passed", "vEndingBal", "The balance is at the goal from the start.");
  } else if (first.IsPast()) {
    notes.About("goal-passed", "vEndingBal", "The first period already carries the balance past the goal.");
  } else if (!first.ComesCloser()) {
    notes.About("goal-out-of-reach", "vEndingBal",
                "The plan comes no closer to the goal, so that no term is found.");
  }
}

void SavingsGoal(NoteWriter& notes) { Goal(notes, notes.Number("vEndingBal"), Frequency(notes)); }

bool IsTaxed(const NoteWriter& notes) {
  const Variant& kind = notes.In().At("vTyp");
  return kind.Type() == VariantType::String && kind.GetString() == "T";
}

void RetirementGoal(NoteWriter& notes) {
  const double tax = IsTaxed(notes) ? notes.Number("vIncTaxRate") : 0;
  if (tax >= 100) return;
  Goal(notes, tax == 0 ? notes.Number("vEndingBal") : Cents(notes.Number("vEndingBal") / (1 - tax / 100)),
       annualMode);
  if (!IsTaxed(notes) && notes.Number("vIncTaxRate") != 0) {
    notes.OnInput("tax-not-used", "vIncTaxRate", "is not used: the account is not taxed on withdrawal");
  }
}

void Spending(NoteWriter& notes) {
  if (FoundInput(notes) != "vPeriod") return;
  const FirstPeriod first = Begin(notes, 0, -notes.Number("vPayment"), Frequency(notes));
  if (first.IsPast()) {
    notes.OnInput("goal-passed", "vPayment", "is more than there is at the first withdrawal");
  } else if (!first.ComesCloser()) {
    notes.About("lasts-for-ever", "vPayment", "The interest covers it, so that the balance lasts for ever.");
  }
}

/// A plan of more years than a life: months given where years or yearly periods count.
void LongPlan(NoteWriter& notes) {
  constexpr double kLongLife = 80;
  const Unit unit = FindParameter(notes.Member(), "vPeriod")->unit;
  const double perYear = unit == Unit::Periods ? PeriodsPerYear(Frequency(notes)) : 1;
  const double years = notes.Number("vPeriod") / perYear;
  if (years <= kLongLife) return;
  notes.OnInput("long-plan", "vPeriod",
                "counts " + std::string(unit == Unit::Periods ? "periods of the frequency" : "years") + ": " +
                    NumberText(std::floor(years)) + " years");
}

void Dates(NoteWriter& notes) {
  const auto day = [&](std::string_view name) {
    const Variant& given = notes.In().At(name);
    return IsDate(given) ? ToDate(given) : notes.Today();
  };
  if (day("vEndingDate") < day("vStartDate")) {
    notes.About("end-before-start", "vEndingDate", "Lies before the start.");
  } else if (day("vEndingDate") == day("vStartDate")) {
    notes.About("end-is-start", "vEndingDate", "Is the day of the start, so that nothing grows.");
  }
}

/// A rate was looked for, and at the rate found the plan ends elsewhere than at its goal.
void RateReaches(NoteWriter& notes) {
  const Variant* table = notes.Out().Find({.parameter = "vDetArray"});
  if (!table || table->Type() != VariantType::Array) return;
  const std::int32_t last = table->GetArray().Dimension(1).upper;
  const Variant* end = notes.Out().Find({.parameter = "vDetArray", .indices = 2, .row = last, .column = 5});
  const double goal = notes.Number("vEndingBal");
  if (!end || std::abs(NumericOrZero(*end) - goal) <= std::max(1.0, std::abs(goal) * 0.01)) return;
  notes.About("no-rate", "vIntRate",
              "No rate was found that reaches the goal: at this one the plan comes to " +
                  MoneyText(NumericOrZero(*end)) + ".");
}

void Surplus(NoteWriter& notes) {
  const bool isDeposit = FindParameter(notes.Member(), "vPayment")->role == Role::Result;
  const std::string_view found = isDeposit ? "vPayment" : "vCurrBal";
  const std::optional<double> amount = notes.Out().Number(found);
  if (!amount || *amount >= 0) return;
  notes.About("negative-result", found,
              isDeposit ? "Negative: the balance alone comes to more than the goal."
                        : "Negative: the deposits alone come to more than the goal.");
}

// ---- The survey

void Answers(NoteWriter& notes) {
  const ParameterInfo& survey = *FindParameter(notes.Member(), "vSurvey");
  const Variant& given = notes.In().At("vSurvey");
  if (given.Type() != VariantType::Array || given.GetArray().Rank() != 1) return;
  const Array& answers = given.GetArray();
  const Bounds bounds = answers.Dimension(1);
  for (std::int64_t i = bounds.lower; i <= bounds.upper; ++i) {
    const Variant& answer = answers.At(i);
    if (!IsGiven(answer) || answer.Type() == VariantType::Array) continue;
    const double number = NumericOrZero(answer);
    const std::string text = ToText(answer);
    const bool isLetter = number == 0 && text.front() >= 'A' && text.front() <= 'E';
    if (i < 1) {
      notes.OnInput("answer-not-read", survey, answer, "is not read: answers count from index 1 on");
    } else if (!isLetter && (number < 1 || number > 5)) {
      notes.OnInput("answer-off-scale", survey, answer, "is no answer from A to E or 1 to 5");
    }
  }
}

constexpr Rule kRules[] = {
    {"AmountSavedCalculator", LongPlan},
    {"SavingsRateCalculator", LongPlan},
    {"SavingsRateCalculator", RateReaches},
    {"StartingAmountCalculator", LongPlan},
    {"StartingAmountCalculator", Surplus},
    {"DepositCalculator", LongPlan},
    {"DepositCalculator", Surplus},
    {"PresentValueCalculator", Dates},
    {"FutureValueCalculator", Dates},
    {"YieldCalculator", Dates},
    {"YieldCalculator", RateReaches},
    {"SimpleSavingsCalculator", SavingsGoal},
    {"SimpleSavingsCalculator", LongPlan},
    {"IRACalculator", RetirementGoal},
    {"IRACalculator", LongPlan},
    {"SpendingCalculator", Spending},
    {"SpendingCalculator", LongPlan},
    {"AssetAllocation", Answers},
};

}  // namespace

void NotePlans(NoteWriter& notes) { Apply(kRules, notes); }

}  // namespace amortix2
