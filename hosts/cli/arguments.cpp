#include "amortix2/cli/arguments.h"

#include <algorithm>
#include <utility>

#include "amortix2/automation/text_scanner.h"
#include "amortix2/cli/lines.h"
#include "amortix2/json/csv.h"
#include "amortix2/json/lookup.h"
#include "amortix2/json/request_error.h"
#include "amortix2/json/variant_reader.h"

namespace amortix2::cli {
namespace {

json::Tree TextOrDate(const std::string& value) {
  if (json::ParseIsoDate(value)) return {{"type", "Date"}, {"value", value}};
  if (!json::IsUtf8(value)) throw json::RequestError("a value is no UTF-8 text");
  return value;
}

bool OpensJson(std::string_view text) {
  const std::size_t first = text.find_first_not_of(" \t\r\n");
  return first != std::string_view::npos && (text[first] == '[' || text[first] == '{');
}

json::Tree ReadText(const std::string& value) {
  auto [tree, badByte] = json::ParseTree(value);
  if (tree) return std::move(*tree);
  if (OpensJson(value)) {
    throw json::RequestError(json::Quoted(value) + " is no JSON: byte " + std::to_string(badByte) +
                             " does not fit");
  }
  return TextOrDate(value);
}

/// A cell is a number, a date or a text; nothing else that JSON knows.
json::Tree ReadCell(const std::string& cell) {
  if (!cell.empty() && cell.find_first_not_of("0123456789+-.eE") == std::string::npos) {
    if (auto number = json::ParseTree(cell).tree) return std::move(*number);
  }
  return TextOrDate(cell);
}

/// A table of the rows; for a parameter that takes no table a list of what is one row or one column, and one
/// cell as itself.
json::Tree ReadCsv(std::string_view text, const ParameterInfo* parameter) {
  const std::vector<json::CsvRecord> records = json::ParseCsv(text);
  const bool isTable = parameter && parameter->unit == Unit::Table;
  const bool isColumn = !records.empty() && records.front().size() == 1;
  const bool isRow = records.size() == 1;
  if (!isTable && isRow && isColumn) return ReadCell(records.front().front());
  json::Tree rows = json::Tree::array();
  json::Tree cells = json::Tree::array();
  for (const json::CsvRecord& record : records) {
    json::Tree row = json::Tree::array();
    for (const std::string& cell : record) {
      row.push_back(ReadCell(cell));
      cells.push_back(row.back());
    }
    rows.push_back(std::move(row));
  }
  return !isTable && (isRow || isColumn) ? cells : rows;
}

json::Tree ReadFile(const std::string& path, const ParameterInfo* parameter) {
  const std::string text = ReadWhole(path);
  try {
    const std::size_t last = text.find_last_not_of(" \t\r\n");
    const std::string trimmed = text.substr(0, last == std::string::npos ? 0 : last + 1);
    const bool isJson = OpensJson(trimmed) || json::ParseTree(trimmed).tree;
    return isJson ? ReadText(trimmed) : ReadCsv(text, parameter);
  } catch (json::RequestError& error) {
    throw json::RequestError((path == "-" ? "standard input" : path) + ": " + error.TakeMessage());
  }
}

/// The letter of an answer that is given by its words; else what was given.
json::Tree ReadSurveyAnswer(const json::Tree& given, std::span<const ChoiceInfo> answers) {
  const std::string* text = json::TextOf(given);
  const ChoiceInfo* choice =
      text ? FindChoice({.title = {}, .choices = answers, .otherwise = {}, .enumeration = {}}, *text)
           : nullptr;
  return choice ? json::Tree(choice->text) : given;
}

/// As many answers as there are questions, in a list or in letters ("D C D C C"), are those from index 1 on.
json::Tree ReadSurvey(json::Tree given, std::span<const QuestionInfo> questions) {
  if (const std::string* text = json::TextOf(given)) {
    json::Tree letters = json::Tree::array();
    for (const char c : *text) {
      if (c != ' ' && c != ',') letters.push_back(std::string(1, c));
    }
    if (letters.size() != questions.size()) return given;
    given = std::move(letters);
  }
  if (!given.is_array() || given.size() != questions.size()) return given;
  json::Tree answers = json::Tree::array();
  for (std::size_t i = 0; i < questions.size(); ++i) {
    answers.push_back(ReadSurveyAnswer(given[i], questions[i].answers));
  }
  return {{"lower", json::Tree::array({1})}, {"values", std::move(answers)}};
}

/// Constants of frequencies end in a word that nobody says: "annual" is annualMode.
const ChoiceInfo* FindChoiceMeant(const ChoicesInfo& choices, const std::string& text) {
  const ChoiceInfo* choice = FindChoice(choices, text);
  return choice ? choice : FindChoice(choices, text + "mode");
}

bool IsList(const MemberInfo& member, const ParameterInfo& parameter) {
  return std::ranges::any_of(member.lists, [&](const ListInfo& list) {
    return std::ranges::find(list.inputs, parameter.name) != list.inputs.end();
  });
}

json::Tree ReadList(std::string_view text) {
  json::Tree list = json::Tree::array();
  for (;;) {
    const std::size_t comma = text.find(',');
    list.push_back(ReadCell(std::string(text.substr(0, comma))));
    if (comma == std::string_view::npos) return list;
    text.remove_prefix(comma + 1);
  }
}

/// A value with what its parameter is: a survey's letters, the elements of a list, a choice's name.
json::Tree AsMeant(json::Tree tree, const MemberInfo& member, const ParameterInfo& parameter) {
  if (!parameter.questions.empty()) return ReadSurvey(std::move(tree), parameter.questions);
  const std::string* text = json::TextOf(tree);
  if (!text) return tree;
  if (text->find(',') != std::string::npos && IsList(member, parameter)) return ReadList(*text);
  const ChoiceInfo* choice = parameter.choices ? FindChoiceMeant(*parameter.choices, *text) : nullptr;
  if (!choice) return tree;
  return parameter.unit == Unit::Text ? json::Tree(choice->text) : ReadText(std::string(choice->text));
}

/// The letters and digits of a name, all small: "Interest rate" is "interest-rate".
std::string Letters(std::string_view name) {
  std::string letters;
  for (const char c : name) {
    if (IsLetter(c) || IsDigit(c)) letters += ToLower(c);
  }
  return letters;
}

}  // namespace

std::vector<Assignment> SplitArguments(const std::vector<std::string>& arguments) {
  std::vector<Assignment> assignments;
  for (const std::string& argument : arguments) {
    const std::size_t equals = argument.find('=');
    if (equals == 0 || equals == std::string::npos) {
      throw json::RequestError(json::Quoted(argument) +
                               " is no NAME=VALUE; call METHOD --help has the names");
    }
    assignments.push_back({argument.substr(0, equals), argument.substr(equals + 1)});
  }
  return assignments;
}

const ParameterInfo* FindNamedInput(const MemberInfo& member, std::string_view name) {
  if (const ParameterInfo* parameter = FindParameter(member, name)) return parameter;
  const std::string asked = Letters(name);
  for (const ParameterInfo& parameter : member.parameters) {
    if (!parameter.IsInput() || asked.empty()) continue;
    if (Letters(parameter.title) == asked || Letters(parameter.name) == "v" + asked) return &parameter;
  }
  return nullptr;
}

const ParameterInfo* FindInput(const MemberInfo& member, std::string_view name) {
  if (const ParameterInfo* parameter = FindNamedInput(member, name)) return parameter;
  const std::string asked = Letters(name);
  const ParameterInfo* meant = nullptr;
  int like = 0;
  for (const ParameterInfo& parameter : member.parameters) {
    if (!parameter.IsInput() || asked.empty()) continue;
    if (Letters(parameter.title).find(asked) == std::string::npos) continue;
    meant = &parameter;
    ++like;
  }
  if (like != 1) return nullptr;
  throw json::RequestError(std::string(member.name) + " has no argument " + json::Quoted(name) +
                           "; did you mean " + std::string(meant->name) + " (" + std::string(meant->title) +
                           ")?");
}

json::Tree ReadValue(const std::string& value) {
  return value.starts_with('@') ? ReadFile(value.substr(1), nullptr) : ReadText(value);
}

const ParameterInfo& NeedInput(const MemberInfo& member, std::string_view name) {
  const ParameterInfo* input = FindInput(member, name);
  return input ? *input : member.parameters[json::PlaceOfParameter(member, name)];
}

json::Tree ReadValue(const std::string& value, const MemberInfo& member, const ParameterInfo& parameter) {
  if (!value.starts_with('@')) return ReadPlainValue(value, member, parameter);
  return AsMeant(ReadFile(value.substr(1), &parameter), member, parameter);
}

json::Tree ReadPlainValue(const std::string& value, const MemberInfo& member,
                          const ParameterInfo& parameter) {
  return AsMeant(ReadText(value), member, parameter);
}

}  // namespace amortix2::cli
