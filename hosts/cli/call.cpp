#include "amortix2/cli/call.h"

#include <algorithm>
#include <string>
#include <utility>

#include "amortix2/cli/request_error.h"
#include "amortix2/cli/typed_json.h"

namespace amortix2::cli {
namespace {

std::vector<Value> NewArguments(const MemberInfo& member) {
  std::vector<Value> arguments;
  arguments.reserve(member.parameters.size());
  for (const ParameterInfo& parameter : member.parameters) arguments.push_back(NewArgument(parameter));
  return arguments;
}

void ReadByName(const Json::Fields& fields, const MemberInfo& member, std::vector<Value>& arguments) {
  std::vector<bool> given(arguments.size());
  for (const Json::Field& field : fields) {
    const std::size_t place = PlaceOfParameter(member, field.name);
    if (given[place]) throw RequestError("the argument " + Quoted(field.name) + " is given twice");
    given[place] = true;
    ReadArgument(field.value, arguments[place]);
  }
}

/// The arguments of a settings member: a property's new value, or a method's array of arguments.
void ReadSetting(const Json& json, const MemberInfo& member, std::vector<Value>& arguments) {
  if (member.kind == MemberKind::PropertyPut) return ReadArgument(json, arguments.front());
  const std::string name(member.name);
  const Json::Items* items = json.Array();
  if (!items) throw RequestError("the setting " + name + " takes the array of its arguments");
  if (items->size() > arguments.size()) throw RequestError("too many arguments for the setting " + name);
  for (std::size_t i = 0; i < items->size(); ++i) ReadArgument((*items)[i], arguments[i]);
}

/// Calls, and returns what the member returns, if anything.
std::optional<Value> Invoke(Object& object, const MemberInfo& member, std::vector<Value>& arguments) {
  std::vector<void*> places;
  places.reserve(arguments.size());
  for (Value& argument : arguments) places.push_back(argument.Get());
  std::optional<Value> result;
  if (member.result) result.emplace(*member.result);
  member.call(object.Get(), places, result ? result->Get() : nullptr);
  return result;
}

void Apply(Object& object, const Json::Fields& settings) {
  std::vector<const MemberInfo*> applied;
  for (const Json::Field& setting : settings) {
    const MemberInfo& member = NeedMember(object.Class(), setting.name);
    if (std::ranges::find(applied, &member) != applied.end()) {
      throw RequestError("the setting " + Quoted(setting.name) + " is given twice");
    }
    applied.push_back(&member);
    std::vector<Value> arguments = NewArguments(member);
    ReadSetting(setting.value, member, arguments);
    Invoke(object, member, arguments);
  }
}

}  // namespace

Call::Call(const Request& request, const Clock& clock) noexcept {
  error_ = Try([&] { Run(request, clock); });
}

void Call::Run(const Request& request, const Clock& clock) {
  const Target target = FindTarget(request.call);
  method_ = &target.method;
  object_.emplace(target.type, clock);
  page_ = std::make_shared<Page>();
  StartPage(*object_, page_);
  arguments_ = NewArguments(*method_);
  ReadByName(request.arguments, *method_, arguments_);
  Apply(*object_, request.settings);
  result_ = Invoke(*object_, *method_, arguments_);
}

std::span<const std::uint8_t> Call::Response() const noexcept {
  return page_ ? page_->Written() : std::span<const std::uint8_t>{};
}

}  // namespace amortix2::cli
