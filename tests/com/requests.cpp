// The same requests for two hosts. `requests make COUNT FOLDER` writes random requests over every member that
// scripts can call, as lines for `amortix2 batch --types` and as a VBScript client of the COM server.
// `requests compare REPLIES LINES` compares what the two answered, doubles by their value to the last bit.

#include <cmath>
#include <cstring>
#include <fstream>
#include <iostream>
#include <nlohmann/json.hpp>
#include <random>
#include <regex>
#include <sstream>

#include "amortix2/automation/conversion.h"
#include "amortix2/component/description.h"

using namespace amortix2;
using nlohmann::json;

namespace {

/// Arguments are JSON as requests have it; these make the values that both languages can write.
json Typed(const char* type, json value) { return {{"type", type}, {"value", std::move(value)}}; }

/// Exact in both: a quotient of whole numbers is rounded as its decimal text is.
json Double(int hundredths) { return Typed("Double", hundredths / 100.0); }

json Day(int year, int month, int day) {
  return Typed("Date", std::string(View(FormatIso(MakeDate(year, month, day)))));
}

std::string TypedScript(const std::string& type, const json& value) {
  if (type == "Empty") return "Empty";
  if (type == "Double") return "CDbl(" + std::to_string(std::llround(value.get<double>() * 100)) + ")/100";
  if (type == "Date")
    return "DateSerial(" + std::regex_replace(value.get<std::string>(), std::regex("-0?"), ",") + ")";
  return (type == "Currency" ? "CCur(" : "CByte(") + value.dump() + ")";
}

/// An argument as VBScript writes it. A table of 256 rows is the palette, too long for a line.
std::string Script(const json& value) {
  if (value.is_null()) return "Null";
  if (value.is_boolean()) return value.get<bool>() ? "True" : "False";
  if (value.is_number()) return "CLng(" + value.dump() + ")";
  if (value.is_string()) return '"' + value.get<std::string>() + '"';
  if (value.is_object()) return TypedScript(value["type"], value["value"]);
  if (value.size() == 256) return "Palette()";
  const bool table = !value.empty() && value[0].is_array();
  std::string cells;
  for (const json& row : value) {
    for (const json& cell : table ? row : json::array({row}))
      cells += (cells.empty() ? "" : ", ") + Script(cell);
  }
  const std::string list = "Array(" + cells + ")";
  return table ? "Table(" + std::to_string(value[0].size()) + ", " + list + ")" : list;
}

class Generator {
 public:
  explicit Generator(std::ostream& requests, std::ostream& script) : requests_(requests), script_(script) {}

  void Write(const ClassInfo& type, const MemberInfo& member, int number) {
    json request{{"id", number}, {"call", std::string(type.name) + "." + std::string(member.name)}};
    script_ << "Start " << number << ", \"" << type.name << "\"\n";
    json with = json::object();
    for (int i = Pick(4); i > 0; --i) AddSetting(type, with);
    if (!with.empty()) request["with"] = with;

    json arguments = json::object();
    std::string list, results;
    for (std::size_t i = 0; i < member.parameters.size(); ++i) {
      const ParameterInfo& parameter = member.parameters[i];
      if (parameter.optional && Pick(2) == 0) break;
      const json argument = Value(type, parameter);
      const std::string variable = "v" + std::to_string(i);
      arguments[std::string(parameter.name)] = argument;
      script_ << variable << " = " << Script(argument) << '\n';
      list += (i == 0 ? " " : ", ") + variable;
      if (parameter.byReference)
        results += "Show \"" + std::string(parameter.name) + "\", " + variable + "\n";
    }
    request["args"] = arguments;
    requests_ << request.dump() << '\n';
    script_ << "If Err.Number = 0 Then o." << member.name << list << "\nFinish\n" << results;
  }

 private:
  int Pick(int count) { return std::uniform_int_distribution(0, count - 1)(random_); }
  json OneOf(const std::vector<json>& values) {
    return values[static_cast<std::size_t>(Pick(static_cast<int>(values.size())))];
  }

  void AddSetting(const ClassInfo& type, json& with) {
    const MemberInfo& member =
        type.members[static_cast<std::size_t>(Pick(static_cast<int>(type.members.size())))];
    const std::string name(member.name);
    if (with.contains(name) || (member.kind == MemberKind::Method && !name.starts_with("Set"))) return;
    json values = json::array();
    std::string list;
    for (const ParameterInfo& parameter : member.parameters) {
      values.push_back(Value(type, parameter));
      list += (list.empty() ? " " : ", ") + Script(values.back());
    }
    const bool put = member.kind == MemberKind::PropertyPut;
    with[name] = put ? values[0] : values;
    script_ << "o." << name << (put ? " =" : "") << list << '\n';
  }

