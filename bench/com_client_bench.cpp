// What a late-bound call costs above the call itself: SimpleLoanCalculator with a schedule of 361 rows, and
// where the difference goes.

#include <amortix2.h>

#include <array>
#include <chrono>
#include <cstdio>

#include "amortix2/automation/array.h"
#include "amortix2/calculators/calculator.h"
#include "amortix2/common/system_clock.h"
#include "client.h"

using namespace amortix2;
using namespace amortix2::com;
using namespace amortix2::com::client;

namespace {

/// Microseconds of one call, the best of ten rounds.
template <class Body>
double Time(Body body) {
  using Clock = std::chrono::steady_clock;
  constexpr int kCalls = 300;
  double best = 1e9;
  for (int round = 0; round < 10; ++round) {
    const auto start = Clock::now();
    for (int i = 0; i < kCalls; ++i) body();
    best = std::min(best, std::chrono::duration<double, std::micro>(Clock::now() - start).count() / kCalls);
  }
  return best;
}

void Print(const char* what, double microseconds) { std::printf("%-58s %8.2f us\n", what, microseconds); }

void Measure() {
  const SystemClock clock;
  const amortix2::Calculator calculator(clock);
  const Variant type("");
  const Variant amount(200000.0), none(0.0), period(360.0), rate(6.5);
  Variant results[7];
  Print("the call itself", Time([&] {
          calculator.SimpleLoanCalculator(type, amount, none, period, rate, results[0], results[1],
                                          results[2], results[3], results[4], results[5], results[6]);
        }));

  const auto object = Create(L"Amortix2.Calculator");
  Loan loan;
  auto arguments = loan.Arguments(MakeValue(200000.0));
  arguments[3] = MakeValue(360.0);
  arguments[4] = MakeValue(6.5);
  Print("late-bound, by name, results freed", Time([&] {
          CallByName(*object.Get(), L"SimpleLoanCalculator", arguments);
          for (OwnedVariant& result : loan.results) VariantClear(&result.Get());
        }));
  Print("late-bound, results of the call before overwritten",
        Time([&] { CallByName(*object.Get(), L"SimpleLoanCalculator", arguments); }));
  const auto early = object.As<_Calculator>(__uuidof(_Calculator));
  Print("early-bound, results freed", Time([&] {
          const auto place = [&](std::size_t i) { return &loan.results[i].Get(); };
          early->SimpleLoanCalculator(arguments[0].Get(), arguments[1].Get(), arguments[2].Get(),
                                      arguments[3].Get(), arguments[4].Get(), place(0), place(1), place(2),
                                      place(3), place(4), place(5), place(6));
          for (OwnedVariant& result : loan.results) VariantClear(&result.Get());
        }));
  const auto strategy = Create(L"Amortix2.BarChart");
  const auto direct = strategy.As<_BarChart>(__uuidof(_BarChart));
  const OwnedVariant width = MakeValue(3.0);
  Print("a setting late-bound, by name", Time([&] {
          CallByName(*strategy.Get(), L"SetAxisGif", {&width, 1});
        }));
  Print("a setting early-bound", Time([&] { direct->SetAxisGif(width.Get()); }));
  DISPID number = 0;
  auto* name = const_cast<wchar_t*>(L"SimpleLoanCalculator");
  Print("  finding the name", Time([&] { object->GetIDsOfNames(IID_NULL, &name, 1, 0, &number); }));
  Print("  the table as the platform's array, made and freed", Time([&] { MakeValue(results[6]); }));
  Print("    its 361 texts alone", Time([] {
          std::array<BSTR, 361> texts;
          for (BSTR& text : texts) text = SysAllocStringLen(L"01-31-2001", 10);
          for (BSTR text : texts) SysFreeString(text);
        }));
  Print("    its 2166 cells alone", Time([] {
          SAFEARRAYBOUND bounds[2] = {{361, 0}, {6, 0}};
          SafeArrayDestroy(SafeArrayCreate(VT_VARIANT, 2, bounds));
        }));
  const OwnedVariant table = MakeValue(results[6]);
  Print("  the table read back", Time([&] { ReadValue(table.Get()); }));
}

}  // namespace

int main() { return Run(COINIT_APARTMENTTHREADED, Measure); }
