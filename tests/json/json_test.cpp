// Whole answers, row by row: values.txt has values and why others are none, replies.txt requests and their
// replies.

#include <gtest/gtest.h>

#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <fstream>
#include <set>

#include "amortix2/json/csv.h"
#include "amortix2/json/description_json.h"
#include "amortix2/json/json_text.h"
#include "amortix2/json/lookup.h"
#include "amortix2/json/reply.h"
#include "amortix2/json/reply_size.h"
#include "amortix2/json/request_error.h"
#include "amortix2/json/strangers.h"
#include "amortix2/json/variant_reader.h"
#include "json/random_values.h"
#include "property.h"
#include "support.h"

namespace amortix2::json {
namespace {

/// The lines of a file of rows that are no comments, each split at " | ".
std::vector<std::vector<std::string>> Rows(const std::string& name) {
  std::ifstream file(AMORTIX2_JSON_ROWS + name);
  std::vector<std::vector<std::string>> rows;
  for (std::string line; std::getline(file, line);) {
    if (line.starts_with('#')) continue;
    auto& row = rows.emplace_back();
    for (std::size_t end; (end = line.find(" | ")) != std::string::npos; line.erase(0, end + 3)) {
      row.push_back(line.substr(0, end));
    }
    row.push_back(line);
  }
  return rows;
}

/// A value, or why it is none.
std::pair<Variant, std::string> Read(std::string_view text) {
  try {
    const auto [tree, badByte] = ParseTree(text);
    if (!tree) return {{}, "no JSON: byte " + std::to_string(badByte)};
    return {ToVariant(*tree), ""};
  } catch (const RequestError& error) {
    return {{}, error.what()};
  }
}

std::string Written(const Variant& value, Form form) {
  std::string out;
  AppendVariant(out, value, form);
  return out;
}

TEST(Json, ValuesAreReadAndWrittenBothWays) {
  const auto rows = Rows("values.txt");
  ASSERT_GT(rows.size(), 80u);
  for (const auto& row : rows) {
    SCOPED_TRACE(row[0]);
    const auto [value, reason] = Read(row[0]);
    if (row.size() == 2) {
      EXPECT_EQ(reason, row[1]);
      continue;
    }
    EXPECT_EQ(reason, "");
    EXPECT_EQ(Written(value, Form::Plain), row[1]);
    EXPECT_EQ(Written(value, Form::WithTypes), row[2]);
    EXPECT_EQ(Read(row[2]).first, value);
  }
}

TEST(Json, EveryVariantComesBackAsItWas) {
  ForAll(Cases(4000, 20000), [](Random& random) {
    const Variant value = RandomValues(random).Any(3);
    const std::string typed = Written(value, Form::WithTypes);
    ASSERT_EQ(Read(typed).first, value) << typed;
    ASSERT_EQ(Read(Written(value, Form::Plain)).second, "");
  });
}

// Any number comes back and has at most seventeen digits, with a sign, a point and an exponent on top; cents
// and their neighbours have the shortest digits of all.
TEST(Json, NumbersAreShortAndNeverInfinite) {
  const auto written = [](double value) {
    std::string text;
    AppendNumber(text, value);
    return text;
  };
  ForAll(Cases(10000, 60000), [&](Random& random) {
    const double any = RandomValues(random).Number() / 3;
    EXPECT_EQ(std::strtod(written(any).c_str(), nullptr), any);
    EXPECT_LE(written(any).size(), 24u) << any;
    const double amount = static_cast<double>(random.Below(std::int64_t{1} << random.Below(56))) / 100;
    const double near = random.OneIn(3) ? amount : std::nextafter(amount, random.OneIn(2) ? -1e300 : 1e300);
    if (std::abs(near) < 1e-4 || near >= 1e16) return;
    const double value = random.OneIn(2) ? near : -near;
    std::array<char, 64> digits;
    const auto end = std::to_chars(digits.data(), digits.data() + 64, value, std::chars_format::fixed).ptr;
    EXPECT_EQ(written(value), std::string(digits.data(), end));
  });
  EXPECT_THROW(written(HUGE_VAL), AutomationError);
  EXPECT_THROW(written(std::nan("")), AutomationError);
}

TEST(Json, BytesThatAreNoUtf8) {
  EXPECT_EQ(Written(std::string_view("a\xFFz"), Form::Plain), "\"a\xEF\xBF\xBDz\"");
  EXPECT_EQ(Read("\"\xC3\x28\"").second, "no JSON: byte 3");
  EXPECT_EQ(Read(std::string_view("1\0", 2)).second, "no JSON: byte 2");
}

TEST(Json, BytesAreWrittenInBase64) {
  const std::pair<std::vector<std::uint8_t>, const char*> rows[] = {
      {{}, "\"\""}, {{'f'}, "\"Zg==\""}, {{'f', 'o'}, "\"Zm8=\""}, {{'f', 'o', 'o', 0xFF}, "\"Zm9v/w==\""}};
  for (const auto& [bytes, expected] : rows) {
    std::string out;
    AppendBase64(out, bytes);
    EXPECT_EQ(out, expected);
  }
}

TEST(Json, RecordsOfCsvEndWithTheirLinesOrQuotes) {
  const std::string longest(kLongestRecord, 'x');
  const struct {
    std::string text;
    std::size_t length, ofAll;  // where more may follow, and where it is all
  } rows[] = {{"a,b\r\nc", 5, 5},
              {"a", 0, 1},
              {"\"a\n\"\"\",b\nc", 9, 9},
              {"a,\"b\nc\nd", 0, 5},
              {"a\"b\nc", 4, 4},
              {longest + "x", 0, kLongestRecord + 1},
              {"\"" + longest + "\"\n", kLongestRecord + 3, kLongestRecord + 3},
              {"\"a\n" + std::string(kLongestRecord - 3, 'x'), 0, 3}};
  for (const auto& row : rows) {
    EXPECT_EQ(CsvRecordLength(row.text, false), row.length) << row.text.substr(0, 20);
    EXPECT_EQ(CsvRecordLength(row.text, true), row.ofAll) << row.text.substr(0, 20);
  }
}

// Up to a third of the letters, and one, may be put in, left out or changed.
TEST(Json, TheNearestNameIsSuggested) {
  constexpr std::string_view kNames[] = {"vPayment", "vPeriod", "vIntRate"};
  const std::pair<const char*, const char*> rows[] = {
      {"VPER", "vPeriod"}, {"dPerioz", "vPeriod"}, {"vPrdxx", ""},           {"vPerd", "vPeriod"},
      {"vPrd", ""},        {"IntRat", "vIntRate"}, {"vaPerioxd", "vPeriod"}, {"", ""}};
  for (const auto& [asked, closest] : rows) EXPECT_EQ(Closest(asked, kNames), closest) << asked;
}

TEST(Json, DepthIsBounded) {
  for (const std::size_t depth : {kDeepest, kDeepest + 1, std::size_t{1'000'000}}) {
    const auto reason = Read(std::string(depth, '[') + std::string(depth, ']')).second;
    EXPECT_EQ(reason, depth == kDeepest ? "" : "JSON nested deeper than 64 levels");
  }
}

TEST(Json, RequestsGetTheirReplies) {
  const auto rows = Rows("replies.txt");
  ASSERT_GE(rows.size(), 40u);
  for (const auto& row : rows) {
    EXPECT_EQ(Answer(row[0], {}, kClock), row[1]) << row[0];
    EXPECT_EQ(Answer(row[0], {Form::WithTypes}, kClock), row.back()) << row[0];
  }
  // A note is made of a table that nobody asked for: 30 payments of 3000 at 1 % a month, rounded down.
  EXPECT_EQ(Answer(R"({"call":"Calculator.SimpleLoanCalculator","only":["vResPayment"],)"
                   R"("args":{"vPurchaseAmt":3000,"vPeriod":30,"vIntRate":12}})",
                   {.notes = true}, kClock),
            R"({"results":{"vResPayment":116.24},"notes":[{"code":"last-balance","parameter":"vDetArray",)"
            R"("text":"vDetArray: Rounding leaves a last balance of 0.15."}]})");
}

TEST(Json, StrangersAreKeptWithinLimits) {
  const auto rows = Rows("strangers.txt");
  ASSERT_GE(rows.size(), 9u);
  for (const auto& row : rows) {
    EXPECT_EQ(Answer(row[0], {.notes = true, .strangers = true}, kClock), row[1]) << row[0];
    EXPECT_NE(Answer(row[0], {.notes = true}, kClock), row[1]);
  }
  // Just within them: twenty loans, and 360 payments of the first.
  const auto twenty = [](const std::string& first, const std::string& other) {
    std::string list = "[" + first;
    for (int i = 1; i < 20; ++i) list += "," + other;
    return list + "]";
  };
  const std::string loans = R"({"call":"Calculator.LoanConsolidationCalculator","args":{"vCurrBal":)" +
                            twenty("3600", "1") + R"(,"vCurrPay":)" + twenty("10", "1") + R"(,"vCurrRate":)" +
                            twenty("0", "0") + R"(,"vNewTerm":12}})";
  EXPECT_TRUE(Answer(loans, {.strangers = true}, kClock).starts_with(R"({"results":)"));
  std::string longest = R"({"call":"Calculator.SimpleLoanCalculator","only":["vTotPay"]})";
  longest.resize(kLongestStrangersRequest, ' ');
  EXPECT_EQ(Answer(longest, {.strangers = true}, kClock), R"({"results":{"vTotPay":0}})");
  EXPECT_NE(Answer(longest + " ", {.strangers = true}, kClock).find("longer than 262144 bytes"),
            std::string::npos);
  // A text of 1002 characters may stand in 523 cells, which have not more than 2^19: two a line, and five
  // beside.
  const auto chart = [](std::size_t lines) {
    std::string request = R"({"call":"SvgChart.AxisRange","with":{"Title":")" + std::string(1002, 'x');
    request += R"("},"args":{"vColDat":[["","a"])";
    for (std::size_t i = 1; i < lines; ++i) request += R"(,["",1])";
    return Answer(request + "]}}", {.strangers = true}, kClock);
  };
  EXPECT_NE(chart(260).find("a text is too long for so many cells"), std::string::npos);
  EXPECT_TRUE(chart(259).starts_with(R"({"results":{"vTop":)")) << chart(259);
  // Five bytes for each "&", in the label, the name and the value of 60 bars, and once more in the words.
  const auto drawn = [](std::size_t length) {
    const std::string text(length, '&');
    std::string request = R"({"call":"SvgChart.MakeChart","with":{"AltLabelWithLegend":1,"AltFormatStr":"\")";
    request += text + R"(\""},"args":{"blnk":"","Colgif":"","Colleg":"","Ttl":"","Xaxis":"","Yaxis":"",)" +
               R"("vColDat":[["",")" + text + "\"]";
    for (int i = 0; i < 60; ++i) request += ",[\"" + text + "\",1]";
    return Answer(request + "]}}", {.strangers = true}, kClock);
  };
  EXPECT_TRUE(drawn(2600).starts_with(R"({"results":)"));
  EXPECT_EQ(
      drawn(3800),
      R"({"error":{"number":7,"name":"OutOfMemory","message":"the answer is longer than 4194304 bytes"}})");
}

