#include "amortix2/cli/reply.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "amortix2/cli/json.h"
#include "amortix2/cli/json_text.h"

namespace amortix2::cli {
namespace {

class SomeDay final : public Clock {
 public:
  Date Today() const override { return MakeDate(2001, 1, 31); }
};

std::string Reply(std::string_view line, JsonForm form = JsonForm::Plain) {
  return Answer(line, SomeDay(), form);
}

/// A field of a reply, by its path, as JSON text; "" when there is none.
std::string At(const std::string& reply, std::initializer_list<std::string_view> path) {
  const auto json = ParseJson(reply);
  const Json* value = &*json;
  for (const std::string_view name : path) {
    if (!value->Object()) return "";
    const auto field = std::ranges::find(*value->Object(), name, &Json::Field::name);
    if (field == value->Object()->end()) return "";
    value = &field->value;
  }
  std::string text;
  AppendJson(text, *value);
  return text;
}

TEST(Reply, CarriesIdAndResultsInTheirOrder) {
  const std::string reply = Reply(
      R"({"id":[7,"x"],"call":"calculator.FIXEDPAYMENT","args":{"VPURCHASEAMT":200000,"vPeriod":360,"vIntRate":"6.5"}})");
  EXPECT_EQ(At(reply, {"id"}), R"([7,"x"])");
  EXPECT_EQ(At(reply, {"error"}), "");
  EXPECT_EQ(At(reply, {"results", "vResPayment"}), "1264.14");
  EXPECT_EQ(At(reply, {"return"}), "");
  std::size_t place = 0;
  for (const char* name :
       {"vResPurchaseAmt", "vResPayment", "vResPeriod", "vResIntRate", "vTotPay", "vTotInt", "vDetArray"}) {
    const std::size_t next = reply.find('"' + std::string(name) + '"');
    EXPECT_GT(next, place) << name;
    place = next;
  }
  EXPECT_EQ(reply.find('\n'), std::string::npos);
}

TEST(Reply, WhatIsNoRequestIsABadRequest) {
  const std::pair<std::string_view, std::string_view> cases[] = {
      {"", "empty"},
      {" \t\r", "empty"},
      {"{", "no JSON"},
      {"{}x", "no JSON"},
      {std::string_view("{}\0", 3), "no JSON"},
      {"{\"call\":\"\xC3\x28\"}", "no JSON"},
      {"5", "object"},
      {"[]", "object"},
      {"{}", "call"},
      {R"({"call":5})", "call"},
      {R"({"call":"FixedPayment"})", "CLASS.METHOD"},
      {R"({"call":"Calculator.FixedPayment","args":[]})", "args"},
      {R"({"call":"Calculator.FixedPayment","with":1})", "with"},
      {R"({"call":"Calculator.FixedPayment","arg":{}})", "arg"},
      {R"({"call":"Calculator.FixedPayment","call":"Calculator.FixedPayment"})", "twice"},
      {R"({"call":"Calculator.FixedPayment","args":{"vPeriod":1,"VPERIOD":2}})", "twice"},
      {R"({"call":"Calculator.FixedPayment","args":{"vPeriod":1e999}})", "range of doubles"},
      {R"({"call":"Calculator.FixedPayment","args":{"vPeriod":{"type":"Byte","value":-1}}})", "Byte"},
      {R"({"call":"Calculator.Amortix","args":{"LoanArray":5}})", "array"},
      {R"({"call":"Calculator.Amortix","args":{"LoanArray":[5]}})", "tLoanDesc"},
      {R"({"call":"Calculator.Amortix","args":{"LoanArray":[{"typ":1,"TYP":2}]}})", "twice"},
      {R"({"call":"Calculator.Amortix","args":{"LoanArray":{"lower":["1"],"values":[]}}})", "lower"},
      {R"({"call":"Calculator.Amortix","args":{"Qualification":[]}})", "tCreditQualification"},
      {R"({"call":"BarChart.MakeChart","with":{"SetGraphDimensions":5}})", "array of its arguments"},
      {R"({"call":"BarChart.MakeChart","with":{"SetGraphDimensions":[1,2,3]}})", "too many"},
      {R"({"call":"BarChart.MakeChart","with":{"NegativeBars":1,"negativeBars":0}})", "twice"},
      {R"({"call":"GifChart.OnStartPage","args":{"iScriptingContext":null}})", "page"},
  };
  for (const auto& [line, message] : cases) {
    const std::string reply = Reply(line);
    EXPECT_EQ(At(reply, {"error", "number"}), "0") << line << reply;
    EXPECT_EQ(At(reply, {"error", "name"}), "\"BadRequest\"") << line;
    EXPECT_NE(At(reply, {"error", "message"}).find(message), std::string::npos) << line << reply;
    EXPECT_EQ(At(reply, {"results"}), "") << line;
  }
  EXPECT_EQ(At(Reply(R"({"call":"x","id":"kept"})"), {"id"}), "\"kept\"");
}

TEST(Reply, UnknownNamesSayWhatThereIs) {
  const std::pair<std::string_view, std::string_view> cases[] = {
      {R"({"call":"Calculater.FixedPayment"})", "did you mean Calculator?"},
      {R"({"call":"Calculator.SimpleLoan"})", "did you mean SimpleLoanCalculator?"},
      {R"({"call":"Calculator.FixedPaiment"})", "did you mean FixedPayment?"},
      {R"({"call":"Calculator.FixedPayment","args":{"vPeriods":1}})", "did you mean vPeriod?"},
      {R"({"call":"Calculator.FixedPayment","args":{"":1}})", "There are: vLoanType"},
      {R"({"call":"Calculator.FixedPayment","with":{"NegativeBars":1}})", "There are: Amortix"},
      {R"({"call":"Calculator.Amortix","args":{"LoanArray":[{"intrates":1}]}})", "did you mean intRate?"},
      {R"({"call":"BarChart.NegativeBars"})", "property"},
  };
  for (const auto& [line, message] : cases) {
    const std::string reply = Reply(line);
    EXPECT_EQ(At(reply, {"error", "number"}), "438") << reply;
    EXPECT_EQ(At(reply, {"error", "name"}), "\"NoSuchMember\"") << reply;
    EXPECT_NE(At(reply, {"error", "message"}).find(message), std::string::npos) << reply;
  }
}

TEST(Reply, AFailedCallStillGivesItsResults) {
  // A term of 0 has no payment factor.
  const std::string reply = Reply(
      R"({"call":"Calculator.BalloonLoanPaymentCalculator","args":{"vPurchaseAmt":1000,"vPrincipal":"kept","vIntRate":5}})");
  EXPECT_EQ(At(reply, {"error"}), R"({"number":11,"name":"DivisionByZero"})");
  EXPECT_EQ(At(reply, {"results", "vPrincipal"}), "\"kept\"");
  EXPECT_EQ(At(reply, {"results", "vPayment"}), "null");
  // An argument that cannot take its value, and a setting that cannot be made.
  EXPECT_EQ(At(Reply(R"({"call":"Calculator.Amortix","args":{"AmortixType":"x"}})"), {"error", "number"}),
            "13");
  const std::string setting =
      Reply(R"({"call":"BarChart.MakeChart","args":{"vRes":5},"with":{"YLableFormatStr":null}})");
  EXPECT_EQ(At(setting, {"error", "number"}), "13");
  EXPECT_EQ(At(setting, {"results", "vRes"}), "5");
}

TEST(Reply, RecordsComeBackWhole) {
  const std::string_view loans =
      R"([{"typ":101,"startDate":"2001-01-31","startingBalance":200000,"period":360,"intRate":6.5,"payment":-12345}])";
  const auto call = [](std::string_view array) {
    return Reply(R"({"call":"Calculator.Amortix","args":{"AmortixType":4,"LoanArray":)" + std::string(array) +
                 "}}");
  };
  const std::string first = call(loans);
  EXPECT_EQ(At(first, {"return"}), "0");
  EXPECT_EQ(At(first, {"results", "SavingArray"}), "[]");
  const std::string solved = At(first, {"results", "LoanArray"});
  EXPECT_NE(solved.find(R"("startDate":"2001-01-31")"), std::string::npos);
  EXPECT_NE(solved.find(R"("payment":1264.14)"), std::string::npos);
  EXPECT_NE(solved.find(R"("schedule":[{"lineDate":"2001-01-31")"), std::string::npos);
  // What came back can be given again, and nothing is left to solve.
  EXPECT_EQ(At(call(solved), {"results", "LoanArray"}), solved);
  // Another lower bound comes back as it was given.
  const std::string shifted = R"({"lower":[0],"values":[{},)" + std::string(loans.substr(1)) + "}";
  EXPECT_EQ(At(call(shifted), {"results", "LoanArray", "lower"}), "[0]");
}

TEST(Reply, SettingsAreMadeInOrderOnAFreshObject) {
  const auto chart = [](std::string_view with) {
    return At(
        Reply(
            R"({"call":"BarChart.MakeChart","args":{"vColDat":[["",""],["a",1]],"Colgif":["",""],"Colleg":["",""],)"
            R"("Ttl":["","",""]},"with":)" +
            std::string(with) + "}"),
        {"results", "vRes"});
  };
  const std::string plain = chart("{}");
  EXPECT_NE(plain, "");
  EXPECT_NE(chart(R"({"SetGraphDimensions":[500,0]})"), plain);
  EXPECT_EQ(chart(R"({"setGraphDimensions":[0]})"), plain);
  EXPECT_EQ(chart("{}"), plain);
}

TEST(Reply, ChartsSendTheirImageToThePage) {
  std::string palette = "[[0,0,0]";
  for (int i = 1; i < 256; ++i) palette += ",[0,0,0]";
  const std::string reply =
      Reply(R"({"call":"GifChart.LineChart","args":{"vColDat":[[0,0],[0,1],[0,2]],"vPal":)" + palette +
            R"(]},"with":{"SetGraphDimensions":[3,2]}})");
  EXPECT_EQ(At(reply, {"error"}), "") << reply;
  // "GIF87a", three by two pixels, as base64.
  EXPECT_EQ(At(reply, {"response"}).substr(0, 15), "\"R0lGODdhAgADAP") << reply;
}

TEST(Reply, TypesAreOnVariantsAndNotInRecords) {
  const std::string reply =
      Reply(R"({"call":"Calculator.Amortix","args":{"GoalArray":[{"amount":5}]}})", JsonForm::WithTypes);
  EXPECT_EQ(At(reply, {"return"}), "0");
  EXPECT_EQ(
      At(reply, {"results", "GoalArray"}),
      R"([{"amount":5,"startDate":"1899-12-30","firstPaymentPeriod":0,"paymentMode":0,"period":0,"inflationRate":0}])");
  const std::string typed =
      Reply(R"({"call":"BarChart.MakeChart","args":{"blnk":"x"}})", JsonForm::WithTypes);
  EXPECT_EQ(At(typed, {"results", "blnk"}), R"({"type":"String","value":"x"})");
}

}  // namespace
}  // namespace amortix2::cli
