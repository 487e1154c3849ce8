#include "amortix2/cli/example.h"

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <set>

#include "amortix2/automation/conversion.h"
#include "amortix2/component/answer.h"
#include "amortix2/component/invocation.h"
#include "amortix2/component/notes.h"
#include "amortix2/json/typed_value.h"
#include "amortix2/json/variant_reader.h"

namespace amortix2::cli {
namespace {

/// The day of all examples, so that documents stay as they are.
const FixedClock& ExampleClock() {
  static const FixedClock kClock(MakeDate(2026, 12, 1));
  return kClock;
}

json::Tree TreeOf(std::string_view text) {
  if (json::ParseIsoDate(text)) return {{"type", "Date"}, {"value", text}};
  auto parsed = json::ParseTree(text);
  return parsed.tree ? std::move(*parsed.tree) : json::Tree(std::string(text));
}

/// One call of a member with its example's inputs, of which one may be changed.
class ExampleCall {
 public:
  ExampleCall(const ClassInfo& type, const MemberInfo& member, const ParameterInfo* changed = nullptr,
              std::string_view value = {})
      : call_(member) {
    for (std::size_t i = 0; i < member.parameters.size(); ++i) {
      const ParameterInfo& parameter = member.parameters[i];
      const std::string_view text = &parameter == changed ? value : parameter.example;
      if (parameter.IsInput() && !text.empty()) json::ReadArgument(TreeOf(text), call_.Arguments()[i]);
    }
    inputs_.emplace(member, call_.Arguments());
    Object object(type, ExampleClock());
    try {
      call_.Call(object);
    } catch (const AutomationError& error) {
      error_ = error.Number();
    }
  }

  const Inputs& In() const { return *inputs_; }
  Results Out() const { return {call_.Member(), call_.Arguments()}; }
  const Value& Argument(std::size_t place) const { return call_.Arguments()[place]; }
  std::vector<Note> Notes() const {
    return error_ ? std::vector<Note>{} : NotesOn(In(), Out(), ExampleClock().Today());
  }

  const std::optional<ErrorNumber>& Error() const { return error_; }
  std::optional<Note> Fault() const { return FaultOf(In(), *error_); }

