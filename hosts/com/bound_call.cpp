#include "amortix2/com/bound_call.h"

#include <memory>

#include "amortix2/com/page_context.h"
#include "amortix2/com/result_code.h"
#include "amortix2/com/values.h"

namespace amortix2::com {
namespace {

/// Says which argument the errors of a step are about.
template <class Step>
void NamingArgument(const MemberInfo& member, std::size_t parameter, const Step& step) {
  try {
    step();
  } catch (const AutomationError& error) {
    throw ArgumentError(error.Number(), member.parameters[parameter]);
  }
}

HRESULT BindNamed(Binding& binding, const DISPPARAMS& parameters, UINT index) {
  const DISPID name = parameters.rgdispidNamedArgs[index];
  const std::size_t place =
      name == DISPID_PROPERTYPUT ? binding.arguments.size() - 1 : static_cast<std::size_t>(name);
  if (place >= binding.arguments.size() || binding.arguments[place] != nullptr) return DISP_E_PARAMNOTFOUND;
  binding.arguments[place] = &parameters.rgvarg[index];
  return S_OK;
}

bool IsLeftOut(const VARIANT* argument) noexcept {
  return argument == nullptr || (argument->vt == VT_ERROR && argument->scode == DISP_E_PARAMNOTFOUND);
}

/// A variable that can take any value; not an array with bounds of its own.
bool IsPlainVariable(VARIANT& argument) {
  const VARIANT& value = Followed(argument);
  return &value != &argument && (value.vt & VT_BYREF) == 0;
}

std::shared_ptr<ScriptingContext> ReadContext(VARIANT& argument) {
  VARIANT value = Followed(argument);
  if ((value.vt & VT_BYREF) != 0) value = Peek({static_cast<VARTYPE>(value.vt & ~VT_BYREF), value.byref});
  if (value.vt != VT_DISPATCH && value.vt != VT_UNKNOWN) Raise(ErrorNumber::TypeMismatch);
  auto context = ComPointer<IUnknown>::Shared(value.punkVal).As<IDispatch>(IID_IDispatch);
  if (!context) return nullptr;
  return std::make_shared<PageContext>(std::move(context));
}

}  // namespace

// Arguments come in reverse: the named ones, then the others from the last to the first.
Binding Bind(const MemberInfo& member, const DISPPARAMS& parameters) {
  Binding binding;
  binding.arguments.resize(member.parameters.size());
  if (parameters.cArgs > member.parameters.size() || parameters.cNamedArgs > parameters.cArgs) {
    binding.result = DISP_E_BADPARAMCOUNT;
    return binding;
  }
  const UINT positional = parameters.cArgs - parameters.cNamedArgs;
  for (UINT i = 0; i < positional; ++i) binding.arguments[i] = &parameters.rgvarg[parameters.cArgs - 1 - i];
  for (UINT i = 0; i < parameters.cNamedArgs; ++i) {
    const HRESULT result = BindNamed(binding, parameters, i);
    if (FAILED(result)) {
      binding.result = result;
      binding.argument = i;
    }
  }
  return binding;
}

Argument::Argument(const ParameterInfo& parameter, VARIANT* source, Value& value)
    : parameter_(&parameter), source_(source), value_(&value) {
  if (!IsLeftOut(source)) {
    Read(*source);
  } else if (!parameter.optional) {
    Raise(ErrorNumber::ArgumentNotOptional);
  }
}

void Argument::Read(VARIANT& source) {
  const TypeInfo& type = value_->Type();
  if (type.kind == TypeKind::ScriptingContext) {
    *static_cast<std::shared_ptr<ScriptingContext>*>(value_->Get()) = ReadContext(source);
    return;
  }
  if (parameter_->byReference) before_.emplace(type);
  const bool onlyResult = parameter_->role == Role::Result && type.kind == TypeKind::Variant;
  if (onlyResult && before_ && IsPlainVariable(source)) {
    // What the variable held is not read, and not compared: whatever the call writes replaces it.
    for (Value* const value : {value_, &*before_}) type.write(value->Get(), kMissing);
    return;
  }
  if (type.record != nullptr) {
    library_ = &TypeLibrary::Loaded();
    records_ = FindRecords(*library_, type, source);
    if (before_ && type.kind == TypeKind::RecordArray) {
      type.resize(before_->Get(), type.bounds(value_->Get()));
    }
    ReadRecordsInto(value_->Get());
    if (before_) ReadRecordsInto(before_->Get());
  } else if (type.kind == TypeKind::Variant) {
    auto& value = *static_cast<Variant*>(value_->Get());
    value = ReadValue(source);
    if (before_) *static_cast<Variant*>(before_->Get()) = value;
  } else {
    const Variant value = ReadValue(source);
    type.write(value_->Get(), value);
    if (before_) type.write(before_->Get(), value);
  }
}

void Argument::ReadRecordsInto(void* records) const {
  if (records_.array != nullptr) ReadRecords(*library_, value_->Type(), *records_.array, records);
  if (records_.record != nullptr) ReadRecord(*library_, *value_->Type().record, records_.record, records);
}

void Argument::AddTo(Changes& changes) const {
  if (!before_) return;
  const TypeInfo& type = value_->Type();
  const void* const before = before_->Get();
  const void* const after = value_->Get();
  if (type.record == nullptr) {
    if ((source_->vt & VT_BYREF) == 0) return;
    const Place place{static_cast<VARTYPE>(source_->vt & ~VT_BYREF), source_->byref};
    WithVariant(type, before, [&](const Variant& was) {
      WithVariant(type, after, [&](const Variant& is) { changes.Add(place, was, is); });
    });
  } else if (records_.byReference && records_.array != nullptr) {
    changes.AddRecords(*library_, type, *records_.array, before, after);
  } else if (records_.byReference && records_.record != nullptr) {
    changes.AddRecord(*library_, *type.record, records_.record, before, after);
  }
}

BoundCall::BoundCall(const MemberInfo& member, std::span<VARIANT* const> arguments) : invocation_(member) {
  arguments_.reserve(arguments.size());
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    NamingArgument(member, i, [&] {
      arguments_.emplace_back(member.parameters[i], arguments[i], invocation_.Arguments()[i]);
    });
  }
}

void BoundCall::StoreResults() const {
  Changes changes;
  for (std::size_t i = 0; i < arguments_.size(); ++i) {
    NamingArgument(invocation_.Member(), i, [&] { arguments_[i].AddTo(changes); });
  }
  changes.Commit();
}

OwnedVariant BoundCall::Result() const {
  const Value* const result = invocation_.Result();
  if (result == nullptr) return {};
  return WithVariant(result->Type(), result->Get(), [](const Variant& value) { return MakeValue(value); });
}

}  // namespace amortix2::com
