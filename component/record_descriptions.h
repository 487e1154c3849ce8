#pragma once

// The records and enumerations of the public interface, described.

#include "amortix2/component/describe_records.h"
#include "amortix2/engine/records.h"

namespace amortix2 {

template <>
inline constexpr auto kDescribed<enumAmortixType> = enumeration<enumAmortixType>(
    "Calculation", "What Amortix computes.",
    constant<LoanQualification>("Loan qualification", "Largest loan that a household qualifies for"),
    constant<LoanAffordability>("Loan affordability", "Largest loan that a monthly payment carries"),
    constant<LoanConsolidation>("Loan consolidation", "One loan for the balances of several"),
    constant<LoanCalculator>("Loans with schedules", "Every loan with its schedule"),
    constant<SavingsCalculator>("Savings", "Every savings account with its schedule"),
    constant<SavingsGoalsCalculator>("Savings goals", "Accepted, computes nothing"),
    constant<LoanQuickCalc>("Loans without schedules", "Every loan without a schedule"));

template <>
inline constexpr auto kDescribed<enumLoanType> = enumeration<enumLoanType>(
    "Kind of loan", "Kinds of loan.",
    constant<simpleLoan>("Simple loan", "Level payments at the end of each month"),
    constant<creditCard>("Credit card", "Payments in the middle of the month"),
    constant<biWeekly>("Bi-weekly loan", "Half a payment every 14 days from a date on"),
    constant<loanAsLease>("Lease", "Payments in advance and a residual value"));

template <>
inline constexpr auto kDescribed<enumSavingsType> = enumeration<enumSavingsType>(
    "Kind of savings", "Kinds of savings.",
    constant<simpleSavings>("Savings account", "Regular deposits or withdrawals"));

template <>
inline constexpr auto kDescribed<enumFrequencyType> = enumeration<enumFrequencyType>(
    "Frequency", "Payment and interest frequencies.",
    constant<sameasother>("Same as the other", "The frequency of the other mode"),
    constant<dailymode>("Daily", "Every day, 365 a year"),
    constant<weeklyMode>("Weekly", "Every 7 days, 52 a year"),
    constant<biweeklyMode>("Every two weeks", "Every 14 days, 26 a year"),
    constant<monthlyMode>("Monthly", "Every month"),
    constant<bimonthlyMode>("Every two months", "Every two months"),
    constant<quarterlyMode>("Quarterly", "Every three months"),
    constant<semiannualMode>("Twice a year", "Every six months"),
    constant<annualMode>("Yearly", "Every year"),
    constant<exactDaysMode>("Yearly, simple interest", "Simple interest on the opening balance, every year"),
    constant<continuousMode>("Yearly, continuous interest", "Continuous compounding, counted by days"));

template <>
inline constexpr auto kDescribed<specialConstants> =
    enumeration<specialConstants>("Special values", "Values with a meaning of their own.",
                                  constant<UNKNOWNLOANVALUE>("To be found", "Marks the quantity to find"));

template <>
inline constexpr auto kDescribed<tSchedule> = record<tSchedule>(
    "Schedule line", "One line of a loan's or a savings account's schedule.",
    field<&tSchedule::lineDate>("Date", Unit::Date, "Date of the payment or deposit"),
    field<&tSchedule::startingBalance>("Balance before", Unit::Currency, "Balance before the line"),
    field<&tSchedule::intRate>("Interest rate", Unit::AnnualPercent, "Rate in force for the line"),
    field<&tSchedule::payment>("Payment", Unit::Currency, "Amount paid (loan) or deposited (savings)"),
    field<&tSchedule::intCharged>("Interest charged", Unit::Currency, "Interest charged on a loan"),
    field<&tSchedule::intCredited>("Interest credited", Unit::Currency, "Interest credited to savings"),
    field<&tSchedule::taxCharged>("Tax charged", Unit::Currency, "Tax charged on savings interest"),
    field<&tSchedule::taxCredited>("Tax saved", Unit::Currency, "Tax saved on deductible loan interest"),
    field<&tSchedule::endingBalance>("Balance", Unit::Currency, "Balance after the line"));

template <>
inline constexpr auto kDescribed<tLoanDesc> = record<tLoanDesc>(
    "Loan", "A loan: its terms, what is to be found (-12345 in one field), its totals and its schedule.",
    field<&tLoanDesc::typ>("Kind of loan", Unit::Code, "Kind of loan"),
    field<&tLoanDesc::startDate>("Start", Unit::Date, "Date of the loan and of its opening line"),
    field<&tLoanDesc::biweeklyDate>("First bi-weekly payment", Unit::Date,
                                    "First bi-weekly payment, for bi-weekly loans"),
    field<&tLoanDesc::startingBalance>("Amount financed", Unit::Currency, "Amount financed"),
    field<&tLoanDesc::payment>("Monthly payment", Unit::MonthlyCurrency, "Level payment"),
    field<&tLoanDesc::intRate>("Interest rate", Unit::AnnualPercent, "Nominal rate"),
    field<&tLoanDesc::period>("Term", Unit::Months, "Term, rounded to a whole number"),
    field<&tLoanDesc::taxRate>("Income tax rate", Unit::Percent, "Income tax that deductible interest saves"),
    field<&tLoanDesc::points>("Points", Unit::Percent, "Loan points, of the amount"),
    field<&tLoanDesc::flatFee>("Closing fees", Unit::Currency, "Closing fees"),
    field<&tLoanDesc::firstRatePeriod>("First rate change", Unit::Months,
                                       "Payment number of the first rate change; 0: none"),
    field<&tLoanDesc::firstRateIncrease>("First change", Unit::PercentagePoints, "First change of the rate"),
    field<&tLoanDesc::subsequentRatePeriod>("Months between changes", Unit::Months,
                                            "Months between later rate changes; 0: none"),
    field<&tLoanDesc::subsequentRateIncrease>("Later changes", Unit::PercentagePoints,
                                              "Each later change of the rate"),
    field<&tLoanDesc::intRateMinimum>("Lowest rate", Unit::AnnualPercent, "Floor of a changed rate"),
    field<&tLoanDesc::intRateMaximum>("Highest rate", Unit::AnnualPercent, "Cap of a changed rate"),
    field<&tLoanDesc::totIntCharged>("Total interest", Unit::Currency,
                                     "Result: interest and up-front charges"),
    field<&tLoanDesc::totTaxCredited>("Total tax saved", Unit::Currency, "Result: tax saved"),
    field<&tLoanDesc::totPayments>("Total of payments", Unit::Currency, "Result: all payments"),
    field<&tLoanDesc::APR>("Annual percentage rate", Unit::AnnualPercent,
                           "Result when it holds -12345: annual percentage rate"),
    field<&tLoanDesc::schedule>("Schedule", Unit::None, "Result: lines 0 (opening) to the last payment"),
    field<&tLoanDesc::totLoanCostPV>("Cost in today's money", Unit::Currency,
                                     "Result: present value of the loan's cost up to the sale"),
    field<&tLoanDesc::balanceOwedAtSalePV>("Debt at the sale in today's money", Unit::Currency,
                                           "Result: present value of the balance owed at the sale"),
    field<&tLoanDesc::valueAtSalePV>("Home's value at the sale in today's money", Unit::Currency,
                                     "Result: present value of the home's value at the sale"),
    field<&tLoanDesc::startDateDelay>("Days of interim interest", Unit::Days,
                                      "Days of interim interest before the start"),
    field<&tLoanDesc::numberPrepays>("Payments in advance", Unit::Count, "Leases: payments made in advance"),
    field<&tLoanDesc::residualAmount>("Residual value", Unit::Currency,
                                      "Leases: value left after the last payment"),
    field<&tLoanDesc::paymentMode>("Payment frequency", Unit::Code,
                                   "Carried for callers; loans are paid monthly"));

template <>
inline constexpr auto kDescribed<tSavingsDesc> = record<tSavingsDesc>(
    "Savings account",
    "A savings account or spending plan: its terms, what is to be found (-12345), its totals and its "
    "schedule.",
    field<&tSavingsDesc::typ>("Kind of savings", Unit::Code, "Kind of savings"),
    field<&tSavingsDesc::startDate>("Start", Unit::Date, "First day of the plan"),
    field<&tSavingsDesc::endDate>("End", Unit::Date,
                                  "Last day of the plan; before the first: found from the goal"),
    field<&tSavingsDesc::startingBalance>("Balance at the start", Unit::Currency, "Balance on the first day"),
    field<&tSavingsDesc::deposit>("Deposit", Unit::Currency, "Deposited each payment period"),
    field<&tSavingsDesc::paymentMode>("Deposit frequency", Unit::Code,
                                      "Frequency of deposits and withdrawals"),
    field<&tSavingsDesc::compoundingMode>("Interest frequency", Unit::Code,
                                          "Frequency of interest; 0: that of the deposits"),
    field<&tSavingsDesc::intRate>("Interest rate", Unit::AnnualPercent, "Interest rate"),
    field<&tSavingsDesc::taxRate>("Income tax rate", Unit::Percent, "Income tax on credited interest"),
    field<&tSavingsDesc::totIntCredited>("Total interest", Unit::Currency, "Result: interest credited"),
    field<&tSavingsDesc::totTaxCharged>("Total tax", Unit::Currency, "Result: tax charged"),
    field<&tSavingsDesc::totPayments>("Total of deposits", Unit::Currency,
                                      "Result: deposits less withdrawals"),
    field<&tSavingsDesc::schedule>("Schedule", Unit::None, "Result: lines 0 (opening) to the last"),
    field<&tSavingsDesc::endingBalance>("Balance at the end", Unit::Currency,
                                        "Goal, or result: balance on the last day"),
    field<&tSavingsDesc::withdrawal>("Withdrawal", Unit::Currency, "Withdrawn each payment period"));

template <>
inline constexpr auto kDescribed<tGoalDesc> = record<tGoalDesc>(
    "Savings goal", "A savings goal, carried for callers.",
    field<&tGoalDesc::amount>("Amount", Unit::Currency, "Amount wanted"),
    field<&tGoalDesc::startDate>("Start", Unit::Date, "Date from which saving starts"),
    field<&tGoalDesc::firstPaymentPeriod>("Due in period", Unit::Periods,
                                          "Period at which the goal falls due"),
    field<&tGoalDesc::paymentMode>("Frequency", Unit::Code, "Frequency of the goal's periods"),
    field<&tGoalDesc::period>("Periods", Unit::Periods, "Number of periods"),
    field<&tGoalDesc::inflationRate>("Inflation", Unit::AnnualPercent, "Inflation"));

template <>
inline constexpr auto kDescribed<tCreditQualification> = record<tCreditQualification>(
    "Household", "A borrower's household and the charges of a home.",
    field<&tCreditQualification::downPaymentAmount>("Down payment", Unit::Currency,
                                                    "Cash for the down payment"),
    field<&tCreditQualification::monthlyIncome>("Monthly income", Unit::MonthlyCurrency, "Gross income"),
    field<&tCreditQualification::propertyTaxRate>("Property tax rate", Unit::AnnualPercent,
                                                  "Property tax, of the price"),
    field<&tCreditQualification::propertyTaxCharge>("Property tax", Unit::MonthlyCurrency,
                                                    "Result: property tax"),
    field<&tCreditQualification::insuranceCharge>("Home insurance", Unit::MonthlyCurrency, "Home insurance"),
    field<&tCreditQualification::associationDues>("Association dues", Unit::MonthlyCurrency,
                                                  "Association dues"),
    field<&tCreditQualification::creditCardPayment>("Credit card payments", Unit::MonthlyCurrency,
                                                    "Credit card payments"),
    field<&tCreditQualification::autoLoanPayment>("Car loan payments", Unit::MonthlyCurrency,
                                                  "Car loan payments"),
    field<&tCreditQualification::childSupportPayment>("Child support", Unit::MonthlyCurrency,
                                                      "Child support"),
    field<&tCreditQualification::otherMonthlyPayment>("Other obligations", Unit::MonthlyCurrency,
                                                      "Other obligations"),
    field<&tCreditQualification::otherMonthlyLoanCharge>("Other charges of the loan", Unit::MonthlyCurrency,
                                                         "Other charges of the loan"),
    field<&tCreditQualification::monthsToKeep>("Months kept", Unit::Months,
                                               "Months the home is kept; 0: the whole term"),
    field<&tCreditQualification::investmentGrowthRate>("Investment growth", Unit::AnnualPercent,
                                                       "Earned on money not spent"),
    field<&tCreditQualification::homeValueGrowthRate>("Home value growth", Unit::AnnualPercent,
                                                      "Growth of the home's value"),
    field<&tCreditQualification::monthlyPayment>("Largest payment allowed", Unit::MonthlyCurrency,
                                                 "Largest payment allowed"));

}  // namespace amortix2
