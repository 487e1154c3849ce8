#include "amortix2/pages/method_page.h"

#include "amortix2/pages/frame.h"

namespace amortix2::pages {
namespace {

struct Passage {
  std::string_view title;
  std::string_view text;
};

constexpr Passage kPassages[] = {
    {"Rounding",
     "Money is rounded to cents in every line of a schedule, not only at the end; half a cent goes up. A "
     "lender "
     "does the same, which is why sums here are those of its statements and not those of a formula."},
    {"The last payment",
     "A payment in whole cents pays off a little less or more than the debt. When the term is given, the "
     "rest "
     "stands as the last balance, and the answer names it. When the term is found, the last payment takes "
     "it."},
    {"Rates",
     "A rate is nominal and a year’s; each month is charged a twelfth of it. A rate that is found is rounded "
     "to "
     "three decimals."},
    {"Dates",
     "Payments fall on the same day of each month; where a month is too short, on its last day. The years of "
     "a "
     "schedule are calendar years, so its first and last may hold fewer payments."},
    {"Today’s money",
     "Comparisons count what is paid less the tax that it saves, and discount later amounts by what the "
     "money "
     "would earn elsewhere. Without growth and tax, a cost is simply the sum of all that is paid."},
    {"Estimates, no advice",
     "The figures follow from what is put in and from nothing else: no market data, no lender’s fees that "
     "nobody "
     "entered, no holidays, no tax law beyond the rate that is given. Ask somebody who knows your case "
     "before you "
     "sign."},
    {"What happens to the inputs",
     "They stand in the page’s address and nowhere else: there are no cookies and no scripts, and nothing is "
     "asked "
     "of other hosts. Whoever has the link sees the same answer."},
};

}  // namespace

Page MethodPage() {
  EscapedMarkup out;
  out.Open("div", {{"class", "prose"}});
  out.TextElement("h1", {}, "How the figures are made");
  for (const Passage& passage : kPassages) {
    out.TextElement("h2", {}, passage.title);
    out.TextElement("p", {}, passage.text);
  }
  out.Close();
  return Framed("Method", "/method", out);
}

}  // namespace amortix2::pages
