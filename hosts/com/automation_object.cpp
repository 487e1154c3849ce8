#include "amortix2/com/automation_object.h"

#include <algorithm>
#include <cstring>

#include "amortix2/automation/standard_arithmetic.h"
#include "amortix2/com/guid.h"
#include "amortix2/com/identity.h"
#include "amortix2/com/text.h"

namespace amortix2::com {
namespace {

/// A class all of whose members leave the object as it is keeps no state.
bool KeepsState(const ClassInfo& type) noexcept {
  return std::ranges::any_of(type.members, &MemberInfo::changesObject);
}

class Waiting {
 public:
  explicit Waiting(CRITICAL_SECTION* section) noexcept : section_(section) {
    if (section_ != nullptr) EnterCriticalSection(section_);
  }
  Waiting(const Waiting&) = delete;
  Waiting& operator=(const Waiting&) = delete;
  ~Waiting() {
    if (section_ != nullptr) LeaveCriticalSection(section_);
  }

 private:
  CRITICAL_SECTION* section_;
};

std::size_t PlaceOf(const ParameterInfo& parameter, const MemberInfo& member) noexcept {
  return static_cast<std::size_t>(&parameter - member.parameters.data());
}

/// The argument of an early-bound call as a late-bound one would have it; still the caller's.
VARIANT AsVariant(const ParameterInfo& parameter, void* argument) {
  const TypeInfo& type = *parameter.type;
  if (!parameter.byReference) return Peek({PlaceType(type), argument});
  VARIANT reference;
  VariantInit(&reference);
  reference.vt = static_cast<VARTYPE>(VT_BYREF | PlaceType(type));
  reference.byref = *static_cast<void**>(argument);
  if (type.kind == TypeKind::Record) {
    reference.pvRecord = reference.byref;
    reference.pRecInfo = &TypeLibrary::Loaded().Layout(*type.record).Info();
  }
  return reference;
}

}  // namespace

AutomationObject::AutomationObject(const ClassInfo& type)
    : object_(type, clock_),
      interface_{VtableOf(type), this},
      origin_{ProgramId(type.name), ToGuid(IdentifierOf(InterfaceName(type.name)))},
      keepsState_(KeepsState(type)) {
  InitializeCriticalSection(&calls_);
  // Without the marshaler other apartments get a proxy, which is slower and right as well.
  if (!keepsState_) CoCreateFreeThreadedMarshaler(static_cast<IDispatch*>(this), marshaler_.Receive());
}

AutomationObject::~AutomationObject() { DeleteCriticalSection(&calls_); }

HRESULT AutomationObject::QueryInterface(REFIID identifier, void** object) {
  if (object == nullptr) return E_POINTER;
  *object = nullptr;
  if (identifier == IID_IMarshal && marshaler_) return marshaler_->QueryInterface(identifier, object);
  if (identifier == IID_IUnknown || identifier == IID_IDispatch || identifier == origin_.interfaceId) {
    *object = &interface_;
  } else if (identifier == IID_ISupportErrorInfo) {
    *object = static_cast<ISupportErrorInfo*>(this);
  } else if (identifier == IID_IProvideClassInfo) {
    *object = static_cast<IProvideClassInfo*>(this);
  } else {
    return E_NOINTERFACE;
  }
  AddRef();
  return S_OK;
}

ULONG AutomationObject::AddRef() { return ++references_; }

ULONG AutomationObject::Release() {
  const ULONG left = --references_;
  if (left == 0) delete this;
  return left;
}

HRESULT AutomationObject::GetTypeInfoCount(UINT* count) {
  if (count == nullptr) return E_POINTER;
  *count = 1;
  return S_OK;
}

HRESULT AutomationObject::GetTypeInfo(UINT index, LCID, ITypeInfo** type) {
  if (type == nullptr) return E_POINTER;
  *type = nullptr;
  return index == 0 ? TypeOf(InterfaceName(object_.Class().name), type) : DISP_E_BADINDEX;
}

HRESULT AutomationObject::GetClassInfo(ITypeInfo** type) {
  if (type == nullptr) return E_POINTER;
  *type = nullptr;
  return TypeOf(std::string(object_.Class().name), type);
}

HRESULT AutomationObject::TypeOf(const std::string& name, ITypeInfo** type) {
  return Guarded([&] {
    *type = TypeLibrary::Loaded().Type(name).Release();
    return S_OK;
  });
}

HRESULT AutomationObject::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* numbers) {
  if (names == nullptr || numbers == nullptr || count == 0) return E_INVALIDARG;
  return Guarded([&] {
    std::fill_n(numbers, count, DISPID_UNKNOWN);
    const ClassInfo& type = object_.Class();
    const MemberInfo* member = FindMember(type, ToUtf8(names[0]));
    if (member == nullptr) return DISP_E_UNKNOWNNAME;
    numbers[0] = static_cast<DISPID>(member - type.members.data()) + 1;
    HRESULT result = S_OK;
    for (UINT i = 1; i < count; ++i) {
      const ParameterInfo* parameter = FindParameter(*member, ToUtf8(names[i]));
      if (parameter == nullptr) {
        result = DISP_E_UNKNOWNNAME;
      } else {
        numbers[i] = static_cast<DISPID>(parameter - member->parameters.data());
      }
    }
    return result;
  });
}

