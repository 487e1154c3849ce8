#pragma once

// The members of Calculator that work on one loan or lease, described in the order in which they are shown.

#include "amortix2/calculators/calculator.h"
#include "amortix2/component/describe.h"
#include "amortix2/component/parameter_descriptions.h"

namespace amortix2::describing {

inline constexpr Param kResPurchaseAmt =
    Result("vResPurchaseAmt", "Amount financed", Unit::Currency, "Price less down payment");
inline constexpr Param kLoanTypeNotRead = Ignored("vLoanType");

inline constexpr auto kLoanMembers = std::tuple{
    method<&Calculator::SimpleLoanCalculator>(
        {
            .number = 3,
            .group = Group::Loans,
            .title = "Loan",
            .address = "loan",
            .help = "A loan that starts today: of amount, payment, term and rate finds the one left out.",
            .finds =
                {
                    {.input = "vPurchaseAmt",
                     .figure = "vResPurchaseAmt",
                     .sentences = {NeverPaidOff("vResPayment", "vPayment"),
                                   {"{vResPayment} a month for {vResPeriod} pays back a loan of "
                                    "{vResPurchaseAmt}; interest comes to {vTotInt}."}},
                     .needs = {"vPayment", "vPeriod"}},
                    {.input = "vPayment",
                     .figure = "vResPayment",
                     .sentences =
                         {{"The loan costs {vResPayment} a month for {vResPeriod}; interest comes to "
                           "{vTotInt}."}},
                     .needs = {"vPeriod"},
                     .whenAllGiven = true},
                    {.input = "vPeriod",
                     .figure = "vResPeriod",
                     .sentences =
                         {NeverPaidOff("vResPayment", "vPayment"),
                          {"At {vResPayment} a month the loan is paid off after {vResPeriod}; interest "
                           "comes to {vTotInt}."}}},
                    {.input = "vIntRate",
                     .figure = "vResIntRate",
                     .sentences = {{"The loan's rate is {vResIntRate}; interest comes to {vTotInt}."}}},
                },
            .charts = {BalanceChart("vDetArray"), PaymentsChart("vDetArray")},
        },
        {Input("vLoanType", "Kind of loan", Unit::Text, "\"C\" for a credit card, else a simple loan")
             .Of(kLoanKind)
             .Nothing(),
         kPurchaseAmt.Titled("Amount").Says("Amount borrowed; 0 to find it").Find().Example("200000"),
         MonthlyMoney("vPayment", "Monthly payment", "Payment a month; 0 to find it").Find(),
         kPeriod.Says("Number of monthly payments; 0 to find it").Find(),
         kIntRate.Says("Nominal rate a year; 0 to find it when the rest is given").Find(),
         kResPurchaseAmt.Titled("Amount").Says("Amount borrowed").Echoes("vPurchaseAmt"),
         kResPayment.Echoes("vPayment"), kResPeriod.Echoes("vPeriod"), kResIntRate.Echoes("vIntRate"),
         kTotPay, kTotInt, kDetArray}),

    method<&Calculator::BalloonLoanPaymentCalculator>(
        {
            .number = 6,
            .group = Group::Loans,
            .title = "Balloon loan",
            .address = "balloon",
            .help = "A loan settled before its end by one large payment.",
            .finds =
                {{.figure = "vBalloonPayment",
                  .sentences = {{"{vPayment} a month, and then a balloon of {vBalloonPayment} settles the "
                                 "loan of {vPrincipal}; interest comes to {vTotIntCharged}."}}}},
            .charts = {BalanceChart("vDetArray")},
        },
        {kPurchaseAmt, kDownPayment, kStartDate,
         kPeriod.Says("Number of months over which the payments are computed"),
         kPeriod.Named("vBalloonAtPeriod")
             .Titled("Payments before the balloon")
             .Says("Regular payments before the balloon")
             .Example("84"),
         kIntRate, Result("vPrincipal", "Amount financed", Unit::Currency, "Price less down payment"),
         kResPayment.Named("vPayment"),
         Result("vBalloonPayment", "Balloon", Unit::Currency, "The last payment, which settles the loan"),
         Result("vTotalAmountFinanced", "Amount financed again", Unit::Currency, "The same amount once more"),
         Result("vTotPayments", "Total of payments", Unit::Currency, "Payments and balloon"),
         Result("vTotIntCharged", "Total interest", Unit::Currency, "Total of payments less the amount"),
         kDetArray}),
};

// ---- Leases

inline constexpr Param kPrincipal =
    Money("vPrincipal", "Price", "What the leased object costs now; 0 may be found").Find().Example("30000");
inline constexpr Param kLeasePayment =
    Money("vPayment", "Payment", "Payment each period; 0 may be found", 100'000).Find();
inline constexpr Param kLeaseRate = kIntRate.Says("Nominal rate a year; 0 may be found").Find().Example("6");
inline constexpr Param kPrepays = Input("vPrepays", "Payments in advance", Unit::Count,
                                        "Payments made at signing; more than the term count as the term")
                                      .Span(0, 60, 1)
                                      .Limit(0, kMostMonths)
                                      .Zero()
                                      .Example("1");
inline constexpr Param kEndingBal =
    Money("vEndingBal", "Residual value", "Value at the end of the lease; 0 may be found")
        .Find()
        .Example("15000");
inline constexpr Param kResPrincipal =
    Result("vResPrincipal", "Price", Unit::Currency, "What the leased object costs now").Echoes("vPrincipal");
inline constexpr Param kResLeasePayment =
    Result("vResPayment", "Payment", Unit::Currency, "Payment each period").Echoes("vPayment");
inline constexpr Param kResPrepays =
    Result("vResPrepays", "Payments in advance", Unit::Count, "Payments made at signing").Echoes("vPrepays");
inline constexpr Param kResEndingBal =
    Result("vResEndingBal", "Residual value", Unit::Currency, "Value at the end").Echoes("vEndingBal");
inline constexpr Param kResTotPayments =
    Result("vResTotPayments", "Total of payments", Unit::Currency, "All payments before the residual");
inline constexpr Param kResTotInterest = kTotInt.Named("vResTotInterest").Says("All interest");
inline constexpr Param kDetArr = kDetArray.Named("vDetArr");

/// What both leases find, in the order in which they look.
constexpr ShortList<FindInfo, 5> LeaseFinds(const SentenceInfo& rate) {
  return {
      {.input = "vEndingBal",
       .figure = "vResEndingBal",
       .sentences = {{"The payments leave a residual value of {vResEndingBal}; interest comes to "
                      "{vResTotInterest}."}},
       .needs = {"vPrincipal", "vPayment"}},
      {.input = "vPrincipal",
       .figure = "vResPrincipal",
       .sentences = {{"The payments carry a price of {vResPrincipal}; interest comes to {vResTotInterest}."}},
       .needs = {"vPayment"}},
      {.input = "vPayment",
       .figure = "vResPayment",
       .sentences = {{"The lease costs {vResPayment} each time; interest comes to {vResTotInterest}."}},
       .whenAllGiven = true},
      {.input = "vIntRate", .figure = "vResIntRate", .sentences = {rate}},
  };
}

inline constexpr auto kLeaseMembers = std::tuple{
    method<&Calculator::MonthlyLeaseCalculator>(
        {
            .number = 7,
            .group = Group::Leases,
            .title = "Monthly lease",
            .address = "lease",
            .help = "A lease with monthly payments: finds the residual, the price, the payment or the rate.",
            .finds = LeaseFinds({"The lease's rate is {vResIntRate}; interest comes to {vResTotInterest}."}),
            .charts = {BalanceChart("vDetArr")},
        },
        {Ignored("vDummy"), kPrincipal, kLeasePayment, kPeriod.Example("36"), kLeaseRate, kPrepays,
         kEndingBal, kStartDate, kResPrincipal, kResLeasePayment, kResPeriod.Echoes("vPeriod"),
         kResIntRate.Echoes("vIntRate"), kResPrepays, kResEndingBal, kResTotPayments, kResTotInterest,
         kDetArr}),

    method<&Calculator::SimpleLeaseCalculator>(
        {
            .number = 8,
            .group = Group::Leases,
            .title = "Lease at any frequency",
            .address = "lease-frequency",
            .help = "A lease with payments and interest at any frequency: finds the residual, the price, the "
                    "payment or the rate.",
            .finds = LeaseFinds({"Twelve times the rate of one payment period is {vResIntRate}; interest "
                                 "comes to {vResTotInterest}."}),
            .charts = {BalanceChart("vDetArr")},
        },
        {Ignored("vDummy"), kPrincipal, kLeasePayment,
         kPeriod.In(Unit::Count).Says("Number of payments").Example("12"), kLeaseRate, kPrepays, kEndingBal,
         kStartDate,
         kFreq.Named("vPayMode").Titled("Payment frequency").Says("How often a payment is made").Example("6"),
         kFreq.Named("vIntMode")
             .Titled("Interest frequency")
             .Says("How often interest is charged; what does not fit the payments counts as their frequency"),
         kResPrincipal, kResLeasePayment,
         kResPeriod.In(Unit::Count).Says("Number of payments").Echoes("vPeriod"),
         kResIntRate.Titled("Twelve times the period's rate")
             .Says("1200 times the growth of one payment period"),
         kResPrepays, kResEndingBal, kResTotPayments, kResTotInterest, kDetArr}),
};

}  // namespace amortix2::describing
