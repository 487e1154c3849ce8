#include "amortix2/component/record_descriptions.h"

#include <array>

namespace amortix2 {
namespace {

constexpr auto kSchedule =
    record<tSchedule>("One line of a loan's or a savings account's schedule.",
                      field<&tSchedule::lineDate>(Unit::Date, "Date of the payment or deposit"),
                      field<&tSchedule::startingBalance>(Unit::Currency, "Balance before the line"),
                      field<&tSchedule::intRate>(Unit::AnnualPercent, "Rate in force for the line"),
                      field<&tSchedule::payment>(Unit::Currency, "Amount paid (loan) or deposited (savings)"),
                      field<&tSchedule::intCharged>(Unit::Currency, "Interest charged on a loan"),
                      field<&tSchedule::intCredited>(Unit::Currency, "Interest credited to savings"),
                      field<&tSchedule::taxCharged>(Unit::Currency, "Tax charged on savings interest"),
                      field<&tSchedule::taxCredited>(Unit::Currency, "Tax saved on deductible loan interest"),
                      field<&tSchedule::endingBalance>(Unit::Currency, "Balance after the line"));

constexpr auto kLoan = record<tLoanDesc>(
    "A loan: its terms, what is to be found (-12345 in one field), its totals and its schedule.",
    field<&tLoanDesc::typ>(Unit::Code, "Kind of loan"),
    field<&tLoanDesc::startDate>(Unit::Date, "Date of the loan and of its opening line"),
    field<&tLoanDesc::biweeklyDate>(Unit::Date, "First bi-weekly payment, for bi-weekly loans"),
    field<&tLoanDesc::startingBalance>(Unit::Currency, "Amount financed"),
    field<&tLoanDesc::payment>(Unit::MonthlyCurrency, "Level payment"),
    field<&tLoanDesc::intRate>(Unit::AnnualPercent, "Nominal rate"),
    field<&tLoanDesc::period>(Unit::Months, "Term, rounded to a whole number"),
    field<&tLoanDesc::taxRate>(Unit::Percent, "Income tax that deductible interest saves"),
    field<&tLoanDesc::points>(Unit::Percent, "Loan points, of the amount"),
    field<&tLoanDesc::flatFee>(Unit::Currency, "Closing fees"),
    field<&tLoanDesc::firstRatePeriod>(Unit::Months, "Payment number of the first rate change; 0: none"),
    field<&tLoanDesc::firstRateIncrease>(Unit::PercentagePoints, "First change of the rate"),
    field<&tLoanDesc::subsequentRatePeriod>(Unit::Months, "Months between later rate changes; 0: none"),
    field<&tLoanDesc::subsequentRateIncrease>(Unit::PercentagePoints, "Each later change of the rate"),
    field<&tLoanDesc::intRateMinimum>(Unit::AnnualPercent, "Floor of a changed rate"),
    field<&tLoanDesc::intRateMaximum>(Unit::AnnualPercent, "Cap of a changed rate"),
    field<&tLoanDesc::totIntCharged>(Unit::Currency, "Result: interest and up-front charges"),
    field<&tLoanDesc::totTaxCredited>(Unit::Currency, "Result: tax saved"),
    field<&tLoanDesc::totPayments>(Unit::Currency, "Result: all payments"),
    field<&tLoanDesc::APR>(Unit::AnnualPercent, "Result when it holds -12345: annual percentage rate"),
    field<&tLoanDesc::schedule>(Unit::None, "Result: lines 0 (opening) to the last payment"),
    field<&tLoanDesc::totLoanCostPV>(Unit::Currency,
                                     "Result: present value of the loan's cost up to the sale"),
    field<&tLoanDesc::balanceOwedAtSalePV>(Unit::Currency,
                                           "Result: present value of the balance owed at the sale"),
    field<&tLoanDesc::valueAtSalePV>(Unit::Currency, "Result: present value of the home's value at the sale"),
    field<&tLoanDesc::startDateDelay>(Unit::Days, "Days of interim interest before the start"),
    field<&tLoanDesc::numberPrepays>(Unit::Count, "Leases: payments made in advance"),
    field<&tLoanDesc::residualAmount>(Unit::Currency, "Leases: value left after the last payment"),
    field<&tLoanDesc::paymentMode>(Unit::Code, "Carried for callers; loans are paid monthly"));

constexpr auto kSavings = record<tSavingsDesc>(
    "A savings account or spending plan: its terms, what is to be found (-12345), its totals and its "
    "schedule.",
    field<&tSavingsDesc::typ>(Unit::Code, "Kind of savings"),
    field<&tSavingsDesc::startDate>(Unit::Date, "First day of the plan"),
    field<&tSavingsDesc::endDate>(Unit::Date, "Last day of the plan; before the first: found from the goal"),
    field<&tSavingsDesc::startingBalance>(Unit::Currency, "Balance on the first day"),
    field<&tSavingsDesc::deposit>(Unit::Currency, "Deposited each payment period"),
    field<&tSavingsDesc::paymentMode>(Unit::Code, "Frequency of deposits and withdrawals"),
    field<&tSavingsDesc::compoundingMode>(Unit::Code, "Frequency of interest; 0: that of the deposits"),
    field<&tSavingsDesc::intRate>(Unit::AnnualPercent, "Interest rate"),
    field<&tSavingsDesc::taxRate>(Unit::Percent, "Income tax on credited interest"),
    field<&tSavingsDesc::totIntCredited>(Unit::Currency, "Result: interest credited"),
    field<&tSavingsDesc::totTaxCharged>(Unit::Currency, "Result: tax charged"),
    field<&tSavingsDesc::totPayments>(Unit::Currency, "Result: deposits less withdrawals"),
    field<&tSavingsDesc::schedule>(Unit::None, "Result: lines 0 (opening) to the last"),
    field<&tSavingsDesc::endingBalance>(Unit::Currency, "Goal, or result: balance on the last day"),
    field<&tSavingsDesc::withdrawal>(Unit::Currency, "Withdrawn each payment period"));

constexpr auto kGoal = record<tGoalDesc>(
    "A savings goal, carried for callers.", field<&tGoalDesc::amount>(Unit::Currency, "Amount wanted"),
    field<&tGoalDesc::startDate>(Unit::Date, "Date from which saving starts"),
    field<&tGoalDesc::firstPaymentPeriod>(Unit::Periods, "Period at which the goal falls due"),
    field<&tGoalDesc::paymentMode>(Unit::Code, "Frequency of the goal's periods"),
    field<&tGoalDesc::period>(Unit::Periods, "Number of periods"),
    field<&tGoalDesc::inflationRate>(Unit::AnnualPercent, "Inflation"));

constexpr auto kQualification = record<tCreditQualification>(
    "A borrower's household and the charges of a home.",
    field<&tCreditQualification::downPaymentAmount>(Unit::Currency, "Cash for the down payment"),
    field<&tCreditQualification::monthlyIncome>(Unit::MonthlyCurrency, "Gross income"),
    field<&tCreditQualification::propertyTaxRate>(Unit::AnnualPercent, "Property tax, of the price"),
    field<&tCreditQualification::propertyTaxCharge>(Unit::MonthlyCurrency, "Result: property tax"),
    field<&tCreditQualification::insuranceCharge>(Unit::MonthlyCurrency, "Home insurance"),
    field<&tCreditQualification::associationDues>(Unit::MonthlyCurrency, "Association dues"),
    field<&tCreditQualification::creditCardPayment>(Unit::MonthlyCurrency, "Credit card payments"),
    field<&tCreditQualification::autoLoanPayment>(Unit::MonthlyCurrency, "Car loan payments"),
    field<&tCreditQualification::childSupportPayment>(Unit::MonthlyCurrency, "Child support"),
    field<&tCreditQualification::otherMonthlyPayment>(Unit::MonthlyCurrency, "Other obligations"),
    field<&tCreditQualification::otherMonthlyLoanCharge>(Unit::MonthlyCurrency, "Other charges of the loan"),
    field<&tCreditQualification::monthsToKeep>(Unit::Months, "Months the home is kept; 0: the whole term"),
    field<&tCreditQualification::investmentGrowthRate>(Unit::AnnualPercent, "Earned on money not spent"),
    field<&tCreditQualification::homeValueGrowthRate>(Unit::AnnualPercent, "Growth of the home's value"),
    field<&tCreditQualification::monthlyPayment>(Unit::MonthlyCurrency, "Largest payment allowed"));

constexpr auto kSpecialConstants = enumeration<specialConstants>(
    "Values with a meaning of their own.", constant<UNKNOWNLOANVALUE>("Marks the quantity to find"));

constexpr auto kAmortixTypes = enumeration<enumAmortixType>(
    "What Amortix computes.", constant<LoanQualification>("Largest loan that a household qualifies for"),
    constant<LoanAffordability>("Largest loan that a monthly payment carries"),
    constant<LoanConsolidation>("One loan for the balances of several"),
    constant<LoanCalculator>("Every loan with its schedule"),
    constant<SavingsCalculator>("Every savings account with its schedule"),
    constant<SavingsGoalsCalculator>("Accepted, computes nothing"),
    constant<LoanQuickCalc>("Every loan without a schedule"));

constexpr auto kLoanTypes = enumeration<enumLoanType>(
    "Kinds of loan.", constant<simpleLoan>("Level payments at the end of each month"),
    constant<creditCard>("Payments in the middle of the month"),
    constant<biWeekly>("Half a payment every 14 days from a date on"),
    constant<loanAsLease>("Payments in advance and a residual value"));

constexpr auto kSavingsTypes = enumeration<enumSavingsType>(
    "Kinds of savings.", constant<simpleSavings>("Regular deposits or withdrawals"));

constexpr auto kFrequencies = enumeration<enumFrequencyType>(
    "Payment and interest frequencies.", constant<sameasother>("The frequency of the other mode"),
    constant<dailymode>("Every day, 365 a year"), constant<weeklyMode>("Every 7 days, 52 a year"),
    constant<biweeklyMode>("Every 14 days, 26 a year"), constant<monthlyMode>("Every month"),
    constant<bimonthlyMode>("Every two months"), constant<quarterlyMode>("Every three months"),
    constant<semiannualMode>("Every six months"), constant<annualMode>("Every year"),
    constant<exactDaysMode>("Simple interest on the opening balance, every year"),
    constant<continuousMode>("Continuous compounding, counted by days"));

}  // namespace

template <>
constinit const RecordInfo DescribedRecord<tSchedule>::info = kSchedule.Info();
template <>
constinit const RecordInfo DescribedRecord<tLoanDesc>::info = kLoan.Info();
template <>
constinit const RecordInfo DescribedRecord<tSavingsDesc>::info = kSavings.Info();
template <>
constinit const RecordInfo DescribedRecord<tGoalDesc>::info = kGoal.Info();
template <>
constinit const RecordInfo DescribedRecord<tCreditQualification>::info = kQualification.Info();

template <>
constinit const EnumerationInfo DescribedEnumeration<specialConstants>::info = kSpecialConstants.Info();
template <>
constinit const EnumerationInfo DescribedEnumeration<enumAmortixType>::info = kAmortixTypes.Info();
template <>
constinit const EnumerationInfo DescribedEnumeration<enumLoanType>::info = kLoanTypes.Info();
template <>
constinit const EnumerationInfo DescribedEnumeration<enumSavingsType>::info = kSavingsTypes.Info();
template <>
constinit const EnumerationInfo DescribedEnumeration<enumFrequencyType>::info = kFrequencies.Info();

}  // namespace amortix2
