#pragma once

// What the rows and columns of the calculators' tables are, each kind described once.

#include "amortix2/component/meaning.h"

namespace amortix2::describing {

// ---- Schedules: a row for each payment or deposit, row 0 the state at the start.

inline constexpr HeadingInfo kLoanColumns[] = {
    {"Date", Unit::Date, Yearly::Last},
    {"Payment", Unit::Currency, Yearly::Sum},
    {"Principal", Unit::Currency, Yearly::Sum},
    {"Interest", Unit::Currency, Yearly::Sum, Better::Neither, true},
    {"Balance", Unit::Currency, Yearly::Last},
    {"Rate", Unit::AnnualPercent, Yearly::Last},
};
constexpr TableInfo Schedule(std::span<const HeadingInfo> columns) {
  return {.title = "Schedule", .columns = columns, .isSchedule = true};
}
inline constexpr TableInfo kLoanSchedule = Schedule(std::span(kLoanColumns).first(5));
inline constexpr TableInfo kLoanScheduleWithRate = Schedule(kLoanColumns);
constexpr bool IsLoanSchedule(const TableInfo* table) {
  return table == &kLoanSchedule || table == &kLoanScheduleWithRate;
}
/// The schedules of several loans side by side, each with its rate.
inline constexpr TableInfo kSchedulesSideBySide{
    .title = "Schedules", .columns = kLoanColumns, .isSchedule = true, .repeats = true};

inline constexpr HeadingInfo kRentColumns[] = {
    {"Date", Unit::Date, Yearly::Last}, {"Rent", Unit::Currency, Yearly::Sum}, {"Principal", Unit::Currency},
    {"Interest", Unit::Currency},       {"Balance", Unit::Currency},
};
inline constexpr TableInfo kRentSchedule = Schedule(kRentColumns);

inline constexpr HeadingInfo kSavingsColumns[] = {
    {"Date", Unit::Date, Yearly::Last},
    {"Deposit", Unit::Currency, Yearly::Sum},
    {"Interest", Unit::Currency, Yearly::Sum, Better::Neither, true},
    {"Growth", Unit::Currency, Yearly::Sum},
    {"Balance", Unit::Currency, Yearly::Last},
};
inline constexpr TableInfo kSavingsSchedule = Schedule(kSavingsColumns);

inline constexpr HeadingInfo kSpendingColumns[] = {
    {"Date", Unit::Date, Yearly::Last},
    {"Withdrawal (negative)", Unit::Currency, Yearly::Sum},
    {"Interest", Unit::Currency, Yearly::Sum, Better::Neither, true},
    {"Growth", Unit::Currency, Yearly::Sum},
    {"Balance", Unit::Currency, Yearly::Last},
};
inline constexpr TableInfo kSpendingSchedule = Schedule(kSpendingColumns);

// ---- Two loans side by side: a column for each and one for the difference, from row 1 on.

inline constexpr HeadingInfo kComparedRows[] = {
    {"Monthly payment", Unit::Currency, Yearly::Nothing, Better::Lower},
    {"Paid up front", Unit::Currency, Yearly::Nothing, Better::Lower},
    {"Months", Unit::Months, Yearly::Nothing, Better::Lower},
    {"Cost in today's money", Unit::Currency, Yearly::Nothing, Better::Lower},
    {"Annual percentage rate", Unit::AnnualPercent, Yearly::Nothing, Better::Lower},
};
inline constexpr std::int32_t kCostRow = 4;

constexpr TableInfo Comparison(std::span<const HeadingInfo> columns, std::size_t rows) {
  return {
      .title = "Comparison", .firstRow = 1, .columns = columns, .rows = std::span(kComparedRows).first(rows)};
}
inline constexpr HeadingInfo kRefinancingColumns[] = {{"Current loan"}, {"New loan"}, {"Difference"}};
inline constexpr HeadingInfo kPrepaymentColumns[] = {
    {"Current loan"}, {"With extra payments"}, {"Difference"}};
inline constexpr HeadingInfo kBiWeeklyColumns[] = {{"Current loan"}, {"Bi-weekly plan"}, {"Difference"}};
inline constexpr HeadingInfo kPointsColumns[] = {{"Offer 1"}, {"Offer 2"}, {"Offer 2 less offer 1"}};
inline constexpr HeadingInfo kArmColumns[] = {{"Offer 1"}, {"Offer 2"}, {"Offer 1 less offer 2"}};
inline constexpr TableInfo kRefinancingGrid = Comparison(kRefinancingColumns, 4);
inline constexpr TableInfo kPrepaymentGrid = Comparison(kPrepaymentColumns, 4);
inline constexpr TableInfo kBiWeeklyGrid = Comparison(kBiWeeklyColumns, 4);
inline constexpr TableInfo kPointsGrid = Comparison(kPointsColumns, 5);
inline constexpr TableInfo kArmGrid = Comparison(kArmColumns, 5);

// ---- Other results

inline constexpr AxisInfo kRateAxis{"Interest rate", Unit::AnnualPercent, "vIntRate", "vRateChange",
                                    "vStepX"};
inline constexpr AxisInfo kDownPaymentAxis{"Down payment", Unit::Currency, "vDownPayment", "vDownChange",
                                           "vStepY"};
inline constexpr TableInfo kPaymentGrid{.title = "Monthly payments",
                                        .firstRow = 1,
                                        .unit = Unit::MonthlyCurrency,
                                        .rowAxis = &kRateAxis,
                                        .columnAxis = &kDownPaymentAxis};

inline constexpr HeadingInfo kRetirementRows[] = {
    {"Balance at the start", Unit::Currency},
    {"Contribution each year", Unit::Currency},
    {"Balance at the end before tax", Unit::Currency},
    {"Balance at the end after tax", Unit::Currency},
    {"End of the plan", Unit::Date},
    {"Interest rate", Unit::AnnualPercent},
};
inline constexpr TableInfo kRetirementList{.title = "The account", .firstRow = 1, .rows = kRetirementRows};

inline constexpr HeadingInfo kAllocationColumns[] = {{"Asset class", Unit::Text}, {"Amount", Unit::Currency}};
inline constexpr TableInfo kAllocation{
    .title = "Allocation", .firstRow = 1, .firstColumn = 0, .columns = kAllocationColumns};

inline constexpr TableInfo kMarkup{.title = "Markup", .unit = Unit::Text};

}  // namespace amortix2::describing
