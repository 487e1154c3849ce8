#include "amortix2/com/bound_call.h"

#include "amortix2/com/page_context.h"
#include "amortix2/com/values.h"

namespace amortix2::com {
namespace {

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

Argument::Argument(const ParameterInfo& parameter, VARIANT* source)
    : parameter_(&parameter), source_(source), value_(*parameter.type) {
  if (!IsLeftOut(source)) {
    Read(*source);
  } else if (parameter.optional) {
    parameter.type->write(value_.Get(), kMissing);
  } else {
    Raise(ErrorNumber::ArgumentNotOptional);
  }
}

void Argument::Read(VARIANT& source) {
  const TypeInfo& type = *parameter_->type;
  if (type.kind == TypeKind::ScriptingContext) {
    *static_cast<std::shared_ptr<ScriptingContext>*>(value_.Get()) = ReadContext(source);
    return;
  }
  if (parameter_->byReference) before_.emplace(type);
  if (type.record != nullptr) {
    library_ = &TypeLibrary::Loaded();
    records_ = FindRecords(*library_, type, source);
    ReadRecordsInto(value_.Get());
    if (before_) ReadRecordsInto(before_->Get());
  } else {
    type.write(value_.Get(), ReadValue(source));
    if (before_) type.write(before_->Get(), type.read(value_.Get()));
  }
}

void Argument::ReadRecordsInto(void* value) {
  const TypeInfo& type = *parameter_->type;
  if (records_.array != nullptr) ReadRecords(*library_, type, *records_.array, value);
  if (records_.record != nullptr) ReadRecord(*library_, *type.record, records_.record, value);
}

void Argument::AddTo(Changes& changes) {
  if (!before_) return;
  const TypeInfo& type = *parameter_->type;
  if (type.record == nullptr) {
    if ((source_->vt & VT_BYREF) == 0) return;
    changes.Add({static_cast<VARTYPE>(source_->vt & ~VT_BYREF), source_->byref}, type.read(before_->Get()),
                type.read(value_.Get()));
  } else if (records_.byReference && records_.array != nullptr) {
    changes.AddRecords(*library_, type, *records_.array, before_->Get(), value_.Get());
  } else if (records_.byReference && records_.record != nullptr) {
    changes.AddRecord(*library_, *type.record, records_.record, before_->Get(), value_.Get());
  }
}

Call::Call(const MemberInfo& member, const Binding& binding) {
  arguments_.reserve(member.parameters.size());
  for (std::size_t i = 0; i < member.parameters.size(); ++i) {
    arguments_.emplace_back(member.parameters[i], binding.arguments[i]);
  }
  if (member.result != nullptr) result_.emplace(*member.result);
}

std::vector<void*> Call::Values() {
  std::vector<void*> values;
  values.reserve(arguments_.size());
  for (Argument& argument : arguments_) values.push_back(argument.Value());
  return values;
}

void Call::StoreResults(VARIANT* result) {
  Changes changes;
  for (Argument& argument : arguments_) argument.AddTo(changes);
  OwnedVariant own;
  if (result_) own = MakeValue(result_->Type().read(result_->Get()));
  changes.Commit();
  if (result != nullptr) *result = own.Take();
}

}  // namespace amortix2::com
