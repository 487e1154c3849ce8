#include "amortix2/json/strangers.h"

#include <algorithm>
#include <cmath>
#include <span>
#include <string>

#include "amortix2/automation/array.h"
#include "amortix2/automation/conversion.h"
#include "amortix2/component/call_values.h"
#include "amortix2/json/reply_size.h"
#include "amortix2/json/request_error.h"

namespace amortix2::json {
namespace {

bool IsRecord(const ParameterInfo& parameter) { return parameter.type->record != nullptr; }

[[noreturn]] void RaiseClosed(const ClassInfo& type, const MemberInfo& member, std::string_view why) {
  throw RequestError(ErrorNumber::NoSuchMember, std::string(type.name) + "." + std::string(member.name) +
                                                    " is not open to strangers: " + std::string(why));
}

[[noreturn]] void Refuse(const std::string& message) {
  throw RequestError(ErrorNumber::InvalidProcedureCall, message);
}

void CheckLimit(const ParameterInfo& parameter, std::string_view shown, const Variant& given) {
  const Range& limit = parameter.limit;
  for (const Variant& element : ElementsOf(given)) {
    const double number = NumericOrZero(element);
    if (limit.Contains(number)) continue;
    Refuse(std::string(shown) + ": " + NumberText(number) + " lies outside " + NumberText(limit.least) +
           " to " + NumberText(limit.most));
  }
}

std::span<const Variant> ListGiven(const Invocation& call, std::string_view input) {
  const auto& parameters = call.Member().parameters;
  const auto place = std::ranges::find(parameters, input, &ParameterInfo::name) - parameters.begin();
  return ElementsOf(*static_cast<const Variant*>(call.Arguments()[static_cast<std::size_t>(place)].Get()));
}

void CheckList(const Invocation& call, const ListInfo& list, std::string_view& at) {
  for (const std::string_view input : list.inputs) {
    at = input;
    if (ListGiven(call, input).size() > static_cast<std::size_t>(list.most)) {
      Refuse(std::string(at) + " has more than " + std::to_string(list.most) + " elements");
    }
  }
  if (list.mostPayments == 0) return;
  const auto debts = ListGiven(call, list.inputs.begin()[0]);
  const auto payments = ListGiven(call, at = list.inputs.begin()[1]);
  for (std::size_t i = 0; i < std::min(debts.size(), payments.size()); ++i) {
    const double payment = std::abs(NumericOrZero(payments[i]));
    if (payment == 0 || std::abs(NumericOrZero(debts[i])) <= list.mostPayments * payment) continue;
    Refuse(std::string(at) + ": " + NumberText(payment) + " is too small: the debt is more than " +
           std::to_string(list.mostPayments) + " times as much");
  }
  at = {};
}

void Add(GivenSize& size, const Variant& value) {
  if (value.Type() == VariantType::Array) {
    for (const Variant& cell : value.GetArray().Cells()) Add(size, cell);
    return;
  }
  ++size.cells;
  if (value.Type() == VariantType::String) {
    size.longestText = std::max(size.longestText, value.GetString().size());
  }
}

}  // namespace

void CheckOpen(const ClassInfo& type, const MemberInfo& member) {
  if (member.reachesFiles) RaiseClosed(type, member, "it reaches files");
  if (std::ranges::any_of(member.parameters, IsRecord)) RaiseClosed(type, member, "it works on records");
}

void CheckOpenSetting(const ClassInfo& type, const MemberInfo& member) {
  CheckOpen(type, member);
  if (!member.address.empty()) RaiseClosed(type, member, "it is no setting");
}

void CheckInputs(const Invocation& call, std::string_view& at) {
  const bool isSetting = !at.empty();
  for (std::size_t i = 0; i < call.Arguments().size(); ++i) {
    const ParameterInfo& parameter = call.Member().parameters[i];
    const bool isNumber = parameter.limit.IsGiven();  // nothing else has one
    if (!parameter.IsInput() || !isNumber) continue;
    if (!isSetting) at = parameter.name;
    WithVariant(*parameter.type, call.Arguments()[i].Get(),
                [&](const Variant& given) { CheckLimit(parameter, at, given); });
    if (!isSetting) at = {};
  }
  for (const ListInfo& list : call.Member().lists) CheckList(call, list, at);
}

void AddInputs(const Invocation& call, GivenSize& size) {
  for (const Value& argument : call.Arguments()) {
    if (argument.Type().kind == TypeKind::ScriptingContext) continue;
    WithVariant(argument.Type(), argument.Get(), [&](const Variant& value) { Add(size, value); });
  }
}

void CheckGiven(const GivenSize& size) {
  if (size.longestText == 0 || size.cells <= kMostStrangersMarkup / size.longestText) return;
  Refuse("a text is too long for so many cells: together they may have " +
         std::to_string(kMostStrangersMarkup) + " characters");
}

void CheckAnswer(const ReplySize& size) {
  if (size.cells > kMostStrangersCells) {
    throw RequestError(ErrorNumber::OutOfMemory,
                       "the answer has more than " + std::to_string(kMostStrangersCells) + " cells");
  }
  CheckReplyLength(size.least);
}

void CheckReplyLength(std::size_t bytes) {
  if (bytes <= kLongestStrangersReply) return;
  throw RequestError(ErrorNumber::OutOfMemory,
                     "the answer is longer than " + std::to_string(kLongestStrangersReply) + " bytes");
}

}  // namespace amortix2::json
