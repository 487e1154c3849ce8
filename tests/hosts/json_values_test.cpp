#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "amortix2/automation/array.h"
#include "amortix2/cli/arguments.h"
#include "amortix2/cli/currency_text.h"
#include "amortix2/cli/iso_date.h"
#include "amortix2/cli/json_text.h"
#include "amortix2/cli/json_to_variant.h"
#include "amortix2/cli/request_error.h"
#include "amortix2/cli/variant_to_json.h"
#include "hosts/garbage.h"

namespace amortix2::cli {
namespace {

Variant Read(std::string_view text) {
  const auto json = ParseJson(text);
  if (!json) throw RequestError("no JSON");
  return ToVariant(*json);
}

std::string Written(const Variant& value, JsonForm form) {
  std::string out;
  AppendVariant(out, value, form);
  return out;
}

Array Row(std::int32_t lower, std::initializer_list<Variant> cells) {
  Array array({lower, lower + (static_cast<std::int32_t>(cells.size()) - 1)});
  std::ranges::copy(cells, array.Cells().begin());
  return array;
}

Array Table(Bounds rows, Bounds columns, std::initializer_list<Variant> cells) {
  Array array(rows, columns);
  std::ranges::copy(cells, array.Cells().begin());
  return array;
}

struct ValueCase {
  std::string_view json;
  Variant value;
  std::string_view plain;
  std::string_view typed;
};

TEST(JsonValues, ReadAndWrittenBothWays) {
  const ValueCase cases[] = {
      {"null", kNull, "null", R"({"type":"Null","value":null})"},
      {" true ", true, "true", R"({"type":"Boolean","value":true})"},
      // An integer literal of 32 bits is a Long, any other number a Double.
      {"360", 360, "360", R"({"type":"Long","value":360})"},
      {"-0", 0, "0", R"({"type":"Long","value":0})"},
      {"2147483647", 2147483647, "2147483647", R"({"type":"Long","value":2147483647})"},
      {"2147483648", 2147483648.0, "2147483648", R"({"type":"Double","value":2147483648})"},
      {"-2147483648", -2147483647 - 1, "-2147483648", R"({"type":"Long","value":-2147483648})"},
      {"-2147483649", -2147483649.0, "-2147483649", R"({"type":"Double","value":-2147483649})"},
      {"9223372036854775808", 0x1p63, "9.223372036854776e+18", ""},
      {"123456789012345678901234567890", 123456789012345678901234567890.0, "1.2345678901234568e+29", ""},
      {"5.0", 5.0, "5", R"({"type":"Double","value":5})"},
      {"2e5", 200000.0, "200000", ""},
      {"-0.0", 0.0, "0", ""},
      {"0.1", 0.1, "0.1", ""},
      {"1e16", 1e16, "1e+16", ""},
      {"0.0001", 1e-4, "0.0001", ""},
      {"1e-400", 0.0, "0", ""},
      {"5e-324", 5e-324, "5e-324", ""},
      {"1.7976931348623157e308", 1.7976931348623157e308, "1.7976931348623157e+308", ""},
      // Texts
      {R"("")", "", R"("")", R"({"type":"String","value":""})"},
      {R"("a\"\\\u00e9\n\u0000/")", std::string_view("a\"\\\xC3\xA9\n\0/", 8),
       "\"a\\\"\\\\\xC3\xA9\\n\\u0000/\"", ""},
      {R"("2001-01-31")", "2001-01-31", R"("2001-01-31")", ""},
      // Named types
      {R"({"type":"Empty"})", {}, "null", R"({"type":"Empty","value":null})"},
      {R"({"type":"Missing","value":null})", kMissing, "null", R"({"type":"Missing","value":null})"},
      {R"({"value":255,"type":"byte"})", std::uint8_t{255}, "255", R"({"type":"Byte","value":255})"},
      {R"({"type":"Integer","value":-32768})", std::int16_t{-32768}, "-32768", ""},
      {R"({"type":"Long","value":5.0})", 5, "5", ""},
      {R"({"type":"Double","value":5})", 5.0, "5", ""},
      {R"({"type":"Currency","value":12.5})", Currency{125000}, "12.5",
       R"({"type":"Currency","value":12.5})"},
      {R"({"type":"Currency","value":-100000000000001})", Currency{-1000000000000010000}, "-100000000000001",
       ""},
      {R"({"type":"Currency","value":"-0.0001"})", Currency{-1}, "-0.0001", ""},
      {R"({"type":"Currency","value":"922337203685477.5807"})", Currency{9223372036854775807},
       "922337203685477.5807", R"({"type":"Currency","value":"922337203685477.5807"})"},
      {R"({"type":"Date","value":"2000-02-29"})", MakeDate(2000, 2, 29), R"("2000-02-29")",
       R"({"type":"Date","value":"2000-02-29"})"},
      {R"({"type":"Date","value":"0100-01-01"})", kFirstDay, R"("0100-01-01")", ""},
      {R"({"type":"Date","value":"9999-12-31"})", kLastDay, R"("9999-12-31")", ""},
      // Arrays
      {"[]", Row(0, {}), "[]", R"({"type":"Array","lower":[0],"values":[]})"},
      {"[1,[2]]", Row(0, {1, Row(0, {2})}), "[1,[2]]", ""},
      {"[[1,2],[3]]", Row(0, {Row(0, {1, 2}), Row(0, {3})}), "[[1,2],[3]]", ""},
      {"[[1,2],[3,null]]", Table({0, 1}, {0, 1}, {1, 2, 3, kNull}), "[[1,2],[3,null]]",
       R"({"type":"Array","lower":[0,0],"values":[[{"type":"Long","value":1},{"type":"Long","value":2}],)"
       R"([{"type":"Long","value":3},{"type":"Null","value":null}]]})"},
      {R"({"lower":[1],"values":["E"]})", Row(1, {"E"}), R"(["E"])", ""},
      {R"({"lower":[1],"values":[[7]]})", Row(1, {Row(0, {7})}), "[[7]]", ""},
      {R"({"lower":[-1,2],"values":[[7]]})", Table({-1, -1}, {2, 2}, {7}), "[[7]]", ""},
      {R"({"lower":[0,0],"values":[[],[]]})", Table({0, 1}, {0, -1}, {}), "[[],[]]", ""},
      {R"({"type":"Array","lower":[2147483647],"values":[1]})", Row(2147483647, {1}), "[1]", ""},
  };
  for (const ValueCase& row : cases) {
    SCOPED_TRACE(row.json);
    EXPECT_EQ(Read(row.json), row.value);
    EXPECT_EQ(Written(row.value, JsonForm::Plain), row.plain);
    const std::string typed = Written(row.value, JsonForm::WithTypes);
    EXPECT_TRUE(row.typed.empty() || typed == row.typed) << typed;
    EXPECT_EQ(Read(typed), row.value) << typed;
  }
}

