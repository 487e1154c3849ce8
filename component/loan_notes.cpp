// The notes that are special to members: one table of small rules at the end. Each looks at inputs and
// results only, so that it is true of the call whatever the call was.

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

#include "amortix2/automation/array.h"
#include "amortix2/automation/conversion.h"
#include "amortix2/component/answer.h"
#include "amortix2/component/note_writer.h"
#include "amortix2/component/table_descriptions.h"
#include "amortix2/engine/frequency.h"

namespace amortix2 {
namespace {

// ---- Loans

/// A loan's term was looked for, and its payment came back larger than it was given: the engine's sign that
/// it covers no interest.
void BelowInterest(NoteWriter& notes, std::string_view payment, double given, std::string_view found,
                   double balance, std::string_view rate) {
  const std::optional<double> stands = notes.Out().Number(found);
  if (!stands || *stands <= given) return;
  const double interest = Cents(balance * (1 + notes.Number(rate) / 1200)) - balance;
  std::string sentence = "Does not cover the interest, so the whole debt stands as one payment";
  if (interest >= given && std::isfinite(interest)) {
    sentence += "; it takes more than " + MoneyText(Cents(interest)) + " a month";
  }
  notes.About("payment-below-interest", payment, sentence + ".");
}

void LoanPayment(NoteWriter& notes) {
  if (FoundInput(notes) != "vPeriod") return;
  BelowInterest(notes, "vPayment", notes.Number("vPayment"), "vResPayment", notes.Number("vPurchaseAmt"),
                "vIntRate");
}

void CurrentPayment(NoteWriter& notes) {
  BelowInterest(notes, "vCurrPay", notes.Number("vCurrPay"), "vGrid(1,1)", notes.Number("vCurrBal"),
                "vCurrRate");
}

void FastCurrentPayment(NoteWriter& notes) {
  BelowInterest(notes, "currPay", notes.Number("currPay"), "grid(1,1)", notes.Number("currBal"), "currRate");
}

/// The lists of several current loans: an element for each element of the first.
void CurrentLoans(NoteWriter& notes) {
  const std::size_t loans = ElementsOf(notes.In().At("vCurrBal")).size();
  for (const std::string_view name : notes.Member().lists.front().inputs) {
    if (ElementsOf(notes.In().At(name)).size() <= loans) continue;
    notes.About("longer-list", name, "Has more elements than there are loans; the rest is not read.");
  }
  const auto payments = ElementsOf(notes.In().At("vCurrPay"));
  for (std::size_t i = 0; i < std::min(payments.size(), loans); ++i) {
    const std::optional<double> stands = notes.Out().Number("vCurrGrid(1," + std::to_string(i + 1) + ")");
    if (!stands || *stands <= NumericOrZero(payments[i])) continue;
    notes.OnInput("payment-below-interest", *FindParameter(notes.Member(), "vCurrPay"), payments[i],
                  "does not cover its loan's interest, so that its whole debt stands as one payment");
  }
}

void ExtraPayment(NoteWriter& notes) {
  BelowInterest(notes, "vExtraPayment", notes.Number("vCurrPay") + notes.Number("vExtraPayment"),
                "vGrid(1,2)", notes.Number("vCurrBal"), "vCurrRate");
}

void NoPositiveRate(NoteWriter& notes) {
  if (FoundInput(notes) != "vIntRate" || notes.Out().Number("vResIntRate") != 0.0) return;
  notes.About("no-positive-rate", "vIntRate",
              "The payments come to no more than is owed, so the rate is 0 and the payment another.");
}

/// Schedules of loans that are paid off: what is left after the last line.
void LastBalance(NoteWriter& notes) {
  if (notes.Member().group == Group::Leases) return;
  for (const ParameterInfo& parameter : notes.Member().parameters) {
    if (!describing::IsLoanSchedule(parameter.table) || parameter.role != Role::Result) continue;
    const Variant* table = notes.Out().Find({.parameter = parameter.name});
    if (!table || table->Type() != VariantType::Array || table->GetArray().Rank() != 2) continue;
    const std::int32_t last = table->GetArray().Dimension(1).upper;
    const auto cell = [&](std::int32_t row, std::int32_t column) {
      const Variant* value =
          notes.Out().Find({.parameter = parameter.name, .indices = 2, .row = row, .column = column});
      return value ? NumericOrZero(*value) : 0;
    };
    const double balance = cell(last, 5);
    if (last < 1 || balance < 0.005 || cell(0, 5) <= 0) continue;
    // What rounding leaves is less than a payment; a loan may also have a payment that pays too little.
    const std::string_view cause = balance < cell(last, 2) ? "Rounding leaves" : "The payments leave";
    notes.About("last-balance", parameter.name,
                std::string(cause) + " a last balance of " + MoneyText(balance) + ".");
  }
}

void DownPayment(NoteWriter& notes, std::string_view down, std::string_view price) {
  const double left = notes.Number(price) - notes.Number(down);
  if (notes.Number(down) <= 0 || notes.Number(price) <= 0 || left > 0) return;
  notes.OnInput("down-payment", down,
                left == 0 ? "is the whole price: nothing is borrowed"
                          : "is more than the price, so that the loan is negative");
}
void PurchaseDownPayment(NoteWriter& notes) { DownPayment(notes, "vDownPayment", "vPurchaseAmt"); }
void OffersDownPayment(NoteWriter& notes) {
  DownPayment(notes, "vDownpayment1", "vPurchaseAmt");
  DownPayment(notes, "vDownpayment2", "vPurchaseAmt");
}

void Closing(NoteWriter& notes) {
  if (!IsDate(notes.In().At("vCloseDate"))) return;
  Date start = notes.Today();
  if (IsDate(notes.In().At("vPayDate"))) {
    const CivilDate first = ToCivil(ToDate(notes.In().At("vPayDate")));
    if (first.year == 100 && first.month == 1) return;
    start = MakeDate(first.year, first.month - 1, first.day);
  }
  if (ToDate(notes.In().At("vCloseDate")) <= start) return;
  notes.OnInput("closing-after-start", "vCloseDate",
                "lies after the loan's start, so that interim interest is negative");
}

void Balloon(NoteWriter& notes) {
  const double period = notes.Number("vPeriod");
  if (period < 1 || notes.Number("vBalloonAtPeriod") < period) return;
  notes.OnInput("balloon-past-term", "vBalloonAtPeriod",
                "lies at or after the end of the term, so that there is no balloon");
}

/// A rate that rises meets a cap that lies below it.
void Cap(NoteWriter& notes, std::string_view cap, std::string_view rate, bool rises) {
  const double highest = notes.Number(cap);
  if (!rises || highest >= notes.Number(rate)) return;
  notes.About("cap-below-rate", cap,
              "Lies below the rate at the start: the first change brings the rate down to " +
                  NumberText(std::max(highest, 0.0)) + " %.");
}

/// The rate changes for the first time in payment `delay`, if at all.
bool Comes(const NoteWriter& notes, std::string_view delay, std::string_view term) {
  const double payment = notes.Number(delay);
  return payment >= 1 && payment <= std::nearbyint(notes.Number(term)) && payment == std::floor(payment);
}

void NeverChanges(NoteWriter& notes, std::string_view increase, std::string_view delay,
                  std::string_view term) {
  const double payment = notes.Number(delay);
  if (notes.Number(increase) == 0 || (payment > 0 && payment <= notes.Number(term))) return;
  notes.About("rate-never-changes", delay,
              payment > 0 ? "Lies past the term, so this change never comes."
                          : "Without a number of months this change never comes.");
}

void AdjustableRate(NoteWriter& notes) {
  const bool first = notes.Number("vRateInc1") > 0 && Comes(notes, "vIncDelay1", "vPeriod");
  Cap(notes, "vRateCap", "vIntRate", first);
  NeverChanges(notes, "vRateInc1", "vIncDelay1", "vPeriod");
  NeverChanges(notes, "vRateInc2", "vIncDelay2", "vPeriod");
}

void AdjustableOffers(NoteWriter& notes) {
  Cap(notes, "vRateCap1", "vIntRate1",
      notes.Number("vRateInc1") > 0 && Comes(notes, "vIncDelay1", "vPeriod1"));
  Cap(notes, "vRateCap2", "vIntRate2",
      notes.Number("vRateInc2") > 0 && Comes(notes, "vIncDelay2", "vPeriod2"));
  NeverChanges(notes, "vRateInc1", "vIncDelay1", "vPeriod1");
  NeverChanges(notes, "vRateInc2", "vIncDelay2", "vPeriod2");
}

void Budget(NoteWriter& notes) {
  const std::optional<double> loan = notes.Out().Number("vNewPrincipal");
  if (!loan || *loan >= 0) return;
  const bool isBudget = FindParameter(notes.Member(), "vPayment") != nullptr;
  notes.About("budget-below-charges", isBudget ? "vPayment" : "vAnnualIncome",
              "Does not cover the home's own charges, so that the loan is negative.");
}

void GridEdges(NoteWriter& notes) {
  const double down = notes.Number("vDownPayment") + notes.Number("vStepY") * notes.Number("vDownChange");
  if (down > notes.Number("vPrincipal") && notes.Number("vPrincipal") > 0) {
    notes.About("grid-edge", "vDownPayment",
                "The last column's down payment is more than the price, so that its payments are negative.");
  }
  if (notes.Number("vIntRate") - notes.Number("vStepX") * notes.Number("vRateChange") < 0) {
    notes.About("grid-edge", "vIntRate", "The first row's rate lies below 0 %.");
  }
}

// ---- Leases

void LeaseTerm(NoteWriter& notes) {
  const double period = notes.Number("vPeriod");
  if (period < 1 && notes.IsGiven("vPeriod")) notes.OnInput("short-lease", "vPeriod", "counts as 1");
  if (notes.Number("vPrepays") > std::max(period, 1.0)) {
    notes.OnInput("prepays-past-term", "vPrepays", "is more than the term and counts as it");
  }
}

/// The interest frequencies that are kept as given beside a payment frequency; any beside monthly payments.
bool IsKept(int payMode, int intMode) {
  switch (payMode) {
    case weeklyMode:
      return intMode == dailymode;
    case biweeklyMode:
      return intMode == dailymode || intMode == weeklyMode;
    case bimonthlyMode:
    case quarterlyMode:
      return intMode == monthlyMode;
    case semiannualMode:
      return intMode >= monthlyMode && intMode <= quarterlyMode;
    case annualMode:
      return intMode >= monthlyMode && intMode <= semiannualMode;
    default:
      return true;
  }
}

void InterestFrequency(NoteWriter& notes) {
  const double pay = std::nearbyint(notes.Number("vPayMode"));
  const double interest = std::nearbyint(notes.Number("vIntMode"));
  if (!IsFrequency(pay) || !IsFrequency(interest) || pay == interest) return;
  const auto payMode = static_cast<int>(pay);
  const auto intMode = static_cast<int>(interest);
  if (!IsKept(payMode, intMode)) {
    notes.OnInput("interest-frequency", "vIntMode",
                  "does not fit the payments and counts as their frequency");
    return;
  }
  const double times = PeriodsPerYear(static_cast<enumFrequencyType>(intMode)) /
                       PeriodsPerYear(static_cast<enumFrequencyType>(payMode));
  if (std::nearbyint(times) != 0) return;
  notes.OnInput("interest-frequency", "vIntMode",
                "is so much rarer than the payments that the rate counts as 0");
}

// ---- Comparisons

/// The months that a side of a comparison runs, from row 3 of its grid.
std::optional<double> TermOf(const NoteWriter& notes, const SideInfo& side) {
  if (FindParameter(notes.Member(), "vRent")) return std::nearbyint(notes.Number("vPeriod"));
  const Variant* months =
      notes.Out().Find({.parameter = side.parameter, .indices = 2, .row = 3, .column = side.column});
  if (!months || !IsNumeric(*months)) return std::nullopt;
  return std::nearbyint(NumericOrZero(*months));
}

void Horizon(NoteWriter& notes) {
  const std::string_view horizon = notes.Member().horizon;
  const ComparisonInfo* comparison = notes.Member().comparison;
  const double months = std::nearbyint(notes.Number(horizon));
  if (horizon.empty() || !comparison || notes.Number(horizon) <= 0) return;
  if (notes.Number(horizon) < 1) {
    notes.OnInput("horizon", horizon, "is less than a month: the whole term counts");
    return;
  }
  const std::optional<double> current = TermOf(notes, comparison->current);
  const std::optional<double> proposed = TermOf(notes, comparison->proposed);
  // A term of 1 is that of a payment below the interest, which has its own note.
  if (!current || !proposed || std::min(*current, *proposed) <= 1) return;
  if (months <= std::min(*current, *proposed)) return;
  const bool both = months > std::max(*current, *proposed);
  notes.OnInput("horizon", horizon,
                "lies past " + std::string(both ? "both terms, which count" : "a term, which counts") +
                    " to the end: " + NumberText(*current) + " and " + NumberText(*proposed) + " months");
}

// ---- What people take for something else

/// A rate of a loan given as a fraction: 0.065.
void Fractions(NoteWriter& notes) {
  for (const ParameterInfo& parameter : notes.Member().parameters) {
    if (!parameter.IsInput()) continue;
    const bool isRate = parameter.unit == Unit::AnnualPercent && parameter.title.ends_with("nterest rate");
    const bool isTax = parameter.unit == Unit::Percent && parameter.title.ends_with("tax rate");
    const double number = notes.Number(parameter.name);
    if (!(isRate || isTax) || number <= 0 || number >= (isTax ? 1 : 0.1)) continue;
    notes.OnInput("fraction", parameter.name, "counts as " + NumberText(number) + " %");
  }
}

/// A mortgage of 30 months: years given where months count.
void Years(NoteWriter& notes) {
  constexpr double kShortestMortgage = 48;
  for (const ParameterInfo& parameter : notes.Member().parameters) {
    if (!parameter.IsInput() || parameter.unit != Unit::Months || !parameter.title.ends_with("erm")) continue;
    const double months = notes.Number(parameter.name);
    if (months < 1 || months >= kShortestMortgage) continue;
    notes.OnInput("short-term", parameter.name, "counts months, not years");
  }
}

constexpr Rule kRules[] = {
    {"", LastBalance},
    {"", Horizon},
    {"", Fractions},
    {"SimpleLoanCalculator", LoanPayment},
    {"SimpleLoanCalculator", NoPositiveRate},
    {"FixedPayment", PurchaseDownPayment},
    {"FixedPayment", Closing},
    {"FixedPayment", Years},
    {"AdjustablePayment", PurchaseDownPayment},
    {"AdjustablePayment", Closing},
    {"AdjustablePayment", AdjustableRate},
    {"AdjustablePayment", Years},
    {"BalloonLoanPaymentCalculator", PurchaseDownPayment},
    {"BalloonLoanPaymentCalculator", Balloon},
    {"MonthlyLeaseCalculator", LeaseTerm},
    {"MonthlyLeaseCalculator", NoPositiveRate},
    {"SimpleLeaseCalculator", LeaseTerm},
    {"SimpleLeaseCalculator", InterestFrequency},
    {"SimpleLeaseCalculator", NoPositiveRate},
    {"HomeAffordabilityCalculator", Budget},
    {"HomeAffordabilityCalculator", Years},
    {"MortgageQualificationCalculator", Budget},
    {"MortgageQualificationCalculator", Years},
    {"PaymentGridCalculator", GridEdges},
    {"PaymentGridCalculator", Years},
    {"RefinancingCalculator", CurrentPayment},
    {"PrePayCalculator", CurrentPayment},
    {"PrePayCalculator", ExtraPayment},
    {"FastPrePayCalculator", FastCurrentPayment},
    {"BiWeeklyComparison", CurrentPayment},
    {"PointsAdvisor", OffersDownPayment},
    {"PointsAdvisor", Years},
    {"ARMComparison", OffersDownPayment},
    {"ARMComparison", AdjustableOffers},
    {"ARMComparison", Years},
    {"LoanConsolidationCalculator", CurrentLoans},
    {"RentVsBuyComparison", PurchaseDownPayment},
    {"RentVsBuyComparison", Years},
};

}  // namespace

void NoteLoans(NoteWriter& notes) { Apply(kRules, notes); }

}  // namespace amortix2
