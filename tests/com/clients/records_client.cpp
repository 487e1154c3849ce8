// A compiled client fills records as the type library declares them, has them computed and reads the
// schedules back. What comes through the server is compared, to the last bit, with the component called
// directly.

#include <amortix2.h>

#include "amortix2/calculators/calculator.h"
#include "amortix2/com/guid.h"
#include "amortix2/com/identity.h"
#include "amortix2/common/system_clock.h"
#include "client.h"

using namespace amortix2;
using namespace amortix2::com;
using namespace amortix2::com::client;

namespace {

ComPointer<IRecordInfo> RecordType(std::string_view name) {
  ComPointer<IRecordInfo> info;
  amortix2::com::Check(GetRecordInfoFromGuids(ToGuid(IdentifierOf(kLibraryName)), kInterfaceMajor,
                                              kInterfaceMinor, kUsEnglish, ToGuid(IdentifierOf(name)),
                                              info.Receive()));
  return info;
}

SAFEARRAY* Records(std::string_view name, ULONG count) {
  SAFEARRAYBOUND bound{count, 1};
  return SafeArrayCreateEx(VT_RECORD, 1, &bound, RecordType(name).Get());
}

/// A reference does not own the type either, which the caller keeps.
OwnedVariant RecordReference(const ComPointer<IRecordInfo>& type, void* record) {
  OwnedVariant argument = Reference(VT_RECORD, record);
  argument.Get().pRecInfo = type.Get();
  return argument;
}

bool SameLine(const ::tSchedule& a, const amortix2::tSchedule& b) {
  return a.lineDate == b.lineDate.serial && a.startingBalance == b.startingBalance &&
         a.intRate == b.intRate && a.payment == b.payment && a.intCharged == b.intCharged &&
         a.intCredited == b.intCredited && a.taxCharged == b.taxCharged && a.taxCredited == b.taxCredited &&
         a.endingBalance == b.endingBalance;
}

bool SameSchedule(SAFEARRAY* declaredLines, const std::vector<amortix2::tSchedule>& lines) {
  LONG upper = -1;
  if (declaredLines != nullptr) SafeArrayGetUBound(declaredLines, 1, &upper);
  bool same = upper + 1 == static_cast<LONG>(lines.size());
  for (std::size_t i = 0; same && i < lines.size(); ++i) {
    same = SameLine(*static_cast<::tSchedule*>(SafeArrayData(declaredLines).At(i)), lines[i]);
  }
  return same;
}

/// Wine clears records with arrays inside wrongly: they are freed before their records are.
void Free(SAFEARRAY* loans) {
  for (ULONG i = 0; i < loans->rgsabound[0].cElements; ++i) {
    auto& loan = *static_cast<::tLoanDesc*>(SafeArrayData(loans).At(i));
    SafeArrayDestroy(std::exchange(loan.schedule, nullptr));
  }
  SafeArrayDestroy(loans);
}

constexpr double kUnknown = amortix2::UNKNOWNLOANVALUE;

struct Terms {
  amortix2::enumLoanType type;
  double balance, payment, rate, period, apr;
};
constexpr Terms kLoans[] = {
    {amortix2::simpleLoan, 200000, kUnknown, 6.5, 360, kUnknown},
    {amortix2::simpleLoan, kUnknown, 1000, 7.25, 180, 0},
    {amortix2::simpleLoan, 150000, 1200, kUnknown, 240, 0},
    {amortix2::creditCard, 5000, 150, 18, kUnknown, 0},
    {amortix2::biWeekly, 90000, kUnknown, 5, 120, 0},
    {amortix2::loanAsLease, 30000, kUnknown, 4.9, 36, 0},
};
constexpr auto kCount = std::size(kLoans);

template <class Record>
void Fill(Record& loan, const Terms& terms) {
  loan.typ = static_cast<decltype(loan.typ)>(terms.type);
  loan.startingBalance = terms.balance;
  loan.payment = terms.payment;
  loan.intRate = terms.rate;
  loan.period = terms.period;
  loan.taxRate = 28;
  loan.points = 1.5;
  loan.flatFee = 300;
  loan.startDateDelay = 3;
  loan.numberPrepays = 1;
  loan.residualAmount = 9000;
  loan.APR = terms.apr;
}

int ComputeThroughServer(IDispatch& calculator, SAFEARRAY*& loans, ::tCreditQualification& household) {
  SAFEARRAY* savings = Records("tSavingsDesc", 0);
  SAFEARRAY* goals = Records("tGoalDesc", 0);
  const auto type = RecordType("tCreditQualification");
  std::vector<OwnedVariant> arguments;
  arguments.push_back(MakeValue(std::int32_t{amortix2::LoanCalculator}));
  arguments.push_back(Reference(VT_ARRAY | VT_RECORD, &loans));
  arguments.push_back(Reference(VT_ARRAY | VT_RECORD, &savings));
  arguments.push_back(Reference(VT_ARRAY | VT_RECORD, &goals));
  arguments.push_back(RecordReference(type, &household));
  const int number = NumberOfFailure(calculator, L"Amortix", arguments);
  SafeArrayDestroy(savings);
  SafeArrayDestroy(goals);
  return number;
}

void LoansAreTheSame(IDispatch& calculator) {
  RecordArray<amortix2::tLoanDesc> expected(1, kCount);
  SAFEARRAY* loans = Records("tLoanDesc", kCount);
  for (std::size_t i = 0; i < kCount; ++i) {
    auto& loan = *static_cast<::tLoanDesc*>(SafeArrayData(loans).At(i));
    Fill(loan, kLoans[i]);
    loan.startDate = 36922;
    loan.biweeklyDate = 37000;
    amortix2::tLoanDesc& own = expected.At(static_cast<std::int64_t>(i) + 1);
    Fill(own, kLoans[i]);
    own.startDate = amortix2::Date(36922);
    own.biweeklyDate = amortix2::Date(37000);
  }
  ::tCreditQualification household{};
  amortix2::tCreditQualification ownHousehold;
  household.monthsToKeep = ownHousehold.monthsToKeep = 60;
  household.homeValueGrowthRate = ownHousehold.homeValueGrowthRate = 3;

  const SystemClock clock;
  RecordArray<amortix2::tSavingsDesc> savings;
  RecordArray<amortix2::tGoalDesc> goals;
  amortix2::Calculator(clock).Amortix(amortix2::LoanCalculator, expected, savings, goals, ownHousehold);
  CHECK(ComputeThroughServer(calculator, loans, household) == 0);
  for (std::size_t i = 0; i < kCount; ++i) {
    const auto& loan = *static_cast<::tLoanDesc*>(SafeArrayData(loans).At(i));
    const amortix2::tLoanDesc& own = expected.At(static_cast<std::int64_t>(i) + 1);
    CHECK_FOR(std::to_string(i), SameSchedule(loan.schedule, own.schedule) && own.schedule.size() > 12);
    CHECK_FOR(std::to_string(i), loan.payment == own.payment && loan.intRate == own.intRate &&
                                     loan.period == own.period && loan.APR == own.APR &&
                                     loan.totPayments == own.totPayments &&
                                     loan.valueAtSalePV == own.valueAtSalePV);
  }

  // Computed again, the schedules have their length already and keep their place.
  auto& first = *static_cast<::tLoanDesc*>(SafeArrayData(loans).At(0));
  SAFEARRAY* const schedule = first.schedule;
  CHECK(ComputeThroughServer(calculator, loans, household) == 0 && first.schedule == schedule);

  OwnedVariant table = MakeValue(Array(Bounds{0, 12}, Bounds{0, 5}));
  const auto type = RecordType("tLoanDesc");
  std::vector<OwnedVariant> arguments;
  arguments.push_back(RecordReference(type, &first));
  arguments.push_back(MakeValue(std::int16_t{0}));
  arguments.push_back(MakeValue(std::int16_t{12}));
  arguments.push_back(Reference(table));
  CHECK(NumberOfFailure(calculator, L"LoadDetArray", arguments) == 0);
  const Variant filled = ReadValue(table.Get());
  CHECK(filled.GetArray().At(12, 4) == Variant(expected.At(1).schedule[12].endingBalance));
  CHECK(filled.GetArray().At(0, 0) == Variant("01-28-2001"));
  arguments[2] = MakeValue(std::int16_t{13});
  CHECK(NumberOfFailure(calculator, L"LoadDetArray", arguments) == 9);
  Free(loans);
}

void WrongRecordsAreRefused(IDispatch& calculator) {
  ::tCreditQualification household{};
  SAFEARRAY* schedules = Records("tSchedule", 2);
  CHECK(ComputeThroughServer(calculator, schedules, household) == 13);
  SafeArrayDestroy(schedules);
  SAFEARRAY* none = nullptr;
  CHECK(ComputeThroughServer(calculator, none, household) == 0 && none == nullptr);
}

}  // namespace

int main() {
  return Run(COINIT_MULTITHREADED, [] {
    const auto calculator = Create(L"Amortix2.Calculator.1");
    LoansAreTheSame(*calculator.Get());
    WrongRecordsAreRefused(*calculator.Get());
    CheckNothingLeaks("loans as records", 100, [&] { LoansAreTheSame(*calculator.Get()); });
  });
}
