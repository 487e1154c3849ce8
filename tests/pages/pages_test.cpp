// What programs and people get for a request, whole where it is short, and what holds of every page.

#include <gtest/gtest.h>

#include <clocale>
#include <cstdlib>
#include <ctime>
#include <map>

#include "amortix2/charts/escaped_markup.h"
#include "amortix2/json/json_text.h"
#include "amortix2/json/lookup.h"
#include "amortix2/json/reply.h"
#include "amortix2/json/request_error.h"
#include "amortix2/pages/calculation.h"
#include "amortix2/pages/chart_numbers.h"
#include "amortix2/pages/pasted_table.h"
#include "amortix2/pages/site.h"
#include "amortix2/pages/typed_input.h"
#include "support.h"

namespace amortix2::pages {
namespace {

const FixedClock kDay(MakeDate(2026, 11, 21));

Page Get(const std::string& path, const Query& query) {
  const std::string text = query.Text();
  return Answer({.method = "GET", .path = path, .query = text}, kDay);
}

std::vector<ClassMember> Members() {
  std::vector<ClassMember> members;
  for (const ClassMember& member : MembersInOrder()) {
    if (!member.member->finds.empty()) members.push_back(member);
  }
  return members;
}

std::string PathOf(const ClassMember& member) { return "/" + std::string(member.member->address); }

struct Exchange {
  const char* method;
  const char* path;
  const char* query;
  const char* body;
  int status;
  std::string answer;  ///< the whole of it; of a page nothing
};

// The schedules are reckoned by hand: 5.42 is a month's interest on 1,000 at 6.5 % a year.
const Exchange kExchanges[] = {
    {"GET", "/nothing", "", "", 404, ""},
    {"GET", "/loan", "vIntRate=%zz", "", 400, ""},
    {"POST", "/loan", "", "", 405, ""},
    {"DELETE", "/", "", "", 405, ""},
    {"GET", "/loan", "vPurchaseAmt=%241%2C000&vPeriod=2+months&vIntRate=6.5+%25&find=vPayment&format=csv", "",
     200,
     "Date,Payment,Principal,Interest,Balance\r\n11-21-2026,0,0,0,1000\r\n12-21-2026,504.07,498.65,5.42,501."
     "35\r\n"
     "01-21-2027,504.07,501.35,2.72,0\r\n"},
    {"GET", "/loan", "vPurchaseAmt=1000&vPeriod=2&vIntRate=6.5&find=vPayment&format=csv&table=figures", "",
     200,
     "Figure,Value\r\nAmount,1000\r\nMonthly payment,504.07\r\nTerm,2\r\nInterest rate,6.5\r\n"
     "Total of payments,1008.14\r\nTotal interest,8.14\r\n"},
    {"GET", "/loan", "vPurchaseAmt=none&vPeriod=2&vIntRate=6.5&find=vPayment&format=json", "", 400,
     R"({"error":{"number":0,"name":"BadRequest","message":"\"none\" cannot be read. Write it like $200,000.00.",)"
     R"("parameter":"vPurchaseAmt"}})"
     "\n"},
    {"POST", "/call", "",
     R"({"id":7,"call":"Calculator.SimpleLoanCalculator","args":{"vPurchaseAmt":1000,"vPeriod":2,"vIntRate":6.5},)"
     R"("only":["vResPayment"]})",
     200, "{\"id\":7,\"results\":{\"vResPayment\":504.07}}\n"},
    {"POST", "/call", "", "{", 400,
     R"({"error":{"number":0,"name":"BadRequest","message":"the line is no JSON: byte 2 does not fit"}})"
     "\n"},
    {"POST", "/call", "", R"({"call":"GifChart.DumpAFile","args":{"x":"/etc/passwd"}})", 400,
     R"({"error":{"number":438,"name":"NoSuchMember","message":"GifChart.DumpAFile is not open to strangers: it )"
     "reaches files\"}}\n"},
    {"PUT", "/call", "", "", 405,
     R"({"error":{"number":0,"name":"BadRequest","message":"no such method here"}})"
     "\n"},
};

TEST(Pages, RequestsHaveTheirAnswers) {
  for (const auto& [method, path, query, body, status, answer] : kExchanges) {
    const Page page = Answer({method, path, query, body}, kDay);
    EXPECT_EQ(page.status, status) << path << query << body;
    EXPECT_EQ(page.allow.empty(), status != 405) << path;
    if (!answer.empty()) {
      EXPECT_EQ(page.bytes, answer);
    }
  }
}

TEST(Pages, AnExampleIsAnsweredAsARequestOfJsonIs) {
  for (const ClassMember& member : Members()) {
    Query query = ExampleQuery(*member.member);
    query.Set("format", "json");
    json::Tree arguments = json::Tree::object();
    for (const ParameterInfo& parameter : member.member->parameters) {
      if (!parameter.IsInput() || parameter.example.empty() || query.Get("find") == parameter.name) continue;
      const auto tree = json::ParseTree(parameter.example).tree;
      arguments[std::string(parameter.name)] = tree ? *tree : json::Tree(parameter.example);
    }
    const std::string call = std::string(member.type->name) + "." + std::string(member.member->name);
    const std::string request = json::Tree{{"call", call}, {"args", arguments}}.dump();
    EXPECT_EQ(Get(PathOf(member), query).bytes, json::Answer(request, {}, kDay) + "\n") << call;
  }
}