TEST(JsonValues, WhatIsNoValueIsRefused) {
  const std::string_view cases[] = {
      "",
      "{",
      "[1,]",
      "nan",
      "NaN",
      "Infinity",
      "1e400",
      "-1e309",
      "01",
      "'a'",
      "\"\xFF\"",
      R"("\ud800")",
      "1 2",
      "{}",
      R"({"type":"Real","value":1})",
      R"({"type":5,"value":1})",
      R"({"value":1})",
      R"({"type":"Long","value":1,"unit":"m"})",
      R"({"type":"Long","type":"Long","value":1})",
      R"({"type":"Long"})",
      R"({"type":"Empty","value":0})",
      R"({"type":"Byte","value":256})",
      R"({"type":"Byte","value":-1})",
      R"({"type":"Integer","value":32768})",
      R"({"type":"Integer","value":0.5})",
      R"({"type":"Long","value":2147483648})",
      R"({"type":"Double","value":"1"})",
      R"({"type":"Boolean","value":1})",
      R"({"type":"Currency","value":922337203685477.6})",
      R"({"type":"Currency","value":"922337203685477.5808"})",
      R"({"type":"Currency","value":"1.23456"})",
      R"({"type":"Currency","value":"."})",
      R"({"type":"Date","value":"2001-02-29"})",
      R"({"type":"Date","value":"0099-12-31"})",
      R"({"type":"Date","value":"10000-01-01"})",
      R"({"type":"Date","value":"2001-1-31"})",
      R"({"type":"Date","value":36922})",
      R"({"type":"String","value":null})",
      R"({"type":"Array","value":[]})",
      R"({"type":"Array","lower":[0]})",
      R"({"lower":[0],"value":[]})",
      R"({"lower":[],"values":[]})",
      R"({"lower":[0,0,0],"values":[]})",
      R"({"lower":[0.5],"values":[]})",
      R"({"lower":[0,0],"values":[[1],[2,3]]})",
      R"({"lower":[0,0],"values":[1]})",
      R"({"lower":[2147483647],"values":[1,2]})",
      R"({"lower":[-2147483648],"values":[]})",
      R"({"lower":[2147483648],"values":[1]})",
  };
  for (const std::string_view text : cases) EXPECT_THROW(Read(text), RequestError) << text;
}

