// Numeric and date texts, converted by the component and by the platform's own functions under US English
// conventions. Where the two differ, the kind of text is listed with the reason; a kind that no longer
// differs is a failure too.

#include <cmath>
#include <optional>
#include <regex>

#include "amortix2/automation/conversion.h"
#include "client.h"

using namespace amortix2;
using namespace amortix2::com;
using namespace amortix2::com::client;

namespace {

using Texts = std::vector<std::string>;
using Result = std::optional<double>;

struct Difference {
  const char* pattern;
  const char* reason;
};

// The platform here is Wine's; where its own manners are no rule of the platform, the reason says so.
constexpr Difference kNumberDifferences[] = {
    {"[^&]*[dD].*", "an exponent with d is read, which Wine does not know"},
    {R"([^$]*\$[^$eE]*[eE].*)", "an amount with a dollar sign may have an exponent; Wine forbids it"},
    {R"(.*\$.*\$)", "one dollar sign only"},
    {R"(\([^)]*-)", "a parenthesis must be closed; Wine takes a minus sign for it"},
    {"&[hHoO].*", "the bits of an Integer or of a Long, whose highest is the sign; Wine reads them unsigned"},
    {R"(1\.79.*e308)", "the largest double is no overflow"},
    {"\xC2\xA0.*", "only blanks of ASCII are passed over"},
};
constexpr Difference kDateDifferences[] = {
    {"1/31/30.*", "years from 30 on are in the 1900s, on every machine; Wine's border is 50 years on"},
    {"(1/31|Jan 31)[^/]*", "without a year no date: the answer would change with the year"},
    {"[0-9]+ [A-Z][a-z]+ [0-9]{2}(\\D.*)?",
     "with the month's name the day stands before the year; Wine's order is the reverse"},
    {"10:30", "a time of day is no date"},
    {"1:2/3/2001", "a date's parts are not divided by a colon; Wine takes it for a time and a date"},
};

Texts Combined(std::initializer_list<Texts> parts) {
  Texts texts{""};
  for (const Texts& part : parts) {
    Texts longer;
    for (const std::string& text : texts) {
      for (const std::string& next : part) longer.push_back(text + next);
    }
    texts = std::move(longer);
  }
  return texts;
}

/// The parts of a text between "|"; more follow in `last`.
Texts Split(std::string_view text, Texts last = {}) {
  Texts parts;
  while (true) {
    const std::size_t bar = text.find('|');
    parts.emplace_back(text.substr(0, bar));
    if (bar == std::string_view::npos) break;
    text.remove_prefix(bar + 1);
  }
  parts.insert(parts.end(), last.begin(), last.end());
  return parts;
}

Texts NumberTexts() {
  return Split(
      "| |-|$|()|&HFF|&hffff|&HFFFFFFFF|&H1FFFFFFFF|&O17|&o177777|&17|&H|1e308|1e309|1e-400|0.1|"
      "1.7976931348623157e308|123456789012345678|1 2|1e|0x10|inf|nan|5%|1.2.3|1..2|--1|1,|,1|1,.5|1.5,5|"
      "True|1/2|\t7\n|1 e3|1e 3|$ 5|( 5 )|-(5)|(-5)|5-$|5$-|\xC2\xA0"
      "5|\xE2\x82\xAC"
      "5",
      Combined({Split("| |-|+|$|(|-$|$-|($|- "), Split("1|12.5|.5|5.|1,234|1,234,567.89|1,2|007"),
                Split("|e3|E+2|d-2"), Split("| |)|-|+|$")}));
}

Texts DateTexts() {
  return Split(
      "10:30||today|1/31/2001 1/31/2001|10:30 1/31/2001|1:2/3/2001",
      Combined({Split("1/31/2001|2001-01-31|31 January 2001|January 31, 2001|31-Jan-2001|2/3/2001|31/1/2001|"
                      "13/13/2001|2/29/2001|2/29/2000|1/31/29|1/31/30|1/31/0|1/31/99|1/31/100|12/31/9999|"
                      "1/1/10000|Jan 2001|1/2001|1/31|Jan 31|2001/1/31|01.31.2001|1-31-2001|31 Jan 01|"
                      "Jan-31-2001|2001 Jan 31|Wed, 31 January 2001|Wednesday January 31 2001|2 Feb 03|"
                      "Sept 1, 2001|Febr 1 2001|may 5 2001|20010131|36922|1 2 2001|1,2,2001|1/2/3|32/1/2001|"
                      "0/1/2001|January 0 2001|31 2001 January|2001-1-31|01/31/01"),
                Split("| | 10:30| 10:30:15 PM| 22:30| 10 AM| 25:00|T10:30:00| 10:30 XM|, 10:30|Z")}));
}

Result PlatformNumber(std::wstring text) {
  double value = 0;
  if (FAILED(VarR8FromStr(text.data(), kUsEnglish, LOCALE_NOUSEROVERRIDE, &value))) return std::nullopt;
  return value;
}

Result PlatformDay(std::wstring text) {
  DATE value = 0;
  if (FAILED(VarDateFromStr(text.data(), kUsEnglish, LOCALE_NOUSEROVERRIDE, &value))) return std::nullopt;
  return std::trunc(value);
}

Result OwnDay(std::string_view text) {
  const std::optional<Date> date = ParseDate(text);
  return date ? Result(date->serial) : std::nullopt;
}

/// Wine rounds the last bits of a number less exactly.
bool Same(Result own, Result platform) {
  if (!own || !platform) return own.has_value() == platform.has_value();
  return std::abs(*own - *platform) <= 1e-15 * std::abs(*own);
}

std::string Shown(Result result) { return result ? std::to_string(*result) : "nothing"; }

void Compare(const Texts& texts, Result (*own)(std::string_view), Result (*platform)(std::wstring),
             std::span<const Difference> differences) {
  std::vector<int> seen(differences.size());
  for (const std::string& text : texts) {
    const Result ours = own(text);
    const Result theirs = platform(ToWide(text));
    if (Same(ours, theirs)) continue;
    bool listed = false;
    for (std::size_t i = 0; i < differences.size() && !listed; ++i) {
      listed = std::regex_match(text, std::regex(differences[i].pattern));
      if (listed) ++seen[i];
    }
    CHECK_FOR("\"" + text + "\": " + Shown(ours) + ", platform " + Shown(theirs), listed);
  }
  for (std::size_t i = 0; i < differences.size(); ++i) CHECK_FOR(differences[i].reason, seen[i] > 0);
  std::printf("%zu texts\n", texts.size());
}

}  // namespace

int main() {
  return Run(COINIT_MULTITHREADED, [] {
    Compare(NumberTexts(), ParseNumber, PlatformNumber, kNumberDifferences);
    Compare(DateTexts(), OwnDay, PlatformDay, kDateDifferences);
  });
}
