#include "amortix2/json/execution.h"

#include <algorithm>
#include <string>

#include "amortix2/json/lookup.h"
#include "amortix2/json/typed_value.h"

namespace amortix2::json {
namespace {

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

const Variant* VariantIn(const Value& value) {
  return value.Type().kind == TypeKind::Variant ? static_cast<const Variant*>(value.Get()) : nullptr;
}

}  // namespace

Execution::Execution(const Request& request, const Clock& clock, Keep keep, Caller caller) noexcept {
  error_ = Try([&] { Run(request, clock, keep, caller); });
}

void Execution::ReadByName(const Fields& fields) {
  std::vector<bool> given(call_->Arguments().size());
  for (const auto& [name, value] : fields) {
    const std::size_t place = PlaceOfParameter(call_->Member(), name);
    if (given[place]) throw RequestError("the argument " + Quoted(name) + " is given twice");
    given[place] = true;
    reading_ = call_->Member().parameters[place].name;
    ReadArgument(value, call_->Arguments()[place]);
    reading_ = {};
  }
}

/// Of a stranger's call or setting, before it is carried out.
void Execution::Check(const Invocation& call) {
  CheckInputs(call, reading_);
  AddInputs(call, size_);
  CheckGiven(size_);
}

void Execution::Apply(const Fields& settings, Caller caller) {
  std::vector<const MemberInfo*> applied;
  for (const auto& [name, value] : settings) {
    const MemberInfo& member = NeedMember(object_->Class(), name);
    if (std::ranges::find(applied, &member) != applied.end()) {
      throw RequestError("the setting " + Quoted(name) + " is given twice");
    }
    applied.push_back(&member);
    reading_ = member.name;
    if (caller == Caller::Stranger) CheckOpenSetting(object_->Class(), member);
    Invocation setting(member);
    ReadSetting(value, setting);
    if (caller == Caller::Stranger) Check(setting);
    setting.Call(*object_);
    reading_ = {};
  }
}

void Execution::Run(const Request& request, const Clock& clock, Keep keep, Caller caller) {
  const Target target = FindTarget(request.call);
  if (caller == Caller::Stranger) CheckOpen(target.type, target.method);
  object_.emplace(target.type, clock);
  call_.emplace(target.method);
  if (request.only) {
    for (const std::string_view name : *request.only) NeedResult(target.method, name);
  }
  only_ = request.only;
  page_ = std::make_shared<CapturedPage>();
  StartPage(*object_, page_);
  ReadByName(request.arguments);
  if (caller == Caller::Stranger) Check(*call_);
  if (keep == Keep::GivenToo) {
    for (const Value& argument : call_->Arguments()) {
      const Variant* variant = VariantIn(argument);
      given_.push_back(variant ? *variant : Variant());
    }
  }
  Apply(request.settings, caller);
  if (keep != Keep::Results) {
    inputs_.emplace(target.method, call_->Arguments());
    Try([&] { today_ = clock.Today(); });
  }
  if (only_ && keep == Keep::Results) {
    call_->LeaveOutTables([&](const ParameterInfo& result) { return Wants(result.name); });
  }
  call_->Call(*object_);
}

bool Execution::Wants(std::string_view result) const noexcept {
  return !only_ || std::ranges::any_of(*only_, [&](std::string_view name) { return SameName(name, result); });
}

std::vector<Note> Execution::Notes() const {
  if (error_ || !inputs_ || !today_) return {};
  return NotesOn(*inputs_, Results(call_->Member(), call_->Arguments()), *today_);
}

Cause Execution::WhyFailed() const {
  if (error_->ofRequest) {
    const bool isNamed = reading_.empty() || error_->message.find(reading_) != std::string::npos;
    return {isNamed ? error_->message : std::string(reading_) + ": " + error_->message, reading_};
  }
  const std::string member = call_ ? std::string(call_->Member().name) + ": " : std::string();
  std::optional<Note> fault;
  if (inputs_) fault = FaultOf(*inputs_, error_->number);
  if (fault) return {member + fault->Text(), fault->parameter->name};
  const std::string where = reading_.empty() ? std::string() : std::string(reading_) + ": ";
  return {member + where + std::string(ErrorDescription(error_->number)), reading_};
}

std::span<const std::uint8_t> Execution::Response() const noexcept {
  return page_ ? page_->Written() : std::span<const std::uint8_t>{};
}

bool Execution::IsUnchanged(std::size_t argument) const {
  const Variant* now = VariantIn(call_->Arguments()[argument]);
  return now && *now == given_[argument];
}

}  // namespace amortix2::json