std::map<std::string, std::string> AllPages() {
  std::map<std::string, std::string> pages;
  for (const char* path : {"/", "/chart", "/method", "/api", "/openapi.json"})
    pages[path] = Get(path, {}).bytes;
  for (const ClassMember& member : Members()) {
    pages[PathOf(member)] = Get(PathOf(member), ExampleQuery(*member.member)).bytes;
  }
  return pages;
}

TEST(Pages, AreTheSameASecondTimeUnderAnotherLocaleAndTimeZone) {
  const auto before = AllPages();
  for (const auto& [path, bytes] : before) EXPECT_GT(bytes.size(), 1000U) << path;
  const std::string locale = std::setlocale(LC_ALL, nullptr);
  const char* zone = std::getenv("TZ");
  const std::string kept = zone ? zone : "";
  std::setlocale(LC_ALL, "de_DE.UTF-8") || std::setlocale(LC_ALL, "C.UTF-8");
  setenv("TZ", "Pacific/Apia", 1);
  tzset();
  EXPECT_EQ(AllPages(), before);
  std::setlocale(LC_ALL, locale.c_str());
  zone ? setenv("TZ", kept.c_str(), 1) : unsetenv("TZ");
}

/// The names of a page's fields: inputs as they are, questions by their number.
std::vector<std::string> FieldsOf(const MemberInfo& member) {
  std::vector<std::string> names{"find", "with", "format"};
  for (const ParameterInfo& parameter : member.parameters) {
    const std::string name(parameter.name);
    if (parameter.IsInput() && parameter.questions.empty()) names.push_back(name);
    for (std::size_t i = 1; i <= parameter.questions.size(); ++i)
      names.push_back(name + "." + std::to_string(i));
  }
  return names;
}

// Whatever stands in whichever field: a page comes, markup stays text, and a number or date that is none is
// told at its field, where what was typed stays.
TEST(Pages, WrongInputsAreToldAtTheirFields) {
  const std::string nasty = "\"'><script>alert(1)</script>&";
  std::string escaped;
  AppendEscaped(escaped, nasty);
  const std::string wrong[] = {nasty, "none", "-1", "1e999",       "99999999999999999999",
                               "NaN", "1,5",  " ",  "\xEF\xBF\xBF"};
  int count = 0;
  for (const ClassMember& member : Members()) {
    for (const std::string& name : FieldsOf(*member.member)) {
      for (int i = 0; i < Cases(2, std::ssize(wrong)); ++i) {
        const std::string& text = wrong[i == 0 ? 0 : static_cast<std::size_t>(count++) % std::size(wrong)];
        Query query = ExampleQuery(*member.member);
        if (query.Get("find") == name) query.Remove("find");
        query.Set(name, text);
        const Page page = Get(PathOf(member), query);
        const std::string what = PathOf(member).append(" ").append(name).append("=").append(text);
        ASSERT_EQ(page.status, 200) << what;
        EXPECT_EQ(page.bytes.find("<script"), std::string::npos) << what;
        const ParameterInfo* parameter = FindParameter(*member.member, name);
        const bool isRead = parameter && parameter->role != Role::Ignored && !parameter->choices &&
                            (IsNumber(parameter->unit) || parameter->unit == Unit::Date);
        if (!isRead || text != nasty) continue;
        EXPECT_NE(
            page.bytes.find("id=\"" + name + (ListOf(*member.member, *parameter) ? ".1" : "") + "-error\""),
            std::string::npos)
            << what;
        EXPECT_NE(page.bytes.find("value=\"" + escaped + "\""), std::string::npos) << what;
      }
    }
  }
  for (const char* name : {"style", "axis", "table", "title", "below", "left"}) {
    Query query = *Query::Read("table=a,1&style=PL&axis=text");
    query.Set(name, nasty + ",1");
    const Page page = Get("/chart", query);
    EXPECT_EQ(page.bytes.find("<script"), std::string::npos) << name;
    const bool isChosen = name == std::string("style") || name == std::string("axis");
    EXPECT_NE(page.bytes.find(isChosen ? "none of the choices" : escaped), std::string::npos) << name;
  }
  EXPECT_EQ(Get("/", *Query::Read("q=%3Cscript%3E")).bytes.find("<script"), std::string::npos);
}

