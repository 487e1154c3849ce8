#pragma once

// The members of Calculator that work on records, described.

#include "amortix2/calculators/calculator.h"
#include "amortix2/component/describe.h"
#include "amortix2/component/record_descriptions.h"
#include "amortix2/component/table_descriptions.h"

namespace amortix2::describing {

// What they work on has no example of a person's: pages fill records themselves.
inline constexpr Param kAtCol =
    Input("atCol", "First column", Unit::Count, "The table's first column to write")
        .Span(0, 100, 1)
        .Limit(0, 10'000)
        .Example("1");
inline constexpr Param kLastRow = Input("lastRow", "Last row", Unit::Count, "The last schedule line to copy")
                                      .Span(0, 1200, 1)
                                      .Limit(0, 32767)
                                      .Example("1");

constexpr Param Worked(std::string_view name, std::string_view title, std::string_view help,
                       std::string_view example) {
  return InOut(name, title, Unit::None, help).Example(example);
}

inline constexpr auto kRecordMembers = std::tuple{
    method<&Calculator::Amortix>(
        {.number = 1,
         .group = Group::Records,
         .title = "Records",
         .address = "records",
         .help = "Computes in place what the calculation type asks of arrays of records, used from index 1; "
                 "returns 0."},
        {Input("AmortixType", "Calculation", Unit::Code, "What to compute")
             .Of(kChoicesOf<enumAmortixType>)
             .Example("4"),
         Worked(
             "LoanArray", "Loans", "Loans, from index 1",
             R"([{"typ": 101, "startDate": "2026-12-01", "startingBalance": 200000, "intRate": 6.5, "period": 360, "payment": -12345}])"),
         Worked("SavingArray", "Savings accounts", "Savings accounts, from index 1", "").Nothing(),
         Worked("GoalArray", "Savings goals", "Savings goals; not computed", "").Nothing(),
         Worked("Qualification", "Household", "The borrower's household", "").Nothing()}),
    method<&Calculator::LoadDetArray>(
        {.number = 2,
         .group = Group::Records,
         .title = "Loan's schedule as a table",
         .address = "loan-table",
         .help =
             "Copies a loan's schedule into a table: date, payment, principal, interest, balance, and the "
             "rate if there is room."},
        {Worked("loan", "Loan", "A loan with its schedule", R"({"schedule": [{}, {}]})"), kAtCol, kLastRow,
         InOut("detArray", "Table", Unit::Table, "The table, with rows and columns enough")
             .Of(kLoanScheduleWithRate)
             .Example("[[null, null, null, null, null, null, null], [null, null, null, null, null, null, "
                      "null]]")}),
    method<&Calculator::LoadSaveDetArray>(
        {.number = 28,
         .group = Group::Records,
         .title = "Savings' schedule as a table",
         .address = "savings-table",
         .help =
             "Copies a savings account's schedule into a table: date, deposit, interest, growth, balance."},
        {Worked("save", "Savings account", "A savings account with its schedule",
                R"({"schedule": [{}, {}]})"),
         kAtCol, kLastRow,
         InOut("detArray", "Table", Unit::Table, "The table, with rows and columns enough")
             .Of(kSavingsSchedule)
             .Example("[[null, null, null, null, null, null], [null, null, null, null, null, null]]")}),
};

}  // namespace amortix2::describing
