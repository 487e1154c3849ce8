#include "amortix2/cli/rows_call.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <string_view>

#include "amortix2/cli/arguments.h"
#include "amortix2/cli/rows_format.h"
#include "amortix2/json/execution.h"
#include "amortix2/json/typed_value.h"
#include "amortix2/json/variant_reader.h"

namespace amortix2::cli {
namespace {

/// What json::ToVariant makes of a number, when it is one that needs no care.
std::optional<Variant> ToNumber(std::string_view cell) {
  if (!IsJsonNumber(cell)) return std::nullopt;
  const char* const end = cell.data() + cell.size();
  std::int32_t whole = 0;
  if (const auto read = std::from_chars(cell.data(), end, whole); read.ec == std::errc{} && read.ptr == end) {
    return whole;
  }
  double number = 0;
  const auto read = std::from_chars(cell.data(), end, number);
  return read.ec == std::errc{} ? std::optional<Variant>(number) : std::nullopt;
}

std::optional<Variant> ToNumberOrDate(std::string_view cell) {
  constexpr std::size_t kIsoLength = 10;
  if (cell.size() == kIsoLength && cell[4] == '-') {
    if (const auto date = json::ParseIsoDate(cell)) return *date;
  }
  return ToNumber(cell);
}

bool IsSingleValue(const ParameterInfo& result) {
  return result.unit != Unit::None && result.unit != Unit::Table && result.unit != Unit::List;
}

}  // namespace

// ---- The plan

RowPlan::RowPlan(const json::Target& target, const json::CsvRecord& names,
                 const std::vector<std::string>& constants, const std::vector<std::string>& results)
    : type_(&target.type), method_(&target.method) {
  for (const Assignment& constant : SplitArguments(constants)) {
    const ParameterInfo& input = NeedInput(*method_, constant.name);
    if (IsGiven(input)) throw json::RequestError(std::string(input.name) + " is given twice");
    constants_.emplace_back(input.name, ReadValue(constant.value, *method_, input));
  }
  for (std::size_t cell = 0; cell < names.size(); ++cell) {
    const ParameterInfo* input = FindNamedInput(*method_, names[cell]);
    input && input->IsInput() ? Bind(cell, *input) : others_.push_back(cell);
  }
  if (inputs_.empty() && !names.empty()) {
    throw json::RequestError("the header names no input of " + std::string(method_->name) +
                             "; call METHOD --help has their names");
  }
  for (const std::string& name : results) {
    json::NeedResult(*method_, name);
    if (SameName(name, "response")) throw json::RequestError("rows have no response");
    const bool isReturned = SameName(name, "return");
    if (isReturned && !method_->result) throw json::RequestError("nothing is returned");
    results_.push_back(isReturned ? nullptr : FindParameter(*method_, name));
  }
  if (!results.empty()) return;
  for (const ParameterInfo& parameter : method_->parameters) {
    if (parameter.IsResult() && IsSingleValue(parameter)) results_.push_back(&parameter);
  }
  if (method_->result) results_.push_back(nullptr);
}

void RowPlan::Bind(std::size_t cell, const ParameterInfo& input) {
  if (IsGiven(input)) throw json::RequestError(std::string(input.name) + " is given twice");
  inputs_.push_back({cell, &input});
}

bool RowPlan::IsGiven(const ParameterInfo& input) const {
  return std::ranges::any_of(inputs_, [&](const Bound& bound) { return bound.parameter == &input; }) ||
         std::ranges::any_of(constants_, [&](const auto& constant) { return constant.first == input.name; });
}

bool RowPlan::Wants(const ParameterInfo& result) const {
  return std::ranges::find(results_, &result) != results_.end();
}

std::vector<std::string> RowPlan::Doubts(const json::CsvRecord& names) const {
  std::vector<std::string> doubts;
  std::vector<std::string_view> open;
  for (const ParameterInfo& parameter : method_->parameters) {
    if (parameter.IsInput() && !IsGiven(parameter)) open.push_back(parameter.name);
  }
  for (const std::size_t cell : others_) {
    const std::string& name = names[cell];
    const auto failure = json::Try([&] { FindInput(*method_, name); });
    const std::string_view closest = json::Closest(name, open);
    if (failure) {
      doubts.push_back(failure->message);
    } else if (!closest.empty()) {
      doubts.push_back("the column " + json::Quoted(name) + " is no input; did you mean " +
                       std::string(closest) + "?");
    }
  }
  return doubts;
}

// ---- The call

RowCall::RowCall(const RowPlan& plan, const Clock& clock) : plan_(plan), clock_(clock) {}

void RowCall::Run(const json::CsvRecord& cells, const ParameterInfo* schedule,
                  const calculators::LinesTaker* lines) {
  if (!object_ || plan_.Method().changesObject) object_.emplace(plan_.Class(), clock_);
  call_.emplace(plan_.Method());
  const ParameterInfo* const first = plan_.Method().parameters.data();
  const auto valueOf = [&](const ParameterInfo* parameter) -> Value& {
    return call_->Arguments()[static_cast<std::size_t>(parameter - first)];
  };
  for (const auto& [name, tree] : plan_.Constants()) {
    json::ReadArgument(tree, valueOf(FindParameter(plan_.Method(), name)));
  }
  for (const auto& [place, parameter] : plan_.Inputs()) {
    const std::string& cell = cells[place];
    if (cell.empty()) continue;
    Value& argument = valueOf(parameter);
    const bool isSingle = argument.Type().write != nullptr && parameter->questions.empty();
    if (const auto value = isSingle ? ToNumberOrDate(cell) : std::nullopt) {
      argument.Type().write(argument.Get(), *value);
    } else {
      json::ReadArgument(ReadPlainValue(cell, plan_.Method(), *parameter), argument);
    }
  }
  if (schedule) call_->LeaveOut(static_cast<std::size_t>(schedule - first), lines);
  call_->LeaveOutTables(
      [&](const ParameterInfo& result) { return schedule ? &result == schedule : plan_.Wants(result); });
  call_->Call(*object_);
}

const Value& RowCall::Result(const ParameterInfo* result) const {
  if (!result) return *call_->Result();
  return call_->Arguments()[static_cast<std::size_t>(result - plan_.Method().parameters.data())];
}

std::string RowCall::WhyFailed(const json::CsvRecord& cells, const json::Failure& failure) const {
  if (!failure.message.empty()) return failure.message;
  json::Fields fields = plan_.Constants();
  for (const auto& [place, parameter] : plan_.Inputs()) {
    if (cells[place].empty()) continue;
    fields.emplace_back(parameter->name, ReadPlainValue(cells[place], plan_.Method(), *parameter));
  }
  const std::string method = std::string(plan_.Class().name) + "." + std::string(plan_.Method().name);
  const json::Fields none;
  const json::Execution execution({method, fields, none}, clock_, json::Keep::Inputs);
  if (execution.Error()) return execution.WhyFailed().text;
  return std::string(ErrorDescription(failure.number));
}

}  // namespace amortix2::cli
