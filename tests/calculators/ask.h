#pragma once

// Asks a calculator by name, as every host does: inputs in the method's order or by name, all results out.

#include <gtest/gtest.h>

#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "amortix2/automation/array.h"
#include "amortix2/automation/error.h"
#include "amortix2/component/invocation.h"

namespace amortix2 {

inline const Date kToday = MakeDate(2001, 1, 31);

struct Answer {
  const MemberInfo* member;
  std::vector<Variant> values = {};  ///< every argument as it stands after the call
  ErrorNumber error{};               ///< 0 when the call succeeded

  const Variant& operator[](std::string_view name) const {
    return values.at(static_cast<std::size_t>(FindParameter(*member, name) - member->parameters.data()));
  }
  double Number(std::string_view name) const { return (*this)[name].GetDouble(); }
  const Array& Table(std::string_view name) const { return (*this)[name].GetArray(); }
  int LastRow(std::string_view name) const { return Table(name).Dimension(1).upper; }
  double Cell(std::string_view name, int row, int column) const {
    return Table(name).At(row, column).GetDouble();
  }
  /// Whether every by-reference argument is as it was, Empty.
  bool LeftResults() const {
    for (std::size_t i = 0; i < values.size(); ++i)
      if (member->parameters[i].byReference && values[i].Type() != VariantType::Empty) return false;
    return true;
  }
};

/// Inputs that are left out at the end are Empty.
inline Answer Ask(std::string_view method, const std::vector<Variant>& inputs) {
  const FixedClock clock(kToday);
  Object calculator(*FindClass("Calculator"), clock);
  Answer answer{FindMember(calculator.Class(), method)};
  Invocation call(*answer.member);
  for (std::size_t i = 0; i < inputs.size(); ++i)
    *static_cast<Variant*>(call.Arguments()[i].Get()) = inputs[i];
  try {
    call.Call(calculator);
  } catch (const AutomationError& error) {
    answer.error = error.Number();
  }
  for (const Value& value : call.Arguments())
    answer.values.push_back(*static_cast<const Variant*>(value.Get()));
  return answer;
}

/// Inputs by name; the others are Empty.
inline Answer Ask(std::string_view method, const std::map<std::string_view, Variant>& inputs) {
  const MemberInfo& member = *FindMember(*FindClass("Calculator"), method);
  std::vector<Variant> values(member.parameters.size());
  for (const auto& [name, value] : inputs) {
    const ParameterInfo* parameter = FindParameter(member, name);
    if (parameter == nullptr) throw std::invalid_argument(std::string(name));
    values[static_cast<std::size_t>(parameter - member.parameters.data())] = value;
  }
  return Ask(method, values);
}

}  // namespace amortix2