TEST(JsonValues, EveryVariantComesBackAsItWas) {
  testing::Garbage garbage(20010131);
  for (int i = 0; i < 20000; ++i) {
    const Variant value = garbage.Any(3);
    const std::string typed = Written(value, JsonForm::WithTypes);
    ASSERT_EQ(Read(typed), value) << typed;
    ASSERT_TRUE(ParseJson(Written(value, JsonForm::Plain)));
  }
}

TEST(JsonValues, NumbersAreNeverLongerThanNeededAndNeverInfinite) {
  testing::Garbage garbage(7);
  for (int i = 0; i < 20000; ++i) {
    const double value = garbage.Number() / 3;
    std::string text;
    AppendNumber(text, value);
    EXPECT_EQ(std::strtod(text.c_str(), nullptr), value) << text;
    // Seventeen digits always suffice; a sign, a point and an exponent come on top.
    EXPECT_LE(text.size(), 24u) << text;
  }
  std::string out;
  EXPECT_THROW(AppendNumber(out, HUGE_VAL), AutomationError);
  EXPECT_THROW(AppendNumber(out, std::nan("")), AutomationError);
}

TEST(JsonValues, BytesThatAreNoUtf8AreReplaced) {
  EXPECT_EQ(Written(std::string_view("a\xFFz"), JsonForm::Plain), "\"a\xEF\xBF\xBDz\"");
  EXPECT_FALSE(IsUtf8("a\xFFz"));
}

TEST(JsonValues, DepthIsBounded) {
  const auto nested = [](std::size_t depth) { return std::string(depth, '[') + std::string(depth, ']'); };
  EXPECT_NO_THROW(Read(nested(kDeepest)));
  EXPECT_THROW(Read(nested(kDeepest + 1)), RequestError);
  EXPECT_THROW(Read(nested(1'000'000)), RequestError);
}

TEST(CommandLineValues, AreJsonOrADateOrText) {
  const std::pair<std::string_view, Variant> cases[] = {
      {"6.5", 6.5},
      {"360", 360},
      {"null", kNull},
      {"\"5\"", "5"},
      {"2001-01-31", MakeDate(2001, 1, 31)},
      {"2001-02-31", "2001-02-31"},
      {"1/31/2001", "1/31/2001"},
      {"", ""},
      {"nan", "nan"},
      {"$1,000", "$1,000"},
      {R"({"type":"Byte","value":1})", std::uint8_t{1}},
      {"[1]", Row(0, {1})},
  };
  for (const auto& [text, value] : cases) EXPECT_EQ(ToVariant(ReadValue(std::string(text))), value) << text;
  for (const char* text : {"[1", "{\"type\"", "1e400", "\xFF"})
    EXPECT_THROW(ReadValue(text), RequestError) << text;
}

}  // namespace
}  // namespace amortix2::cli