// 3,000 at 1 % a month, 30 payments of 116.24, reckoned month by month to the cent and added up by year; the
// payment is rounded down, which leaves 0.15.
TEST(Pages, ChartsFoldSchedulesIntoYears) {
  const auto loan = Members().front();
  const Calculation calculation(loan, *Query::Read("vPurchaseAmt=3000&vPeriod=30&vIntRate=12&find=vPayment"),
                                kDay);
  ASSERT_TRUE(calculation.IsAnswered());
  const auto table = [&](std::size_t chart) {
    std::string out;
    const ChartNumbers numbers = NumbersOf(calculation, loan.member->charts[chart]);
    for (const Variant& cell : numbers.table.GetArray().Cells()) {
      if (cell.Type() == VariantType::Double) {
        AppendNumber(out, cell.GetDouble());
      } else {
        json::AppendVariant(out, cell, json::Form::Plain);
      }
      out += ' ';
    }
    return out;
  };
  EXPECT_EQ(table(0), R"("Date" "Balance" "2026-11-21" 3000 "2026-12-21" 2913.76 "2027-12-21" 1809.08 )"
                      R"("2028-12-21" 564.31 "2029-05-21" 0.15 )");
  EXPECT_EQ(table(1), R"("Year" "Principal" "Interest" "2026" 86.24 30 "2027" 1104.68 290.2 )"
                      R"("2028" 1244.77 150.11 "2029" 564.16 17.04 )");
}

const std::pair<const char*, const char*> kPasted[] = {
    {"Year\tRent\tLoan\r\n2027\t1,200\t$900\r\n\r\n2028\t\t(50)\r\n",
     R"([["Year","Rent","Loan"],["2027",1200,900],["2028",null,-50]])"},
    {"\tA\na\t1", R"([["","A"],["a",1]])"},
    {"x, 1\n\"y, z\", 6.5 %\n", R"([["",null],["x",1],["y, z",6.5]])"},
    {"x;1,000\ny;2", R"([["",null],["x",1000],["y",2]])"},
    {"Big city   12\nSmall       7", R"([["",null],["Big city",12],["Small",7]])"},
    {"2027 5 6\n2028 7", R"([["",null,null],["2027",5,6],["2028",7,null]])"},
    {"3\n4", R"([["",null],["1",3],["2",4]])"},
    {" \n", "Paste a table here: a line for each row, with its label first."},
    {"a,b\nc,d", "There is no number in this table to draw."},
    {"a,1,2\nb,3", "This table cannot be read: line 2 has 2 values, the first one 3."},
    {"1 2 3 4 5 6 7 8 9 10", "A chart has up to 200 rows and 8 series; this table is larger."},
};

TEST(Pages, TablesArePasted) {
  for (const auto& [text, expected] : kPasted) {
    const PastedTable table = ReadPastedTable(text);
    std::string read = table.error;
    if (read.empty()) json::AppendVariant(read, table.data, json::Form::Plain);
    EXPECT_EQ(read, expected) << text;
  }
}

struct TypedRow {
  const char* member;
  const char* parameter;
  const char* text;
  const char* expected;  ///< as a request has it, or the sentence of the refusal
};
const TypedRow kTyped[] = {
    {"loan", "vPurchaseAmt", " $200,000 ", "200000"},
    {"loan", "vPurchaseAmt", "$1,250.50", "1250.5"},
    {"loan", "vPurchaseAmt", "250k", "250000"},
    {"loan", "vPurchaseAmt", "12,00", R"("12,00" cannot be read. Write it like $200,000.00.)"},
    {"loan", "vPurchaseAmt", "-5", "Enter a value from $0.00 to $10,000,000.00."},
    {"loan", "vIntRate", "6.5 %", "6.5"},
    {"loan", "vIntRate", ".5", "0.5"},
    {"loan", "vIntRate", "6,5", R"("6,5" cannot be read. Write it like 6.5%.)"},
    {"loan", "vIntRate", "6.5 years", R"("6.5 years" cannot be read. Write it like 6.5%.)"},
    {"loan", "vPeriod", "30 years", "360"},
    {"loan", "vPeriod", "2 yrs, 6 mo", "30"},
    {"loan", "vPeriod", "360", "360"},
    {"loan", "vPeriod", "30.5", "Enter a whole number."},
    {"loan", "vPeriod", "51 years", "Enter a value from 1 month to 50 years."},
    {"loan", "vLoanType", "credit card", R"("C")"},
    {"save", "vFreq", "monthly", "4"},
    {"save", "vFreq", "hourly", R"("hourly" is none of the choices.)"},
    {"save", "vStartDate", "12/01/2026", R"({"type":"Date","value":"2026-12-01"})"},
    {"save", "vStartDate", "2027-02-30", R"("2027-02-30" is no date. Write it like 12/31/2026.)"},
    {"save", "vStartDate", " ", "null"},
};

TEST(Pages, InputsAreReadAsPeopleTypeThem) {
  for (const auto& [member, parameter, text, expected] : kTyped) {
    const auto target = json::FindCalled(member);
    const Typed typed = ReadTyped(*FindParameter(target.method, parameter), text);
    EXPECT_EQ(typed.error.empty() ? typed.value.dump() : typed.error, expected) << text;
  }
}

}  // namespace
}  // namespace amortix2::pages