const MemberInfo* AutomationObject::MemberFor(DISPID number, WORD flags) const noexcept {
  const auto members = object_.Class().members;
  if (number < 1 || static_cast<std::size_t>(number) > members.size()) return nullptr;
  const MemberInfo& member = members[static_cast<std::size_t>(number) - 1];
  const int wanted = member.kind == MemberKind::PropertyPut ? DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF
                                                            : DISPATCH_METHOD;
  return (flags & wanted) != 0 ? &member : nullptr;
}

HRESULT AutomationObject::Invoke(DISPID number, REFIID reserved, LCID, WORD flags, DISPPARAMS* parameters,
                                 VARIANT* result, EXCEPINFO* details, UINT* argument) {
  if (reserved != IID_NULL) return DISP_E_UNKNOWNINTERFACE;
  if (parameters == nullptr) return E_INVALIDARG;
  if (result != nullptr) VariantInit(result);
  const MemberInfo* member = MemberFor(number, flags);
  if (member == nullptr) return DISP_E_MEMBERNOTFOUND;
  const StandardArithmetic standard;
  Binding binding;
  try {
    binding = Bind(*member, *parameters);
    if (argument != nullptr) *argument = binding.argument;
    if (FAILED(binding.result)) return binding.result;
    OwnedVariant made = CallMember(*member, binding.arguments);
    if (result != nullptr) *result = made.Take();
    return S_OK;
  } catch (const ArgumentError& error) {
    const VARIANT* const wrong = binding.arguments[PlaceOf(error.Parameter(), *member)];
    if (argument != nullptr && wrong != nullptr) *argument = static_cast<UINT>(wrong - parameters->rgvarg);
    return ReportCurrentFailure(origin_, details);
  } catch (...) {
    return ReportCurrentFailure(origin_, details);
  }
}

HRESULT AutomationObject::CallEarlyBound(std::size_t member, std::span<void* const> arguments) noexcept {
  const StandardArithmetic standard;
  try {
    const MemberInfo& info = object_.Class().members[member];
    std::vector<VARIANT> values;
    std::vector<VARIANT*> places;
    values.reserve(info.parameters.size());
    places.reserve(info.parameters.size());
    for (const ParameterInfo& parameter : info.parameters) {
      places.push_back(&values.emplace_back(AsVariant(parameter, arguments[values.size()])));
    }
    void* const result = info.result != nullptr ? *static_cast<void**>(arguments.back()) : nullptr;
    if (info.result != nullptr && result == nullptr) return E_POINTER;
    OwnedVariant made = CallMember(info, places);
    if (result != nullptr) {
      const Place place{PlaceType(*info.result), result};
      std::memset(result, 0, SizeOf(place.type));
      Exchange(place, made.Get());
    }
    return S_OK;
  } catch (...) {
    return ReportCurrentFailure(origin_, nullptr);
  }
}

OwnedVariant AutomationObject::CallMember(const MemberInfo& member, std::span<VARIANT* const> arguments) {
  BoundCall call(member, arguments);
  try {
    const Waiting waiting(keepsState_ ? &calls_ : nullptr);
    call.Call(object_);
  } catch (...) {
    // What had been written by then is the caller's, whether or not it can be stored.
    try {
      call.StoreResults();
    } catch (...) {
    }
    throw;
  }
  OwnedVariant result = call.Result();
  call.StoreResults();
  return result;
}

HRESULT AutomationObject::InterfaceSupportsErrorInfo(REFIID identifier) {
  return identifier == IID_IDispatch || identifier == origin_.interfaceId ? S_OK : S_FALSE;
}

}  // namespace amortix2::com
