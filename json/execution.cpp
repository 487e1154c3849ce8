#include "amortix2/json/execution.h"

#include <algorithm>
#include <string>

#include "amortix2/json/lookup.h"
#include "amortix2/json/typed_value.h"

namespace amortix2::json {
namespace {

void ReadByName(const Fields& fields, Invocation& call) {
  std::vector<bool> given(call.Arguments().size());
  for (const auto& [name, value] : fields) {
    const std::size_t place = PlaceOfParameter(call.Member(), name);
    if (given[place]) throw RequestError("the argument " + Quoted(name) + " is given twice");
    given[place] = true;
    ReadArgument(value, call.Arguments()[place]);
  }
}

/// The arguments of a settings member: a property's new value, or a method's array of arguments.
void ReadSetting(const Tree& tree, Invocation& setting) {
  const auto arguments = setting.Arguments();
  if (setting.Member().kind == MemberKind::PropertyPut) return ReadArgument(tree, arguments.front());
  const std::string name(setting.Member().name);
  const Items* items = ItemsOf(tree);
  if (!items) throw RequestError("the setting " + name + " takes the array of its arguments");
  if (items->size() > arguments.size()) throw RequestError("too many arguments for the setting " + name);
  for (std::size_t i = 0; i < items->size(); ++i) ReadArgument((*items)[i], arguments[i]);
}

void Apply(Object& object, const Fields& settings) {
  std::vector<const MemberInfo*> applied;
  for (const auto& [name, value] : settings) {
    const MemberInfo& member = NeedMember(object.Class(), name);
    if (std::ranges::find(applied, &member) != applied.end()) {
      throw RequestError("the setting " + Quoted(name) + " is given twice");
    }
    applied.push_back(&member);
    Invocation setting(member);
    ReadSetting(value, setting);
    setting.Call(object);
  }
}

const Variant* VariantIn(const Value& value) {
  return value.Type().kind == TypeKind::Variant ? static_cast<const Variant*>(value.Get()) : nullptr;
}

}  // namespace

Execution::Execution(const Request& request, const Clock& clock, Keep keep) noexcept {
  error_ = Try([&] { Run(request, clock, keep); });
}

void Execution::Run(const Request& request, const Clock& clock, Keep keep) {
  const Target target = FindTarget(request.call);
  object_.emplace(target.type, clock);
  call_.emplace(target.method);
  page_ = std::make_shared<CapturedPage>();
  StartPage(*object_, page_);
  ReadByName(request.arguments, *call_);
  if (keep == Keep::GivenToo) {
    for (const Value& argument : call_->Arguments()) {
      const Variant* variant = VariantIn(argument);
      given_.push_back(variant ? *variant : Variant());
    }
  }
  Apply(*object_, request.settings);
  call_->Call(*object_);
}

std::span<const std::uint8_t> Execution::Response() const noexcept {
  return page_ ? page_->Written() : std::span<const std::uint8_t>{};
}

bool Execution::IsUnchanged(std::size_t argument) const {
  const Variant* now = VariantIn(call_->Arguments()[argument]);
  return now && *now == given_[argument];
}

}  // namespace amortix2::json
