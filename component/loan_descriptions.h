#pragma once

// The members of Calculator that work on records and on one loan or lease, described.

#include "amortix2/component/calculator.h"
#include "amortix2/component/record_descriptions.h"

namespace amortix2::describing {

inline constexpr auto kRecordMembers = std::tuple{
    method<&Calculator::Amortix>("Computes in place what the calculation type asks of arrays of records, "
                                 "used from index 1; returns 0.",
                                 {{"AmortixType", Unit::Code, "What to compute"},
                                  {"LoanArray", Unit::None, "Loans"},
                                  {"SavingArray", Unit::None, "Savings accounts"},
                                  {"GoalArray", Unit::None, "Savings goals"},
                                  {"Qualification", Unit::None, "The borrower's household"}}),
    method<&Calculator::LoadDetArray>("Copies a loan's schedule into a table: date, payment, principal, "
                                      "interest, balance, and the rate if there is "
                                      "room.",
                                      {{"loan", Unit::None, "A loan with its schedule"},
                                       {"atCol", Unit::Count, "The table's first column to write"},
                                       {"lastRow", Unit::Count, "The last schedule line to copy"},
                                       {"detArray", Unit::Table, "The table, with rows and columns enough"}}),
};

inline constexpr Param kLoanType{"vLoanType", Unit::Text, "\"C\" for a credit card, else a simple loan"};
inline constexpr Param kIgnoredLoanType{"vLoanType", Unit::Text, "Accepted and not read"};
inline constexpr Param kPurchaseAmt{"vPurchaseAmt", Unit::Currency, "Purchase price"};
inline constexpr Param kDownPayment{"vDownPayment", Unit::Currency, "Down payment"};
inline constexpr Param kPeriod{"vPeriod", Unit::Months, "Term, a count of monthly payments"};
inline constexpr Param kIntRate{"vIntRate", Unit::AnnualPercent, "Interest rate"};
inline constexpr Param kCloseDate{"vCloseDate", Unit::Date, "Closing, from which interim interest runs"};
inline constexpr Param kPayDate{"vPayDate", Unit::Date, "First payment; without one the loan starts today"};
inline constexpr Param kStartDate{"vStartDate", Unit::Date, "Start; today without one"};
inline constexpr Param kResPurchaseAmt{"vResPurchaseAmt", Unit::Currency, "Amount financed"};
inline constexpr Param kResPayment{"vResPayment", Unit::MonthlyCurrency, "Monthly payment"};
inline constexpr Param kResPeriod{"vResPeriod", Unit::Months, "Term"};
inline constexpr Param kResIntRate{"vResIntRate", Unit::AnnualPercent, "Interest rate"};
inline constexpr Param kTotPay{"vTotPay", Unit::Currency, "All payments"};
inline constexpr Param kTotInt{"vTotInt", Unit::Currency, "All interest and charges"};
inline constexpr Param kDetArray{"vDetArray", Unit::Table,
                                 "Schedule: date, payment, principal, interest, balance"};
inline constexpr Param kPropertyTax{"vPropertyTax", Unit::AnnualPercent, "Property tax, of the price"};
inline constexpr Param kInsurance{"vInsurance", Unit::MonthlyCurrency, "Home insurance"};
inline constexpr Param kDues{"vDues", Unit::MonthlyCurrency, "Association dues"};
inline constexpr Param kNewPrincipal{"vNewPrincipal", Unit::Currency, "Largest loan"};
inline constexpr Param kNewPayment{"vNewPayment", Unit::MonthlyCurrency, "Its payment"};
inline constexpr Param kNewTaxes{"vNewTaxes", Unit::MonthlyCurrency, "Property tax"};
inline constexpr Param kNewFees{"vNewFees", Unit::MonthlyCurrency, "Insurance, dues and other charges"};
inline constexpr Param kNewDet{"vNewDet", Unit::Table,
                               "Schedule: date, payment, principal, interest, balance"};

inline constexpr Param kIgnored{"vDummy", Unit::None, "Accepted and not read"};
inline constexpr Param kPrincipal{"vPrincipal", Unit::Currency, "Amount financed; 0 may be found"};
inline constexpr Param kLeasePayment{"vPayment", Unit::Currency, "Payment; 0 may be found"};
inline constexpr Param kLeaseRate{"vIntRate", Unit::AnnualPercent, "Interest rate; 0 may be found"};
inline constexpr Param kPrepays{"vPrepays", Unit::Count, "Payments made in advance"};
inline constexpr Param kEndingBal{"vEndingBal", Unit::Currency, "Residual value; 0 may be found"};
inline constexpr Param kResPrincipal{"vResPrincipal", Unit::Currency, "Amount financed"};
inline constexpr Param kResLeasePayment{"vResPayment", Unit::Currency, "Payment"};
inline constexpr Param kResPrepays{"vResPrepays", Unit::Count, "Payments made in advance"};
inline constexpr Param kResEndingBal{"vResEndingBal", Unit::Currency, "Residual value"};
inline constexpr Param kResTotPayments{"vResTotPayments", Unit::Currency, "All payments before the residual"};
inline constexpr Param kResTotInterest{"vResTotInterest", Unit::Currency, "All interest"};
inline constexpr Param kDetArr{"vDetArr", Unit::Table,
                               "Schedule: date, payment, principal, interest, balance"};

inline constexpr auto kLoanMembers = std::tuple{
    method<&Calculator::SimpleLoanCalculator>(
        "A loan that starts today: of amount, payment, term and rate finds the one left at 0.",
        {kLoanType,
         {"vPurchaseAmt", Unit::Currency, "Amount; 0 to find it"},
         {"vPayment", Unit::MonthlyCurrency, "Monthly payment; 0 to find it"},
         {"vPeriod", Unit::Months, "Term, a count of monthly payments; 0 to find it"},
         {"vIntRate", Unit::AnnualPercent, "Interest rate; 0 to find it when the rest is given"},
         kResPurchaseAmt,
         kResPayment,
         kResPeriod,
         kResIntRate,
         kTotPay,
         kTotInt,
         kDetArray}),
    method<&Calculator::FixedPayment>(
        "The payment of a fixed-rate purchase loan.",
        {kIgnoredLoanType, kPurchaseAmt, kDownPayment, kPeriod, kIntRate, kCloseDate, kPayDate,
         kResPurchaseAmt, kResPayment, kResPeriod, kResIntRate, kTotPay, kTotInt, kDetArray}),
    method<&Calculator::AdjustablePayment>(
        "The payment of an adjustable-rate purchase loan.",
        {kIgnoredLoanType,
         kPurchaseAmt,
         kDownPayment,
         kPeriod,
         {"vIntRate", Unit::AnnualPercent, "Interest rate at the start"},
         kCloseDate,
         kPayDate,
         {"vRateCap", Unit::AnnualPercent, "Highest rate"},
         {"vRateInc1", Unit::PercentagePoints, "First change of the rate"},
         {"vRateInc2", Unit::PercentagePoints, "Each later change of the rate"},
         {"vIncDelay1", Unit::Months, "Payment number of the first change"},
         {"vIncDelay2", Unit::Months, "Months between later changes"},
         kResPurchaseAmt,
         kResPayment,
         kResPeriod,
         kResIntRate,
         kTotPay,
         kTotInt,
         kDetArray}),
    method<&Calculator::BalloonLoanPaymentCalculator>(
        "A loan settled before its end by one large payment.",
        {kPurchaseAmt,
         kDownPayment,
         kStartDate,
         {"vPeriod", Unit::Months, "Term over which the payments are computed"},
         {"vBalloonAtPeriod", Unit::Months, "Regular payments before the balloon"},
         kIntRate,
         {"vPrincipal", Unit::Currency, "Amount financed"},
         {"vPayment", Unit::MonthlyCurrency, "Monthly payment"},
         {"vBalloonPayment", Unit::Currency, "The balloon"},
         {"vTotalAmountFinanced", Unit::Currency, "Amount financed, once more"},
         {"vTotPayments", Unit::Currency, "All payments"},
         {"vTotIntCharged", Unit::Currency, "All payments less the amount"},
         kDetArray}),
    method<&Calculator::MonthlyLeaseCalculator>(
        "A lease with monthly payments: finds the residual, the principal, the rate or the payment.",
        {kIgnored,
         kPrincipal,
         kLeasePayment,
         {"vPeriod", Unit::Months, "Term, a count of payments"},
         kLeaseRate,
         kPrepays,
         kEndingBal,
         kStartDate,
         kResPrincipal,
         kResLeasePayment,
         kResPeriod,
         kResIntRate,
         kResPrepays,
         kResEndingBal,
         kResTotPayments,
         kResTotInterest,
         kDetArr}),
    method<&Calculator::SimpleLeaseCalculator>(
        "A lease with payments and interest at any frequency.",
        {kIgnored,
         kPrincipal,
         kLeasePayment,
         {"vPeriod", Unit::Periods, "Term, a count of payments"},
         kLeaseRate,
         kPrepays,
         kEndingBal,
         kStartDate,
         {"vPayMode", Unit::Code, "Payment frequency (enumFrequencyType)"},
         {"vIntMode", Unit::Code, "Interest frequency (enumFrequencyType)"},
         kResPrincipal,
         kResLeasePayment,
         {"vResPeriod", Unit::Periods, "Term"},
         {"vResIntRate", Unit::AnnualPercent, "Rate, 1200 times the growth of one payment period"},
         kResPrepays,
         kResEndingBal,
         kResTotPayments,
         kResTotInterest,
         kDetArr}),
    method<&Calculator::HomeAffordabilityCalculator>("The mortgage that a monthly housing budget carries.",
                                                     {{"vPayment", Unit::MonthlyCurrency, "Housing budget"},
                                                      kPropertyTax,
                                                      kInsurance,
                                                      kDues,
                                                      kDownPayment,
                                                      kPeriod,
                                                      kIntRate,
                                                      kNewPrincipal,
                                                      kNewPayment,
                                                      kNewTaxes,
                                                      kNewFees,
                                                      kNewDet}),
    method<&Calculator::MortgageQualificationCalculator>(
        "The mortgage that an income and its debts qualify for.",
        {{"vAnnualIncome", Unit::Currency, "Gross income a year"},
         {"vCreditCard", Unit::MonthlyCurrency, "Credit card payments"},
         {"vCarPayments", Unit::MonthlyCurrency, "Car loan payments"},
         {"vChildSupport", Unit::MonthlyCurrency, "Child support"},
         {"vOtherMonthly", Unit::MonthlyCurrency, "Other obligations"},
         kPropertyTax,
         kInsurance,
         kDues,
         kDownPayment,
         kPeriod,
         kIntRate,
         kNewPrincipal,
         kNewPayment,
         kNewTaxes,
         kNewFees,
         kNewDet}),
    method<&Calculator::PaymentGridCalculator>(
        "Payments for a range of rates (rows) and of down payments (columns).",
        {{"vPrincipal", Unit::Currency, "Purchase price"},
         {"vDownPayment", Unit::Currency, "Down payment of the middle column"},
         {"vIntRate", Unit::AnnualPercent, "Rate of the middle row"},
         kPeriod,
         {"vDownChange", Unit::Currency, "Step from column to column"},
         {"vRateChange", Unit::PercentagePoints, "Step from row to row"},
         {"vStepX", Unit::Count, "Rates on each side of the middle"},
         {"vStepY", Unit::Count, "Down payments on each side of the middle"},
         {"vGrid", Unit::Table, "Payments from row 1 and column 1 on"}}),
};

}  // namespace amortix2::describing