  json Value(const ClassInfo& type, const ParameterInfo& parameter) {
    if (parameter.type->kind == TypeKind::String) return "chart" + std::to_string(Pick(9)) + ".gif";
    if (parameter.name == "vPal" && Pick(8) != 0) return Palette();
    if (type.name != "Calculator" && parameter.unit == Unit::Table) return Table();
    if (type.name != "Calculator" && parameter.unit == Unit::List) return List();
    if (Pick(12) == 0) return Odd();
    return Usual(type, parameter.unit);
  }

  json Usual(const ClassInfo& type, Unit unit) {
    switch (unit) {
      case Unit::Currency:
        return OneOf({Double(0), 200000, Double(1500000 + Pick(100000)), Double(250075), 1000 * Pick(300)});
      case Unit::MonthlyCurrency:
        return OneOf({Double(0), Double(Pick(200000)), 1200, "350.25"});
      case Unit::Percent:
      case Unit::AnnualPercent:
      case Unit::PercentagePoints:
        return OneOf({Double(0), Double(650), Double(Pick(2000)), 7, "5.5%", "4.25"});
      case Unit::Months:
        return OneOf({0, 12, 24, 36, Double(1800), Pick(20) == 0 ? 360 : 6});
      case Unit::Code:
        return OneOf({4 + Pick(5), 4 + Pick(7), Pick(12), Double(800)});
      case Unit::Date:
        return OneOf({nullptr, Day(2001, 1, 31), Day(2000, 12, 1 + Pick(30)), "2/29/2000", 36922});
      case Unit::Pixels:
        return OneOf({0, 80, Double(12050), Pick(300), Pick(10) == 0 ? 40000 : 3});
      case Unit::Text:
        if (type.name == "GifChart") return "chart" + std::to_string(Pick(9)) + ".gif";
        return OneOf({"", "C", "OL", "OV", "ST", "SR", "LINE", "HZ", "HR", "$#,##0.00"});
      case Unit::None:
      case Unit::Table:
      case Unit::List:
        return Typed("Empty", nullptr);
      default:
        return OneOf({0, 1, Pick(12), Double(100 * Pick(15)), 4});
    }
  }

  json Odd() {
    return OneOf({nullptr, true, "abc", "$1,234.50", "(5)", "1e300", -1, Day(2010, 6, 15),
                  Typed("Currency", 12.5), Typed("Byte", 7)});
  }

  json List() {
    json list = json::array();
    for (int i = Pick(7); i > 0; --i)
      list.push_back(OneOf({"image" + std::to_string(i), Pick(6), "E", Double(Pick(500))}));
    return list;
  }

  json Table() {
    const int rows = 1 + Pick(5), columns = 1 + Pick(4);
    const bool labelled = Pick(2) == 0;
    json table = json::array();
    for (int row = 0; row < rows; ++row) {
      json& cells = table.emplace_back(json::array());
      for (int column = 0; column < columns; ++column) {
        cells.push_back(labelled && column == 0
                            ? json("row " + std::to_string(row))
                            : OneOf({Pick(256), Double(Pick(300000) - 50000), Pick(9), "12"}));
      }
    }
    return table;
  }

  static json Palette() {
    json palette = json::array();
    for (int i = 0; i < 256; ++i) palette.push_back({i, 255 - i, i / 2});
    return palette;
  }

