#pragma once

// Renting a home against buying one, over the months that it would be kept. Conventions and errors stand in
// question.h. Rent and charges fall due at the end of each month, as a loan's payments do, and what either
// way leaves over is invested: that is what discounting to today's money stands for.

#include "amortix2/automation/public.h"
#include "amortix2/calculators/comparisons.h"

namespace AMORTIX2_PUBLIC amortix2 {

struct Tenancy {
  double rent = 0;              ///< a month of the first year
  double risePercent = 0;       ///< of the rent, at each anniversary
  double chargesEachMonth = 0;  ///< tenant's insurance and the like; they do not rise
};

struct HomePurchase {
  PurchaseLoan loan = {};
  double propertyTaxPercent = 0;  ///< of the price, a year; grows with the home's value
  double insuranceEachMonth = 0;
  double duesEachMonth = 0;
  double upkeepEachMonth = 0;
  double valueGrowthPercent = 0;  ///< a year
  double sellingCostPercent = 0;  ///< of the value at the sale
};

struct RentOrBuyQuestion {
  Tenancy rent = {};
  HomePurchase buy = {};
  Outlook outlook = {};
  Date startDate = kDefaultStart;
};

/// One of the two ways. Everything but the first three runs over the months compared.
struct WayToLive {
  double payment = 0;              ///< rent or loan payment of the first month
  double upFrontCost = 0;          ///< down payment, points and fees
  double otherCharges = 0;         ///< of the first month, beside the payment
  double costInTodaysMoney = 0;    ///< all that is paid, the debt paid off at the sale too, less tax saved
  double totalPayments = 0;        ///< rents, or loan payments with points and fees
  double totalTaxSaved = 0;        ///< on interest and points
  double debtAtSaleToday = 0;      ///< in today's money; counted in costInTodaysMoney
  double proceedsOfSaleToday = 0;  ///< the home's value after the costs of selling, in today's money
  double netCost = 0;      ///< costInTodaysMoney less proceedsOfSaleToday: the smaller is the better way
  Schedule schedule = {};  ///< rents over the months compared; the loan's whole term
};

struct RentOrBuyAnswer {
  WayToLive rent = {};
  WayToLive buy = {};
  double months = 0;      ///< that are compared: `monthsKept`, or the loan's whole term
  double loanMonths = 0;  ///< the loan's term
};

/// The home's value and the rent step at anniversaries, so that a break-even month can jump. Raises Overflow
/// when a sum leaves the doubles.
RentOrBuyAnswer Compare(const RentOrBuyQuestion& question);

}  // namespace amortix2
