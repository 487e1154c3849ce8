#pragma once

// The members of Calculator that work on one savings or spending plan, described.

#include "amortix2/component/calculator.h"
#include "amortix2/component/record_descriptions.h"

namespace amortix2::describing {

namespace savings {

inline constexpr Param kStart{"vStartDate", Unit::Date, "Start of the plan"};
inline constexpr Param kStartOrToday{"vStartDate", Unit::Date, "Start; today without one"};
inline constexpr Param kEndOrToday{"vEndingDate", Unit::Date, "End; today without one"};
inline constexpr Param kBalance{"vCurrBal", Unit::Currency, "Balance at the start"};
inline constexpr Param kDeposit{"vPayment", Unit::Currency, "Deposit each period"};
inline constexpr Param kGoal{"vEndingBal", Unit::Currency, "Balance wanted at the end"};
inline constexpr Param kFrequency{"vFreq", Unit::Code,
                                  "Frequency of deposits and interest, an enumFrequencyType"};
inline constexpr Param kYears{"vPeriod", Unit::Years, "Length of the plan, cut down to whole years"};
inline constexpr Param kRate{"vIntRate", Unit::AnnualPercent, "Interest rate"};
inline constexpr Param kTaxRate{"vIncTaxRate", Unit::Percent, "Income tax on interest"};
inline constexpr Param kResBalance{"vResCurrBal", Unit::Currency, "Balance at the start"};
inline constexpr Param kResRate{"vResIntRate", Unit::AnnualPercent, "Interest rate"};
inline constexpr Param kDetail{"vDetArray", Unit::Table,
                               "Schedule: date, deposit, interest, growth, balance"};

}  // namespace savings

inline constexpr auto kSavingsMembers = std::tuple{
    method<&Calculator::AmountSavedCalculator>("What a savings plan comes to.",
                                               {savings::kStart,
                                                savings::kBalance,
                                                savings::kDeposit,
                                                savings::kFrequency,
                                                savings::kYears,
                                                savings::kRate,
                                                {"vEndBal", Unit::Currency, "Balance at the end"},
                                                savings::kDetail}),
    method<&Calculator::SavingsRateCalculator>(
        "The interest rate that a savings plan needs to reach its goal.",
        {savings::kStart,
         savings::kBalance,
         savings::kDeposit,
         savings::kFrequency,
         savings::kYears,
         savings::kGoal,
         {"vIntRate", Unit::AnnualPercent, "Interest rate needed"},
         savings::kDetail}),
    method<&Calculator::StartingAmountCalculator>(
        "The balance that a savings plan needs at its start to reach its goal.",
        {savings::kStart,
         savings::kDeposit,
         savings::kFrequency,
         savings::kYears,
         savings::kRate,
         savings::kGoal,
         {"vCurrBal", Unit::Currency, "Balance needed at the start"},
         savings::kDetail}),
    method<&Calculator::DepositCalculator>("The deposit that a savings plan needs to reach its goal.",
                                           {savings::kStart,
                                            savings::kBalance,
                                            savings::kFrequency,
                                            savings::kYears,
                                            savings::kRate,
                                            savings::kGoal,
                                            {"vPayment", Unit::Currency, "Deposit needed each period"},
                                            savings::kDetail}),
    method<&Calculator::PresentValueCalculator>("What a sum at a later date is worth at the start.",
                                                {savings::kStartOrToday,
                                                 savings::kEndOrToday,
                                                 {"vEndingBal", Unit::Currency, "Sum at the end"},
                                                 savings::kRate,
                                                 savings::kFrequency,
                                                 {"vCurrBal", Unit::Currency, "Its worth at the start"},
                                                 savings::kDetail}),
    method<&Calculator::FutureValueCalculator>("What a sum grows to by a later date.",
                                               {savings::kStartOrToday,
                                                savings::kEndOrToday,
                                                {"vCurrBal", Unit::Currency, "Sum at the start"},
                                                savings::kRate,
                                                savings::kFrequency,
                                                {"vEndingBal", Unit::Currency, "What it comes to at the end"},
                                                savings::kDetail}),
    method<&Calculator::YieldCalculator>(
        "The interest rate that turns one sum into another.",
        {savings::kStartOrToday,
         savings::kEndOrToday,
         {"vCurrBal", Unit::Currency, "Sum at the start"},
         {"vEndingBal", Unit::Currency, "Sum at the end"},
         savings::kFrequency,
         {"vIntRate", Unit::AnnualPercent, "Interest rate needed"},
         {"vResEndingBal", Unit::Currency, "What the sum comes to at that rate"},
         savings::kDetail}),
    method<&Calculator::SimpleSavingsCalculator>(
        "Of balance, deposit, goal, term and rate of a savings plan, finds the one that is 0; the goal when "
        "none is.",
        {savings::kStart,
         {"vCurrBal", Unit::Currency, "Balance at the start; 0 may be found"},
         {"vPayment", Unit::Currency, "Deposit each period; 0 may be found"},
         savings::kFrequency,
         {"vEndingBal", Unit::Currency, "Balance wanted at the end; 0 may be found"},
         {"vPeriod", Unit::Periods, "Length of the plan; 0 may be found"},
         {"vIntRate", Unit::AnnualPercent, "Interest rate; 0 may be found"},
         savings::kTaxRate,
         savings::kResBalance,
         {"vResPayment", Unit::Currency, "Deposit each period"},
         {"vResEndingBal", Unit::Currency, "Balance at the end"},
         {"vResEndDate", Unit::Date, "End of the plan"},
         savings::kResRate,
         savings::kDetail}),
    method<&Calculator::IRACalculator>(
        "A retirement account with yearly contributions: finds the quantity that is 0, and the balance after "
        "tax.",
        {savings::kStart,
         {"vTyp", Unit::Text, "\"T\" for an account that is taxed on withdrawal"},
         {"vCurrBal", Unit::Currency, "Balance at the start; 0 may be found"},
         {"vPayment", Unit::Currency, "Contribution each year; 0 may be found"},
         {"vEndingBal", Unit::Currency, "Balance wanted at the end, after tax; 0 may be found"},
         {"vPeriod", Unit::Years, "Length of the plan; 0 may be found"},
         {"vIntRate", Unit::AnnualPercent, "Interest rate; 0 may be found"},
         {"vIncTaxRate", Unit::Percent, "Income tax on withdrawal"},
         {"vGrid", Unit::List,
          "From 1: balance, contribution, ending balance before and after tax, end date, rate"},
         savings::kDetail}),
    method<&Calculator::SpendingCalculator>(
        "Of balance, withdrawal, rate and term of a plan that spends a balance down, finds the one that is "
        "0; the "
        "withdrawal when none is.",
        {savings::kStart,
         {"vCurrBal", Unit::Currency, "Balance at the start; 0 may be found"},
         {"vPayment", Unit::Currency, "Withdrawal each period; 0 may be found"},
         {"vIntRate", Unit::AnnualPercent, "Interest rate; 0 may be found"},
         {"vFreq", Unit::Code, "Frequency of withdrawals and interest, an enumFrequencyType"},
         {"vPeriod", Unit::Periods, "Length of the plan; 0 may be found"},
         savings::kResBalance,
         {"vResPayment", Unit::Currency, "Withdrawal each period"},
         savings::kResRate,
         {"vResPeriod", Unit::Periods, "How long the balance lasts; -1: for ever"},
         savings::kDetail}),
    method<&Calculator::LoadSaveDetArray>(
        "Copies a savings account's schedule into a table: date, deposit, interest, growth, balance.",
        {{"save", Unit::None, "A savings account with its schedule"},
         {"atCol", Unit::Count, "The table's first column to write"},
         {"lastRow", Unit::Count, "The last schedule line to copy"},
         {"detArray", Unit::Table, "The table, with rows and columns enough"}}),
};

}  // namespace amortix2::describing