  std::ostream& requests_;
  std::ostream& script_;
  std::mt19937 random_{20010131};
};

bool ScriptsCanCall(const MemberInfo& member) {
  return member.kind == MemberKind::Method &&
         std::ranges::none_of(member.parameters, [](const ParameterInfo& parameter) {
           return parameter.type->record != nullptr || parameter.type->kind == TypeKind::ScriptingContext;
         });
}

void Make(int count, const std::string& folder) {
  std::ofstream requests(folder + "/requests.jsonl"), script(folder + "/calls.vbs");
  Generator generator(requests, script);
  std::vector<std::pair<const ClassInfo*, const MemberInfo*>> members;
  for (const ClassInfo* type : Classes()) {
    for (const MemberInfo& member : type->members) {
      if (ScriptsCanCall(member)) members.emplace_back(type, &member);
    }
  }
  for (int i = 0; i < count; ++i) {
    const auto [type, member] = members[static_cast<std::size_t>(i) % members.size()];
    generator.Write(*type, *member, i);
  }
  std::cout << members.size() << " members\n";
}

/// A reply's values as the script prints them: one a line, arrays as bounds and then their cells.
void Print(const json& value, std::vector<std::string>& lines) {
  static const std::map<std::string, char> letters{
      {"Empty", 'E'}, {"Null", 'N'},   {"Boolean", 'B'},  {"Byte", 'y'}, {"Integer", 'i'},
      {"Long", 'l'},  {"Double", 'd'}, {"Currency", 'c'}, {"Date", 't'}, {"String", 's'}};
  const std::string type = value["type"];
  const json& content = value["value"];
  if (type == "Array") {
    const json& rows = value["values"];
    const bool table = value["lower"].size() == 2;
    std::string bounds = "a " + value["lower"][0].dump() + " " + std::to_string(rows.size());
    if (table && !rows.empty())
      bounds += " " + value["lower"][1].dump() + " " + std::to_string(rows[0].size());
    lines.push_back(bounds);
    for (const json& row : rows) {
      for (const json& cell : table ? row : json::array({row})) Print(cell, lines);
    }
    return;
  }
  std::string line(1, letters.at(type));
  if (type == "Date")
    line += std::to_string(ParseDate(content.get<std::string>())->serial);
  else if (content.is_string())
    line += std::regex_replace(content.get<std::string>(), std::regex("\n"), "\\n");
  else if (content.is_boolean())
    line += content.get<bool>() ? "-1" : "0";
  else if (!content.is_null())
    line += content.dump();
  lines.push_back(line);
}

std::vector<std::string> LinesOf(const json& reply) {
  std::vector<std::string> lines{"#" + reply["id"].dump()};
  if (reply.contains("response")) lines.emplace_back("R8209");
  if (reply.contains("error")) lines.push_back("!" + reply["error"]["number"].dump());
  return lines;
}

/// "d12/100", or "d3*5*-7": 3 times 2 to the 27th plus 5, times 2 to the -7th; or a plain number.
double NumberOf(const std::string& text) {
  double a = 0, b = 0;
  int power = 0;
  if (std::sscanf(text.c_str(), "%lf*%lf*%d", &a, &b, &power) == 3)
    return std::ldexp(a * 134217728.0 + b, power);
  if (std::sscanf(text.c_str(), "%lf/%lf", &a, &b) == 2) return a / b;
  return std::stod(text);
}

bool Same(const std::string& native, const std::string& script) {
  const bool number =
      !native.empty() && !script.empty() && native[0] == script[0] && (native[0] == 'd' || native[0] == 'c');
  return number ? NumberOf(native.substr(1)) == NumberOf(script.substr(1)) : native == script;
}

int Compare(const std::string& repliesFile, const std::string& linesFile) {
  std::ifstream replies(repliesFile), script(linesFile);
  std::string line, printed;
  int calls = 0, failed = 0;
  long values = 0;
  for (; std::getline(replies, line); ++calls) {
    const auto reply = nlohmann::ordered_json::parse(line);
    std::vector<std::string> lines = LinesOf(reply);
    for (const auto& [name, value] : reply["results"].items()) {
      lines.push_back("=" + name);
      Print(value, lines);
    }
    failed += reply.contains("error");
    for (const std::string& expected : lines) {
      ++values;
      if (!std::getline(script, printed)) printed = "nothing";
      if (!printed.empty() && printed.back() == '\r') printed.pop_back();
      if (Same(expected, printed)) continue;
      std::cout << "call " << calls << ": \"" << expected << "\", through COM \"" << printed << "\"\n"
                << line.substr(0, 500) << '\n';
      return 1;
    }
  }
  std::cout << calls << " calls, " << failed << " of them errors, " << values << " lines alike\n";
  return calls > 0 && failed > 0 && failed < calls / 2 ? 0 : 1;
}

}  // namespace

int main(int count, char** arguments) try {
  if (count == 4 && std::strcmp(arguments[1], "make") == 0)
    return Make(std::stoi(arguments[2]), arguments[3]), 0;
  if (count == 4 && std::strcmp(arguments[1], "compare") == 0) return Compare(arguments[2], arguments[3]);
  return 2;
} catch (const std::exception& error) {
  std::cerr << error.what() << '\n';
  return 1;
}
