// A portfolio's cash flow by month with QuantLib: each loan a bond whose notionals sink, its cash flows added
// up in doubles. Reads the table of examples/portfolio/loans.awk, and writes the sums as `amortix2 rows
// --sum` does. Built and run by portfolio.sh alone.

#include <array>
#include <cstdio>
#include <map>
#include <ql/cashflows/fixedratecoupon.hpp>
#include <ql/instruments/bonds/amortizingfixedratebond.hpp>
#include <ql/time/calendars/nullcalendar.hpp>
#include <ql/time/daycounters/thirty360.hpp>
#include <ql/time/schedule.hpp>

namespace {

using namespace QuantLib;  // NOLINT(google-build-using-namespace): the whole program

struct Sums {
  double payments = 0;
  double principal = 0;
  double interest = 0;
  double balance = 0;
};
using ByMonth = std::map<int, Sums>;

int MonthOf(const Date& date) { return date.year() * 12 + static_cast<int>(date.month()) - 1; }

void Add(ByMonth& months, double amount, int term, double percent, const Date& first) {
  const Date start = first - Period(1, Months);
  const Period length(term, Months);
  const Schedule schedule = sinkingSchedule(start, length, Monthly, NullCalendar());
  const std::vector<Real> notionals = sinkingNotionals(length, Monthly, percent / 100, amount);
  const DayCounter days = Thirty360(Thirty360::BondBasis);
  const AmortizingFixedRateBond bond(0, notionals, schedule, {percent / 100}, days);
  months[MonthOf(start)].balance += amount;
  double balance = amount;
  for (const auto& flow : bond.cashflows()) {
    Sums& month = months[MonthOf(flow->date())];
    month.payments += flow->amount();
    if (const auto coupon = ext::dynamic_pointer_cast<FixedRateCoupon>(flow)) {
      month.interest += coupon->amount();
    } else {
      month.principal += flow->amount();
      balance -= flow->amount();
      month.balance += balance;
    }
  }
}

}  // namespace

int main() {
  std::array<char, 256> line;
  if (!std::fgets(line.data(), line.size(), stdin)) return 1;
  ByMonth months;
  while (std::fgets(line.data(), line.size(), stdin)) {
    double amount = 0;
    double rate = 0;
    int term = 0;
    int year = 0;
    int month = 0;
    int day = 0;
    if (std::sscanf(line.data(), "%*[^,],%lf,%d,%lf,%d-%d-%d", &amount, &term, &rate, &year, &month, &day) !=
        6) {
      return 1;
    }
    Add(months, amount, term, rate, Date(day, static_cast<Month>(month), year));
  }
  std::puts("month,payments,principal,interest,balance\r");
  for (const auto& [month, sums] : months) {
    std::printf("%04d-%02d,%.2f,%.2f,%.2f,%.2f\r\n", month / 12, month % 12 + 1, sums.payments,
                sums.principal, sums.interest, sums.balance);
  }
  return 0;
}