 private:
  Invocation call_;
  std::optional<Inputs> inputs_;
  std::optional<ErrorNumber> error_;
};

bool IsLong(const ParameterInfo& parameter) {
  constexpr std::size_t kLongestTyped = 200;
  return parameter.example.size() > kLongestTyped;
}

std::string ForShell(std::string_view text) {
  constexpr std::string_view kPlain =
      "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789.,:/_-+@%";
  if (!text.empty() && text.find_first_not_of(kPlain) == std::string_view::npos) return std::string(text);
  std::string quoted = "'";
  for (const char c : text) quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return quoted + "'";
}

std::string ShownValue(const ParameterInfo& parameter) {
  if (IsLong(parameter)) return "@" + std::string(parameter.name) + ".json";
  return ForShell(parameter.example);
}

/// A grid with both headings whose cells an example can show; else nothing.
std::vector<std::vector<std::string>> SmallGrid(const ExampleCall& call, const ParameterInfo& parameter) {
  constexpr std::size_t kMostRows = 8;
  const TableInfo* table = parameter.table;
  std::vector<std::vector<std::string>> rows;
  if (!table || table->repeats || table->rows.empty() || table->rows.size() > kMostRows) return rows;
  if (!table->columns.empty()) {
    std::vector<std::string>& header = rows.emplace_back(1);
    for (const HeadingInfo& column : table->columns) header.emplace_back(column.title);
  } else {
    rows.push_back({std::string(table->title), ""});
  }
  for (std::size_t row = 0; row < table->rows.size(); ++row) {
    std::vector<std::string>& cells = rows.emplace_back();
    cells.emplace_back(table->rows[row].title);
    for (std::size_t column = 0; column + 1 < rows[0].size(); ++column) {
      Figure place;
      place.parameter = parameter.name;
      place.indices = table->columns.empty() ? 1 : 2;
      place.row = table->firstRow + static_cast<std::int32_t>(row);
      place.column = table->firstColumn + static_cast<std::int32_t>(column);
      const Variant* cell = call.Out().Find(place);
      cells.push_back(cell ? PlainFigure(call.In(), *cell, UnitOf(call.In().Member(), place)) : "");
    }
  }
  return rows;
}

/// Codes of notes that any member may have; what is special to one is worth saying of it.
constexpr std::string_view kCommonNotes[] = {"no-number", "date-for-number", "negative",  "no-whole-number",
                                             "no-date",   "day-count",       "no-choice", "not-given"};

/// What a person may type in an input's place: a text that is none of it, nothing, too little, too much.
std::vector<std::string> Mistypings(const ParameterInfo& parameter) {
  if (parameter.type->kind != TypeKind::Variant) return {};
  std::vector<std::string> typed{"0", "soon"};
  if (IsNumber(parameter.unit) && parameter.unit != Unit::Code && !parameter.example.empty()) {
    const double number = std::strtod(std::string(parameter.example).c_str(), nullptr);
    for (const double factor : {0.1, 10.0, 100.0}) {
      if (const double other = number * factor; other != 0) typed.push_back(NumberText(other));
    }
    typed.emplace_back("100");
  }
  if (parameter.unit == Unit::List) typed.insert(typed.end(), {"[]", "[1]"});
  if (parameter.choices) typed.emplace_back("77");
  return typed;
}

std::string With(const ParameterInfo& parameter, const std::string& typed) {
  return "With " + std::string(parameter.name) + "=" + ForShell(typed);
}

}  // namespace

bool HasAnswer(const MemberInfo& member) { return member.group != Group::Charts && !member.address.empty(); }

std::string ExampleCommand(const ClassInfo& type, const MemberInfo& member) {
  const bool isSetting = member.address.empty();
  std::string command = "amortix2 call ";
  if (isSetting) {
    if (member.kind == MemberKind::Method) {
      command.append(type.name).append(".").append(member.name);
    } else {
      command.append(type.name).append(".METHOD ... --with ");
      return command.append(member.name).append("=").append(ShownValue(member.parameters[0]));
    }
  } else {
    command += member.address;
  }
  for (const ParameterInfo& parameter : member.parameters) {
    if (!parameter.IsInput() || parameter.example.empty()) continue;
    command.append(" ").append(parameter.name).append("=").append(ShownValue(parameter));
  }
  return command;
}

std::vector<std::string> ExampleFiles(const MemberInfo& member) {
  constexpr std::size_t kShown = 40;
  std::vector<std::string> files;
  for (const ParameterInfo& parameter : member.parameters) {
    if (!IsLong(parameter)) continue;
    const std::string_view text = parameter.example;
    const std::string name = std::string(parameter.name) + ".json holds ";
    files.push_back(name + std::string(text.substr(0, text.find("],", kShown) + 2)) + " and so on.");
  }
  return files;
}

ExampleAnswer AnswerOfExample(const ClassInfo& type, const MemberInfo& member) {
  ExampleAnswer answer;
  if (!HasAnswer(member)) return answer;
  const ExampleCall call(type, member);
  answer.sentence = AnswerSentence(call.In(), call.Out());
  for (std::size_t i = 0; i < member.parameters.size(); ++i) {
    const ParameterInfo& parameter = member.parameters[i];
    if (!parameter.IsResult() || parameter.type->kind != TypeKind::Variant) continue;
    const auto& value = *static_cast<const Variant*>(call.Argument(i).Get());
    ExampleCell cell{std::string(parameter.name), SmallGrid(call, parameter), {}};
    if (value.Type() != VariantType::Array) cell.text = PlainFigure(call.In(), value, parameter.unit);
    answer.results.push_back(std::move(cell));
  }
  return answer;
}

Mistakes MistakesIn(const ClassInfo& type, const MemberInfo& member) {
  Mistakes mistakes;
  if (!HasAnswer(member)) return mistakes;
  std::set<std::string_view> known(std::begin(kCommonNotes), std::end(kCommonNotes));
  for (const Note& note : ExampleCall(type, member).Notes()) known.insert(note.code);
  std::set<std::string> errors;
  for (const ParameterInfo& parameter : member.parameters) {
    if (!parameter.IsInput()) continue;
    for (const std::string& typed : Mistypings(parameter)) {
      const ExampleCall call(type, member, &parameter, typed);
      if (call.Error()) {
        const auto fault = call.Fault();
        const std::string number =
            std::to_string(static_cast<int>(*call.Error())) + " " + std::string(ErrorName(*call.Error()));
        if (errors.insert(number + std::string(parameter.name)).second) {
          mistakes.errors.push_back(number + ": " + (fault ? fault->Text() : With(parameter, typed)));
        }
      }
      for (const Note& note : call.Notes()) {
        if (!known.insert(note.code).second) continue;
        mistakes.notes.push_back(With(parameter, typed) + ": " + note.Text());
      }
    }
  }
  return mistakes;
}

}  // namespace amortix2::cli
