#include "amortix2/component/invocation.h"

#include <utility>

namespace amortix2 {

Invocation::Invocation(const MemberInfo& member) : member_(&member) {
  constexpr Bounds kNoRecords{1, 0};
  arguments_.reserve(member.parameters.size());
  for (const ParameterInfo& parameter : member.parameters) {
    Value& argument = arguments_.emplace_back(*parameter.type);
    if (parameter.optional) parameter.type->write(argument.Get(), kMissing);
    if (parameter.type->kind == TypeKind::RecordArray) parameter.type->resize(argument.Get(), kNoRecords);
  }
}

void Invocation::Call(Object& object) {
  std::vector<void*> places;
  places.reserve(arguments_.size());
  for (Value& argument : arguments_) places.push_back(argument.Get());
  std::optional<Value> result;
  if (member_->result != nullptr) result.emplace(*member_->result);
  const calculators::LeavingOut leavingOut(leftOut_);
  member_->call(object.Get(), places, result ? result->Get() : nullptr);
  result_ = std::move(result);
}

}  // namespace amortix2
