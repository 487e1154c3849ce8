// Examples, answers, notes and faults: what a person is told of a call.

#include "amortix2/component/notes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <string>

#include "amortix2/component/answer.h"
#include "amortix2/engine/frequency.h"
#include "component/described_request.h"
#include "property.h"
#include "support.h"

namespace amortix2 {
namespace {

/// The figure in which each example's answer stands, and what an independent computation makes of it (annuity
/// formulas, and schedules in decimal arithmetic).
TEST(Examples, MakeOneSensibleRequest) {
  struct Row {
    const char* address;
    const char* figure;
    double value;
    double tolerance;
  };
  const Row rows[] = {
      {"loan", "vResPayment", 1264.14, 0.001},
      {"balloon", "vBalloonPayment", 181811.53, 0.02},
      {"lease", "vResPayment", 528.69, 0.001},
      {"lease-frequency", "vResPayment", 1578.18, 0.001},
      {"fixed", "vResPayment", 1264.14, 0.001},
      {"adjustable", "vResPayment", 1135.58, 0.001},
      {"afford", "vNewPrincipal", 248610.78, 0.001},
      {"qualify", "vNewPrincipal", 281394.62, 0.001},
      {"grid", "vGrid(4,3)", 1264.136, 0.006},
      {"refinance", "vGrid(4,3)", 6670.513, 0.05},
      {"prepay", "vGrid(3,3)", 221 - 166, 0},
      {"payoff", "grid(1,2)", 1819.91, 0.001},
      {"biweekly", "vGrid(3,2)", 185, 1},  // a payment of 13/12 a month takes 185 months
      {"points", "vGrid(4,3)", -2273.72, 0.05},
      {"arm", "vGrid(4,3)", -17607.17, 0.05},
      {"consolidate", "vGrid(4,1)", 26797.522, 0.05},
      {"rent-or-buy", "vGrid(10,2)", 72475.652, 0.05},
      {"save", "vEndBal", 36904.11, 0.02},
      {"deposit", "vPayment", 288.9365, 0.006},
      {"starting-balance", "vCurrBal", 13784.269, 0.006},
      {"savings-rate", "vIntRate", 8.7149, 0.0006},
      {"savings", "vResEndingBal", 35123.31, 0.02},
      {"future-value", "vEndingBal", 7454.13, 0.02},
      {"present-value", "vCurrBal", 33538.304, 0.006},
      {"yield", "vIntRate", 4.70925, 0.0006},
      {"retirement", "vGrid(4)", 280924.81, 0.02},
      {"spend", "vResPeriod", 209, 0},
      {"invest", "vStratNumber", 2, 0},  // 17 in 5 answers, of which three count twice: 17 / 8
  };
  std::map<std::string, int> seen;
  for (const Row& row : rows) {
    SCOPED_TRACE(row.address);
    const DescribedRequest request(std::string(row.address) + " +");
    EXPECT_NEAR(request.Out().Number(row.figure).value_or(-1), row.value, row.tolerance);
    EXPECT_GT(AnswerSentence(request.In(), request.Out()).size(), 20u);
    for (const Note& note : request.Notes()) EXPECT_EQ(note.code, "last-balance") << note.Text();
    ++seen[row.address];
  }
  for (const ClassMember& member : MembersInOrder()) {
    if (member.member->finds.empty()) continue;
    EXPECT_EQ(seen[std::string(member.member->address)], 1) << member.member->address;
  }
}

TEST(Examples, AreAnsweredInASentence) {
  const auto answer = [](const char* text) {
    const DescribedRequest request(text);
    return AnswerSentence(request.In(), request.Out());
  };
  EXPECT_EQ(answer("loan +"),
            "The loan costs 1,264.14 a month for 360 months; interest comes to 255,085.82.");
  EXPECT_EQ(
      answer("refinance + vNewRate=9"),
      "The payment goes from 1,300.00 to 1,349.59 a month; in today's money the new loan costs 9,388.27 "
      "more.");
  EXPECT_EQ(answer("refinance + vCurrPay=500"), "At this payment the loan is never paid off.");
  EXPECT_EQ(answer("savings + vPeriod=- vEndingBal=1000"), "No number of deposits leads to the goal.");
  EXPECT_EQ(answer("spend + vPayment=500"),
            "The interest covers the withdrawals: the balance lasts for ever.");
  EXPECT_EQ(answer("spend + vPayment=500 vFreq=10"), answer("spend + vPayment=500"));
  EXPECT_EQ(answer("loan vPurchaseAmt=200000"), "");
}

/// What people mistype, and all that they are told of it.
TEST(Notes, EveryMistakeHasItsNote) {
  struct Row {
    const char* request;
    const char* notes;
  };
  const Row rows[] = {
      {"loan +", ""},
      {"loan + vIntRate=6.5%", "vIntRate no-number"},
      {"loan + vIntRate=-", "vIntRate rate-is-zero"},
      {"loan + vPayment=1500", "vPayment found-anew"},
      {"loan vPurchaseAmt=200000 vPayment=1000 vIntRate=6.5", "vPayment payment-below-interest"},
      {"loan vPurchaseAmt=200000 vPayment=100 vPeriod=360", "vIntRate no-positive-rate"},
      {"loan vPurchaseAmt=200000 vIntRate=6.5", "vPayment nothing-found"},
      {"loan + vLoanType=credit", "vLoanType no-choice"},
      {"loan + vLoanType=c", ""},
      {"loan + vPeriod=359.5", "vPeriod no-whole-number"},
      {"loan + vIntRate=0.065", "vIntRate fraction, vDetArray last-balance"},
      {"loan + vPurchaseAmt=-5", "vPurchaseAmt negative"},
      {"balloon + vBalloonAtPeriod=360 vStartDate=tomorrow",
       "vStartDate no-date, vBalloonAtPeriod balloon-past-term"},
      {"lease + vPrepays=40", "vPrepays prepays-past-term"},
      {"lease + vPeriod=0.4", "vPeriod short-lease"},
      {"lease-frequency + vIntMode=5", "vIntMode interest-frequency"},
      {"lease-frequency + vPayMode=4 vIntMode=8", "vIntMode interest-frequency"},
      {"fixed + vDownPayment=250000", "vDownPayment down-payment"},
      {"fixed + vDownPayment=300000", "vDownPayment down-payment"},
      {"fixed + vCloseDate=2027-02-15", "vCloseDate closing-after-start"},
      {"fixed + vPeriod=30", "vPeriod short-term"},
      {"fixed + vPeriod=-", "vPeriod not-given"},
      {"fixed + vPayDate=soon vCloseDate=sooner", "vCloseDate no-date, vPayDate no-date"},
      {"adjustable + vRateCap=0", "vRateCap cap-below-rate, vDetArray last-balance"},
      {"adjustable + vIncDelay1=0", "vIncDelay1 rate-never-changes"},
      {"afford + vPayment=100", "vPayment budget-below-charges"},
      {"qualify + vAnnualIncome=1000", "vAnnualIncome budget-below-charges"},
      {"grid + vStepY=30", "vDownPayment grid-edge"},
      {"grid + vIntRate=0.5", "vIntRate grid-edge"},
      {"refinance + vSellByDate=400", "vSellByDate horizon"},
      {"refinance + vSellByDate=230", "vSellByDate horizon"},
      {"refinance + vSellByDate=221", ""},
      {"refinance + vSellByDate=2030-01-01", "vSellByDate date-for-number"},
      {"refinance + vCurrPay=500", "vCurrPay payment-below-interest"},
      {"refinance + vIncTaxRate=0.25", "vIncTaxRate fraction"},
      {"prepay + vCurrPay=500 vExtraPayment=100",
       "vCurrPay payment-below-interest, vExtraPayment payment-below-interest"},
      {"payoff + currPay=1300x", "currPay no-number, currPay payment-below-interest"},
      {"biweekly + vPaymentDate=x", "vPaymentDate no-date"},
      {"points + vDownpayment1=250000", "vDownpayment1 down-payment, vCurrDet last-balance"},
      {"arm + vRateCap2=0", "vRateCap2 cap-below-rate, vCurrDet last-balance, vNewDet last-balance"},
      {"consolidate + vCurrPay=[50,380,170,10]", "vCurrPay longer-list, vCurrPay payment-below-interest"},
      {"consolidate + vCurrRate=[\"18.9%\",8.5,12]", "vCurrRate no-number"},
      {"rent-or-buy + vSellByDate=361", "vSellByDate horizon"},
      {"save + vPeriod=2.9", "vPeriod no-whole-number"},
      {"save + vPeriod=120", "vPeriod long-plan"},
      {"save + vStartDate=-", "vStartDate start-not-given"},
      {"save + vFreq=monthly", "vFreq no-number"},
      {"save + vFreq=11", "vFreq no-choice"},
      {"save + vFreq=-", "vFreq not-given"},
      {"deposit + vEndingBal=1000", "vPayment negative-result"},
      {"starting-balance + vEndingBal=1000", "vCurrBal negative-result"},
      {"savings + vPeriod=- vEndingBal=10000", ""},
      {"savings + vPeriod=- vEndingBal=5100", "vEndingBal goal-passed"},
      {"savings + vPeriod=- vEndingBal=1000", "vEndingBal goal-out-of-reach"},
      {"savings + vFreq=8", "vPeriod long-plan"},
      {"savings + vEndingBal=50000", "vEndingBal found-anew"},
      {"future-value + vEndingDate=2020-01-01", "vEndingDate end-before-start"},
      {"present-value + vEndingDate=2027-01-01", "vEndingDate end-is-start"},
      {"retirement + vTyp=t", "vTyp no-choice, vIncTaxRate tax-not-used"},
      {"spend + vPayment=500", "vPayment lasts-for-ever"},
      {"spend + vPayment=1050", ""},  // the interest is 1000
      {"spend + vPayment=400000", "vPayment goal-passed"},
      {"savings-rate + vEndingBal=100", "vIntRate no-rate"},
      {"invest + vInvAmount=x", "vInvAmount no-number"},
      {"invest + vSurvey=[\"A\",\"B\",\"c\",7]",
       "vSurvey answer-not-read, vSurvey answer-off-scale, vSurvey answer-off-scale"},
  };
  for (const Row& row : rows) {
    std::string notes;
    for (const Note& note : DescribedRequest(row.request).Notes()) {
      notes += (notes.empty() ? "" : ", ") + std::string(note.parameter->name) + " " + std::string(note.code);
    }
    EXPECT_EQ(notes, row.notes) << row.request;
  }
}

TEST(Notes, SayWhatWasGivenAndWhatItCountsAs) {
  const auto first = [](const char* text) { return DescribedRequest(text).Notes().front().Text(); };
  EXPECT_EQ(first("loan + vIntRate=6.5%"), "vIntRate=\"6.5%\" is no number and counts as 0");
  EXPECT_EQ(first("save + vFreq=-"), "vFreq: Not given, so it counts as 0: once a year.");
  EXPECT_EQ(DescribedRequest("loan vPurchaseAmt=1002 vPeriod=7").Notes().back().Text(),  // seven times 143.14
            "vDetArray: Rounding leaves a last balance of 0.02.");
  EXPECT_EQ(first("loan vPurchaseAmt=200000 vPayment=1000 vIntRate=6.5"),
            "vPayment: Does not cover the interest, so the whole debt stands as one payment; it takes more "
            "than 1,083.33 a month.");
}

TEST(Faults, NameTheParameterThatMadeTheCallFail) {
  const std::pair<const char*, const char*> rows[] = {
      {"savings + vStartDate=soon", "vStartDate=\"soon\" is no date"},
      {"loan + vPeriod=-12", "vPeriod=\"-12\" is too small"},
      {"loan + vPeriod=99999", "vPeriod=\"99999\" is too large"},
      {"refinance + vNewTerm=-", "vNewTerm: Not given."},
      {"retirement + vIncTaxRate=x", "vIncTaxRate=\"x\" is no number"},
      {"retirement + vIncTaxRate=100 vEndingBal=1000", "vIncTaxRate=\"100\" is 100 %"},
      {"consolidate + vCurrPay=[240,380]", "vCurrPay: Has fewer elements than vCurrBal."},
      {"invest + vSurvey=5", "vSurvey=\"5\" is no list"},
      {"invest + vSurvey=[1]", "vSurvey=a list has no answers: they count from index 1 on"},
      {"invest + vSurvey=[1,1,null]", "vSurvey=a list has no answer at index 2"},
  };
  for (const auto& [text, fault] : rows) {
    const DescribedRequest request(text);
    ASSERT_TRUE(request.Error()) << text;
    const std::optional<Note> found = FaultOf(request.In(), *request.Error());
    ASSERT_TRUE(found) << text;
    EXPECT_EQ(found->Text(), fault);
  }
}

// ---- Sensible random requests

/// A sensible value of an input: around its example, in its range and steps; any of its choices.
std::string Around(const ParameterInfo& parameter, Random& random) {
  if (parameter.choices) {
    return std::string(random.OneOf(parameter.choices->choices).text);
  }
  if (parameter.unit == Unit::Date) {
    const Date date = *ParseDate(parameter.example);
    return std::string(View(FormatIso(AddDays(date, static_cast<std::int32_t>(random.Below(700)) - 350))));
  }
  if (!IsNumber(parameter.unit) || parameter.example.starts_with('[')) return std::string(parameter.example);
  const double step = parameter.range.step != 0 ? parameter.range.step : 0.01;
  const double factor = 0.6 + random.Unit();
  const double value = std::round(*ParseNumber(parameter.example) * factor / step) * step;
  return NumberText(std::clamp(value, parameter.range.least, parameter.range.most));
}

/// The finds of a member are what the core finds: all other inputs come back as they were given.
void ExpectOthersEchoed(const DescribedRequest& request) {
  // Where a payment can never do, the engine sets another.
  const auto setsAnother = [](const Note& note) {
    return note.code == "lasts-for-ever" || note.code == "payment-below-interest" ||
           note.code == "no-positive-rate" || note.code.starts_with("goal-");
  };
  const std::vector<Note> notes = request.Notes();
  if (std::ranges::any_of(notes, setsAnother)) return;
  const FindInfo* found = FoundBy(request.In());
  if (!found || request.Member().group == Group::Leases) return;
  for (const ParameterInfo& parameter : request.Member().parameters) {
    const double given = request.In().Number(parameter.echoes);
    const bool isReached = parameter.echoes == "vEndingBal";  // within what rounding leaves
    if (parameter.echoes.empty() || parameter.echoes == found->input || isReached || given == 0) continue;
    EXPECT_EQ(request.Out().Number(parameter.name), given) << parameter.name;
  }
}

/// Whether a note is true of a request, where there is another way to tell than the note's own.
bool IsTrue(const DescribedRequest& request, const Note& note) {
  const auto in = [&](std::string_view name) { return request.In().Number(name); };
  if (note.code == "payment-below-interest") {
    const bool isExtra = note.parameter->name == "vExtraPayment";
    const bool isFast = note.parameter->name == "currPay";
    const bool isLoan = note.parameter->name == "vPayment";
    const double payment = isExtra ? in("vCurrPay") + in("vExtraPayment") : in(note.parameter->name);
    const double balance = in(isFast ? "currBal" : isLoan ? "vPurchaseAmt" : "vCurrBal");
    return payment <= balance * in(isFast ? "currRate" : isLoan ? "vIntRate" : "vCurrRate") / 1200 + 0.01;
  }
  if (note.code == "no-positive-rate") {
    const double owed = in("vPurchaseAmt") + in("vPrincipal") - in("vEndingBal");
    return in("vPayment") * in("vPeriod") <= owed + 0.01;
  }
  return note.code != "tax-not-used" ||
         *request.Out().Number("vGrid(3)") == *request.Out().Number("vGrid(4)");
}

/// A sensible request; every second one gives what the first found and leaves out something else.
void TryOne(const ClassMember& member, Random& random) {
  DescribedRequest request(member);
  for (const ParameterInfo& parameter : member.member->parameters) {
    if (parameter.IsInput() && !parameter.example.empty())
      request.Give(parameter.name, Around(parameter, random));
  }
  request.Call();
  const auto check = [](const DescribedRequest& made) {
    ASSERT_FALSE(made.Error());
    ExpectOthersEchoed(made);
    EXPECT_EQ(AnswerSentence(made.In(), made.Out()).empty(), !FoundBy(made.In()));
    for (const Note& note : made.Notes()) EXPECT_TRUE(IsTrue(made, note)) << note.Text();
  };
  check(request);
  const std::span<const FindInfo> finds = member.member->finds;
  if (finds.front().input.empty()) return;
  DescribedRequest other(member);
  const std::string_view asked = random.OneOf(finds).input;
  for (std::size_t i = 0; i < member.member->parameters.size(); ++i) {
    const ParameterInfo& parameter = member.member->parameters[i];
    if (parameter.IsInput()) other.Give(parameter.name, ToText(request.In().At(i)));
    if (parameter.echoes.empty() || parameter.echoes == "vPrepays") continue;
    const std::optional<double> found = request.Out().Number(parameter.name);
    if (found && *found > 0) other.Give(parameter.echoes, NumberText(*found));
  }
  other.Give(asked, "-");
  other.Call();
  check(other);
}

TEST(Notes, AreTrueOfSensibleRequests) {
  std::vector<ClassMember> members;
  for (const ClassMember& member : MembersInOrder()) {
    const bool isCalculator = !member.member->finds.empty() && member.member->group != Group::Survey;
    if (isCalculator) members.push_back(member);
  }
  ForAll(Cases(1000, 10000), [&](Random& random) {
    const ClassMember& member = random.OneOf(members);
    SCOPED_TRACE(member.member->address);
    TryOne(member, random);
  });
}

/// Whatever is given, telling of it neither fails nor invents a parameter.
TEST(Notes, AreFoundForAnything) {
  // clang-format off
  const Variant odd[] = {{}, kNull, kMissing, "x", "6.5%", "1e400", 1e308, -1e308, 1e-308, -0.5, 0.0, 1.0, 360.0,
                         -40000.0, true, "C", "T", 2.5, 6.5, 100.0, 4.0, 70000.0, Date{46000}, kLastDay, kFirstDay,
                         "12/31/9999", Array({0, -1}), Array({0, 2}), Array({1, 2}, {0, 6}),
                         FromJson("[1, \"a\", null]")};
  // clang-format on
  ForAll(Cases(3000, 100000), [&](Random& random) {
    const ClassMember& member = random.OneOf(MembersInOrder());
    if (member.member->group == Group::Charts) return;
    SCOPED_TRACE(member.member->address);
    DescribedRequest request(member);
    request.GiveExamples();
    for (std::size_t place = 0; place < member.member->parameters.size(); ++place) {
      if (random.OneIn(3)) request.GiveVariant(place, random.OneOf(odd));
    }
    request.Call();
    AnswerSentence(request.In(), request.Out());
    for (const Note& note : request.Notes()) ASSERT_TRUE(note.parameter && !note.Text().empty()) << note.code;
    if (request.Error()) FaultOf(request.In(), *request.Error());
  });
}

}  // namespace
}  // namespace amortix2
