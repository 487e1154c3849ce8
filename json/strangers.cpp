#include "amortix2/json/strangers.h"

#include <algorithm>
#include <string>

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

void CheckLimit(const ParameterInfo& parameter, std::string_view shown, const Variant& given) {
  const Range& limit = parameter.limit;
  for (const Variant& element : ElementsOf(given)) {
    const double number = NumericOrZero(element);
    if (!limit.IsGiven() || limit.Contains(number)) continue;
    throw RequestError(ErrorNumber::InvalidProcedureCall, std::string(shown) + ": " + NumberText(number) +
                                                              " lies outside " + NumberText(limit.least) +
                                                              " to " + NumberText(limit.most));
  }
}

void CheckItems(const MemberInfo& member, const ParameterInfo& parameter, const Variant& given) {
  for (const ListInfo& list : member.lists) {
    if (std::ranges::find(list.inputs, parameter.name) == list.inputs.end()) continue;
    if (ElementsOf(given).size() <= static_cast<std::size_t>(list.most)) continue;
    throw RequestError(ErrorNumber::InvalidProcedureCall, std::string(parameter.name) + " has more than " +
                                                              std::to_string(list.most) + " elements");
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
    const bool isNumber = parameter.limit.IsGiven();  // nothing else has one, and lists are of numbers
    if (!parameter.IsInput() || !isNumber) continue;
    if (!isSetting) at = parameter.name;
    WithVariant(*parameter.type, call.Arguments()[i].Get(), [&](const Variant& given) {
      CheckLimit(parameter, at, given);
      CheckItems(call.Member(), parameter, given);
    });
    if (!isSetting) at = {};
  }
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
