#pragma once

// The members of Calculator that set two loans side by side, described.

#include "amortix2/component/calculator.h"
#include "amortix2/component/describe.h"

namespace amortix2::describing {

inline constexpr Param kCurrBal{"vCurrBal", Unit::Currency, "Balance of the current loan"};
inline constexpr Param kCurrPay{"vCurrPay", Unit::MonthlyCurrency, "Payment of the current loan"};
inline constexpr Param kCurrRate{"vCurrRate", Unit::AnnualPercent, "Rate of the current loan"};
inline constexpr Param kIncTaxRate{"vIncTaxRate", Unit::Percent, "Income tax that interest saves"};
inline constexpr Param kInvGrowthRate{"vInvGrowthRate", Unit::AnnualPercent, "Earned on money not spent"};
inline constexpr Param kSellByDate{"vSellByDate", Unit::Months,
                                   "Months that the loan is kept; 0: the whole term"};
inline constexpr Param kSavingGrid{"vGrid", Unit::Table,
                                   "Payment, up-front cost, months, cost: current, new, current less new"};
inline constexpr Param kCurrDet{"vCurrDet", Unit::Table, "Schedule of the current loan"};
inline constexpr Param kProposedDet{"vNewDet", Unit::Table, "Schedule of the new loan"};

inline constexpr Param kOfferPrice{"vPurchaseAmt", Unit::Currency, "Purchase price"};
inline constexpr Param kDownpayment1{"vDownpayment1", Unit::Currency, "Offer 1: down payment"};
inline constexpr Param kDownpayment2{"vDownpayment2", Unit::Currency, "Offer 2: down payment"};
inline constexpr Param kPeriod1{"vPeriod1", Unit::Months, "Offer 1: term"};
inline constexpr Param kPeriod2{"vPeriod2", Unit::Months, "Offer 2: term"};
inline constexpr Param kIntRate1{"vIntRate1", Unit::AnnualPercent, "Offer 1: rate"};
inline constexpr Param kIntRate2{"vIntRate2", Unit::AnnualPercent, "Offer 2: rate"};
inline constexpr Param kPoints1{"vPoints1", Unit::Percent, "Offer 1: points"};
inline constexpr Param kPoints2{"vPoints2", Unit::Percent, "Offer 2: points"};
inline constexpr Param kFees1{"vFees1", Unit::Currency, "Offer 1: closing fees"};
inline constexpr Param kFees2{"vFees2", Unit::Currency, "Offer 2: closing fees"};
inline constexpr Param kOffer1Det{"vNewDet", Unit::Table, "Schedule of offer 1"};
inline constexpr Param kOffer2Det{"vCurrDet", Unit::Table, "Schedule of offer 2"};

inline constexpr auto kComparisonMembers = std::tuple{
    method<&Calculator::RefinancingCalculator>("The current loan against a new one.",
                                               {kCurrBal,
                                                kCurrPay,
                                                kCurrRate,
                                                {"vNewRate", Unit::AnnualPercent, "Rate of the new loan"},
                                                {"vNewPoints", Unit::Percent, "Points of the new loan"},
                                                {"vNewFees", Unit::Currency, "Closing fees of the new loan"},
                                                {"vNewTerm", Unit::Months, "Term of the new loan"},
                                                kIncTaxRate,
                                                kInvGrowthRate,
                                                kSellByDate,
                                                kSavingGrid,
                                                kCurrDet,
                                                kProposedDet}),
    method<&Calculator::PrePayCalculator>("The current loan against paying more each month.",
                                          {kCurrBal,
                                           kCurrPay,
                                           kCurrRate,
                                           {"vExtraPayment", Unit::MonthlyCurrency, "Paid on top each month"},
                                           kIncTaxRate,
                                           kInvGrowthRate,
                                           kSellByDate,
                                           kSavingGrid,
                                           kCurrDet,
                                           kProposedDet}),
    method<&Calculator::FastPrePayCalculator>(
        "The current loan against paying it off by a target term.",
        {{"currBal", Unit::Currency, "Balance of the loan"},
         {"currPay", Unit::MonthlyCurrency, "Payment of the loan; comes back as a number"},
         {"currRate", Unit::AnnualPercent, "Rate of the loan"},
         {"targetPeriod", Unit::Months, "Months after which it is to be paid off"},
         {"taxRate", Unit::Percent, "Income tax that interest saves"},
         {"invRate", Unit::AnnualPercent, "Earned on money not spent"},
         {"keep", Unit::Months, "Months that the loan is kept; 0: the whole term"},
         {"grid", Unit::Table, "Payment, up-front cost, months, cost: current, new, current less new"},
         {"currdet", Unit::Table, "Schedule of the current loan"},
         {"newdet", Unit::Table, "Schedule with the extra payment"}}),
    method<&Calculator::BiWeeklyComparison>(
        "The current loan against half payments every two weeks.",
        {kCurrBal,
         kCurrPay,
         kCurrRate,
         {"vPaymentDate", Unit::Date, "Start of both loans; today without one"},
         {"vNewFees", Unit::Currency, "Fee of the switch"},
         {"vSwitchDate", Unit::Date, "First half payment; today without one"},
         kIncTaxRate,
         kInvGrowthRate,
         kSellByDate,
         kSavingGrid,
         kCurrDet,
         kProposedDet}),
    method<&Calculator::PointsAdvisor>(
        "Two fixed-rate offers with points and fees.",
        {kOfferPrice,
         kIncTaxRate,
         kSellByDate,
         kDownpayment1,
         kPeriod1,
         kIntRate1,
         kPoints1,
         kFees1,
         kDownpayment2,
         kPeriod2,
         kIntRate2,
         kPoints2,
         kFees2,
         {"vGrid", Unit::Table,
          "Payment, up-front cost, months, cost, APR: offer 1, offer 2, offer 2 less offer 1"},
         kOffer2Det,
         kOffer1Det}),
    method<&Calculator::ARMComparison>(
        "Two adjustable-rate offers.",
        {kOfferPrice,
         kIncTaxRate,
         kSellByDate,
         kDownpayment1,
         kPeriod1,
         kIntRate1,
         kPoints1,
         kFees1,
         {"vRateInc1", Unit::PercentagePoints, "Offer 1: change of the rate each time"},
         {"vIncDelay1", Unit::Months, "Offer 1: months between changes"},
         {"vRateCap1", Unit::AnnualPercent, "Offer 1: highest rate"},
         kDownpayment2,
         kPeriod2,
         kIntRate2,
         kPoints2,
         kFees2,
         {"vRateInc2", Unit::PercentagePoints, "Offer 2: change of the rate each time"},
         {"vIncDelay2", Unit::Months, "Offer 2: months between changes"},
         {"vRateCap2", Unit::AnnualPercent, "Offer 2: highest rate"},
         {"vGrid", Unit::Table,
          "Payment, up-front cost, months, cost, APR: offer 1, offer 2, offer 1 less offer 2"},
         kOffer2Det,
         kOffer1Det}),
};

}  // namespace amortix2::describing
