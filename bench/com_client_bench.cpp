// What a call through COM costs above the call itself: SimpleLoanCalculator with a schedule of 361 rows,
// late- and early-bound, and where the difference goes. All are measured in turn, again and again, so that
// whatever else the machine does meets all of them; the least time of each counts.

#include <amortix2.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <functional>
#include <vector>

#include "amortix2/automation/array.h"
#include "amortix2/calculators/calculator.h"
#include "amortix2/common/system_clock.h"
#include "client.h"

using namespace amortix2;
using namespace amortix2::com;
using namespace amortix2::com::client;

namespace {

struct Line {
  const char* what;
  std::function<void()> body;
  double best = 1e9;  // microseconds
};

void Time(Line& line) {
  using Clock = std::chrono::steady_clock;
  constexpr int kCalls = 20;
  const auto start = Clock::now();
  for (int i = 0; i < kCalls; ++i) line.body();
  const double mean = std::chrono::duration<double, std::micro>(Clock::now() - start).count() / kCalls;
  line.best = std::min(line.best, mean);
}

/// The first line is the measure of the others.
void Print(std::vector<Line> lines) {
  for (int round = 0; round < 300; ++round) {
    for (Line& line : lines) Time(line);
  }
  for (const Line& line : lines)
    std::printf("%-52s %9.2f us %7.1f %%\n", line.what, line.best, 100 * line.best / lines[0].best);
}

void Measure() {
  const SystemClock clock;
  const amortix2::Calculator calculator(clock);
  const Variant type("");
  const Variant amount(200000.0), none(0.0), period(360.0), rate(6.5);
  Variant results[7];
  const auto object = Create(L"Amortix2.Calculator");
  const auto early = object.As<_Calculator>(__uuidof(_Calculator));
  Loan loan;
  auto arguments = loan.Arguments(MakeValue(200000.0));
  arguments[3] = MakeValue(360.0);
  arguments[4] = MakeValue(6.5);
  const auto callItself = [&] {
    calculator.SimpleLoanCalculator(type, amount, none, period, rate, results[0], results[1], results[2],
                                    results[3], results[4], results[5], results[6]);
  };
  const auto callEarly = [&] {
    const auto place = [&](std::size_t i) { return &loan.results[i].Get(); };
    early->SimpleLoanCalculator(arguments[0].Get(), arguments[1].Get(), arguments[2].Get(),
                                arguments[3].Get(), arguments[4].Get(), place(0), place(1), place(2),
                                place(3), place(4), place(5), place(6));
  };
  const auto clear = [&] {
    for (OwnedVariant& result : loan.results) VariantClear(&result.Get());
  };
  callItself();
  const OwnedVariant table = MakeValue(results[6]);
  DISPID number = 0;
  auto* name = const_cast<wchar_t*>(L"SimpleLoanCalculator");
  Print({
      {"late-bound, by name, results freed",
       [&] { CallByName(*object.Get(), L"SimpleLoanCalculator", arguments), clear(); }},
      {"early-bound, results freed", [&] { callEarly(), clear(); }},
      {"late-bound, results of the call before overwritten",
       [&] { CallByName(*object.Get(), L"SimpleLoanCalculator", arguments); }},
      {"early-bound, results of the call before overwritten", callEarly},
      {"  computing: the call itself", callItself},
      {"  platform: its 361 texts made and freed",
       [] {
         std::array<BSTR, 361> texts;
         for (BSTR& text : texts) text = SysAllocStringLen(L"01-31-2001", 10);
         for (BSTR text : texts) SysFreeString(text);
       }},
      {"  platform: its 2166 cells made and freed",
       [] {
         SAFEARRAYBOUND bounds[2] = {{361, 0}, {6, 0}};
         SafeArrayDestroy(SafeArrayCreate(VT_VARIANT, 2, bounds));
       }},
      {"  conversion and platform: the table made and freed", [&] { MakeValue(results[6]); }},
      {"  finding the name", [&] { object->GetIDsOfNames(IID_NULL, &name, 1, 0, &number); }},
      {"  the table read back", [&] { ReadValue(table.Get()); }},
  });
  const auto chart = Create(L"Amortix2.BarChart");
  const auto direct = chart.As<_BarChart>(__uuidof(_BarChart));
  const OwnedVariant width = MakeValue(3.0);
  Print({
      {"a setting late-bound, by name",
       [&] {
         CallByName(*chart.Get(), L"SetAxisGif", {&width, 1});
       }},
      {"a setting early-bound", [&] { direct->SetAxisGif(width.Get()); }},
  });
}

}  // namespace

int main() { return Run(COINIT_APARTMENTTHREADED, Measure); }
