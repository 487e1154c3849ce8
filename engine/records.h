#pragma once

// The records and enumerations that callers and the engine exchange. Plain data: every field starts at zero,
// the engine reads what the caller set and writes its results into the same record. Rates are annual
// percentages (7.5 means 7.5 %), amounts are in currency, dates are whole days. Ranges are not checked here.

#include <cstdint>
#include <vector>

#include "amortix2/automation/array.h"
#include "amortix2/automation/date.h"
#include "amortix2/automation/public.h"

namespace AMORTIX2_PUBLIC amortix2 {

enum specialConstants : std::int32_t {
  /// Marks the one quantity of a record that the engine is to find. A real value of exactly -12345 cannot be
  /// told from it.
  UNKNOWNLOANVALUE = -12345,
};

constexpr bool IsUnknown(double value) { return value == double{UNKNOWNLOANVALUE}; }

// Callers may hand in numbers outside these lists; every enumeration has the full range of 32 bits.

enum enumAmortixType : std::int32_t {
  LoanQualification = 1,
  LoanAffordability = 2,
  LoanConsolidation = 3,
  LoanCalculator = 4,
  SavingsCalculator = 5,
  SavingsGoalsCalculator = 6,
  LoanQuickCalc = 7,
};

enum enumLoanType : std::int32_t {
  simpleLoan = 101,
  creditCard = 102,
  biWeekly = 103,
  loanAsLease = 104,
};

enum enumSavingsType : std::int32_t {
  simpleSavings = 201,
};

enum enumFrequencyType : std::int32_t {
  sameasother = 0,      ///< the frequency of the other mode of the record; alone: once a year
  dailymode = 1,        ///< 365 a year, every day
  weeklyMode = 2,       ///< 52 a year, every 7 days
  biweeklyMode = 3,     ///< 26 a year, every 14 days
  monthlyMode = 4,      ///< 12 a year
  bimonthlyMode = 5,    ///< 6 a year: once every two months
  quarterlyMode = 6,    ///< 4 a year
  semiannualMode = 7,   ///< 2 a year
  annualMode = 8,       ///< once a year
  exactDaysMode = 9,    ///< simple interest on the opening balance
  continuousMode = 10,  ///< interest compounds continuously, counted by days
};

/// One line of a loan's or a savings account's schedule. Written by the engine.
struct tSchedule {
  Date lineDate;               ///< date of the payment or deposit
  double startingBalance = 0;  ///< balance before the line
  double intRate = 0;          ///< annual rate in force, percent
  double payment = 0;          ///< amount paid (loan) or deposited (savings; negative for a withdrawal)
  double intCharged = 0;       ///< interest charged on a loan
  double intCredited = 0;      ///< interest credited to savings
  double taxCharged = 0;       ///< tax charged on savings interest
  double taxCredited = 0;      ///< tax saved on deductible loan interest
  double endingBalance = 0;    ///< balance after the line
};

/// A loan. Of `startingBalance`, `payment`, `intRate`, `period` and `residualAmount` at most one holds
/// UNKNOWNLOANVALUE; the engine finds it. `APR` holds UNKNOWNLOANVALUE when it is wanted too.
struct tLoanDesc {
  enumLoanType typ{};                 ///< kind of loan; any value outside the list is paid like simpleLoan
  Date startDate;                     ///< date of the loan and of its opening line
  Date biweeklyDate;                  ///< first bi-weekly payment (biWeekly only)
  double startingBalance = 0;         ///< amount financed, currency
  double payment = 0;                 ///< level monthly payment, currency
  double intRate = 0;                 ///< nominal annual rate, percent
  double period = 0;                  ///< term in months, used rounded to a whole number (halves to even)
  double taxRate = 0;                 ///< income tax that deductible interest saves, percent
  double points = 0;                  ///< loan points, percent of the amount
  double flatFee = 0;                 ///< closing fees, currency
  double firstRatePeriod = 0;         ///< payment number of the first rate change; 0 or less: none
  double firstRateIncrease = 0;       ///< change of the annual rate then, percentage points
  double subsequentRatePeriod = 0;    ///< months between later changes; 0 or less: none
  double subsequentRateIncrease = 0;  ///< change of the annual rate each time, percentage points
  double intRateMinimum = 0;          ///< floor of a changed rate, percent; wins over the cap
  double intRateMaximum = 0;          ///< cap of a changed rate, percent
  double totIntCharged = 0;           ///< result: interest and up-front charges over the horizon
  double totTaxCredited = 0;          ///< result: tax saved on them
  double totPayments = 0;             ///< result: all payments over the horizon
  double APR = 0;                   ///< result when UNKNOWNLOANVALUE: annual percentage rate, three decimals
  std::vector<tSchedule> schedule;  ///< result: lines 0 (opening) to the last payment
  double totLoanCostPV = 0;         ///< result: present value of the loan's cost up to the sale
  double balanceOwedAtSalePV = 0;   ///< result: present value of the balance owed at the sale
  double valueAtSalePV = 0;         ///< result: present value of the home's value at the sale
  std::int16_t startDateDelay = 0;  ///< days of interim interest before startDate
  std::int16_t numberPrepays = 0;   ///< leases: payments made in advance at signing
  double residualAmount = 0;        ///< leases: value left after the last payment, currency
  enumFrequencyType paymentMode{};  ///< carried for callers; loans are paid monthly
};

/// A savings account or a spending plan. One of `startingBalance`, `deposit`, `withdrawal`, `intRate` and
/// `endingBalance` may hold UNKNOWNLOANVALUE; an `endDate` before `startDate` is found from the goal.
struct tSavingsDesc {
  enumSavingsType typ{};
  Date startDate;                       ///< first day of the plan
  Date endDate;                         ///< last day; before startDate: unknown
  double startingBalance = 0;           ///< balance on startDate, currency
  double deposit = 0;                   ///< deposited each payment period, currency
  enumFrequencyType paymentMode{};      ///< frequency of deposits and withdrawals
  enumFrequencyType compoundingMode{};  ///< frequency of interest; sameasother: that of paymentMode
  double intRate = 0;                   ///< annual rate, percent
  double taxRate = 0;                   ///< income tax on credited interest, percent
  double totIntCredited = 0;            ///< result: interest credited
  double totTaxCharged = 0;             ///< result: tax charged
  double totPayments = 0;               ///< result: deposits less withdrawals
  std::vector<tSchedule> schedule;      ///< result: lines 0 (opening) to the last
  double endingBalance = 0;             ///< goal, or result: balance at endDate
  double withdrawal = 0;                ///< withdrawn each payment period, currency
};

/// A savings goal. Carried for callers; no engine procedure reads it.
struct tGoalDesc {
  double amount = 0;              ///< amount wanted, currency
  Date startDate;                 ///< date from which saving starts
  double firstPaymentPeriod = 0;  ///< period at which the goal falls due
  enumFrequencyType paymentMode{};
  double period = 0;         ///< number of periods
  double inflationRate = 0;  ///< annual percent
};

/// A borrower's household, amounts in currency a month unless said otherwise.
struct tCreditQualification {
  double downPaymentAmount = 0;       ///< cash for the down payment, currency
  double monthlyIncome = 0;           ///< gross income
  double propertyTaxRate = 0;         ///< percent of the price a year
  double propertyTaxCharge = 0;       ///< result: property tax
  double insuranceCharge = 0;         ///< home insurance
  double associationDues = 0;         ///< association dues
  double creditCardPayment = 0;       ///< credit card payments
  double autoLoanPayment = 0;         ///< car loan payments
  double childSupportPayment = 0;     ///< child support
  double otherMonthlyPayment = 0;     ///< other obligations
  double otherMonthlyLoanCharge = 0;  ///< other charges of the loan
  double monthsToKeep = 0;            ///< months the home is kept; below 1 or past the term: the whole term
  double investmentGrowthRate = 0;    ///< annual percent earned on money not spent
  double homeValueGrowthRate = 0;     ///< annual percent
  double monthlyPayment = 0;          ///< largest payment allowed; result of a qualification
};

}  // namespace amortix2
