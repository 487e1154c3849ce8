#pragma once

// Asks a calculator by name, as a page script does: named arguments in, the by-reference results out.

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "amortix2/automation/array.h"
#include "amortix2/automation/error.h"
#include "amortix2/component/description.h"

namespace amortix2 {

struct FixedClock : Clock {
  Date today = MakeDate(2001, 1, 31);
  Date Today() const override { return today; }
};

struct Answer {
  std::map<std::string, Variant, std::less<>>
      results;          ///< every by-reference argument as it stands after the call
  ErrorNumber error{};  ///< 0 when the call succeeded

  const Variant& operator[](std::string_view name) const { return results.find(name)->second; }
  double Number(std::string_view name) const { return (*this)[name].GetDouble(); }
  const Array& Table(std::string_view name) const { return (*this)[name].GetArray(); }
  double Cell(std::string_view name, int row, int column) const {
    return Table(name).At(row, column).GetDouble();
  }
};

inline Answer Ask(std::string_view method, const std::map<std::string_view, Variant>& inputs) {
  static const FixedClock clock;
  Object calculator(*FindClass("Calculator"), clock);
  const MemberInfo& member = *FindMember(calculator.Class(), method);
  std::vector<Value> values;
  std::vector<void*> arguments;
  values.reserve(member.parameters.size());
  arguments.reserve(member.parameters.size());
  for (const ParameterInfo& parameter : member.parameters) values.emplace_back(*parameter.type);
  for (Value& value : values) arguments.push_back(value.Get());
  for (const auto& [name, input] : inputs) {
    const ParameterInfo* parameter = FindParameter(member, name);
    if (parameter == nullptr) throw std::invalid_argument(std::string(name));
    parameter->type->write(arguments[static_cast<std::size_t>(parameter - member.parameters.data())], input);
  }
  Answer answer;
  try {
    member.call(calculator.Get(), arguments, nullptr);
  } catch (const AutomationError& error) {
    answer.error = error.Number();
  }
  for (std::size_t i = 0; i < values.size(); ++i) {
    const ParameterInfo& parameter = member.parameters[i];
    if (parameter.byReference)
      answer.results[std::string(parameter.name)] = parameter.type->read(arguments[i]);
  }
  return answer;
}

}  // namespace amortix2
