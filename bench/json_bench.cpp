// A loan's request as text to its reply as text, next to the bare chain of its schedule's 360 roundings:
//   BareChain        the chain
//   Answer/table     the whole reply: the numbers and a table of 361 by 6 cells
//   Answer/only      the same request that asks for the payment only

#include <benchmark/benchmark.h>

#include "amortix2/engine/rounding.h"
#include "amortix2/json/reply.h"

namespace amortix2::json {
namespace {

void BareChain(benchmark::State& state) {
  const double growth = 1 + 6.5 / 1200;
  for (auto _ : state) {
    double balance = 200000;
    for (int k = 0; k < 360; ++k) balance = RoundToCents(balance * growth) - 1264.14;
    benchmark::DoNotOptimize(balance);
  }
}
BENCHMARK(BareChain);

void Answer(benchmark::State& state, std::string_view request) {
  const FixedClock clock(MakeDate(2001, 1, 31));
  for (auto _ : state) benchmark::DoNotOptimize(json::Answer(request, {}, clock));
}
BENCHMARK_CAPTURE(Answer, table,
                  R"({"id":1,"call":"Calculator.SimpleLoanCalculator",)"
                  R"("args":{"vLoanType":"","vPurchaseAmt":200000,"vPeriod":360,"vIntRate":6.5}})");
BENCHMARK_CAPTURE(Answer, only,
                  R"({"id":1,"call":"Calculator.SimpleLoanCalculator","only":["vResPayment"],)"
                  R"("args":{"vLoanType":"","vPurchaseAmt":200000,"vPeriod":360,"vIntRate":6.5}})");

}  // namespace
}  // namespace amortix2::json
