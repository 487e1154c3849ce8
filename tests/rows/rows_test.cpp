// Whole answers of Calculator, and of others by "CLASS.METHOD", row by row: "METHOD {arguments} | {results}"
// in a file of rows. A row names every result that is not zero, an error by its name; of a table longer than
// 12 lines it has the number of lines, the first, the middle and the last. Numbers may differ by 5e-7, the
// noise of sums of money.

#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <nlohmann/json.hpp>

#include "amortix2/json/reply.h"
#include "support.h"

namespace amortix2::json {
namespace {

using Tree = nlohmann::json;

Tree Summary(const Tree& value) {
  if (!value.is_structured()) return value;
  if (value.is_array() && value.size() > 12)
    return {{"lines", value.size()},
            {"first", Summary(value.front())},
            {"middle", Summary(value[value.size() / 2])},
            {"last", Summary(value.back())}};
  Tree summary = value;
  for (Tree& part : summary) part = Summary(part);
  return summary;
}

/// Nothing, 0, day zero, an empty list, or a record of such fields alone.
bool IsZero(const Tree& value) {
  if (value.is_object()) return std::ranges::all_of(value, IsZero);
  return value.is_null() || value == 0 || value == "1899-12-30" || value == Tree::array();
}

bool Agree(const Tree& actual, const Tree& expected) {
  if (actual.is_number() && expected.is_number()) {
    const double number = expected;
    return std::abs(actual.get<double>() - number) <= 5e-7 + 1e-12 * std::abs(number);
  }
  if (actual.is_array() && expected.is_array()) return std::ranges::equal(actual, expected, Agree);
  if (!actual.is_object() || !expected.is_object()) return actual == expected;
  for (const auto& [name, value] : expected.items())
    if (!actual.contains(name) || !Agree(actual[name], value)) return false;
  return std::ranges::all_of(actual.items(), [&](const auto& field) {
    return expected.contains(field.key()) || IsZero(field.value());
  });
}

/// A request for the tables alone, or for all but them, is answered alike; what it leaves out may not be
/// made.
void ExpectPart(std::string request, Tree whole, bool tables) {
  Tree only = Tree::array();
  if (whole.contains("return")) only.push_back("return");
  const Tree results = whole.value("results", Tree::object());
  for (const auto& [name, value] : results.items()) {
    value.is_array() != tables ? static_cast<void>(whole["results"].erase(name)) : only.push_back(name);
  }
  request.insert(request.size() - 1, R"(,"only":)" + only.dump());
  EXPECT_EQ(Tree::parse(Answer(request, {}, kClock)), whole) << request;
}

class Rows : public testing::TestWithParam<const char*> {};

TEST_P(Rows, HaveTheirAnswers) {
  std::ifstream file(AMORTIX2_ROWS + std::string(GetParam()) + ".txt");
  int rows = 0;
  for (std::string line; std::getline(file, line);) {
    const std::size_t arguments = line.find(' '), results = line.find(" | ");
    if (line.starts_with('#') || results == std::string::npos) continue;
    ++rows;
    const std::string name = line.substr(0, arguments);
    const std::string call = name.find('.') == std::string::npos ? "Calculator." + name : name;
    const std::string request =
        R"({"call":")" + call + R"(","args":)" + line.substr(arguments + 1, results - arguments - 1) + "}";
    const Tree reply = Tree::parse(Answer(request, {}, kClock));
    Tree actual = Summary(reply.value("results", Tree::object()));
    if (reply.contains("error")) actual["error"] = reply["error"]["name"];
    EXPECT_TRUE(Agree(actual, Tree::parse(line.substr(results + 3)))) << line << "\nis " << actual;
    if (GetParam() != std::string_view("engine")) ExpectPart(request, reply, rows % 2 == 0);
  }
  EXPECT_GT(rows, 0);
}

INSTANTIATE_TEST_SUITE_P(Calculator, Rows,
                         testing::Values("loans", "comparisons", "households", "savings", "engine",
                                         "strategy"),
                         [](const auto& file) { return file.param; });

}  // namespace
}  // namespace amortix2::json
