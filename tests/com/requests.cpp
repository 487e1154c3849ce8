// The same requests for two hosts. `requests make COUNT FOLDER` writes random requests over every member that
// scripts can call, as lines for `amortix2 batch --types` and as a VBScript client of the COM server.
// `requests compare REPLIES LINES` compares what the two answered, doubles by their value to the last bit.

#include <cmath>
#include <cstring>
#include <fstream>
#include <iostream>
#include <nlohmann/json.hpp>
#include <random>
#include <sstream>

#include "amortix2/automation/conversion.h"
#include "amortix2/component/description.h"

using namespace amortix2;
using nlohmann::json;

namespace {

/// One argument in both languages.
struct Argument {
  json request;
  std::string script;
};

Argument Long(int value) { return {value, "CLng(" + std::to_string(value) + ")"}; }

/// Exact in both: a quotient of whole numbers is rounded as its decimal text is.
Argument Double(int hundredths) {
  return {{{"type", "Double"}, {"value", hundredths / 100.0}},
          "CDbl(" + std::to_string(hundredths) + ")/100"};
}

Argument Text(const std::string& text) { return {text, '"' + text + '"'}; }

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
      const Argument argument = Value(type, parameter);
      const std::string variable = "v" + std::to_string(i);
      arguments[std::string(parameter.name)] = argument.request;
      script_ << variable << " = " << argument.script << '\n';
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
  Argument OneOf(const std::vector<Argument>& values) {
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
      const Argument argument = Value(type, parameter);
      values.push_back(argument.request);
      list += (list.empty() ? " " : ", ") + argument.script;
    }
    const bool put = member.kind == MemberKind::PropertyPut;
    with[name] = put ? values[0] : values;
    script_ << "o." << name << (put ? " =" : "") << list << '\n';
  }

  Argument Value(const ClassInfo& type, const ParameterInfo& parameter) {
    if (parameter.type->kind == TypeKind::String) return Text("chart" + std::to_string(Pick(9)) + ".gif");
    if (parameter.name == "vPal" && Pick(8) != 0) return Palette();
    if (type.name != "Calculator" && parameter.unit == Unit::Table) return Table();
    if (type.name != "Calculator" && parameter.unit == Unit::List) return List();
    if (Pick(12) == 0) return Odd();
    return Usual(type, parameter.unit);
  }

  Argument Usual(const ClassInfo& type, Unit unit) {
    switch (unit) {
      case Unit::Currency:
        return OneOf({Double(0), Long(200000), Double(1500000 + Pick(100000)), Double(250075),
                      Long(1000 * Pick(300))});
      case Unit::MonthlyCurrency:
        return OneOf({Double(0), Double(Pick(200000)), Long(1200), Text("350.25")});
      case Unit::Percent:
      case Unit::AnnualPercent:
      case Unit::PercentagePoints:
        return OneOf({Double(0), Double(650), Double(Pick(2000)), Long(7), Text("5.5%"), Text("4.25")});
      case Unit::Months:
        return OneOf({Long(0), Long(12), Long(24), Long(36), Double(1800), Long(Pick(20) == 0 ? 360 : 6)});
      case Unit::Code:
        return OneOf({Long(4 + Pick(5)), Long(4 + Pick(7)), Long(Pick(12)), Double(800)});
      case Unit::Date:
        return OneOf({{nullptr, "Null"},
                      Date(2001, 1, 31),
                      Date(2000, 12, 1 + Pick(30)),
                      Text("2/29/2000"),
                      Long(36922)});
      case Unit::Pixels:
        return OneOf({Long(0), Long(80), Double(12050), Long(Pick(300)), Long(Pick(10) == 0 ? 40000 : 3)});
      case Unit::Text:
        if (type.name == "GifChart") return Text("chart" + std::to_string(Pick(9)) + ".gif");
        return OneOf({Text(""), Text("C"), Text("OL"), Text("OV"), Text("ST"), Text("SR"), Text("LINE"),
                      Text("HZ"), Text("HR"), Text("$#,##0.00")});
      case Unit::None:
      case Unit::Table:
      case Unit::List:
        return {{{"type", "Empty"}, {"value", nullptr}}, "Empty"};
      default:
        return OneOf({Long(0), Long(1), Long(Pick(12)), Double(100 * Pick(15)), Long(4)});
    }
  }

  Argument Odd() {
    return OneOf({{nullptr, "Null"},
                  {true, "True"},
                  Text("abc"),
                  Text("$1,234.50"),
                  Text("(5)"),
                  Text("1e300"),
                  Long(-1),
                  Date(2010, 6, 15),
                  {{{"type", "Currency"}, {"value", 12.5}}, "CCur(12.5)"},
                  {{{"type", "Byte"}, {"value", 7}}, "CByte(7)"}});
  }

  static Argument Date(int year, int month, int day) {
    const DateText text = FormatIso(MakeDate(year, month, day));
    return {
        {{"type", "Date"}, {"value", View(text)}},
        "DateSerial(" + std::to_string(year) + "," + std::to_string(month) + "," + std::to_string(day) + ")"};
  }

  Argument List() {
    Argument list{json::array(), "Array("};
    const int count = Pick(7);
    for (int i = 0; i < count; ++i) {
      const Argument cell =
          OneOf({Text("image" + std::to_string(i)), Long(Pick(6)), Text("E"), Double(Pick(500))});
      list.request.push_back(cell.request);
      list.script += (i == 0 ? "" : ", ") + cell.script;
    }
    list.script += ")";
    return list;
  }

  Argument Table() {
    const int rows = 1 + Pick(5), columns = 1 + Pick(4);
    const bool labelled = Pick(2) == 0;
    Argument table{json::array(), "Table(" + std::to_string(columns) + ", Array("};
    for (int row = 0; row < rows; ++row) {
      json cells = json::array();
      for (int column = 0; column < columns; ++column) {
        const Argument cell =
            labelled && column == 0
                ? Text("row " + std::to_string(row))
                : OneOf({Long(Pick(256)), Double(Pick(300000) - 50000), Long(Pick(9)), Text("12")});
        cells.push_back(cell.request);
        table.script += (row + column == 0 ? "" : ", ") + cell.script;
      }
      table.request.push_back(cells);
    }
    table.script += "))";
    return table;
  }

  static Argument Palette() {
    json palette = json::array();
    for (int i = 0; i < 256; ++i) palette.push_back({i, 255 - i, i / 2});
    return {palette, "Palette()"};
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
  else if (content.is_string() && type == "String")
    line += content.get<std::string>();
  else if (content.is_string())
    line += content.get<std::string>();
  else if (content.is_boolean())
    line += content.get<bool>() ? "-1" : "0";
  else if (!content.is_null())
    line += content.dump();
  lines.push_back(line);
}

std::vector<std::string> LinesOf(const json& reply) {
  std::vector<std::string> lines{"#" + reply["id"].dump()};
  if (reply.contains("response")) lines.push_back("R8209");
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

int main(int count, char** arguments) {
  if (count == 4 && std::strcmp(arguments[1], "make") == 0)
    return Make(std::stoi(arguments[2]), arguments[3]), 0;
  if (count == 4 && std::strcmp(arguments[1], "compare") == 0) return Compare(arguments[2], arguments[3]);
  return 2;
}
