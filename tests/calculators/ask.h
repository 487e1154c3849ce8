#pragma once

// Asks a calculator by name, as every host does: inputs in the method's order, all results out.

#include <gtest/gtest.h>

#include <string_view>
#include <vector>

#include "amortix2/automation/array.h"
#include "amortix2/automation/error.h"
#include "amortix2/component/invocation.h"

namespace amortix2 {

struct FixedClock : Clock {
  Date Today() const override { return MakeDate(2001, 1, 31); }
};

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
};

/// Inputs that are left out at the end are Empty.
inline Answer Ask(std::string_view method, const std::vector<Variant>& inputs) {
  static const FixedClock clock;
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

}  // namespace amortix2