// So close that nothing is set aside in vain, and an answer that is too long is not written at all.
TEST(Json, TheLengthOfAReplyIsKnownBeforeItIsWritten) {
  std::vector<std::string> requests{Rows("replies.txt").back()[0]};  // a GIF, in the response
  for (const char* value : {"5", "[1,[-0.12345678901234567e-300,2]]"}) {
    for (const std::size_t repeated : {1U, 3000U}) {
      std::string text = R"({"call":"BarChart.MakeChart","args":{"Yaxis":")" + std::string(repeated, 'x');
      requests.push_back(text + R"(","Xaxis":)" + value + "}}");
    }
  }
  for (const std::string& text : requests) {
    for (const Form form : {Form::Plain, Form::WithTypes}) {
      const Execution execution(ReadRequest(*ParseTree(text).tree), kClock);
      const ReplySize size = SizeOfReply(execution, form);
      const std::size_t written = ReplyTo(execution, {form}).size();
      EXPECT_TRUE(size.least <= written && written <= size.most + 512) << size.least << " " << size.most;
      EXPECT_LE(size.most, size.least + 60 * size.cells);
    }
  }
}

TEST(Json, WhatAnAmortizationReturnsCanBeGivenAgain) {
  const auto solved = [&](const std::string& loans) {
    const std::string reply = Answer(
        R"({"call":"Calculator.Amortix","args":{"AmortixType":4,"LoanArray":)" + loans + "}}", {}, kClock);
    return ParseTree(reply).tree->at("results").at("LoanArray").dump();
  };
  const std::string loans =
      R"([{},{"typ":101,"startDate":"2001-01-31","startingBalance":200000,"period":360,"intRate":6.5}])";
  const std::string first = solved(R"({"lower":[0],"values":)" + loans + "}");
  EXPECT_TRUE(first.starts_with(R"({"lower":[0],"values":[{)")) << first.substr(0, 100);
  EXPECT_EQ(solved(first), first);
}

TEST(Json, TheDescriptionIsCompleteAndNamesOnlyTypesThatItDescribes) {
  const auto description = nlohmann::json::parse(DescriptionJson());
  std::set<std::string> types{"Variant", "Double", "Byte", "Integer",
                              "Long",    "String", "Date", "page context"};
  for (const char* list : {"records", "enumerations"}) {
    for (const auto& type : description.at(list)) types.insert(type.at("name"));
  }
  EXPECT_EQ(types.size(), 8 + Records().size() + Enumerations().size());
  const auto known = [&](const std::string& type) {
    return types.contains(type.starts_with("array of ") ? type.substr(9) : type);
  };
  ASSERT_EQ(description.at("classes").size(), Classes().size());
  for (std::size_t i = 0; i < Classes().size(); ++i) {
    const auto& members = description.at("classes")[i].at("members");
    ASSERT_EQ(members.size(), Classes()[i]->members.size());
    for (const auto& member : members) {
      for (const auto& parameter : member.at("parameters")) {
        EXPECT_TRUE(known(parameter.at("type"))) << parameter;
      }
    }
  }
}

}  // namespace
}  // namespace amortix2::json
